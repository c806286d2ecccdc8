#pragma once

#include "ShortcutTransformation.h"
#include "UiCustomizationsExport.h"
#include "XmlError.h"

#include <QString>

#include <optional>
#include <vector>

class QIODevice;

namespace CUI {

class XmlDocument;

/// Codec of the hotkey set file (suffix hsx): the steps that turn the base configuration into a
/// user's set.
namespace HotkeySetFile {

struct Content {
    std::vector<ShortcutTransformation> steps; ///< in file order, also those before an error
    std::optional<XmlError> error;
};

/// What the root's start tag says about the set.
struct Metadata {
    QString description;
    bool locked = false;
};

/// What write() puts on the root.
enum class LockAttribute { Omit, WriteUnlocked };

/// Reads all of @p document. Steps without hotkey or without action name are left out, and
/// elements of other names skipped.
Content read(const XmlDocument &document);

/// Reads no further than the root's start tag; nothing when the document has none or another root.
CUI_CORE_EXPORT std::optional<Metadata> readMetadata(const XmlDocument &document);

/// Writes to the open @p device. False when the device failed or a step holds a character that XML
/// does not allow (see firstUnwritable()).
bool write(QIODevice &device, const std::vector<ShortcutTransformation> &steps,
           LockAttribute lockAttribute);

/// False when the step's identifier or hotkey holds a character that XML does not allow.
bool isWritable(const ShortcutTransformation &step);

/// The first step that is not writable, or null.
const ShortcutTransformation *firstUnwritable(const std::vector<ShortcutTransformation> &steps);

} // namespace HotkeySetFile
} // namespace CUI
