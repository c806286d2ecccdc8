// The rows of the assigned hotkeys: those that are assigned, newest on top, then a separator and
// those that were just removed.
#include "ActionListTreeItemDelegate.h"
#include "ActionSelectionPanel.h"
#include "HotkeyEditorForm.h"
#include "QvelActionItemModel.h"
#include "QvelAssignedShortcutListItem.h"
#include "QvelAssignedShortcutsScrollArea.h"
#include "QvelShortcutManager.h"
#include "VelAction.h"

#include <QFrame>
#include <QLineEdit>
#include <QPushButton>
#include <QSet>
#include <QVBoxLayout>

#include <algorithm>

namespace CUI {

namespace {

const QLatin1String separator(", ");
const QLatin1String separatorName("line");

// The widget may be the one whose signal is being delivered, so it cannot be deleted at once.
void discard(QWidget *widget)
{
    widget->hide();
    widget->setParent(nullptr);
    widget->deleteLater();
}

QFrame *separatorOf(const QWidget *list)
{
    return list->findChild<QFrame *>(separatorName, Qt::FindDirectChildrenOnly);
}

} // namespace

QVBoxLayout *ActionSelectionPanel::rowLayout() const
{
    return qobject_cast<QVBoxLayout *>(m_form.assignedHotkeysWidget->layout());
}

QList<QvelAssignedShortcutListItem *> ActionSelectionPanel::rows() const
{
    return m_form.assignedHotkeysWidget->findChildren<QvelAssignedShortcutListItem *>(
            QString(), Qt::FindDirectChildrenOnly);
}

QStringList ActionSelectionPanel::currentShortcuts() const
{
    const QString text = m_manager->getShortcutsFromActionId(m_currentAction);
    return text.isEmpty() ? QStringList() : text.split(separator);
}

void ActionSelectionPanel::clearAssignedHotkeyGroupBox()
{
    QWidget *list = m_form.assignedHotkeysWidget;
    takeFocusFrom(list);
    delete list->layout();
    for (QWidget *child : list->findChildren<QWidget *>(QString(), Qt::FindDirectChildrenOnly))
        discard(child);
    auto *layout = new QVBoxLayout(list);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addSpacerItem(new QSpacerItem(0, 0, QSizePolicy::Minimum, QSizePolicy::Expanding));
}

void ActionSelectionPanel::updateSelectedActionShortcutList()
{
    clearAssignedHotkeyGroupBox();
    if (currentAction() == nullptr)
        return;
    for (const QString &shortcut : currentShortcuts())
        addActionShortcutToScrollArea(m_currentAction, shortcut);
}

void ActionSelectionPanel::addActionShortcutToScrollArea(const ActionIdentifier &id,
                                                         const QString &shortcut)
{
    QVBoxLayout *layout = rowLayout();
    if (layout == nullptr)
        return;
    if (separatorOf(m_form.assignedHotkeysWidget) != nullptr) {
        removeActionShortcutFromScrollArea(shortcut);
        dropSeparatorWithoutRows();
    }
    auto *row = new QvelAssignedShortcutListItem(shortcut, true, m_form.assignedHotkeysWidget);
    const QStringList base = m_manager->getBaseShortcutsFromActionId(id).split(separator);
    const QColor color = m_colors->hotkeyColor(id, shortcut, base);
    if (color.isValid())
        row->setTextColor(color);
    connect(row->button(), &QPushButton::clicked, this, [this, shortcut] { removeRow(shortcut); });
    removeActionShortcutFromScrollArea(shortcut);
    layout->insertWidget(0, row);
    row->show();
    chainRows();
    m_form.assignedHotkeysScrollArea->updateGeometry();
}

void ActionSelectionPanel::dropSeparatorWithoutRows()
{
    QFrame *line = separatorOf(m_form.assignedHotkeysWidget);
    QVBoxLayout *layout = rowLayout();
    if (line != nullptr && layout->indexOf(line) == layout->count() - 2) {
        layout->removeWidget(line);
        discard(line);
    }
}

void ActionSelectionPanel::addReassignActionShortcutToScrollArea(const QString &shortcut)
{
    QVBoxLayout *layout = rowLayout();
    QWidget *list = m_form.assignedHotkeysWidget;
    if (separatorOf(list) == nullptr) {
        auto *line = new QFrame(list);
        line->setObjectName(separatorName);
        line->setFrameShape(QFrame::HLine);
        line->setFrameShadow(QFrame::Sunken);
        layout->insertWidget(layout->count() - 1, line);
    }
    auto *row = new QvelAssignedShortcutListItem(shortcut, false, list);
    connect(row->button(), &QPushButton::clicked, this, [this, shortcut] { undoRow(shortcut); });
    removeActionShortcutFromScrollArea(shortcut);
    layout->insertWidget(layout->count() - 1, row);
    row->show();
    chainRows();
}

void ActionSelectionPanel::removeActionShortcutFromScrollArea(const QString &shortcut)
{
    QVBoxLayout *layout = rowLayout();
    for (QvelAssignedShortcutListItem *row : rows()) {
        // A row that has no place yet is the one that is being added.
        if (row->shortcut() == shortcut && layout->indexOf(row) >= 0) {
            takeFocusFrom(row);
            layout->removeWidget(row);
            discard(row);
        }
    }
}

// A new widget is the last of its window in the tab order.
void ActionSelectionPanel::chainRows()
{
    const QVBoxLayout *layout = rowLayout();
    QWidget *previous = m_form.assignedHotkeysScrollArea;
    for (int i = 0; i < layout->count(); ++i) {
        const auto *row = qobject_cast<QvelAssignedShortcutListItem *>(layout->itemAt(i)->widget());
        if (row != nullptr) {
            QWidget::setTabOrder(previous, row->button());
            previous = row->button();
        }
    }
}

QvelAssignedShortcutListItem *ActionSelectionPanel::rowOf(const QString &shortcut) const
{
    const auto all = rows();
    const auto found = std::find_if(all.begin(), all.end(), [&shortcut](const auto *row) {
        return row->shortcut() == shortcut;
    });
    return found != all.end() ? *found : nullptr;
}

void ActionSelectionPanel::focusRow(const QString &shortcut)
{
    if (const QvelAssignedShortcutListItem *row = rowOf(shortcut))
        row->button()->setFocus(Qt::OtherFocusReason);
}

// By itself the focus would go on to whatever comes next, and the next key would remove another
// hotkey or choose another set.
void ActionSelectionPanel::takeFocusFrom(const QWidget *widget)
{
    if (holdsFocus(widget))
        m_form.assignedHotkeysScrollArea->setFocus(Qt::OtherFocusReason);
}

bool ActionSelectionPanel::holdsFocus(const QWidget *widget)
{
    const QWidget *focused = widget->window()->focusWidget();
    return focused != nullptr && (focused == widget || widget->isAncestorOf(focused));
}

void ActionSelectionPanel::removeRow(const QString &shortcut)
{
    const VelAction *action = currentAction();
    if (action == nullptr)
        return;
    const ActionIdentifier id = action->identifier();
    const QvelAssignedShortcutListItem *row = rowOf(shortcut);
    const bool hadFocus = row != nullptr && holdsFocus(row);
    m_manager->unassignShortcut(id, shortcut, action->name());
    addReassignActionShortcutToScrollArea(shortcut);
    m_form.shortcutLineEdit->clear();
    if (hadFocus)
        focusRow(shortcut);
}

void ActionSelectionPanel::undoRow(const QString &shortcut)
{
    const VelAction *action = currentAction();
    if (action == nullptr)
        return;
    if (currentShortcuts().size() >= QShortcutsList::ShortcutLimitPerAction) {
        tellThatListIsFull();
        return;
    }
    const ActionIdentifier id = action->identifier();
    const QvelAssignedShortcutListItem *row = rowOf(shortcut);
    const bool hadFocus = row != nullptr && holdsFocus(row);
    m_manager->assignShortcut(id, shortcut, action->name());
    m_form.shortcutLineEdit->clear();
    if (hadFocus)
        focusRow(shortcut);
}

void ActionSelectionPanel::followStep(const ShortcutTransformation &step)
{
    if (currentAction() == nullptr)
        return;
    if (step.actionId() == m_currentAction) {
        if (step.kind() == ShortcutTransformation::Assign)
            addActionShortcutToScrollArea(m_currentAction, step.shortcut());
        else
            removeActionShortcutFromScrollArea(step.shortcut());
    }
    // Another action may have got, or lost, the hotkey that stands in the field.
    if (step.actionId() == m_currentAction
        || step.shortcut().compare(capturedShortcut(), Qt::CaseInsensitive) == 0)
        updateAssignedShortcutFields();
    // A step for another action can have taken a hotkey from this one, and a step may have had no
    // effect at all.
    if (!rowsAgreeWithStore())
        updateSelectedActionShortcutList();
}

bool ActionSelectionPanel::rowsAgreeWithStore() const
{
    QSet<QString> shown;
    for (const QvelAssignedShortcutListItem *row : rows()) {
        if (row->isAssigned())
            shown << row->shortcut();
    }
    const QStringList held = currentShortcuts();
    return shown == QSet<QString>(held.begin(), held.end());
}

} // namespace CUI
