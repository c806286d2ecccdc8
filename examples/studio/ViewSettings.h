#pragma once

#include <QColor>
#include <QSet>
#include <QString>
#include <QStringList>
#include <QVector3D>

namespace Studio {

/// How the application shows the scene and which tools it has ready; undo leaves it alone.
struct ViewSettings {
    enum class Shading { Wireframe, Solid, Material, Rendered };
    enum class Tool { Select, Move, Rotate, Scale };
    enum class Components { Vertices, Edges, Faces };

    QString mode; ///< the name of the context that the viewport is in

    Shading shading = Shading::Solid;
    Tool tool = Tool::Select;
    Components components = Components::Faces;
    int fineness = 2; ///< how much finer than the screen is drawn, for smooth edges
    bool xRay = false;
    bool grid = true;
    bool overlays = true;
    bool edges = true;
    bool quadView = false;
    QSet<int> isolated; ///< only these are shown, if there are any

    int pivot = 0;
    int orientation = 0;
    int falloff = 0;
    int snapTarget = 0;
    bool proportional = false;
    bool snapping = false;
    bool editPivot = false;
    bool lockCamera = false;
    QVector3D cursor;

    QString held; ///< the name of the momentary action that is active
    bool heldOrbit = false;
    bool heldPan = false;
    bool heldZoom = false;
    bool heldSnapping = false;
    bool heldGridSnapping = false;
    bool heldHideOverlays = false;
    bool heldScrub = false;
    bool heldPixelSnap = false;
    bool heldCutLinks = false;

    QString brush;
    int brushSize = 40;
    int brushStrength = 50;
    bool symmetry = true;
    QColor foreground = QColor(0xe0, 0x70, 0x30);
    QColor background = QColor(Qt::white);

    double frame = 1;
    bool loop = true;
    bool autoKey = false;
    bool stretching = false;

    static QStringList pivotNames();
    static QStringList orientationNames();
    static QStringList falloffNames();
    static QStringList snapTargetNames();
};

} // namespace Studio
