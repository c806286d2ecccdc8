#include "Settlements.h"

#include "HotkeyAudit.h"
#include "JoinedHotkeys.h"
#include "KeyNames.h"
#include "QvelShortcutManager.h"
#include "ShownNames.h"

#include <QCoreApplication>

namespace CUI::Settlements {

namespace {

using Finding = HotkeyFinding;
using Holder = HotkeyFinding::Holder;
using Kind = HotkeyFinding::Kind;

constexpr int replacementCount = 5;

class Words
{
    Q_DECLARE_TR_FUNCTIONS(CUI::QvelConflictsWidget)
};

ShortcutTransformation step(ShortcutTransformation::Kind kind, const Holder &holder,
                            const QString &hotkey)
{
    return {kind, holder.action, hotkey, ShownNames::ofAction(holder.action)};
}

ShortcutTransformation assigned(const Holder &holder, const QString &hotkey)
{
    return step(ShortcutTransformation::Assign, holder, hotkey);
}

ShortcutTransformation unassigned(const Holder &holder)
{
    return step(ShortcutTransformation::Unassign, holder, holder.hotkey);
}

bool isShared(Kind kind)
{
    return kind == Kind::HeldTwice || kind == Kind::Ambiguous || kind == Kind::Shadowed;
}

Row rowOf(const Finding &finding, const Holder &holder)
{
    Row row;
    row.holder = holder;
    row.name = ShownNames::ofActionIn(holder.action, holder.contextId);
    row.remove.text =
            Words::tr("Remove %1 from %2").arg(ShownNames::ofHotkey(holder.hotkey), row.name);
    row.remove.steps.push_back(unassigned(holder));
    if (!isShared(finding.kind))
        return row;
    row.give.text = Words::tr("Give %1 to %2").arg(ShownNames::ofHotkey(holder.hotkey), row.name);
    for (const Holder &other : finding.holders) {
        if (other.action != holder.action)
            row.give.steps.push_back(unassigned(other));
    }
    return row;
}

/// A row for each of the hotkeys that the base gives to the action, then for who has them.
std::vector<Row> rowsOfLoser(const Finding &finding)
{
    std::vector<Row> rows;
    const Holder &loser = finding.holders.front();
    for (const QString &hotkey : JoinedHotkeys::split(loser.hotkey)) {
        Row row;
        row.holder = loser;
        row.holder.hotkey = hotkey;
        row.name = ShownNames::ofActionIn(loser.action, loser.contextId);
        row.giveBack.text =
                Words::tr("Give %1 back to %2").arg(ShownNames::ofHotkey(hotkey), row.name);
        // The store takes it from who has exactly this text; it may be spelled otherwise.
        for (const Holder &taker : finding.holders) {
            if (taker.action != loser.action
                && KeyNames::keyOf(taker.hotkey) == KeyNames::keyOf(hotkey))
                row.giveBack.steps.push_back(unassigned(taker));
        }
        row.giveBack.steps.push_back(assigned(loser, hotkey));
        rows.push_back(std::move(row));
    }
    return rows;
}

std::vector<Row> rowsOfFull(const Finding &finding, const QvelShortcutManager &manager)
{
    std::vector<Row> rows;
    const Holder &full = finding.holders.front();
    const auto hotkeys = manager.getShortcuts().find(full.action);
    if (hotkeys == manager.getShortcuts().end())
        return rows;
    for (const QString &hotkey : hotkeys->second)
        rows.push_back(rowOf(finding, {full.action, full.contextId, hotkey}));
    return rows;
}

} // namespace

std::vector<Row> of(const Finding &finding, const QvelShortcutManager &manager)
{
    if (finding.kind == Kind::HotkeyLost)
        return rowsOfLoser(finding);
    if (finding.kind == Kind::NearLimit)
        return rowsOfFull(finding, manager);
    std::vector<Row> rows;
    for (const Holder &holder : finding.holders)
        rows.push_back(rowOf(finding, holder));
    return rows;
}

std::vector<HotkeyCommand> replacementsFor(const Row &row, const HotkeyAudit &audit)
{
    std::vector<HotkeyCommand> edits;
    const Holder &holder = row.holder;
    const QStringList free = audit.nearestFree(holder.hotkey, holder.contextId, replacementCount);
    for (const QString &hotkey : free) {
        HotkeyCommand edit;
        edit.text = Words::tr("Change %1 to %2 for %3")
                            .arg(ShownNames::ofHotkey(holder.hotkey), ShownNames::ofHotkey(hotkey),
                                 row.name);
        if (row.giveBack.steps.empty())
            edit.steps.push_back(unassigned(holder));
        edit.steps.push_back(assigned(holder, hotkey));
        edits.push_back(std::move(edit));
    }
    return edits;
}

} // namespace CUI::Settlements
