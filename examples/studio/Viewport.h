#pragma once

#include "Camera.h"
#include "Document.h"
#include "ViewState.h"

#include <QPoint>
#include <QWidget>

#include <memory>
#include <vector>

namespace Studio {

/// The view of the scene. The middle button orbits, with Shift it pans, the wheel zooms; the left
/// one selects, and with a tool it moves, rotates or scales what is selected.
class Viewport : public QWidget
{
    Q_OBJECT

public:
    Viewport(Document *document, ViewState *view, QWidget *parent = nullptr);
    ~Viewport() override;

    const Camera &camera() const { return m_camera; }
    /// Looks from there, and remembers from where it was.
    void setCamera(const Camera &camera);
    void lookFrom(float yaw, float pitch);
    void lookThrough(int cameraId);
    void zoom(float factor);
    /// Brings what is selected into view, or everything.
    void frameSelected();
    void frameAll();
    void previousView();
    void nextView();
    /// Zooms to the rectangle that is dragged next.
    void awaitRegion();

    QSize sizeHint() const override { return {860, 560}; }

protected:
    void paintEvent(QPaintEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void wheelEvent(QWheelEvent *event) override;
    void leaveEvent(QEvent *event) override;

private:
    enum class Drag { None, Orbit, Pan, Zoom, Transform, Region, Sculpt };

    Drag dragFor(const QMouseEvent &event) const;
    void navigate(QPoint moved);
    void transformTo(QPoint place);
    void sculptAt(QPoint place, bool begins);
    void pick(QPoint place, bool add);
    void pickFace(QPoint place, bool add);
    void zoomToRegion();
    void frame(const std::vector<int> &ids);
    void paintOne(QPainter &painter, const QRect &area, const Camera &camera, bool main);
    void paintTexts(QPainter &painter) const;
    QStringList statusLines() const;
    QString toolName() const;
    bool isBrushMode() const;

    Document *m_document;
    ViewState *m_view;
    Camera m_camera;
    std::vector<Camera> m_views;
    std::size_t m_currentView = 0;
    Drag m_drag = Drag::None;
    QPoint m_pressed;
    QPoint m_last;
    bool m_regionAwaited = false;
    std::unique_ptr<class ScenePainter> m_painted; ///< knows what is where in the main view
    Scene m_paintedScene; ///< what it refers to
    ViewSettings m_paintedSettings;
};

} // namespace Studio
