#include "Commands.h"

#include "Session.h"
#include "SetSearch.h"
#include "TextOutput.h"

#include <UiCustomizations/HotkeyAudit.h>

#include <QCommandLineParser>
#include <QTextStream>

#include <algorithm>
#include <map>

namespace HotkeyCtl {

namespace {

using Finding = CUI::HotkeyFinding;
using Severity = CUI::HotkeyFinding::Severity;
using Findings = std::vector<Finding>;

QString keyOf(Severity severity)
{
    return QString::fromLatin1(Finding::keyOf(severity));
}

std::optional<Severity> severityNamed(const QString &name)
{
    for (Severity severity : {Severity::Note, Severity::Warning, Severity::Error}) {
        if (keyOf(severity) == name)
            return severity;
    }
    return {};
}

/// The findings about what is in effect; those that are less severe are counted and left out.
Findings findingsOf(Session &session, Severity least, std::map<Severity, int> &counts)
{
    const CUI::HotkeyAudit audit(session.store(), session.catalogue().auditOptions());
    Findings findings = audit.findings();
    for (const Finding &finding : findings)
        ++counts[finding.severity];
    findings.erase(std::remove_if(findings.begin(), findings.end(),
                                  [least](const Finding &f) { return f.severity < least; }),
                   findings.end());
    return findings;
}

QString counted(int count, Severity severity)
{
    return QStringLiteral("%1 %2%3").arg(QString::number(count), keyOf(severity),
                                         count == 1 ? QString() : QStringLiteral("s"));
}

void printText(const Findings &findings, std::map<Severity, int> &counts, QTextStream &out)
{
    for (const Finding &finding : findings) {
        const QString hotkey =
                finding.hotkey.isEmpty() ? QString() : QLatin1Char(' ') + finding.hotkey;
        out << printable(QStringLiteral("%1: %2%3: %4")
                                 .arg(keyOf(finding.severity),
                                      QString::fromLatin1(Finding::keyOf(finding.kind)), hotkey,
                                      finding.text))
            << '\n';
    }
    out << counted(counts[Severity::Error], Severity::Error) << ", "
        << counted(counts[Severity::Warning], Severity::Warning) << ", "
        << counted(counts[Severity::Note], Severity::Note)
        << "; not checked: what the keyboard layout can type\n";
}

QString jsonOf(const Finding::Holder &holder, const Session &session)
{
    return QStringLiteral("{\"id\": %1, \"contextId\": %2, \"context\": %3, \"hotkey\": %4}")
            .arg(jsonString(holder.action.toString()), QString::number(holder.contextId),
                 jsonString(session.contextName(holder.contextId)), jsonString(holder.hotkey));
}

QString jsonOf(const Finding::Outcome &outcome)
{
    return QStringLiteral("{\"contextId\": %1, \"runs\": %2}")
            .arg(outcome.contextId ? QString::number(*outcome.contextId) : QStringLiteral("null"),
                 outcome.action.isEmpty() ? QStringLiteral("null")
                                          : jsonString(outcome.action.toString()));
}

QString jsonOf(const CUI::HotkeyReservation &reservation)
{
    return QStringLiteral("{\"system\": %1, \"use\": %2, \"source\": %3}")
            .arg(jsonString(CUI::HotkeyReservation::nameOf(reservation.system)),
                 jsonString(reservation.use), jsonString(reservation.source));
}

template <typename Values, typename... Arguments>
QString jsonArrayOf(const Values &values, const Arguments &...arguments)
{
    QStringList objects;
    for (const auto &value : values)
        objects << jsonOf(value, arguments...);
    return QLatin1Char('[') + objects.join(QLatin1String(", ")) + QLatin1Char(']');
}

void printJson(const Findings &findings, const Session &session, QTextStream &out)
{
    QStringList objects;
    for (const Finding &finding : findings) {
        objects << QStringLiteral("{\"severity\": %1, \"kind\": %2, \"hotkey\": %3, "
                                  "\"actions\": %4, \"outcomes\": %5, \"takenBy\": %6, "
                                  "\"text\": %7}")
                           .arg(jsonString(keyOf(finding.severity)),
                                jsonString(QString::fromLatin1(Finding::keyOf(finding.kind))),
                                jsonString(finding.hotkey), jsonArrayOf(finding.holders, session),
                                jsonArrayOf(finding.outcomes), jsonArrayOf(finding.reservations),
                                jsonString(finding.text));
    }
    out << "{\"notChecked\": "
        << jsonArray({QString::fromLatin1(Finding::keyOf(Finding::Kind::NotTypeable))})
        << ",\n\"findings\": " << jsonLines(objects).trimmed() << "}\n";
}

/// Loads the set of the command line, or what the options before the command say.
bool load(const QCommandLineParser &line, Session &session)
{
    if (line.positionalArguments().isEmpty())
        return session.load() == Session::Loading::Complete;
    if (!session.loadBase())
        return false;
    const std::optional<QString> path = findSet(session, line.positionalArguments().constFirst());
    return path && session.loadSet(*path);
}

ExitCode run(const QCommandLineParser &line, Session &session)
{
    const QString format = line.value(QStringLiteral("format"));
    if (format != QLatin1String("text") && format != QLatin1String("json")) {
        return session.wrongUsage(
                QStringLiteral("--format takes text or json, not '%1'").arg(format));
    }
    const QString severity = line.value(QStringLiteral("severity"));
    const std::optional<Severity> least = severityNamed(severity);
    if (!least) {
        return session.wrongUsage(
                QStringLiteral("--severity takes note, warning or error, not '%1'").arg(severity));
    }
    if (line.positionalArguments().contains(QString()))
        return session.wrongUsage(QStringLiteral("the name of a set is empty"));
    if (!load(line, session))
        return ExitCode::Problem;
    std::map<Severity, int> counts;
    const Findings findings = findingsOf(session, *least, counts);
    if (format == QLatin1String("json"))
        printJson(findings, session, session.out());
    else
        printText(findings, counts, session.out());
    return findings.empty() ? ExitCode::Done : ExitCode::Problem;
}

} // namespace

Command lintCommand()
{
    Command command;
    command.name = QStringLiteral("lint");
    command.synopsis = QStringLiteral("[SET] [--format FORMAT] [--severity LEVEL]");
    command.summary = QStringLiteral("show what is wrong with the hotkeys");
    command.description = QStringLiteral(
            "Prints what is wrong with the hotkeys in effect, one finding a line, the worst\n"
            "first; SET, by path or by name, takes the place of the current set. Errors are\n"
            "keys that several actions of a context hold, or that no key has the name of;\n"
            "warnings are keys that mean something else in some context, that a desktop uses\n"
            "itself, and actions that have lost their hotkeys; notes are keys that text fields\n"
            "use, keys that are easily mistaken, and actions with five or six hotkeys. What the\n"
            "keyboard layout can type is not checked: a terminal may have any keyboard.\n"
            "\n"
            "The exit status is 1 when anything is found that is as severe as LEVEL, or when\n"
            "something cannot be loaded.\n"
            "\n"
            "Example: all sets of a folder, in a pipeline\n"
            "  for set in sets/*.hsx; do hotkeyctl lint \"$set\" --severity error; done\n");
    command.options = {
            {QStringLiteral("format"),
             QStringLiteral("text (if not given) or json (an object with the findings)."),
             QStringLiteral("FORMAT"), QStringLiteral("text")},
            {QStringLiteral("severity"),
             QStringLiteral("The least severe finding that is printed: note, warning (if not\n"
                            "given) or error."),
             QStringLiteral("LEVEL"), QStringLiteral("warning")},
    };
    command.maximumArguments = 1;
    command.run = run;
    return command;
}

} // namespace HotkeyCtl
