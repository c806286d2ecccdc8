#include "Icons.h"

#include <QApplication>
#include <QHash>
#include <QPainter>
#include <QPainterPath>
#include <QPalette>

#include <functional>

namespace Studio::Icons {

namespace {

constexpr int side = 24;
using Draw = std::function<void(QPainter &)>;

void line(QPainter &p, double x1, double y1, double x2, double y2)
{
    p.drawLine(QPointF(x1, y1), QPointF(x2, y2));
}

void polygon(QPainter &p, const QVector<QPointF> &points, bool filled = false)
{
    p.setBrush(filled ? QBrush(p.pen().color()) : QBrush(Qt::NoBrush));
    p.drawPolygon(QPolygonF(points));
    p.setBrush(Qt::NoBrush);
}

void arrowHead(QPainter &p, QPointF tip, QPointF direction)
{
    const QPointF across(-direction.y(), direction.x());
    polygon(p, {tip, tip - direction * 4 + across * 3, tip - direction * 4 - across * 3}, true);
}

void drawCube(QPainter &p)
{
    polygon(p, {{12, 3}, {20, 7}, {20, 16}, {12, 21}, {4, 16}, {4, 7}});
    p.drawPolyline(QPolygonF({{4, 7}, {12, 11.5}, {20, 7}}));
    line(p, 12, 11.5, 12, 21);
}

void drawCylinder(QPainter &p)
{
    p.drawEllipse(QRectF(5, 3, 14, 5));
    line(p, 5, 5.5, 5, 18);
    line(p, 19, 5.5, 19, 18);
    p.drawArc(QRectF(5, 15.5, 14, 5), 180 * 16, 180 * 16);
}

void drawSphere(QPainter &p)
{
    p.drawEllipse(QPointF(12, 12), 9, 9);
    p.drawEllipse(QPointF(12, 12), 9, 3);
    p.drawEllipse(QPointF(12, 12), 3.4, 9);
}

void drawCone(QPainter &p)
{
    line(p, 12, 3, 4, 18);
    line(p, 12, 3, 20, 18);
    p.drawEllipse(QRectF(4, 15.5, 16, 5));
}

void drawMove(QPainter &p)
{
    line(p, 12, 4, 12, 20);
    line(p, 4, 12, 20, 12);
    for (const QPointF &d : {QPointF(0, -1), QPointF(0, 1), QPointF(-1, 0), QPointF(1, 0)})
        arrowHead(p, QPointF(12, 12) + d * 10, d);
}

void drawRotate(QPainter &p)
{
    p.drawArc(QRectF(4, 4, 16, 16), 40 * 16, 280 * 16);
    arrowHead(p, {19.5, 6.5}, {0.5, -0.86});
}

void drawScale(QPainter &p)
{
    p.drawRect(QRectF(4, 11, 9, 9));
    line(p, 12, 12, 19, 5);
    arrowHead(p, {21, 3}, {0.7, -0.7});
}

void drawCursor(QPainter &p)
{
    polygon(p, {{6, 3}, {18, 13}, {12.5, 13.8}, {15.5, 20}, {13, 21}, {10.2, 15}, {6, 18.5}});
}

void drawUndo(QPainter &p)
{
    p.drawArc(QRectF(5, 7, 14, 12), -90 * 16, 210 * 16);
    arrowHead(p, {4, 9}, {-0.8, 0.5});
}

void drawCamera(QPainter &p)
{
    p.drawRoundedRect(QRectF(3, 8, 12, 10), 2, 2);
    polygon(p, {{15, 12}, {21, 8.5}, {21, 17.5}, {15, 14}});
}

void drawEye(QPainter &p)
{
    QPainterPath lid(QPointF(2, 12));
    lid.quadTo(12, 1, 22, 12);
    lid.quadTo(12, 23, 2, 12);
    p.drawPath(lid);
    p.setBrush(p.pen().color());
    p.drawEllipse(QPointF(12, 12), 3, 3);
    p.setBrush(Qt::NoBrush);
}

void drawLight(QPainter &p)
{
    p.drawEllipse(QRectF(7, 3, 10, 10));
    line(p, 9.5, 16, 14.5, 16);
    line(p, 10, 19, 14, 19);
}

void drawKeyboard(QPainter &p)
{
    p.drawRoundedRect(QRectF(2, 6, 20, 13), 2, 2);
    for (int i = 0; i < 4; ++i)
        line(p, 5.5 + i * 4, 10, 6.5 + i * 4, 10);
    line(p, 7, 15, 17, 15);
}

const QHash<QString, Draw> &drawings()
{
    static const QHash<QString, Draw> all = {
            {QStringLiteral("cube"), drawCube},
            {QStringLiteral("sphere"), drawSphere},
            {QStringLiteral("cylinder"), drawCylinder},
            {QStringLiteral("cone"), drawCone},
            {QStringLiteral("torus"),
             [](QPainter &p) {
                 p.drawEllipse(QPointF(12, 12), 9.5, 6);
                 p.drawEllipse(QPointF(12, 11.4), 4, 2);
             }},
            {QStringLiteral("plane"),
             [](QPainter &p) {
                 polygon(p, {{8, 7}, {22, 7}, {16, 18}, {2, 18}});
             }},
            {QStringLiteral("move"), drawMove},
            {QStringLiteral("rotate"), drawRotate},
            {QStringLiteral("scale"), drawScale},
            {QStringLiteral("select"), drawCursor},
            {QStringLiteral("arrow"), drawCursor},
            {QStringLiteral("undo"), drawUndo},
            {QStringLiteral("redo"),
             [](QPainter &p) {
                 p.translate(side, 0);
                 p.scale(-1, 1);
                 drawUndo(p);
             }},
            {QStringLiteral("camera"), drawCamera},
            {QStringLiteral("eye"), drawEye},
            {QStringLiteral("eyeOff"),
             [](QPainter &p) {
                 p.setOpacity(0.4);
                 line(p, 3, 12, 21, 12);
             }},
            {QStringLiteral("off"),
             [](QPainter &p) {
                 p.setOpacity(0.4);
                 line(p, 6, 12, 18, 12);
             }},
            {QStringLiteral("lock"),
             [](QPainter &p) {
                 p.drawRoundedRect(QRectF(5, 11, 14, 9), 2, 2);
                 p.drawArc(QRectF(8, 4, 8, 14), 0, 180 * 16);
             }},
            {QStringLiteral("light"), drawLight},
            {QStringLiteral("joint"),
             [](QPainter &p) {
                 polygon(p, {{12, 2}, {16, 8}, {12, 22}, {8, 8}});
             }},
            {QStringLiteral("folder"),
             [](QPainter &p) {
                 polygon(p, {{3, 6}, {10, 6}, {12, 9}, {21, 9}, {21, 19}, {3, 19}});
             }},
            {QStringLiteral("grid"),
             [](QPainter &p) {
                 for (int i = 0; i < 4; ++i) {
                     line(p, 4, 4.5 + i * 5, 20, 4.5 + i * 5);
                     line(p, 4.5 + i * 5, 4, 4.5 + i * 5, 20);
                 }
             }},
            {QStringLiteral("play"),
             [](QPainter &p) {
                 polygon(p, {{7, 4}, {20, 12}, {7, 20}}, true);
             }},
            {QStringLiteral("start"),
             [](QPainter &p) {
                 line(p, 5, 5, 5, 19);
                 polygon(p, {{19, 5}, {8, 12}, {19, 19}}, true);
             }},
            {QStringLiteral("end"),
             [](QPainter &p) {
                 line(p, 19, 5, 19, 19);
                 polygon(p, {{5, 5}, {16, 12}, {5, 19}}, true);
             }},
            {QStringLiteral("key"),
             [](QPainter &p) {
                 polygon(p, {{12, 4}, {20, 12}, {12, 20}, {4, 12}}, true);
             }},
            {QStringLiteral("keyboard"), drawKeyboard},
    };
    return all;
}

QPixmap pixmap(const Draw &draw, const QColor &color)
{
    const qreal ratio = qApp->devicePixelRatio();
    QPixmap result(QSize(side, side) * ratio);
    result.setDevicePixelRatio(ratio);
    result.fill(Qt::transparent);
    QPainter painter(&result);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(color, 1.6, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    draw(painter);
    return result;
}

} // namespace

QIcon make(const QString &name)
{
    const Draw draw = drawings().value(name);
    QIcon icon;
    if (!draw)
        return icon;
    const QPalette palette = QApplication::palette();
    icon.addPixmap(pixmap(draw, palette.color(QPalette::ButtonText)), QIcon::Normal);
    icon.addPixmap(pixmap(draw, palette.color(QPalette::Disabled, QPalette::ButtonText)),
                   QIcon::Disabled);
    icon.addPixmap(pixmap(draw, palette.color(QPalette::HighlightedText)), QIcon::Selected);
    return icon;
}

QIcon application()
{
    return QIcon(pixmap(drawCube, QColor(0xff, 0x9c, 0x3a)));
}

} // namespace Studio::Icons
