#pragma once

#include <QIcon>
#include <QString>

namespace Studio {

/// Pictures for buttons and rows, drawn in the colours of the application's palette.
namespace Icons {

/// Draws the picture of that name; an empty one for a name that is not known.
QIcon make(const QString &name);
/// The window's icon.
QIcon application();

} // namespace Icons
} // namespace Studio
