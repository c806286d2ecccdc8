#include "Rasterizer.h"

#include <algorithm>
#include <cmath>

namespace Studio {

namespace {

constexpr float nearLimit = 1e-3F;
constexpr float depthTolerance = 0.0006F;

bool isBefore(const QVector4D &clip)
{
    return clip.z() + clip.w() > nearLimit && clip.w() > nearLimit;
}

/// Where the line between two points crosses the plane before the eye.
float crossing(const QVector4D &a, const QVector4D &b)
{
    const float fromA = a.z() + a.w() - nearLimit;
    const float fromB = b.z() + b.w() - nearLimit;
    return std::clamp(fromA / (fromA - fromB), 0.F, 1.F);
}

std::vector<Rasterizer::Corner> clipped(const std::vector<Rasterizer::Corner> &corners)
{
    std::vector<Rasterizer::Corner> kept;
    for (std::size_t i = 0; i < corners.size(); ++i) {
        const Rasterizer::Corner &a = corners[i];
        const Rasterizer::Corner &b = corners[(i + 1) % corners.size()];
        if (isBefore(a.clip))
            kept.push_back(a);
        if (isBefore(a.clip) != isBefore(b.clip)) {
            const float share = crossing(a.clip, b.clip);
            kept.push_back(
                    {a.clip + (b.clip - a.clip) * share, a.color + (b.color - a.color) * share});
        }
    }
    return kept;
}

uint channel(float value, uint below, float alpha)
{
    const float mixed =
            std::clamp(value, 0.F, 1.F) * 255 * alpha + static_cast<float>(below) * (1 - alpha);
    return static_cast<uint>(qRound(mixed));
}

QRgb blend(const QVector3D &color, QRgb below, float alpha)
{
    const uint opacity = channel(1, static_cast<uint>(qAlpha(below)), alpha);
    return (opacity << 24) | (channel(color.x(), static_cast<uint>(qRed(below)), alpha) << 16)
           | (channel(color.y(), static_cast<uint>(qGreen(below)), alpha) << 8)
           | channel(color.z(), static_cast<uint>(qBlue(below)), alpha);
}

float edge(const QVector3D &a, const QVector3D &b, float x, float y)
{
    return (b.x() - a.x()) * (y - a.y()) - (b.y() - a.y()) * (x - a.x());
}

} // namespace

Rasterizer::Rasterizer(QSize size, int factor)
    : m_factor(factor),
      m_width(std::max(1, size.width()) * factor),
      m_height(std::max(1, size.height()) * factor),
      m_image(m_width, m_height, QImage::Format_ARGB32_Premultiplied),
      m_depth(indexOf(0, m_height), 1.F),
      m_ids(indexOf(0, m_height), 0)
{
    m_image.fill(Qt::transparent);
}

QVector3D Rasterizer::toBuffer(const QVector4D &clip) const
{
    return {(clip.x() / clip.w() + 1) / 2 * static_cast<float>(m_width),
            (1 - clip.y() / clip.w()) / 2 * static_cast<float>(m_height), clip.z() / clip.w()};
}

void Rasterizer::drawPolygon(std::vector<Corner> corners, int id, float alpha)
{
    if (!std::all_of(corners.begin(), corners.end(),
                     [](const Corner &corner) { return isBefore(corner.clip); }))
        corners = clipped(corners);
    for (std::size_t i = 2; i < corners.size(); ++i)
        drawTriangle(corners[0], corners[i - 1], corners[i], id, alpha);
}

void Rasterizer::drawTriangle(const Corner &a, const Corner &b, const Corner &c, int id,
                              float alpha)
{
    const QVector3D p = toBuffer(a.clip);
    const QVector3D q = toBuffer(b.clip);
    const QVector3D r = toBuffer(c.clip);
    const float area = edge(p, q, r.x(), r.y());
    if (std::abs(area) < 1e-6F)
        return;
    const auto limit = [](float value, int end) {
        return static_cast<int>(std::clamp(value, 0.F, static_cast<float>(end)));
    };
    const int left = limit(std::min({p.x(), q.x(), r.x()}), m_width);
    const int right = limit(std::max({p.x(), q.x(), r.x()}) + 1, m_width);
    const int top = limit(std::min({p.y(), q.y(), r.y()}), m_height);
    const int bottom = limit(std::max({p.y(), q.y(), r.y()}) + 1, m_height);
    for (int y = top; y < bottom; ++y) {
        auto *line = reinterpret_cast<QRgb *>(m_image.scanLine(y));
        for (int x = left; x < right; ++x) {
            const float px = static_cast<float>(x) + 0.5F;
            const float py = static_cast<float>(y) + 0.5F;
            const float u = edge(q, r, px, py) / area;
            const float v = edge(r, p, px, py) / area;
            const float w = 1 - u - v;
            if (u < 0 || v < 0 || w < 0)
                continue;
            const float depth = u * p.z() + v * q.z() + w * r.z();
            const std::size_t index = indexOf(x, y);
            if (depth >= m_depth[index])
                continue;
            line[x] = blend(a.color * u + b.color * v + c.color * w, line[x], alpha);
            m_ids[index] = id;
            if (alpha >= 1)
                m_depth[index] = depth;
        }
    }
}

void Rasterizer::outline(const std::function<bool(int)> &chosen, QRgb color, int width)
{
    std::vector<char> inside(m_ids.size());
    int lastId = 0;
    bool isChosen = false;
    for (std::size_t i = 0; i < m_ids.size(); ++i) {
        if (m_ids[i] != lastId) {
            lastId = m_ids[i];
            isChosen = lastId != 0 && chosen(lastId);
        }
        inside[i] = isChosen ? 1 : 0;
    }
    for (int y = width; y < m_height - width; ++y) {
        auto *line = reinterpret_cast<QRgb *>(m_image.scanLine(y));
        for (int x = width; x < m_width - width; ++x) {
            const char here = inside[indexOf(x, y)];
            if (here == 0
                && (inside[indexOf(x - width, y)] != 0 || inside[indexOf(x + width, y)] != 0
                    || inside[indexOf(x, y - width)] != 0 || inside[indexOf(x, y + width)] != 0))
                line[x] = color;
        }
    }
}

std::optional<QVector3D> Rasterizer::toPicture(QVector3D point) const
{
    const QVector4D clip = toClip(point);
    if (!isBefore(clip))
        return {};
    const QVector3D place = toBuffer(clip);
    const auto factor = static_cast<float>(m_factor);
    return QVector3D(place.x() / factor, place.y() / factor, place.z());
}

bool Rasterizer::toPicture(QVector3D &from, QVector3D &to) const
{
    const QVector4D a = toClip(from);
    const QVector4D b = toClip(to);
    if (!isBefore(a) && !isBefore(b))
        return false;
    const QVector4D cut = isBefore(a) == isBefore(b) ? a : a + (b - a) * crossing(a, b) * 1.F;
    QVector4D first = isBefore(a) ? a : cut;
    QVector4D second = isBefore(b) ? b : cut;
    first.setW(std::max(first.w(), nearLimit));
    second.setW(std::max(second.w(), nearLimit));
    const QVector3D factor(1 / static_cast<float>(m_factor), 1 / static_cast<float>(m_factor), 1);
    from = toBuffer(first) * factor;
    to = toBuffer(second) * factor;
    return true;
}

bool Rasterizer::isHidden(const QVector3D &place) const
{
    const int x = static_cast<int>(place.x() * static_cast<float>(m_factor));
    const int y = static_cast<int>(place.y() * static_cast<float>(m_factor));
    if (x < 0 || y < 0 || x >= m_width || y >= m_height)
        return true;
    return place.z() > m_depth[indexOf(x, y)] + depthTolerance;
}

int Rasterizer::idAt(QPoint place) const
{
    const int x = place.x() * m_factor;
    const int y = place.y() * m_factor;
    if (x < 0 || y < 0 || x >= m_width || y >= m_height)
        return 0;
    return m_ids[indexOf(x, y)];
}

QImage Rasterizer::picture() const
{
    if (m_factor == 1)
        return m_image;
    return m_image.scaled(m_width / m_factor, m_height / m_factor, Qt::IgnoreAspectRatio,
                          Qt::SmoothTransformation);
}

} // namespace Studio
