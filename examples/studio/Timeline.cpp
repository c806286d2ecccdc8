#include "Timeline.h"

#include <QMouseEvent>
#include <QPainter>
#include <QWheelEvent>

#include <algorithm>
#include <cmath>

namespace Studio {

namespace {

constexpr int framesPerSecond = 24;
constexpr int rulerHeight = 24;
constexpr int margin = 12;

} // namespace

Timeline::Timeline(Document *document, ViewState *view, QWidget *parent)
    : QWidget(parent), m_document(document), m_view(view)
{
    setObjectName(QStringLiteral("timeline"));
    setFocusPolicy(Qt::StrongFocus);
    setMinimumSize(200, 84);
    m_timer.setInterval(1000 / framesPerSecond);
    connect(&m_timer, &QTimer::timeout, this, &Timeline::step);
    connect(document, &Document::changed, this, [this] { update(); });
    connect(view, &ViewState::changed, this, [this] { update(); });
}

int Timeline::frame() const
{
    return static_cast<int>(std::lround(m_view->get().frame));
}

void Timeline::play(int direction)
{
    m_direction = direction;
    if (direction != 0)
        m_timer.start();
    else
        m_timer.stop();
    update();
    Q_EMIT playbackChanged();
}

void Timeline::goTo(double frame)
{
    m_view->change([frame](ViewSettings &view) { view.frame = frame; });
    m_document->adjust([frame](Scene &scene) { scene.applyFrame(frame); });
}

void Timeline::step()
{
    const Scene &scene = m_document->scene();
    double next = m_view->get().frame + m_direction;
    if (next > scene.rangeEnd || next < scene.rangeStart) {
        if (!m_view->get().loop) {
            play(0);
            return;
        }
        next = m_direction > 0 ? scene.rangeStart : scene.rangeEnd;
    }
    goTo(next);
}

QVector<int> Timeline::keyFrames() const
{
    QSet<int> frames;
    const bool all = m_document->scene().selectedIds().isEmpty();
    for (const SceneObject &object : m_document->scene().objects) {
        if (!object.selected && !all)
            continue;
        for (int key : object.keys.keys())
            frames.insert(key);
    }
    QVector<int> sorted(frames.begin(), frames.end());
    std::sort(sorted.begin(), sorted.end());
    return sorted;
}

int Timeline::nearest(const QVector<int> &frames, int direction) const
{
    int best = frame();
    for (int candidate : frames) {
        const int ahead = (candidate - frame()) * direction;
        if (ahead > 0 && (best == frame() || ahead < (best - frame()) * direction))
            best = candidate;
    }
    return best;
}

void Timeline::frameRange()
{
    m_first = m_document->scene().rangeStart - 1;
    m_last = m_document->scene().rangeEnd + 5;
    update();
}

double Timeline::toX(double frame) const
{
    return margin + (frame - m_first) / (m_last - m_first) * (width() - 2 * margin);
}

double Timeline::toFrame(double x) const
{
    return m_first + (x - margin) / std::max(1, width() - 2 * margin) * (m_last - m_first);
}

void Timeline::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    const Scene &scene = m_document->scene();
    painter.fillRect(rect(), QColor(0x26, 0x28, 0x2a));
    painter.fillRect(
            QRectF(toX(scene.rangeStart), 0, toX(scene.rangeEnd) - toX(scene.rangeStart), height()),
            QColor(0x37, 0x39, 0x3d));
    painter.fillRect(0, 0, width(), rulerHeight, QColor(0, 0, 0, 60));
    const int step = (m_last - m_first) / std::max(1, width()) * 46 > 5 ? 10 : 5;
    for (int tick = static_cast<int>(m_first); tick <= m_last; ++tick) {
        if (tick % step != 0)
            continue;
        painter.setPen(QColor(255, 255, 255, 40));
        painter.drawLine(QPointF(toX(tick), rulerHeight - 6), QPointF(toX(tick), height()));
        painter.setPen(QColor(0xb8, 0xba, 0xbe));
        painter.drawText(QRectF(toX(tick) - 24, 2, 48, rulerHeight - 8), Qt::AlignCenter,
                         QString::number(tick));
    }
    painter.setRenderHint(QPainter::Antialiasing);
    const double middle = (rulerHeight + height()) / 2.0;
    painter.setPen(QColor(0x20, 0x20, 0x20));
    painter.setBrush(QColor(0xf0, 0xc2, 0x4b));
    for (int key : keyFrames()) {
        const QPointF at(toX(key), middle);
        painter.drawPolygon(QPolygonF({at + QPointF(0, -7), at + QPointF(6, 0), at + QPointF(0, 7),
                                       at + QPointF(-6, 0)}));
    }
    painter.setBrush(QColor(0x7d, 0xac, 0x5f));
    for (int marker : scene.markers) {
        const QPointF at(toX(marker), height() - 4);
        painter.drawPolygon(QPolygonF({at, at + QPointF(5, -9), at + QPointF(-5, -9)}));
    }
    const double x = toX(m_view->get().frame);
    painter.setPen(QPen(QColor(0x4f, 0x9d, 0xf0), 2));
    painter.drawLine(QPointF(x, 0), QPointF(x, height()));
    const QRectF flag(x - 17, 1, 34, rulerHeight - 5);
    painter.setPen(Qt::NoPen);
    painter.setBrush(m_view->get().autoKey ? QColor(0xd0, 0x45, 0x45) : QColor(0x2f, 0x74, 0xc0));
    painter.drawRoundedRect(flag, 4, 4);
    painter.setPen(Qt::white);
    painter.drawText(flag, Qt::AlignCenter, QString::number(frame()));
    const QString state = QStringLiteral("%1  %2").arg(
            m_direction == 0  ? QStringLiteral("Stopped")
            : m_direction > 0 ? QStringLiteral("Playing")
                              : QStringLiteral("Playing back"),
            m_view->get().loop ? QStringLiteral("Loop") : QStringLiteral("Once"));
    painter.setPen(QColor(0xb8, 0xba, 0xbe));
    painter.drawText(QRectF(margin, height() - 20, width() - 2 * margin, 18), Qt::AlignRight,
                     state);
}

void Timeline::mousePressEvent(QMouseEvent *event)
{
    if (event->button() == Qt::LeftButton)
        goTo(std::round(toFrame(event->localPos().x())));
}

void Timeline::mouseMoveEvent(QMouseEvent *event)
{
    if ((event->buttons() & Qt::LeftButton) != 0 || m_view->get().heldScrub)
        goTo(std::round(toFrame(event->localPos().x())));
}

void Timeline::wheelEvent(QWheelEvent *event)
{
    const double under = toFrame(event->position().x());
    const double factor = std::pow(0.9985, event->angleDelta().y());
    m_first = under + (m_first - under) * factor;
    m_last = under + (m_last - under) * factor;
    update();
    event->accept();
}

} // namespace Studio
