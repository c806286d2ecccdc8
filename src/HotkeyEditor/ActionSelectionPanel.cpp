#include "ActionSelectionPanel.h"

#include "ActionListTreeItemDelegate.h"
#include "AssignedHotkeyRows.h"
#include "ConflictDialogs.h"
#include "EditorText.h"
#include "FocusWithin.h"
#include "HotkeyEditorForm.h"
#include "HotkeyEdits.h"
#include "HotkeyField.h"
#include "JoinedHotkeys.h"
#include "QvelActionItem.h"
#include "QvelActionItemModel.h"
#include "QvelAssignedShortcutsScrollArea.h"
#include "QvelShortcutManager.h"
#include "VelAction.h"

#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSortFilterProxyModel>
#include <QTextBoundaryFinder>
#include <QTreeView>

#include <algorithm>

namespace CUI {

ActionSelectionPanel::ActionSelectionPanel(HotkeyEditorForm &form, QvelActionItemModel *model,
                                           QvelShortcutManager *manager,
                                           QSortFilterProxyModel *proxy,
                                           const ActionListTreeItemDelegate *colors,
                                           QObject *parent)
    : QObject(parent),
      m_form(form),
      m_model(model),
      m_manager(manager),
      m_proxy(proxy),
      m_field(new HotkeyField(form.shortcutLineEdit, HotkeyField::Modifiers::UntilReleased)),
      m_rows(new AssignedHotkeyRows(form.assignedHotkeysScrollArea, manager, colors, this))
{
    connect(form.shortcutLineEdit, &QLineEdit::textChanged, this,
            &ActionSelectionPanel::updateAssignedShortcutFields);
    connect(m_field, &HotkeyField::pressed, this,
            &ActionSelectionPanel::updateAssignedShortcutFields);
    connect(m_rows, &AssignedHotkeyRows::removeClicked, this, &ActionSelectionPanel::removeRow);
    connect(m_rows, &AssignedHotkeyRows::undoClicked, this, &ActionSelectionPanel::undoRow);
}

// Selection

void ActionSelectionPanel::showRow(const QModelIndex &current)
{
    m_field->clear();
    m_form.assignedToLabel->clear();
    m_form.selectedActionLabel->clear();
    m_rows->clear();
    m_form.assignShortcutButton->setEnabled(false);
    m_form.removeShortcutButton->setEnabled(false);
    const QModelIndex source = m_proxy->mapToSource(current);
    const VelAction *action = m_model->velActionFromModelIdx(source);
    if (action != nullptr)
        showAction(source, *action);
    else
        showNoAction();
}

void ActionSelectionPanel::showAction(const QModelIndex &sourceIndex, const VelAction &action)
{
    m_currentAction = action.identifier();
    describe(action, sourceIndex.sibling(sourceIndex.row(), QvelActionItemModel::GroupColumn)
                             .data()
                             .toString());
    m_form.newHotkeysGroupBox->show();
    updateSelectedActionShortcutList();
    hideReassignControls();
    hideAlreadyAssignedControls();
}

void ActionSelectionPanel::describe(const VelAction &action, const QString &group)
{
    m_form.selectedActionLabel->setText(
            QStringLiteral("<b>%1</b> (%2)")
                    .arg(action.name().toHtmlEscaped(), group.toHtmlEscaped()));
    m_form.actionDescriptionLabel->setText(
            action.momentary() ? editorText(QT_TRANSLATE_NOOP(
                    "QvelShortcutsWidget", "Press and hold to temporarily activate."))
                               : QString());
    m_form.actionDescriptionLabel->setVisible(action.momentary());
}

void ActionSelectionPanel::showNoAction()
{
    m_form.selectedActionLabel->setText(
            QStringLiteral("<b>%1</b>")
                    .arg(editorText(QT_TRANSLATE_NOOP("QvelShortcutsWidget", "No action selected"))
                                 .toHtmlEscaped()));
    m_form.actionDescriptionLabel->setText(editorText(QT_TRANSLATE_NOOP(
            "QvelShortcutsWidget", "Select an action in the table to edit its hotkeys.")));
    m_form.actionDescriptionLabel->show();
    if (hasFocusWithin(m_form.newHotkeysGroupBox)) // the table would select its first row
        m_form.searchLineEdit->setFocus(Qt::OtherFocusReason);
    m_form.newHotkeysGroupBox->hide();
}

void ActionSelectionPanel::setCurrentAction(const ActionIdentifier &id, bool focus)
{
    if (m_model == nullptr)
        return;
    if (focus)
        m_form.searchLineEdit->clear();
    const QvelActionItem *item = m_model->itemFromVelAction(QvelActionItemModel::ActionColumn, id);
    QItemSelectionModel *selection = m_form.keyActionsTreeView->selectionModel();
    if (item == nullptr || selection == nullptr)
        return;
    selection->setCurrentIndex(m_proxy->mapFromSource(item->index()),
                               QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows);
    if (focus)
        m_form.shortcutLineEdit->setFocus(Qt::OtherFocusReason);
    m_currentAction = id;
}

VelAction *ActionSelectionPanel::currentAction() const
{
    const QvelActionItem *item =
            m_model->itemFromVelAction(QvelActionItemModel::ActionColumn, m_currentAction);
    return item != nullptr ? m_model->velActionFromModelIdx(item->index()) : nullptr;
}

void ActionSelectionPanel::clearSelection()
{
    m_currentAction = {};
    if (QItemSelectionModel *selection = m_form.keyActionsTreeView->selectionModel())
        selection->clear();
    showRow({}); // after a reset of the model the selection was empty already
}

void ActionSelectionPanel::resetSelectedActionFields()
{
    m_field->clear();
    hideAlreadyAssignedControls();
    updateSelectedActionShortcutList();
}

void ActionSelectionPanel::retranslate()
{
    showRow(m_form.keyActionsTreeView->currentIndex());
}

// Typing a hotkey

VelAction *ActionSelectionPanel::holderOf(const QString &shortcut) const
{
    const VelAction *action = currentAction();
    if (action == nullptr || shortcut.isEmpty())
        return nullptr;
    return m_model->velActionFromShortcut(shortcut, action->contextId());
}

void ActionSelectionPanel::updateAssignedShortcutFields()
{
    const VelAction *action = currentAction();
    if (action == nullptr)
        return;
    const VelAction *holder = holderOf(m_field->hotkey());
    if (holder == nullptr || holder->identifier() == action->identifier()) {
        m_form.assignedToLabel->clear();
        m_form.assignShortcutButton->setEnabled(m_field->hasHotkey());
        hideAlreadyAssignedControls();
    } else {
        m_form.assignedToLabel->setText(holder->name());
        m_form.assignShortcutButton->setEnabled(false);
        showAlreadyAssignedControls();
    }
    m_form.assignedToLabel->setMinimumWidth(getTextMinimunQLabelWidth(m_form.assignedToLabel));
    fitBoxHeight();
}

int ActionSelectionPanel::getTextMinimunQLabelWidth(const QLabel *label) const
{
    const QString text = label->text();
    if (text.isEmpty() || !label->wordWrap())
        return 0;
    const QFontMetrics metrics = label->fontMetrics();
    int widest = 0;
    int start = 0;
    QTextBoundaryFinder finder(QTextBoundaryFinder::Line, text);
    for (int end = finder.toNextBoundary(); end >= 0; end = finder.toNextBoundary()) {
        const QString piece = text.mid(start, end - start);
        widest = std::max(widest, metrics.boundingRect(piece).width() + metrics.averageCharWidth());
        start = end;
    }
    return widest;
}

void ActionSelectionPanel::fitBoxHeight()
{
    QGroupBox *box = m_form.newHotkeysGroupBox;
    box->setMinimumHeight(std::max(0, box->heightForWidth(box->width())));
}

// Edits

void ActionSelectionPanel::assign()
{
    const VelAction *action = currentAction();
    const QString shortcut = m_field->hotkey();
    if (action == nullptr || shortcut.isEmpty())
        return;
    const bool isHeld = holderOf(shortcut) != nullptr;
    if (!isHeld && isFull()) {
        ConflictDialogs::reportFullList(m_form.newHotkeysGroupBox->window());
        return;
    }
    const ActionIdentifier id = action->identifier();
    const QString name = action->name();
    m_field->clear();
    if (isHeld)
        return;
    HotkeyEdits::give(*m_manager, id, shortcut, name);
    hideReassignControls();
}

bool ActionSelectionPanel::isFull() const
{
    const QString hotkeys = m_manager->getShortcutsFromActionId(m_currentAction);
    return JoinedHotkeys::split(hotkeys).size() >= QShortcutsList::ShortcutLimitPerAction;
}

void ActionSelectionPanel::removeFromHolder()
{
    const QString shortcut = m_field->hotkey();
    const VelAction *holder = holderOf(shortcut);
    if (holder == nullptr)
        return;
    m_removedFromId = holder->identifier();
    m_removedFromName = holder->name();
    m_removedHotkey = shortcut;
    // The edit may change the fields while its signals are delivered.
    const ActionIdentifier id = m_removedFromId;
    const QString name = m_removedFromName;
    HotkeyEdits::take(*m_manager, id, shortcut, name);
    updateAssignedShortcutFields();
    showReassignControls();
}

void ActionSelectionPanel::undoRemoval()
{
    if (currentAction() == nullptr || m_removedHotkey.isEmpty())
        return;
    const ActionIdentifier id = m_removedFromId;
    const QString name = m_removedFromName;
    const QString shortcut = m_removedHotkey;
    HotkeyEdits::give(*m_manager, id, shortcut, name);
    hideReassignControls();
    updateAssignedShortcutFields();
}

void ActionSelectionPanel::removeRow(const QString &shortcut)
{
    const VelAction *action = currentAction();
    if (action == nullptr)
        return;
    const ActionIdentifier id = action->identifier();
    HotkeyEdits::take(*m_manager, id, shortcut, action->name());
    m_rows->addRemoved(shortcut);
    m_field->clear();
}

void ActionSelectionPanel::undoRow(const QString &shortcut)
{
    const VelAction *action = currentAction();
    if (action == nullptr)
        return;
    if (isFull()) {
        ConflictDialogs::reportFullList(m_form.newHotkeysGroupBox->window());
        return;
    }
    const ActionIdentifier id = action->identifier();
    HotkeyEdits::give(*m_manager, id, shortcut, action->name());
    m_field->clear();
}

// Rows

void ActionSelectionPanel::updateSelectedActionShortcutList()
{
    if (currentAction() != nullptr)
        m_rows->show(m_currentAction);
    else
        m_rows->clear();
}

void ActionSelectionPanel::followStep(const ShortcutTransformation &step)
{
    const bool isOfAction = step.actionId() == m_currentAction;
    // Another action may have got, or lost, the hotkey in the field.
    const bool isOfField = step.shortcut().compare(m_field->hotkey(), Qt::CaseInsensitive) == 0;
    // Finding the action takes a pass over all rows, and a set has many steps for other actions.
    if (!isOfAction && !isOfField && m_rows->agreeWithStore(m_currentAction))
        return;
    if (currentAction() == nullptr)
        return;
    if (isOfAction) {
        if (step.kind() == ShortcutTransformation::Assign)
            m_rows->addAssigned(m_currentAction, step.shortcut());
        else
            m_rows->remove(step.shortcut());
    }
    if (isOfAction || isOfField)
        updateAssignedShortcutFields();
    // A step for another action can have taken a hotkey from this one, and a step may have had no
    // effect at all.
    if (!m_rows->agreeWithStore(m_currentAction))
        updateSelectedActionShortcutList();
}

// Conflict and removal

void ActionSelectionPanel::hideAlreadyAssignedControls()
{
    m_form.alreadyAssignedLabel->hide();
    m_form.assignedToLabel->hide();
    m_form.removeShortcutButton->hide();
    m_form.removeShortcutButton->setEnabled(false);
    m_form.hotkeyListSeparatorLine->hide();
    m_form.shortcutLineEdit->setAccessibleDescription(QString());
}

void ActionSelectionPanel::showAlreadyAssignedControls()
{
    m_form.alreadyAssignedLabel->show();
    m_form.assignedToLabel->show();
    m_form.removeShortcutButton->show();
    m_form.removeShortcutButton->setEnabled(true);
    m_form.hotkeyListSeparatorLine->setVisible(!m_rows->isEmpty());
    // The field has the focus, and a screen reader does not read the labels beside it.
    m_form.shortcutLineEdit->setAccessibleDescription(m_form.alreadyAssignedLabel->text()
                                                      + QLatin1Char(' ')
                                                      + m_form.assignedToLabel->text());
}

void ActionSelectionPanel::hideReassignControls()
{
    m_removedFromId = {};
    m_removedFromName.clear();
    m_removedHotkey.clear();
    m_form.removedFromLabel->hide();
    m_form.successRemoveLabel->hide();
    m_form.undoRemoveButton->hide();
    m_form.undoRemoveButton->setEnabled(false);
    m_form.hotkeyListSeparatorLine->hide();
}

void ActionSelectionPanel::hideOutdatedReassignControls()
{
    const QString held = m_manager->getShortcutsFromActionId(m_removedFromId);
    if (JoinedHotkeys::split(held).contains(m_removedHotkey, Qt::CaseInsensitive))
        hideReassignControls();
}

void ActionSelectionPanel::showReassignControls()
{
    m_form.removedFromLabel->setText(m_removedFromName);
    m_form.removedFromLabel->show();
    m_form.successRemoveLabel->show();
    m_form.undoRemoveButton->show();
    m_form.undoRemoveButton->setEnabled(true);
    m_form.removedFromLabel->setMinimumWidth(getTextMinimunQLabelWidth(m_form.removedFromLabel));
    fitBoxHeight();
    m_form.hotkeyListSeparatorLine->show();
}

} // namespace CUI
