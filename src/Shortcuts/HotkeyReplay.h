#pragma once

#include "ShortcutOwnerIndex.h"
#include "ShortcutTransformation.h"

#include <vector>

namespace CUI {

/// What loading a hotkey set would make of base hotkeys: the rules of the store, without a store.
class HotkeyReplay
{
public:
    using ShortcutMap = std::unordered_map<ActionIdentifier, QShortcutsList>;

    explicit HotkeyReplay(const ShortcutMap &base);

    void apply(const ShortcutTransformation &step);

    const ShortcutMap &shortcuts() const { return m_shortcuts; }
    /// Who holds @p hotkey in that context, as ShortcutOwnerIndex::owner() says.
    ActionIdentifier owner(const QString &hotkey, unsigned long contextId) const
    {
        return m_owners.owner(hotkey, contextId);
    }

private:
    void assign(const ActionIdentifier &action, const QString &hotkey);
    void unassign(const ActionIdentifier &action, const QString &hotkey);

    ShortcutMap m_shortcuts;
    ShortcutOwnerIndex m_owners;
};

} // namespace CUI
