#include "QvelShortcutsWidgetPrivate.h"

#include "EditorText.h"
#include "InstalledPaths.h"
#include "QvelAssignedShortcutsScrollArea.h"
#include "QvelCustomizeDialogHelper.h"

#include <VelUtil.h>

#include <QAction>
#include <QCoreApplication>
#include <QFileInfo>
#include <QFileSystemWatcher>
#include <QGroupBox>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QPushButton>
#include <QRadioButton>
#include <QScrollBar>
#include <QSignalBlocker>
#include <QSplitter>
#include <QStyle>
#include <QToolButton>
#include <QTreeView>
#include <QtMath>

#include <algorithm>
#include <array>

namespace CUI {

namespace {

// The entries of the two filters are translated where they are filled in.
QString filterText(const char *sourceText)
{
    return QCoreApplication::translate("QvelCustomizeUiDialog", sourceText);
}

// The entries of the options menu in their order; an empty text is a separator.
constexpr std::array<const char *, 10> optionTexts{
        QT_TRANSLATE_NOOP("QvelShortcutsWidget", "Save"),
        QT_TRANSLATE_NOOP("QvelShortcutsWidget", "Save As..."),
        "",
        QT_TRANSLATE_NOOP("QvelShortcutsWidget", "Load From File..."),
        "",
        QT_TRANSLATE_NOOP("QvelShortcutsWidget", "Reset"),
        "",
        QT_TRANSLATE_NOOP("QvelShortcutsWidget", "Open File Location"),
        "",
        QT_TRANSLATE_NOOP("QvelShortcutsWidget", "Import Legacy Hotkeys..."),
};

int scaled(int width)
{
    return static_cast<int>(width * VelSDK::GetUIScaleFactor(-1));
}

} // namespace

QvelShortcutsWidget::Private::Private(QvelShortcutsWidget *editor, QvelActionItemModel *actionModel,
                                      QvelShortcutManager *shortcutManager)
    : q(editor), model(actionModel), manager(shortcutManager)
{
}

// Construction

void QvelShortcutsWidget::Private::build()
{
    form.build(q);
    form.retranslate(q);
    scaleWidths();
    watcher = new QFileSystemWatcher(q);
    watchUserPresets();
    setUpPresetComboBox();
    setUpPresetOptionsButton();
    QvelCustomizeDialogHelper::initializeHotkeyFilterList(form.hotkeyFilterComboBox);
    QvelCustomizeDialogHelper::initializeContextList(form.contextComboBox);
    setUpTree();
    panel = new ActionSelectionPanel(form, model, manager, proxy, delegate, q);
    search = new ActionSearch(form, proxy, q);
    rowMenu = new ActionRowMenu(form.keyActionsTreeView, model, proxy, manager, search, q);
    currentSet = new CurrentSet(form.hotkeySetComboBox, manager, q);
    commands = new HotkeySetCommands(q, currentSet, manager);
    setUpFields();
    alignFilterLabels();
    const int width = form.splitter->width();
    form.splitter->setSizes({static_cast<int>(width * 0.66), static_cast<int>(width * 0.33)});
}

void QvelShortcutsWidget::Private::scaleWidths()
{
    for (QWidget *widget : {static_cast<QWidget *>(form.hotkeySetComboBox),
                            static_cast<QWidget *>(form.contextComboBox),
                            static_cast<QWidget *>(form.hotkeyFilterComboBox),
                            static_cast<QWidget *>(form.searchLineEdit)}) {
        widget->setMinimumWidth(scaled(widget->minimumWidth()));
        widget->setMaximumWidth(scaled(widget->maximumWidth()));
    }
}

// While the directory of the user's sets does not exist, its nearest parent is watched.
void QvelShortcutsWidget::Private::watchUserPresets()
{
    QString directory = installedPaths().getUserPresetDirectory();
    if (directory.isEmpty())
        return;
    while (!QFileInfo(directory).isDir()) {
        const QString parent = QFileInfo(directory).path();
        if (parent == directory)
            return;
        directory = parent;
    }
    const QStringList watched = watcher->directories();
    if (watched.contains(directory))
        return;
    if (!watched.isEmpty())
        watcher->removePaths(watched);
    watcher->addPath(directory);
}

void QvelShortcutsWidget::Private::followDirectory(const QString &changed)
{
    watchUserPresets();
    const QString directory = installedPaths().getUserPresetDirectory();
    if (changed == directory || watcher->directories().contains(directory))
        currentSet->refreshList();
}

void QvelShortcutsWidget::Private::setUpPresetComboBox()
{
    form.hotkeySetComboBox->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    form.hotkeySetComboBox->updatePresets(ConfigType::HotkeySet, true);
    form.savePresetButton->setIcon(q->style()->standardIcon(QStyle::SP_DialogSaveButton));
}

void QvelShortcutsWidget::Private::setUpPresetOptionsButton()
{
    auto *menu = new QMenu(form.presetOptionsButton);
    for (const char *text : optionTexts)
        m_optionActions << (*text == '\0' ? menu->addSeparator()
                                          : menu->addAction(editorText(text)));
    form.presetOptionsButton->setMenu(menu);
}

void QvelShortcutsWidget::Private::setUpTree()
{
    proxy = new ActionTableProxy(model, manager, q);
    proxy->setDynamicSortFilter(false);
    proxy->setFilterCaseSensitivity(Qt::CaseInsensitive);
    proxy->setSortCaseSensitivity(Qt::CaseInsensitive);
    QTreeView *tree = form.keyActionsTreeView;
    tree->setUniformRowHeights(true); // asking each row for its height is slow
    tree->setModel(proxy);
    tree->setAlternatingRowColors(true);
    tree->setSortingEnabled(true);
    tree->sortByColumn(QvelActionItemModel::ActionColumn, Qt::AscendingOrder);
    tree->setSelectionBehavior(QAbstractItemView::SelectRows);
    tree->setDragDropMode(QAbstractItemView::DragOnly); // onto the keys of a keyboard
    delegate = new ActionListTreeItemDelegate(tree, manager);
    tree->setItemDelegate(delegate);
    setDefaultHeadersSizes();
}

void QvelShortcutsWidget::Private::setUpFields()
{
    form.searchLineEdit->installEventFilter(q);
    form.actionRadioButton->setChecked(true);
    search->retranslate();
    panel->hideAlreadyAssignedControls();
    panel->hideReassignControls();
    form.assignedHotkeysScrollArea->setStyleSheet(
            QStringLiteral("QScrollArea{ background: transparent; } QScrollArea > QWidget > "
                           "QWidget{ background: transparent; }"));
    QSizePolicy policy = form.newHotkeysGroupBox->sizePolicy();
    policy.setRetainSizeWhenHidden(true);
    form.newHotkeysGroupBox->setSizePolicy(policy);
    form.newHotkeysGroupBox->hide();
    form.newHotkeysGroupBox->installEventFilter(q);
}

void QvelShortcutsWidget::Private::alignFilterLabels()
{
    // The bounding rectangle of the text is narrower and would cut off the first letter.
    const auto textWidth = [](const QLabel *label) {
        return qCeil(QFontMetricsF(label->font()).horizontalAdvance(label->text()));
    };
    const int width = std::max(textWidth(form.groupLabel), textWidth(form.filterLabel));
    form.groupLabel->setFixedWidth(width);
    form.filterLabel->setFixedWidth(width);
}

void QvelShortcutsWidget::Private::setDefaultHeadersSizes()
{
    QTreeView *tree = form.keyActionsTreeView;
    const int character = tree->fontMetrics().averageCharWidth();
    const QAbstractItemView *view = tree; // in a tree view the function is not public
    const int actionWidth =
            std::min(35 * character, view->sizeHintForColumn(QvelActionItemModel::ActionColumn));
    tree->setColumnWidth(QvelActionItemModel::ActionColumn, actionWidth);
    tree->setColumnWidth(QvelActionItemModel::HotkeyColumn, 25 * character);
    tree->setColumnWidth(QvelActionItemModel::GroupColumn, 20 * character);
    // The last section takes what is left, which may be less than its header needs.
    const QHeaderView *header = tree->header();
    tree->setColumnWidth(QvelActionItemModel::CategoryColumn,
                         std::max(header->defaultSectionSize(),
                                  header->sectionSizeHint(QvelActionItemModel::CategoryColumn)));
}

void QvelShortcutsWidget::Private::saveHeadersSizes()
{
    m_savedColumnWidths.clear();
    for (int column = QvelActionItemModel::ActionColumn;
         column <= QvelActionItemModel::CategoryColumn; ++column)
        m_savedColumnWidths << form.keyActionsTreeView->columnWidth(column);
}

void QvelShortcutsWidget::Private::restoreHeadersSizes()
{
    for (int column = 0; column < m_savedColumnWidths.size(); ++column)
        form.keyActionsTreeView->setColumnWidth(column, m_savedColumnWidths.at(column));
}

// Connections

void QvelShortcutsWidget::Private::connectAll()
{
    connect(currentSet, &CurrentSet::rowsInvalidated, q, [this] {
        proxy->invalidate();
        model->invalidateAllRows();
    });
    connect(currentSet, &CurrentSet::selectedActionInvalidated, panel,
            &ActionSelectionPanel::updateSelectedActionShortcutList);
    connect(currentSet, &CurrentSet::setReplaced, panel, [this] { panel->clearSelection(); });
    connect(currentSet, &CurrentSet::presetModified, q, &QvelShortcutsWidget::presetModified);
    connect(commands, &HotkeySetCommands::modificationsSaved, q,
            &QvelShortcutsWidget::modificationsSaved);
    connect(commands, &HotkeySetCommands::legacyHotkeySetConverted, q,
            &QvelShortcutsWidget::legacyHotkeySetConverted);

    connectLists();
    connectSelection();
    connectStore();
    connectRows();
    connectCommands();
}

void QvelShortcutsWidget::Private::connectLists()
{
    connect(watcher, &QFileSystemWatcher::directoryChanged, q,
            [this](const QString &directory) { followDirectory(directory); });
    QHeaderView *header = form.keyActionsTreeView->header();
    connect(header, &QHeaderView::sectionPressed, search, &ActionSearch::returnToColumnSorting);
    connect(form.searchLineEdit, &QLineEdit::textChanged, search, &ActionSearch::followText);
    connect(form.actionRadioButton, &QRadioButton::clicked, search, &ActionSearch::searchByActions);
    connect(form.hotkeyRadioButton, &QRadioButton::clicked, search, &ActionSearch::searchByHotkeys);
    const auto indexChanged = qOverload<int>(&QComboBox::currentIndexChanged);
    connect(form.hotkeyFilterComboBox, indexChanged, q,
            [this](int index) { filterByHotkeyState(index); });
    connect(form.contextComboBox, indexChanged, q, [this](int index) { filterByContext(index); });
    connect(proxy, &QAbstractItemModel::layoutChanged, q, [this] { keepCurrentActionInView(); });
}

void QvelShortcutsWidget::Private::connectSelection()
{
    connect(form.keyActionsTreeView->selectionModel(), &QItemSelectionModel::currentChanged, panel,
            &ActionSelectionPanel::showRow);
    connect(form.assignShortcutButton, &QPushButton::clicked, panel, &ActionSelectionPanel::assign);
    connect(form.removeShortcutButton, &QPushButton::clicked, panel,
            &ActionSelectionPanel::removeFromHolder);
    connect(form.undoRemoveButton, &QPushButton::clicked, panel,
            &ActionSelectionPanel::undoRemoval);
}

void QvelShortcutsWidget::Private::connectStore()
{
    connect(manager, &QvelShortcutManager::shortcutTransformAdded, q,
            [this](const ShortcutTransformation &step) {
                panel->followStep(step);
                if (transformationDialog != nullptr)
                    transformationDialog->followAdded(step);
            });
    connect(manager, &QvelShortcutManager::shortcutTransformsCleared, q, [this] {
        panel->updateSelectedActionShortcutList();
        if (transformationDialog != nullptr)
            transformationDialog->refill();
        panel->hideOutdatedReassignControls();
        panel->updateAssignedShortcutFields();
    });
    connect(manager, &QvelShortcutManager::shortcutTransformsCollapsed, q, [this] {
        if (transformationDialog != nullptr)
            transformationDialog->refill();
    });
    connect(manager, &QvelShortcutManager::shortcutsCleared, q, [this] {
        form.shortcutLineEdit->clear();
        panel->updateAssignedShortcutFields();
        panel->updateSelectedActionShortcutList();
        panel->hideReassignControls();
        if (transformationDialog != nullptr)
            transformationDialog->refill();
    });
}

// An edit in the editor leaves its row in sight, whatever the filter. Rows follow what replaces
// hotkeys from elsewhere, undoing, and a reset.
void QvelShortcutsWidget::Private::connectRows()
{
    m_refilter.setSingleShot(true);
    const auto refilterSoon = [this] { m_refilter.start(0); };
    connect(&m_refilter, &QTimer::timeout, q, [this] { refilterByHotkeys(); });
    connect(rowMenu, &ActionRowMenu::resetDone, q, refilterSoon);
    connect(manager, &QvelShortcutManager::shortcutTransformsCleared, q, refilterSoon);
    connect(manager, &QvelShortcutManager::shortcutTransformsLoaded, q, refilterSoon);
}

void QvelShortcutsWidget::Private::connectCommands()
{
    connect(form.hotkeySetComboBox, qOverload<int>(&QComboBox::currentIndexChanged), commands,
            [this](int index) {
                commands->choosePreset(form.hotkeySetComboBox->presetFromIndex(index));
            });
    connect(form.savePresetButton, &QToolButton::clicked, commands,
            &HotkeySetCommands::saveCurrent);
    connect(manager, &QvelShortcutManager::shortcutsModified, currentSet,
            &CurrentSet::markModified);
    connect(manager, &QvelShortcutManager::shortcutsUnModified, currentSet,
            &CurrentSet::clearModified);
    connect(manager, &QvelShortcutManager::shortcutConfigurationLoaded, currentSet,
            &CurrentSet::followLoadedConfiguration);
    connect(q, &QvelShortcutsWidget::presetModified, form.hotkeySetComboBox,
            &QvelPresetComboBox::setCurPresetModified);

    const auto trigger = [this](int index, auto slot) {
        connect(m_optionActions.at(index), &QAction::triggered, commands, slot);
    };
    trigger(0, &HotkeySetCommands::saveCurrent);
    trigger(1, &HotkeySetCommands::saveAs);
    trigger(3, &HotkeySetCommands::loadFromFile);
    trigger(5, &HotkeySetCommands::maybeDiscardChanges);
    trigger(7, &HotkeySetCommands::openFileLocation);
    trigger(9, &HotkeySetCommands::selectFileForConversion);
}

// Reactions

void QvelShortcutsWidget::Private::filterByHotkeyState(int index)
{
    const QString text = form.hotkeyFilterComboBox->itemText(index);
    auto filter = QvelSortFilterProxyModel::AllActions;
    if (text == filterText("Assigned Hotkeys Only"))
        filter = QvelSortFilterProxyModel::AssignedHotkeysOnly;
    else if (text == filterText("Customized Hotkeys Only"))
        filter = QvelSortFilterProxyModel::CustomizedHotkeysOnly;
    else if (text == filterText("Unsaved Hotkeys Only"))
        filter = QvelSortFilterProxyModel::UnsavedHotkeysOnly;
    proxy->setSelectedHotkeyFilter(filter);
}

void QvelShortcutsWidget::Private::filterByContext(int index)
{
    if (form.contextComboBox->itemText(index) == filterText("All Groups"))
        proxy->disableContextFilter();
    else
        proxy->setFilterSelectedContext(static_cast<unsigned long>(
                form.contextComboBox->itemData(index, Qt::UserRole).toULongLong()));
}

void QvelShortcutsWidget::Private::refilterByHotkeys()
{
    const bool isSearched = search->isByHotkeys() && !form.searchLineEdit->text().isEmpty();
    if (form.hotkeyFilterComboBox->currentIndex() <= 0 && !isSearched)
        return;
    QScrollBar *bar = form.keyActionsTreeView->verticalScrollBar();
    const int place = bar->value();
    proxy->invalidate();
    bar->setValue(place);
}

void QvelShortcutsWidget::Private::keepCurrentActionInView()
{
    QTreeView *tree = form.keyActionsTreeView;
    const QModelIndex current = tree->currentIndex();
    if (current.isValid())
        tree->scrollTo(current, QAbstractItemView::EnsureVisible);
    else
        tree->scrollToTop();
    if (!panel->currentActionId().isEmpty())
        panel->setCurrentAction(panel->currentActionId(), false);
}

// Languages

void QvelShortcutsWidget::Private::retranslate()
{
    const QSignalBlocker searchBlocker(form.searchLineEdit);
    const QString searched = form.searchLineEdit->text();
    const QSignalBlocker typedBlocker(form.shortcutLineEdit);
    form.retranslate(q);
    form.searchLineEdit->setText(searched);
    search->retranslate();
    for (int i = 0; i < m_optionActions.size(); ++i) {
        if (!m_optionActions.at(i)->isSeparator())
            m_optionActions.at(i)->setText(editorText(optionTexts.at(static_cast<std::size_t>(i))));
    }
    retranslateFilters();
    retranslateLists();
    alignFilterLabels();
    panel->retranslate();
}

void QvelShortcutsWidget::Private::retranslateFilters()
{
    const QSignalBlocker filterBlocker(form.hotkeyFilterComboBox);
    const int filter = form.hotkeyFilterComboBox->currentIndex();
    QvelCustomizeDialogHelper::initializeHotkeyFilterList(form.hotkeyFilterComboBox);
    form.hotkeyFilterComboBox->setCurrentIndex(filter);
    const QSignalBlocker contextBlocker(form.contextComboBox);
    const int context = form.contextComboBox->currentIndex();
    QvelCustomizeDialogHelper::initializeContextList(form.contextComboBox);
    form.contextComboBox->setCurrentIndex(context);
}

// The names of shipped sets and the headers of the table are translated when they are set.
void QvelShortcutsWidget::Private::retranslateLists()
{
    currentSet->refreshList();
    model->setHorizontalHeaderLabels(
            {QvelActionItemModel::tr("Action"), QvelActionItemModel::tr("Hotkey"),
             QvelActionItemModel::tr("Group"), QvelActionItemModel::tr("Category")});
}

} // namespace CUI
