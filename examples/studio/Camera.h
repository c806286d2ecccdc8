#pragma once

#include <QMatrix4x4>
#include <QVector3D>

namespace Studio {

/// From where the scene is looked at: around a target, Z being up.
struct Camera {
    QVector3D target = QVector3D(0, 0, 0.7F);
    float yaw = 38; ///< degrees around Z; 0 looks along Y, which is the front
    float pitch = 26; ///< degrees above the ground; 90 looks down
    float distance = 11;
    bool perspective = true;

    QMatrix4x4 view() const
    {
        QMatrix4x4 matrix;
        matrix.translate(0, 0, -distance);
        matrix.rotate(pitch - 90, 1, 0, 0);
        matrix.rotate(-yaw, 0, 0, 1);
        matrix.translate(-target);
        return matrix;
    }

    QMatrix4x4 projection(float aspect) const
    {
        QMatrix4x4 matrix;
        if (perspective) {
            matrix.perspective(fieldOfView, aspect, nearPlane, farPlane);
        } else {
            const float half = halfHeight();
            matrix.ortho(-half * aspect, half * aspect, -half, half, -farPlane, farPlane);
        }
        return matrix;
    }

    /// Half of what is seen at the target, from bottom to top.
    float halfHeight() const { return distance * 0.3839F; }
    /// Where the eye is.
    QVector3D eye() const { return view().inverted().map(QVector3D(0, 0, 0)); }
    /// The directions on the screen, in the scene's coordinates.
    QVector3D right() const { return view().row(0).toVector3D(); }
    QVector3D up() const { return view().row(1).toVector3D(); }

    static constexpr float fieldOfView = 42;
    static constexpr float nearPlane = 0.05F;
    static constexpr float farPlane = 200;
};

inline bool operator==(const Camera &a, const Camera &b)
{
    return a.target == b.target && qFuzzyCompare(a.yaw + 1000, b.yaw + 1000)
           && qFuzzyCompare(a.pitch + 1000, b.pitch + 1000) && qFuzzyCompare(a.distance, b.distance)
           && a.perspective == b.perspective;
}

inline bool operator!=(const Camera &a, const Camera &b)
{
    return !(a == b);
}

} // namespace Studio
