#include "QShortcutsList.h"

namespace CUI {

bool QShortcutsList::addShortcut(const QString &shortcut)
{
    if (!hasRoom() || contains(shortcut, Qt::CaseInsensitive))
        return false;
    append(shortcut);
    return true;
}

} // namespace CUI
