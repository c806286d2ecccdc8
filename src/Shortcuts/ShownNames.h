#pragma once

#include "ActionIdentifier.h"
#include "UiCustomizationsExport.h"

#include <QString>

namespace CUI {

/// How users read what identifiers and texts of the store stand for, by the installed
/// ICuiActionManager.
namespace ShownNames {

/// The hotkey in the language and the symbols of the system; a text that names no key as it is.
CUI_CORE_EXPORT QString ofHotkey(const QString &hotkey);
/// The name of the action; its identifier when it is not registered.
CUI_CORE_EXPORT QString ofAction(const ActionIdentifier &action);
/// The name of the context; its number when it is not registered.
CUI_CORE_EXPORT QString ofContext(unsigned long contextId);
/// "Copy (Editing)".
CUI_CORE_EXPORT QString ofActionIn(const ActionIdentifier &action, unsigned long contextId);

} // namespace ShownNames
} // namespace CUI
