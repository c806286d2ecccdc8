#include "ActionTable.h"
#include "Actions.h"
#include "MainWindow.h"
#include "UvEditing.h"
#include "UvView.h"
#include "Viewport.h"

namespace Studio::Actions {

void addUv(ActionTable &table, MainWindow &window)
{
    Document &document = window.document();
    ViewState &view = window.view();
    const auto add = [&](const char *id, const QString &name, std::function<void(Mesh &)> change,
                         ActionTable::Repeat repeat = ActionTable::Repeat::No) {
        table.add(
                id,
                [&document, &view, name, change = std::move(change)] {
                    document.edit(name, [&](Scene &scene) {
                        if (scene.activeMesh() == nullptr)
                            return;
                        Mesh &mesh = scene.find(scene.activeId)->mesh;
                        change(mesh);
                        if (view.get().heldPixelSnap)
                            UvEditing::snap(mesh, 64);
                    });
                },
                repeat);
    };
    constexpr auto repeats = ActionTable::Repeat::Yes;
    add("7-unwrap", QStringLiteral("Unwrap"), UvEditing::unwrapAngleBased);
    add("7-smartProject", QStringLiteral("Smart Unwrap"), UvEditing::unwrapFaceByFace);
    add("7-projectFromView", QStringLiteral("Project from View"), [&window](Mesh &mesh) {
        UvEditing::projectFromView(mesh, window.viewport().camera().view());
    });
    add("7-relaxUvs", QStringLiteral("Relax"), UvEditing::relax, repeats);
    add("7-packIslands", QStringLiteral("Pack Islands"), UvEditing::fillSquare);
    add(
            "7-moveUvs", QStringLiteral("Move UVs"),
            [](Mesh &mesh) {
                UvEditing::moveBy(mesh, {0.05, 0});
            },
            repeats);
    add(
            "7-rotateUvs", QStringLiteral("Rotate UVs"),
            [](Mesh &mesh) { UvEditing::rotateBy(mesh, 15); }, repeats);
    add(
            "7-scaleUvs", QStringLiteral("Scale UVs"),
            [](Mesh &mesh) { UvEditing::scaleBy(mesh, 0.9, 0.9); }, repeats);
    add("7-mirrorUvsHorizontal", QStringLiteral("Mirror Horizontally"),
        [](Mesh &mesh) { UvEditing::scaleBy(mesh, -1, 1); });
    add("7-straightenUvs", QStringLiteral("Straighten"),
        [](Mesh &mesh) { UvEditing::snap(mesh, 16); });
    table.add("7-frameSelectedUvs", [&window] { window.uvView().frameSelected(); });
    table.add("7-frameAllUvs", [&window] { window.uvView().frameAll(); });
    table.add("7-showStretching",
              [&view] { view.change([](ViewSettings &v) { v.stretching = !v.stretching; }); });
    table.addHeld("7-tempPixelSnap", [&view](bool held) {
        view.change([held](ViewSettings &v) { v.heldPixelSnap = held; });
    });
}

} // namespace Studio::Actions
