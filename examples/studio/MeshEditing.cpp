#include "MeshEditing.h"

#include <QHash>
#include <QMap>

#include <algorithm>

namespace Studio::MeshEditing {

namespace {

QVector<int> selectedFaces(const Mesh &mesh)
{
    QVector<int> faces(mesh.selected.begin(), mesh.selected.end());
    std::sort(faces.begin(), faces.end());
    return faces;
}

QSet<int> verticesOf(const Mesh &mesh, const QSet<int> &faces)
{
    QSet<int> vertices;
    for (int face : faces) {
        for (int corner : mesh.faces.at(face).corners)
            vertices.insert(corner);
    }
    return vertices;
}

QSet<int> facesAt(const Mesh &mesh, const QSet<int> &vertices)
{
    QSet<int> faces;
    for (int face = 0; face < mesh.faces.size(); ++face) {
        const QVector<int> &corners = mesh.faces.at(face).corners;
        if (std::any_of(corners.begin(), corners.end(),
                        [&vertices](int corner) { return vertices.contains(corner); }))
            faces.insert(face);
    }
    return faces;
}

QSet<int> allFaces(const Mesh &mesh)
{
    QSet<int> faces;
    for (int face = 0; face < mesh.faces.size(); ++face)
        faces.insert(face);
    return faces;
}

QPointF middle(const QVector<QPointF> &points)
{
    QPointF sum;
    for (const QPointF &point : points)
        sum += point / points.size();
    return sum;
}

/// Puts the faces of @p pieces in the place of @p face: the first there, the others at the end.
void replace(Mesh &mesh, int face, const QVector<Mesh::Face> &pieces, bool selectAllPieces)
{
    mesh.faces[face] = pieces.first();
    for (int i = 1; i < pieces.size(); ++i) {
        if (selectAllPieces)
            mesh.selected.insert(mesh.faces.size());
        mesh.faces.append(pieces.at(i));
    }
}

/// Replaces a face by a new one of the vertices from @p first on, with walls around it.
void raise(Mesh &mesh, int face, int first)
{
    const Mesh::Face old = mesh.faces.at(face);
    const int count = old.corners.size();
    Mesh::Face top = old;
    for (int i = 0; i < count; ++i)
        top.corners[i] = first + i;
    QVector<Mesh::Face> pieces = {top};
    for (int i = 0; i < count; ++i) {
        const int next = (i + 1) % count;
        pieces.append({{old.corners.at(i), old.corners.at(next), first + next, first + i},
                       {old.uv.at(i), old.uv.at(next), old.uv.at(next), old.uv.at(i)},
                       false});
    }
    replace(mesh, face, pieces, false);
}

} // namespace

QVector3D normal(const Mesh &mesh, int face)
{
    // The sum over all edges is right for polygons that are not flat, too.
    const QVector<int> &corners = mesh.faces.at(face).corners;
    QVector3D sum;
    for (int i = 0; i < corners.size(); ++i) {
        sum += QVector3D::crossProduct(mesh.vertices.at(corners.at(i)),
                                       mesh.vertices.at(corners.at((i + 1) % corners.size())));
    }
    return sum.normalized();
}

QVector<QVector3D> vertexNormals(const Mesh &mesh)
{
    QVector<QVector3D> normals(mesh.vertices.size());
    for (int face = 0; face < mesh.faces.size(); ++face) {
        const QVector3D direction = normal(mesh, face);
        for (int corner : mesh.faces.at(face).corners)
            normals[corner] += direction;
    }
    for (QVector3D &direction : normals)
        direction.normalize();
    return normals;
}

QVector3D centre(const Mesh &mesh, int face)
{
    const QVector<int> &corners = mesh.faces.at(face).corners;
    QVector3D sum;
    for (int corner : corners)
        sum += mesh.vertices.at(corner);
    return sum / static_cast<float>(corners.size());
}

void selectAll(Mesh &mesh)
{
    mesh.selected = allFaces(mesh);
}

void invertSelection(Mesh &mesh)
{
    mesh.selected = allFaces(mesh) - mesh.selected;
}

void growSelection(Mesh &mesh)
{
    mesh.selected = facesAt(mesh, verticesOf(mesh, mesh.selected));
}

void shrinkSelection(Mesh &mesh)
{
    mesh.selected -= facesAt(mesh, verticesOf(mesh, allFaces(mesh) - mesh.selected));
}

void selectLinked(Mesh &mesh)
{
    for (int before = -1; before != mesh.selected.size();) {
        before = mesh.selected.size();
        growSelection(mesh);
    }
}

void selectBoundary(Mesh &mesh)
{
    Mesh inner = mesh;
    shrinkSelection(inner);
    mesh.selected -= inner.selected;
}

void extrudeRegion(Mesh &mesh, float distance)
{
    using Edge = QPair<int, int>;
    QMap<Edge, int> rim; // an edge of one selected face, not of two, and that face
    QVector3D direction;
    const QVector<int> faces = selectedFaces(mesh);
    for (int face : faces) {
        direction += normal(mesh, face);
        const QVector<int> &corners = mesh.faces.at(face).corners;
        for (int i = 0; i < corners.size(); ++i) {
            const Edge edge(corners.at(i), corners.at((i + 1) % corners.size()));
            if (rim.remove({edge.second, edge.first}) == 0)
                rim.insert(edge, face);
        }
    }
    direction = direction.isNull() ? QVector3D(0, 0, 1) : direction.normalized();
    QHash<int, int> raised;
    for (int face : faces) {
        for (int &corner : mesh.faces[face].corners) {
            if (!raised.contains(corner)) {
                raised.insert(corner, mesh.vertices.size());
                mesh.vertices.append(mesh.vertices.at(corner) + direction * distance);
            }
            corner = raised.value(corner);
        }
    }
    for (auto edge = rim.cbegin(); edge != rim.cend(); ++edge) {
        const int from = edge.key().first;
        const int to = edge.key().second;
        const QPointF place = middle(mesh.faces.at(edge.value()).uv);
        mesh.faces.append({{from, to, raised.value(to), raised.value(from)},
                           {place, place, place, place},
                           {}});
    }
}

void extrudeIndividual(Mesh &mesh, float distance)
{
    for (int face : selectedFaces(mesh)) {
        const QVector3D out = normal(mesh, face) * distance;
        const int first = mesh.vertices.size();
        for (int corner : QVector<int>(mesh.faces.at(face).corners))
            mesh.vertices.append(mesh.vertices.at(corner) + out);
        raise(mesh, face, first);
    }
}

void inset(Mesh &mesh, float amount)
{
    for (int face : selectedFaces(mesh)) {
        const QVector3D place = centre(mesh, face);
        const int first = mesh.vertices.size();
        for (int corner : QVector<int>(mesh.faces.at(face).corners)) {
            const QVector3D outer = mesh.vertices.at(corner);
            mesh.vertices.append(outer + (place - outer) * amount);
        }
        const QPointF placeUv = middle(mesh.faces.at(face).uv);
        raise(mesh, face, first);
        for (QPointF &point : mesh.faces[face].uv)
            point += (placeUv - point) * static_cast<double>(amount);
    }
}

void subdivide(Mesh &mesh)
{
    QMap<QPair<int, int>, int> middles; // shared by the faces on both sides of an edge
    const auto middleOf = [&mesh, &middles](int a, int b) {
        const QPair<int, int> edge(std::min(a, b), std::max(a, b));
        if (!middles.contains(edge)) {
            middles.insert(edge, mesh.vertices.size());
            mesh.vertices.append((mesh.vertices.at(a) + mesh.vertices.at(b)) / 2);
        }
        return middles.value(edge);
    };
    for (int face : selectedFaces(mesh)) {
        const Mesh::Face old = mesh.faces.at(face);
        const int count = old.corners.size();
        const int tip = mesh.vertices.size();
        mesh.vertices.append(centre(mesh, face));
        const QPointF tipUv = middle(old.uv);
        QVector<Mesh::Face> pieces;
        for (int i = 0; i < count; ++i) {
            const int next = (i + 1) % count;
            const int last = (i + count - 1) % count;
            pieces.append({{old.corners.at(i), middleOf(old.corners.at(i), old.corners.at(next)),
                            tip, middleOf(old.corners.at(last), old.corners.at(i))},
                           {old.uv.at(i), (old.uv.at(i) + old.uv.at(next)) / 2, tipUv,
                            (old.uv.at(last) + old.uv.at(i)) / 2},
                           false});
        }
        replace(mesh, face, pieces, true);
    }
}

void triangulate(Mesh &mesh)
{
    for (int face : selectedFaces(mesh)) {
        const Mesh::Face old = mesh.faces.at(face);
        QVector<Mesh::Face> pieces;
        for (int i = 2; i < old.corners.size(); ++i) {
            pieces.append({{old.corners.at(0), old.corners.at(i - 1), old.corners.at(i)},
                           {old.uv.at(0), old.uv.at(i - 1), old.uv.at(i)},
                           false});
        }
        replace(mesh, face, pieces, true);
    }
}

void poke(Mesh &mesh, float height)
{
    for (int face : selectedFaces(mesh)) {
        const Mesh::Face old = mesh.faces.at(face);
        const int tip = mesh.vertices.size();
        mesh.vertices.append(centre(mesh, face) + normal(mesh, face) * height);
        QVector<Mesh::Face> pieces;
        for (int i = 0; i < old.corners.size(); ++i) {
            const int next = (i + 1) % old.corners.size();
            pieces.append({{old.corners.at(i), old.corners.at(next), tip},
                           {old.uv.at(i), old.uv.at(next), middle(old.uv)},
                           false});
        }
        replace(mesh, face, pieces, true);
    }
}

void flipNormals(Mesh &mesh)
{
    for (int face : selectedFaces(mesh)) {
        std::reverse(mesh.faces[face].corners.begin(), mesh.faces[face].corners.end());
        std::reverse(mesh.faces[face].uv.begin(), mesh.faces[face].uv.end());
    }
}

void removeFaces(Mesh &mesh)
{
    QVector<Mesh::Face> kept;
    for (int face = 0; face < mesh.faces.size(); ++face) {
        if (!mesh.selected.contains(face))
            kept.append(mesh.faces.at(face));
    }
    mesh.faces = kept;
    mesh.selected.clear();
}

void mergeAtCentre(Mesh &mesh)
{
    const QSet<int> vertices = verticesOf(mesh, mesh.selected);
    if (vertices.isEmpty())
        return;
    QVector3D place;
    for (int vertex : vertices)
        place += mesh.vertices.at(vertex) / static_cast<float>(vertices.size());
    for (int vertex : vertices)
        mesh.vertices[vertex] = place;
    removeFaces(mesh);
}

void hideFaces(Mesh &mesh)
{
    for (int face : selectedFaces(mesh))
        mesh.faces[face].hidden = true;
    mesh.selected.clear();
}

void revealFaces(Mesh &mesh)
{
    for (int face = 0; face < mesh.faces.size(); ++face) {
        if (mesh.faces.at(face).hidden) {
            mesh.faces[face].hidden = false;
            mesh.selected.insert(face);
        }
    }
}

void smooth(Mesh &mesh)
{
    QVector<QVector3D> sums(mesh.vertices.size());
    QVector<int> counts(mesh.vertices.size());
    for (int face : selectedFaces(mesh)) {
        const QVector3D place = centre(mesh, face);
        for (int corner : mesh.faces.at(face).corners) {
            sums[corner] += place;
            ++counts[corner];
        }
    }
    for (int i = 0; i < counts.size(); ++i) {
        if (counts.at(i) > 1) {
            const QVector3D target = sums.at(i) / static_cast<float>(counts.at(i));
            mesh.vertices[i] += (target - mesh.vertices.at(i)) * 0.5F;
        }
    }
}

} // namespace Studio::MeshEditing
