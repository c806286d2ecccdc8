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
    return QString::number(value, 'f', 1);
}

QString rule(const QString &selector, const char *property, const QColor &color)
{
    return QStringLiteral("%1{%2:%3}").arg(selector, QLatin1String(property), color.name());
}

QString colorRules(const KeyboardColors &colors)
{
    QString css;
    for (const NamedState &named : stateClasses) {
        const QString selector = QStringLiteral(".cui-keyboard .") + QLatin1String(named.name);
        css += rule(selector, "fill", colors.face(named.state));
        css += rule(selector + QStringLiteral("-lines"), "stroke", colors.hatching(named.state));
    }
    css += rule(QStringLiteral(".cui-keyboard"), "background", colors.face(State::Free));
    css += rule(QStringLiteral(".cui-keyboard .cui-held"), "fill", colors.heldFace());
    css += rule(QStringLiteral(".cui-keyboard .cui-edge"), "stroke", colors.edge());
    css += rule(QStringLiteral(".cui-keyboard .cui-strong"), "fill", colors.text());
    css += rule(QStringLiteral(".cui-keyboard .cui-dim"), "fill", colors.dimText());
    return css;
}

QString styleSheet()
{
    const KeyboardColors light(Qt::white, Qt::black);
    const KeyboardColors dark(QColor(0x1e, 0x1e, 0x1e), QColor(0xe6, 0xe6, 0xe6));
    return QStringLiteral(".cui-keyboard text{font-family:sans-serif;dominant-baseline:central}"
                          ".cui-keyboard .cui-edge{fill:none;stroke-width:2}"
                          ".cui-keyboard .cui-lines{fill:none;stroke-width:3}")
           + colorRules(light)
           + QStringLiteral("@media screen and (prefers-color-scheme:dark){%1}")
                     .arg(colorRules(dark));
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
        width += size * (character.unicode() >= firstOfFullWidth ? 1.0 : 0.6);
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
        writePath(outlineData, isHeld ? QStringLiteral("cui-held") : classOf(state));
        QString lines;
        for (const QLineF &line : KeyboardDrawing::hatching(parts, state)) {
            lines += QStringLiteral("M%1 %2L%3 %4")
                             .arg(number(line.x1()), number(line.y1()), number(line.x2()),
                                  number(line.y2()));
        }
        if (!lines.isEmpty())
            writePath(lines, QStringLiteral("cui-lines %1-lines").arg(classOf(state)));
        writePath(outlineData, QStringLiteral("cui-edge"));
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

QByteArray HotkeyKeyboard::toSvg() const
{
    QByteArray svg;
    QXmlStreamWriter writer(&svg);
    writer.writeStartElement(QStringLiteral("svg"));
    writer.writeDefaultNamespace(QStringLiteral("http://www.w3.org/2000/svg"));
    writer.writeAttribute(QStringLiteral("class"), QStringLiteral("cui-keyboard"));
    writer.writeAttribute(
            QStringLiteral("viewBox"),
            QStringLiteral("0 0 %1 %2").arg(number(size().width()), number(size().height())));
    writer.writeTextElement(QStringLiteral("style"), styleSheet());
    SvgCanvas canvas(writer, *this);
    KeyboardDrawing::draw(*this, canvas);
    writer.writeEndElement();
    return svg;
}

} // namespace CUI
