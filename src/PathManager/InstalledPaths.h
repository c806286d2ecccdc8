#pragma once

#include "IPathManager.h"
#include "UiCustomizationsExport.h"

namespace CUI {

/// The installed IPathManager. Without one, a manager that names no file and no directory.
CUI_CORE_EXPORT IPathManager &installedPaths();

} // namespace CUI
