#include "ActionTable.h"
#include "Actions.h"
#include "MainWindow.h"
#include "MeshEditing.h"

#include <algorithm>

namespace Studio::Actions {

namespace {

using Change = std::function<void(ViewSettings &)>;

Change resize(int by)
{
    return [by](ViewSettings &v) { v.brushSize = std::clamp(v.brushSize + by, 4, 200); };
}

Change strengthen(int by)
{
    return [by](ViewSettings &v) { v.brushStrength = std::clamp(v.brushStrength + by, 0, 100); };
}

Change toggleFlag(bool ViewSettings::*field)
{
    return [field](ViewSettings &v) { v.*field = !(v.*field); };
}

} // namespace

void addBrushes(ActionTable &table, MainWindow &window)
{
    ViewState &view = window.view();
    Document &document = window.document();
    const auto add = [&](const char *id, Change change,
                         ActionTable::Repeat repeat = ActionTable::Repeat::No) {
        table.add(
                id, [&view, change = std::move(change)] { view.change(change); }, repeat);
    };
    const std::pair<const char *, const char *> brushes[] = {
            {"7-brushClay", "Clay"},
            {"7-brushGrab", "Grab"},
            {"7-brushCrease", "Crease"},
            {"7-brushInflate", "Inflate"},
            {"7-brushFlatten", "Flatten"},
            {"7-brushPinch", "Pinch"},
            {"7-brushSnakeHook", "Snake Hook"},
            {"7-brushSmooth", "Smooth"},
            {"7-maskBrush", "Mask"},
            {"7-paintBrush", "Paint Brush"},
            {"7-paintErase", "Eraser"},
            {"7-paintFill", "Fill"},
            {"7-paintClone", "Clone"},
            {"7-paintSoften", "Soften"},
    };
    for (const auto &brush : brushes) {
        const QString name = QString::fromLatin1(brush.second);
        add(brush.first, [name](ViewSettings &v) { v.brush = name; });
    }
    constexpr auto repeats = ActionTable::Repeat::Yes;
    add("7-increaseBrushSize", resize(8), repeats);
    add("7-decreaseBrushSize", resize(-8), repeats);
    add("7-increaseBrushStrength", strengthen(5), repeats);
    add("7-decreaseBrushStrength", strengthen(-5), repeats);
    add("7-paintLargerBrush", resize(8), repeats);
    add("7-paintSmallerBrush", resize(-8), repeats);
    add("7-paintHarderBrush", strengthen(5), repeats);
    add("7-paintSofterBrush", strengthen(-5), repeats);
    add("7-toggleSymmetry", toggleFlag(&ViewSettings::symmetry));
    add("7-swapColors", [](ViewSettings &v) { std::swap(v.foreground, v.background); });
    add("7-defaultColors", [](ViewSettings &v) {
        v.foreground = Qt::black;
        v.background = Qt::white;
    });
    // The viewport shows which one is held, and sculpting asks for it.
    table.addHeld("7-tempInvertBrush", [](bool) {});
    table.addHeld("7-tempSmoothBrush", [](bool) {});
    const auto subdivide = [&document] {
        document.edit(QStringLiteral("Subdivide"), [](Scene &scene) {
            if (scene.activeMesh() == nullptr || scene.activeMesh()->mesh.faces.size() > 20000)
                return;
            Mesh &mesh = scene.find(scene.activeId)->mesh;
            MeshEditing::selectAll(mesh);
            MeshEditing::subdivide(mesh);
            MeshEditing::selectAll(mesh);
            MeshEditing::smooth(mesh);
            mesh.selected.clear();
        });
    };
    table.add("7-subdivideSculpt", subdivide);
}

} // namespace Studio::Actions
