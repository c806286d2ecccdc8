#include "NodeView.h"

#include <QMouseEvent>
#include <QPainter>
#include <QPainterPath>

#include <algorithm>

namespace Studio {

NodeView::NodeView(Document *document, ViewState *view, QWidget *parent)
    : CanvasView(parent), m_document(document), m_view(view)
{
    setObjectName(QStringLiteral("nodeView"));
    connect(document, &Document::changed, this, [this] { update(); });
    connect(view, &ViewState::changed, this, [this] { update(); });
}

QRectF NodeView::areaOf(bool onlySelected) const
{
    QRectF area;
    for (const NodeGraph::Node &node : m_document->scene().graph.nodes) {
        if (node.selected || !onlySelected)
            area |= node.box();
    }
    return area;
}

QRectF NodeView::everything() const
{
    const QRectF area = areaOf(false);
    return area.isNull() ? QRectF(0, 0, 400, 200) : area;
}

void NodeView::frameSelected()
{
    const QRectF area = areaOf(true);
    frame(area.isNull() ? everything() : area.adjusted(-40, -40, 40, 40));
}

QRectF NodeView::onScreen(const QRectF &area) const
{
    return {toScreen(area.topLeft()), toScreen(area.bottomRight())};
}

const NodeGraph::Node *NodeView::find(int id) const
{
    const QVector<NodeGraph::Node> &nodes = m_document->scene().graph.nodes;
    const auto found = std::find_if(nodes.begin(), nodes.end(),
                                    [id](const NodeGraph::Node &n) { return n.id == id; });
    return found != nodes.end() ? &*found : nullptr;
}

int NodeView::nodeAt(QPointF place) const
{
    int id = 0;
    for (const NodeGraph::Node &node : m_document->scene().graph.nodes) {
        if (onScreen(node.box().adjusted(-4, -4, 8, 4)).contains(place))
            id = node.id;
    }
    return id;
}

bool NodeView::isAtOutput(int id, QPointF place) const
{
    const NodeGraph::Node *node = find(id);
    return node != nullptr && !node->isReroute
           && place.x() > toScreen(node->box().topRight()).x() - 10;
}

QPainterPath NodeView::wire(QPointF from, QPointF to) const
{
    const double bend = std::max(30.0, (to.x() - from.x()) / 2);
    QPainterPath path(from);
    path.cubicTo(from + QPointF(bend, 0), to - QPointF(bend, 0), to);
    return path;
}

void NodeView::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    drawBackground(painter, 20);
    painter.setRenderHint(QPainter::Antialiasing);
    drawFrames(painter);
    const NodeGraph &graph = m_document->scene().graph;
    painter.setBrush(Qt::NoBrush);
    for (const NodeGraph::Link &link : graph.links) {
        const NodeGraph::Node *from = find(link.first);
        const NodeGraph::Node *to = find(link.second);
        if (from == nullptr || to == nullptr)
            continue;
        painter.setPen(QPen(QColor(0xc9, 0xb4, 0x63), 2));
        const QRectF a = onScreen(from->box());
        const QRectF b = onScreen(to->box());
        painter.drawPath(wire({a.right(), a.center().y()}, {b.left(), b.center().y()}));
    }
    for (const NodeGraph::Node &node : graph.nodes)
        drawNode(painter, node);
    if (m_isLinking) {
        painter.setBrush(Qt::NoBrush);
        painter.setPen(QPen(Qt::white, 1.5, Qt::DashLine));
        painter.drawPath(wire(m_pressed, m_last));
    }
    if (m_view->get().heldCutLinks) {
        painter.setPen(QColor(0xff, 0x9c, 0x3a));
        painter.drawText(8, height() - 8, QStringLiteral("Drag across links to cut them"));
    }
}

void NodeView::drawFrames(QPainter &painter) const
{
    QMap<int, QRectF> frames;
    QMap<int, QRectF> groups;
    for (const NodeGraph::Node &node : m_document->scene().graph.nodes) {
        if (node.frame != 0)
            frames[node.frame] |= node.box();
        if (node.group != 0)
            groups[node.group] |= node.box();
    }
    painter.setPen(QPen(QColor(255, 255, 255, 70), 1));
    painter.setBrush(QColor(90, 110, 140, 60));
    for (const QRectF &area : qAsConst(frames))
        painter.drawRoundedRect(onScreen(area.adjusted(-14, -22, 14, 14)), 6, 6);
    painter.setPen(QPen(QColor(0x7d, 0xac, 0x5f), 1.5, Qt::DashLine));
    painter.setBrush(Qt::NoBrush);
    for (const QRectF &area : qAsConst(groups))
        painter.drawRoundedRect(onScreen(area.adjusted(-9, -9, 9, 9)), 6, 6);
}

void NodeView::drawNode(QPainter &painter, const NodeGraph::Node &node) const
{
    const QRectF box = onScreen(node.box());
    const QPen rim(node.selected ? QColor(0xff, 0x9c, 0x3a) : QColor(0x18, 0x19, 0x1b),
                   node.selected ? 2 : 1);
    painter.setOpacity(node.muted ? 0.4 : 1);
    painter.setPen(rim);
    painter.setBrush(QColor(0x45, 0x48, 0x4d));
    painter.drawRoundedRect(box, 5, 5);
    if (!node.isReroute) {
        const double headHeight = 20 * scale();
        QPainterPath whole;
        whole.addRoundedRect(box, 5, 5);
        painter.setClipPath(whole, Qt::IntersectClip);
        painter.fillRect(QRectF(box.topLeft(), QSizeF(box.width(), headHeight)),
                         node.previewed ? QColor(0x7d, 0xac, 0x5f) : QColor(0x4b, 0x6a, 0x92));
        painter.setClipping(false);
        QFont font = painter.font();
        font.setPixelSize(std::clamp(static_cast<int>(11 * scale()), 4, 40));
        painter.setFont(font);
        painter.setPen(QColor(0xf0, 0xf0, 0xf0));
        const QRectF head(box.topLeft() + QPointF(6, 0), QSizeF(box.width() - 8, headHeight));
        const QString name = painter.fontMetrics().elidedText(node.name, Qt::ElideRight,
                                                              static_cast<int>(head.width()));
        painter.drawText(head, Qt::AlignVCenter, name);
        painter.setPen(rim);
        painter.setBrush(Qt::NoBrush);
        painter.drawRoundedRect(box, 5, 5);
    }
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor(0xc9, 0xb4, 0x63));
    painter.drawEllipse(QPointF(box.left(), box.center().y()), 4, 4);
    painter.drawEllipse(QPointF(box.right(), box.center().y()), 4, 4);
    painter.setOpacity(1);
}

void NodeView::mousePressEvent(QMouseEvent *event)
{
    CanvasView::mousePressEvent(event);
    m_pressed = m_last = event->localPos();
    m_pressedNode = 0;
    if (event->button() != Qt::LeftButton || m_view->get().heldCutLinks)
        return;
    m_pressedNode = nodeAt(m_pressed);
    m_isLinking = isAtOutput(m_pressedNode, m_pressed);
    const bool add = (event->modifiers() & Qt::ShiftModifier) != 0;
    const int id = m_pressedNode;
    m_document->edit(QStringLiteral("Select Node"), [id, add](Scene &scene) {
        for (NodeGraph::Node &node : scene.graph.nodes) {
            const bool wasChosen = node.selected;
            node.selected = node.id == id || (add && wasChosen);
        }
    });
}

void NodeView::mouseMoveEvent(QMouseEvent *event)
{
    CanvasView::mouseMoveEvent(event);
    const QPointF before = m_last;
    m_last = event->localPos();
    if ((event->buttons() & Qt::LeftButton) == 0)
        return;
    if (m_view->get().heldCutLinks) {
        cutLinks(before, m_last);
    } else if (m_isLinking) {
        update();
    } else if (m_pressedNode != 0 && (m_last - m_pressed).manhattanLength() > 3) {
        const QPointF moved = toPlane(m_last) - toPlane(m_pressed);
        m_document->preview([moved](Scene &scene) {
            for (NodeGraph::Node &node : scene.graph.nodes) {
                if (node.selected)
                    node.position += moved;
            }
        });
    }
}

void NodeView::mouseReleaseEvent(QMouseEvent *event)
{
    m_document->commitPreview(QStringLiteral("Move Nodes"));
    const int target = nodeAt(event->localPos());
    if (m_isLinking && target != 0 && target != m_pressedNode) {
        const NodeGraph::Link link(m_pressedNode, target);
        m_document->edit(QStringLiteral("Link Nodes"), [link](Scene &scene) {
            if (!scene.graph.links.contains(link))
                scene.graph.links.append(link);
        });
    }
    m_isLinking = false;
    update();
}

void NodeView::cutLinks(QPointF from, QPointF to)
{
    QPainterPath knife(from);
    knife.lineTo(to);
    knife.lineTo(to + QPointF(1, 1));
    m_document->edit(QStringLiteral("Cut Links"), [&](Scene &scene) {
        QVector<NodeGraph::Link> kept;
        for (const NodeGraph::Link &link : qAsConst(scene.graph.links)) {
            const QRectF a = onScreen(find(link.first)->box());
            const QRectF b = onScreen(find(link.second)->box());
            QPainterPathStroker stroker;
            if (!stroker.createStroke(wire({a.right(), a.center().y()}, {b.left(), b.center().y()}))
                         .intersects(knife))
                kept.append(link);
        }
        scene.graph.links = kept;
    });
}

} // namespace Studio
