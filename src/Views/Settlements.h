#pragma once

#include "HotkeyCommand.h"
#include "HotkeyFinding.h"

#include <vector>

namespace CUI {

class HotkeyAudit;
class QvelShortcutManager;

/// What a user can do about a finding.
namespace Settlements {

/// What there is for one hotkey of one action.
struct Row {
    HotkeyFinding::Holder holder;
    QString name; ///< of the action with its context
    HotkeyCommand give; ///< no steps where the others have nothing to lose
    HotkeyCommand remove; ///< no steps where there is nothing to remove
    HotkeyCommand giveBack; ///< no steps but for a lost hotkey
};

/// The rows of a finding, in the order of its holders.
std::vector<Row> of(const HotkeyFinding &finding, const QvelShortcutManager &manager);

/// Replaces the hotkey of the row by one of those that are free nearby: up to five commands.
std::vector<HotkeyCommand> replacementsFor(const Row &row, const HotkeyAudit &audit);

} // namespace Settlements
} // namespace CUI
