#pragma once

#include "UiCustomizationsExport.h"

#include <QMetaType>
#include <QString>

#include <memory>

namespace CUI {

/// What an edit, or several edits that belong together, changed in a QvelShortcutManager: enough to
/// undo and redo it there. A value that is cheap to copy; it holds no more than the hotkeys of the
/// actions and the steps that changed.
class CUI_CORE_EXPORT HotkeyChange
{
public:
    /// What kind of call made the change.
    enum class Kind {
        Upkeep, ///< a save or a cancelling of steps: the hotkeys are the same
        Edit, ///< recorded steps, or steps replaced by others
        Reset, ///< a load or a clear; cannot be undone
    };

    /// A change of nothing.
    HotkeyChange() = default;

    /// What kind of call made it.
    Kind kind() const;
    /// The text of the group, or else that of the last recorded step; empty for other kinds.
    QString text() const;

private:
    friend class QvelShortcutManager;
    struct Data;

    explicit HotkeyChange(std::shared_ptr<const Data> data) : d(std::move(data)) { }

    std::shared_ptr<const Data> d;
};

} // namespace CUI

Q_DECLARE_METATYPE(CUI::HotkeyChange)
