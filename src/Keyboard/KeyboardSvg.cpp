#include "KeyboardSvg.h"

#include "HotkeyKeyboard.h"
#include "KeyboardColors.h"
#include "KeyboardDrawing.h"
#include "XmlReading.h"

#include <QXmlStreamWriter>

#include <algorithm>
#include <array>

namespace CUI {

namespace {

using State = HotkeyKeyboard::State;

struct NamedState {
    State state;
    const char *name;
};

// The states as classes of the style sheet, prefixed, since the picture may stand in a page.
constexpr std::array<NamedState, 6> stateClasses{{
        {State::NoHotkey, "cui-none"},
        {State::Free, "cui-free"},
        {State::Taken, "cui-taken"},
        {State::TakenInSeveralContexts, "cui-several"},
        {State::Shadowed, "cui-shadowed"},
        {State::Reserved, "cui-reserved"},
}};

QString classOf(State state)
{
    const auto *const found =
            std::find_if(stateClasses.begin(), stateClasses.end(),
                         [state](const NamedState &named) { return named.state == state; });
    return QLatin1String(found->name);
}

QString number(double value)
{
    const QString text = QString::number(value, 'f', 1);
    return text.endsWith(QLatin1String(".0")) ? text.chopped(2) : text;
}

QString rule(const QString &selector, const char *property, const QString &value)
{
    return QStringLiteral("%1{%2:%3}").arg(selector, QLatin1String(property), value);
}

QString rule(const QString &selector, const char *property, const QColor &color)
{
    return rule(selector, property, color.name());
}

QString selectorOf(const char *name)
{
    return QStringLiteral(".cui-keyboard .") + QLatin1String(name);
}

QString colorRules(const KeyboardColors &colors)
{
    QString css;
    for (const NamedState &named : stateClasses) {
        const QString selector = selectorOf(named.name);
        css += rule(selector, "fill", colors.face(named.state));
        css += rule(selector + QStringLiteral("-lines"), "stroke", colors.hatching(named.state));
    }
    css += rule(QStringLiteral(".cui-keyboard"), "background", colors.face(State::Free));
    css += rule(selectorOf("cui-held"), "fill", colors.heldFace());
    css += rule(selectorOf("cui-edge"), "stroke", colors.edge());
    css += rule(selectorOf("cui-strong"), "fill", colors.text());
    css += rule(selectorOf("cui-dim"), "fill", colors.dimText());
    return css;
}

/// The colours that users of forced colours have chosen. The states differ without colours, too.
QString systemColorRules()
{
    const QString paper = QStringLiteral("Canvas");
    const QString ink = QStringLiteral("CanvasText");
    const QString faint = QStringLiteral("GrayText");
    QString css = rule(QStringLiteral(".cui-keyboard"), "background", paper);
    for (const NamedState &named : stateClasses) {
        css += rule(selectorOf(named.name), "fill", paper);
        css += rule(selectorOf(named.name) + QStringLiteral("-lines"), "stroke", faint);
    }
    css += rule(selectorOf("cui-edge"), "stroke", ink);
    css += rule(selectorOf("cui-none.cui-edge"), "stroke", faint);
    css += rule(selectorOf("cui-held"), "fill", paper)
           + rule(selectorOf("cui-held"), "stroke-width", QStringLiteral("8"));
    css += rule(selectorOf("cui-strong"), "fill", ink) + rule(selectorOf("cui-dim"), "fill", ink);
    // The lines are as strong as the labels on them, which get a margin.
    return css
           + QStringLiteral(".cui-keyboard .cui-lines{stroke-opacity:.6}"
                            ".cui-keyboard .cui-strong,.cui-keyboard .cui-dim"
                            "{stroke:Canvas;stroke-width:10;paint-order:stroke}");
}

QString pathData(const QPainterPath &path)
{
    QString data;
    for (int i = 0; i < path.elementCount(); ++i) {
        const QPainterPath::Element element = path.elementAt(i);
        if (element.isMoveTo())
            data += QLatin1Char('M');
        else if (element.isLineTo())
            data += QLatin1Char('L');
        else // the second and third point of a curve follow its first
            data += QLatin1Char(element.type == QPainterPath::CurveToElement ? 'C' : ' ');
        data += number(element.x) + QLatin1Char(' ') + number(element.y);
    }
    return data;
}

/// How wide a sans-serif font sets the text, roughly: a viewer's fonts are not known.
double estimatedWidth(const QString &text, double size)
{
    constexpr ushort firstOfFullWidth = 0x2E80;
    double width = 0;
    for (const QChar character : text)
        width += size * (character.unicode() >= firstOfFullWidth ? 1.0 : 0.66);
    return width;
}

/// Draws as elements of SVG.
class SvgCanvas : public KeyboardCanvas
{
public:
    SvgCanvas(QXmlStreamWriter &writer, const HotkeyKeyboard &keyboard)
        : m_writer(writer), m_keyboard(keyboard)
    {
    }

    void beginKey(const HotkeyKeyboard::Key &key) override
    {
        m_writer.writeStartElement(QStringLiteral("g"));
        const QString title = key.name + QLatin1Char('\n') + m_keyboard.describe(key);
        m_writer.writeTextElement(QStringLiteral("title"), XmlReading::xmlText(title));
    }

    void endKey() override { m_writer.writeEndElement(); }

    void drawFace(const QVector<QRectF> &parts, State state, bool isHeld) override
    {
        const QString outlineData = pathData(KeyboardDrawing::outlineOf(parts));
        const QString face = isHeld ? QStringLiteral("cui-held") : classOf(state);
        const QString edge = QStringLiteral("cui-edge");
        QString lines;
        for (const QLineF &line : KeyboardDrawing::hatching(parts, state)) {
            lines += QStringLiteral("M%1 %2L%3 %4")
                             .arg(number(line.x1()), number(line.y1()), number(line.x2()),
                                  number(line.y2()));
        }
        if (lines.isEmpty()) {
            writePath(outlineData, face + QLatin1Char(' ') + edge);
            return;
        }
        writePath(outlineData, face);
        writePath(lines, QStringLiteral("cui-lines %1-lines").arg(classOf(state)));
        writePath(outlineData, edge);
    }

    void drawSymbol(const QPainterPath &symbol) override
    {
        if (!symbol.isEmpty())
            writePath(pathData(symbol), QStringLiteral("cui-strong"));
    }

    void drawText(const QRectF &box, double size, TextColor color, const QString &text) override
    {
        const double width = estimatedWidth(text, size);
        const double fitting = width > box.width() ? size * box.width() / width : size;
        m_writer.writeStartElement(QStringLiteral("text"));
        m_writer.writeAttribute(QStringLiteral("x"), number(box.left()));
        m_writer.writeAttribute(QStringLiteral("y"), number(box.center().y()));
        m_writer.writeAttribute(QStringLiteral("font-size"), number(fitting));
        m_writer.writeAttribute(QStringLiteral("class"), color == TextColor::Dim
                                                                 ? QStringLiteral("cui-dim")
                                                                 : QStringLiteral("cui-strong"));
        m_writer.writeCharacters(XmlReading::xmlText(text));
        m_writer.writeEndElement();
    }

private:
    void writePath(const QString &data, const QString &styleClass)
    {
        m_writer.writeEmptyElement(QStringLiteral("path"));
        m_writer.writeAttribute(QStringLiteral("class"), styleClass);
        m_writer.writeAttribute(QStringLiteral("d"), data);
    }

    QXmlStreamWriter &m_writer;
    const HotkeyKeyboard &m_keyboard;
};

} // namespace

QString KeyboardSvg::styleSheet()
{
    const KeyboardColors light(Qt::white, Qt::black);
    const KeyboardColors dark(QColor(0x1e, 0x1e, 0x1e), QColor(0xe6, 0xe6, 0xe6));
    return QStringLiteral(".cui-keyboard text{font-family:sans-serif;dominant-baseline:central}"
                          ".cui-keyboard .cui-edge{fill:none;stroke-width:2}"
                          ".cui-keyboard .cui-lines{fill:none;stroke-width:3}")
           + colorRules(light)
           + QStringLiteral("@media screen and (prefers-color-scheme:dark){%1}")
                     .arg(colorRules(dark))
           + QStringLiteral("@media (forced-colors:active){%1}").arg(systemColorRules());
}

void KeyboardSvg::write(QXmlStreamWriter &writer, const HotkeyKeyboard &keyboard,
                        const QString &style)
{
    const QSizeF size = HotkeyKeyboard::size();
    writer.writeStartElement(QStringLiteral("svg"));
    writer.writeDefaultNamespace(QStringLiteral("http://www.w3.org/2000/svg"));
    writer.writeAttribute(QStringLiteral("class"), QStringLiteral("cui-keyboard"));
    writer.writeAttribute(
            QStringLiteral("viewBox"),
            QStringLiteral("0 0 %1 %2").arg(number(size.width()), number(size.height())));
    if (!style.isEmpty())
        writer.writeTextElement(QStringLiteral("style"), style);
    SvgCanvas canvas(writer, keyboard);
    KeyboardDrawing::draw(keyboard, canvas);
    writer.writeEndElement();
}

QByteArray HotkeyKeyboard::toSvg() const
{
    QByteArray svg;
    QXmlStreamWriter writer(&svg);
    KeyboardSvg::write(writer, *this, KeyboardSvg::styleSheet());
    return svg;
}

} // namespace CUI
