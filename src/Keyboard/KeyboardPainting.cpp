#include "HotkeyKeyboard.h"
#include "KeyboardColors.h"
#include "KeyboardDrawing.h"

#include <QFontMetricsF>
#include <QPainter>
#include <QPalette>

namespace CUI {

namespace {

using State = HotkeyKeyboard::State;

/// Draws through a QPainter.
class PainterCanvas : public KeyboardCanvas
{
public:
    PainterCanvas(QPainter &painter, const KeyboardColors &colors)
        : m_painter(painter), m_colors(colors), m_font(painter.font())
    {
    }

    void beginKey(const HotkeyKeyboard::Key & /*key*/) override { }
    void endKey() override { }

    void drawFace(const QVector<QRectF> &parts, State state, bool isHeld) override
    {
        const QPainterPath outline = KeyboardDrawing::outlineOf(parts);
        m_painter.fillPath(outline, isHeld ? m_colors.heldFace() : m_colors.face(state));
        m_painter.setPen(QPen(m_colors.hatching(state), 3));
        m_painter.drawLines(KeyboardDrawing::hatching(parts, state));
        m_painter.strokePath(outline, QPen(m_colors.edge(), isHeld ? 6 : 2));
    }

    void drawSymbol(const QPainterPath &symbol) override
    {
        m_painter.fillPath(symbol, m_colors.text());
    }

    void drawText(const QRectF &box, double size, TextColor color, const QString &text) override
    {
        m_font.setPixelSize(static_cast<int>(size));
        const double width = QFontMetricsF(m_font).horizontalAdvance(text);
        if (width > box.width())
            m_font.setPixelSize(static_cast<int>(size * box.width() / width));
        m_painter.setFont(m_font);
        m_painter.setPen(color == TextColor::Dim ? m_colors.dimText() : m_colors.text());
        m_painter.drawText(box, Qt::AlignLeft | Qt::AlignVCenter | Qt::TextSingleLine, text);
    }

private:
    QPainter &m_painter;
    KeyboardColors m_colors;
    QFont m_font;
};

} // namespace

void HotkeyKeyboard::paint(QPainter &painter, const QRectF &target, const QPalette &palette) const
{
    const QSizeF fitting = size().scaled(target.size(), Qt::KeepAspectRatio);
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.translate(target.topLeft());
    painter.scale(fitting.width() / size().width(), fitting.height() / size().height());
    PainterCanvas canvas(painter, {palette.color(QPalette::Base), palette.color(QPalette::Text)});
    KeyboardDrawing::draw(*this, canvas);
    painter.restore();
}

} // namespace CUI
