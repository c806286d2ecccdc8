#pragma once

#include "HostCatalogue.h"

#include <QString>
#include <QStringList>

namespace Studio {

/// Which contexts of a catalogue belong to which part of the window, by their names. A context that
/// no part claims is a mode of the viewport, so that on any host every action can be reached.
namespace Areas {

/// The contexts that count in every area, behind the area's own.
QStringList everywhere(const Host::HostCatalogue &catalogue);
/// The contexts of the docks.
QStringList docks();
/// The names of the contexts that are modes of the viewport, in the order of the catalogue.
QStringList modes(const Host::HostCatalogue &catalogue);

} // namespace Areas
} // namespace Studio
