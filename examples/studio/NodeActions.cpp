#include "ActionTable.h"
#include "Actions.h"
#include "MainWindow.h"
#include "NodeView.h"

namespace Studio::Actions {

void addNodes(ActionTable &table, MainWindow &window)
{
    Document &document = window.document();
    NodeView &nodes = window.nodeView();
    const auto add = [&](const char *id, const QString &name,
                         std::function<void(NodeGraph &)> change) {
        table.add(id, [&document, name, change = std::move(change)] {
            document.edit(name, [&change](Scene &scene) { change(scene.graph); });
        });
    };
    const auto toggle = [](bool NodeGraph::Node::*field) {
        return [field](NodeGraph &graph) {
            for (NodeGraph::Node &node : graph.nodes) {
                if (node.selected)
                    node.*field = !(node.*field);
            }
        };
    };
    using Node = NodeGraph::Node;
    add("12-addNode", QStringLiteral("Add Node"), [&nodes](NodeGraph &graph) {
        const QPointF place = nodes.centre() - QPointF(62, -40);
        const int id = graph.add(QStringLiteral("Mix %1").arg(graph.lastId), place).id;
        graph.selectOnly({id});
    });
    add("12-duplicateNodes", QStringLiteral("Duplicate Nodes"),
        [](NodeGraph &graph) { graph.duplicateSelected(); });
    add("12-deleteNodes", QStringLiteral("Delete Nodes"),
        [](NodeGraph &graph) { graph.removeSelected(false); });
    add("12-deleteAndReconnect", QStringLiteral("Delete and Reconnect"),
        [](NodeGraph &graph) { graph.removeSelected(true); });
    add("12-muteNodes", QStringLiteral("Mute Nodes"), toggle(&Node::muted));
    add("12-previewNode", QStringLiteral("Preview Node"), toggle(&Node::previewed));
    add("12-groupNodes", QStringLiteral("Make Node Group"),
        [](NodeGraph &graph) { graph.gather(&Node::group); });
    add("12-ungroupNodes", QStringLiteral("Ungroup Nodes"),
        [](NodeGraph &graph) { graph.scatter(&Node::group); });
    add("12-frameNodes", QStringLiteral("Add Frame Around Nodes"),
        [](NodeGraph &graph) { graph.gather(&Node::frame); });
    add("12-connectNodes", QStringLiteral("Connect Selected"),
        [](NodeGraph &graph) { graph.connectSelected(); });
    add("12-disconnectNodes", QStringLiteral("Disconnect"),
        [](NodeGraph &graph) { graph.disconnectSelected(); });
    add("12-insertReroute", QStringLiteral("Insert Reroute"),
        [](NodeGraph &graph) { graph.insertReroutes(); });
    add("12-alignNodes", QStringLiteral("Align Nodes"),
        [](NodeGraph &graph) { graph.alignSelected(); });
    add("12-arrangeNodes", QStringLiteral("Arrange Nodes"),
        [](NodeGraph &graph) { graph.arrange(); });
    constexpr auto repeats = ActionTable::Repeat::Yes;
    table.add(
            "12-zoomInGraph", [&nodes] { nodes.zoom(1.2); }, repeats);
    table.add(
            "12-zoomOutGraph", [&nodes] { nodes.zoom(1 / 1.2); }, repeats);
    table.add("12-frameSelectedNodes", [&nodes] { nodes.frameSelected(); });
    table.add("12-frameAllNodes", [&nodes] { nodes.frameAll(); });
    table.addHeld("12-tempCutLinks", [&window](bool held) {
        window.view().change([held](ViewSettings &v) { v.heldCutLinks = held; });
    });
}

} // namespace Studio::Actions
