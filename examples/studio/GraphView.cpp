#include "GraphView.h"

#include <QPainter>

namespace Studio {

namespace {

const QColor channelColors[] = {QColor(0xe0, 0x55, 0x55), QColor(0x78, 0xb8, 0x4a),
                                QColor(0x4f, 0x8d, 0xe0)};

} // namespace

GraphView::GraphView(Document *document, ViewState *view, QWidget *parent)
    : CanvasView(parent), m_document(document), m_view(view)
{
    setObjectName(QStringLiteral("graphView"));
    connect(document, &Document::changed, this, [this] { update(); });
    connect(view, &ViewState::changed, this, [this] { update(); });
}

QRectF GraphView::everything() const
{
    const Scene &scene = m_document->scene();
    return {QPointF(scene.rangeStart, -4), QPointF(scene.rangeEnd, 4)};
}

void GraphView::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    drawBackground(painter, 1);
    painter.setRenderHint(QPainter::Antialiasing);
    const SceneObject *active = m_document->scene().active();
    if (active == nullptr || active->keys.isEmpty()) {
        painter.setPen(QColor(0xb0, 0xb2, 0xb6));
        painter.drawText(rect(), Qt::AlignCenter, QStringLiteral("The active object has no keys"));
    } else {
        for (int axis = 0; axis < 3; ++axis) {
            QPolygonF curve;
            for (auto key = active->keys.cbegin(); key != active->keys.cend(); ++key)
                curve.append(toScreen(QPointF(key.key(), -key->position[axis])));
            painter.setPen(QPen(channelColors[axis], 1.6));
            painter.setBrush(channelColors[axis]);
            painter.drawPolyline(curve);
            for (const QPointF &point : qAsConst(curve))
                painter.drawEllipse(point, 4, 4);
        }
    }
    const double x = toScreen(QPointF(m_view->get().frame, 0)).x();
    painter.setPen(QPen(QColor(0x4f, 0x9d, 0xf0), 2));
    painter.drawLine(QPointF(x, 0), QPointF(x, height()));
}

} // namespace Studio
