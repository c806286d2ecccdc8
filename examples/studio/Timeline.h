#pragma once

#include "Document.h"
#include "ViewState.h"

#include <QTimer>
#include <QWidget>

namespace Studio {

/// The frames, with the keyframes of the selected objects and the playhead. A press moves the
/// playhead.
class Timeline : public QWidget
{
    Q_OBJECT

public:
    Timeline(Document *document, ViewState *view, QWidget *parent = nullptr);

    /// 1 forwards, -1 backwards, 0 stops.
    void play(int direction);
    int direction() const { return m_direction; }
    /// Shows a frame: moves everything that is animated to its place in it.
    void goTo(double frame);
    int frame() const;
    /// The nearest of @p frames after the playhead, or before it with -1; the playhead if none is.
    int nearest(const QVector<int> &frames, int direction) const;
    /// Frames at which a selected object, or without a selection any object, has a key.
    QVector<int> keyFrames() const;
    void frameRange();

    QSize sizeHint() const override { return {860, 110}; }

Q_SIGNALS:
    void playbackChanged();

protected:
    void paintEvent(QPaintEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void wheelEvent(QWheelEvent *event) override;

private:
    void step();
    double toX(double frame) const;
    double toFrame(double x) const;

    Document *m_document;
    ViewState *m_view;
    QTimer m_timer;
    int m_direction = 0;
    double m_first = 0; ///< the frames that are seen
    double m_last = 125;
};

} // namespace Studio
