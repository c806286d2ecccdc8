#pragma once

#include "UiCustomizationsExport.h"

#include <QPointer>
#include <QString>

namespace CUI {

class QvelShortcutManager;

/// While it lives, all edits of a store belong together: QvelShortcutManager::hotkeysChanged() is
/// emitted once, when the outermost group ends, and a QvelHotkeyHistory undoes them as one command.
/// The other signals are emitted as ever. Groups can be nested, and end in the reverse order of
/// their creation; the store can be destroyed earlier.
class CUI_CORE_EXPORT HotkeyEditGroup
{
    Q_DISABLE_COPY(HotkeyEditGroup)

public:
    /// @p text names the command; without one, the last recorded step does. The text of the
    /// outermost group counts. A null @p store makes the object do nothing.
    explicit HotkeyEditGroup(QvelShortcutManager *store, const QString &text = QString());
    ~HotkeyEditGroup();

private:
    QPointer<QvelShortcutManager> m_store;
};

} // namespace CUI
