#include "Viewport.h"

#include "ScenePainter.h"

#include <QMouseEvent>
#include <QPainter>
#include <QWheelEvent>

#include <algorithm>
#include <cmath>

namespace Studio {

namespace {

const QStringList brushModes = {QStringLiteral("Sculpting"), QStringLiteral("Texture Paint")};

} // namespace

Viewport::Viewport(Document *document, ViewState *view, QWidget *parent)
    : QWidget(parent), m_document(document), m_view(view), m_views(1)
{
    setObjectName(QStringLiteral("viewport"));
    setMinimumSize(240, 180);
    setMouseTracking(true);
    setFocusPolicy(Qt::StrongFocus);
    connect(document, &Document::changed, this, [this] { update(); });
    connect(view, &ViewState::changed, this, [this] { update(); });
}

Viewport::~Viewport() = default;

// Views

void Viewport::setCamera(const Camera &camera)
{
    if (camera == m_camera)
        return;
    m_camera = camera;
    m_views.resize(m_currentView + 1);
    m_views.push_back(camera);
    ++m_currentView;
    update();
}

void Viewport::lookFrom(float yaw, float pitch)
{
    Camera camera = m_camera;
    camera.yaw = yaw;
    camera.pitch = pitch;
    setCamera(camera);
}

void Viewport::lookThrough(int cameraId)
{
    const SceneObject *object = m_document->scene().find(cameraId);
    if (object == nullptr)
        return;
    const QMatrix4x4 world = object->transform.matrix();
    Camera camera = m_camera;
    camera.perspective = true;
    camera.yaw = object->transform.rotation.z();
    camera.pitch = 90 - object->transform.rotation.x();
    camera.distance = 10;
    camera.target = world.map(QVector3D(0, 0, -camera.distance));
    setCamera(camera);
}

void Viewport::zoom(float factor)
{
    Camera camera = m_camera;
    camera.distance = std::clamp(camera.distance * factor, 0.5F, 80.F);
    setCamera(camera);
}

void Viewport::frameSelected()
{
    const QSet<int> ids = m_document->scene().selectedHierarchy();
    frame({ids.begin(), ids.end()});
}

void Viewport::frameAll()
{
    std::vector<int> ids;
    for (const SceneObject &object : m_document->scene().objects) {
        if (object.visible)
            ids.push_back(object.id);
    }
    frame(ids);
}

void Viewport::frame(const std::vector<int> &ids)
{
    QVector<QVector3D> points;
    for (int id : ids) {
        const SceneObject *object = m_document->scene().find(id);
        const QMatrix4x4 world = object->transform.matrix();
        for (const QVector3D &vertex : object->mesh.vertices)
            points.append(world.map(vertex));
        if (object->mesh.isEmpty() && !object->isHolder())
            points.append(object->transform.position);
    }
    if (points.isEmpty())
        return;
    QVector3D lowest = points.first();
    QVector3D highest = points.first();
    for (const QVector3D &point : qAsConst(points)) {
        for (int axis = 0; axis < 3; ++axis) {
            lowest[axis] = std::min(lowest[axis], point[axis]);
            highest[axis] = std::max(highest[axis], point[axis]);
        }
    }
    Camera camera = m_camera;
    camera.target = (lowest + highest) / 2;
    camera.distance = std::clamp((highest - lowest).length() * 1.35F, 1.5F, 80.F);
    setCamera(camera);
}

void Viewport::previousView()
{
    if (m_currentView == 0)
        return;
    m_camera = m_views[--m_currentView];
    update();
}

void Viewport::nextView()
{
    if (m_currentView + 1 >= m_views.size())
        return;
    m_camera = m_views[++m_currentView];
    update();
}

void Viewport::awaitRegion()
{
    m_regionAwaited = true;
    setCursor(Qt::CrossCursor);
    update();
}

// Painting

bool Viewport::isBrushMode() const
{
    return brushModes.contains(m_view->get().mode);
}

void Viewport::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    if (!m_view->get().quadView) {
        paintOne(painter, rect(), m_camera, true);
    } else {
        const int w = width() / 2;
        const int h = height() / 2;
        const float views[3][2] = {{0, 90}, {0, 0}, {90, 0}};
        for (int i = 0; i < 3; ++i) {
            Camera camera = m_camera;
            camera.perspective = false;
            camera.yaw = views[i][0];
            camera.pitch = views[i][1];
            paintOne(painter, QRect((i == 2 ? w : 0) + (i == 2 ? 1 : 0), i == 0 ? 0 : h + 1, w, h),
                     camera, false);
        }
        paintOne(painter, QRect(w + 1, 0, width() - w - 1, h), m_camera, true);
    }
    if (m_view->get().overlays && !m_view->get().heldHideOverlays)
        paintTexts(painter);
    if (m_drag == Drag::Region) {
        painter.setPen(QPen(Qt::white, 1, Qt::DashLine));
        painter.setBrush(QColor(255, 255, 255, 25));
        painter.drawRect(QRect(m_pressed, m_last).normalized());
    }
    if (isBrushMode()) {
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setPen(QPen(m_view->get().mode == QLatin1String("Sculpting")
                                    ? QColor(0xff, 0xc0, 0x80)
                                    : m_view->get().foreground,
                            1.5));
        painter.setBrush(Qt::NoBrush);
        const QPoint centre = underMouse() ? m_last : rect().center();
        painter.drawEllipse(centre, m_view->get().brushSize, m_view->get().brushSize);
    }
}

void Viewport::paintOne(QPainter &painter, const QRect &area, const Camera &camera, bool main)
{
    painter.save();
    painter.setClipRect(area);
    painter.translate(area.topLeft());
    if (main) {
        m_painted.reset();
        m_paintedScene = m_document->scene();
        m_paintedSettings = m_view->get();
        m_painted = std::make_unique<ScenePainter>(m_paintedScene, m_paintedSettings, camera,
                                                   area.size());
        m_painted->paint(painter);
    } else {
        ScenePainter(m_document->scene(), m_view->get(), camera, area.size()).paint(painter);
    }
    painter.restore();
}

QString Viewport::toolName() const
{
    switch (m_view->get().tool) {
    case ViewSettings::Tool::Select:
        return QStringLiteral("Select");
    case ViewSettings::Tool::Move:
        return QStringLiteral("Move");
    case ViewSettings::Tool::Rotate:
        return QStringLiteral("Rotate");
    case ViewSettings::Tool::Scale:
        return QStringLiteral("Scale");
    }
    return {};
}

QStringList Viewport::statusLines() const
{
    const ViewSettings &view = m_view->get();
    const QString dot = QStringLiteral("  \u00b7  ");
    QStringList state = {view.mode, toolName(),
                         QStringLiteral("Pivot: ") + ViewSettings::pivotNames().at(view.pivot),
                         ViewSettings::orientationNames().at(view.orientation)};
    if (view.snapping || view.heldSnapping)
        state << QStringLiteral("Snap: ") + ViewSettings::snapTargetNames().at(view.snapTarget);
    if (view.heldGridSnapping)
        state << QStringLiteral("Snap: Grid");
    if (view.proportional) {
        state << QStringLiteral("Proportional: ") + ViewSettings::falloffNames().at(view.falloff);
    }
    if (view.editPivot)
        state << QStringLiteral("Editing pivot");
    if (view.lockCamera)
        state << QStringLiteral("Camera locked to view");
    QStringList lines = {state.join(dot)};
    const SceneObject *active = m_document->scene().active();
    lines << (active != nullptr
                      ? active->name + dot
                                + QStringLiteral("%1 faces").arg(active->mesh.faces.size())
                                + (active->modifiers.isEmpty()
                                           ? QString()
                                           : dot + active->modifiers.join(QStringLiteral(", ")))
                      : QStringLiteral("Nothing selected"));
    if (isBrushMode()) {
        lines << QStringLiteral("%1, size %2, strength %3%4")
                         .arg(view.brush.isEmpty() ? QStringLiteral("Brush") : view.brush,
                              QString::number(view.brushSize), QString::number(view.brushStrength),
                              view.symmetry ? QStringLiteral(", symmetrical") : QString());
    }
    if (m_regionAwaited)
        lines << QStringLiteral("Drag the region to zoom to");
    return lines;
}

void Viewport::paintTexts(QPainter &painter) const
{
    const ViewSettings &view = m_view->get();
    int y = 22;
    for (const QString &line : statusLines()) {
        painter.setPen(QColor(0, 0, 0, 140));
        painter.drawText(13, y + 1, line);
        painter.setPen(QColor(0xe6, 0xe6, 0xe6));
        painter.drawText(12, y, line);
        y += painter.fontMetrics().lineSpacing() + 2;
    }
    if (!view.held.isEmpty()) {
        const QRect badge(12, height() - 36,
                          painter.fontMetrics().horizontalAdvance(view.held) + 24, 24);
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setPen(Qt::NoPen);
        painter.setBrush(QColor(0xff, 0x9c, 0x3a));
        painter.drawRoundedRect(badge, 5, 5);
        painter.setPen(QColor(0x20, 0x20, 0x20));
        painter.drawText(badge, Qt::AlignCenter, view.held);
    }
}

} // namespace Studio
