#pragma once

#include "UiCustomizationsExport.h"

#include <QUndoStack>

#include <memory>

namespace CUI {

class QvelShortcutManager;

/// The edits of a store as commands that can be undone and redone, whoever makes the edits: an
/// editor, the host, another widget. Being a QUndoStack, it is shown by a QUndoView, and gives the
/// host its Undo and Redo actions.
///
/// A command is named by the text of its step; what belongs together (HotkeyEditGroup) is one
/// command. Undoing gives back exactly what was before: the hotkeys of all actions with the order
/// of each list, the recorded steps, and the answers of the store about unsaved edits; redoing what
/// was after. The store then emits what QvelShortcutManager::undoChange() says, which models,
/// widgets and binders follow.
///
/// The stack is clean exactly when the store is unmodified, also after saves in the middle. Loading
/// and clearing the store empties it, and so does an edit that a slot makes while a command is
/// undone or redone. Commands of the host's own do not belong on this stack.
class CUI_EXPORT QvelHotkeyHistory : public QUndoStack
{
    Q_OBJECT

public:
    /// Records the edits of @p store from now on. The store is not owned; once it is destroyed, the
    /// commands do nothing.
    explicit QvelHotkeyHistory(QvelShortcutManager *store, QObject *parent = nullptr);
    ~QvelHotkeyHistory() override;

private:
    class Command;
    class Private;

    const std::unique_ptr<Private> d;
};

} // namespace CUI
