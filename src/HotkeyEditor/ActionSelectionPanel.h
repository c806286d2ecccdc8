#pragma once

#include "ActionIdentifier.h"
#include "HotkeyRecorder.h"

#include <QObject>
#include <QString>

class QKeyEvent;
class QLabel;
class QModelIndex;
class QSortFilterProxyModel;
class QVBoxLayout;
class QWidget;

namespace CUI {

class ActionListTreeItemDelegate;
class HotkeyEditorForm;
class QvelActionItemModel;
class QvelAssignedShortcutListItem;
class QvelShortcutManager;
class ShortcutTransformation;
class VelAction;

/// The right side of the hotkey editor: the selected action, the hotkey that is being typed with
/// its conflict, and the rows of the assigned hotkeys. Edits go to the store; the rows follow what
/// the store announces.
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

    /// \name Typing a hotkey
    /// @{
    void capture(const QKeyEvent &event);
    void releaseKeys();
    void followTypedText(const QString &text);
    void updateAssignedShortcutFields();
    /// @}

    /// \name Edits
    /// @{
    void assign();
    void removeFromHolder();
    void undoRemoval();
    /// @}

    /// \name Rows
    /// @{
    void updateSelectedActionShortcutList();
    void followStep(const ShortcutTransformation &step);
    /// @}

    void hideAlreadyAssignedControls();
    void hideReassignControls();
    /// Makes the box of the hotkeys as high as its wrapped texts need it at its width.
    void fitBoxHeight();
    /// The narrowest width at which a wrapped label still shows every unbreakable piece of its
    /// text; 0 without text or wrapping.
    int getTextMinimunQLabelWidth(const QLabel *label) const;

private:
    void showAction(const QModelIndex &sourceIndex, const VelAction &action);
    void showNoAction();
    void describe(const VelAction &action, const QString &group);
    QString capturedShortcut() const;
    VelAction *holderOf(const QString &shortcut) const;
    void showAlreadyAssignedControls();
    void showReassignControls();
    void tellThatListIsFull();

    void clearAssignedHotkeyGroupBox();
    void addActionShortcutToScrollArea(const ActionIdentifier &id, const QString &shortcut);
    void addReassignActionShortcutToScrollArea(const QString &shortcut);
    void removeActionShortcutFromScrollArea(const QString &shortcut);
    void dropSeparatorWithoutRows();
    void removeRow(const QString &shortcut);
    void undoRow(const QString &shortcut);
    void chainRows();
    QvelAssignedShortcutListItem *rowOf(const QString &shortcut) const;
    void focusRow(const QString &shortcut);
    void takeFocusFrom(const QWidget *widget);
    static bool holdsFocus(const QWidget *widget);
    bool rowsAgreeWithStore() const;
    QStringList currentShortcuts() const;
    QVBoxLayout *rowLayout() const;
    QList<QvelAssignedShortcutListItem *> rows() const;

    HotkeyEditorForm &m_form;
    QvelActionItemModel *m_model;
    QvelShortcutManager *m_manager;
    QSortFilterProxyModel *m_proxy;
    const ActionListTreeItemDelegate *m_colors;

    ActionIdentifier m_currentAction;
    HotkeyRecorder::Capture m_captured;
    // What Remove took from whom, kept for Undo.
    ActionIdentifier m_removedFromId;
    QString m_removedFromName;
    QString m_removedHotkey;
};

} // namespace CUI
