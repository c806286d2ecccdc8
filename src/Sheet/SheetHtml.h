#pragma once

#include <QByteArray>

namespace CUI {

class HotkeySheet;

namespace SheetHtml {

QByteArray write(const HotkeySheet &sheet);

} // namespace SheetHtml
} // namespace CUI
