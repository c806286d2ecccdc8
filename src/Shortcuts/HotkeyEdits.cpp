#include "HotkeyEdits.h"

#include "CaseInsensitiveKey.h"
#include "HotkeyEditGroup.h"
#include "HotkeyReplay.h"
#include "ICuiActionManager.h"
#include "QvelMessageLog.h"
#include "QvelShortcutManager.h"
#include "ReassignmentLog.h"
#include "RecordedSteps.h"

#include <algorithm>
#include <unordered_set>

namespace CUI {

namespace {

using Step = ShortcutTransformation;
using ShortcutMap = HotkeyReplay::ShortcutMap;

QString nameOf(const ActionIdentifier &identifier)
{
    const ICuiActionManager *registry = ICuiActionManager::get();
    const VelAction *action = registry != nullptr ? registry->getAction(identifier) : nullptr;
    return action != nullptr ? action->name() : QString();
}

/// Adds a step of that kind for each hotkey that an action has in @p map and not in @p other.
void addStepsFor(const ShortcutMap &map, const ShortcutMap &other, Step::Kind kind,
                 RecordedSteps::Steps &steps)
{
    for (const auto &[action, hotkeys] : map) {
        const auto entry = other.find(action);
        if (entry != other.end() && entry->second == hotkeys)
            continue;
        for (const QString &hotkey : hotkeys) {
            if (entry == other.end() || !entry->second.contains(hotkey))
                steps.emplace_back(kind, action, hotkey, nameOf(action));
        }
    }
}

using Actions = std::unordered_set<ActionIdentifier>;

/// The actions whose hotkeys can depend on the steps.
Actions actionsConcerned(const ShortcutMap &base, const RecordedSteps::Steps &steps)
{
    Actions actions;
    std::unordered_set<CaseInsensitiveKey, CaseInsensitiveKeyHash> hotkeys;
    for (const Step &step : steps) {
        actions.insert(step.actionId());
        hotkeys.insert({step.shortcut()});
    }
    for (const auto &[action, held] : base) {
        if (std::any_of(held.begin(), held.end(),
                        [&](const QString &text) { return hotkeys.count({text}) > 0; }))
            actions.insert(action);
    }
    return actions;
}

ShortcutMap restrictedTo(const Actions &actions, const ShortcutMap &map)
{
    ShortcutMap restricted;
    for (const ActionIdentifier &action : actions) {
        const auto entry = map.find(action);
        if (entry != map.end())
            restricted.insert(*entry);
    }
    return restricted;
}

/// The steps that lead from what the saved set would give to the concerned actions to what is
/// shown.
RecordedSteps::Steps lackingSteps(const QvelShortcutManager &store,
                                  const RecordedSteps::Steps &savedSteps, const Actions &concerned)
{
    HotkeyReplay saved(restrictedTo(concerned, store.getBaseShortcuts()));
    for (const Step &step : savedSteps)
        saved.apply(step);
    const ShortcutMap shown = restrictedTo(concerned, store.getShortcuts());
    RecordedSteps::Steps steps;
    addStepsFor(saved.shortcuts(), shown, Step::Unassign, steps);
    addStepsFor(shown, saved.shortcuts(), Step::Assign, steps);
    // Removals first, as they make room.
    std::stable_sort(steps.begin(), steps.end(), [](const Step &a, const Step &b) {
        return a.kind() != b.kind() ? a.kind() > b.kind() : a.actionId() < b.actionId();
    });
    return steps;
}

QString spellingOf(const QString &hotkey, const ShortcutMap &shortcuts,
                   const ActionIdentifier &owner)
{
    const auto entry = shortcuts.find(owner);
    if (entry != shortcuts.end()) {
        for (const QString &held : entry->second) {
            if (held.compare(hotkey, Qt::CaseInsensitive) == 0)
                return held;
        }
    }
    return hotkey;
}

/// Steps that restore one hotkey can change what is saved for another. Random edits of random sets
/// needed two rounds at most.
constexpr int maximumRounds = 10;

} // namespace

void HotkeyEdits::give(QvelShortcutManager &store, const ActionIdentifier &action,
                       const QString &hotkey, const QString &description)
{
    make(store, {Step(Step::Assign, action, hotkey, description)});
}

void HotkeyEdits::take(QvelShortcutManager &store, const ActionIdentifier &action,
                       const QString &hotkey, const QString &description)
{
    make(store, {Step(Step::Unassign, action, hotkey, description)});
}

void HotkeyEdits::make(QvelShortcutManager &store, const RecordedSteps::Steps &edits,
                       const QString &text)
{
    const HotkeyEditGroup group(&store, text);
    std::size_t expectedCount = store.currentTransformations().size();
    bool isMade = false;
    for (const Step &edit : edits) {
        const bool assigns = edit.kind() == Step::Assign;
        if (edit.shortcut().isEmpty() || (assigns && !store.hasRoomForShortcuts(edit.actionId())))
            continue;
        isMade = true;
        ++expectedCount;
        if (assigns) {
            expectedCount += takeFromHolders(store, edit.actionId(), edit.shortcut());
            store.assignShortcut(edit.actionId(), edit.shortcut(), edit.description());
        } else {
            store.unassignShortcut(edit.actionId(), edit.shortcut(), edit.description());
        }
    }
    if (isMade)
        makeSavedEqualShown(store, edits, expectedCount);
}

std::size_t HotkeyEdits::takeFromHolders(QvelShortcutManager &store, const ActionIdentifier &action,
                                         const QString &hotkey)
{
    const ICuiActionManager *registry = ICuiActionManager::get();
    const VelAction *taker = registry != nullptr ? registry->getAction(action) : nullptr;
    if (taker == nullptr)
        return 0;
    std::size_t taken = 0;
    const unsigned long context = taker->contextId();
    const std::vector<ActionIdentifier> owners = store.ownerIndex->owners(hotkey);
    for (const ActionIdentifier &owner : owners) {
        const VelAction *holder = registry->getAction(owner);
        if (holder == nullptr || holder->contextId() != context || owner == action)
            continue;
        const ScopedMessageTypeCap cap(&QvelMessageLog::getInstance(), QvelMessageLog::Warning);
        logReassignment(hotkey, owner, action);
        store.unassignShortcut(owner, spellingOf(hotkey, store.getShortcuts(), owner),
                               holder->name());
        ++taken;
    }
    return taken;
}

void HotkeyEdits::makeSavedEqualShown(QvelShortcutManager &store, const RecordedSteps::Steps &edits,
                                      std::size_t expectedCount)
{
    const RecordedSteps::Steps &steps = store.currentTransformations();
    for (int round = 0; round < maximumRounds; ++round) {
        RecordedSteps saved = *store.transformations;
        saved.cancelFrom(0);
        // Steps that cancel nothing were recorded as they were made, and are replayed as such.
        if (steps.size() == expectedCount && saved.steps().size() == expectedCount)
            return;
        RecordedSteps::Steps made = store.allTransforms();
        made.insert(made.end(), edits.begin(), edits.end()); // some are cancelled
        const RecordedSteps::Steps lacking =
                lackingSteps(store, store.keepsRefused ? saved.withRefusedSteps() : saved.steps(),
                             actionsConcerned(store.getBaseShortcuts(), made));
        if (lacking.empty())
            return;
        for (const Step &step : lacking)
            store.restate(step);
    }
}

} // namespace CUI
