#pragma once

#include "ActionIdentifier.h"
#include "UiCustomizationsExport.h"

#include <QKeySequence>
#include <QList>

#include <map>
#include <optional>
#include <set>
#include <unordered_map>
#include <utility>
#include <vector>

namespace CUI {

/// Which of several actions of one context may use a key.
///
/// The store compares hotkeys as texts: Ctrl+Shift+Z and Shift+Ctrl+Z are two hotkeys to it, and
/// one key to the keyboard. Among the actions of a context that claim a key, the one with the
/// smallest identifier may use it, which is the one that the store would find.
///
/// The hotkey editor records the Return key as Enter. An action with Enter therefore claims Return
/// as well, unless another action of the context has a hotkey with Return.
class CUI_CORE_EXPORT HotkeyClaims
{
public:
    /// The id of a context; none for all the actions whose context is not known.
    using Context = std::optional<unsigned long>;

    /// Replaces what the action claims. Returns the others that have won or lost a key thereby.
    std::vector<ActionIdentifier> set(const ActionIdentifier &identifier, const Context &context,
                                      const QList<QKeySequence> &keys);
    /// Forgets the action. Returns those that have won a key thereby.
    std::vector<ActionIdentifier> remove(const ActionIdentifier &identifier);

    /// What the action may use: its keys in the order in which it was given them, then Return.
    QList<QKeySequence> keysOf(const ActionIdentifier &identifier) const;
    /// The action of the context that may use the key; the empty identifier for none.
    ActionIdentifier holderOf(const Context &context, const QKeySequence &key) const;

    /// The key with Return in the place of Enter; empty when there is none in it.
    static QKeySequence withReturn(const QKeySequence &key);

private:
    /// True for Return in the place of Enter.
    using Claimant = std::pair<bool, ActionIdentifier>;
    using Place = std::pair<Context, QKeySequence>;

    struct Claim {
        Context context;
        std::vector<std::pair<bool, QKeySequence>> keys;
    };

    std::unordered_map<ActionIdentifier, Claim> m_claims;
    std::map<Place, std::set<Claimant>> m_claimants;
};

} // namespace CUI
