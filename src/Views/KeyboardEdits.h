#pragma once

#include "HotkeyKeyboard.h"

#include <QCoreApplication>

class QWidget;

namespace CUI {

class QvelShortcutManager;

/// Edits by which keys are filled: they ask before a hotkey is taken from another action.
class KeyboardEdits
{
    Q_DECLARE_TR_FUNCTIONS(CUI::QvelKeyboardWidget)

public:
    using Holders = std::vector<HotkeyKeyboard::Holder>;

    /// @p window is the parent of what is asked. Both must outlive the object.
    KeyboardEdits(QvelShortcutManager *manager, QWidget *window);

    /// Gives the hotkey to the action, in its context.
    void assign(const ActionIdentifier &action, const QString &hotkey);
    /// Gives the hotkey @p to to each of the actions in place of the one that it has now, as one
    /// command of a QvelHotkeyHistory. @p from names that in the command's text.
    void move(const QString &from, const Holders &holders, const QString &to);

private:
    Holders takenFrom(const Holders &holders, const QString &hotkey) const;
    bool confirm(const Holders &losers, const QString &hotkey) const;

    QvelShortcutManager *m_manager;
    QWidget *m_window;
};

} // namespace CUI
