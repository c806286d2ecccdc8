#include "ActionTable.h"
#include "Actions.h"
#include "MainWindow.h"

namespace Studio::Actions {

void addWindows(ActionTable &table, MainWindow &window)
{
    table.add("1-toggleFullScreen",
              [&window] { window.setWindowState(window.windowState() ^ Qt::WindowFullScreen); });
    table.add("1-maximizePane", [&window] { window.maximizePane(); });
    table.add("1-hideAllPanels", [&window] { window.hideAllPanels(); });
    table.add("1-toggleToolShelf", [&window] { window.toggleDock("toolShelf"); });
    table.add("1-togglePropertyPanel", [&window] { window.toggleDock("propertyDock"); });
    table.add("1-showConsole", [&window] { window.toggleDock("consoleDock"); });
    table.add("1-showHotkeyEditor", [&window] { window.showCustomizeDialog(); });
    const char *const workspaces[] = {"1-workspaceModeling",  "1-workspaceSculpting",
                                      "1-workspaceUv",        "1-workspaceShading",
                                      "1-workspaceAnimation", "1-workspaceRendering"};
    int index = 0;
    for (const char *id : workspaces) {
        table.add(id, [&window, index] { window.setWorkspace(index); });
        ++index;
    }
    const auto turn = [&window](int direction) {
        const int count = MainWindow::workspaceCount();
        window.setWorkspace((window.workspace() + count + direction) % count);
    };
    table.add("1-nextWorkspace", [turn] { turn(1); });
    table.add("1-previousWorkspace", [turn] { turn(-1); });
    table.add("1-resetWorkspace", [&window] { window.resetWorkspace(); });
}

} // namespace Studio::Actions
