#pragma once

#include "ActionIdentifier.h"
#include "ShortcutTransformation.h"
#include "UiCustomizationsExport.h"

#include <QString>

#include <vector>

namespace CUI {

class QvelShortcutManager;

/// Gives actions back the hotkeys of the base configuration, as recorded steps and one command of a
/// QvelHotkeyHistory. A plan is a preview that changes nothing; it holds until the next edit.
class CUI_CORE_EXPORT HotkeyDefaults
{
public:
    HotkeyDefaults() = delete;

    /// What to do with a default hotkey that an action outside the plan holds now.
    enum class Held {
        Take, ///< take it from that action
        Leave, ///< leave it there; the reset action does not get it
    };

    /// A default hotkey that an action outside the plan holds.
    struct Holding {
        ActionIdentifier holder; ///< who holds it now
        ActionIdentifier action; ///< whose default it is
        QString hotkey; ///< as the base has it
    };

    /// What a reset would do.
    struct Plan {
        /// Removals, then assignments, each in the order of the actions.
        std::vector<ShortcutTransformation> steps;
        /// The assignments among them that would take a hotkey from an action outside the plan.
        std::vector<Holding> held;
    };

    /// The reset of one action; empty when it has its base hotkeys, whatever their order.
    static Plan planForAction(const QvelShortcutManager &store, const ActionIdentifier &action);
    /// The reset of all actions that the installed ICuiActionManager has in a context.
    static Plan planForContext(const QvelShortcutManager &store, unsigned long contextId);
    /// The reset of all actions that hold a hotkey now or in the base.
    static Plan planForAll(const QvelShortcutManager &store);

    /// Makes the edits of @p plan by HotkeyEdits::make(), whose signals are emitted. @p text names
    /// the command.
    static void apply(QvelShortcutManager &store, const Plan &plan, Held held,
                      const QString &text = QString());
};

} // namespace CUI
