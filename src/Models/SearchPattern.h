#pragma once

#include <QString>
#include <QStringList>

namespace CUI {

/// The regular expressions of the two searches.
namespace SearchPattern {

/// Matches the texts that hold every word of @p search, in whatever order.
QString ofWords(const QString &search);

/// Matches the texts that hold every part of a hotkey: the modifiers as words anywhere, the key,
/// which is the last part, as a whole.
QString ofHotkey(const QStringList &parts);

/// The text of a hotkey cell as the latter is matched with it: with blanks between the hotkeys.
QString withoutSeparators(const QString &hotkeys);

} // namespace SearchPattern
} // namespace CUI
