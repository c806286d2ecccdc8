#include "NodeGraph.h"

#include <QHash>
#include <QSet>

#include <algorithm>

namespace Studio {

NodeGraph NodeGraph::sample()
{
    NodeGraph graph;
    const int noise = graph.add(QStringLiteral("Noise"), {0, 10}).id;
    const int ramp = graph.add(QStringLiteral("Color Ramp"), {170, 0}).id;
    const int bump = graph.add(QStringLiteral("Bump"), {170, 110}).id;
    const int surface = graph.add(QStringLiteral("Surface"), {340, 40}).id;
    const int output = graph.add(QStringLiteral("Output"), {510, 60}).id;
    graph.links = {{noise, ramp}, {noise, bump}, {ramp, surface}, {bump, surface}};
    graph.links.append({surface, output});
    return graph;
}

NodeGraph::Node &NodeGraph::add(const QString &name, QPointF position)
{
    Node node;
    node.id = ++lastId;
    node.name = name;
    node.position = position;
    nodes.append(node);
    return nodes.last();
}

QVector<int> NodeGraph::selectedIds() const
{
    QVector<int> ids;
    for (const Node &node : nodes) {
        if (node.selected)
            ids.append(node.id);
    }
    return ids;
}

void NodeGraph::selectOnly(const QVector<int> &ids)
{
    for (Node &node : nodes)
        node.selected = ids.contains(node.id);
}

void NodeGraph::duplicateSelected()
{
    QHash<int, int> copies;
    for (const Node &node : QVector<Node>(nodes)) {
        if (!node.selected)
            continue;
        Node copy = node;
        copy.id = ++lastId;
        copy.position += QPointF(30, 84);
        copies.insert(node.id, copy.id);
        nodes.append(copy);
    }
    for (const Link &link : QVector<Link>(links)) {
        if (copies.contains(link.first) && copies.contains(link.second))
            links.append({copies.value(link.first), copies.value(link.second)});
    }
    selectOnly(copies.values().toVector());
}

void NodeGraph::removeSelected(bool reconnect)
{
    for (int id : selectedIds()) {
        QVector<Link> kept;
        QVector<int> sources;
        QVector<int> targets;
        for (const Link &link : qAsConst(links)) {
            if (link.second == id)
                sources.append(link.first);
            else if (link.first == id)
                targets.append(link.second);
            else
                kept.append(link);
        }
        for (int source : reconnect ? sources : QVector<int>()) {
            for (int target : qAsConst(targets)) {
                if (!kept.contains({source, target}))
                    kept.append({source, target});
            }
        }
        links = kept;
    }
    nodes.erase(std::remove_if(nodes.begin(), nodes.end(),
                               [](const Node &node) { return node.selected; }),
                nodes.end());
}

void NodeGraph::connectSelected()
{
    QVector<Node> chosen;
    std::copy_if(nodes.begin(), nodes.end(), std::back_inserter(chosen),
                 [](const Node &node) { return node.selected; });
    std::stable_sort(chosen.begin(), chosen.end(),
                     [](const Node &a, const Node &b) { return a.position.x() < b.position.x(); });
    for (int i = 1; i < chosen.size(); ++i) {
        const Link link(chosen.at(i - 1).id, chosen.at(i).id);
        if (!links.contains(link))
            links.append(link);
    }
}

void NodeGraph::disconnectSelected()
{
    const QVector<int> ids = selectedIds();
    links.erase(std::remove_if(links.begin(), links.end(),
                               [&ids](const Link &link) {
                                   return ids.contains(link.first) || ids.contains(link.second);
                               }),
                links.end());
}

void NodeGraph::insertReroutes()
{
    const QVector<int> ids = selectedIds();
    const auto middleOf = [this](int id) {
        for (const Node &node : qAsConst(nodes)) {
            if (node.id == id)
                return node.box().center();
        }
        return QPointF();
    };
    for (const Link &link : QVector<Link>(links)) {
        if (!ids.contains(link.first) && !ids.contains(link.second))
            continue;
        const QPointF place = (middleOf(link.first) + middleOf(link.second)) / 2;
        Node &reroute = add(QStringLiteral("Reroute"), place - QPointF(11, 11));
        reroute.isReroute = true;
        links.removeOne(link);
        links.append({link.first, reroute.id});
        links.append({reroute.id, link.second});
    }
}

void NodeGraph::alignSelected()
{
    double top = 0;
    const QVector<int> ids = selectedIds();
    for (const Node &node : qAsConst(nodes)) {
        if (node.selected)
            top += node.position.y() / ids.size();
    }
    for (Node &node : nodes) {
        if (node.selected)
            node.position.setY(top);
    }
}

void NodeGraph::arrange()
{
    QHash<int, int> columns;
    for (int pass = 0; pass < nodes.size(); ++pass) { // longer chains would be circles
        for (const Link &link : qAsConst(links)) {
            if (columns.value(link.second) <= columns.value(link.first))
                columns[link.second] = std::min(columns.value(link.first) + 1, nodes.size());
        }
    }
    QHash<int, int> rows;
    for (Node &node : nodes) {
        const int column = columns.value(node.id);
        node.position = QPointF(column * 170, rows[column]++ * 96);
    }
}

void NodeGraph::gather(int Node::*field)
{
    const int number = ++lastId;
    for (Node &node : nodes) {
        if (node.selected)
            node.*field = number;
    }
}

void NodeGraph::scatter(int Node::*field)
{
    QSet<int> numbers;
    for (const Node &node : qAsConst(nodes)) {
        if (node.selected)
            numbers.insert(node.*field);
    }
    for (Node &node : nodes) {
        if (numbers.contains(node.*field))
            node.*field = 0;
    }
}

} // namespace Studio
