#include "ActionTable.h"
#include "Actions.h"
#include "GraphView.h"
#include "MainWindow.h"
#include "Timeline.h"

#include <algorithm>

namespace Studio::Actions {

namespace {

void addPlayback(ActionTable &table, MainWindow &window)
{
    Timeline &timeline = window.timeline();
    Document &document = window.document();
    constexpr auto repeats = ActionTable::Repeat::Yes;
    table.add("12-playPause", [&timeline] { timeline.play(timeline.direction() == 0 ? 1 : 0); });
    table.add("12-playReverse", [&timeline] { timeline.play(timeline.direction() == 0 ? -1 : 0); });
    table.add(
            "12-nextFrame", [&timeline] { timeline.goTo(timeline.frame() + 1); }, repeats);
    table.add(
            "12-previousFrame", [&timeline] { timeline.goTo(timeline.frame() - 1); }, repeats);
    table.add("12-nextKeyframe",
              [&timeline] { timeline.goTo(timeline.nearest(timeline.keyFrames(), 1)); });
    table.add("12-previousKeyframe",
              [&timeline] { timeline.goTo(timeline.nearest(timeline.keyFrames(), -1)); });
    table.add("12-nextMarker", [&timeline, &document] {
        timeline.goTo(timeline.nearest(document.scene().markers, 1));
    });
    table.add("12-previousMarker", [&timeline, &document] {
        timeline.goTo(timeline.nearest(document.scene().markers, -1));
    });
    table.add("12-jumpToStart",
              [&timeline, &document] { timeline.goTo(document.scene().rangeStart); });
    table.add("12-jumpToEnd", [&timeline, &document] { timeline.goTo(document.scene().rangeEnd); });
    table.add("12-frameRange", [&timeline] { timeline.frameRange(); });
    ViewState &view = window.view();
    table.add("12-toggleLoopPlayback",
              [&view] { view.change([](ViewSettings &v) { v.loop = !v.loop; }); });
    table.add("12-toggleAutoKey",
              [&view] { view.change([](ViewSettings &v) { v.autoKey = !v.autoKey; }); });
    table.addHeld("12-tempScrub", [&timeline, &view](bool held) {
        view.change([held](ViewSettings &v) { v.heldScrub = held; });
        timeline.setMouseTracking(held);
    });
}

} // namespace

void addTimeline(ActionTable &table, MainWindow &window)
{
    addPlayback(table, window);
    Document &document = window.document();
    Timeline &timeline = window.timeline();
    const auto add = [&](const char *id, const QString &name,
                         std::function<void(Scene &, int)> change) {
        table.add(id, [&document, &timeline, name, change = std::move(change)] {
            const int frame = timeline.frame();
            document.edit(name, [&](Scene &scene) { change(scene, frame); });
        });
    };
    const auto insertKey = [](Scene &scene, int frame) {
        scene.forSelected([frame](SceneObject &o) { o.keys.insert(frame, o.transform); });
    };
    const auto deleteKeys = [](Scene &scene, int frame) {
        scene.forSelected([frame](SceneObject &o) { o.keys.remove(frame); });
    };
    const auto moveKey = [](bool copy) {
        return [copy](Scene &scene, int frame) {
            scene.forSelected([copy, frame](SceneObject &o) {
                if (!o.keys.contains(frame))
                    return;
                o.keys.insert(frame + 5, o.keys.value(frame));
                if (!copy)
                    o.keys.remove(frame);
            });
        };
    };
    add("12-insertKeyframe", QStringLiteral("Insert Keyframe"), insertKey);
    add("12-insertKeyframeAllChannels", QStringLiteral("Insert Keyframe on All Channels"),
        [](Scene &scene, int frame) {
            for (SceneObject &object : scene.objects) {
                if (!object.keys.isEmpty() || object.selected)
                    object.keys.insert(frame, object.transform);
            }
        });
    add("12-deleteKeyframes", QStringLiteral("Delete Keyframes"), deleteKeys);
    add("12-duplicateKeyframes", QStringLiteral("Duplicate Keyframes"), moveKey(true));
    add("12-moveKeyframes", QStringLiteral("Move Keyframes"), moveKey(false));
    add("12-breakdownPose", QStringLiteral("Insert Breakdown"), insertKey);
    add("12-insertCurveKey", QStringLiteral("Insert Key"), insertKey);
    add("12-deleteCurveKeys", QStringLiteral("Delete Keys"), deleteKeys);
    add("12-moveCurveKeys", QStringLiteral("Move Keys"), moveKey(false));
    add("12-addMarker", QStringLiteral("Add Marker"), [](Scene &scene, int frame) {
        if (!scene.markers.contains(frame))
            scene.markers.append(frame);
        std::sort(scene.markers.begin(), scene.markers.end());
    });
    add("12-setRangeStart", QStringLiteral("Set Range Start"),
        [](Scene &scene, int frame) { scene.rangeStart = std::min(frame, scene.rangeEnd - 1); });
    add("12-setRangeEnd", QStringLiteral("Set Range End"),
        [](Scene &scene, int frame) { scene.rangeEnd = std::max(frame, scene.rangeStart + 1); });
    table.add("12-frameAllKeys", [&window] { window.graphView().frameAll(); });
}

} // namespace Studio::Actions
