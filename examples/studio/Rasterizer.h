#pragma once

#include "Mesh.h"

#include <QImage>
#include <QMatrix4x4>
#include <QVector4D>

#include <functional>
#include <optional>
#include <vector>

namespace Studio {

/// Draws triangles with a depth buffer, and remembers for each pixel whose it is.
class Rasterizer
{
public:
    struct Corner {
        QVector4D clip; ///< before the division
        QVector3D color; ///< 0 to 1
    };

    /// Everything is @p factor times as fine as the picture that comes out.
    Rasterizer(QSize size, int factor);

    void setCamera(const QMatrix4x4 &viewProjection) { m_camera = viewProjection; }
    QVector4D toClip(QVector3D point) const { return m_camera * QVector4D(point, 1); }

    /// A polygon that bulges nowhere inwards. With @p alpha below 1 what lies behind shines
    /// through.
    void drawPolygon(std::vector<Corner> corners, int id, float alpha);
    /// Draws a border on the picture, inside and outside of the objects that @p chosen names.
    void outline(const std::function<bool(int)> &chosen, QRgb color, int width);

    /// The place in the picture and the depth; nothing for what is behind the eye.
    std::optional<QVector3D> toPicture(QVector3D point) const;
    /// Both ends of the part of a line that is before the eye, likewise.
    bool toPicture(QVector3D &from, QVector3D &to) const;
    bool isHidden(const QVector3D &place) const;
    int idAt(QPoint place) const;
    QImage picture() const;

private:
    void drawTriangle(const Corner &a, const Corner &b, const Corner &c, int id, float alpha);
    QVector3D toBuffer(const QVector4D &clip) const;
    std::size_t indexOf(int x, int y) const
    {
        return static_cast<std::size_t>(y) * static_cast<std::size_t>(m_width)
               + static_cast<std::size_t>(x);
    }

    QMatrix4x4 m_camera;
    int m_factor;
    int m_width;
    int m_height;
    QImage m_image;
    std::vector<float> m_depth;
    std::vector<int> m_ids;
};

} // namespace Studio
