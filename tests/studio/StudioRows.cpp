#include "StudioRows.h"

#include "MainWindow.h"
#include "NodeView.h"
#include "Outliner.h"
#include "RenderView.h"
#include "Timeline.h"
#include "Viewport.h"

using namespace Studio;

namespace {

using Prepare = std::function<void(MainWindow &)>;

/// Selects objects by their names.
Prepare objects(const QStringList &names)
{
    return [names](MainWindow &window) {
        window.document().edit(QStringLiteral("Select"), [&names](Scene &scene) {
            QVector<int> ids;
            for (const QString &name : names) {
                for (const SceneObject &object : qAsConst(scene.objects)) {
                    if (object.name == name)
                        ids.append(object.id);
                }
            }
            scene.selectOnly(ids);
        });
    };
}

Prepare object(const char *name)
{
    return objects({QString::fromLatin1(name)});
}

Prepare mode(const char *name)
{
    return [name](MainWindow &window) { window.setMode(QString::fromLatin1(name)); };
}

/// Selects some faces at the side of the sphere that is seen.
void faces(MainWindow &window)
{
    window.setMode(QStringLiteral("Mesh"));
    window.document().edit(QStringLiteral("Select"), [](Scene &scene) {
        QSet<int> &selected = scene.find(scene.activeId)->mesh.selected;
        for (int row = 5; row < 9; ++row) {
            for (int column = 18; column < 24; ++column)
                selected.insert(row * 28 + column);
        }
    });
}

void nodes(MainWindow &window)
{
    window.document().edit(QStringLiteral("Select"), [](Scene &scene) {
        scene.graph.selectOnly({2, 3});
    });
}

void hidden(MainWindow &window)
{
    window.document().edit(QStringLiteral("Hide"), [](Scene &scene) {
        scene.forSelected([](SceneObject &o) { o.visible = false; });
    });
}

void keyed(MainWindow &window)
{
    object("Torus")(window);
    window.timeline().goTo(60);
}

void marked(MainWindow &window)
{
    window.document().edit(QStringLiteral("Mark"), [](Scene &scene) { scene.markers = {20, 90}; });
    window.timeline().goTo(50);
}

void atFrame(MainWindow &window)
{
    window.timeline().goTo(33);
}

void zoomed(MainWindow &window)
{
    window.viewport().zoom(0.5F);
}

void wentBack(MainWindow &window)
{
    window.viewport().zoom(0.5F);
    window.viewport().previousView();
}

void undone(MainWindow &window)
{
    hidden(window);
    window.document().undo();
}

void rendered(MainWindow &window)
{
    window.renderView().render();
}

const Prepare nothing;

std::vector<StudioRow> objectRows()
{
    const Prepare two = objects({QStringLiteral("Cone"), QStringLiteral("Cube")});
    return {
            {"2-addPrimitive", "viewport", nothing},
            {"2-addLight", "viewport", nothing},
            {"2-addCamera", "viewport", nothing},
            {"2-duplicateObject", "viewport", nothing},
            {"2-arrayDuplicate", "viewport", nothing},
            {"2-deleteObject", "viewport", nothing},
            {"2-groupObjects", "viewport", two},
            {"2-ungroupObjects", "viewport", object("Props")},
            {"2-parentObjects", "viewport", two},
            {"2-clearParent", "viewport", nothing},
            {"2-selectParent", "viewport", nothing},
            {"2-selectChildren", "viewport", object("Props")},
            {"2-joinObjects", "viewport", two},
            {"2-mirrorObject", "viewport", object("Cube")},
            {"2-freezeTransforms", "viewport", nothing},
            {"2-resetTransforms", "viewport", nothing},
            {"2-alignObjects", "viewport", two},
            {"2-addModifier", "viewport", nothing},
            {"2-shadeSmooth", "viewport", object("Cone")},
            {"2-hideObject", "viewport", nothing},
            {"2-hideUnselected", "viewport", nothing},
            {"2-showAll", "viewport", hidden},
            {"2-editPivot", "viewport", nothing},
            {"2-enterEditMode", "viewport", nothing},
    };
}

std::vector<StudioRow> viewportRows()
{
    std::vector<StudioRow> rows = {{"2-previousView", "viewport", zoomed},
                                   {"2-nextView", "viewport", wentBack}};
    for (const char *id :
         {"2-frameAll",          "2-frameSelected",     "2-zoomIn",
          "2-zoomOut",           "2-zoomRegion",        "2-view-front",
          "2-view-back",         "2-view-right",        "2-view-left",
          "2-view-top",          "2-view-bottom",       "2-viewCamera",
          "2-togglePerspective", "2-toggleQuadView",    "2-alignViewToSelected",
          "2-cycleShading",      "2-shadingWireframe",  "2-shadingMaterial",
          "2-shadingRendered",   "2-toggleXRay",        "2-toggleGrid",
          "2-toggleOverlays",    "2-isolateSelection",  "2-moveTool",
          "2-rotateTool",        "2-scaleTool",         "2-transformNumeric",
          "2-cyclePivot",        "2-cycleOrientation",  "2-toggleProportionalEditing",
          "2-cycleFalloff",      "2-toggleSnapping",    "2-cycleSnapTarget",
          "2-cursorToSelection", "2-selectionToCursor", "12-renderImage"})
        rows.push_back({id, "viewport", nothing});
    return rows;
}

std::vector<StudioRow> windowRows()
{
    std::vector<StudioRow> rows = {{"1-undo", "viewport", hidden}, {"1-redo", "viewport", undone}};
    for (const char *id : {"1-newScene",
                           "1-selectAll",
                           "1-deselectAll",
                           "1-invertSelection",
                           "1-cut",
                           "1-undoHistory",
                           "1-findCommand",
                           "1-preferences",
                           "1-toggleFullScreen",
                           "1-maximizePane",
                           "1-hideAllPanels",
                           "1-toggleToolShelf",
                           "1-togglePropertyPanel",
                           "1-showConsole",
                           "1-showHotkeyEditor",
                           "1-workspaceSculpting",
                           "1-workspaceUv",
                           "1-workspaceShading",
                           "1-nextWorkspace",
                           "1-previousWorkspace"})
        rows.push_back({id, "viewport", nothing});
    return rows;
}

std::vector<StudioRow> meshRows()
{
    std::vector<StudioRow> rows;
    for (const char *id :
         {"7-vertexMode", "7-edgeMode", "7-toggleEdges", "7-selectLinked", "7-growSelection",
          "7-shrinkSelection", "7-selectBoundary", "7-extrudeRegion", "7-extrudeIndividual",
          "7-insetFaces", "7-bevel", "7-subdivide", "7-knife", "7-mergeAtCenter",
          "7-deleteComponents", "7-flipNormals", "7-triangulateFaces", "7-hideFaces"})
        rows.push_back({id, "viewport", faces});
    for (const char *id : {"7-brushClay", "7-increaseBrushSize", "7-decreaseBrushSize",
                           "7-increaseBrushStrength", "7-toggleSymmetry", "7-subdivideSculpt"})
        rows.push_back({id, "viewport", mode("Sculpting")});
    for (const char *id : {"7-paintBrush", "7-swapColors", "7-paintLargerBrush"})
        rows.push_back({id, "viewport", mode("Texture Paint")});
    for (const char *id :
         {"7-smartProject", "7-projectFromView", "7-relaxUvs", "7-packIslands", "7-moveUvs",
          "7-rotateUvs", "7-scaleUvs", "7-straightenUvs", "7-showStretching"})
        rows.push_back({id, "uvView", nothing});
    rows.push_back({"7-frameSelectedUvs", "uvView", faces});
    rows.push_back({"7-mirrorUvsHorizontal", "uvView", faces});
    return rows;
}

std::vector<StudioRow> otherRows()
{
    std::vector<StudioRow> rows;
    for (const char *id : {"12-addNode", "12-zoomInGraph", "12-zoomOutGraph"})
        rows.push_back({id, "nodeView", nothing});
    for (const char *id : {"12-duplicateNodes", "12-deleteNodes", "12-deleteAndReconnect",
                           "12-muteNodes", "12-previewNode", "12-groupNodes", "12-connectNodes",
                           "12-disconnectNodes", "12-insertReroute", "12-alignNodes",
                           "12-arrangeNodes", "12-frameNodes", "12-frameSelectedNodes"})
        rows.push_back({id, "nodeView", nodes});
    for (const char *id :
         {"12-playPause", "12-playReverse", "12-nextFrame", "12-jumpToEnd", "12-toggleLoopPlayback",
          "12-insertKeyframe", "12-toggleAutoKey", "12-addMarker"})
        rows.push_back({id, "timeline", nothing});
    for (const char *id : {"12-nextKeyframe", "12-previousKeyframe", "12-deleteKeyframes",
                           "12-duplicateKeyframes", "12-moveKeyframes"})
        rows.push_back({id, "timeline", keyed});
    for (const char *id : {"12-nextMarker", "12-previousMarker"})
        rows.push_back({id, "timeline", marked});
    for (const char *id :
         {"12-previousFrame", "12-jumpToStart", "12-setRangeStart", "12-setRangeEnd"})
        rows.push_back({id, "timeline", atFrame});
    for (const char *id : {"12-deleteCurveKeys", "12-moveCurveKeys"})
        rows.push_back({id, "graphView", keyed});
    for (const char *id :
         {"12-collapseOne", "12-collapseAll", "12-filterByName", "12-renameItem",
          "12-newCollection", "12-moveToCollection", "12-deleteItems", "12-toggleItemVisibility",
          "12-toggleItemSelectable", "12-toggleItemRenderable", "12-isolateCollection"})
        rows.push_back({id, "outlinerTree", nothing});
    rows.push_back({"12-selectItemHierarchy", "outlinerTree", object("Props")});
    rows.push_back({"12-toggleAlpha", "renderView", rendered});
    rows.push_back({"12-nextSlot", "renderView", rendered});
    return rows;
}

} // namespace

const std::vector<StudioRow> &studioRows()
{
    static const std::vector<StudioRow> all = [] {
        std::vector<StudioRow> rows;
        for (const auto &part :
             {objectRows(), viewportRows(), windowRows(), meshRows(), otherRows()})
            rows.insert(rows.end(), part.begin(), part.end());
        return rows;
    }();
    return all;
}
