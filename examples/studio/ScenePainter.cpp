#include "ScenePainter.h"

#include "MeshEditing.h"

#include <QLinearGradient>
#include <QVector2D>

#include <algorithm>
#include <cmath>

namespace Studio {

namespace {

const QColor selectionColor(0xff, 0x9c, 0x3a);
const QColor axisColors[] = {QColor(0xe0, 0x55, 0x55), QColor(0x78, 0xb8, 0x4a),
                             QColor(0x4f, 0x8d, 0xe0)};

QVector3D vectorOf(const QColor &color)
{
    return {static_cast<float>(color.redF()), static_cast<float>(color.greenF()),
            static_cast<float>(color.blueF())};
}

QVector3D unit(int axis)
{
    return {axis == 0 ? 1.F : 0.F, axis == 1 ? 1.F : 0.F, axis == 2 ? 1.F : 0.F};
}

} // namespace

ScenePainter::ScenePainter(const Scene &scene, const ViewSettings &settings, const Camera &camera,
                           QSize size)
    : m_scene(scene),
      m_settings(settings),
      m_camera(camera),
      m_size(size),
      m_rasterizer(size, settings.fineness),
      m_light(QVector3D(0.45F, -0.55F, 0.75F).normalized())
{
    const float aspect =
            static_cast<float>(size.width()) / static_cast<float>(std::max(1, size.height()));
    m_rasterizer.setCamera(camera.projection(aspect) * camera.view());
    if (settings.shading == ViewSettings::Shading::Solid) // as if the lamp were on the head
        m_light = (camera.right() * 0.45F + camera.up() * 0.65F
                   + (camera.eye() - camera.target).normalized() * 0.8F)
                          .normalized();
}

bool ScenePainter::isShown(const SceneObject &object) const
{
    if (m_forRender)
        return object.visible && object.renderable;
    return object.visible
           && (m_settings.isolated.isEmpty() || m_settings.isolated.contains(object.id));
}

bool ScenePainter::isEdited(const SceneObject &object) const
{
    return object.id == m_scene.activeId && m_settings.mode == QLatin1String("Mesh");
}

void ScenePainter::paint(QPainter &painter)
{
    painter.setRenderHint(QPainter::Antialiasing);
    drawBackground(painter);
    drawMeshes();
    if (hasOverlays()) {
        m_rasterizer.outline(
                [this](int id) {
                    const SceneObject *object = m_scene.find(id);
                    return object != nullptr && object->selected;
                },
                selectionColor.rgb(), 3);
    }
    painter.drawImage(0, 0, m_rasterizer.picture());
    if (hasOverlays() && m_settings.grid)
        drawGrid(painter);
    drawEdges(painter);
    if (!hasOverlays())
        return;
    drawMarks(painter);
    drawCursor(painter);
    drawGizmo(painter);
    drawAxes(painter);
}

QImage ScenePainter::renderImage()
{
    m_forRender = true;
    QImage image(m_size, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    drawMeshes();
    painter.drawImage(0, 0, m_rasterizer.picture());
    return image;
}

void ScenePainter::drawBackground(QPainter &painter) const
{
    const bool rendered = m_settings.shading == ViewSettings::Shading::Rendered;
    QLinearGradient gradient(0, 0, 0, m_size.height());
    gradient.setColorAt(0, rendered ? QColor(0x6c, 0x7b, 0x8e) : QColor(0x47, 0x49, 0x4d));
    gradient.setColorAt(1, rendered ? QColor(0x36, 0x38, 0x3c) : QColor(0x33, 0x35, 0x38));
    painter.fillRect(QRect(QPoint(0, 0), m_size), gradient);
}

QVector3D ScenePainter::baseColor(const SceneObject &object) const
{
    if (m_settings.shading == ViewSettings::Shading::Solid && !m_forRender)
        return QVector3D(0.56F, 0.56F, 0.57F) + vectorOf(object.color) * 0.2F;
    return vectorOf(object.color);
}

QVector3D ScenePainter::shade(const QVector3D &normal, const QVector3D &color) const
{
    const float facing = QVector3D::dotProduct(normal, m_light);
    const bool rendered = m_forRender || m_settings.shading == ViewSettings::Shading::Rendered;
    if (!rendered)
        return color * (0.26F + 0.78F * std::pow(facing * 0.5F + 0.5F, 1.6F));
    const QVector3D sky = QVector3D(0.20F, 0.24F, 0.32F) * (normal.z() * 0.5F + 0.6F);
    const QVector3D sun = QVector3D(1.0F, 0.92F, 0.8F) * std::max(0.F, facing);
    const QVector3D half = (m_light + (m_camera.eye() - m_camera.target).normalized()).normalized();
    const float gloss = std::pow(std::max(0.F, QVector3D::dotProduct(normal, half)), 40.F) * 0.35F;
    return color * (sky + sun) + QVector3D(gloss, gloss, gloss);
}

void ScenePainter::drawMeshes()
{
    if (m_settings.shading == ViewSettings::Shading::Wireframe && !m_forRender)
        return;
    for (const SceneObject &object : m_scene.objects) {
        if (!object.mesh.isEmpty() && isShown(object))
            drawMesh(object);
    }
}

void ScenePainter::drawMesh(const SceneObject &object)
{
    const QMatrix4x4 world = object.transform.matrix();
    const QMatrix3x3 turn = world.normalMatrix();
    const auto turned = [&turn](const QVector3D &v) {
        return QVector3D(turn(0, 0) * v.x() + turn(0, 1) * v.y() + turn(0, 2) * v.z(),
                         turn(1, 0) * v.x() + turn(1, 1) * v.y() + turn(1, 2) * v.z(),
                         turn(2, 0) * v.x() + turn(2, 1) * v.y() + turn(2, 2) * v.z())
                .normalized();
    };
    QVector<QVector4D> places;
    for (const QVector3D &vertex : object.mesh.vertices)
        places.append(m_rasterizer.toClip(world.map(vertex)));
    const QVector<QVector3D> normals =
            object.smooth ? MeshEditing::vertexNormals(object.mesh) : QVector<QVector3D>();
    const float alpha = m_settings.xRay && !m_forRender ? 0.45F : 1;
    for (int face = 0; face < object.mesh.faces.size(); ++face) {
        const Mesh::Face &polygon = object.mesh.faces.at(face);
        if (polygon.hidden && !m_forRender)
            continue;
        QVector3D color = baseColor(object);
        if (isEdited(object) && object.mesh.selected.contains(face) && hasOverlays())
            color = color * 0.35F + vectorOf(selectionColor) * 0.65F;
        QVector3D normal = turned(MeshEditing::normal(object.mesh, face));
        std::vector<Rasterizer::Corner> corners;
        for (int corner : polygon.corners) {
            if (object.smooth)
                normal = turned(normals.at(corner));
            corners.push_back({places.at(corner), shade(normal, color)});
        }
        m_rasterizer.drawPolygon(std::move(corners), object.id, alpha);
    }
}

void ScenePainter::drawLine(QPainter &painter, QVector3D from, QVector3D to, const QPen &pen,
                            bool showHidden) const
{
    if (!m_rasterizer.toPicture(from, to))
        return;
    painter.setPen(pen);
    const auto point = [](const QVector3D &place) { return place.toPointF(); };
    if (showHidden) {
        painter.drawLine(point(from), point(to));
        return;
    }
    // In short pieces, each of which is either before or behind the objects.
    constexpr float pieceLength = 5;
    const float length = (to.toVector2D() - from.toVector2D()).length();
    const int pieces = std::clamp(static_cast<int>(length / pieceLength), 1, 400);
    const QVector3D step = (to - from) / static_cast<float>(pieces);
    int start = -1;
    for (int i = 0; i <= pieces; ++i) {
        const bool seen =
                i < pieces && !m_rasterizer.isHidden(from + step * (static_cast<float>(i) + 0.5F));
        if (seen && start < 0)
            start = i;
        if (!seen && start >= 0) {
            painter.drawLine(point(from + step * static_cast<float>(start)),
                             point(from + step * static_cast<float>(i)));
            start = -1;
        }
    }
}

void ScenePainter::drawGrid(QPainter &painter) const
{
    constexpr int reach = 10;
    for (int i = -reach; i <= reach; ++i) {
        const QColor color(255, 255, 255, i % 5 == 0 ? 48 : 24);
        const auto at = static_cast<float>(i);
        // A little above the ground, which lies in the same plane.
        drawLine(painter, {at, -reach, 0.004F}, {at, reach, 0.004F},
                 QPen(i == 0 ? axisColors[1] : color, 1), false);
        drawLine(painter, {-reach, at, 0.004F}, {reach, at, 0.004F},
                 QPen(i == 0 ? axisColors[0] : color, 1), false);
    }
}

void ScenePainter::drawEdges(QPainter &painter) const
{
    const bool wireframe = m_settings.shading == ViewSettings::Shading::Wireframe;
    for (const SceneObject &object : m_scene.objects) {
        const bool edited = isEdited(object) && hasOverlays() && m_settings.edges;
        if (object.mesh.isEmpty() || !isShown(object) || (!wireframe && !edited))
            continue;
        const QColor plain = wireframe ? QColor(200, 204, 210, 130) : QColor(20, 22, 24, 170);
        const bool marked = object.selected && wireframe && !edited && hasOverlays();
        const QMatrix4x4 world = object.transform.matrix();
        for (int face = 0; face < object.mesh.faces.size(); ++face) {
            const Mesh::Face &polygon = object.mesh.faces.at(face);
            if (polygon.hidden)
                continue;
            const bool chosen = marked || (edited && object.mesh.selected.contains(face));
            const QPen pen(chosen ? selectionColor : plain, 1);
            for (int i = 0; i < polygon.corners.size(); ++i) {
                const int next = polygon.corners.at((i + 1) % polygon.corners.size());
                drawLine(painter, world.map(object.mesh.vertices.at(polygon.corners.at(i))),
                         world.map(object.mesh.vertices.at(next)), pen,
                         wireframe || m_settings.xRay);
            }
        }
        if (edited && m_settings.components != ViewSettings::Components::Edges)
            drawVertices(painter, object);
    }
}

void ScenePainter::drawVertices(QPainter &painter, const SceneObject &object) const
{
    const QMatrix4x4 world = object.transform.matrix();
    const auto dot = [&](QVector3D point, const QColor &color) {
        const auto place = m_rasterizer.toPicture(world.map(point));
        if (place && !m_rasterizer.isHidden(*place - QVector3D(0, 0, 0.002F)))
            painter.fillRect(QRectF(place->toPointF() - QPointF(1.5, 1.5), QSizeF(3, 3)), color);
    };
    const bool faces = m_settings.components == ViewSettings::Components::Faces;
    for (int face = 0; face < object.mesh.faces.size(); ++face) {
        const Mesh::Face &polygon = object.mesh.faces.at(face);
        const QColor color =
                object.mesh.selected.contains(face) ? selectionColor : QColor(24, 26, 28, 120);
        if (polygon.hidden)
            continue;
        if (faces) {
            dot(MeshEditing::centre(object.mesh, face), color);
            continue;
        }
        for (int corner : polygon.corners)
            dot(object.mesh.vertices.at(corner), color);
    }
}

void ScenePainter::drawMarks(QPainter &painter) const
{
    for (const SceneObject &object : m_scene.objects) {
        if (isShown(object) && object.mesh.isEmpty() && !object.isHolder())
            drawMark(painter, object);
    }
}

void ScenePainter::drawMark(QPainter &painter, const SceneObject &object) const
{
    const QPen pen(object.selected ? selectionColor : QColor(0xd8, 0xd8, 0xc8), 1.3);
    const QMatrix4x4 world = object.transform.matrix();
    const auto line = [&](QVector3D a, QVector3D b) {
        drawLine(painter, world.map(a), world.map(b), pen, false);
    };
    if (object.kind == SceneObject::Kind::Camera) {
        const QVector3D corners[] = {{-0.5F, -0.3F, -0.9F},
                                     {0.5F, -0.3F, -0.9F},
                                     {0.5F, 0.3F, -0.9F},
                                     {-0.5F, 0.3F, -0.9F}};
        for (int i = 0; i < 4; ++i) {
            line({0, 0, 0}, corners[i]);
            line(corners[i], corners[(i + 1) % 4]);
        }
        line({-0.2F, 0.35F, -0.9F}, {0, 0.6F, -0.9F});
        line({0.2F, 0.35F, -0.9F}, {0, 0.6F, -0.9F});
        return;
    }
    const float size = object.kind == SceneObject::Kind::Joint ? 0.18F : 0.3F;
    for (int axis = 0; axis < 3; ++axis)
        line(unit(axis) * -size, unit(axis) * size);
    const auto place = m_rasterizer.toPicture(object.transform.position);
    if (place && !m_rasterizer.isHidden(*place)) {
        painter.setPen(pen);
        painter.setBrush(Qt::NoBrush);
        painter.drawEllipse(place->toPointF(), 6, 6);
    }
    if (const SceneObject *parent = m_scene.find(object.parent)) {
        if (parent->kind == SceneObject::Kind::Joint)
            drawLine(painter, parent->transform.position, object.transform.position, pen, true);
    }
}

void ScenePainter::drawCursor(QPainter &painter) const
{
    const auto place = m_rasterizer.toPicture(m_settings.cursor);
    if (!place)
        return;
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(QColor(0xf2, 0x6d, 0x6d), 1.2, Qt::DashLine));
    painter.drawEllipse(place->toPointF(), 8, 8);
    painter.setPen(QPen(QColor(0xe8, 0xe8, 0xe8), 1));
    for (const QPointF &direction : {QPointF(1, 0), QPointF(-1, 0), QPointF(0, 1), QPointF(0, -1)})
        painter.drawLine(place->toPointF() + direction * 4, place->toPointF() + direction * 13);
}

void ScenePainter::drawGizmo(QPainter &painter) const
{
    using Tool = ViewSettings::Tool;
    if (m_settings.tool == Tool::Select || m_scene.selectedIds().isEmpty())
        return;
    const QVector3D centre = m_scene.selectionCentre();
    const float size = m_camera.distance * 0.11F;
    const auto middle = m_rasterizer.toPicture(centre);
    for (int axis = 0; axis < 3 && middle; ++axis) {
        const auto end = m_rasterizer.toPicture(centre + unit(axis) * size);
        if (!end)
            continue;
        painter.setPen(QPen(axisColors[axis], 2.2));
        painter.setBrush(axisColors[axis]);
        if (m_settings.tool == Tool::Rotate) {
            QPolygonF circle;
            for (int i = 0; i <= 48; ++i) {
                const float angle = static_cast<float>(i) * static_cast<float>(M_PI) / 24;
                const QVector3D on = unit((axis + 1) % 3) * std::cos(angle)
                                     + unit((axis + 2) % 3) * std::sin(angle);
                if (const auto place = m_rasterizer.toPicture(centre + on * size))
                    circle.append(place->toPointF());
            }
            painter.setBrush(Qt::NoBrush);
            painter.drawPolyline(circle);
            continue;
        }
        painter.drawLine(middle->toPointF(), end->toPointF());
        const QRectF tip(end->toPointF() - QPointF(4, 4), QSizeF(8, 8));
        if (m_settings.tool == Tool::Scale)
            painter.drawRect(tip);
        else
            painter.drawEllipse(tip);
    }
}

void ScenePainter::drawAxes(QPainter &painter) const
{
    const QPointF corner(m_size.width() - 44, 44);
    const QMatrix4x4 view = m_camera.view();
    for (int axis = 0; axis < 3; ++axis) {
        const QVector3D direction = view.mapVector(unit(axis));
        const QPointF end = corner + QPointF(direction.x(), -direction.y()) * 26;
        painter.setPen(QPen(axisColors[axis], 2));
        painter.drawLine(corner, end);
        painter.setBrush(axisColors[axis]);
        painter.drawEllipse(end, 7, 7);
        painter.setPen(QColor(0x20, 0x20, 0x20));
        painter.drawText(QRectF(end - QPointF(8, 8), QSizeF(16, 16)), Qt::AlignCenter,
                         QString(QLatin1Char(static_cast<char>('X' + axis))));
    }
}

} // namespace Studio
