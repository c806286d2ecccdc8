#pragma once

#include <QPair>
#include <QPointF>
#include <QRectF>
#include <QString>
#include <QVector>

#include <tuple>

namespace Studio {

/// The boxes of a material and what flows between them.
struct NodeGraph {
    struct Node {
        int id = 0;
        QString name;
        QPointF position;
        bool selected = false;
        bool muted = false;
        bool previewed = false;
        bool isReroute = false;
        int group = 0; ///< those of one number are one group; 0 for none
        int frame = 0; ///< likewise for the frames that are drawn around them

        QRectF box() const
        {
            return isReroute ? QRectF(position, QSizeF(22, 22)) : QRectF(position, QSizeF(124, 62));
        }
    };
    using Link = QPair<int, int>; ///< from the output of a node to the input of another

    QVector<Node> nodes;
    QVector<Link> links;
    int lastId = 0;

    /// A small material.
    static NodeGraph sample();

    Node &add(const QString &name, QPointF position);
    QVector<int> selectedIds() const;
    void selectOnly(const QVector<int> &ids);
    void duplicateSelected();
    /// With @p reconnect what flowed through a removed node flows past its place.
    void removeSelected(bool reconnect);
    /// Links the selected nodes from left to right.
    void connectSelected();
    void disconnectSelected();
    /// Puts a reroute in each link of a selected node.
    void insertReroutes();
    void alignSelected();
    /// Lays the nodes out in columns, each right of what it takes its input from.
    void arrange();
    /// Gives the selected ones a number of their own in that field, or takes it away.
    void gather(int Node::*field);
    void scatter(int Node::*field);
};

inline bool operator==(const NodeGraph::Node &a, const NodeGraph::Node &b)
{
    const auto fields = [](const NodeGraph::Node &n) {
        return std::tie(n.id, n.name, n.position, n.selected, n.muted, n.previewed, n.isReroute,
                        n.group, n.frame);
    };
    return fields(a) == fields(b);
}

inline bool operator==(const NodeGraph &a, const NodeGraph &b)
{
    return a.nodes == b.nodes && a.links == b.links;
}

} // namespace Studio
