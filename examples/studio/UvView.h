#pragma once

#include "CanvasView.h"
#include "Document.h"
#include "ViewState.h"

namespace Studio {

/// The unwrapped faces of the active mesh. A click selects a face.
class UvView : public CanvasView
{
    Q_OBJECT

public:
    UvView(Document *document, ViewState *view, QWidget *parent = nullptr);

    void frameSelected();
    void frameAll() { frame(everything()); }

    QSize sizeHint() const override { return {300, 300}; }

protected:
    QRectF everything() const override { return {0, 0, 1, 1}; }
    void paintEvent(QPaintEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;

private:
    QPolygonF polygon(const Mesh::Face &face) const;
    QColor fill(const Mesh &mesh, int face) const;

    Document *m_document;
    ViewState *m_view;
};

} // namespace Studio
