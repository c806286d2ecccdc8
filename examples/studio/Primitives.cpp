#include "Primitives.h"

#include "UvEditing.h"

#include <QtMath>

namespace Studio {

namespace {

QVector3D onCircle(int step, int steps, float radius, float height)
{
    const float angle =
            2 * static_cast<float>(M_PI) * static_cast<float>(step) / static_cast<float>(steps);
    return {radius * std::cos(angle), radius * std::sin(angle), height};
}

void addFace(Mesh &mesh, const QVector<int> &corners)
{
    mesh.faces.append({corners, QVector<QPointF>(corners.size()), false});
}

/// Joins two rings of vertices by quads; the second lies above the first.
void addBand(Mesh &mesh, int lower, int upper, int steps)
{
    for (int i = 0; i < steps; ++i) {
        const int next = (i + 1) % steps;
        addFace(mesh, {lower + i, lower + next, upper + next, upper + i});
    }
}

/// Joins a ring of vertices to a point above it.
void addCap(Mesh &mesh, int ring, int tip, int steps)
{
    for (int i = 0; i < steps; ++i)
        addFace(mesh, {ring + i, ring + (i + 1) % steps, tip});
}

QVector<int> ring(int first, int steps, bool upwards)
{
    QVector<int> corners;
    for (int i = 0; i < steps; ++i)
        corners.append(first + (upwards ? i : steps - 1 - i));
    return corners;
}

Mesh cube()
{
    Mesh mesh;
    for (int i = 0; i < 8; ++i) {
        mesh.vertices.append(QVector3D((i & 1) != 0 ? 1.F : -1.F, (i & 2) != 0 ? 1.F : -1.F,
                                       (i & 4) != 0 ? 1.F : -1.F));
    }
    addFace(mesh, {0, 2, 3, 1});
    addFace(mesh, {4, 5, 7, 6});
    addFace(mesh, {0, 1, 5, 4});
    addFace(mesh, {1, 3, 7, 5});
    addFace(mesh, {3, 2, 6, 7});
    addFace(mesh, {2, 0, 4, 6});
    return mesh;
}

Mesh sphere()
{
    constexpr int steps = 28;
    constexpr int rings = 13;
    Mesh mesh;
    for (int r = 0; r < rings; ++r) {
        const float angle = static_cast<float>(M_PI)
                            * (static_cast<float>(r + 1) / static_cast<float>(rings + 1) - 0.5F);
        for (int i = 0; i < steps; ++i)
            mesh.vertices.append(onCircle(i, steps, std::cos(angle), std::sin(angle)));
        if (r > 0)
            addBand(mesh, (r - 1) * steps, r * steps, steps);
    }
    mesh.vertices.append(QVector3D(0, 0, 1));
    mesh.vertices.append(QVector3D(0, 0, -1));
    addCap(mesh, (rings - 1) * steps, rings * steps, steps);
    for (int i = 0; i < steps; ++i)
        addFace(mesh, {(i + 1) % steps, i, rings * steps + 1});
    return mesh;
}

Mesh cylinder()
{
    constexpr int steps = 28;
    Mesh mesh;
    for (int i = 0; i < steps; ++i)
        mesh.vertices.append(onCircle(i, steps, 1, -1));
    for (int i = 0; i < steps; ++i)
        mesh.vertices.append(onCircle(i, steps, 1, 1));
    addBand(mesh, 0, steps, steps);
    addFace(mesh, ring(0, steps, false));
    addFace(mesh, ring(steps, steps, true));
    return mesh;
}

Mesh cone()
{
    constexpr int steps = 28;
    Mesh mesh;
    for (int i = 0; i < steps; ++i)
        mesh.vertices.append(onCircle(i, steps, 1, -1));
    mesh.vertices.append(QVector3D(0, 0, 1));
    addCap(mesh, 0, steps, steps);
    addFace(mesh, ring(0, steps, false));
    return mesh;
}

Mesh torus()
{
    constexpr int around = 32;
    constexpr int tube = 14;
    Mesh mesh;
    for (int i = 0; i < around; ++i) {
        for (int j = 0; j < tube; ++j) {
            const QVector3D section = onCircle(j, tube, 0.35F, 0);
            const QVector3D centre = onCircle(i, around, 0.85F + section.x(), 0);
            mesh.vertices.append({centre.x(), centre.y(), section.y()});
        }
    }
    for (int i = 0; i < around; ++i) {
        for (int j = 0; j < tube; ++j) {
            const int next = (i + 1) % around;
            const int up = (j + 1) % tube;
            addFace(mesh, {i * tube + j, next * tube + j, next * tube + up, i * tube + up});
        }
    }
    return mesh;
}

Mesh plane()
{
    constexpr int cells = 6;
    Mesh mesh;
    for (int y = 0; y <= cells; ++y) {
        for (int x = 0; x <= cells; ++x) {
            mesh.vertices.append({2 * static_cast<float>(x) / cells - 1,
                                  2 * static_cast<float>(y) / cells - 1, 0});
        }
    }
    for (int y = 0; y < cells; ++y) {
        for (int x = 0; x < cells; ++x) {
            const int corner = y * (cells + 1) + x;
            addFace(mesh, {corner, corner + 1, corner + cells + 2, corner + cells + 1});
        }
    }
    return mesh;
}

Mesh shapeOf(Primitive primitive)
{
    switch (primitive) {
    case Primitive::Cube:
        return cube();
    case Primitive::Sphere:
        return sphere();
    case Primitive::Cylinder:
        return cylinder();
    case Primitive::Cone:
        return cone();
    case Primitive::Torus:
        return torus();
    case Primitive::Plane:
        return plane();
    }
    return {};
}

} // namespace

QString primitiveName(Primitive primitive)
{
    switch (primitive) {
    case Primitive::Cube:
        return QStringLiteral("Cube");
    case Primitive::Sphere:
        return QStringLiteral("Sphere");
    case Primitive::Cylinder:
        return QStringLiteral("Cylinder");
    case Primitive::Cone:
        return QStringLiteral("Cone");
    case Primitive::Torus:
        return QStringLiteral("Torus");
    case Primitive::Plane:
        return QStringLiteral("Plane");
    }
    return {};
}

Mesh makePrimitive(Primitive primitive)
{
    Mesh mesh = shapeOf(primitive);
    UvEditing::unwrapAngleBased(mesh);
    return mesh;
}

} // namespace Studio
