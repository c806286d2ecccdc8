#include "CanvasView.h"

#include <QMouseEvent>
#include <QPainter>
#include <QWheelEvent>

#include <algorithm>
#include <cmath>

namespace Studio {

CanvasView::CanvasView(QWidget *parent) : QWidget(parent)
{
    setFocusPolicy(Qt::StrongFocus);
    setMinimumSize(120, 80);
}

void CanvasView::zoom(double factor)
{
    m_scale = std::clamp(m_scale * factor, 0.05, 5000.0);
    m_isFramed = true;
    update();
}

void CanvasView::frame(const QRectF &area)
{
    constexpr int margin = 24;
    const double w = std::max(area.width(), 1e-3) * stretch();
    const double h = std::max(area.height(), 1e-3);
    m_centre = area.center();
    m_scale = std::clamp(std::min(std::max(10, width() - 2 * margin) / w,
                                  std::max(10, height() - 2 * margin) / h),
                         0.05, 5000.0);
    update();
}

QPointF CanvasView::toScreen(QPointF point) const
{
    return QPointF((point.x() - m_centre.x()) * m_scale * stretch() + width() / 2.0,
                   (point.y() - m_centre.y()) * m_scale + height() / 2.0);
}

QPointF CanvasView::toPlane(QPointF place) const
{
    return QPointF((place.x() - width() / 2.0) / (m_scale * stretch()) + m_centre.x(),
                   (place.y() - height() / 2.0) / m_scale + m_centre.y());
}

void CanvasView::drawBackground(QPainter &painter, double cell) const
{
    painter.fillRect(rect(), QColor(0x2d, 0x2f, 0x32));
    double step = cell;
    while (step * m_scale < 12)
        step *= 4;
    painter.setPen(QColor(255, 255, 255, 16));
    const QPointF first = toPlane(QPointF(0, 0));
    const QPointF last = toPlane(QPointF(width(), height()));
    for (double x = std::floor(first.x() / step) * step; x < last.x(); x += step)
        painter.drawLine(QPointF(toScreen({x, 0}).x(), 0), QPointF(toScreen({x, 0}).x(), height()));
    for (double y = std::floor(first.y() / step) * step; y < last.y(); y += step)
        painter.drawLine(QPointF(0, toScreen({0, y}).y()), QPointF(width(), toScreen({0, y}).y()));
}

void CanvasView::showEvent(QShowEvent *)
{
    if (!m_isFramed)
        frame(everything());
}

void CanvasView::resizeEvent(QResizeEvent *)
{
    if (!m_isFramed)
        frame(everything());
}

void CanvasView::mousePressEvent(QMouseEvent *event)
{
    m_last = event->pos();
}

void CanvasView::mouseMoveEvent(QMouseEvent *event)
{
    const QPoint moved = event->pos() - m_last;
    m_last = event->pos();
    if ((event->buttons() & Qt::MiddleButton) == 0)
        return;
    m_isFramed = true;
    m_centre -= QPointF(moved.x() / (m_scale * stretch()), moved.y() / m_scale);
    update();
}

void CanvasView::wheelEvent(QWheelEvent *event)
{
    const QPointF under = toPlane(event->position());
    zoom(std::pow(1.0015, event->angleDelta().y()));
    m_centre += under - toPlane(event->position());
    event->accept();
}

} // namespace Studio
