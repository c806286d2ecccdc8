#pragma once

#include <UiCustomizations/ShortcutTransformation.h>

#include <optional>
#include <vector>

namespace HotkeyCtl {

class Session;

/// All steps of the hotkey set file @p path. Nothing, after the reason is logged, if it cannot be
/// loaded.
std::optional<std::vector<CUI::ShortcutTransformation>> readSteps(const QString &path);

/// The same of the set that @p text means, by path or by name; nothing, after telling why, when
/// there is none. Needs an open host.
std::optional<std::vector<CUI::ShortcutTransformation>> readNamedSet(const QString &text,
                                                                     Session &session);

/// The members of a JSON object that tell about the step, without the braces.
QString jsonMembers(const CUI::ShortcutTransformation &step);

/// The step in one line of words, with @p action in the place of a description that is missing.
QString stepLine(const CUI::ShortcutTransformation &step, const QString &action);

} // namespace HotkeyCtl
