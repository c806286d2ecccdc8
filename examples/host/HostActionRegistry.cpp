#include "HostActionRegistry.h"

namespace Host {

HostActionRegistry::HostActionRegistry(const HostCatalogue &catalogue, QObject *parent)
    : ICuiActionManager(parent), m_catalogue(catalogue)
{
}

void HostActionRegistry::registerActions()
{
    for (const HostCatalogue::Context &context : m_catalogue.contexts)
        addActionContext(context.id, context.name);
    for (const HostCatalogue::Action &action : m_catalogue.actions) {
        addAction(action.identifier, action.name, action.contextId, action.category,
                  action.momentary);
    }
}

bool HostActionRegistry::triggerAction(const CUI::ActionIdentifier &identifier)
{
    if (getAction(identifier) == nullptr)
        return false;
    Q_EMIT triggered(identifier);
    return true;
}

void HostActionRegistry::getDefaultAccelerators(
        CUI::QvelShortcutManager *,
        std::vector<std::pair<CUI::ActionIdentifier, QString>> &accelerators)
{
    for (const HostCatalogue::Action &action : m_catalogue.actions) {
        for (const QString &shortcut : action.accelerators)
            accelerators.emplace_back(action.identifier, shortcut);
    }
}

} // namespace Host
