#pragma once

#include "Command.h"
#include "Session.h"

#include <functional>

namespace HotkeyCtl {

/// What assign and unassign have in common: an edit of one action, on top of the loaded set, that
/// is saved as a new set or only shown.
namespace SetEditing {

/// The text of what an edit did, or nothing after it has reported a problem.
using Report = std::optional<QString>;
using Edit = std::function<Report(Session &session, const Host::HostCatalogue::Action &action,
                                  const QString &shortcut)>;

/// Which texts the edit takes as a hotkey.
enum class Accepts {
    Hotkeys, ///< one key combination
    HeldTexts, ///< that, and any text that the action holds, whether or not a keyboard has the key
};

/// Loads everything, makes the edit, saves and reports; the arguments are ID SHORTCUT.
ExitCode run(const QCommandLineParser &line, Session &session, Accepts accepts, const Edit &edit);

/// Saves the set as --save asks for, if it does, and prints @p report and what was done. Reports
/// what went wrong.
ExitCode finish(const QCommandLineParser &line, Session &session, const QString &report);

/// The options --save FILE and --force.
QList<QCommandLineOption> options();

/// Saves the set as --save asks for. Without --force, a set that has changed since it was loaded is
/// not replaced. Reports what went wrong.
ExitCode saveSet(const QCommandLineParser &line, Session &session, const QString &path);

/// The hotkey of the list that equals @p shortcut without regard to letter case; null when none.
QString heldSpelling(const QStringList &hotkeys, const QString &shortcut);

} // namespace SetEditing

} // namespace HotkeyCtl
