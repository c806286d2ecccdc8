#pragma once

#include "IPathManager.h"

namespace CUI {

/// The installed IPathManager. Without one, a manager that names no file and no directory.
IPathManager &installedPaths();

} // namespace CUI
