#pragma once

#include <UiCustomizations/ActionIdentifier.h>

#include <QAction>
#include <QHash>
#include <QObject>

#include <unordered_map>

namespace CUI {
class QvelShortcutManager;
class VelAction;
} // namespace CUI

namespace Studio {

/// The entries of menus and tool bars for the actions of the registry.
///
/// They show the hotkeys in effect, and are triggered through the registry. None has a shortcut of
/// its own: the same key may mean different things in different areas, which menus do not know.
class HotkeyActions : public QObject
{
    Q_OBJECT

public:
    /// Follows @p manager, which it does not own and which must outlive it.
    explicit HotkeyActions(CUI::QvelShortcutManager *manager, QObject *parent = nullptr);

    /// The entry of an action, always the same one; null for an action that is not registered.
    QAction *entry(const CUI::ActionIdentifier &identifier);
    /// All hotkeys of an action in the user's language, joined with ", ".
    QString hotkeys(const CUI::ActionIdentifier &identifier) const;

private:
    void refresh();
    void refresh(const CUI::ActionIdentifier &identifier);
    void write(const CUI::VelAction &action, QAction *entry) const;
    QStringList hotkeyList(const CUI::ActionIdentifier &identifier) const;

    CUI::QvelShortcutManager *m_manager;
    std::unordered_map<CUI::ActionIdentifier, QAction *> m_entries;
    bool m_isLoading = false;
};

} // namespace Studio
