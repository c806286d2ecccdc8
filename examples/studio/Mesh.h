#pragma once

#include <QPointF>
#include <QSet>
#include <QVector3D>
#include <QVector>

namespace Studio {

/// A polygon mesh with a selection of faces. Corners are in counter-clockwise order, seen from
/// outside.
struct Mesh {
    struct Face {
        QVector<int> corners;
        QVector<QPointF> uv; ///< one for each corner
        bool hidden = false;
    };

    QVector<QVector3D> vertices;
    QVector<Face> faces;
    QSet<int> selected; ///< indexes of faces

    bool isEmpty() const { return vertices.isEmpty(); }
};

inline bool operator==(const Mesh::Face &a, const Mesh::Face &b)
{
    return a.corners == b.corners && a.uv == b.uv && a.hidden == b.hidden;
}

inline bool operator==(const Mesh &a, const Mesh &b)
{
    return a.vertices == b.vertices && a.faces == b.faces && a.selected == b.selected;
}

} // namespace Studio
