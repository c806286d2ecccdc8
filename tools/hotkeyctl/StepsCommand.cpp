#include "Commands.h"

#include "Session.h"
#include "SetSteps.h"

#include <QTextStream>

namespace HotkeyCtl {

namespace {

ExitCode run(const QCommandLineParser &, Session &session)
{
    const Session::Loading loading = session.load();
    if (loading == Session::Loading::Failed)
        return ExitCode::Problem;
    for (const CUI::ShortcutTransformation &step : session.store().currentTransformations())
        session.out() << stepLine(step, session.describe(step.actionId())) << '\n';
    return loading == Session::Loading::Complete ? ExitCode::Done : ExitCode::Problem;
}

} // namespace

Command stepsCommand()
{
    Command command;
    command.name = QStringLiteral("steps");
    command.summary = QStringLiteral("show what a set changes, step by step");
    command.description = QStringLiteral(
            "Prints the steps of the set in their order, one a line. A set without steps prints\n"
            "nothing.\n"
            "\n"
            "Example: the steps of a set that is not the current one\n"
            "  hotkeyctl --set mine.hsx steps\n");
    command.run = run;
    return command;
}

} // namespace HotkeyCtl
