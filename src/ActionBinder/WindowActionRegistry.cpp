#include "WindowActionRegistry.h"

#include <algorithm>

namespace CUI {

bool WindowActionRegistry::triggerAction(const ActionIdentifier &identifier)
{
    const auto sources = m_sources.find(identifier);
    if (sources == m_sources.end())
        return false;
    for (const QPointer<QAction> &action : sources->second) {
        if (action.isNull() || !action->isEnabled())
            continue;
        action->trigger();
        return true;
    }
    return false;
}

void WindowActionRegistry::getDefaultAccelerators(
        QvelShortcutManager *, std::vector<std::pair<ActionIdentifier, QString>> &accelerators)
{
    accelerators.insert(accelerators.end(), m_defaults.begin(), m_defaults.end());
}

void WindowActionRegistry::addDefaults(const ActionIdentifier &identifier,
                                       const QStringList &hotkeys)
{
    for (const QString &hotkey : hotkeys)
        m_defaults.emplace_back(identifier, hotkey);
}

void WindowActionRegistry::addSource(const ActionIdentifier &identifier, QAction *action)
{
    std::vector<QPointer<QAction>> &sources = m_sources[identifier];
    sources.erase(std::remove(sources.begin(), sources.end(), nullptr), sources.end());
    if (std::find(sources.begin(), sources.end(), action) == sources.end())
        sources.emplace_back(action);
}

} // namespace CUI
