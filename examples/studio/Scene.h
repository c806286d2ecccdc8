#pragma once

#include "NodeGraph.h"
#include "SceneObject.h"

#include <QSet>

#include <functional>

namespace Studio {

/// All that undo brings back: the objects, the material and the marks on the timeline.
struct Scene {
    QVector<SceneObject> objects;
    NodeGraph graph;
    QVector<int> markers; ///< frames, in order
    int rangeStart = 1;
    int rangeEnd = 120;
    int activeId = 0; ///< the object that was selected last; 0 for none
    int activeCamera = 0;
    int lastId = 0;

    /// What the application starts with.
    static Scene sample();

    SceneObject *find(int id);
    const SceneObject *find(int id) const;
    const SceneObject *active() const { return find(activeId); }
    /// The active object if it has a mesh, else null.
    const SceneObject *activeMesh() const;

    /// Adds an object with a name of its own and selects it alone.
    SceneObject &add(SceneObject::Kind kind, const QString &name);
    /// @p wanted, with a number behind it if another object has that name.
    QString freeName(const QString &wanted) const;

    QVector<int> selectedIds() const;
    QVector<int> childrenOf(int id) const;
    /// The selected objects and all below them.
    QSet<int> selectedHierarchy() const;
    bool isBelow(int id, int ancestor) const;
    /// The mean of the pivots of the selected objects, the holders' apart.
    QVector3D selectionCentre() const;

    void selectOnly(const QVector<int> &ids);
    void forSelected(const std::function<void(SceneObject &)> &change);
    void forSelectedHierarchy(const std::function<void(SceneObject &)> &change);
    /// Removes objects; their children become children of the next parent.
    void remove(const QSet<int> &ids);
    /// Copies the selected objects, with all below them, and selects the copies.
    void duplicateSelected(QVector3D offset);
    /// Puts each animated object where its keys have it at that frame.
    void applyFrame(double frame);
};

inline bool operator==(const Scene &a, const Scene &b)
{
    return a.objects == b.objects && a.graph == b.graph && a.markers == b.markers
           && a.rangeStart == b.rangeStart && a.rangeEnd == b.rangeEnd && a.activeId == b.activeId
           && a.activeCamera == b.activeCamera;
}

} // namespace Studio
