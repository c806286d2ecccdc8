#pragma once

#include "ActionIdentifier.h"

#include <QObject>
#include <QString>

class QLabel;
class QModelIndex;
class QSortFilterProxyModel;

namespace CUI {

class ActionListTreeItemDelegate;
class AssignedHotkeyRows;
class HotkeyEditorForm;
class HotkeyField;
class QvelActionItemModel;
class QvelShortcutManager;
class ShortcutTransformation;
class VelAction;

/// The right side of the hotkey editor: the selected action, the hotkey that is being typed with
/// its conflict, and the assigned hotkeys. Edits are made in the store; what is shown follows the
/// signals of the store.
class ActionSelectionPanel : public QObject
{
    Q_OBJECT

public:
    /// All arguments must outlive the panel.
    ActionSelectionPanel(HotkeyEditorForm &form, QvelActionItemModel *model,
                         QvelShortcutManager *manager, QSortFilterProxyModel *proxy,
                         const ActionListTreeItemDelegate *colors, QObject *parent);

    /// \name Selection
    /// @{
    void showRow(const QModelIndex &current);
    void setCurrentAction(const ActionIdentifier &id, bool focus);
    VelAction *currentAction() const;
    ActionIdentifier currentActionId() const { return m_currentAction; }
    void clearSelection();
    void resetSelectedActionFields();
    /// Sets the texts that follow the selection in the current language.
    void retranslate();
    /// @}

    /// The hotkey in the field, or who holds it, has changed.
    void updateAssignedShortcutFields();

    /// \name Edits
    /// @{
    void assign();
    void removeFromHolder();
    void undoRemoval();
    /// @}

    void updateSelectedActionShortcutList();
    void followStep(const ShortcutTransformation &step);

    void hideAlreadyAssignedControls();
    void hideReassignControls();
    /// Hides them if the removed hotkey is assigned to its action again.
    void hideOutdatedReassignControls();
    /// Makes the box of the hotkeys as high as its wrapped texts need it at its width.
    void fitBoxHeight();
    /// The narrowest width at which a wrapped label still shows every unbreakable piece of its
    /// text; 0 without text or wrapping.
    int getTextMinimunQLabelWidth(const QLabel *label) const;

private:
    void showAction(const QModelIndex &sourceIndex, const VelAction &action);
    void showNoAction();
    void describe(const VelAction &action, const QString &group);
    VelAction *holderOf(const QString &shortcut) const;
    bool isFull() const;
    void removeRow(const QString &shortcut);
    void undoRow(const QString &shortcut);
    void showAlreadyAssignedControls();
    void showReassignControls();

    HotkeyEditorForm &m_form;
    QvelActionItemModel *m_model;
    QvelShortcutManager *m_manager;
    QSortFilterProxyModel *m_proxy;
    HotkeyField *m_field;
    AssignedHotkeyRows *m_rows;

    ActionIdentifier m_currentAction;
    // What Remove has taken from which action, for Undo.
    ActionIdentifier m_removedFromId;
    QString m_removedFromName;
    QString m_removedHotkey;
};

} // namespace CUI
