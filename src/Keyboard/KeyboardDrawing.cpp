#include "KeyboardDrawing.h"

#include "KeyboardGeometry.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace CUI::KeyboardDrawing {

namespace {

using Key = HotkeyKeyboard::Key;
using State = HotkeyKeyboard::State;
using TextColor = KeyboardCanvas::TextColor;

constexpr double symbolSize = 22;
constexpr double legendCap = 60;

constexpr std::array<State, 6> legendStates{{State::Free, State::Taken,
                                             State::TakenInSeveralContexts, State::Shadowed,
                                             State::Reserved, State::NoHotkey}};

/// The symbol of a state with its top left corner at @p corner; empty for states without one.
QPainterPath symbolOf(State state, const QPointF &corner)
{
    const QRectF box(corner, QSizeF(symbolSize, symbolSize));
    const QPointF center = box.center();
    QPainterPath path;
    switch (state) {
    case State::Taken:
        path.addEllipse(box);
        break;
    case State::TakenInSeveralContexts: {
        constexpr double side = symbolSize * 0.42;
        path.addRect(QRectF(box.left(), box.top(), side, side));
        path.addRect(QRectF(box.right() - side, box.top(), side, side));
        path.addRect(QRectF(center.x() - side / 2, box.bottom() - side, side, side));
        break;
    }
    case State::Shadowed:
        path.addPolygon(QPolygonF({{center.x(), box.top()}, box.bottomRight(), box.bottomLeft()}));
        path.closeSubpath();
        break;
    case State::Reserved: {
        constexpr double arm = symbolSize * 0.2;
        path.addPolygon(QPolygonF({{box.left() + arm, box.top()},
                                   {center.x(), center.y() - arm},
                                   {box.right() - arm, box.top()},
                                   {box.right(), box.top() + arm},
                                   {center.x() + arm, center.y()},
                                   {box.right(), box.bottom() - arm},
                                   {box.right() - arm, box.bottom()},
                                   {center.x(), center.y() + arm},
                                   {box.left() + arm, box.bottom()},
                                   {box.left(), box.bottom() - arm},
                                   {center.x() - arm, center.y()},
                                   {box.left(), box.top() + arm}}));
        path.closeSubpath();
        break;
    }
    case State::NoHotkey:
    case State::Free:
        break;
    }
    return path;
}

void drawKey(const Key &key, KeyboardCanvas &canvas)
{
    constexpr double margin = 12;
    constexpr double half = 38;
    const QRectF inner = key.parts.last().adjusted(margin, 8, -margin, -8);
    const TextColor color =
            key.state == State::NoHotkey && !key.isHeld ? TextColor::Dim : TextColor::Strong;
    canvas.beginKey(key);
    canvas.drawFace(key.parts, key.state, key.isHeld);
    QRectF upper(inner.left(), inner.top(), inner.width(), half);
    if (key.shiftedLabel.isEmpty()) {
        constexpr double letter = 36;
        constexpr double name = 22;
        canvas.drawText(upper, key.label.size() == 1 ? letter : name, color, key.label);
    } else {
        constexpr double character = 28;
        const QRectF lower(inner.left(), inner.top() + half, inner.width() / 2, half);
        canvas.drawText(upper.adjusted(0, 0, -inner.width() / 2, 0), character, TextColor::Dim,
                        key.shiftedLabel);
        canvas.drawText(lower, character, color, key.label);
    }
    if (!key.hotkeyLabel.isEmpty()) {
        upper.setLeft(inner.center().x() + 4);
        canvas.drawText(upper, 26, TextColor::Dim, key.hotkeyLabel);
    }
    const QPointF corner(inner.right() - symbolSize + 2, inner.bottom() - symbolSize);
    canvas.drawSymbol(symbolOf(key.state, corner));
    canvas.endKey();
}

/// The states share the width by the lengths of their names.
void drawLegend(KeyboardCanvas &canvas)
{
    constexpr double top = KeyboardGeometry::height * 100 + 30;
    constexpr double margin = 20;
    constexpr double textSize = 28;
    const double room = HotkeyKeyboard::size().width()
                        - static_cast<double>(legendStates.size()) * (legendCap + 2 * margin);
    int characters = 0;
    for (const State state : legendStates)
        characters += HotkeyKeyboard::textOf(state).size();
    double x = 4;
    for (const State state : legendStates) {
        canvas.drawFace({QRectF(x, top, legendCap, legendCap)}, state, false);
        constexpr double middle = (legendCap - symbolSize) / 2;
        canvas.drawSymbol(symbolOf(state, QPointF(x + middle, top + middle)));
        const QString text = HotkeyKeyboard::textOf(state);
        const double width = room * text.size() / characters;
        x += legendCap + margin;
        canvas.drawText(QRectF(x, top, width, legendCap), textSize, TextColor::Strong, text);
        x += width + margin;
    }
}

} // namespace

void draw(const HotkeyKeyboard &keyboard, KeyboardCanvas &canvas)
{
    for (const Key &key : keyboard.keys())
        drawKey(key, canvas);
    drawLegend(canvas);
}

QPainterPath outlineOf(const QVector<QRectF> &parts)
{
    QPainterPath outline;
    for (const QRectF &part : parts) {
        constexpr double corner = 10;
        QPainterPath rounded;
        rounded.addRoundedRect(part, corner, corner);
        outline = outline.isEmpty() ? rounded : outline.united(rounded);
    }
    return outline;
}

QVector<QLineF> hatching(const QVector<QRectF> &parts, State state)
{
    const bool rises = state == State::Taken || state == State::TakenInSeveralContexts;
    const bool falls = state == State::Reserved || state == State::TakenInSeveralContexts;
    const double gap = state == State::Reserved ? 12 : 18;
    // Where parts overlap, their lines are the same ones.
    const auto firstFrom = [gap](double least) { return std::ceil(least / gap) * gap; };
    QVector<QLineF> lines;
    for (const QRectF &part : parts) {
        const double left = part.left();
        const double right = part.right();
        const double top = part.top();
        const double bottom = part.bottom();
        for (double sum = firstFrom(left + top); rises && sum < right + bottom; sum += gap) {
            const double from = std::max(left, sum - bottom);
            const double to = std::min(right, sum - top);
            lines.append({from, sum - from, to, sum - to});
        }
        for (double step = firstFrom(left - bottom); falls && step < right - top; step += gap) {
            const double from = std::max(left, step + top);
            const double to = std::min(right, step + bottom);
            lines.append({from, from - step, to, to - step});
        }
        for (double y = firstFrom(top); state == State::Shadowed && y < bottom; y += gap)
            lines.append({left, y, right, y});
    }
    return lines;
}

} // namespace CUI::KeyboardDrawing
