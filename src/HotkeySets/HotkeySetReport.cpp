#include "HotkeySetReport.h"

#include "HotkeyReplay.h"
#include "ICuiActionManager.h"
#include "QvelShortcutManager.h"

#include <algorithm>
#include <map>
#include <numeric>
#include <set>
#include <tuple>
#include <utility>

namespace CUI {

namespace {

using Effect = HotkeySetReport::Effect;
using Entry = HotkeySetReport::Entry;
using ActionHotkey = std::pair<ActionIdentifier, QString>;

QShortcutsList hotkeysOf(const HotkeyReplay::ShortcutMap &map, const ActionIdentifier &action)
{
    const auto found = map.find(action);
    return found == map.end() ? QShortcutsList() : found->second;
}

/// Replays a set and says of each step what it did.
class Trial
{
public:
    Trial(const QvelShortcutManager &store, const HotkeySetReport::Steps &steps)
        : m_base(store.getBaseShortcuts()), m_replay(m_base)
    {
        for (const ShortcutTransformation &step : steps)
            m_mentioned.insert({step.actionId(), step.shortcut().toCaseFolded()});
    }

    Entry apply(const ShortcutTransformation &step)
    {
        Entry entry;
        entry.step = step;
        const ICuiActionManager *registry = ICuiActionManager::get();
        const VelAction *action =
                registry != nullptr ? registry->getAction(step.actionId()) : nullptr;
        if (registry != nullptr && action == nullptr) {
            entry.effect = Effect::NamesUnknownAction;
            entry.other = suggestion(step.actionId());
        } else if (step.kind() == ShortcutTransformation::Assign) {
            assign(entry, action);
        } else {
            remove(entry);
        }
        return entry;
    }

private:
    void assign(Entry &entry, const VelAction *action)
    {
        const QString hotkey = entry.step.shortcut();
        const QShortcutsList held = hotkeysOf(m_replay.shortcuts(), entry.step.actionId());
        if (held.contains(hotkey, Qt::CaseInsensitive)) {
            entry.effect = Effect::HasNoEffect;
            return;
        }
        if (!held.hasRoom()) {
            entry.effect = Effect::IsRefused;
            return;
        }
        const ActionIdentifier holder = action != nullptr
                                                ? m_replay.owner(hotkey, action->contextId())
                                                : ActionIdentifier();
        m_replay.apply(entry.step);
        if (holder.isEmpty()
            || hotkeysOf(m_replay.shortcuts(), holder).contains(hotkey, Qt::CaseInsensitive))
            return;
        m_taken.insert({holder, hotkey});
        if (hotkeysOf(m_base, holder).contains(hotkey, Qt::CaseInsensitive)
            && m_mentioned.count({holder, hotkey.toCaseFolded()}) == 0) {
            entry.effect = Effect::TakesNewBaseHotkey;
            entry.other = holder;
        }
    }

    void remove(Entry &entry)
    {
        const ActionHotkey removed(entry.step.actionId(), entry.step.shortcut());
        if (hotkeysOf(m_replay.shortcuts(), removed.first).contains(removed.second)) {
            m_replay.apply(entry.step);
            m_taken.insert(removed);
        } else {
            entry.effect =
                    m_taken.count(removed) > 0 ? Effect::HasNoEffect : Effect::RemovesNothing;
        }
    }

    /// A set can name one unknown action many times.
    ActionIdentifier suggestion(const ActionIdentifier &unknown)
    {
        const auto [found, isNew] = m_suggestions.insert({unknown, {}});
        if (isNew)
            found->second = HotkeySetReport::mostSimilarAction(unknown);
        return found->second;
    }

    const HotkeyReplay::ShortcutMap &m_base;
    HotkeyReplay m_replay;
    std::set<ActionHotkey> m_mentioned; // with case-folded hotkeys
    std::set<ActionHotkey> m_taken; // by steps that have been replayed
    std::map<ActionIdentifier, ActionIdentifier> m_suggestions;
};

/// The number of characters to insert, remove or replace; a larger number than @p limit where it
/// is more than that.
int editDistance(const QString &a, const QString &b, int limit)
{
    if (std::abs(a.size() - b.size()) > limit)
        return limit + 1;
    std::vector<int> row(static_cast<std::size_t>(b.size()) + 1);
    std::iota(row.begin(), row.end(), 0);
    for (int i = 0; i < a.size(); ++i) {
        int diagonal = row[0];
        row[0] = i + 1;
        for (int j = 0; j < b.size(); ++j) {
            const auto place = static_cast<std::size_t>(j);
            const int replaced = diagonal + (a.at(i) == b.at(j) ? 0 : 1);
            diagonal = row[place + 1];
            row[place + 1] = std::min({replaced, row[place] + 1, diagonal + 1});
        }
        if (*std::min_element(row.begin(), row.end()) > limit)
            return limit + 1;
    }
    return row.back();
}

} // namespace

bool HotkeySetReport::Entry::applies() const
{
    return effect != Effect::NamesUnknownAction && effect != Effect::RemovesNothing
           && effect != Effect::IsRefused;
}

HotkeySetReport::HotkeySetReport(const QvelShortcutManager &store, const Steps &steps)
{
    Trial trial(store, steps);
    m_entries.reserve(steps.size());
    for (const ShortcutTransformation &step : steps)
        m_entries.push_back(trial.apply(step));
}

HotkeySetReport::HotkeySetReport(const QvelShortcutManager &store)
    : HotkeySetReport(store, store.allTransforms())
{
}

int HotkeySetReport::count(Effect effect) const
{
    return static_cast<int>(
            std::count_if(m_entries.begin(), m_entries.end(),
                          [effect](const Entry &entry) { return entry.effect == effect; }));
}

int HotkeySetReport::notApplyingCount() const
{
    return static_cast<int>(std::count_if(m_entries.begin(), m_entries.end(),
                                          [](const Entry &entry) { return !entry.applies(); }));
}

void HotkeySetReport::keep(std::size_t entry)
{
    choose(entry, Remedy::Keep, {});
}

void HotkeySetReport::drop(std::size_t entry)
{
    choose(entry, Remedy::Drop, {});
}

void HotkeySetReport::remap(std::size_t entry, const ActionIdentifier &action)
{
    choose(entry, Remedy::Remap, action);
}

void HotkeySetReport::choose(std::size_t entry, Remedy remedy, const ActionIdentifier &target)
{
    if (entry >= m_entries.size())
        return;
    m_entries[entry].remedy = remedy;
    m_entries[entry].target = target;
}

bool HotkeySetReport::hasRemedies() const
{
    return std::any_of(m_entries.begin(), m_entries.end(),
                       [](const Entry &entry) { return entry.remedy != Remedy::Keep; });
}

HotkeySetReport::Steps HotkeySetReport::steps() const
{
    const ICuiActionManager *registry = ICuiActionManager::get();
    Steps steps;
    for (const Entry &entry : m_entries) {
        if (entry.remedy == Remedy::Keep) {
            steps.push_back(entry.step);
        } else if (entry.remedy == Remedy::Remap) {
            const VelAction *action =
                    registry != nullptr ? registry->getAction(entry.target) : nullptr;
            steps.emplace_back(entry.step.kind(), entry.target, entry.step.shortcut(),
                               action != nullptr ? action->name() : entry.step.description());
        }
    }
    return steps;
}

ActionIdentifier HotkeySetReport::mostSimilarAction(const ActionIdentifier &action)
{
    const ICuiActionManager *registry = ICuiActionManager::get();
    if (registry == nullptr)
        return {};
    int limit = (action.actionId.size() + 3) / 4;
    ActionIdentifier best;
    for (const auto &entry : registry->actions()) {
        const ActionIdentifier &candidate = entry.first;
        const int distance = editDistance(action.actionId, candidate.actionId, limit);
        if (distance > limit)
            continue;
        const auto rank = [&action](const ActionIdentifier &identifier) {
            return std::make_pair(identifier.tableId != action.tableId, identifier);
        };
        if (distance < limit || best.isEmpty() || rank(candidate) < rank(best))
            best = candidate;
        limit = distance;
    }
    return best;
}

} // namespace CUI
