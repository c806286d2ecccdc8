#pragma once

#include <QString>

#include <optional>

namespace HotkeyCtl {

class Session;

/// The path of the hotkey set that @p text means: the file of that path if there is one, otherwise
/// the listed set of that name, as it is, as it is printed or as it is before translation. Nothing,
/// after telling why and what there is instead, when it means none or several. Needs an open host.
std::optional<QString> findSet(const Session &session, const QString &text);

} // namespace HotkeyCtl
