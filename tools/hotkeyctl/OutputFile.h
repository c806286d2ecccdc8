#pragma once

#include "Session.h"

namespace HotkeyCtl {

/// Why the file @p path must not be replaced by a hotkey set; empty when it may. Shipped sets,
/// locked ones and files of another kind stay as they are.
QString reasonAgainstReplacingSet(const QString &path, const QString &presetDirectory);

/// The same for a base file.
QString reasonAgainstReplacingBase(const QString &path, const QString &presetDirectory);

} // namespace HotkeyCtl
