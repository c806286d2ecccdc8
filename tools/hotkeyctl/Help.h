#pragma once

#include "Command.h"

namespace HotkeyCtl {

/// The option that the program and every command have.
QCommandLineOption helpOption();

/// The help of the program: the options before a command, and the commands.
QString programHelp(const QList<QCommandLineOption> &options);

/// The help of one command.
QString commandHelp(const Command &command);

} // namespace HotkeyCtl
