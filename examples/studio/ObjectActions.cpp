#include "ActionTable.h"
#include "Actions.h"
#include "MainWindow.h"
#include "MeshEditing.h"
#include "Primitives.h"

#include <memory>

namespace Studio::Actions {

namespace {

using Change = std::function<void(Scene &)>;

void addEdit(ActionTable &table, Document &document, const char *id, const QString &name,
             const Change &change)
{
    table.add(id, [&document, name, change] { document.edit(name, change); });
}

/// Below one new object of that kind.
void gather(Scene &scene, SceneObject::Kind kind, const QString &name)
{
    const QVector<int> ids = scene.selectedIds();
    if (ids.isEmpty())
        return;
    const int above = scene.find(ids.first())->parent;
    const int id = scene.add(kind, name).id;
    scene.find(id)->parent = above;
    for (int child : ids)
        scene.find(child)->parent = id;
}

void ungroup(Scene &scene)
{
    QSet<int> groups;
    QVector<int> freed;
    scene.forSelected([&](SceneObject &object) {
        if (!object.isHolder())
            return;
        groups.insert(object.id);
        freed += scene.childrenOf(object.id);
    });
    scene.remove(groups);
    if (!groups.isEmpty())
        scene.selectOnly(freed);
}

void parentToActive(Scene &scene)
{
    const int target = scene.activeId;
    scene.forSelected([&](SceneObject &object) {
        if (object.id != target && !scene.isBelow(target, object.id))
            object.parent = target;
    });
}

void join(Scene &scene)
{
    const QVector<int> ids = scene.selectedIds();
    SceneObject *target = scene.find(scene.activeId);
    if (target == nullptr || target->mesh.isEmpty() || ids.size() < 2)
        return;
    const QMatrix4x4 inverse = target->transform.matrix().inverted();
    QSet<int> joined;
    for (int id : ids) {
        const SceneObject *object = scene.find(id);
        if (id == target->id || object->mesh.isEmpty())
            continue;
        const QMatrix4x4 place = inverse * object->transform.matrix();
        const int first = target->mesh.vertices.size();
        for (const QVector3D &vertex : object->mesh.vertices)
            target->mesh.vertices.append(place.map(vertex));
        for (Mesh::Face face : object->mesh.faces) {
            for (int &corner : face.corners)
                corner += first;
            target->mesh.faces.append(face);
        }
        joined.insert(id);
    }
    scene.remove(joined);
}

void freeze(SceneObject &object)
{
    const QMatrix4x4 world = object.transform.matrix();
    for (QVector3D &vertex : object.mesh.vertices)
        vertex = world.map(vertex);
    object.transform = Transform();
}

void centrePivot(SceneObject &object)
{
    QVector3D sum;
    for (const QVector3D &vertex : qAsConst(object.mesh.vertices))
        sum += vertex;
    object.pivot = object.mesh.isEmpty() ? QVector3D()
                                         : sum / static_cast<float>(object.mesh.vertices.size());
}

void selectRelatives(Scene &scene, bool children)
{
    QVector<int> ids;
    scene.forSelected([&](SceneObject &object) {
        if (children)
            ids += scene.childrenOf(object.id);
        else if (object.parent != 0)
            ids.append(object.parent);
    });
    if (!ids.isEmpty())
        scene.selectOnly(ids);
}

void addCreation(ActionTable &table, MainWindow &window)
{
    Document &document = window.document();
    ViewState &view = window.view();
    // One kind after the other, so that the one key makes them all.
    const auto next = std::make_shared<std::size_t>(0);
    table.add("2-addPrimitive", [&document, &view, next] {
        const Primitive primitive = allPrimitives.at(*next);
        *next = (*next + 1) % allPrimitives.size();
        document.edit(QStringLiteral("Add %1").arg(primitiveName(primitive)), [&](Scene &scene) {
            SceneObject &object = scene.add(SceneObject::Kind::Mesh, primitiveName(primitive));
            object.mesh = makePrimitive(primitive);
            object.transform.position = view.get().cursor;
            object.smooth = primitive == Primitive::Sphere || primitive == Primitive::Torus;
        });
    });
    addEdit(table, document, "2-addLight", QStringLiteral("Add Light"), [](Scene &scene) {
        scene.add(SceneObject::Kind::Light, QStringLiteral("Light")).transform.position = {-2, -3,
                                                                                           4};
    });
    addEdit(table, document, "2-addCamera", QStringLiteral("Add Camera"), [](Scene &scene) {
        SceneObject &camera = scene.add(SceneObject::Kind::Camera, QStringLiteral("Camera"));
        camera.transform.position = {0, -8, 2};
        camera.transform.rotation = {80, 0, 0};
        scene.activeCamera = camera.id;
    });
    addEdit(table, document, "2-duplicateObject", QStringLiteral("Duplicate"), [](Scene &scene) {
        scene.duplicateSelected({0.8F, 0.8F, 0});
    });
    addEdit(table, document, "2-duplicateLinked", QStringLiteral("Duplicate Linked"),
            [](Scene &scene) {
                scene.duplicateSelected({-0.8F, 0.8F, 0});
            });
    addEdit(table, document, "2-arrayDuplicate", QStringLiteral("Duplicate as Array"),
            [](Scene &scene) {
                for (int i = 0; i < 3; ++i)
                    scene.duplicateSelected({1.5F, 0, 0});
            });
    addEdit(table, document, "2-deleteObject", QStringLiteral("Delete"), [](Scene &scene) {
        const QVector<int> ids = scene.selectedIds();
        scene.remove({ids.begin(), ids.end()});
    });
}

void addHierarchy(ActionTable &table, Document &document)
{
    addEdit(table, document, "2-groupObjects", QStringLiteral("Group"),
            [](Scene &scene) { gather(scene, SceneObject::Kind::Group, QStringLiteral("Group")); });
    addEdit(table, document, "2-ungroupObjects", QStringLiteral("Ungroup"), ungroup);
    addEdit(table, document, "2-parentObjects", QStringLiteral("Set Parent"), parentToActive);
    addEdit(table, document, "2-clearParent", QStringLiteral("Clear Parent"),
            [](Scene &scene) { scene.forSelected([](SceneObject &o) { o.parent = 0; }); });
    addEdit(table, document, "2-selectParent", QStringLiteral("Select Parent"),
            [](Scene &scene) { selectRelatives(scene, false); });
    addEdit(table, document, "2-selectChildren", QStringLiteral("Select Children"),
            [](Scene &scene) { selectRelatives(scene, true); });
    addEdit(table, document, "12-newCollection", QStringLiteral("New Collection"),
            [](Scene &scene) {
                scene.add(SceneObject::Kind::Collection, QStringLiteral("Collection"));
            });
    addEdit(table, document, "12-moveToCollection", QStringLiteral("Move to Collection"),
            [](Scene &scene) {
                gather(scene, SceneObject::Kind::Collection, QStringLiteral("Collection"));
            });
}

void addModification(ActionTable &table, Document &document)
{
    const auto forSelected = [&](const char *id, const QString &name, auto change) {
        addEdit(table, document, id, name, [change](Scene &scene) { scene.forSelected(change); });
    };
    addEdit(table, document, "2-joinObjects", QStringLiteral("Join"), join);
    forSelected("2-mirrorObject", QStringLiteral("Mirror"), [](SceneObject &o) {
        o.transform.position.setX(-o.transform.position.x());
        o.transform.rotation *= QVector3D(1, -1, -1);
        for (QVector3D &vertex : o.mesh.vertices)
            vertex.setX(-vertex.x());
        const QSet<int> selected = o.mesh.selected;
        MeshEditing::selectAll(o.mesh); // mirrored faces would look inwards
        MeshEditing::flipNormals(o.mesh);
        o.mesh.selected = selected;
    });
    forSelected("2-freezeTransforms", QStringLiteral("Freeze Transforms"), freeze);
    forSelected("2-resetTransforms", QStringLiteral("Reset Transforms"),
                [](SceneObject &o) { o.transform = Transform(); });
    forSelected("2-centerPivot", QStringLiteral("Center Pivot"), centrePivot);
    addEdit(table, document, "2-alignObjects", QStringLiteral("Align Objects"), [](Scene &scene) {
        if (const SceneObject *active = scene.active()) {
            const float height = active->transform.position.z();
            const float depth = active->transform.position.y();
            scene.forSelected([height, depth](SceneObject &o) {
                o.transform.position.setZ(height);
                o.transform.position.setY(depth);
            });
        }
    });
    forSelected("2-addModifier", QStringLiteral("Add Modifier"), [](SceneObject &o) {
        if (!o.mesh.isEmpty())
            o.modifiers.append(QStringLiteral("Subdivision"));
    });
    forSelected("2-applyModifiers", QStringLiteral("Apply All Modifiers"), [](SceneObject &o) {
        const QSet<int> selected = o.mesh.selected;
        for (int i = 0; i < o.modifiers.size() && o.mesh.faces.size() < 20000; ++i) {
            MeshEditing::selectAll(o.mesh);
            MeshEditing::subdivide(o.mesh);
            MeshEditing::selectAll(o.mesh);
            MeshEditing::smooth(o.mesh);
        }
        o.mesh.selected = selected;
        o.modifiers.clear();
    });
    forSelected("2-shadeSmooth", QStringLiteral("Shade Smooth"),
                [](SceneObject &o) { o.smooth = true; });
    forSelected("2-shadeFlat", QStringLiteral("Shade Flat"),
                [](SceneObject &o) { o.smooth = false; });
}

} // namespace

void addObject(ActionTable &table, MainWindow &window)
{
    Document &document = window.document();
    addCreation(table, window);
    addHierarchy(table, document);
    addModification(table, document);
    addEdit(table, document, "2-hideObject", QStringLiteral("Hide Selected"), [](Scene &scene) {
        scene.forSelectedHierarchy([](SceneObject &o) { o.visible = false; });
    });
    addEdit(table, document, "2-hideUnselected", QStringLiteral("Hide Unselected"),
            [](Scene &scene) {
                const QSet<int> kept = scene.selectedHierarchy();
                for (SceneObject &object : scene.objects)
                    object.visible = object.visible && kept.contains(object.id);
            });
    addEdit(table, document, "2-showAll", QStringLiteral("Show All"), [](Scene &scene) {
        for (SceneObject &object : scene.objects)
            object.visible = true;
    });
    table.add("2-editPivot", [&window] {
        window.view().change([](ViewSettings &v) { v.editPivot = !v.editPivot; });
    });
    table.add("2-enterEditMode", [&window] {
        const bool inMesh = window.view().get().mode == QLatin1String("Mesh");
        window.setMode(inMesh ? QStringLiteral("Object") : QStringLiteral("Mesh"));
    });
}

} // namespace Studio::Actions
