#pragma once

#include "HotkeyAudit.h"
#include "HotkeyKeyboard.h"
#include "KeyboardLayout.h"
#include "UiCustomizationsExport.h"

#include <QWidget>

#include <memory>
#include <vector>

namespace CUI {

class QvelShortcutManager;

/// The user's keyboard, on which every key shows whether it is free as a hotkey.
///
/// Above the keyboard the user chooses groups (contexts), modifiers and the shape; below it are the
/// actions of the key that has the mouse or, without it, the focus. Modifiers that are held down
/// count in place of those that are chosen. A key that is pressed is found on the keyboard; arrows
/// move from key to key, Return is a click, Tab leaves.
///
/// An action that is dragged from a QvelActionItemModel onto a key gets the hotkey. A key that is
/// dragged onto another one takes its hotkeys there, in the chosen contexts. The context menu of a
/// key offers both without a mouse. Where that takes the hotkey from another action, the user is
/// asked first; an action that has six hotkeys gets no other.
///
/// Labels and shape are those of the keyboard layout in use, which is asked for when the widget is
/// shown and when its window becomes active: from the X server, or from Windows. Without it, as
/// under Wayland without an X server, it is the US layout. Systems do not tell the shape; see
/// KeyboardLayout for how it is found.
///
/// The widget follows the store and the language. For assistive technology each key is a child with
/// its hotkey as name and its state and actions as description.
class CUI_EXPORT QvelKeyboardWidget : public QWidget
{
    Q_OBJECT

public:
    /// Shows the hotkeys of all contexts without modifiers. Does not own @p manager, which must not
    /// be null and must outlive it.
    explicit QvelKeyboardWidget(QvelShortcutManager *manager, QWidget *parent = nullptr);
    ~QvelKeyboardWidget() override;

    /// The contexts that count everywhere or together, and the systems whose reservations count;
    /// other options have no effect. At first no context counts everywhere, and the systems are
    /// HotkeyReservation::systemsHere().
    void setOptions(const HotkeyAudit::Options &options);

    /// The contexts whose hotkeys are shown; empty for all, also for those that are registered
    /// later. Ids that are not registered show nothing.
    void setContexts(const std::vector<unsigned long> &contexts);
    /// The contexts as they were set; empty for all.
    const std::vector<unsigned long> &contexts() const;

    /// The modifiers that are chosen, of Shift, Control and Alt.
    void setModifiers(Qt::KeyboardModifiers modifiers);
    /// The modifiers that are shown.
    Qt::KeyboardModifiers modifiers() const;

    /// Shows this layout in place of the one in use.
    void setKeyboardLayout(const KeyboardLayout &layout);

    /// A copy of the keyboard that is shown, with the hotkeys that are in effect now; to print it
    /// on a HotkeySheet, for example.
    HotkeyKeyboard keyboard() const;

    /// The action that the context menu of a key offers to assign; the empty identifier for none.
    /// The host sets it, to the selected action of its editor for example.
    void setCurrentAction(const ActionIdentifier &action);

    /// The hotkey of the key that has the focus, with the modifiers that are shown; empty when it
    /// makes none.
    QString currentHotkey() const;
    /// Chooses the modifiers of @p hotkey, a portable text, and moves to its key. False, with
    /// nothing changed, when the keyboard has no such key.
    bool setCurrentHotkey(const QString &hotkey);

Q_SIGNALS:
    /// A key was clicked or Return pressed on it. Not emitted for keys that make no hotkey.
    void hotkeyActivated(const QString &hotkey);

protected:
    /// Follows the modifiers that are held while the window of the widget is active.
    bool eventFilter(QObject *watched, QEvent *event) override;
    /// Takes over the texts of another language.
    void changeEvent(QEvent *event) override;
    /// Reads what the widget has not followed while it was hidden.
    void showEvent(QShowEvent *event) override;
    /// Stops following held modifiers while the widget is hidden.
    void hideEvent(QHideEvent *event) override;

private:
    class Private;
    std::unique_ptr<Private> d;
};

} // namespace CUI
