#include "ActionTable.h"
#include "Actions.h"
#include "MainWindow.h"
#include "MeshEditing.h"

namespace Studio::Actions {

void addMesh(ActionTable &table, MainWindow &window)
{
    Document &document = window.document();
    ViewState &view = window.view();
    const auto components = [&](const char *id, ViewSettings::Components which) {
        table.add(id, [&view, which] {
            view.change([which](ViewSettings &v) { v.components = which; });
        });
    };
    components("7-vertexMode", ViewSettings::Components::Vertices);
    components("7-edgeMode", ViewSettings::Components::Edges);
    components("7-faceMode", ViewSettings::Components::Faces);
    table.add("7-toggleEdges",
              [&view] { view.change([](ViewSettings &v) { v.edges = !v.edges; }); });

    const auto add = [&](const char *id, const QString &name, std::function<void(Mesh &)> change) {
        table.add(id, [&document, name, change = std::move(change)] {
            document.edit(name, [&change](Scene &scene) {
                if (scene.activeMesh() != nullptr)
                    change(scene.find(scene.activeId)->mesh);
            });
        });
    };
    namespace Edit = MeshEditing;
    add("7-selectLinked", QStringLiteral("Select Linked"), Edit::selectLinked);
    add("7-growSelection", QStringLiteral("Grow Selection"), Edit::growSelection);
    add("7-shrinkSelection", QStringLiteral("Shrink Selection"), Edit::shrinkSelection);
    add("7-selectBoundary", QStringLiteral("Select Boundary Loop"), Edit::selectBoundary);
    add("7-extrudeRegion", QStringLiteral("Extrude Region"),
        [](Mesh &mesh) { Edit::extrudeRegion(mesh, 0.4F); });
    add("7-extrudeIndividual", QStringLiteral("Extrude Individual Faces"),
        [](Mesh &mesh) { Edit::extrudeIndividual(mesh, 0.3F); });
    add("7-extrudeAlongNormals", QStringLiteral("Extrude Along Normals"),
        [](Mesh &mesh) { Edit::extrudeIndividual(mesh, 0.6F); });
    add("7-insetFaces", QStringLiteral("Inset Faces"),
        [](Mesh &mesh) { Edit::inset(mesh, 0.25F); });
    add("7-bevel", QStringLiteral("Bevel"), [](Mesh &mesh) {
        Edit::extrudeIndividual(mesh, 0.08F);
        Edit::inset(mesh, 0.15F);
    });
    add("7-subdivide", QStringLiteral("Subdivide"), Edit::subdivide);
    add("7-knife", QStringLiteral("Knife"), [](Mesh &mesh) { Edit::poke(mesh, 0); });
    add("7-mergeAtCenter", QStringLiteral("Merge at Center"), Edit::mergeAtCentre);
    add("7-deleteComponents", QStringLiteral("Delete Components"), Edit::removeFaces);
    add("7-flipNormals", QStringLiteral("Flip Normals"), Edit::flipNormals);
    add("7-triangulateFaces", QStringLiteral("Triangulate Faces"), Edit::triangulate);
    add("7-hideFaces", QStringLiteral("Hide Faces"), Edit::hideFaces);
    add("7-revealFaces", QStringLiteral("Reveal Faces"), Edit::revealFaces);
}

} // namespace Studio::Actions
