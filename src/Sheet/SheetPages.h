#pragma once

#include "PdfOutline.h"

#include <QFont>
#include <QFontMetricsF>
#include <QString>
#include <QStringList>

#include <vector>

class QPagedPaintDevice;
class QPainter;

namespace CUI {

class HotkeyKeyboard;
class HotkeySheet;

/// A sheet laid out in columns on the pages of a device.
class SheetPages
{
public:
    /// Needs a QGuiApplication. The device must keep its page layout until the pages are painted.
    SheetPages(const HotkeySheet &sheet, QPagedPaintDevice &device);

    /// False when the device cannot be painted on or has no further page.
    bool paint() const;

    /// The contexts, and their categories below.
    const std::vector<PdfBookmark> &bookmarks() const { return m_bookmarks; }

private:
    enum Style { Title, Context, Category, Row, Footer, Picture };
    struct Face {
        QFont font;
        QFontMetricsF metrics;
        double above; // the space above, except at the top of a column
    };
    /// A heading, an action with its hotkeys on the right, or a picture.
    struct Item {
        Style style = Row;
        QStringList left;
        QStringList right;
        bool isBeside = true; // the right lines begin beside the left ones, not below
        const HotkeyKeyboard *picture = nullptr;
        double width = 0.0;
        double height = 0.0;
        int page = 0;
        double x = 0.0;
        double y = 0.0;
    };

    void addFace(double pointSize, QFont::Weight weight, double pointsAbove);
    const Face &face(Style style) const { return m_faces[static_cast<std::size_t>(style)]; }
    double points(double value) const { return value * m_dotsPerPoint; }
    QStringList lines(Style style, const QString &text, double width) const;
    Item item(Style style, const QString &left, const QString &right = QString()) const;
    Item picture(const HotkeyKeyboard &keyboard) const;

    void layOut();
    void layOutRows(const QString &context, const std::vector<Item> &heading,
                    const std::vector<Item> &rows);
    void layOutKeyboards();
    bool fits(double height) const { return m_y <= m_top || m_y + height <= m_bottom; }
    double heightOf(const Item &item) const { return face(item.style).above + item.height; }
    void place(Item item);
    void startColumn();

    void paintItem(QPainter &painter, const Item &item) const;
    void paintText(QPainter &painter, const Item &item) const;
    void paintFooter(QPainter &painter, int page) const;

    const HotkeySheet &m_sheet;
    QPagedPaintDevice &m_device;
    double m_dotsPerPoint;
    std::vector<Face> m_faces; // by style
    int m_columnCount;
    double m_gap; // between columns
    double m_columnWidth;
    double m_bottom; // of the columns

    double m_top = 0.0; // of the columns of the current page
    int m_page = 0;
    int m_column = 0;
    double m_y = 0.0;
    std::vector<Item> m_items;
    std::vector<PdfBookmark> m_bookmarks;
};

} // namespace CUI
