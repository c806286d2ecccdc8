#pragma once

#include "ActionIdentifier.h"
#include "ShortcutTransformation.h"
#include "UiCustomizationsExport.h"

#include <QString>

#include <cstddef>
#include <optional>
#include <vector>

namespace CUI {

/// Merges two hotkey sets that were changed independently, starting from a common one.
///
/// The three sets are given by their steps, which are first cancelled as saving a set cancels them:
/// each set then has at most one step for an action and a hotkey. What is compared are not the
/// lines of the files but what they do, on two levels.
///
/// - **What a set does with an action** are its steps for that action, in any order. An action that
///   only one side changed is taken from that side, one that both changed in the same way is taken
///   once. An action that both changed, and not in the same way, is a clash.
/// - **Who gets a hotkey of a context** is the last action of the context, as the installed
///   ICuiActionManager knows it, that the set assigns the hotkey to, letter case ignored. If the
///   first level leaves assignments to several actions of a context, a hotkey whose owner only one
///   side changed is given to that side's owner, and the other assignments are dropped. A hotkey
///   that the two sides gave to two different actions is a clash. Actions that the registry does
///   not know share no context with others.
///
/// A hotkey that moves from one action to another therefore changes the second action and the
/// owner of the hotkey, not the first action.
///
/// Clashes are settled by choosing a side for each; where none is chosen, the result has what the
/// common set has. That an action holds six hotkeys at most is not looked at: a step too many is
/// refused when the result is loaded, and HotkeySetReport says so.
///
/// With one side equal to the common set, the result is the other side, step by step; with equal
/// sides it is either. Without clashes it does not matter which side is which: both results replay
/// to the same hotkeys. The order of the result is determined by the three sets alone: first the
/// steps of the actions that come from mine, in its order, then those from theirs, then those from
/// the common set.
class CUI_CORE_EXPORT HotkeySetMerge
{
public:
    /// The steps of a set, in the order in which they are replayed.
    using Steps = std::vector<ShortcutTransformation>;

    /// One of the two sets that are merged.
    enum class Side { Mine, Theirs };

    /// What the two sides disagree about.
    enum class ClashKind {
        Action, ///< one action was changed in two ways
        Hotkey, ///< one hotkey of a context was given to two actions
    };

    /// One thing that only a choice can settle.
    struct Clash {
        ClashKind kind = ClashKind::Action; ///< what the sides disagree about
        ActionIdentifier actionId; ///< the action; empty for a hotkey
        QString shortcut; ///< the hotkey; empty for an action
        unsigned long contextId = 0; ///< the context of the hotkey; 0 for an action
        Steps mine; ///< my steps for the action, perhaps none, or my assignment of the hotkey
        Steps theirs; ///< theirs
        std::optional<Side> choice; ///< the side that was chosen
    };

    /// Compares the sets; nothing is chosen yet. Asks the installed registry for contexts; without
    /// one, no two actions share a context.
    HotkeySetMerge(const Steps &base, const Steps &mine, const Steps &theirs);

    /// What the sides disagree about: actions in the order of their identifiers, then hotkeys in
    /// the order of context and text.
    const std::vector<Clash> &clashes() const { return m_clashes; }
    /// True when a side was chosen for every clash, so also when there is none.
    bool isSettled() const;

    /// Settles the clash of that index in clashes(), or settles it differently. An index beyond
    /// the end changes nothing.
    void choose(std::size_t clash, Side side);
    /// Settles all clashes in favour of one side.
    void chooseAll(Side side);

    /// The steps of the merged set.
    Steps result() const;

private:
    Steps m_base;
    Steps m_mine;
    Steps m_theirs;
    std::vector<Clash> m_clashes;
};

} // namespace CUI
