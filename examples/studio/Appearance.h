#pragma once

namespace Studio {

/// How the application looks, whatever the desktop does.
namespace Appearance {

/// The Fusion style with its light palette or a dark one.
void apply(bool dark);

} // namespace Appearance
} // namespace Studio
