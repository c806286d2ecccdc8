#pragma once

#include "Mesh.h"

namespace Studio {

/// Changes of a mesh and of its selection. They concern the selected faces; without a selection
/// nothing happens.
namespace MeshEditing {

/// The unit vector in which the face looks; null for a face without area.
QVector3D normal(const Mesh &mesh, int face);
/// The unit vectors of all vertices, the mean of their faces'.
QVector<QVector3D> vertexNormals(const Mesh &mesh);
QVector3D centre(const Mesh &mesh, int face);

void selectAll(Mesh &mesh);
void invertSelection(Mesh &mesh);
/// Adds the faces that touch the selection.
void growSelection(Mesh &mesh);
/// Takes away those that touch a face outside.
void shrinkSelection(Mesh &mesh);
/// Adds what hangs together with the selection.
void selectLinked(Mesh &mesh);
/// Leaves those that shrinking takes away.
void selectBoundary(Mesh &mesh);

/// Moves the faces out together along their mean direction, with walls at the rim.
void extrudeRegion(Mesh &mesh, float distance);
/// Moves each face out along its own direction.
void extrudeIndividual(Mesh &mesh, float distance);
/// Gives each face a smaller one of the same plane in it.
void inset(Mesh &mesh, float amount);
/// Each face becomes a quad for each of its corners.
void subdivide(Mesh &mesh);
void triangulate(Mesh &mesh);
/// Puts a tip in each face's middle, a little out.
void poke(Mesh &mesh, float height);
void flipNormals(Mesh &mesh);
void removeFaces(Mesh &mesh);
void mergeAtCentre(Mesh &mesh);
void hideFaces(Mesh &mesh);
void revealFaces(Mesh &mesh);
/// Pulls the vertices of the faces towards the middle of their neighbours.
void smooth(Mesh &mesh);

} // namespace MeshEditing
} // namespace Studio
