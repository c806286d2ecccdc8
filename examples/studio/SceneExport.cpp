#include "SceneExport.h"

#include "Scene.h"

#include <UiCustomizations/WholeFile.h>

#include <QTextStream>

namespace Studio::SceneExport {

namespace {

void write(QTextStream &out, const SceneObject &object, int &vertices, int &places)
{
    out << "o " << object.name.simplified() << '\n';
    const QMatrix4x4 world = object.transform.matrix();
    for (const QVector3D &vertex : object.mesh.vertices) {
        const QVector3D place = world.map(vertex);
        out << "v " << place.x() << ' ' << place.y() << ' ' << place.z() << '\n';
    }
    for (const Mesh::Face &face : object.mesh.faces) {
        for (const QPointF &uv : face.uv)
            out << "vt " << uv.x() << ' ' << uv.y() << '\n';
    }
    for (const Mesh::Face &face : object.mesh.faces) {
        out << 'f';
        for (int corner : face.corners)
            out << ' ' << vertices + corner << '/' << places++;
        out << '\n';
    }
    vertices += object.mesh.vertices.size();
}

} // namespace

bool writeObj(const Scene &scene, bool onlySelected, const QString &path)
{
    QByteArray text;
    QTextStream out(&text);
    out.setCodec("UTF-8");
    int vertices = 1;
    int places = 1;
    for (const SceneObject &object : scene.objects) {
        if (!object.mesh.isEmpty() && (object.selected || !onlySelected))
            write(out, object, vertices, places);
    }
    out.flush();
    return CUI::WholeFile::save(path, text).isEmpty();
}

} // namespace Studio::SceneExport
