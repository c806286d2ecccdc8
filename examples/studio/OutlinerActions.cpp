#include "ActionTable.h"
#include "Actions.h"
#include "MainWindow.h"
#include "Outliner.h"

namespace Studio::Actions {

void addOutliner(ActionTable &table, MainWindow &window)
{
    Outliner &outliner = window.outliner();
    Document &document = window.document();
    table.add("12-revealSelected", [&outliner] { outliner.revealActive(); });
    table.add("12-expandOne", [&outliner] { outliner.expandOne(true); });
    table.add("12-collapseOne", [&outliner] { outliner.expandOne(false); });
    table.add("12-expandAll", [&outliner] { outliner.expandAll(); });
    table.add("12-collapseAll", [&outliner] { outliner.collapseAll(); });
    table.add("12-filterByName", [&outliner] { outliner.filterByName(); });
    table.add("12-renameItem", [&outliner] { outliner.rename(); });
    const auto toggle = [&](const char *id, const QString &name, bool SceneObject::*field) {
        table.add(id, [&document, name, field] {
            document.edit(name, [field](Scene &scene) {
                scene.forSelected([field](SceneObject &o) { o.*field = !(o.*field); });
            });
        });
    };
    toggle("12-toggleItemVisibility", QStringLiteral("Toggle Visibility"), &SceneObject::visible);
    toggle("12-toggleItemSelectable", QStringLiteral("Toggle Selectable"),
           &SceneObject::selectable);
    toggle("12-toggleItemRenderable", QStringLiteral("Toggle Renderable"),
           &SceneObject::renderable);
    table.add("12-deleteItems", [&document] {
        document.edit(QStringLiteral("Delete"), [](Scene &scene) {
            const QVector<int> ids = scene.selectedIds();
            scene.remove({ids.begin(), ids.end()});
        });
    });
    table.add("12-selectItemHierarchy", [&document] {
        document.edit(QStringLiteral("Select Hierarchy"), [](Scene &scene) {
            const int active = scene.activeId;
            const QSet<int> ids = scene.selectedHierarchy();
            scene.selectOnly({ids.begin(), ids.end()});
            scene.activeId = active;
        });
    });
    table.add("12-isolateCollection", [&window, &document] {
        const QSet<int> ids = document.scene().selectedHierarchy();
        window.view().change(
                [&ids](ViewSettings &v) { v.isolated = v.isolated.isEmpty() ? ids : QSet<int>(); });
    });
}

} // namespace Studio::Actions
