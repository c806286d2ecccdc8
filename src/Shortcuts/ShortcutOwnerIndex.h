#pragma once

#include "ActionIdentifier.h"
#include "CaseInsensitiveKey.h"
#include "QShortcutsList.h"

#include <unordered_map>
#include <vector>

namespace CUI {

/// Which actions hold a hotkey, letter case ignored: the inverse of the store's current map.
class ShortcutOwnerIndex
{
public:
    void add(const QString &shortcut, const ActionIdentifier &owner);
    void remove(const QString &shortcut, const ActionIdentifier &owner);
    void clear();
    void rebuild(const std::unordered_map<ActionIdentifier, QShortcutsList> &shortcuts);

    /// The holders of @p shortcut in no particular order; usually one for each context.
    const std::vector<ActionIdentifier> &owners(const QString &shortcut) const;

    /// The holder of @p shortcut that the registry knows in that context, the one with the smallest
    /// identifier when there are several; the empty identifier when there is none.
    ActionIdentifier owner(const QString &shortcut, unsigned long contextId) const;

private:
    std::unordered_map<CaseInsensitiveKey, std::vector<ActionIdentifier>, CaseInsensitiveKeyHash>
            m_owners;
};

} // namespace CUI
