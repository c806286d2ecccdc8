#include "Help.h"

#include "Commands.h"

#include <algorithm>

namespace HotkeyCtl {

namespace {

using Rows = QList<QPair<QString, QString>>;

QString twoColumns(const Rows &rows)
{
    int width = 0;
    for (const auto &row : rows)
        width = std::max(width, row.first.size());
    QString text;
    for (const auto &row : rows) {
        QString second = row.second;
        second.replace(QLatin1Char('\n'), QLatin1Char('\n') + QString(width + 4, QLatin1Char(' ')));
        text += QStringLiteral("  %1  %2\n").arg(row.first.leftJustified(width), second);
    }
    return text;
}

QString optionRows(const QList<QCommandLineOption> &options)
{
    Rows rows;
    for (const QCommandLineOption &option : options) {
        QStringList names;
        for (const QString &name : option.names())
            names << (name.size() == 1 ? QStringLiteral("-") : QStringLiteral("--")) + name;
        QString label = names.join(QLatin1String(", "));
        if (!option.valueName().isEmpty())
            label += QLatin1Char(' ') + option.valueName();
        rows.append({label, option.description()});
    }
    return twoColumns(rows);
}

} // namespace

QCommandLineOption helpOption()
{
    return {{QStringLiteral("h"), QStringLiteral("help")}, QStringLiteral("Show this help.")};
}

QString programHelp(const QList<QCommandLineOption> &options)
{
    Rows rows;
    for (const Command &command : commands())
        rows.append({command.name, command.summary});
    return QStringLiteral("hotkeyctl - shows, checks and edits the hotkeys of a host application\n"
                          "\n"
                          "Usage: hotkeyctl [OPTION...] COMMAND [ARGUMENT...]\n"
                          "\n"
                          "Options, before the command:\n"
                          "%1\n"
                          "Commands:\n"
                          "%2\n"
                          "'hotkeyctl COMMAND --help' tells more about a command.\n"
                          "\n"
                          "Exit status: 0 when done, 1 for a problem with the data, 2 for wrong "
                          "usage.\n")
            .arg(optionRows(options), twoColumns(rows));
}

QString commandHelp(const Command &command)
{
    return QStringLiteral("hotkeyctl %1 - %2\n"
                          "\n"
                          "Usage: hotkeyctl [OPTION...] %1 %3\n"
                          "\n"
                          "%4\n"
                          "Options:\n"
                          "%5\n"
                          "'hotkeyctl --help' lists the options that go before the command.\n")
            .arg(command.name, command.summary, command.synopsis, command.description,
                 optionRows(command.options + QList<QCommandLineOption>{helpOption()}));
}

} // namespace HotkeyCtl
