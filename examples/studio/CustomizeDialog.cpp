#include "CustomizeDialog.h"

#include "HistoryButtons.h"
#include "Icons.h"
#include "SetBars.h"
#include "SheetMenu.h"

#include <UiCustomizations/IPathManager.h>
#include <UiCustomizations/QvelActionItemModel.h>
#include <UiCustomizations/QvelConflictsWidget.h>
#include <UiCustomizations/QvelHotkeyHistory.h>
#include <UiCustomizations/QvelKeyboardWidget.h>
#include <UiCustomizations/QvelMenusWidget.h>
#include <UiCustomizations/QvelMessageLog.h>
#include <UiCustomizations/QvelMessageLogWidget.h>
#include <UiCustomizations/QvelShortcutManager.h>
#include <UiCustomizations/QvelShortcutsWidget.h>
#include <UiCustomizations/VelAction.h>

#include <QCloseEvent>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QPushButton>
#include <QTabBar>
#include <QTabWidget>
#include <QTimer>
#include <QTreeView>
#include <QUndoView>
#include <QVBoxLayout>

namespace Studio {

namespace {

QWidget *makeMenusView(CUI::QvelActionItemModel *model)
{
    auto *view = new CUI::QvelMenusWidget(model);
    // The widget leaves the columns' widths and their first order to the host.
    auto *tree = view->findChild<QTreeView *>(QStringLiteral("menuActionsTreeView"));
    tree->sortByColumn(CUI::QvelActionItemModel::ActionColumn, Qt::AscendingOrder);
    tree->setColumnWidth(CUI::QvelActionItemModel::ActionColumn, 380);
    tree->setColumnWidth(CUI::QvelActionItemModel::GroupColumn, 240);
    return view;
}

} // namespace

CustomizeDialog::CustomizeDialog(CUI::QvelShortcutManager &manager, CUI::HotkeySetWatcher &watcher,
                                 CUI::QvelHotkeyHistory &history, QWidget *parent)
    : QDialog(parent),
      m_manager(manager),
      m_model(new CUI::QvelActionItemModel(&manager, this)),
      m_menuModel(new CUI::QvelActionItemModel(nullptr, this)),
      m_editor(new CUI::QvelShortcutsWidget(m_model, &manager)),
      m_keyboard(new CUI::QvelKeyboardWidget(&manager)),
      m_conflicts(new CUI::QvelConflictsWidget(&manager)),
      m_log(new CUI::QvelMessageLogWidget),
      m_tabs(new QTabWidget)
{
    setObjectName(QStringLiteral("customizeDialog"));
    setAttribute(Qt::WA_DeleteOnClose);
    setWindowFlag(Qt::WindowContextHelpButtonHint, false);
    resize(1040, 680);
    m_tabs->addTab(m_editor, tr("&Hotkeys"));
    addKeyboard();
    addConflicts();
    // Sorting the list of actions sorts its model, which the hotkeys' rows would follow.
    m_tabs->addTab(makeMenusView(m_menuModel), tr("&Menus"));
    m_tabs->addTab(m_log, tr("&Log"));
    auto *historyView = new QUndoView(&history);
    historyView->setEmptyLabel(tr("Before the first edit"));
    m_tabs->addTab(historyView, tr("H&istory"));
    auto *layout = new QVBoxLayout(this);
    const auto *bars = new SetBars(manager, watcher, layout, this);
    connect(bars, &SetBars::stepsReplaced, m_editor,
            &CUI::QvelShortcutsWidget::resetSelectedActionFields);
    layout->addWidget(m_tabs);
    layout->addWidget(makeButtons(history));
    m_editor->setPresetComboBoxItemIcon(Icons::make(QStringLiteral("lock")));
    // The default red and green are made for light backgrounds.
    if (palette().color(QPalette::Base).lightness() < 128) {
        m_editor->setUserModifiedColor(QColor(0xff, 0x8a, 0x7a));
        m_editor->setTransformShortcutsColor(QColor(0x86, 0xd0, 0x7a));
    }
    connect(&CUI::QvelMessageLog::getInstance(), &CUI::QvelMessageLog::messageLogged, m_log,
            &CUI::QvelMessageLogWidget::append);
    // The list of sets is updated before the path manager, which the title asks.
    const auto later = [this] { QTimer::singleShot(0, this, &CustomizeDialog::showTitle); };
    connect(m_editor, &CUI::QvelShortcutsWidget::presetModified, this, later);
    connect(m_editor, &CUI::QvelShortcutsWidget::modificationsSaved, this, later);
    connect(m_editor, &CUI::QvelShortcutsWidget::legacyHotkeySetConverted, this, later);
    connect(&manager, &CUI::QvelShortcutManager::shortcutConfigurationLoaded, this, later);
    connect(&manager, &CUI::QvelShortcutManager::shortcutTransformsCleared, this, later);
    showTitle();
}

QDialogButtonBox *CustomizeDialog::makeButtons(CUI::QvelHotkeyHistory &history)
{
    auto *buttons = new QDialogButtonBox(QDialogButtonBox::Close, this);
    new HistoryButtons(history, buttons, this);
    QPushButton *sheet = buttons->addButton(tr("&Sheet"), QDialogButtonBox::ActionRole);
    sheet->setMenu(new SheetMenu(&m_manager, m_editor, m_keyboard, sheet));
    sheet->setAutoDefault(false);
    QPushButton *close = buttons->button(QDialogButtonBox::Close);
    close->setAutoDefault(false);
    setTabOrder(sheet, close);
    connect(buttons, &QDialogButtonBox::rejected, this, &QWidget::close);
    return buttons;
}

void CustomizeDialog::addKeyboard()
{
    m_tabs->addTab(m_keyboard, tr("&Keyboard"));
    m_tabs->tabBar()->setChangeCurrentOnDrag(true); // an action of the table onto a key
    connect(m_keyboard, &CUI::QvelKeyboardWidget::hotkeyActivated, this,
            [this](const QString &hotkey) {
                m_tabs->setCurrentWidget(m_editor);
                m_editor->searchForHotkey(hotkey);
            });
    connect(m_tabs, &QTabWidget::currentChanged, m_keyboard, [this] {
        const CUI::VelAction *action = m_editor->currentAction();
        m_keyboard->setCurrentAction(action != nullptr ? action->identifier()
                                                       : CUI::ActionIdentifier());
    });
}

void CustomizeDialog::setAuditOptions(CUI::HotkeyAudit::Options options)
{
    options.systems = CUI::HotkeyReservation::systemsHere();
    m_keyboard->setOptions(options);
    options.typeableKeys = CUI::QvelConflictsWidget::typeableKeys();
    m_conflicts->setAuditOptions(options);
}

void CustomizeDialog::addConflicts()
{
    m_tabs->addTab(m_conflicts, tr("&Conflicts"));
    connect(m_conflicts, &CUI::QvelConflictsWidget::actionSelected, this,
            [this](const CUI::ActionIdentifier &action) {
                m_editor->setCurrentAction(action, false);
            });
    connect(m_conflicts, &CUI::QvelConflictsWidget::actionActivated, m_tabs,
            [this] { m_tabs->setCurrentWidget(m_editor); });
}

void CustomizeDialog::setLoggedText(const QString &lines)
{
    m_log->setPlainText(lines);
}

void CustomizeDialog::showTitle()
{
    const CUI::IPathManager *paths = CUI::IPathManager::get();
    const QString path = paths != nullptr
                                 ? paths->getCurrentConfigurationFile(CUI::ConfigType::HotkeySet)
                                 : QString();
    bool locked = false;
    QString name = tr("No set");
    if (!path.isEmpty())
        CUI::QvelShortcutManager::peekPresetMetadata(path, locked, name);
    // A window takes this mark in its title for the place of its own.
    name.replace(QLatin1String("[*]"), QLatin1String("[*][*]"));
    setWindowTitle(tr("Customize - %1[*]").arg(name));
    setWindowModified(m_manager.isUserModified());
}

bool CustomizeDialog::askToClose()
{
    return m_editor->maybeSaveChanges();
}

void CustomizeDialog::reject()
{
    close();
}

void CustomizeDialog::closeEvent(QCloseEvent *event)
{
    event->setAccepted(askToClose());
}

} // namespace Studio
