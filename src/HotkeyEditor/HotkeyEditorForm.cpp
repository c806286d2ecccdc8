#include "HotkeyEditorForm.h"

#include "EditorText.h"
#include "QvelAssignedShortcutsScrollArea.h"
#include "QvelPresetComboBox.h"

#include <QGridLayout>
#include <QGroupBox>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QSplitter>
#include <QToolButton>
#include <QTreeView>

namespace CUI {

namespace {

constexpr int formSpacing = 7;
constexpr int labelWidth = 66;
constexpr auto labelAlignment = Qt::AlignRight | Qt::AlignVCenter;

template <typename Widget>
Widget *named(Widget *widget, const char *name)
{
    widget->setObjectName(QLatin1String(name));
    return widget;
}

template <typename Layout>
Layout *makeLayout(const char *name, int spacing)
{
    auto *layout = new Layout;
    layout->setObjectName(QLatin1String(name));
    layout->setSpacing(spacing);
    return layout;
}

QLabel *makeLabel(const char *name)
{
    auto *label = named(new QLabel, name);
    label->setTextFormat(Qt::PlainText);
    return label;
}

QFrame *makeLine(const char *name)
{
    auto *line = named(new QFrame, name);
    line->setFrameShape(QFrame::HLine);
    line->setFrameShadow(QFrame::Sunken);
    return line;
}

QPushButton *makeDisabledButton(const char *name)
{
    auto *button = named(new QPushButton, name);
    button->setEnabled(false);
    button->setAutoDefault(false); // Return is for the buttons of the host's dialog
    return button;
}

QComboBox *makeFilterComboBox(const char *name)
{
    auto *comboBox = named(new QComboBox, name);
    comboBox->setMinimumWidth(100);
    comboBox->setMaximumWidth(420);
    return comboBox;
}

} // namespace

void HotkeyEditorForm::build(QWidget *editor)
{
    if (editor->objectName().isEmpty())
        editor->setObjectName(QStringLiteral("QvelShortcutsWidget"));
    editor->resize(1228, 719);
    QFont font = editor->font();
    font.setFamily(QStringLiteral("MS Shell Dlg 2"));
    editor->setFont(font);

    auto *outer = makeLayout<QVBoxLayout>("verticalLayout_5", formSpacing);
    editor->setLayout(outer);
    outer->setContentsMargins(14, 14, 14, 14);
    buildSetRow(editor, outer);
    outer->addWidget(makeLine("line"));
    splitter = named(new QSplitter(Qt::Horizontal), "splitter");
    outer->addWidget(splitter);
    outer->setStretch(2, 1);
    splitter->addWidget(buildActionsPane());
    splitter->addWidget(buildSelectionPane());
    splitter->setChildrenCollapsible(false);
    setTabOrder();
}

void HotkeyEditorForm::buildSetRow(QWidget *editor, QVBoxLayout *outer)
{
    auto *grid = makeLayout<QGridLayout>("gridLayout", formSpacing);
    grid->setSizeConstraint(QLayout::SetMinimumSize);
    outer->addLayout(grid);
    hotkeySetLabel = makeLabel("HotkeyEditor_hotkeySetLabel");
    hotkeySetLabel->setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Preferred);
    hotkeySetLabel->setMinimumWidth(68);
    hotkeySetLabel->setAlignment(labelAlignment);
    grid->addWidget(hotkeySetLabel, 0, 0);
    hotkeySetComboBox = named(new QvelPresetComboBox(editor), "HotkeyEditor_hotkeySetComboBox");
    hotkeySetComboBox->setMinimumWidth(180);
    hotkeySetComboBox->setMaximumWidth(800);
    hotkeySetLabel->setBuddy(hotkeySetComboBox);
    grid->addWidget(hotkeySetComboBox, 0, 1);
    presetOptionsButton = named(new QToolButton, "HotkeyEditor_toolButtonPresetOptions");
    presetOptionsButton->setPopupMode(QToolButton::InstantPopup);
    presetOptionsButton->setFocusPolicy(Qt::StrongFocus);
    grid->addWidget(presetOptionsButton, 0, 2);
    savePresetButton = named(new QToolButton, "HotkeyEditor_toolButtonSavePreset");
    savePresetButton->setFocusPolicy(Qt::StrongFocus);
    grid->addWidget(savePresetButton, 0, 3);
    grid->addItem(new QSpacerItem(40, 20, QSizePolicy::Expanding, QSizePolicy::Minimum), 0, 4);
    grid->setColumnStretch(1, 1);
}

QWidget *HotkeyEditorForm::buildActionsPane()
{
    auto *pane = named(new QWidget, "layoutWidget1");
    auto *layout = makeLayout<QVBoxLayout>("verticalLayout_2", formSpacing);
    pane->setLayout(layout);
    layout->setSizeConstraint(QLayout::SetDefaultConstraint);
    layout->setContentsMargins(0, 0, 7, 0);
    buildFilters(layout);
    buildSearch(layout);
    keyActionsTreeView = named(new QTreeView, "HotkeyEditor_keyActionsTreeView");
    keyActionsTreeView->setIndentation(0);
    keyActionsTreeView->setRootIsDecorated(false);
    QHeaderView *header = keyActionsTreeView->header();
    header->setCascadingSectionResizes(false);
    header->setMinimumSectionSize(10);
    header->setDefaultSectionSize(70);
    header->setStretchLastSection(true);
    layout->addWidget(keyActionsTreeView);
    return pane;
}

void HotkeyEditorForm::buildFilters(QVBoxLayout *pane)
{
    auto *grid = makeLayout<QGridLayout>("gridLayout_4", formSpacing);
    grid->setSizeConstraint(QLayout::SetMaximumSize);
    pane->addLayout(grid);
    groupLabel = makeLabel("HotkeyEditor_groupLabel");
    groupLabel->setFixedWidth(labelWidth);
    groupLabel->setAlignment(labelAlignment);
    grid->addWidget(groupLabel, 0, 0);
    contextComboBox = makeFilterComboBox("HotkeyEditor_contextComboBox");
    groupLabel->setBuddy(contextComboBox);
    grid->addWidget(contextComboBox, 0, 1, 1, 2);
    filterLabel = makeLabel("HotkeyEditor_filterLabel");
    filterLabel->setMaximumWidth(labelWidth);
    filterLabel->setAlignment(labelAlignment);
    grid->addWidget(filterLabel, 1, 0);
    hotkeyFilterComboBox = makeFilterComboBox("HotkeyEditor_hotkeyFilterComboBox");
    filterLabel->setBuddy(hotkeyFilterComboBox);
    grid->addWidget(hotkeyFilterComboBox, 1, 1, 1, 2);
}

void HotkeyEditorForm::buildSearch(QVBoxLayout *pane)
{
    auto *row = makeLayout<QHBoxLayout>("horizontalLayout_3", 6);
    pane->addLayout(row);
    searchLineEdit = named(new QLineEdit, "HotkeyEditor_searchLineEdit");
    searchLineEdit->setClearButtonEnabled(true);
    searchLineEdit->setMinimumWidth(120);
    searchLineEdit->setMaximumWidth(310);
    row->addWidget(searchLineEdit);
    hotkeyRadioButton = named(new QRadioButton, "HotkeyEditor_hotkeyRadioButton");
    row->addWidget(hotkeyRadioButton);
    actionRadioButton = named(new QRadioButton, "HotkeyEditor_actionRadioButton");
    actionRadioButton->setChecked(true);
    row->addWidget(actionRadioButton);
    row->setStretch(0, 4);
    row->setStretch(1, 1);
    row->setStretch(2, 1);
}

QWidget *HotkeyEditorForm::buildSelectionPane()
{
    auto *pane = named(new QWidget, "layoutWidget2");
    auto *layout = makeLayout<QVBoxLayout>("verticalLayout_3", 21);
    pane->setLayout(layout);
    layout->setSizeConstraint(QLayout::SetMinimumSize);
    layout->setContentsMargins(14, 24, 0, 0);
    selectedActionLabel = named(new QLabel, "HotkeyEditor_selectedActionLabel");
    selectedActionLabel->setMinimumWidth(300);
    QFont font = selectedActionLabel->font();
    font.setPointSize(9);
    font.setWeight(QFont::Bold);
    font.setItalic(false);
    font.setUnderline(false);
    selectedActionLabel->setFont(font);
    selectedActionLabel->setWordWrap(true);
    layout->addWidget(selectedActionLabel);
    actionDescriptionLabel = makeLabel("HotkeyEditor_actionDescriptionLabel");
    actionDescriptionLabel->setWordWrap(true);
    actionDescriptionLabel->setMargin(0);
    layout->addWidget(actionDescriptionLabel);
    buildHotkeysBox(layout);
    return pane;
}

void HotkeyEditorForm::buildHotkeysBox(QVBoxLayout *pane)
{
    newHotkeysGroupBox = named(new QGroupBox, "newHotkeysGroupBox");
    newHotkeysGroupBox->setEnabled(true);
    auto *box = makeLayout<QGridLayout>("gridLayout_2", 6);
    newHotkeysGroupBox->setLayout(box);
    box->setContentsMargins(11, 11, 11, 11);
    shortcutLineEdit = named(new QLineEdit, "HotkeyEditor_shortcutLineEdit");
    box->addWidget(shortcutLineEdit, 1, 0);
    assignShortcutButton = makeDisabledButton("HotkeyEditor_assignShortcutBtn");
    box->addWidget(assignShortcutButton, 1, 1);
    buildConflictRows(box);
    buildAssignedList(box);
    pane->addWidget(newHotkeysGroupBox);
}

void HotkeyEditorForm::buildConflictRows(QGridLayout *box)
{
    auto *conflict = makeLayout<QHBoxLayout>("horizontalLayout_4", formSpacing);
    conflict->setSizeConstraint(QLayout::SetMinimumSize);
    box->addLayout(conflict, 2, 0);
    alreadyAssignedLabel = makeLabel("HotkeyEditor_alreadyAssignedLabel");
    conflict->addWidget(alreadyAssignedLabel);
    assignedToLabel = makeLabel("HotkeyEditor_assignedToLabel");
    assignedToLabel->setFrameShape(QFrame::NoFrame);
    assignedToLabel->setWordWrap(true);
    conflict->addWidget(assignedToLabel);
    removeShortcutButton = makeDisabledButton("HotkeyEditor_removeShortcutBtn");
    box->addWidget(removeShortcutButton, 2, 1);

    auto *removal = makeLayout<QHBoxLayout>("horizontalLayout_2", formSpacing);
    removal->setSizeConstraint(QLayout::SetMinimumSize);
    box->addLayout(removal, 3, 0);
    successRemoveLabel = makeLabel("HotkeyEditor_sucessRemoveLabel");
    removal->addWidget(successRemoveLabel);
    removedFromLabel = makeLabel("HotkeyEditor_removedFromLabel");
    QFont bold = removedFromLabel->font();
    bold.setWeight(QFont::Bold);
    removedFromLabel->setFont(bold);
    removedFromLabel->setWordWrap(true);
    removal->addWidget(removedFromLabel);
    undoRemoveButton = makeDisabledButton("HotkeyEditor_undoRemoveBtn");
    box->addWidget(undoRemoveButton, 3, 1);
}

void HotkeyEditorForm::buildAssignedList(QGridLayout *box)
{
    hotkeyListSeparatorLine = makeLine("HotkeyEditor_hotkeyListSeparatorLine");
    box->addWidget(hotkeyListSeparatorLine, 4, 0, 1, 2);
    assignedHotkeysScrollArea =
            named(new QvelAssignedShortcutsScrollArea, "scrollAreaAssignedHotkeys");
    assignedHotkeysScrollArea->setFrameShape(QFrame::NoFrame);
    assignedHotkeysScrollArea->setLineWidth(0);
    assignedHotkeysScrollArea->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    assignedHotkeysScrollArea->setWidgetResizable(true);
    assignedHotkeysWidget = named(new QWidget, "assignedHotkeysWidget");
    assignedHotkeysWidget->setGeometry(0, 0, 612, 420);
    assignedHotkeysWidget->setLayout(makeLayout<QVBoxLayout>("verticalLayout_4", formSpacing));
    assignedHotkeysScrollArea->setWidget(assignedHotkeysWidget);
    box->addWidget(assignedHotkeysScrollArea, 5, 0, 1, 2);
}

void HotkeyEditorForm::setTabOrder()
{
    const QWidgetList order{hotkeySetComboBox, presetOptionsButton,      savePresetButton,
                            contextComboBox,   hotkeyFilterComboBox,     searchLineEdit,
                            hotkeyRadioButton, actionRadioButton,        keyActionsTreeView,
                            shortcutLineEdit,  assignShortcutButton,     removeShortcutButton,
                            undoRemoveButton,  assignedHotkeysScrollArea};
    for (int i = 1; i < order.size(); ++i)
        QWidget::setTabOrder(order.at(i - 1), order.at(i));
}

void HotkeyEditorForm::retranslate(QWidget *editor)
{
    editor->setWindowTitle(
            editorText(QT_TRANSLATE_NOOP("QvelShortcutsWidget", "QvelShortcutsWidget")));
    savePresetButton->setText(editorText(QT_TRANSLATE_NOOP("QvelShortcutsWidget", "Save")));
    savePresetButton->setToolTip(
            editorText(QT_TRANSLATE_NOOP("QvelShortcutsWidget", "Save changes...")));
    hotkeySetLabel->setText(editorText(QT_TRANSLATE_NOOP("QvelShortcutsWidget", "Hotkey Set:")));
    presetOptionsButton->setText(editorText(QT_TRANSLATE_NOOP("QvelShortcutsWidget", "...")));
    presetOptionsButton->setToolTip(
            editorText(QT_TRANSLATE_NOOP("QvelShortcutsWidget", "Save, load...")));
    presetOptionsButton->setAccessibleName(presetOptionsButton->toolTip());
    hotkeySetComboBox->setToolTip(
            editorText(QT_TRANSLATE_NOOP("QvelShortcutsWidget", "Change the active...")));
    hotkeyFilterComboBox->setToolTip(
            editorText(QT_TRANSLATE_NOOP("QvelShortcutsWidget", "Filter the list... assigned")));
    groupLabel->setText(editorText(QT_TRANSLATE_NOOP("QvelShortcutsWidget", "Group:")));
    contextComboBox->setToolTip(
            editorText(QT_TRANSLATE_NOOP("QvelShortcutsWidget", "Filter the list...context")));
    filterLabel->setText(editorText(QT_TRANSLATE_NOOP("QvelShortcutsWidget", "Filter:")));
    searchLineEdit->setText(QString());
    searchLineEdit->setToolTip(
            editorText(QT_TRANSLATE_NOOP("QvelShortcutsWidget", "Press keys and modifiers...")));
    searchLineEdit->setPlaceholderText(
            editorText(QT_TRANSLATE_NOOP("QvelShortcutsWidget", "Type to search...")));
    searchLineEdit->setAccessibleName(searchLineEdit->placeholderText());
    hotkeyRadioButton->setText(editorText(QT_TRANSLATE_NOOP("QvelShortcutsWidget", "Hotkeys")));
    hotkeyRadioButton->setToolTip(
            editorText(QT_TRANSLATE_NOOP("QvelShortcutsWidget", "Search will be... hotkey")));
    actionRadioButton->setText(editorText(QT_TRANSLATE_NOOP("QvelShortcutsWidget", "Actions")));
    actionRadioButton->setToolTip(
            editorText(QT_TRANSLATE_NOOP("QvelShortcutsWidget", "Search will be... action")));
    keyActionsTreeView->setAccessibleName(actionRadioButton->text());
    retranslateSelection();
}

void HotkeyEditorForm::retranslateSelection()
{
    selectedActionLabel->setText(
            editorText(QT_TRANSLATE_NOOP("QvelShortcutsWidget", "No action selected")));
    actionDescriptionLabel->setText(editorText(QT_TRANSLATE_NOOP(
            "QvelShortcutsWidget", "Select an action in the table on the left to edit its "
                                   "hotkeys")));
    newHotkeysGroupBox->setTitle(editorText(QT_TRANSLATE_NOOP("QvelShortcutsWidget", "Hotkeys")));
    shortcutLineEdit->setText(
            editorText(QT_TRANSLATE_NOOP("QvelShortcutsWidget", "Type new hotkey...")));
    shortcutLineEdit->setToolTip(
            editorText(QT_TRANSLATE_NOOP("QvelShortcutsWidget", "Press keys and... assign")));
    shortcutLineEdit->setPlaceholderText(
            editorText(QT_TRANSLATE_NOOP("QvelShortcutsWidget", "Press keys...")));
    shortcutLineEdit->setAccessibleName(
            editorText(QT_TRANSLATE_NOOP("QvelShortcutsWidget", "Type new hotkey...")));
    assignShortcutButton->setText(editorText(QT_TRANSLATE_NOOP("QvelShortcutsWidget", "Assign")));
    assignShortcutButton->setToolTip(
            editorText(QT_TRANSLATE_NOOP("QvelShortcutsWidget", "Assigns the hotkey...")));
    undoRemoveButton->setText(editorText(QT_TRANSLATE_NOOP("QvelShortcutsWidget", "Undo")));
    undoRemoveButton->setToolTip(
            editorText(QT_TRANSLATE_NOOP("QvelShortcutsWidget", "Reassign the hotkey...")));
    successRemoveLabel->setText(
            editorText(QT_TRANSLATE_NOOP("QvelShortcutsWidget", "Removed from:")));
    removedFromLabel->setText(QString());
    alreadyAssignedLabel->setText(
            editorText(QT_TRANSLATE_NOOP("QvelShortcutsWidget", "Conflicts with:")));
    assignedToLabel->setText(QString());
    removeShortcutButton->setText(editorText(QT_TRANSLATE_NOOP("QvelShortcutsWidget", "Remove")));
    removeShortcutButton->setToolTip(
            editorText(QT_TRANSLATE_NOOP("QvelShortcutsWidget", "Removes the assignment...")));
    assignedHotkeysScrollArea->setAccessibleName(newHotkeysGroupBox->title());
}

} // namespace CUI
