#include "HotkeySetMerge.h"

#include "ICuiActionManager.h"
#include "RecordedSteps.h"

#include <algorithm>
#include <map>
#include <set>
#include <utility>

namespace CUI {

namespace {

using Steps = HotkeySetMerge::Steps;
using Side = HotkeySetMerge::Side;
using Clash = HotkeySetMerge::Clash;
using ClashKind = HotkeySetMerge::ClashKind;

/// A hotkey of a context. Ordered without regard to letter case.
struct Place {
    unsigned long contextId = 0;
    QString shortcut;
};

bool operator<(const Place &a, const Place &b)
{
    return a.contextId != b.contextId ? a.contextId < b.contextId
                                      : a.shortcut.compare(b.shortcut, Qt::CaseInsensitive) < 0;
}

/// Nothing for a step that gives no hotkey to an action whose context is known.
std::optional<Place> placeOf(const ShortcutTransformation &step)
{
    const ICuiActionManager *registry = ICuiActionManager::get();
    const VelAction *action = registry != nullptr ? registry->getAction(step.actionId()) : nullptr;
    if (action == nullptr || step.kind() != ShortcutTransformation::Assign)
        return {};
    return Place{action->contextId(), step.shortcut()};
}

/// What a set does with one action. As sequence it has an order, as changes it has none.
using Change = std::pair<ShortcutTransformation::Kind, QString>;
using Sequence = std::vector<Change>;

std::set<Change> changes(const Sequence &sequence)
{
    return {sequence.begin(), sequence.end()};
}

/// A set by its actions, and by the steps that decide who gets a hotkey.
struct SetView {
    explicit SetView(const Steps &steps)
    {
        for (const ShortcutTransformation &step : steps) {
            actions[step.actionId()].emplace_back(step.kind(), step.shortcut());
            if (const auto place = placeOf(step))
                owners.insert_or_assign(*place, step);
        }
    }

    Sequence sequence(const ActionIdentifier &action) const
    {
        const auto found = actions.find(action);
        return found == actions.end() ? Sequence() : found->second;
    }

    /// The empty identifier when the set gives the hotkey to nobody.
    ActionIdentifier owner(const Place &place) const
    {
        const auto found = owners.find(place);
        return found == owners.end() ? ActionIdentifier() : found->second.actionId();
    }

    std::map<ActionIdentifier, Sequence> actions;
    std::map<Place, ShortcutTransformation> owners;
};

/// Where the merged set has something from.
enum class Source { Mine, Theirs, Base };

Source sourceOf(std::optional<Side> choice)
{
    if (!choice)
        return Source::Base;
    return *choice == Side::Mine ? Source::Mine : Source::Theirs;
}

/// The three-way rule for one value; nothing where the sides clash.
template <typename Value>
std::optional<Source> decide(const Value &base, const Value &mine, const Value &theirs)
{
    if (theirs == base || mine == theirs)
        return Source::Mine;
    if (mine == base)
        return Source::Theirs;
    return {};
}

struct Views {
    std::optional<Source> decideAction(const ActionIdentifier &action) const
    {
        const Sequence mySequence = mine.sequence(action);
        const Sequence theirSequence = theirs.sequence(action);
        // Which side is which must not matter for the order of the action's hotkeys either.
        if (changes(mySequence) == changes(theirSequence))
            return mySequence <= theirSequence ? Source::Mine : Source::Theirs;
        return decide(changes(base.sequence(action)), changes(mySequence), changes(theirSequence));
    }

    std::optional<Source> decideOwner(const Place &place) const
    {
        const ActionIdentifier myOwner = mine.owner(place);
        const ActionIdentifier theirOwner = theirs.owner(place);
        if (myOwner.isEmpty() || theirOwner.isEmpty())
            return myOwner.isEmpty() ? Source::Theirs : Source::Mine;
        return decide(base.owner(place), myOwner, theirOwner);
    }

    ActionIdentifier owner(const Place &place, Source source) const
    {
        if (source == Source::Base)
            return base.owner(place);
        return source == Source::Mine ? mine.owner(place) : theirs.owner(place);
    }

    SetView base;
    SetView mine;
    SetView theirs;
};

/// What was chosen for the clashes of a merge.
struct Choices {
    explicit Choices(const std::vector<Clash> &clashes)
    {
        for (const Clash &clash : clashes) {
            if (clash.kind == ClashKind::Action)
                actions[clash.actionId] = sourceOf(clash.choice);
            else
                owners[{clash.contextId, clash.shortcut}] = sourceOf(clash.choice);
        }
    }

    std::map<ActionIdentifier, Source> actions;
    std::map<Place, Source> owners;
};

Source sourceOf(const ActionIdentifier &action, const Views &views, const Choices &choices)
{
    const auto chosen = choices.actions.find(action);
    return chosen != choices.actions.end() ? chosen->second : *views.decideAction(action);
}

/// Which of several actions of a context gets a hotkey.
ActionIdentifier ownerAmong(const std::set<ActionIdentifier> &takers, const Place &place,
                            const Views &views, const Choices &choices)
{
    const auto chosen = choices.owners.find(place);
    const Source source =
            chosen != choices.owners.end() ? chosen->second : *views.decideOwner(place);
    const ActionIdentifier owner = views.owner(place, source);
    // The owner's change may have lost a clash of its own.
    return takers.count(owner) > 0 || source == Source::Base ? owner : *takers.begin();
}

Steps stepsOf(const ActionIdentifier &action, const Steps &steps)
{
    Steps found;
    std::copy_if(steps.begin(), steps.end(), std::back_inserter(found),
                 [&action](const ShortcutTransformation &s) { return s.actionId() == action; });
    return found;
}

bool sameSteps(const Steps &a, const Steps &b)
{
    return std::equal(a.begin(), a.end(), b.begin(), b.end(),
                      [](const ShortcutTransformation &x, const ShortcutTransformation &y) {
                          return x.kind() == y.kind() && x.actionId() == y.actionId()
                                 && x.shortcut() == y.shortcut();
                      });
}

Steps cancelled(Steps steps)
{
    RecordedSteps::cancel(steps, 0);
    return steps;
}

} // namespace

HotkeySetMerge::HotkeySetMerge(const Steps &base, const Steps &mine, const Steps &theirs)
    : m_base(cancelled(base)), m_mine(cancelled(mine)), m_theirs(cancelled(theirs))
{
    const Views views{SetView(m_base), SetView(m_mine), SetView(m_theirs)};
    std::set<ActionIdentifier> actions;
    for (const SetView *set : {&views.mine, &views.theirs}) {
        for (const auto &entry : set->actions)
            actions.insert(entry.first);
    }
    for (const ActionIdentifier &action : actions) {
        if (views.decideAction(action))
            continue;
        Clash clash;
        clash.actionId = action;
        clash.mine = stepsOf(action, m_mine);
        clash.theirs = stepsOf(action, m_theirs);
        m_clashes.push_back(clash);
    }
    for (const auto &[place, step] : views.mine.owners) {
        if (views.decideOwner(place))
            continue;
        Clash clash;
        clash.kind = ClashKind::Hotkey;
        clash.shortcut = step.shortcut();
        clash.contextId = place.contextId;
        clash.mine = {step};
        clash.theirs = {views.theirs.owners.at(place)};
        m_clashes.push_back(clash);
    }
}

bool HotkeySetMerge::isSettled() const
{
    return std::all_of(m_clashes.begin(), m_clashes.end(),
                       [](const Clash &clash) { return clash.choice.has_value(); });
}

void HotkeySetMerge::choose(std::size_t clash, Side side)
{
    if (clash < m_clashes.size())
        m_clashes[clash].choice = side;
}

void HotkeySetMerge::chooseAll(Side side)
{
    for (Clash &clash : m_clashes)
        clash.choice = side;
}

Steps HotkeySetMerge::result() const
{
    if (sameSteps(m_mine, m_base))
        return m_theirs;
    if (sameSteps(m_theirs, m_base) || sameSteps(m_mine, m_theirs))
        return m_mine;
    const Views views{SetView(m_base), SetView(m_mine), SetView(m_theirs)};
    const Choices choices(m_clashes);
    Steps steps;
    std::map<Place, std::set<ActionIdentifier>> takers;
    for (const auto &[source, from] :
         {std::make_pair(Source::Mine, &m_mine), std::make_pair(Source::Theirs, &m_theirs),
          std::make_pair(Source::Base, &m_base)}) {
        for (const ShortcutTransformation &step : *from) {
            if (sourceOf(step.actionId(), views, choices) != source)
                continue;
            steps.push_back(step);
            if (const auto place = placeOf(step))
                takers[*place].insert(step.actionId());
        }
    }
    const auto isOverruled = [&](const ShortcutTransformation &step) {
        const auto place = placeOf(step);
        return place && takers[*place].size() > 1
               && ownerAmong(takers[*place], *place, views, choices) != step.actionId();
    };
    steps.erase(std::remove_if(steps.begin(), steps.end(), isOverruled), steps.end());
    return steps;
}

} // namespace CUI
