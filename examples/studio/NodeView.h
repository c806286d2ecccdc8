#pragma once

#include "CanvasView.h"
#include "Document.h"
#include "ViewState.h"

namespace Studio {

/// The boxes of the material. A click selects one, a drag moves it; a drag from the right end of
/// one to another links them.
class NodeView : public CanvasView
{
    Q_OBJECT

public:
    NodeView(Document *document, ViewState *view, QWidget *parent = nullptr);

    void frameSelected();
    void frameAll() { frame(everything()); }
    /// The place of a new node: the middle of the visible part.
    QPointF centre() const { return toPlane(QPointF(width(), height()) / 2); }

    QSize sizeHint() const override { return {420, 240}; }

protected:
    QRectF everything() const override;
    void paintEvent(QPaintEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;

private:
    QRectF areaOf(bool onlySelected) const;
    int nodeAt(QPointF place) const;
    const NodeGraph::Node *find(int id) const;
    bool isAtOutput(int id, QPointF place) const;
    void cutLinks(QPointF from, QPointF to);
    QPainterPath wire(QPointF from, QPointF to) const;
    void drawNode(QPainter &painter, const NodeGraph::Node &node) const;
    void drawFrames(QPainter &painter) const;
    QRectF onScreen(const QRectF &area) const;

    Document *m_document;
    ViewState *m_view;
    int m_pressedNode = 0;
    bool m_isLinking = false;
    QPointF m_pressed;
    QPointF m_last;
};

} // namespace Studio
