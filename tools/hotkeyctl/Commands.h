#pragma once

#include "Command.h"

#include <vector>

namespace HotkeyCtl {

Command listCommand();
Command lintCommand();
Command keyboardCommand();
Command ownerCommand();
Command assignCommand();
Command unassignCommand();
Command resetCommand();
Command stepsCommand();
Command checkCommand();
Command baseCommand();
Command validateCommand();
Command setsCommand();
Command useCommand();
Command diffCommand();
Command showCommand();
Command convertCommand();
Command mergeCommand();
Command sheetCommand();

/// All commands, in the order in which the help lists them.
const std::vector<Command> &commands();

} // namespace HotkeyCtl
