#pragma once

#include "ActionIdentifier.h"

#include <QList>
#include <QObject>
#include <QString>

class QVBoxLayout;
class QWidget;

namespace CUI {

class ActionListTreeItemDelegate;
class QvelAssignedShortcutListItem;
class QvelAssignedShortcutsScrollArea;
class QvelShortcutManager;

/// The rows of one action's hotkeys: those that are assigned, newest on top, then a separator and
/// those that were just removed.
///
/// A click on a row's button only emits a signal; its receiver edits the store and then adds or
/// removes rows. When the button had the keyboard focus, the new row of the hotkey gets it.
class AssignedHotkeyRows : public QObject
{
    Q_OBJECT

public:
    /// All arguments must outlive the object. @p parent owns it.
    AssignedHotkeyRows(QvelAssignedShortcutsScrollArea *scrollArea, QvelShortcutManager *manager,
                       const ActionListTreeItemDelegate *colors, QObject *parent);

    /// Replaces all rows by those of the hotkeys that the store has for the action.
    void show(const ActionIdentifier &action);
    void clear();
    /// Adds the row of an assigned hotkey of the action on top.
    void addAssigned(const ActionIdentifier &action, const QString &hotkey);
    /// Adds the row of a hotkey that was just removed at the end.
    void addRemoved(const QString &hotkey);
    void remove(const QString &hotkey);

    bool isEmpty() const;
    /// True when the rows show exactly the assigned hotkeys that the store has for the action.
    bool agreeWithStore(const ActionIdentifier &action) const;

Q_SIGNALS:
    void removeClicked(const QString &hotkey);
    void undoClicked(const QString &hotkey);

private:
    using Signal = void (AssignedHotkeyRows::*)(const QString &);

    void insert(int index, QvelAssignedShortcutListItem *row, Signal clicked);
    void emitKeepingFocus(const QString &hotkey, Signal signal);
    void addSeparator();
    void removeSeparatorWithoutRows();
    void chainTabOrder();
    void takeFocusFrom(const QWidget *widget);
    QVBoxLayout *layout() const;
    QList<QvelAssignedShortcutListItem *> rows() const;
    QvelAssignedShortcutListItem *rowOf(const QString &hotkey) const;

    QvelAssignedShortcutsScrollArea *m_scrollArea;
    QvelShortcutManager *m_manager;
    const ActionListTreeItemDelegate *m_colors;
};

} // namespace CUI
