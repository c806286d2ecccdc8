#pragma once

#include "Mesh.h"

#include <QColor>
#include <QMap>
#include <QMatrix4x4>
#include <QString>
#include <QStringList>

#include <tuple>

namespace Studio {

/// Where an object is, in the scene's coordinates.
struct Transform {
    QVector3D position;
    QVector3D rotation; ///< degrees around X, Y and Z, in that order
    QVector3D scale = QVector3D(1, 1, 1);

    QMatrix4x4 matrix() const
    {
        QMatrix4x4 result;
        result.translate(position);
        result.rotate(rotation.z(), 0, 0, 1);
        result.rotate(rotation.y(), 0, 1, 0);
        result.rotate(rotation.x(), 1, 0, 0);
        result.scale(scale);
        return result;
    }
};

inline bool operator==(const Transform &a, const Transform &b)
{
    return a.position == b.position && a.rotation == b.rotation && a.scale == b.scale;
}

/// One thing in the scene. Groups and collections only hold others; lights and cameras have no
/// mesh.
struct SceneObject {
    enum class Kind { Mesh, Light, Camera, Group, Collection, Joint };

    int id = 0;
    QString name;
    Kind kind = Kind::Mesh;
    int parent = 0; ///< 0 for none
    Transform transform;
    QVector3D pivot; ///< in the object's own coordinates
    Mesh mesh;
    QColor color;
    bool smooth = false;
    bool selected = false;
    bool visible = true;
    bool selectable = true;
    bool renderable = true;
    QStringList modifiers;
    QMap<int, Transform> keys; ///< by frame

    bool isHolder() const { return kind == Kind::Group || kind == Kind::Collection; }
    QVector3D pivotPoint() const { return transform.matrix().map(pivot); }
};

inline bool operator==(const SceneObject &a, const SceneObject &b)
{
    const auto fields = [](const SceneObject &o) {
        return std::tie(o.id, o.name, o.kind, o.parent, o.transform, o.pivot, o.mesh, o.color,
                        o.smooth, o.selected, o.visible, o.selectable, o.renderable, o.modifiers,
                        o.keys);
    };
    return fields(a) == fields(b);
}

} // namespace Studio
