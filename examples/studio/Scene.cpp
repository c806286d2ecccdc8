#include "Scene.h"

#include "Primitives.h"

#include <QHash>

#include <algorithm>

namespace Studio {

namespace {

const QVector<QColor> palette = {QColor(0xd0, 0x6b, 0x4c), QColor(0x5d, 0x8f, 0xc4),
                                 QColor(0x7d, 0xac, 0x5f), QColor(0xc9, 0xa2, 0x4b),
                                 QColor(0x9a, 0x78, 0xb8), QColor(0x58, 0xa8, 0xa0)};

Transform between(const Transform &a, const Transform &b, float share)
{
    Transform result;
    result.position = a.position + (b.position - a.position) * share;
    result.rotation = a.rotation + (b.rotation - a.rotation) * share;
    result.scale = a.scale + (b.scale - a.scale) * share;
    return result;
}

Transform at(const QMap<int, Transform> &keys, double frame)
{
    const auto next =
            std::find_if(keys.keyBegin(), keys.keyEnd(), [frame](int key) { return key >= frame; });
    if (next == keys.keyEnd())
        return keys.last();
    if (next == keys.keyBegin())
        return keys.first();
    const int after = *next;
    const int before = *std::prev(next);
    return between(keys.value(before), keys.value(after),
                   static_cast<float>((frame - before) / (after - before)));
}

SceneObject &place(Scene &scene, Primitive primitive, QVector3D position, float size)
{
    SceneObject &object = scene.add(SceneObject::Kind::Mesh, primitiveName(primitive));
    object.mesh = makePrimitive(primitive);
    object.transform.position = position;
    object.transform.scale = QVector3D(size, size, size);
    return object;
}

} // namespace

Scene Scene::sample()
{
    Scene scene;
    scene.graph = NodeGraph::sample();
    const int ground = place(scene, Primitive::Plane, {0, 0, 0}, 5).id;
    scene.find(ground)->name = QStringLiteral("Ground");
    scene.find(ground)->color = QColor(0x8a, 0x8d, 0x92);
    scene.find(ground)->selectable = false;
    const int stage = scene.add(SceneObject::Kind::Collection, QStringLiteral("Props")).id;
    place(scene, Primitive::Cube, {-2.3F, 0.6F, 0.9F}, 0.9F).parent = stage;
    SceneObject &sphere = place(scene, Primitive::Sphere, {0.1F, -0.6F, 1.05F}, 1.05F);
    sphere.smooth = true;
    sphere.parent = stage;
    SceneObject &cone = place(scene, Primitive::Cone, {2.4F, 0.9F, 1.0F}, 1);
    cone.parent = stage;
    SceneObject &torus = place(scene, Primitive::Torus, {1.9F, -2.2F, 0.4F}, 0.95F);
    torus.smooth = true;
    torus.parent = stage;
    torus.keys = {{1, torus.transform}, {60, torus.transform}, {120, torus.transform}};
    torus.keys[60].position.setZ(2.4F);
    torus.keys[60].rotation = QVector3D(70, 0, 90);
    scene.add(SceneObject::Kind::Light, QStringLiteral("Light")).transform.position = {3, -3, 5};
    SceneObject &camera = scene.add(SceneObject::Kind::Camera, QStringLiteral("Camera"));
    camera.transform.position = {7.5F, -6.5F, 4.8F};
    camera.transform.rotation = {64, 0, 49};
    scene.activeCamera = camera.id;
    for (const SceneObject &object : qAsConst(scene.objects)) {
        if (object.name == QLatin1String("Sphere"))
            scene.selectOnly({object.id});
    }
    return scene;
}

SceneObject *Scene::find(int id)
{
    const auto found = std::find_if(objects.begin(), objects.end(),
                                    [id](const SceneObject &o) { return o.id == id; });
    return found != objects.end() ? &*found : nullptr;
}

const SceneObject *Scene::find(int id) const
{
    const auto found = std::find_if(objects.begin(), objects.end(),
                                    [id](const SceneObject &o) { return o.id == id; });
    return found != objects.end() ? &*found : nullptr;
}

const SceneObject *Scene::activeMesh() const
{
    const SceneObject *object = active();
    return object != nullptr && !object->mesh.isEmpty() ? object : nullptr;
}

SceneObject &Scene::add(SceneObject::Kind kind, const QString &name)
{
    SceneObject object;
    object.id = ++lastId;
    object.name = freeName(name);
    object.kind = kind;
    object.color = palette.at(object.id % palette.size());
    objects.append(object);
    selectOnly({object.id});
    return objects.last();
}

QString Scene::freeName(const QString &wanted) const
{
    QString name = wanted;
    const auto isTaken = [this, &name] {
        return std::any_of(objects.begin(), objects.end(),
                           [&name](const SceneObject &o) { return o.name == name; });
    };
    for (int number = 2; isTaken(); ++number)
        name = wanted + QLatin1Char(' ') + QString::number(number);
    return name;
}

QVector<int> Scene::selectedIds() const
{
    QVector<int> ids;
    for (const SceneObject &object : objects) {
        if (object.selected)
            ids.append(object.id);
    }
    return ids;
}

QVector<int> Scene::childrenOf(int id) const
{
    QVector<int> ids;
    for (const SceneObject &object : objects) {
        if (object.parent == id)
            ids.append(object.id);
    }
    return ids;
}

bool Scene::isBelow(int id, int ancestor) const
{
    const SceneObject *object = find(id);
    for (int steps = 0; object != nullptr && steps <= objects.size(); ++steps) {
        if (object->parent == ancestor)
            return true;
        object = find(object->parent);
    }
    return false;
}

QSet<int> Scene::selectedHierarchy() const
{
    QSet<int> ids;
    const QVector<int> chosen = selectedIds();
    for (const SceneObject &object : objects) {
        const int id = object.id;
        if (object.selected || std::any_of(chosen.begin(), chosen.end(), [this, id](int above) {
                return isBelow(id, above);
            }))
            ids.insert(id);
    }
    return ids;
}

QVector3D Scene::selectionCentre() const
{
    QVector3D sum;
    int count = 0;
    for (int id : selectedHierarchy()) {
        const SceneObject *object = find(id);
        if (object->isHolder())
            continue;
        sum += object->pivotPoint();
        ++count;
    }
    return count > 0 ? sum / static_cast<float>(count) : sum;
}

void Scene::selectOnly(const QVector<int> &ids)
{
    for (SceneObject &object : objects)
        object.selected = ids.contains(object.id);
    activeId = ids.isEmpty() ? 0 : ids.last();
}

void Scene::forSelected(const std::function<void(SceneObject &)> &change)
{
    for (SceneObject &object : objects) {
        if (object.selected)
            change(object);
    }
}

void Scene::forSelectedHierarchy(const std::function<void(SceneObject &)> &change)
{
    for (int id : selectedHierarchy())
        change(*find(id));
}

void Scene::remove(const QSet<int> &ids)
{
    for (SceneObject &object : objects) {
        while (ids.contains(object.parent))
            object.parent = find(object.parent)->parent;
    }
    objects.erase(std::remove_if(objects.begin(), objects.end(),
                                 [&ids](const SceneObject &o) { return ids.contains(o.id); }),
                  objects.end());
    if (ids.contains(activeId))
        activeId = 0;
    if (ids.contains(activeCamera))
        activeCamera = 0;
}

void Scene::duplicateSelected(QVector3D offset)
{
    const QSet<int> originals = selectedHierarchy();
    QHash<int, int> copies;
    QVector<int> chosen;
    for (const SceneObject &object : QVector<SceneObject>(objects)) {
        if (!originals.contains(object.id))
            continue;
        SceneObject copy = object;
        copy.id = ++lastId;
        copy.name = freeName(object.name);
        copy.transform.position += offset;
        copies.insert(object.id, copy.id);
        if (object.selected)
            chosen.append(copy.id);
        objects.append(copy);
    }
    for (SceneObject &object : objects) {
        if (copies.values().contains(object.id))
            object.parent = copies.value(object.parent, object.parent);
    }
    selectOnly(chosen);
}

void Scene::applyFrame(double frame)
{
    for (SceneObject &object : objects) {
        if (!object.keys.isEmpty())
            object.transform = at(object.keys, frame);
    }
}

} // namespace Studio
