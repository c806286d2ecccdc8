#pragma once

#include "UiCustomizationsExport.h"

#include <QStringList>

namespace CUI {

/// The hotkeys of one action in the order they were added: at most six, in the portable text form
/// of one key combination each, no two equal without regard to letter case.
class CUI_CORE_EXPORT QShortcutsList : public QStringList
{
public:
    /// How many hotkeys an action can hold.
    static constexpr int ShortcutLimitPerAction = 6;

    using QStringList::QStringList;

    /// True while the list holds fewer than six hotkeys.
    bool hasRoom() const { return size() < ShortcutLimitPerAction; }

    /// Appends @p shortcut. Returns false and changes nothing when the list is full or already
    /// holds the text in whatever letter case.
    bool addShortcut(const QString &shortcut);
};

} // namespace CUI
