#pragma once

#include "IPathManager.h"

#include <QString>

namespace CUI {

/// The directory of the user's hotkey sets; an empty text when the host names none.
inline QString userPresetDirectory()
{
    const IPathManager *paths = IPathManager::get();
    return paths != nullptr ? paths->getUserPresetDirectory() : QString();
}

} // namespace CUI
