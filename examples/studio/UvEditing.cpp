#include "UvEditing.h"

#include "MeshEditing.h"

#include <QTransform>

#include <algorithm>
#include <cmath>

namespace Studio::UvEditing {

namespace {

bool concerned(const Mesh &mesh, int face)
{
    return mesh.selected.isEmpty() || mesh.selected.contains(face);
}

void transform(Mesh &mesh, const QTransform &change)
{
    forEachFace(mesh, [&change](QVector<QPointF> &uv) {
        for (QPointF &point : uv)
            point = change.map(point);
    });
}

QTransform around(QPointF centre, const QTransform &change)
{
    return QTransform::fromTranslate(-centre.x(), -centre.y()) * change
           * QTransform::fromTranslate(centre.x(), centre.y());
}

/// The chart of a direction and the place of a point in it, from -1 to 1.
QPointF onChart(QVector3D normal, QVector3D point, int &chart)
{
    const float x = std::abs(normal.x());
    const float y = std::abs(normal.y());
    const float z = std::abs(normal.z());
    if (z >= x && z >= y) {
        chart = normal.z() > 0 ? 0 : 1;
        return {point.x(), point.y()};
    }
    if (x >= y) {
        chart = normal.x() > 0 ? 2 : 3;
        return {point.y(), point.z()};
    }
    chart = normal.y() > 0 ? 4 : 5;
    return {point.x(), point.z()};
}

} // namespace

void forEachFace(Mesh &mesh, const std::function<void(QVector<QPointF> &)> &change)
{
    for (int i = 0; i < mesh.faces.size(); ++i) {
        if (concerned(mesh, i))
            change(mesh.faces[i].uv);
    }
}

QRectF bounds(const Mesh &mesh)
{
    QPolygonF all;
    for (int i = 0; i < mesh.faces.size(); ++i) {
        if (concerned(mesh, i))
            all += mesh.faces.at(i).uv;
    }
    return all.boundingRect();
}

void unwrapAngleBased(Mesh &mesh)
{
    constexpr double third = 1.0 / 3;
    constexpr double margin = 0.02;
    for (int i = 0; i < mesh.faces.size(); ++i) {
        if (!concerned(mesh, i))
            continue;
        Mesh::Face &face = mesh.faces[i];
        const QVector3D normal = MeshEditing::normal(mesh, i);
        for (int corner = 0; corner < face.corners.size(); ++corner) {
            int chart = 0;
            const QPointF place = onChart(normal, mesh.vertices.at(face.corners.at(corner)), chart);
            const int column = chart % 3;
            const int row = chart / 3;
            const QPointF cell(column * third, row * 0.5);
            const double across = (std::clamp(place.x(), -1.3, 1.3) / 2.6 + 0.5) * (third - margin);
            const double up = (std::clamp(place.y(), -1.3, 1.3) / 2.6 + 0.5) * (0.5 - margin);
            face.uv[corner] = cell + QPointF(across + margin / 2, up + margin / 2);
        }
    }
}

void unwrapFaceByFace(Mesh &mesh)
{
    const int columns = std::max(
            1, static_cast<int>(std::ceil(std::sqrt(static_cast<double>(mesh.faces.size())))));
    const double size = 1.0 / columns;
    int cell = 0;
    forEachFace(mesh, [&](QVector<QPointF> &uv) {
        const int row = cell / columns;
        const QPointF centre((cell % columns + 0.5) * size, (row + 0.5) * size);
        for (int i = 0; i < uv.size(); ++i) {
            const double angle = 2 * M_PI * (i + 0.5) / uv.size();
            uv[i] = centre + QPointF(std::cos(angle), std::sin(angle)) * size * 0.45;
        }
        ++cell;
    });
}

void projectFromView(Mesh &mesh, const QMatrix4x4 &view)
{
    for (int i = 0; i < mesh.faces.size(); ++i) {
        if (!concerned(mesh, i))
            continue;
        Mesh::Face &face = mesh.faces[i];
        for (int corner = 0; corner < face.corners.size(); ++corner) {
            const QVector3D place = view.map(mesh.vertices.at(face.corners.at(corner)));
            face.uv[corner] = QPointF(place.x(), place.y());
        }
    }
    fillSquare(mesh);
}

void fillSquare(Mesh &mesh)
{
    const QRectF area = bounds(mesh);
    const double extent = std::max({area.width(), area.height(), 1e-6});
    transform(mesh, QTransform::fromTranslate(-area.center().x(), -area.center().y())
                            * QTransform::fromScale(0.96 / extent, 0.96 / extent)
                            * QTransform::fromTranslate(0.5, 0.5));
}

void relax(Mesh &mesh)
{
    forEachFace(mesh, [](QVector<QPointF> &uv) {
        QPointF middle;
        for (const QPointF &point : uv)
            middle += point / uv.size();
        for (QPointF &point : uv)
            point = point * 0.8 + middle * 0.2;
    });
}

void snap(Mesh &mesh, int cells)
{
    forEachFace(mesh, [cells](QVector<QPointF> &uv) {
        for (QPointF &point : uv) {
            point = QPointF(std::round(point.x() * cells) / cells,
                            std::round(point.y() * cells) / cells);
        }
    });
}

void moveBy(Mesh &mesh, QPointF offset)
{
    transform(mesh, QTransform::fromTranslate(offset.x(), offset.y()));
}

void rotateBy(Mesh &mesh, double degrees)
{
    transform(mesh, around(bounds(mesh).center(), QTransform().rotate(degrees)));
}

void scaleBy(Mesh &mesh, double across, double up)
{
    transform(mesh, around(bounds(mesh).center(), QTransform::fromScale(across, up)));
}

} // namespace Studio::UvEditing
