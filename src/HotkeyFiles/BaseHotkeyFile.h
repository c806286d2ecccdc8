#pragma once

#include "ActionIdentifier.h"
#include "XmlError.h"

#include <QString>
#include <QStringList>

#include <optional>
#include <vector>

class QIODevice;

namespace CUI {

class XmlDocument;

/// Codec of the base hotkey file (suffix hsxb): the full hotkey map of one layer.
namespace BaseHotkeyFile {

struct Entry {
    ActionIdentifier actionId;
    QStringList shortcuts;
    /// Written when it is not null; never read.
    QString description;
};

struct Content {
    std::vector<Entry> entries; ///< in file order, also those before an error
    std::optional<XmlError> error;
};

/// Reads all of @p document. Entries without hotkey or without action name are left out, and
/// elements of other names skipped.
Content read(const XmlDocument &document);

/// Writes to the open @p device, in the order of @p entries. False when the device failed or an
/// entry holds a character that XML does not allow (see firstUnwritable()).
bool write(QIODevice &device, const std::vector<Entry> &entries);

/// The first entry whose identifier or hotkeys hold a character that XML does not allow, or null.
const Entry *firstUnwritable(const std::vector<Entry> &entries);

} // namespace BaseHotkeyFile
} // namespace CUI
