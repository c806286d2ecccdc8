#include "RenderView.h"

#include "ScenePainter.h"

#include <QPainter>

namespace Studio {

namespace {

const QSize pictureSize(640, 360);

Camera cameraOf(const SceneObject *object)
{
    Camera camera;
    if (object == nullptr)
        return camera;
    camera.yaw = object->transform.rotation.z();
    camera.pitch = 90 - object->transform.rotation.x();
    camera.distance = 10;
    camera.target = object->transform.matrix().map(QVector3D(0, 0, -camera.distance));
    return camera;
}

} // namespace

RenderView::RenderView(Document *document, ViewState *view, QWidget *parent)
    : QWidget(parent), m_document(document), m_view(view)
{
    setObjectName(QStringLiteral("renderView"));
    setFocusPolicy(Qt::StrongFocus);
    setMinimumSize(120, 80);
}

void RenderView::render()
{
    const Scene &scene = m_document->scene();
    ScenePainter painter(scene, m_view->get(), cameraOf(scene.find(scene.activeCamera)),
                         pictureSize);
    m_slots[m_slot] = painter.renderImage();
    update();
}

void RenderView::nextSlot(int direction)
{
    m_slot = (m_slot + m_slots.size() + static_cast<std::size_t>(direction)) % m_slots.size();
    update();
}

void RenderView::toggleAlpha()
{
    m_onlyAlpha = !m_onlyAlpha;
    update();
}

void RenderView::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.fillRect(rect(), QColor(0x1e, 0x1f, 0x21));
    const QSize size = pictureSize.scaled(rect().size(), Qt::KeepAspectRatio);
    const QRect area(QPoint((width() - size.width()) / 2, (height() - size.height()) / 2), size);
    const QImage &image = picture();
    if (image.isNull()) {
        painter.setPen(QColor(0xb0, 0xb2, 0xb6));
        painter.drawText(area, Qt::AlignCenter, QStringLiteral("Nothing rendered yet"));
    } else if (m_onlyAlpha) {
        painter.fillRect(area, Qt::black);
        QImage mask(image.size(), QImage::Format_ARGB32_Premultiplied);
        mask.fill(Qt::white);
        QPainter masking(&mask);
        masking.setCompositionMode(QPainter::CompositionMode_DestinationIn);
        masking.drawImage(0, 0, image);
        masking.end();
        painter.drawImage(area, mask);
    } else {
        QLinearGradient sky(area.topLeft(), area.bottomLeft());
        sky.setColorAt(0, QColor(0x7d, 0x8d, 0xa3));
        sky.setColorAt(1, QColor(0x3b, 0x3e, 0x44));
        painter.fillRect(area, sky);
        painter.setRenderHint(QPainter::SmoothPixmapTransform);
        painter.drawImage(area, image);
    }
    painter.setPen(QColor(0xd0, 0xd2, 0xd6));
    painter.drawText(area.adjusted(8, 6, -8, -6), Qt::AlignTop | Qt::AlignLeft,
                     QStringLiteral("Slot %1").arg(m_slot + 1));
}

} // namespace Studio
