#include "Commands.h"

#include "ActionRows.h"
#include "Session.h"
#include "SetSearch.h"
#include "TextOutput.h"

#include <QCommandLineParser>
#include <QTextStream>

#include <map>

namespace HotkeyCtl {

namespace {

const QString base = QStringLiteral("base");

/// One of the two that are compared.
struct Side {
    QString name;
    std::map<CUI::ActionIdentifier, QStringList> hotkeys;
};

struct Difference {
    ActionRow row;
    QStringList a;
    QStringList b;
};

/// Nothing, after telling why, when there is no such set or it cannot be loaded.
std::optional<Side> sideOf(const QString &text, Session &session)
{
    Side side;
    side.name = text;
    if (text != base) {
        const std::optional<QString> path = findSet(session, text);
        if (!path || !session.loadSet(*path))
            return {};
        bool isLocked = false;
        if (*path == text) // the name is shorter
            CUI::QvelShortcutManager::peekPresetMetadata(*path, isLocked, side.name);
    }
    for (const Host::HostCatalogue::Action &action : session.catalogue().actions) {
        side.hotkeys[action.identifier] = text == base ? session.baseHotkeys(action.identifier)
                                                       : session.hotkeys(action.identifier);
    }
    return side;
}

std::vector<Difference> differences(const Session &session, const Side &a, const Side &b)
{
    std::vector<Difference> found;
    for (const ActionRow &row : actionRows(session, session.catalogue().contexts)) {
        const QStringList hotkeysOfA = a.hotkeys.at(row.id);
        const QStringList hotkeysOfB = b.hotkeys.at(row.id);
        if (differ(hotkeysOfA, hotkeysOfB))
            found.push_back({row, hotkeysOfA, hotkeysOfB});
    }
    return found;
}

QString cell(const QStringList &hotkeys)
{
    return hotkeys.isEmpty() ? QStringLiteral("none") : printable(joined(hotkeys));
}

void printText(const std::vector<Difference> &found, const Side &a, const Side &b, QTextStream &out)
{
    if (found.empty()) {
        out << "no differences\n";
        return;
    }
    QList<QStringList> table = {{QStringLiteral("CONTEXT"), QStringLiteral("ACTION"),
                                 QStringLiteral("ID"), printable(a.name), printable(b.name)}};
    for (const Difference &difference : found) {
        const ActionRow &row = difference.row;
        table.append({printable(row.context), printable(row.action), printable(row.id.toString()),
                      cell(difference.a), cell(difference.b)});
    }
    out << alignedTable(table);
}

void printJson(const std::vector<Difference> &found, QTextStream &out)
{
    QStringList objects;
    for (const Difference &difference : found) {
        objects << QStringLiteral("{%1, \"a\": %2, \"b\": %3}")
                           .arg(jsonMembers(difference.row), jsonArray(difference.a),
                                jsonArray(difference.b));
    }
    out << jsonLines(objects);
}

ExitCode run(const QCommandLineParser &line, Session &session)
{
    const QString format = line.value(QStringLiteral("format"));
    if (format != QLatin1String("text") && format != QLatin1String("json")) {
        return session.wrongUsage(
                QStringLiteral("--format takes text or json, not '%1'").arg(format));
    }
    if (line.positionalArguments().contains(QString()))
        return session.wrongUsage(QStringLiteral("the name of a set is empty"));
    // Compared on top of half a base, two sets would differ where they do not.
    if (!session.loadBase())
        return ExitCode::Problem;
    const std::optional<Side> a = sideOf(line.positionalArguments().at(0), session);
    if (!a)
        return ExitCode::Problem;
    const std::optional<Side> b = sideOf(line.positionalArguments().at(1), session);
    if (!b)
        return ExitCode::Problem;
    const std::vector<Difference> found = differences(session, *a, *b);
    if (format == QLatin1String("json"))
        printJson(found, session.out());
    else
        printText(found, *a, *b, session.out());
    return ExitCode::Done;
}

} // namespace

Command diffCommand()
{
    Command command;
    command.name = QStringLiteral("diff");
    command.synopsis = QStringLiteral("A B [--format FORMAT]");
    command.summary = QStringLiteral("show where two hotkey sets differ");
    command.description = QStringLiteral(
            "Prints the actions that have other hotkeys with the set A than with the set B, in\n"
            "the order of context, action and id; the order of the hotkeys does not matter,\n"
            "their letter case does. A and B are sets by path or by name, or 'base' for no set\n"
            "(./base is a file of that name). The exit status is 0 with and without\n"
            "differences.\n"
            "\n"
            "Example:\n"
            "  hotkeyctl diff mine.hsx \"Zarvi Default Keyset\"\n"
            "  hotkeyctl diff base mine.hsx --format json\n");
    command.options = {{QStringLiteral("format"),
                        QStringLiteral("text (if not given) or json (an array of objects)."),
                        QStringLiteral("FORMAT"), QStringLiteral("text")}};
    command.minimumArguments = 2;
    command.maximumArguments = 2;
    command.run = run;
    return command;
}

} // namespace HotkeyCtl
