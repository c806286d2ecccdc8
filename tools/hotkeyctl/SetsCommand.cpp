#include "Commands.h"

#include "Session.h"
#include "TextOutput.h"

#include <UiCustomizations/Preset.h>

#include <QCommandLineParser>
#include <QFileInfo>
#include <QTextStream>

namespace HotkeyCtl {

namespace {

using CUI::Preset;

/// The place of the current set in the list: that of its path, or else that of another path to the
/// same file; -1 when it is not there.
int indexOfCurrent(const QList<Preset> &presets, const QString &current)
{
    const int index = presets.indexOf(Preset(current, false, QString()));
    const QString file = QFileInfo(current).canonicalFilePath();
    if (index >= 0 || file.isEmpty())
        return index;
    for (int i = 0; i < presets.size(); ++i) {
        if (QFileInfo(presets.at(i).path()).canonicalFilePath() == file)
            return i;
    }
    return -1;
}

QString yesOrNo(bool value)
{
    return value ? QStringLiteral("yes") : QStringLiteral("no");
}

void printText(const QList<Preset> &presets, int current, QTextStream &out)
{
    QList<QStringList> table = {{QStringLiteral("NAME"), QStringLiteral("LOCKED"),
                                 QStringLiteral("SHIPPED"), QStringLiteral("CURRENT"),
                                 QStringLiteral("WRITABLE"), QStringLiteral("PATH")}};
    for (int i = 0; i < presets.size(); ++i) {
        const Preset &preset = presets.at(i);
        table.append({printable(preset.name()), yesOrNo(preset.isLocked()),
                      yesOrNo(preset.isDefaultHotkeySet()), yesOrNo(i == current),
                      yesOrNo(preset.isWritable()), printable(preset.path())});
    }
    out << alignedTable(table);
}

void printJson(const QList<Preset> &presets, int current, QTextStream &out)
{
    QStringList objects;
    for (int i = 0; i < presets.size(); ++i) {
        const Preset &preset = presets.at(i);
        objects << QStringLiteral("{\"name\": %1, \"locked\": %2, \"shipped\": %3, "
                                  "\"current\": %4, \"writable\": %5, \"path\": %6}")
                           .arg(jsonString(preset.name()), boolText(preset.isLocked()),
                                boolText(preset.isDefaultHotkeySet()), boolText(i == current),
                                boolText(preset.isWritable()), jsonString(preset.path()));
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
    if (!session.open())
        return ExitCode::Problem;
    const QList<Preset> presets = Preset::getPresetList(CUI::ConfigType::HotkeySet);
    const QString currentPath =
            session.paths().getCurrentConfigurationFile(CUI::ConfigType::HotkeySet);
    const int current = indexOfCurrent(presets, currentPath);
    if (format == QLatin1String("json")) {
        printJson(presets, current, session.out());
        return ExitCode::Done;
    }
    printText(presets, current, session.out());
    if (current < 0 && !currentPath.isEmpty())
        session.out() << "The current set is not among them: " << printable(currentPath) << '\n';
    return ExitCode::Done;
}

} // namespace

Command setsCommand()
{
    Command command;
    command.name = QStringLiteral("sets");
    command.synopsis = QStringLiteral("[--format FORMAT]");
    command.summary = QStringLiteral("show the hotkey sets there are");
    command.description = QStringLiteral(
            "Prints the sets that are shipped with the host, which this marks read-only, then\n"
            "those of the user, each in the order of the file names: their names, whether they\n"
            "are locked, shipped, the current one and writable, and their paths. Files that are\n"
            "no valid set are left out; the log names them.\n"
            "\n"
            "Example: for a script\n"
            "  hotkeyctl sets --format json\n");
    command.options = {{QStringLiteral("format"),
                        QStringLiteral("text (if not given) or json (an array of objects)."),
                        QStringLiteral("FORMAT"), QStringLiteral("text")}};
    command.run = run;
    return command;
}

} // namespace HotkeyCtl
