#include "ICuiActionManager.h"

namespace CUI {

namespace {

constexpr std::size_t initialBuckets = 8;

} // namespace

std::unique_ptr<ICuiActionManager> ICuiActionManager::theCuiActionManager;

ICuiActionManager::ICuiActionManager(QObject *parent)
    : QObject(parent), m_actions(initialBuckets), m_actionContexts(initialBuckets)
{
}

ICuiActionManager::~ICuiActionManager() = default;

ICuiActionManager *ICuiActionManager::get()
{
    return theCuiActionManager.get();
}

void ICuiActionManager::set(std::unique_ptr<ICuiActionManager> &manager)
{
    // The old registry is destroyed first, so that its destructor finds no other one installed.
    theCuiActionManager.reset();
    theCuiActionManager = std::move(manager);
}

const ICuiActionManager::ContextMap &ICuiActionManager::actionContexts() const
{
    return m_actionContexts;
}

const ICuiActionManager::ActionMap &ICuiActionManager::actions() const
{
    return m_actions;
}

VelActionContext *ICuiActionManager::getActionContext(unsigned long id) const
{
    const auto it = m_actionContexts.find(id);
    return it == m_actionContexts.end() ? nullptr : it->second.get();
}

VelAction *ICuiActionManager::getAction(const ActionIdentifier &identifier) const
{
    const auto it = m_actions.find(identifier);
    return it == m_actions.end() ? nullptr : it->second.get();
}

void ICuiActionManager::getDefaultAccelerators(QvelShortcutManager *,
                                               std::vector<std::pair<ActionIdentifier, QString>> &)
{
}

void ICuiActionManager::addActionContext(unsigned long id, const QString &name)
{
    m_actionContexts[id] = std::make_unique<VelActionContext>(id, name);
}

void ICuiActionManager::addAction(const ActionIdentifier &identifier, const QString &name,
                                  unsigned long contextId, const QString &category, bool momentary)
{
    m_actions[identifier] =
            std::make_unique<VelAction>(identifier, name, contextId, category, momentary);
}

void ICuiActionManager::addAction(unsigned long tableId, const QString &actionId,
                                  const QString &name, unsigned long contextId,
                                  const QString &category, bool momentary)
{
    addAction(ActionIdentifier{tableId, actionId}, name, contextId, category, momentary);
}

bool ICuiActionManager::removeAction(const ActionIdentifier &identifier)
{
    return m_actions.erase(identifier) > 0;
}

void ICuiActionManager::renameAction(const ActionIdentifier &oldId, const ActionIdentifier &newId,
                                     const QString &name)
{
    const VelAction *action = getAction(oldId);
    if (action == nullptr)
        return;
    // Copies: oldId may live inside the very record that is about to be deleted.
    const ActionIdentifier removedId = oldId;
    addAction(newId, name, action->contextId(), action->category(), action->momentary());
    removeAction(removedId);
    Q_EMIT actionsModified();
}

void ICuiActionManager::clearActionManager()
{
    m_actions = ActionMap(initialBuckets);
    m_actionContexts = ContextMap(initialBuckets);
}

} // namespace CUI
