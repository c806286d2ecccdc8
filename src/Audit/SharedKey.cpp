#include "SharedKey.h"

#include "NearestHolder.h"

#include <algorithm>
#include <iterator>

namespace CUI::SharedKey {

namespace {

using Contexts = std::vector<unsigned long>;
using Holder = HotkeyFinding::Holder;
using Holders = std::vector<HotkeyFinding::Holder>;
using Kind = HotkeyFinding::Kind;
using Options = HotkeyAudit::Options;
using Outcome = HotkeyFinding::Outcome;

bool contains(const Contexts &contexts, unsigned long contextId)
{
    return std::find(contexts.begin(), contexts.end(), contextId) != contexts.end();
}

/// With the focus in a part of the window in which the contexts @p part count, in their order.
int distance(unsigned long contextId, const Contexts &part, const Options &options)
{
    const auto inPart = std::find(part.begin(), part.end(), contextId);
    if (inPart != part.end())
        return static_cast<int>(inPart - part.begin());
    const auto place = std::find(options.everywhere.rbegin(), options.everywhere.rend(), contextId);
    if (place == options.everywhere.rend())
        return NearestHolder::outOfReach;
    const auto fromLast = std::distance(options.everywhere.rbegin(), place);
    return NearestHolder::wholeWindow
           - (options.isEverywhereOrdered ? static_cast<int>(fromLast) : 0);
}

/// The parts of the window in which the contexts of the holders count.
std::vector<Contexts> partsOf(const Holders &holders, const Options &options)
{
    std::vector<Contexts> parts;
    for (const Holder &holder : holders) {
        if (contains(options.everywhere, holder.contextId))
            continue;
        std::vector<Contexts> ofHolder;
        std::copy_if(options.together.begin(), options.together.end(), std::back_inserter(ofHolder),
                     [&holder](const Contexts &part) { return contains(part, holder.contextId); });
        if (ofHolder.empty())
            ofHolder.push_back({holder.contextId});
        for (const Contexts &part : ofHolder) {
            if (std::find(parts.begin(), parts.end(), part) == parts.end())
                parts.push_back(part);
        }
    }
    return parts;
}

/// Leaves the holders whose contexts meet those of others in some part of the window.
void keepMeeting(Holders &holders, const std::vector<Contexts> &parts)
{
    const auto meets = [&](const Holder &holder) {
        return std::any_of(parts.begin(), parts.end(), [&](const Contexts &part) {
            return contains(part, holder.contextId)
                   && std::any_of(holders.begin(), holders.end(), [&](const Holder &other) {
                          return other.contextId != holder.contextId
                                 && contains(part, other.contextId);
                      });
        });
    };
    Holders meeting;
    std::copy_if(holders.begin(), holders.end(), std::back_inserter(meeting), meets);
    holders = std::move(meeting);
}

/// What happens in a part; elsewhere, without contexts.
Outcome outcomeOf(const Holders &holders, const Contexts &part, const Options &options)
{
    NearestHolder nearest;
    for (const Holder &holder : holders)
        nearest.offer(distance(holder.contextId, part, options), holder.contextId, holder.action);
    Outcome outcome{std::nullopt, nearest.action()};
    for (const Holder &holder : holders) {
        const bool counts = part.empty() ? contains(options.everywhere, holder.contextId)
                                         : contains(part, holder.contextId);
        if (counts && holder.action != outcome.action)
            outcome.others.push_back(holder.action);
        else if (counts && !part.empty())
            outcome.contextId = holder.contextId;
    }
    return outcome;
}

void add(Outcome outcome, std::vector<Outcome> &outcomes)
{
    const auto known =
            std::find_if(outcomes.begin(), outcomes.end(), [&outcome](const Outcome &other) {
                return other.contextId == outcome.contextId;
            });
    if (known == outcomes.end()) {
        outcomes.push_back(std::move(outcome));
        return;
    }
    for (const ActionIdentifier &action : outcome.others) {
        if (std::find(known->others.begin(), known->others.end(), action) == known->others.end())
            known->others.push_back(action);
    }
}

} // namespace

std::optional<HotkeyFinding> finding(const QString &hotkey, std::vector<Holder> holders,
                                     const Options &options)
{
    const auto isEverywhere = [&options](const Holder &holder) {
        return contains(options.everywhere, holder.contextId);
    };
    const bool countsEverywhere = std::any_of(holders.begin(), holders.end(), isEverywhere);
    if (!countsEverywhere)
        keepMeeting(holders, partsOf(holders, options));
    std::stable_partition(holders.begin(), holders.end(), isEverywhere);
    const bool isOneContext =
            std::all_of(holders.begin(), holders.end(), [&](const Holder &holder) {
                return holder.contextId == holders.front().contextId;
            });
    if (isOneContext)
        return {};
    HotkeyFinding finding;
    for (const Contexts &part : partsOf(holders, options))
        add(outcomeOf(holders, part, options), finding.outcomes);
    finding.kind = Kind::Shadowed;
    if (countsEverywhere) {
        finding.outcomes.push_back(outcomeOf(holders, {}, options));
        if (finding.outcomes.back().action.isEmpty())
            finding.kind = Kind::Ambiguous;
    }
    finding.severity = HotkeyFinding::severityOf(finding.kind);
    finding.hotkey = hotkey;
    finding.holders = std::move(holders);
    return finding;
}

} // namespace CUI::SharedKey
