#pragma once

#include <QString>

namespace CUI {

struct HotkeyFinding;

/// Puts findings into words.
namespace HotkeyAuditTexts {

/// What happens today because of the finding, in the current language. @p hotkeyCount is that of
/// the action, for HotkeyFinding::Kind::NearLimit.
QString textOf(const HotkeyFinding &finding, int hotkeyCount);

} // namespace HotkeyAuditTexts
} // namespace CUI
