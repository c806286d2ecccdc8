#pragma once

#include <QKeyEvent>
#include <QStringList>

namespace Studio {

/// Turns key presses into the texts of hotkeys.
namespace KeyText {

/// The portable texts that a hotkey for this key press may have, the most exact one first; none for
/// a press of modifiers alone.
///
/// A key that types another character with Shift is known by both of its characters, as they stand
/// on a US keyboard: that of [ and { with Shift is found as "Shift+[" and "Shift+{", the one of =
/// and + also as "+". A key of the keypad is found without "Num+", too.
QStringList candidates(const QKeyEvent &event);

} // namespace KeyText
} // namespace Studio
