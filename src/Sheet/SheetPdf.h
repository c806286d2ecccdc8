#pragma once

#include <QByteArray>

class QPagedPaintDevice;
class QPageSize;

namespace CUI {

class HotkeySheet;

namespace SheetPdf {

/// Empty, with an error in the log, without a QGuiApplication.
QByteArray write(const HotkeySheet &sheet, const QPageSize &pageSize);

/// False, with an error in the log, when the device cannot be painted on.
bool paint(const HotkeySheet &sheet, QPagedPaintDevice &device);

} // namespace SheetPdf
} // namespace CUI
