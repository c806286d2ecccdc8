#include "Commands.h"

#include "ActionRows.h"
#include "Session.h"
#include "TextOutput.h"

#include <QCommandLineParser>
#include <QTextStream>

#include <algorithm>

namespace HotkeyCtl {

namespace {

struct Row : ActionRow {
    QStringList hotkeys;
    QStringList baseHotkeys;
    bool changed = false;
};

std::vector<Row> rowsOf(const Session &session,
                        const std::vector<Host::HostCatalogue::Context> &contexts)
{
    std::vector<Row> rows;
    for (const ActionRow &action : actionRows(session, contexts)) {
        const QStringList hotkeys = session.hotkeys(action.id);
        const QStringList baseHotkeys = session.baseHotkeys(action.id);
        rows.push_back({action, hotkeys, baseHotkeys, differ(hotkeys, baseHotkeys)});
    }
    return rows;
}

void printText(const std::vector<Row> &rows, QTextStream &out)
{
    QList<QStringList> table = {{QStringLiteral("CONTEXT"), QStringLiteral("ACTION"),
                                 QStringLiteral("ID"), QStringLiteral("HOTKEYS"),
                                 QStringLiteral("CHANGED FROM")}};
    for (const Row &row : rows) {
        QString base;
        if (row.changed)
            base = row.baseHotkeys.isEmpty() ? QStringLiteral("none") : joined(row.baseHotkeys);
        table.append({printable(row.context), printable(row.action), printable(row.id.toString()),
                      printable(joined(row.hotkeys)), printable(base)});
    }
    out << alignedTable(table);
}

void printCsv(const std::vector<Row> &rows, QTextStream &out)
{
    out << csvRecord({QStringLiteral("contextId"), QStringLiteral("context"),
                      QStringLiteral("category"), QStringLiteral("action"), QStringLiteral("id"),
                      QStringLiteral("hotkeys"), QStringLiteral("baseHotkeys"),
                      QStringLiteral("changed")});
    for (const Row &row : rows) {
        out << csvRecord({QString::number(row.contextId), row.context, row.category, row.action,
                          row.id.toString(), joined(row.hotkeys), joined(row.baseHotkeys),
                          boolText(row.changed)});
    }
}

void printJson(const std::vector<Row> &rows, QTextStream &out)
{
    QStringList objects;
    for (const Row &row : rows) {
        objects << QStringLiteral("{%1, \"hotkeys\": %2, \"baseHotkeys\": %3, \"changed\": %4}")
                           .arg(jsonMembers(row), jsonArray(row.hotkeys),
                                jsonArray(row.baseHotkeys), boolText(row.changed));
    }
    out << jsonLines(objects);
}

ExitCode run(const QCommandLineParser &line, Session &session)
{
    using Printer = void (*)(const std::vector<Row> &, QTextStream &);
    const QMap<QString, Printer> printers = {{QStringLiteral("text"), printText},
                                             {QStringLiteral("csv"), printCsv},
                                             {QStringLiteral("json"), printJson}};
    const QString format = line.value(QStringLiteral("format"));
    if (!printers.contains(format)) {
        return session.wrongUsage(
                QStringLiteral("--format takes text, csv or json, not '%1'").arg(format));
    }

    const Session::Loading loading = session.load();
    if (loading == Session::Loading::Failed)
        return ExitCode::Problem;
    const auto contexts = session.contextsNamed(optionValue(line, QStringLiteral("context")));
    if (!contexts)
        return ExitCode::Problem;
    std::vector<Row> rows = rowsOf(session, *contexts);
    if (line.isSet(QStringLiteral("changed"))) {
        rows.erase(std::remove_if(rows.begin(), rows.end(),
                                  [](const Row &row) { return !row.changed; }),
                   rows.end());
    }
    printers.value(format)(rows, session.out());
    return loading == Session::Loading::Complete ? ExitCode::Done : ExitCode::Problem;
}

} // namespace

Command listCommand()
{
    Command command;
    command.name = QStringLiteral("list");
    command.synopsis = QStringLiteral("[--format FORMAT] [--context NAME] [--changed]");
    command.summary = QStringLiteral("show every action and its hotkeys");
    command.description = QStringLiteral(
            "Prints the hotkeys in effect: those of the base with the set on top, one action a\n"
            "line, actions without a hotkey included, in the order of context, action and id.\n"
            "An action counts as changed when the set leaves it other hotkeys than the base\n"
            "has; their order does not matter, their letter case does.\n"
            "\n"
            "When the current set or a base file cannot be loaded, the rest is printed and the\n"
            "exit status is 1.\n"
            "\n"
            "Example: what the user changed in the viewport, for a spreadsheet\n"
            "  hotkeyctl list --context Viewport --changed --format csv\n");
    command.options = {
            {QStringLiteral("format"),
             QStringLiteral("text (if not given), csv (RFC 4180) or json (an array of objects)."),
             QStringLiteral("FORMAT"), QStringLiteral("text")},
            {QStringLiteral("context"), QStringLiteral("Only the actions of the context NAME."),
             QStringLiteral("NAME")},
            {QStringLiteral("changed"), QStringLiteral("Only the actions that the set changes.")},
    };
    command.run = run;
    return command;
}

} // namespace HotkeyCtl
