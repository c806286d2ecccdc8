#include "Commands.h"

#include "Session.h"
#include "SetEditing.h"
#include "TextOutput.h"

#include <UiCustomizations/HotkeyDefaults.h>

#include <QCommandLineParser>
#include <QTextStream>

namespace HotkeyCtl {

namespace {

using CUI::HotkeyDefaults;

const QString context = QStringLiteral("context");
const QString all = QStringLiteral("all");
const QString leave = QStringLiteral("leave");
const QString dryRun = QStringLiteral("dry-run");

/// Nothing, after telling why, when there is no such action or context.
std::optional<HotkeyDefaults::Plan> planOf(const QCommandLineParser &line, Session &session)
{
    if (line.isSet(all))
        return HotkeyDefaults::planForAll(session.store());
    if (line.isSet(context)) {
        const auto contexts = session.contextsNamed(line.value(context));
        if (!contexts)
            return {};
        return HotkeyDefaults::planForContext(session.store(), contexts->front().id);
    }
    const QString id = line.positionalArguments().constFirst();
    const Host::HostCatalogue::Action *action = session.findAction(id);
    if (action == nullptr) {
        session.problem(QStringLiteral("there is no action '%1'").arg(id));
        return {};
    }
    return HotkeyDefaults::planForAction(session.store(), action->identifier);
}

QString reportOf(const HotkeyDefaults::Plan &plan, bool leaves, const Session &session)
{
    if (plan.steps.empty())
        return QStringLiteral("Nothing to reset.\n");
    QString report;
    for (const CUI::ShortcutTransformation &step : plan.steps)
        report += printable(step.toString()) + QLatin1Char('\n');
    for (const HotkeyDefaults::Holding &holding : plan.held) {
        report += (leaves ? QStringLiteral("%1 stays with %2, not %3.\n")
                          : QStringLiteral("%1 is taken from %2 for %3.\n"))
                          .arg(printable(holding.hotkey), session.describe(holding.holder),
                               session.describe(holding.action));
    }
    return report;
}

ExitCode run(const QCommandLineParser &line, Session &session)
{
    const int chosen = (line.isSet(all) ? 1 : 0) + (line.isSet(context) ? 1 : 0)
                       + static_cast<int>(line.positionalArguments().size());
    if (chosen != 1)
        return session.wrongUsage(QStringLiteral("give one of ID, --context NAME and --all"));
    if (session.load() != Session::Loading::Complete)
        return session.problem(QStringLiteral("nothing was changed"));
    const auto plan = planOf(line, session);
    if (!plan)
        return ExitCode::Problem;
    const QString report = reportOf(*plan, line.isSet(leave), session);
    if (line.isSet(dryRun)) {
        session.out() << report << "Dry run: nothing was saved.\n";
        return ExitCode::Done;
    }
    HotkeyDefaults::apply(session.store(), *plan,
                          line.isSet(leave) ? HotkeyDefaults::Held::Leave
                                            : HotkeyDefaults::Held::Take);
    return SetEditing::finish(line, session, report);
}

} // namespace

Command resetCommand()
{
    Command command;
    command.name = QStringLiteral("reset");
    command.synopsis =
            QStringLiteral("[ID | --context NAME | --all] --save FILE [--force] [--leave] "
                           "[--dry-run]");
    command.summary = QStringLiteral("give actions their base hotkeys back");
    command.description = QStringLiteral(
            "Takes from the action ID, from all actions of a context or from all there are what\n"
            "the set gave them, gives them back what it took, and saves the set with these steps\n"
            "at its end. A base hotkey that another action holds now is named; it is taken from\n"
            "that action, or stays there with --leave.\n"
            "\n"
            "Example: look first, then reset\n"
            "  hotkeyctl --set mine.hsx reset --context Mesh --dry-run\n"
            "  hotkeyctl --set mine.hsx reset --context Mesh --save mine.hsx\n");
    command.options = SetEditing::options();
    command.options << QCommandLineOption(
            context, QStringLiteral("All actions of the context NAME."), QStringLiteral("NAME"))
                    << QCommandLineOption(all, QStringLiteral("All actions."))
                    << QCommandLineOption(leave,
                                          QStringLiteral("Leave base hotkeys with the actions that "
                                                         "hold them now."))
                    << QCommandLineOption(
                               dryRun, QStringLiteral("Print what would be done, save nothing."));
    command.minimumArguments = 0;
    command.maximumArguments = 1;
    command.run = run;
    return command;
}

} // namespace HotkeyCtl
