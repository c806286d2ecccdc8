#pragma once

#include "ExitCode.h"

#include <QStringList>

class QTextStream;

namespace HotkeyCtl {

/// Runs the program with a command line, the program's name first. Needs a QCoreApplication.
ExitCode run(const QStringList &arguments, QTextStream &out, QTextStream &err);

} // namespace HotkeyCtl
