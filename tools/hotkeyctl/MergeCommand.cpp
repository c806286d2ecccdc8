#include "Commands.h"

#include "FormatOption.h"
#include "OutputFile.h"
#include "Session.h"
#include "SetSteps.h"
#include "TextOutput.h"

#include <UiCustomizations/HotkeySetMerge.h>

#include <QCommandLineParser>
#include <QTextStream>

namespace HotkeyCtl {

namespace {

using CUI::HotkeySetMerge;
using Clash = HotkeySetMerge::Clash;
using Steps = HotkeySetMerge::Steps;

const QString output = QStringLiteral("output");
const QString ours = QStringLiteral("ours");
const QString theirs = QStringLiteral("theirs");

std::optional<HotkeySetMerge> mergeOf(const QStringList &sets, Session &session)
{
    std::vector<Steps> steps;
    for (const QString &set : sets) {
        const std::optional<Steps> read = readNamedSet(set, session);
        if (!read)
            return {};
        steps.push_back(*read);
    }
    return HotkeySetMerge(steps.at(0), steps.at(1), steps.at(2));
}

QString sideText(const char *side, const Steps &steps, const Session &session)
{
    QStringList lines;
    for (const CUI::ShortcutTransformation &step : steps)
        lines << stepLine(step, session.describe(step.actionId()));
    if (lines.isEmpty())
        lines << QStringLiteral("nothing");
    const QString label = QStringLiteral("  %1: ").arg(QLatin1String(side)).leftJustified(10);
    return label + lines.join(QLatin1Char('\n') + QString(label.size(), QLatin1Char(' ')))
           + QLatin1Char('\n');
}

void printText(const std::vector<Clash> &clashes, const Session &session)
{
    for (const Clash &clash : clashes) {
        const QString subject =
                clash.kind == HotkeySetMerge::ClashKind::Action
                        ? session.describe(clash.actionId)
                        : QStringLiteral("%1 in %2")
                                  .arg(printable(clash.shortcut),
                                       printable(session.contextName(clash.contextId)));
        session.out() << "Clash: " << subject << '\n'
                      << sideText("ours", clash.mine, session)
                      << sideText("theirs", clash.theirs, session);
    }
}

QString jsonSteps(const Steps &steps)
{
    QStringList objects;
    for (const CUI::ShortcutTransformation &step : steps)
        objects << QStringLiteral("{%1}").arg(jsonMembers(step));
    return QStringLiteral("[%1]").arg(objects.join(QLatin1String(", ")));
}

void printJson(const std::vector<Clash> &clashes, const Session &session)
{
    QStringList objects;
    for (const Clash &clash : clashes) {
        const bool isAction = clash.kind == HotkeySetMerge::ClashKind::Action;
        objects << QStringLiteral("{\"clash\": %1, %2, \"ours\": %3, \"theirs\": %4}")
                           .arg(isAction ? QStringLiteral("\"action\"")
                                         : QStringLiteral("\"hotkey\""),
                                isAction ? QStringLiteral("\"id\": ")
                                                   + jsonString(clash.actionId.toString())
                                         : QStringLiteral("\"contextId\": %1, \"hotkey\": %2")
                                                   .arg(QString::number(clash.contextId),
                                                        jsonString(clash.shortcut)),
                                jsonSteps(clash.mine), jsonSteps(clash.theirs));
    }
    session.out() << jsonLines(objects);
}

ExitCode run(const QCommandLineParser &line, Session &session)
{
    const std::optional<Format> format = formatOf(line, session);
    if (!format)
        return ExitCode::WrongUsage;
    const QString target = line.value(output);
    if (target.isEmpty())
        return session.wrongUsage(QStringLiteral("-o needs the name of a file"));
    if (line.isSet(ours) && line.isSet(theirs))
        return session.wrongUsage(QStringLiteral("--ours and --theirs exclude each other"));
    if (line.positionalArguments().contains(QString()))
        return session.wrongUsage(QStringLiteral("the name of a set is empty"));
    if (!session.open())
        return ExitCode::Problem;
    const QString reason = reasonAgainstReplacingSet(target, session.presetDirectory());
    if (!reason.isEmpty())
        return session.problem(
                QStringLiteral("%1: is not written, because %2").arg(target, reason));
    std::optional<HotkeySetMerge> merge = mergeOf(line.positionalArguments(), session);
    if (!merge)
        return ExitCode::Problem;
    if (line.isSet(ours) || line.isSet(theirs))
        merge->chooseAll(line.isSet(ours) ? HotkeySetMerge::Side::Mine
                                          : HotkeySetMerge::Side::Theirs);

    const bool isWritten = merge->isSettled()
                           && CUI::QvelShortcutManager::writeTransforms(target, merge->result());
    if (*format == Format::Json)
        printJson(merge->clashes(), session);
    else
        printText(merge->clashes(), session);
    if (!merge->isSettled()) {
        return session.problem(
                QStringLiteral("nothing was written; --ours or --theirs settles the clashes"));
    }
    if (!isWritten)
        return session.problem(QStringLiteral("%1: cannot be written").arg(target));
    if (*format == Format::Text)
        session.out() << "Saved as " << printable(target) << ".\n";
    return ExitCode::Done;
}

} // namespace

Command mergeCommand()
{
    Command command;
    command.name = QStringLiteral("merge");
    command.synopsis =
            QStringLiteral("BASE MINE THEIRS -o OUT [--ours | --theirs] [--format FORMAT]");
    command.summary = QStringLiteral("merge two hotkey sets that come from one");
    command.description = QStringLiteral(
            "Writes to OUT what the sets MINE and THEIRS have made of the set BASE, from which\n"
            "both come. What only one of them changed is taken, and what both changed in the same\n"
            "way is taken once. A clash is an action that both changed, and not in the same way,\n"
            "or a hotkey of one context that they gave to two actions. Clashes are printed, with\n"
            "both sides; unless a side is chosen for all of them, nothing is written and the exit\n"
            "status is 1. The sets are given by path or by name. OUT may be one of them; shipped\n"
            "and locked sets are never written to.\n"
            "\n"
            "Example: bring the changes of two computers together\n"
            "  hotkeyctl merge common.hsx mine.hsx theirs.hsx -o mine.hsx\n");
    command.options = {
            {{QStringLiteral("o"), output},
             QStringLiteral("Write the merged set to OUT."),
             QStringLiteral("OUT")},
            {ours, QStringLiteral("Settle all clashes as MINE has it.")},
            {theirs, QStringLiteral("Settle all clashes as THEIRS has it.")},
            formatOption(),
    };
    command.minimumArguments = 3;
    command.maximumArguments = 3;
    command.run = run;
    return command;
}

} // namespace HotkeyCtl
