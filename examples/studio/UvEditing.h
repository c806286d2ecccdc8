#pragma once

#include "Mesh.h"

#include <QMatrix4x4>
#include <QRectF>

#include <functional>

namespace Studio {

/// Changes of the unwrapping of a mesh. Texture coordinates go from 0 to 1 in both directions.
/// Where faces are selected only they are concerned, otherwise all.
namespace UvEditing {

/// Calls @p change for the coordinates of each face that is concerned.
void forEachFace(Mesh &mesh, const std::function<void(QVector<QPointF> &)> &change);

/// What the coordinates concerned cover.
QRectF bounds(const Mesh &mesh);

/// Six charts: each face goes to that of the axis it looks along.
void unwrapAngleBased(Mesh &mesh);
/// A cell of its own for each face.
void unwrapFaceByFace(Mesh &mesh);
/// As @p view shows the mesh.
void projectFromView(Mesh &mesh, const QMatrix4x4 &view);
/// Moves and enlarges what is concerned until it fills the square.
void fillSquare(Mesh &mesh);
/// Pulls each corner towards the middle of its face.
void relax(Mesh &mesh);
/// Rounds to a grid of that many cells.
void snap(Mesh &mesh, int cells);
void moveBy(Mesh &mesh, QPointF offset);
void rotateBy(Mesh &mesh, double degrees);
void scaleBy(Mesh &mesh, double across, double up);

} // namespace UvEditing
} // namespace Studio
