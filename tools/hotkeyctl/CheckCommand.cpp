#include "Commands.h"

#include "FormatOption.h"
#include "Session.h"
#include "SetSteps.h"
#include "TextOutput.h"

#include <UiCustomizations/HotkeySetReport.h>

#include <QCommandLineParser>
#include <QTextStream>

namespace HotkeyCtl {

namespace {

using CUI::HotkeySetReport;
using Effect = HotkeySetReport::Effect;
using Entry = HotkeySetReport::Entry;

/// The effect as JSON names it.
QString nameOf(Effect effect)
{
    switch (effect) {
    case Effect::NamesUnknownAction:
        return QStringLiteral("unknown-action");
    case Effect::HasNoEffect:
        return QStringLiteral("no-effect");
    case Effect::RemovesNothing:
        return QStringLiteral("removes-nothing");
    case Effect::IsRefused:
        return QStringLiteral("refused");
    case Effect::TakesNewBaseHotkey:
        return QStringLiteral("takes-new-base-hotkey");
    case Effect::Applies:
        break;
    }
    return QStringLiteral("applies");
}

QString explanation(const Entry &entry, const Session &session)
{
    const QString id = entry.step.actionId().toString();
    switch (entry.effect) {
    case Effect::NamesUnknownAction:
        return entry.other.isEmpty() ? QStringLiteral("there is no action %1").arg(id)
                                     : QStringLiteral("there is no action %1; most similar is %2")
                                               .arg(id, session.describe(entry.other));
    case Effect::HasNoEffect:
        return QStringLiteral("has no effect");
    case Effect::RemovesNothing:
        return QStringLiteral("the action does not have it");
    case Effect::IsRefused:
        return QStringLiteral("the action has six hotkeys already");
    case Effect::TakesNewBaseHotkey:
        return QStringLiteral("takes it from %1, which has it in the base")
                .arg(session.describe(entry.other));
    case Effect::Applies:
        break;
    }
    return QStringLiteral("applies");
}

void printText(const HotkeySetReport &report, const Session &session)
{
    for (const Entry &entry : report.entries()) {
        session.out() << stepLine(entry.step, session.describe(entry.step.actionId())) << ' '
                      << printable(explanation(entry, session)) << '\n';
    }
    session.out() << report.notApplyingCount() << " of "
                  << static_cast<int>(report.entries().size()) << " steps do not apply.\n";
}

void printJson(const HotkeySetReport &report, const Session &session)
{
    QStringList objects;
    for (const Entry &entry : report.entries()) {
        QString members = QStringLiteral("%1, \"effect\": \"%2\", \"applies\": %3")
                                  .arg(jsonMembers(entry.step), nameOf(entry.effect),
                                       boolText(entry.applies()));
        if (!entry.other.isEmpty())
            members += QStringLiteral(", \"other\": ") + jsonString(entry.other.toString());
        objects << QStringLiteral("{%1}").arg(members);
    }
    session.out() << jsonLines(objects);
}

ExitCode run(const QCommandLineParser &line, Session &session)
{
    const std::optional<Format> format = formatOf(line, session);
    if (!format)
        return ExitCode::WrongUsage;
    const QString text = line.positionalArguments().constFirst();
    if (text.isEmpty())
        return session.wrongUsage(QStringLiteral("SET is empty"));
    // On half a base, steps would not apply that do.
    if (!session.loadBase())
        return ExitCode::Problem;
    const std::optional<std::vector<CUI::ShortcutTransformation>> steps =
            readNamedSet(text, session);
    if (!steps)
        return ExitCode::Problem;
    const HotkeySetReport report(session.store(), *steps);
    if (*format == Format::Json)
        printJson(report, session);
    else
        printText(report, session);
    return report.notApplyingCount() == 0 ? ExitCode::Done : ExitCode::Problem;
}

} // namespace

Command checkCommand()
{
    Command command;
    command.name = QStringLiteral("check");
    command.synopsis = QStringLiteral("SET [--format FORMAT]");
    command.summary = QStringLiteral("show which steps of a set apply to today's base");
    command.description = QStringLiteral(
            "Prints what each step of the set does on the base of this host, which may be another\n"
            "one than that the set was made on. A step does not apply when it names an action\n"
            "that is not there, removes a hotkey that the action does not have, or assigns one to\n"
            "an action that has six; the exit status is 1 then. A step that takes a hotkey from\n"
            "an action that has it in the base applies, but may not be what its user wanted if\n"
            "the base has given the hotkey to that action since. SET is a path or a name.\n"
            "\n"
            "Example: after an update of the host\n"
            "  hotkeyctl check mine.hsx\n");
    command.options = {formatOption()};
    command.minimumArguments = 1;
    command.maximumArguments = 1;
    command.run = run;
    return command;
}

} // namespace HotkeyCtl
