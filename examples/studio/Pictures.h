#pragma once

#include <QString>

namespace Studio {

/// The pictures of the documentation.
namespace Pictures {

/// Writes editor-light.png and editor-dark.png, the hotkey editor with a conflict, into a folder.
/// False when that fails; @p error then says why.
bool write(const QString &hostDirectory, const QString &folder, QString &error);

} // namespace Pictures
} // namespace Studio
