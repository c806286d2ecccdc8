#include "ActionTable.h"
#include "Actions.h"
#include "MainWindow.h"
#include "MeshEditing.h"
#include "SceneExport.h"

#include <QFileDialog>
#include <QStatusBar>

#include <memory>

namespace Studio::Actions {

namespace {

/// What a selection command selects depends on the mode: objects, or faces of the active mesh.
void select(MainWindow &window, const QString &name, const std::function<void(Scene &)> &objects,
            const std::function<void(Mesh &)> &faces)
{
    const bool inMesh = window.view().get().mode == QLatin1String("Mesh")
                        && window.document().scene().activeMesh() != nullptr;
    window.document().edit(name, [&](Scene &scene) {
        if (inMesh)
            faces(scene.find(scene.activeId)->mesh);
        else
            objects(scene);
    });
}

void selectObjects(Scene &scene, const std::function<bool(const SceneObject &)> &wanted)
{
    QVector<int> ids;
    for (const SceneObject &object : qAsConst(scene.objects)) {
        if (object.visible && object.selectable && wanted(object))
            ids.append(object.id);
    }
    scene.selectOnly(ids);
}

void addSelection(ActionTable &table, MainWindow &window)
{
    table.add("1-selectAll", [&window] {
        select(
                window, QStringLiteral("Select All"),
                [](Scene &scene) {
                    selectObjects(scene, [](const SceneObject &) { return true; });
                },
                MeshEditing::selectAll);
    });
    table.add("1-deselectAll", [&window] {
        select(
                window, QStringLiteral("Deselect All"), [](Scene &scene) { scene.selectOnly({}); },
                [](Mesh &mesh) { mesh.selected.clear(); });
    });
    table.add("1-invertSelection", [&window] {
        select(
                window, QStringLiteral("Invert Selection"),
                [](Scene &scene) {
                    selectObjects(scene, [](const SceneObject &o) { return !o.selected; });
                },
                MeshEditing::invertSelection);
    });
}

void exportScene(MainWindow &window, bool onlySelected)
{
    const QString path = QFileDialog::getSaveFileName(&window, QStringLiteral("Export"), QString(),
                                                      QStringLiteral("Wavefront (*.obj)"));
    if (path.isEmpty())
        return;
    const bool written = SceneExport::writeObj(window.document().scene(), onlySelected, path);
    window.statusBar()->showMessage(written ? QStringLiteral("Exported to %1").arg(path)
                                            : QStringLiteral("%1 cannot be written").arg(path));
}

/// The scene that was copied, with what was selected.
using Clipboard = std::shared_ptr<Scene>;

void paste(Document &document, const Scene &copied, QVector3D offset)
{
    document.edit(QStringLiteral("Paste"), [&](Scene &scene) {
        QVector<int> ids;
        for (const SceneObject &object : copied.objects) {
            if (!object.selected)
                continue;
            SceneObject pasted = object;
            pasted.id = ++scene.lastId;
            pasted.parent = scene.find(object.parent) != nullptr ? object.parent : 0;
            pasted.name = scene.freeName(object.name);
            pasted.transform.position += offset;
            scene.objects.append(pasted);
            ids.append(pasted.id);
        }
        if (!ids.isEmpty())
            scene.selectOnly(ids);
    });
}

void addClipboard(ActionTable &table, MainWindow &window)
{
    Document &document = window.document();
    const Clipboard clipboard = std::make_shared<Scene>();
    table.add("1-copy", [&document, clipboard] { *clipboard = document.scene(); });
    table.add("1-cut", [&document, clipboard] {
        *clipboard = document.scene();
        document.edit(QStringLiteral("Cut"), [](Scene &scene) {
            const QVector<int> ids = scene.selectedIds();
            scene.remove({ids.begin(), ids.end()});
        });
    });
    table.add("1-paste", [&document, clipboard] { paste(document, *clipboard, {0.6F, 0.6F, 0}); });
    table.add("1-pasteInPlace", [&document, clipboard] { paste(document, *clipboard, {}); });
}

} // namespace

void addEdit(ActionTable &table, MainWindow &window)
{
    Document &document = window.document();
    addSelection(table, window);
    addClipboard(table, window);
    table.add("1-newScene", [&document] {
        Scene scene;
        scene.graph = NodeGraph::sample();
        document.reset(scene);
    });
    table.add("1-revertScene", [&document] { document.reset(Scene::sample()); });
    table.add("1-quit", [&window] { window.close(); });
    table.add("1-exportSelected", [&window] { exportScene(window, true); });
    table.add("1-exportAll", [&window] { exportScene(window, false); });
    table.add(
            "1-undo", [&document] { document.undo(); }, ActionTable::Repeat::Yes);
    table.add(
            "1-redo", [&document] { document.redo(); }, ActionTable::Repeat::Yes);
    table.add("1-undoHistory", [&window] { window.toggleDock("historyDock"); });
    table.add(
            "1-repeatLast", [&window] { window.performAgain(); }, ActionTable::Repeat::Yes);
    table.add("1-findCommand", [&window] { window.findCommand(); });
    table.add("1-preferences", [&window] { window.showCustomizeDialog(); });
}

} // namespace Studio::Actions
