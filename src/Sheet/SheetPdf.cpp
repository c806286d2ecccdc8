#include "SheetPdf.h"

#include "HotkeySheet.h"
#include "PdfOutline.h"
#include "QvelMessageLog.h"
#include "SheetPages.h"

#include <QBuffer>
#include <QGuiApplication>
#include <QPdfWriter>

namespace CUI::SheetPdf {

namespace {

bool hasFonts()
{
    if (qobject_cast<QGuiApplication *>(QCoreApplication::instance()) != nullptr)
        return true;
    QvelMessageLog::getInstance().logErrorMessage(
            QStringLiteral("A hotkey sheet cannot be painted in a process without a "
                           "QGuiApplication."));
    return false;
}

bool reported(bool isPainted)
{
    if (!isPainted) {
        QvelMessageLog::getInstance().logErrorMessage(
                QStringLiteral("The device of a hotkey sheet cannot be painted on."));
    }
    return isPainted;
}

} // namespace

QByteArray write(const HotkeySheet &sheet, const QPageSize &pageSize)
{
    if (!hasFonts())
        return {};
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    QPdfWriter writer(&buffer);
    writer.setTitle(sheet.title());
    writer.setPageSize(pageSize);
    writer.setPageMargins(QMarginsF(12.0, 12.0, 12.0, 10.0), QPageLayout::Millimeter);
    const SheetPages pages(sheet, writer);
    if (!reported(pages.paint()))
        return {};
    return withOutline(buffer.data(), pages.bookmarks());
}

bool paint(const HotkeySheet &sheet, QPagedPaintDevice &device)
{
    return hasFonts() && reported(SheetPages(sheet, device).paint());
}

} // namespace CUI::SheetPdf
