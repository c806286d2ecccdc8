#pragma once

#include <QString>

class QKeyEvent;

namespace CUI {

/// Turns key presses into hotkeys.
namespace HotkeyRecorder {

/// What a key press stands for.
struct Capture {
    /// The hotkey as a Qt key and modifiers; 0 for a press of modifiers alone and for keys that
    /// cannot be hotkeys.
    int combination = 0;
    /// Those of Shift, Control and Alt that are held.
    int modifiers = 0;
};

/// Reads the key press and writes it to the debug log.
Capture capture(const QKeyEvent &event);

/// Whether a key press leads out of a field that takes all other keys.
enum class WayOut { None, Next, Previous };

/// Ctrl+Tab leads to the next widget, with Shift to the one before. Neither can be a hotkey.
WayOut wayOut(const QKeyEvent &event);

/// What a field shows for it, in the user's language: the hotkey, or without one the modifiers.
QString text(const Capture &capture);

} // namespace HotkeyRecorder
} // namespace CUI
