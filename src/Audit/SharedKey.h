#pragma once

#include "HotkeyAudit.h"

namespace CUI {

/// What a key does that actions of several contexts hold.
namespace SharedKey {

/// The finding Shadowed or Ambiguous, without its text; nothing where no two contexts that hold the
/// key count in the same place. @p holders are in the order of context and identifier, and each may
/// use the key in its context.
std::optional<HotkeyFinding> finding(const QString &hotkey,
                                     std::vector<HotkeyFinding::Holder> holders,
                                     const HotkeyAudit::Options &options);

} // namespace SharedKey
} // namespace CUI
