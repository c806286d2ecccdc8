#include "UvView.h"

#include "MeshEditing.h"
#include "UvEditing.h"

#include <QMouseEvent>
#include <QPainter>

#include <algorithm>
#include <cmath>

namespace Studio {

namespace {

double areaOf(const QPolygonF &polygon)
{
    double area = 0;
    for (int i = 0; i < polygon.size(); ++i) {
        const QPointF a = polygon.at(i);
        const QPointF b = polygon.at((i + 1) % polygon.size());
        area += (a.x() * b.y() - a.y() * b.x()) / 2;
    }
    return std::abs(area);
}

double areaOf(const Mesh &mesh, int face)
{
    const QVector<int> &corners = mesh.faces.at(face).corners;
    QVector3D sum;
    for (int i = 0; i < corners.size(); ++i) {
        sum += QVector3D::crossProduct(mesh.vertices.at(corners.at(i)),
                                       mesh.vertices.at(corners.at((i + 1) % corners.size())));
    }
    return static_cast<double>(sum.length()) / 2;
}

} // namespace

UvView::UvView(Document *document, ViewState *view, QWidget *parent)
    : CanvasView(parent), m_document(document), m_view(view)
{
    setObjectName(QStringLiteral("uvView"));
    connect(document, &Document::changed, this, [this] { update(); });
    connect(view, &ViewState::changed, this, [this] { update(); });
}

void UvView::frameSelected()
{
    if (const SceneObject *active = m_document->scene().activeMesh())
        frame(UvEditing::bounds(active->mesh));
}

QPolygonF UvView::polygon(const Mesh::Face &face) const
{
    QPolygonF points;
    for (const QPointF &point : face.uv)
        points.append(toScreen(QPointF(point.x(), 1 - point.y())));
    return points;
}

QColor UvView::fill(const Mesh &mesh, int face) const
{
    if (m_view->get().stretching) {
        // The hue shows the size of the face on the texture relative to its size in the scene.
        const double share =
                areaOf(QPolygonF(mesh.faces.at(face).uv)) / std::max(1e-6, areaOf(mesh, face));
        const double off = std::clamp(std::abs(std::log2(std::max(share, 1e-6) * 16)), 0.0, 4.0);
        return QColor::fromHsvF(0.62 * (1 - off / 4), 0.75, 0.8, 0.7);
    }
    return mesh.selected.contains(face) ? QColor(255, 156, 58, 110) : QColor(130, 150, 180, 46);
}

void UvView::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    drawBackground(painter, 0.125);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(QColor(0x8c, 0x90, 0x96), 1.2));
    painter.drawRect(QRectF(toScreen({0, 0}), toScreen({1, 1})));
    const SceneObject *active = m_document->scene().activeMesh();
    if (active == nullptr) {
        painter.setPen(QColor(0xb0, 0xb2, 0xb6));
        painter.drawText(rect(), Qt::AlignCenter, QStringLiteral("No mesh selected"));
        return;
    }
    for (int face = 0; face < active->mesh.faces.size(); ++face) {
        painter.setPen(QPen(QColor(0xc8, 0xce, 0xd8, 190), 0.8));
        painter.setBrush(fill(active->mesh, face));
        painter.drawPolygon(polygon(active->mesh.faces.at(face)));
    }
    if (m_view->get().heldPixelSnap) {
        painter.setPen(QColor(0xff, 0x9c, 0x3a));
        painter.drawText(8, height() - 8, QStringLiteral("Snapping to pixels"));
    }
}

void UvView::mouseReleaseEvent(QMouseEvent *event)
{
    const SceneObject *active = m_document->scene().activeMesh();
    if (event->button() != Qt::LeftButton || active == nullptr)
        return;
    int hit = -1;
    for (int face = 0; face < active->mesh.faces.size(); ++face) {
        if (polygon(active->mesh.faces.at(face)).containsPoint(event->localPos(), Qt::OddEvenFill))
            hit = face;
    }
    const int id = active->id;
    const bool add = (event->modifiers() & Qt::ShiftModifier) != 0;
    m_document->edit(QStringLiteral("Select Face"), [=](Scene &scene) {
        QSet<int> &selected = scene.find(id)->mesh.selected;
        if (!add)
            selected.clear();
        if (hit >= 0)
            selected.insert(hit);
    });
}

} // namespace Studio
