#include "SheetPages.h"

#include "HotkeyKeyboard.h"
#include "HotkeySheet.h"
#include "SheetText.h"

#include <QCoreApplication>
#include <QGuiApplication>
#include <QPagedPaintDevice>
#include <QPainter>
#include <QPalette>
#include <QTextLayout>

#include <algorithm>
#include <cmath>

namespace CUI {

namespace {

constexpr double rowPadding = 1.5; // in points, below each line of the list
constexpr double leastColumnWidth = 230.0; // in points

/// A text that would fill a page by itself is cut.
QString shortened(const QString &text)
{
    constexpr int limit = 300;
    return text.size() <= limit ? text : text.left(limit) + QChar(0x2026);
}

QString shownHotkeys(const QStringList &hotkeys)
{
    QStringList shown;
    for (const QString &hotkey : hotkeys)
        shown << SheetText::shownHotkey(hotkey);
    return shown.join(QStringLiteral(" \u00B7 ")); // a comma is the name of a key
}

} // namespace

SheetPages::SheetPages(const HotkeySheet &sheet, QPagedPaintDevice &device)
    : m_sheet(sheet), m_device(device), m_dotsPerPoint(device.logicalDpiY() / 72.0)
{
    addFace(18.0, QFont::Bold, 0.0);
    addFace(12.0, QFont::Bold, 11.0);
    addFace(9.0, QFont::DemiBold, 5.0);
    addFace(8.5, QFont::Normal, 0.0);
    addFace(8.0, QFont::Normal, 0.0);
    addFace(8.0, QFont::Normal, 2.0);
    m_gap = points(18.0);
    const double width = device.width();
    m_columnCount = std::max(1, int((width + m_gap) / (points(leastColumnWidth) + m_gap)));
    m_columnWidth = (width - (m_columnCount - 1) * m_gap) / m_columnCount;
    m_bottom = device.height() - 2.0 * face(Footer).metrics.height();
    layOut();
}

void SheetPages::addFace(double pointSize, QFont::Weight weight, double pointsAbove)
{
    QFont font(QGuiApplication::font());
    font.setPointSizeF(pointSize);
    font.setWeight(weight);
    font = QFont(font, &m_device);
    m_faces.push_back({font, QFontMetricsF(font, &m_device), points(pointsAbove)});
}

QStringList SheetPages::lines(Style style, const QString &text, double width) const
{
    const QString shown = shortened(SheetText::oneLine(text));
    if (face(style).metrics.horizontalAdvance(shown) <= width)
        return {shown};
    QTextLayout layout(shown, face(style).font, &m_device);
    QTextOption option;
    option.setWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
    layout.setTextOption(option);
    layout.beginLayout();
    QStringList result;
    for (QTextLine line = layout.createLine(); line.isValid(); line = layout.createLine()) {
        line.setLineWidth(width);
        result << shown.mid(line.textStart(), line.textLength()).trimmed();
    }
    layout.endLayout();
    return result;
}

SheetPages::Item SheetPages::item(Style style, const QString &left, const QString &right) const
{
    const double width = style == Title ? m_device.width() : m_columnWidth;
    Item item;
    item.style = style;
    item.width = width;
    item.left = lines(style, left, width);
    if (!right.isEmpty())
        item.right = lines(style, right, width);
    int count = item.left.size();
    if (!item.right.isEmpty()) {
        const QFontMetricsF &metrics = face(style).metrics;
        const double needed = metrics.horizontalAdvance(item.left.constLast())
                              + metrics.horizontalAdvance(item.right.constFirst()) + points(8.0);
        item.isBeside = item.right.size() == 1 && needed <= width;
        count += item.isBeside ? 0 : item.right.size();
    }
    item.height = count * face(style).metrics.lineSpacing() + points(rowPadding);
    return item;
}

/// As wide as the column, or a little less where one more picture fits on the page then.
SheetPages::Item SheetPages::picture(const HotkeyKeyboard &keyboard) const
{
    const double caption = heightOf(item(Category, QString())) + face(Picture).above;
    const double widest =
            m_columnWidth * HotkeyKeyboard::size().height() / HotkeyKeyboard::size().width();
    const double count = std::max(1.0, std::round(m_bottom / (widest + caption)));
    Item item;
    item.style = Picture;
    item.picture = &keyboard;
    item.width = m_columnWidth;
    const double heading = heightOf(this->item(Context, QString()));
    const double room = (m_bottom - heading) / count - caption;
    item.height = std::min(widest, std::max(caption, room)); // a page may have no room for it
    return item;
}

void SheetPages::layOut()
{
    place(item(Title, m_sheet.title()));
    m_y += points(6.0);
    m_top = m_y;
    for (const HotkeySheet::Context &context : m_sheet.contexts()) {
        std::vector<Item> heading = {item(Context, context.name)};
        for (const HotkeySheet::Category &category : context.categories) {
            if (!category.name.isEmpty())
                heading.push_back(item(Category, category.name));
            std::vector<Item> rows;
            for (const HotkeySheet::Entry &entry : category.entries)
                rows.push_back(item(Row, entry.action, shownHotkeys(entry.hotkeys)));
            layOutRows(context.name, heading, rows);
            heading.clear();
        }
    }
    if (!m_sheet.keyboards().empty())
        layOutKeyboards();
}

/// On pages of their own, in one column.
void SheetPages::layOutKeyboards()
{
    m_column = m_columnCount - 1;
    startColumn();
    m_columnCount = 1;
    m_columnWidth = m_device.width();
    const QString name = SheetText::keyboardHeading();
    std::vector<Item> heading = {item(Context, name)};
    for (const HotkeyKeyboard &keyboard : m_sheet.keyboards()) {
        heading.push_back(item(Category, HotkeyKeyboard::textOf(keyboard.modifiers())));
        layOutRows(name, heading, {picture(keyboard)});
        heading.clear();
    }
}

/// A heading stays with the first row below it.
void SheetPages::layOutRows(const QString &context, const std::vector<Item> &heading,
                            const std::vector<Item> &rows)
{
    double together = heightOf(rows.front());
    for (const Item &line : heading)
        together += heightOf(line);
    if (!fits(together))
        startColumn();
    for (const Item &line : heading) {
        place(line);
        const Item &placed = m_items.back();
        const QPageLayout page = m_device.pageLayout();
        const double top = page.fullRectPoints().height() - page.marginsPoints().top()
                           - placed.y / m_dotsPerPoint;
        m_bookmarks.push_back({line.style == Context ? 0 : 1, line.left.join(QLatin1Char(' ')),
                               placed.page, top});
    }
    for (const Item &row : rows) {
        if (!fits(heightOf(row))) {
            startColumn();
            place(item(Category, QCoreApplication::translate("CUI::HotkeySheet", "%1 (continued)")
                                         .arg(context)));
        }
        place(row);
    }
}

void SheetPages::startColumn()
{
    if (++m_column == m_columnCount) {
        m_column = 0;
        m_top = 0.0;
        ++m_page;
    }
    m_y = m_top;
}

void SheetPages::place(Item item)
{
    if (m_y > m_top)
        m_y += face(item.style).above;
    item.page = m_page;
    item.x = m_column * (m_columnWidth + m_gap);
    item.y = m_y;
    m_y += item.height;
    m_items.push_back(std::move(item));
}

bool SheetPages::paint() const
{
    QPainter painter;
    if (!painter.begin(&m_device))
        return false;
    int page = 0;
    paintFooter(painter, page);
    for (const Item &item : m_items) {
        if (item.page != page) {
            if (!m_device.newPage())
                return false;
            page = item.page;
            paintFooter(painter, page);
        }
        paintItem(painter, item);
    }
    return painter.end();
}

void SheetPages::paintItem(QPainter &painter, const Item &item) const
{
    if (item.picture == nullptr) {
        paintText(painter, item);
        return;
    }
    QPalette paper;
    paper.setColor(QPalette::Base, Qt::white);
    paper.setColor(QPalette::Text, Qt::black);
    painter.setFont(face(Picture).font);
    item.picture->paint(painter, QRectF(item.x, item.y, item.width, item.height), paper);
}

void SheetPages::paintText(QPainter &painter, const Item &item) const
{
    const Face &face = this->face(item.style);
    painter.setFont(face.font);
    painter.setPen(QPen(item.style == Category ? QColor(0x55, 0x5b, 0x62) : QColor(Qt::black)));
    double y = item.y + face.metrics.ascent();
    for (const QString &line : item.left) {
        painter.drawText(QPointF(item.x, y), line);
        y += face.metrics.lineSpacing();
    }
    if (item.isBeside)
        y -= face.metrics.lineSpacing();
    for (const QString &line : item.right) {
        const double width = face.metrics.horizontalAdvance(line);
        painter.drawText(QPointF(item.x + item.width - width, y), line);
        y += face.metrics.lineSpacing();
    }
    if (item.style == Row || item.style == Context) {
        const bool isRow = item.style == Row;
        painter.setPen(QPen(isRow ? QColor(0xc8, 0xcd, 0xd2) : QColor(Qt::black),
                            points(isRow ? 0.4 : 0.8)));
        const double bottom = item.y + item.height - points(0.5);
        painter.drawLine(QPointF(item.x, bottom), QPointF(item.x + item.width, bottom));
    }
}

void SheetPages::paintFooter(QPainter &painter, int page) const
{
    painter.setFont(face(Footer).font);
    painter.setPen(QColor(0x55, 0x5b, 0x62));
    const QRectF place(0.0, m_bottom, m_device.width(), m_device.height() - m_bottom);
    const QString number = QCoreApplication::translate("CUI::HotkeySheet", "Page %1 of %2")
                                   .arg(page + 1)
                                   .arg(m_page + 1);
    painter.drawText(place, Qt::AlignRight | Qt::AlignBottom, number);
}

} // namespace CUI
