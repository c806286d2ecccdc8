#include "ShortcutOwnerIndex.h"

#include "ICuiActionManager.h"

#include <algorithm>

namespace CUI {

void ShortcutOwnerIndex::add(const QString &shortcut, const ActionIdentifier &owner)
{
    m_owners[CaseInsensitiveKey{shortcut}].push_back(owner);
}

void ShortcutOwnerIndex::remove(const QString &shortcut, const ActionIdentifier &owner)
{
    const auto entry = m_owners.find(CaseInsensitiveKey{shortcut});
    if (entry == m_owners.end())
        return;
    std::vector<ActionIdentifier> &owners = entry->second;
    const auto it = std::find(owners.begin(), owners.end(), owner);
    if (it != owners.end())
        owners.erase(it);
    if (owners.empty())
        m_owners.erase(entry);
}

void ShortcutOwnerIndex::clear()
{
    m_owners.clear();
}

void ShortcutOwnerIndex::rebuild(
        const std::unordered_map<ActionIdentifier, QShortcutsList> &shortcuts)
{
    clear();
    for (const auto &[owner, list] : shortcuts) {
        for (const QString &shortcut : list)
            add(shortcut, owner);
    }
}

const std::vector<ActionIdentifier> &ShortcutOwnerIndex::owners(const QString &shortcut) const
{
    static const std::vector<ActionIdentifier> none;
    const auto it = m_owners.find(CaseInsensitiveKey{shortcut});
    return it == m_owners.end() ? none : it->second;
}

ActionIdentifier ShortcutOwnerIndex::owner(const QString &shortcut, unsigned long contextId) const
{
    const ICuiActionManager *registry = ICuiActionManager::get();
    if (registry == nullptr)
        return {};
    ActionIdentifier first;
    for (const ActionIdentifier &holder : owners(shortcut)) {
        // Asked each time: the host may have given the action another context meanwhile.
        const VelAction *action = registry->getAction(holder);
        if (action != nullptr && action->contextId() == contextId
            && (first.isEmpty() || holder < first))
            first = holder;
    }
    return first;
}

} // namespace CUI
