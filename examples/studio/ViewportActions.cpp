#include "ActionTable.h"
#include "Actions.h"
#include "MainWindow.h"
#include "PropertyPanel.h"
#include "Viewport.h"

namespace Studio::Actions {

namespace {

using Change = std::function<void(ViewSettings &)>;

void addViews(ActionTable &table, MainWindow &window)
{
    Viewport &viewport = window.viewport();
    const struct {
        const char *id;
        float yaw;
        float pitch;
    } views[] = {{"2-view-front", 0, 0},  {"2-view-back", 180, 0}, {"2-view-right", 90, 0},
                 {"2-view-left", -90, 0}, {"2-view-top", 0, 90},   {"2-view-bottom", 0, -90}};
    for (const auto &view : views) {
        table.add(view.id, [&viewport, yaw = view.yaw, pitch = view.pitch] {
            viewport.lookFrom(yaw, pitch);
        });
    }
    table.add("2-viewCamera", [&window, &viewport] {
        viewport.lookThrough(window.document().scene().activeCamera);
    });
    table.add("2-togglePerspective", [&viewport] {
        Camera camera = viewport.camera();
        camera.perspective = !camera.perspective;
        viewport.setCamera(camera);
    });
    table.add("2-alignViewToSelected", [&window, &viewport] {
        Camera camera = viewport.camera();
        if (const SceneObject *active = window.document().scene().active()) {
            camera.target = active->pivotPoint();
            camera.yaw = active->transform.rotation.z();
            camera.pitch = 0;
        }
        viewport.setCamera(camera);
    });
}

void addNavigation(ActionTable &table, MainWindow &window)
{
    Viewport &viewport = window.viewport();
    table.add("2-frameAll", [&viewport] { viewport.frameAll(); });
    table.add("2-frameSelected", [&viewport] { viewport.frameSelected(); });
    table.add(
            "2-zoomIn", [&viewport] { viewport.zoom(0.85F); }, ActionTable::Repeat::Yes);
    table.add(
            "2-zoomOut", [&viewport] { viewport.zoom(1 / 0.85F); }, ActionTable::Repeat::Yes);
    table.add("2-zoomRegion", [&viewport] { viewport.awaitRegion(); });
    table.add(
            "2-previousView", [&viewport] { viewport.previousView(); }, ActionTable::Repeat::Yes);
    table.add(
            "2-nextView", [&viewport] { viewport.nextView(); }, ActionTable::Repeat::Yes);
}

void addSettings(ActionTable &table, ViewState &view)
{
    using Shading = ViewSettings::Shading;
    using Tool = ViewSettings::Tool;
    const std::pair<const char *, Change> changes[] = {
            {"2-cycleShading",
             [](ViewSettings &v) {
                 v.shading = static_cast<Shading>((static_cast<int>(v.shading) + 1) % 4);
             }},
            {"2-shadingWireframe", [](ViewSettings &v) { v.shading = Shading::Wireframe; }},
            {"2-shadingSolid", [](ViewSettings &v) { v.shading = Shading::Solid; }},
            {"2-shadingMaterial", [](ViewSettings &v) { v.shading = Shading::Material; }},
            {"2-shadingRendered", [](ViewSettings &v) { v.shading = Shading::Rendered; }},
            {"2-toggleXRay", [](ViewSettings &v) { v.xRay = !v.xRay; }},
            {"2-toggleGrid", [](ViewSettings &v) { v.grid = !v.grid; }},
            {"2-toggleOverlays", [](ViewSettings &v) { v.overlays = !v.overlays; }},
            {"2-toggleQuadView", [](ViewSettings &v) { v.quadView = !v.quadView; }},
            {"2-selectTool", [](ViewSettings &v) { v.tool = Tool::Select; }},
            {"2-moveTool", [](ViewSettings &v) { v.tool = Tool::Move; }},
            {"2-rotateTool", [](ViewSettings &v) { v.tool = Tool::Rotate; }},
            {"2-scaleTool", [](ViewSettings &v) { v.tool = Tool::Scale; }},
            {"2-cyclePivot",
             [](ViewSettings &v) { v.pivot = (v.pivot + 1) % ViewSettings::pivotNames().size(); }},
            {"2-cycleOrientation",
             [](ViewSettings &v) {
                 v.orientation = (v.orientation + 1) % ViewSettings::orientationNames().size();
             }},
            {"2-toggleProportionalEditing",
             [](ViewSettings &v) { v.proportional = !v.proportional; }},
            {"2-cycleFalloff",
             [](ViewSettings &v) {
                 v.proportional = true;
                 v.falloff = (v.falloff + 1) % ViewSettings::falloffNames().size();
             }},
            {"2-toggleSnapping", [](ViewSettings &v) { v.snapping = !v.snapping; }},
            {"2-cycleSnapTarget",
             [](ViewSettings &v) {
                 v.snapping = true;
                 v.snapTarget = (v.snapTarget + 1) % ViewSettings::snapTargetNames().size();
             }},
    };
    for (const auto &change : changes)
        table.add(change.first, [&view, make = change.second] { view.change(make); });
}

void addHeld(ActionTable &table, ViewState &view)
{
    const std::pair<const char *, bool ViewSettings::*> flags[] = {
            {"2-tempOrbit", &ViewSettings::heldOrbit},
            {"2-tempPan", &ViewSettings::heldPan},
            {"2-tempZoom", &ViewSettings::heldZoom},
            {"2-tempSnapping", &ViewSettings::heldSnapping},
            {"2-tempGridSnapping", &ViewSettings::heldGridSnapping},
            {"2-tempHideOverlays", &ViewSettings::heldHideOverlays},
    };
    for (const auto &flag : flags) {
        table.addHeld(flag.first, [&view, field = flag.second](bool held) {
            view.change([field, held](ViewSettings &v) { v.*field = held; });
        });
    }
}

} // namespace

void addViewport(ActionTable &table, MainWindow &window)
{
    Document &document = window.document();
    ViewState &view = window.view();
    addViews(table, window);
    addNavigation(table, window);
    addSettings(table, view);
    addHeld(table, view);
    table.add("2-isolateSelection", [&document, &view] {
        const QSet<int> ids = document.scene().selectedHierarchy();
        view.change(
                [&ids](ViewSettings &v) { v.isolated = v.isolated.isEmpty() ? ids : QSet<int>(); });
    });
    table.add("2-transformNumeric", [&window] {
        window.showDock("propertyDock", true);
        window.properties().editNumbers();
    });
    table.add("2-cursorToSelection", [&document, &view] {
        view.change(
                [&document](ViewSettings &v) { v.cursor = document.scene().selectionCentre(); });
    });
    table.add("2-selectionToCursor", [&document, &view] {
        document.edit(QStringLiteral("Selection to Cursor"), [&view](Scene &scene) {
            const QVector3D offset = view.get().cursor - scene.selectionCentre();
            scene.forSelectedHierarchy(
                    [&offset](SceneObject &o) { o.transform.position += offset; });
        });
    });
}

} // namespace Studio::Actions
