#include "Commands.h"

#include <QCommandLineParser>

namespace HotkeyCtl {

std::optional<QString> optionValue(const QCommandLineParser &line, const QString &option)
{
    if (!line.isSet(option))
        return {};
    return line.value(option);
}

const std::vector<Command> &commands()
{
    static const std::vector<Command> all = {
            listCommand(),     ownerCommand(),    keyboardCommand(), lintCommand(),
            assignCommand(),   unassignCommand(), resetCommand(),    stepsCommand(),
            checkCommand(),    setsCommand(),     useCommand(),      diffCommand(),
            mergeCommand(),    showCommand(),     convertCommand(),  baseCommand(),
            validateCommand(), sheetCommand(),
    };
    return all;
}

} // namespace HotkeyCtl
