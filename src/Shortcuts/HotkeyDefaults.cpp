#include "HotkeyDefaults.h"

#include "HotkeyEdits.h"
#include "ICuiActionManager.h"
#include "QvelShortcutManager.h"

#include <algorithm>
#include <set>

namespace CUI {

namespace {

using Step = ShortcutTransformation;
using Plan = HotkeyDefaults::Plan;
using Actions = std::set<ActionIdentifier>;
using ShortcutMap = std::unordered_map<ActionIdentifier, QShortcutsList>;

QStringList hotkeysOf(const ActionIdentifier &action, const ShortcutMap &map)
{
    const auto entry = map.find(action);
    return entry != map.end() ? QStringList(entry->second) : QStringList();
}

const VelAction *registeredAction(const ActionIdentifier &action)
{
    const ICuiActionManager *registry = ICuiActionManager::get();
    return registry != nullptr ? registry->getAction(action) : nullptr;
}

/// Adds a step of that kind for each of the hotkeys that is not among the others.
void addSteps(const ActionIdentifier &action, Step::Kind kind, const QStringList &hotkeys,
              const QStringList &others, Plan &plan)
{
    const VelAction *registered = registeredAction(action);
    for (const QString &hotkey : hotkeys) {
        if (!others.contains(hotkey))
            plan.steps.emplace_back(kind, action, hotkey,
                                    registered != nullptr ? registered->name() : QString());
    }
}

Plan planFor(const QvelShortcutManager &store, const Actions &actions)
{
    const ShortcutMap &current = store.getShortcuts();
    const ShortcutMap &base = store.getBaseShortcuts();
    Plan plan;
    for (const ActionIdentifier &action : actions)
        addSteps(action, Step::Unassign, hotkeysOf(action, current), hotkeysOf(action, base), plan);
    for (const ActionIdentifier &action : actions)
        addSteps(action, Step::Assign, hotkeysOf(action, base), hotkeysOf(action, current), plan);
    for (const Step &step : plan.steps) {
        const VelAction *action = registeredAction(step.actionId());
        if (step.kind() != Step::Assign || action == nullptr)
            continue;
        const ActionIdentifier holder =
                store.getActionIdFromShortcut(step.shortcut(), action->contextId());
        if (!holder.isEmpty() && actions.count(holder) == 0)
            plan.held.push_back({holder, step.actionId(), step.shortcut()});
    }
    return plan;
}

} // namespace

HotkeyDefaults::Plan HotkeyDefaults::planForAction(const QvelShortcutManager &store,
                                                   const ActionIdentifier &action)
{
    return planFor(store, {action});
}

HotkeyDefaults::Plan HotkeyDefaults::planForContext(const QvelShortcutManager &store,
                                                    unsigned long contextId)
{
    Actions actions;
    if (const ICuiActionManager *registry = ICuiActionManager::get()) {
        for (const auto &[identifier, action] : registry->actions()) {
            if (action->contextId() == contextId)
                actions.insert(identifier);
        }
    }
    return planFor(store, actions);
}

HotkeyDefaults::Plan HotkeyDefaults::planForAll(const QvelShortcutManager &store)
{
    Actions actions;
    for (const ShortcutMap *map : {&store.getShortcuts(), &store.getBaseShortcuts()}) {
        for (const auto &entry : *map)
            actions.insert(entry.first);
    }
    return planFor(store, actions);
}

void HotkeyDefaults::apply(QvelShortcutManager &store, const Plan &plan, Held held,
                           const QString &text)
{
    std::vector<Step> steps = plan.steps;
    if (held == Held::Leave) {
        const auto isHeld = [&plan](const Step &step) {
            return step.kind() == Step::Assign
                   && std::any_of(plan.held.begin(), plan.held.end(),
                                  [&step](const Holding &holding) {
                                      return holding.action == step.actionId()
                                             && holding.hotkey == step.shortcut();
                                  });
        };
        steps.erase(std::remove_if(steps.begin(), steps.end(), isHeld), steps.end());
    }
    HotkeyEdits::make(store, steps, text);
}

} // namespace CUI
