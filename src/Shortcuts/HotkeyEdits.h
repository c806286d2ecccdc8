#pragma once

#include "ActionIdentifier.h"
#include "ShortcutTransformation.h"
#include "UiCustomizationsExport.h"

#include <QString>

#include <cstddef>
#include <vector>

namespace CUI {

class QvelShortcutManager;

/// The edits of a hotkey editor: after each, a set that is saved and loaded again on the same base
/// gives the actions the same hotkeys that they have now. QvelShortcutManager::assignShortcut()
/// alone does not promise that, because saving cancels opposite steps but not what they displaced:
/// a hotkey given to A, then to B, then to A again would be saved as B's.
///
/// To this end a hotkey that is taken from another action is recorded as a step of its own. Where
/// cancelling would change the result nevertheless (because of steps in a loaded set, or of actions
/// that hold six hotkeys), the steps that restore it are recorded as well.
class CUI_CORE_EXPORT HotkeyEdits
{
public:
    HotkeyEdits() = delete;

    /// Takes @p hotkey from every other action of the context that holds it, in whatever letter
    /// case, as by take(), and assigns it to the action. Does nothing when the text is empty or the
    /// action holds six hotkeys already. @p description is the action's display text.
    ///
    /// Logs the same lines as QvelShortcutManager::assignShortcut(). Emits the signals of
    /// QvelShortcutManager::unassignShortcut() for each action that loses the hotkey, those of
    /// assignShortcut(), and shortcutTransformsCollapsed() and shortcutTransformAdded() for each
    /// step that restores the result.
    static void give(QvelShortcutManager &store, const ActionIdentifier &action,
                     const QString &hotkey, const QString &description);

    /// Takes @p hotkey, compared exactly, from the action. Does nothing when the text is empty.
    /// Emits the signals of QvelShortcutManager::unassignShortcut(), and what give() emits for the
    /// steps that restore the result.
    static void take(QvelShortcutManager &store, const ActionIdentifier &action,
                     const QString &hotkey, const QString &description);

    /// Gives and takes one after the other, as one command of a QvelHotkeyHistory that @p text
    /// names. Emits the signals of give() and take(), those of the restoring steps at the end.
    static void make(QvelShortcutManager &store, const std::vector<ShortcutTransformation> &edits,
                     const QString &text = QString());

private:
    static std::size_t takeFromHolders(QvelShortcutManager &store, const ActionIdentifier &action,
                                       const QString &hotkey);
    static void makeSavedEqualShown(QvelShortcutManager &store,
                                    const std::vector<ShortcutTransformation> &edits,
                                    std::size_t expectedCount);
};

} // namespace CUI
