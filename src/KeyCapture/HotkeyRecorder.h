#pragma once

#include <QString>

class QKeyEvent;

namespace CUI {

/// Functions that convert a key press to a key and modifiers. HotkeyField::hotkey() returns the
/// portable text.
namespace HotkeyRecorder {

/// The result of a key press.
struct Capture {
    /// The hotkey as a Qt key and modifiers; 0 for a press of modifiers alone and for keys that
    /// cannot be hotkeys.
    int combination = 0;
    /// Those of Shift, Control and Alt that are held.
    int modifiers = 0;
};

/// Reads the key press and writes it to a logging category of the toolkit.
Capture capture(const QKeyEvent &event);

/// Whether a key press moves the focus out of a field that takes all other keys.
enum class WayOut { None, Next, Previous };

/// Ctrl+Tab moves the focus to the next widget, with Shift to the previous one. Neither can be a
/// hotkey.
WayOut wayOut(const QKeyEvent &event);

/// Those of Shift, Control and Alt that are held after a key was pressed or released.
Qt::KeyboardModifiers heldAfter(const QKeyEvent &event);

/// The text that a field shows, in the user's language: the hotkey, or without one the modifiers.
QString displayText(const Capture &capture);

} // namespace HotkeyRecorder
} // namespace CUI
