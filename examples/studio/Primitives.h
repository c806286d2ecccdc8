#pragma once

#include "Mesh.h"

#include <QString>

#include <array>

namespace Studio {

enum class Primitive { Cube, Sphere, Cylinder, Cone, Torus, Plane };

constexpr std::array<Primitive, 6> allPrimitives = {Primitive::Cube,     Primitive::Sphere,
                                                    Primitive::Cylinder, Primitive::Cone,
                                                    Primitive::Torus,    Primitive::Plane};

/// The display name.
QString primitiveName(Primitive primitive);

/// A mesh of about two units, centred at the origin, with an unwrapping.
Mesh makePrimitive(Primitive primitive);

} // namespace Studio
