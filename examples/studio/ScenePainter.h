#pragma once

#include "Camera.h"
#include "Rasterizer.h"
#include "Scene.h"
#include "ViewSettings.h"

#include <QPainter>

namespace Studio {

/// Draws a scene as one camera sees it.
class ScenePainter
{
public:
    ScenePainter(const Scene &scene, const ViewSettings &settings, const Camera &camera,
                 QSize size);

    /// Everything: background, objects and, where they are wanted, the overlays.
    void paint(QPainter &painter);
    /// Only what a renderer would show, of the objects that are to be rendered.
    QImage renderImage();

    /// The object at a place of the picture, 0 for none. After paint().
    int objectAt(QPoint place) const { return m_rasterizer.idAt(place); }
    /// The place of a point of the scene in the picture. After the constructor.
    std::optional<QVector3D> placeOf(QVector3D point) const
    {
        return m_rasterizer.toPicture(point);
    }

private:
    bool isShown(const SceneObject &object) const;
    void drawBackground(QPainter &painter) const;
    void drawMeshes();
    void drawMesh(const SceneObject &object);
    QVector3D shade(const QVector3D &normal, const QVector3D &color) const;
    QVector3D baseColor(const SceneObject &object) const;
    void drawLine(QPainter &painter, QVector3D from, QVector3D to, const QPen &pen,
                  bool showHidden) const;
    void drawGrid(QPainter &painter) const;
    void drawEdges(QPainter &painter) const;
    void drawMarks(QPainter &painter) const;
    void drawMark(QPainter &painter, const SceneObject &object) const;
    void drawVertices(QPainter &painter, const SceneObject &object) const;
    void drawAxes(QPainter &painter) const;
    void drawGizmo(QPainter &painter) const;
    void drawCursor(QPainter &painter) const;
    bool hasOverlays() const { return m_settings.overlays && !m_settings.heldHideOverlays; }
    bool isEdited(const SceneObject &object) const;

    const Scene &m_scene;
    const ViewSettings &m_settings;
    Camera m_camera;
    QSize m_size;
    Rasterizer m_rasterizer;
    QVector3D m_light;
    bool m_forRender = false;
};

} // namespace Studio
