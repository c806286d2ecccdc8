#include "MeshEditing.h"
#include "Primitives.h"
#include "Text.h"

#include <QtTest>

#include <functional>
#include <utility>
#include <vector>

using namespace Studio;

class StudioPartsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void meshStaysClosed();
};

// Each edge of a closed surface belongs to two faces that go along it in opposite directions.
void StudioPartsTest::meshStaysClosed()
{
    const auto isClosed = [](const Mesh &mesh) {
        QMap<QPair<int, int>, int> edges;
        for (const Mesh::Face &face : mesh.faces) {
            for (int i = 0; i < face.corners.size(); ++i)
                ++edges[{face.corners.at(i), face.corners.at((i + 1) % face.corners.size())}];
        }
        return std::all_of(edges.keyBegin(), edges.keyEnd(), [&edges](const auto &edge) {
            return edges.value(edge) == 1 && edges.value({edge.second, edge.first}) == 1;
        });
    };
    using Step = std::pair<const char *, std::function<void(Mesh &)>>;
    const std::vector<Step> steps = {
            {"made",
             [](Mesh &mesh) {
                 mesh.selected = {1, 2};
             }},
            {"region extruded", [](Mesh &mesh) { MeshEditing::extrudeRegion(mesh, 0.3F); }},
            {"faces extruded", [](Mesh &mesh) { MeshEditing::extrudeIndividual(mesh, 0.3F); }},
            {"inset", [](Mesh &mesh) { MeshEditing::inset(mesh, 0.3F); }},
            {"triangulated", MeshEditing::triangulate},
            {"poked", [](Mesh &mesh) { MeshEditing::poke(mesh, 0.1F); }},
            {"all selected", MeshEditing::selectAll},
            {"subdivided", [](Mesh &mesh) { MeshEditing::subdivide(mesh); }},
            {"flipped", MeshEditing::flipNormals}};
    for (Primitive primitive : allPrimitives) {
        if (primitive == Primitive::Plane)
            continue;
        Mesh mesh = makePrimitive(primitive);
        for (const auto &[name, change] : steps) {
            change(mesh);
            QVERIFY2(isClosed(mesh), qPrintable(primitiveName(primitive) + s(": ") + s(name)));
        }
    }
}

QTEST_GUILESS_MAIN(StudioPartsTest)
#include "tst_StudioParts.moc"
