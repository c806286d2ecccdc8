#pragma once

#include "Session.h"

namespace HotkeyCtl {

/// Why no file may be written to @p path, whatever it holds; empty when one may: not in the folder
/// @p presetDirectory of the shipped sets, not over a read-only file.
QString reasonAgainstPlace(const QString &path, const QString &presetDirectory);

/// Why the file @p path must not be replaced by a hotkey set; empty when it may. Shipped sets,
/// locked and read-only ones and files of another kind stay as they are.
QString reasonAgainstReplacingSet(const QString &path, const QString &presetDirectory);

/// The same for a base file.
QString reasonAgainstReplacingBase(const QString &path, const QString &presetDirectory);

} // namespace HotkeyCtl
