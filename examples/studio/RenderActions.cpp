#include "ActionTable.h"
#include "Actions.h"
#include "MainWindow.h"
#include "RenderView.h"

#include <QFileDialog>
#include <QStatusBar>

namespace Studio::Actions {

void addRendering(ActionTable &table, MainWindow &window)
{
    RenderView &render = window.renderView();
    table.add("12-renderImage", [&window, &render] {
        window.showDock("renderDock", true);
        render.render();
    });
    table.add("12-viewLastRender", [&window] { window.showDock("renderDock", true); });
    table.add("12-nextSlot", [&render] { render.nextSlot(1); });
    table.add("12-previousSlot", [&render] { render.nextSlot(-1); });
    table.add("12-toggleAlpha", [&render] { render.toggleAlpha(); });
    table.add("12-saveRender", [&window, &render] {
        const QString path =
                QFileDialog::getSaveFileName(&window, QStringLiteral("Save Rendered Image"),
                                             QString(), QStringLiteral("Pictures (*.png)"));
        if (!path.isEmpty() && !render.picture().save(path))
            window.statusBar()->showMessage(QStringLiteral("%1 cannot be written").arg(path));
    });
    table.add("12-setActiveCamera", [&window] {
        window.document().edit(QStringLiteral("Set Active Camera"), [](Scene &scene) {
            const SceneObject *active = scene.active();
            if (active != nullptr && active->kind == SceneObject::Kind::Camera)
                scene.activeCamera = active->id;
        });
    });
    table.add("12-lockCameraToView", [&window] {
        window.view().change([](ViewSettings &v) { v.lockCamera = !v.lockCamera; });
    });
}

} // namespace Studio::Actions
