#pragma once

#include "ActionIdentifier.h"
#include "HotkeyCommand.h"

#include <QWidget>

class QLabel;
class QLineEdit;
class QPushButton;

namespace CUI {

class HotkeyField;
class QvelShortcutManager;

/// The row of a command palette in which a new hotkey for one action is pressed. It takes the place
/// of the action's first hotkey, and is taken from another action of the same context.
class PaletteHotkeyEdit : public QWidget
{
    Q_OBJECT

public:
    PaletteHotkeyEdit(QvelShortcutManager *manager, QWidget *parent);

    /// Begins with an action, and takes the focus.
    void begin(const ActionIdentifier &action);
    void retranslate();

    bool eventFilter(QObject *watched, QEvent *event) override;

Q_SIGNALS:
    /// The edit has ended: the hotkey has been assigned, or the user has pressed Escape.
    void ended();
    /// What is to be said about the hotkey that is in the field.
    void messageChanged(const QString &text);

private:
    void showHotkey();
    void assign();
    QString firstHotkey() const;
    unsigned long contextId() const;

    QvelShortcutManager *m_manager;
    ActionIdentifier m_action;
    QLabel *m_label;
    QLineEdit *m_edit;
    HotkeyField *m_field;
    QPushButton *m_assign;
};

} // namespace CUI
