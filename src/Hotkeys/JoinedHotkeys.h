#pragma once

#include <QStringList>

namespace CUI {

/// The hotkeys of one action as one text, as tables and files have them.
namespace JoinedHotkeys {

const QLatin1String separator(", ");

inline QString join(const QStringList &hotkeys)
{
    return hotkeys.join(separator);
}

/// The hotkeys of a joined text; none for an empty text.
inline QStringList split(const QString &text)
{
    return text.isEmpty() ? QStringList() : text.split(separator);
}

} // namespace JoinedHotkeys
} // namespace CUI
