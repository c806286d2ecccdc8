#pragma once

#include <QString>

#include <optional>

namespace Host {

/// The portable text of the one key combination that @p text names, in whatever letter case and in
/// portable or native spelling. Nothing when it names none or several; @p reason then says why.
std::optional<QString> canonicalHotkey(const QString &text, QString &reason);

} // namespace Host
