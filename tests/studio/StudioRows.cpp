#include "StudioRows.h"

#include "MainWindow.h"
#include "RenderView.h"
#include "Text.h"
#include "Timeline.h"
#include "Viewport.h"

using namespace Studio;

namespace {

using Prepare = std::function<void(MainWindow &)>;

Prepare edit(void (*change)(Scene &))
{
    return [change](MainWindow &window) { window.document().edit(s("Prepare"), change); };
}

/// Selects objects by their names.
Prepare objects(const QStringList &names)
{
    return [names](MainWindow &window) {
        window.document().edit(s("Select"), [&names](Scene &scene) {
            QVector<int> ids;
            for (const SceneObject &object : qAsConst(scene.objects)) {
                if (names.contains(object.name))
                    ids.append(object.id);
            }
            scene.selectOnly(ids);
        });
    };
}

Prepare mode(const char *name)
{
    return [name](MainWindow &window) { window.setMode(s(name)); };
}

/// Selects some faces at the side of the sphere that is seen.
void faces(MainWindow &window)
{
    window.setMode(s("Mesh"));
    edit([](Scene &scene) {
        QSet<int> &selected = scene.find(scene.activeId)->mesh.selected;
        for (int row = 5; row < 9; ++row) {
            for (int column = 18; column < 24; ++column)
                selected.insert(row * 28 + column);
        }
    })(window);
}

void hidden(MainWindow &window)
{
    edit([](Scene &scene) {
        scene.forSelected([](SceneObject &object) { object.visible = false; });
    })(window);
}

void undone(MainWindow &window)
{
    hidden(window);
    window.document().undo();
}

void keyed(MainWindow &window)
{
    objects({s("Torus")})(window);
    window.timeline().goTo(60);
}

void marked(MainWindow &window)
{
    edit([](Scene &scene) { scene.markers = {20, 90}; })(window);
    window.timeline().goTo(50);
}

void zoomed(MainWindow &window)
{
    window.viewport().zoom(0.5F);
}

void wentBack(MainWindow &window)
{
    zoomed(window);
    window.viewport().previousView();
}

/// Actions that can do something in one view after one preparation.
struct Group {
    const char *view;
    Prepare prepare;
    const char *ids;
};

std::vector<Group> groups()
{
    const Prepare nothing;
    const Prepare nodes = edit([](Scene &scene) { scene.graph.selectOnly({2, 3}); });
    const Prepare atFrame = [](MainWindow &window) { window.timeline().goTo(33); };
    const Prepare rendered = [](MainWindow &window) { window.renderView().render(); };
    return {
            {"viewport", nothing,
             "2-addPrimitive 2-addLight 2-addCamera 2-duplicateObject 2-arrayDuplicate "
             "2-deleteObject 2-clearParent 2-selectParent 2-freezeTransforms "
             "2-resetTransforms 2-addModifier 2-hideObject 2-hideUnselected 2-editPivot "
             "2-enterEditMode 2-frameAll 2-frameSelected 2-zoomIn 2-zoomOut 2-zoomRegion "
             "2-view-front 2-view-back 2-view-right 2-view-left 2-view-top 2-view-bottom "
             "2-viewCamera 2-togglePerspective 2-toggleQuadView 2-alignViewToSelected "
             "2-cycleShading 2-shadingWireframe 2-shadingMaterial 2-shadingRendered "
             "2-toggleXRay 2-toggleGrid 2-toggleOverlays 2-isolateSelection 2-moveTool "
             "2-rotateTool 2-scaleTool 2-transformNumeric 2-cyclePivot 2-cycleOrientation "
             "2-toggleProportionalEditing 2-cycleFalloff 2-toggleSnapping "
             "2-cycleSnapTarget 2-cursorToSelection 2-selectionToCursor 12-renderImage "
             "1-newScene 1-selectAll 1-deselectAll 1-invertSelection 1-cut 1-undoHistory "
             "1-findCommand 1-preferences 1-toggleFullScreen 1-maximizePane "
             "1-hideAllPanels 1-toggleToolShelf 1-togglePropertyPanel 1-showConsole "
             "1-showHotkeyEditor 1-workspaceSculpting 1-workspaceUv 1-workspaceShading "
             "1-nextWorkspace 1-previousWorkspace"},
            {"viewport", objects({s("Cone"), s("Cube")}),
             "2-groupObjects 2-parentObjects 2-joinObjects 2-alignObjects"},
            {"viewport", objects({s("Props")}), "2-ungroupObjects 2-selectChildren"},
            {"viewport", objects({s("Cube")}), "2-mirrorObject"},
            {"viewport", objects({s("Cone")}), "2-shadeSmooth"},
            {"viewport", hidden, "2-showAll 1-undo"},
            {"viewport", zoomed, "2-previousView"},
            {"viewport", wentBack, "2-nextView"},
            {"viewport", undone, "1-redo"},
            {"viewport", faces,
             "7-vertexMode 7-edgeMode 7-toggleEdges 7-selectLinked 7-growSelection "
             "7-shrinkSelection 7-selectBoundary 7-extrudeRegion 7-extrudeIndividual "
             "7-insetFaces 7-bevel 7-subdivide 7-knife 7-mergeAtCenter 7-deleteComponents "
             "7-flipNormals 7-triangulateFaces 7-hideFaces"},
            {"viewport", mode("Sculpting"),
             "7-brushClay 7-increaseBrushSize 7-decreaseBrushSize 7-increaseBrushStrength "
             "7-toggleSymmetry 7-subdivideSculpt"},
            {"viewport", mode("Texture Paint"), "7-paintBrush 7-swapColors 7-paintLargerBrush"},
            {"uvView", nothing,
             "7-smartProject 7-projectFromView 7-relaxUvs 7-packIslands 7-moveUvs "
             "7-rotateUvs 7-scaleUvs 7-straightenUvs 7-showStretching"},
            {"uvView", faces, "7-frameSelectedUvs 7-mirrorUvsHorizontal"},
            {"nodeView", nothing, "12-addNode 12-zoomInGraph 12-zoomOutGraph"},
            {"nodeView", nodes,
             "12-duplicateNodes 12-deleteNodes 12-deleteAndReconnect 12-muteNodes "
             "12-previewNode 12-groupNodes 12-connectNodes 12-disconnectNodes "
             "12-insertReroute 12-alignNodes 12-arrangeNodes 12-frameNodes "
             "12-frameSelectedNodes"},
            {"timeline", nothing,
             "12-playPause 12-playReverse 12-nextFrame 12-jumpToEnd 12-toggleLoopPlayback "
             "12-insertKeyframe 12-toggleAutoKey 12-addMarker"},
            {"timeline", keyed,
             "12-nextKeyframe 12-previousKeyframe 12-deleteKeyframes 12-duplicateKeyframes "
             "12-moveKeyframes"},
            {"timeline", marked, "12-nextMarker 12-previousMarker"},
            {"timeline", atFrame,
             "12-previousFrame 12-jumpToStart 12-setRangeStart 12-setRangeEnd"},
            {"graphView", keyed, "12-deleteCurveKeys 12-moveCurveKeys"},
            {"outlinerTree", nothing,
             "12-collapseOne 12-collapseAll 12-filterByName 12-renameItem 12-newCollection "
             "12-moveToCollection 12-deleteItems 12-toggleItemVisibility "
             "12-toggleItemSelectable 12-toggleItemRenderable 12-isolateCollection"},
            {"outlinerTree", objects({s("Props")}), "12-selectItemHierarchy"},
            {"renderView", rendered, "12-toggleAlpha 12-nextSlot"},
    };
}

} // namespace

const std::vector<StudioRow> &studioRows()
{
    static const std::vector<StudioRow> all = [] {
        std::vector<StudioRow> rows;
        for (const Group &group : groups()) {
            for (const QString &id : s(group.ids).split(QLatin1Char(' ')))
                rows.push_back({id, group.view, group.prepare});
        }
        return rows;
    }();
    return all;
}
