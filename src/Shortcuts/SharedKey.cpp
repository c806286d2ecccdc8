#include "SharedKey.h"

#include "NearestHolder.h"

#include <algorithm>
#include <iterator>

namespace CUI::SharedKey {

namespace {

using Holder = HotkeyFinding::Holder;
using Kind = HotkeyFinding::Kind;
using Options = HotkeyAudit::Options;

int distance(unsigned long contextId, std::optional<unsigned long> focus, const Options &options)
{
    if (focus && *focus == contextId)
        return 0;
    const auto place = std::find(options.everywhere.rbegin(), options.everywhere.rend(), contextId);
    if (place == options.everywhere.rend())
        return NearestHolder::outOfReach;
    const auto fromLast = std::distance(options.everywhere.rbegin(), place);
    return NearestHolder::wholeWindow
           - (options.isEverywhereOrdered ? static_cast<int>(fromLast) : 0);
}

ActionIdentifier acting(const std::vector<Holder> &holders, std::optional<unsigned long> focus,
                        const Options &options)
{
    NearestHolder nearest;
    for (const Holder &holder : holders)
        nearest.offer(distance(holder.contextId, focus, options), holder.contextId, holder.action);
    return nearest.action();
}

} // namespace

std::optional<HotkeyFinding> finding(const QString &hotkey, std::vector<Holder> holders,
                                     const Options &options)
{
    const auto ofParts =
            std::stable_partition(holders.begin(), holders.end(), [&](const Holder &holder) {
                return std::count(options.everywhere.begin(), options.everywhere.end(),
                                  holder.contextId)
                       != 0;
            });
    const bool isOneContext =
            std::all_of(holders.begin(), holders.end(), [&](const Holder &holder) {
                return holder.contextId == holders.front().contextId;
            });
    if (ofParts == holders.begin() || isOneContext)
        return {};
    HotkeyFinding finding;
    for (auto holder = ofParts; holder != holders.end(); ++holder)
        finding.outcomes.push_back(
                {holder->contextId, acting(holders, holder->contextId, options)});
    const ActionIdentifier elsewhere = acting(holders, std::nullopt, options);
    finding.outcomes.push_back({std::nullopt, elsewhere});
    finding.kind = elsewhere.isEmpty() ? Kind::Ambiguous : Kind::Shadowed;
    finding.severity = HotkeyFinding::severityOf(finding.kind);
    finding.hotkey = hotkey;
    finding.holders = std::move(holders);
    return finding;
}

} // namespace CUI::SharedKey
