#pragma once

namespace HotkeyCtl {

/// What the program ends with.
enum class ExitCode : int {
    Done = 0,
    Problem = 1, ///< with the data: a file, an action, a hotkey
    WrongUsage = 2, ///< with the command line
};

} // namespace HotkeyCtl
