#pragma once

#include <QByteArray>
#include <QString>

namespace CUI {

class HotkeySheet;

/// The texts of a sheet, and the formats that are made of little else.
namespace SheetText {

/// @p text without line breaks and other control characters, which become blanks. What is no
/// character at all, half a surrogate pair for instance, becomes U+FFFD.
QString oneLine(const QString &text);

/// The name of the hotkey in the user's language, on one line; a text that names no key as it is.
QString shownHotkey(const QString &hotkey);

/// The heading of the pictures of a keyboard.
QString keyboardHeading();

QByteArray markdown(const HotkeySheet &sheet);
QByteArray csv(const HotkeySheet &sheet);

} // namespace SheetText
} // namespace CUI
