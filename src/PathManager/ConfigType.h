#pragma once

namespace CUI {

/// The kinds of configuration file that a host keeps.
enum class ConfigType : int {
    HotkeySet = 0, ///< hotkey sets, *.hsx
    Menu = 1, ///< menu files, *.mnuxt
};

} // namespace CUI
