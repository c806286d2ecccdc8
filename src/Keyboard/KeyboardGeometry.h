#pragma once

#include "KeyboardLayout.h"

#include <QRectF>
#include <QVector>

#include <vector>

namespace CUI {

/// Where the keys of a keyboard are. The unit is the distance from one letter key to the next.
namespace KeyboardGeometry {

struct Place {
    int code = 0;
    /// The cap is their union: one rectangle, or two for an Enter in two rows.
    QVector<QRectF> parts;
};

constexpr double width = 22.5;
constexpr double height = 6.5;

/// The keys row by row, from the left. On a keyboard of shape Iso, @p hasKeyBesideRightShift is
/// true if it has that key, as keyboards of Brazil do.
std::vector<Place> places(KeyboardLayout::Shape shape, bool hasKeyBesideRightShift);

} // namespace KeyboardGeometry
} // namespace CUI
