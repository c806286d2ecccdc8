#pragma once

#include "UiCustomizationsExport.h"

#include <QString>

#include <vector>

namespace CUI {

/// A key that a desktop or the text fields of an application use for something of their own. A
/// hotkey with such a key may never reach the application, or not while text is being typed.
///
/// The table holds what the systems do as they are installed; users can change most of it, and
/// nothing here asks the running system. On macOS, Ctrl names the Command key, Alt the Option key
/// and Meta the Control key, as everywhere in Qt.
struct CUI_CORE_EXPORT HotkeyReservation {
    /// Who uses the key.
    enum class System {
        Windows, ///< Microsoft Windows
        Kde, ///< KDE Plasma
        Gnome, ///< the GNOME desktop
        MacOs, ///< macOS
        TextFields ///< the text fields of Qt, on every system
    };

    /// Who uses the key.
    System system = System::Windows;
    /// The hotkey in portable form, one key combination: "Alt+F4".
    QString hotkey;
    /// What the key does there, in the current language: "Close the window".
    QString use;
    /// Where that can be seen or changed, in the current language: "GNOME: Settings > Keyboard".
    QString source;

    /// The whole table, by system, in the current language.
    static std::vector<HotkeyReservation> all();
    /// Those entries whose key is that of @p hotkey (portable form), however the text is spelled;
    /// none for a text that names no key. On an English keyboard of 104 keys this is exact; what
    /// another layout makes of a key is not considered.
    static std::vector<HotkeyReservation> of(const QString &hotkey);

    /// The systems that can take a key from an application that runs here: the desktops of the
    /// operating system, whichever is running, and the text fields.
    static std::vector<System> systemsHere();

    /// The name of a system, which is the same in every language: "KDE". For text fields it is
    /// translated.
    static QString nameOf(System system);
};

} // namespace CUI
