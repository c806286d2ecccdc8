#pragma once

#include "CanvasView.h"
#include "Document.h"
#include "ViewState.h"

namespace Studio {

/// The height of the active object over time, with its keys.
class GraphView : public CanvasView
{
    Q_OBJECT

public:
    GraphView(Document *document, ViewState *view, QWidget *parent = nullptr);

    void frameAll() { frame(everything()); }

    QSize sizeHint() const override { return {420, 240}; }

protected:
    QRectF everything() const override;
    double stretch() const override { return 0.06; }
    void paintEvent(QPaintEvent *event) override;

private:
    Document *m_document;
    ViewState *m_view;
};

} // namespace Studio
