#pragma once

#include "UiCustomizationsExport.h"

class QString;

namespace CUI {

class HotkeyFileInput;

/// What a hotkey set file says about itself.
namespace PresetMetadata {

/// QvelShortcutManager::peekPresetMetadata(), which documents it.
bool peek(const QString &path, bool &locked, QString &name);

/// The same for a file that has been read.
CUI_CORE_EXPORT bool peek(HotkeyFileInput &file, bool &locked, QString &name);

/// The same result, from a cache while neither the file nor the schema changes. Files that fail
/// are read again every time, so that the log names them every time.
bool peekCached(const QString &path, bool &locked, QString &name);

} // namespace PresetMetadata
} // namespace CUI
