#pragma once

#include <UiCustomizations/ShortcutTransformation.h>

#include <optional>
#include <vector>

namespace HotkeyCtl {

class Session;

/// All steps of the hotkey set file @p path, whichever actions there are and however many hotkeys
/// they have room for. Nothing, after the log has told why, when it cannot be loaded. No host may
/// be open.
std::optional<std::vector<CUI::ShortcutTransformation>> readSteps(Session &session,
                                                                  const QString &path);

/// The step in one line of words, with @p action in the place of a description that is missing.
QString stepLine(const CUI::ShortcutTransformation &step, const QString &action);

} // namespace HotkeyCtl
