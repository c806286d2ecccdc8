#pragma once

#include "ShortcutTransformation.h"
#include "UiCustomizationsExport.h"

#include <QString>

#include <vector>

namespace CUI {

class QvelShortcutManager;

/// What a user does to hotkeys at once: one command, however many steps it takes.
struct CUI_CORE_EXPORT HotkeyCommand {
    QString text; ///< for a menu: "Give Ctrl+S to Save"
    std::vector<ShortcutTransformation> steps;

    /// Makes the steps in their order, as edits of the user.
    void apply(QvelShortcutManager &manager) const;
};

} // namespace CUI
