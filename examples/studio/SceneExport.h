#pragma once

#include <QString>

namespace Studio {

struct Scene;

/// Files for other programs.
namespace SceneExport {

/// Writes the meshes as Wavefront text. False when the file cannot be written; it is then as it
/// was.
bool writeObj(const Scene &scene, bool onlySelected, const QString &path);

} // namespace SceneExport
} // namespace Studio
