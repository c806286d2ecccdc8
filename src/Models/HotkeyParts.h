#pragma once

#include <QKeySequence>
#include <QString>
#include <QStringList>

namespace CUI {

/// Splits key combinations into their modifiers and their key.
namespace HotkeyParts {

/// The parts of @p hotkey in @p outputFormat: the modifiers, then the key. Empty when the text is
/// no key combination. A key that is the plus sign is "+"; a key of the keypad is one part with
/// @p keypadName, the keypad qualifier's name in the output format, in front of it.
QStringList split(const QString &hotkey, QKeySequence::SequenceFormat inputFormat,
                  QKeySequence::SequenceFormat outputFormat, const QString &keypadName);

} // namespace HotkeyParts
} // namespace CUI
