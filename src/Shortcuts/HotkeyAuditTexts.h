#pragma once

#include <QString>

namespace CUI {

class ICuiActionManager;
struct HotkeyFinding;

/// Puts findings into words.
namespace HotkeyAuditTexts {

/// What happens today because of the finding, in the current language, with the names that the
/// registry knows. @p hotkeyCount is that of the action, for HotkeyFinding::Kind::NearLimit.
QString textOf(const HotkeyFinding &finding, const ICuiActionManager &registry, int hotkeyCount);

} // namespace HotkeyAuditTexts
} // namespace CUI
