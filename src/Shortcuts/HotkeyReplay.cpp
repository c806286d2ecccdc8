#include "HotkeyReplay.h"

#include "ICuiActionManager.h"

namespace CUI {

HotkeyReplay::HotkeyReplay(const ShortcutMap &base) : m_shortcuts(base)
{
    m_owners.rebuild(m_shortcuts);
}

void HotkeyReplay::apply(const ShortcutTransformation &step)
{
    if (step.kind() == ShortcutTransformation::Assign)
        assign(step.actionId(), step.shortcut());
    else
        unassign(step.actionId(), step.shortcut());
}

void HotkeyReplay::assign(const ActionIdentifier &action, const QString &hotkey)
{
    const auto entry = m_shortcuts.find(action);
    if (entry != m_shortcuts.end() && !entry->second.hasRoom())
        return;
    if (const ICuiActionManager *registry = ICuiActionManager::get()) {
        const VelAction *known = registry->getAction(action);
        if (known == nullptr)
            return;
        const ActionIdentifier holder = m_owners.owner(hotkey, known->contextId());
        if (!holder.isEmpty() && holder != action)
            unassign(holder, hotkey);
    }
    if (m_shortcuts[action].addShortcut(hotkey))
        m_owners.add(hotkey, action);
}

void HotkeyReplay::unassign(const ActionIdentifier &action, const QString &hotkey)
{
    const auto entry = m_shortcuts.find(action);
    if (entry == m_shortcuts.end() || !entry->second.removeOne(hotkey))
        return;
    m_owners.remove(hotkey, action);
    if (entry->second.isEmpty())
        m_shortcuts.erase(entry);
}

} // namespace CUI
