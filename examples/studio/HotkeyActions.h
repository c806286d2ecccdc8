#pragma once

#include <UiCustomizations/ActionIdentifier.h>

#include <QAction>
#include <QObject>

#include <unordered_map>

class QWidget;

namespace CUI {
class QvelActionBinder;
class QvelShortcutManager;
class VelAction;
} // namespace CUI

namespace Studio {

/// The entries of menus and tool bars for the actions of the registry, which are triggered through
/// the registry. A binder sets their hotkeys.
class HotkeyActions : public QObject
{
    Q_OBJECT

public:
    /// Owns none of its arguments; @p window is its parent.
    HotkeyActions(CUI::QvelActionBinder &binder, const CUI::QvelShortcutManager &manager,
                  QWidget *window);

    /// The entry of an action, always the same one; null for an action that is not registered. The
    /// entry of a momentary action is disabled, for its key has to be held.
    QAction *entry(const CUI::ActionIdentifier &identifier);
    /// All hotkeys of an action in the user's language, joined with ", ".
    QString hotkeys(const CUI::ActionIdentifier &identifier) const;

private:
    QAction *make(const CUI::VelAction &action);

    CUI::QvelActionBinder &m_binder;
    const CUI::QvelShortcutManager &m_manager;
    QWidget *m_window;
    std::unordered_map<CUI::ActionIdentifier, QAction *> m_entries;
};

} // namespace Studio
