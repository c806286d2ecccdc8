#pragma once

#include "Session.h"

namespace HotkeyCtl {

/// Why the file @p path must not be replaced by a hotkey set; empty when it may. Shipped sets,
/// locked and read-only ones and files of another kind stay as they are.
QString reasonAgainstReplacingSet(const QString &path, const QString &presetDirectory);

/// The same for a base file.
QString reasonAgainstReplacingBase(const QString &path, const QString &presetDirectory);

/// Writes the file as a whole or not at all; returns why it cannot be written, or an empty text.
QString writeWhole(const QString &path, const QByteArray &contents);

} // namespace HotkeyCtl
