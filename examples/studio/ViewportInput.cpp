#include "MeshEditing.h"
#include "ScenePainter.h"
#include "Viewport.h"

#include <QMouseEvent>
#include <QWheelEvent>

#include <algorithm>
#include <cmath>

namespace Studio {

namespace {

constexpr int leastDrag = 3;

float snapped(float value, float step)
{
    return step > 0 ? std::round(value / step) * step : value;
}

} // namespace

Viewport::Drag Viewport::dragFor(const QMouseEvent &event) const
{
    const ViewSettings &view = m_view->get();
    const bool middle = event.button() == Qt::MiddleButton;
    if (view.heldOrbit || (middle && event.modifiers() == Qt::NoModifier))
        return Drag::Orbit;
    if (view.heldPan || (middle && event.modifiers() == Qt::ShiftModifier))
        return Drag::Pan;
    if (view.heldZoom || middle)
        return Drag::Zoom;
    if (event.button() != Qt::LeftButton)
        return Drag::None;
    if (m_regionAwaited)
        return Drag::Region;
    if (view.mode == QLatin1String("Sculpting"))
        return Drag::Sculpt;
    return Drag::Transform;
}

void Viewport::mousePressEvent(QMouseEvent *event)
{
    m_drag = dragFor(*event);
    m_pressed = m_last = event->pos();
    if (m_drag == Drag::Sculpt)
        sculptAt(event->pos(), true);
}

void Viewport::mouseMoveEvent(QMouseEvent *event)
{
    const QPoint moved = event->pos() - m_last;
    m_last = event->pos();
    switch (m_drag) {
    case Drag::Orbit:
    case Drag::Pan:
    case Drag::Zoom:
        navigate(moved);
        break;
    case Drag::Transform:
        if ((m_last - m_pressed).manhattanLength() > leastDrag)
            transformTo(m_last);
        break;
    case Drag::Sculpt:
        sculptAt(m_last, false);
        break;
    case Drag::Region:
        update();
        break;
    case Drag::None:
        if (isBrushMode())
            update();
        break;
    }
}

void Viewport::mouseReleaseEvent(QMouseEvent *event)
{
    const Drag drag = std::exchange(m_drag, Drag::None);
    const bool isClick = (event->pos() - m_pressed).manhattanLength() <= leastDrag;
    if (drag == Drag::Region) {
        zoomToRegion();
    } else if (drag == Drag::Transform && isClick) {
        const bool add = (event->modifiers() & (Qt::ShiftModifier | Qt::ControlModifier)) != 0;
        if (m_view->get().mode == QLatin1String("Mesh"))
            pickFace(event->pos(), add);
        else
            pick(event->pos(), add);
    } else if (drag == Drag::Transform) {
        m_document->commitPreview(toolName());
    } else if (drag == Drag::Orbit || drag == Drag::Pan || drag == Drag::Zoom) {
        const Camera reached = m_camera;
        m_camera = m_views[m_currentView];
        setCamera(reached);
    }
    update();
}

void Viewport::wheelEvent(QWheelEvent *event)
{
    zoom(std::pow(0.9985F, static_cast<float>(event->angleDelta().y())));
    event->accept();
}

void Viewport::leaveEvent(QEvent *)
{
    update();
}

void Viewport::navigate(QPoint moved)
{
    const auto dx = static_cast<float>(moved.x());
    const auto dy = static_cast<float>(moved.y());
    if (m_drag == Drag::Orbit) {
        m_camera.yaw -= dx * 0.5F;
        m_camera.pitch = std::clamp(m_camera.pitch + dy * 0.5F, -90.F, 90.F);
    } else if (m_drag == Drag::Pan) {
        const float scale = m_camera.halfHeight() * 2 / static_cast<float>(height());
        m_camera.target += (m_camera.up() * dy - m_camera.right() * dx) * scale;
    } else {
        m_camera.distance = std::clamp(m_camera.distance * std::pow(1.008F, dy), 0.5F, 80.F);
    }
    update();
}

void Viewport::transformTo(QPoint place)
{
    const ViewSettings &view = m_view->get();
    if (view.tool == ViewSettings::Tool::Select)
        return;
    const bool snaps = view.snapping || view.heldSnapping || view.heldGridSnapping;
    const QPoint moved = place - m_pressed;
    const auto dx = static_cast<float>(moved.x());
    const auto dy = static_cast<float>(moved.y());
    const float scale = m_camera.halfHeight() * 2 / static_cast<float>(height());
    QVector3D offset = (m_camera.right() * dx - m_camera.up() * dy) * scale;
    const float grid = snaps ? (view.heldGridSnapping ? 1.F : 0.5F) : 0;
    for (int axis = 0; axis < 3; ++axis)
        offset[axis] = snapped(offset[axis], grid);
    const float angle = snapped(dx * 0.6F, snaps ? 15.F : 0.F);
    const float factor = std::max(0.05F, snapped(1 + dx * 0.006F, snaps ? 0.25F : 0.F));
    m_document->preview([&](Scene &scene) {
        if (view.editPivot) {
            scene.forSelected([&offset](SceneObject &o) { o.pivot += offset; });
            return;
        }
        scene.forSelectedHierarchy([&](SceneObject &object) {
            if (view.tool == ViewSettings::Tool::Move)
                object.transform.position += offset;
            else if (view.tool == ViewSettings::Tool::Rotate)
                object.transform.rotation += QVector3D(0, 0, angle);
            else
                object.transform.scale *= factor;
        });
    });
}

// Pushes the vertices under the brush in or out; the whole stroke is one edit.
void Viewport::sculptAt(QPoint place, bool begins)
{
    const SceneObject *active = m_document->scene().activeMesh();
    if (active == nullptr || m_painted == nullptr)
        return;
    const ViewSettings &view = m_view->get();
    const auto radius = static_cast<float>(view.brushSize);
    const float strength = 0.002F * static_cast<float>(view.brushStrength)
                           * (view.held.contains(QLatin1String("Invert")) ? -1.F : 1.F);
    const QMatrix4x4 world = active->transform.matrix();
    const int id = active->id;
    const auto push = [&](Scene &scene) {
        Mesh &mesh = scene.find(id)->mesh;
        const QVector<QVector3D> normals = MeshEditing::vertexNormals(mesh);
        for (int i = 0; i < mesh.vertices.size(); ++i) {
            const auto shown = m_painted->placeOf(world.map(mesh.vertices.at(i)));
            if (!shown)
                continue;
            const float away = (shown->toVector2D() - QVector2D(place)).length() / radius;
            const bool isFront = QVector3D::dotProduct(world.mapVector(normals.at(i)),
                                                       m_camera.eye() - m_camera.target)
                                 > 0;
            if (away < 1 && isFront)
                mesh.vertices[i] += normals.at(i) * strength * (1 - away * away);
        }
    };
    if (begins)
        m_document->edit(QStringLiteral("Sculpt"), push);
    else
        m_document->adjust(push);
}

void Viewport::pick(QPoint place, bool add)
{
    if (m_painted == nullptr || m_view->get().quadView)
        return;
    const int id = m_painted->objectAt(place);
    m_document->edit(QStringLiteral("Select"), [id, add](Scene &scene) {
        SceneObject *object = scene.find(id);
        if (object != nullptr && !object->selectable)
            object = nullptr;
        if (!add)
            scene.selectOnly({});
        if (object == nullptr)
            return;
        object->selected = !object->selected;
        scene.activeId = object->selected ? object->id : 0;
    });
}

void Viewport::pickFace(QPoint place, bool add)
{
    const SceneObject *active = m_document->scene().activeMesh();
    if (active == nullptr || m_painted == nullptr)
        return;
    const QMatrix4x4 world = active->transform.matrix();
    int nearest = -1;
    float least = 24;
    float depth = 1;
    for (int face = 0; face < active->mesh.faces.size(); ++face) {
        const auto shown = m_painted->placeOf(world.map(MeshEditing::centre(active->mesh, face)));
        if (!shown || active->mesh.faces.at(face).hidden)
            continue;
        const float away = (shown->toVector2D() - QVector2D(place)).length();
        if (away < least - 6 || (away < least + 6 && shown->z() < depth)) {
            least = std::min(least, away);
            depth = shown->z();
            nearest = face;
        }
    }
    const int id = active->id;
    m_document->edit(QStringLiteral("Select Face"), [=](Scene &scene) {
        QSet<int> &selected = scene.find(id)->mesh.selected;
        if (!add)
            selected.clear();
        if (nearest >= 0 && !selected.remove(nearest))
            selected.insert(nearest);
    });
}

void Viewport::zoomToRegion()
{
    m_regionAwaited = false;
    unsetCursor();
    const QRect region = QRect(m_pressed, m_last).normalized();
    if (region.width() < 8 || region.height() < 8)
        return;
    const QPoint off = region.center() - rect().center();
    const float scale = m_camera.halfHeight() * 2 / static_cast<float>(height());
    Camera camera = m_camera;
    camera.target += (m_camera.right() * static_cast<float>(off.x())
                      - m_camera.up() * static_cast<float>(off.y()))
                     * scale;
    camera.distance *= std::max(static_cast<float>(region.width()) / static_cast<float>(width()),
                                static_cast<float>(region.height()) / static_cast<float>(height()));
    camera.distance = std::clamp(camera.distance, 0.5F, 80.F);
    setCamera(camera);
}

} // namespace Studio
