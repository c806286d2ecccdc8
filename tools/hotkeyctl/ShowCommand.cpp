#include "Commands.h"

#include "FileFault.h"
#include "Session.h"
#include "SetSteps.h"
#include "TextOutput.h"

#include <QCommandLineParser>
#include <QFileInfo>
#include <QTextStream>

namespace HotkeyCtl {

namespace {

using CUI::QvelShortcutManager;
using Steps = std::vector<CUI::ShortcutTransformation>;

/// What a file holds, and what to call it.
struct Contents {
    Steps steps;
    QString title;
};

bool readSet(const QString &path, Contents &contents)
{
    bool isLocked = false;
    QString name;
    if (!QvelShortcutManager::readTransforms(path, contents.steps, isLocked, name))
        return false;
    contents.title =
            QStringLiteral("Hotkey set '%1', %2")
                    .arg(name, isLocked ? QStringLiteral("locked") : QStringLiteral("not locked"));
    return true;
}

bool readLegacy(const QString &path, Contents &contents)
{
    contents.title = QStringLiteral("Legacy keyboard file '%1'").arg(QFileInfo(path).fileName());
    return QvelShortcutManager::readLegacyShortcuts(path, contents.steps);
}

ExitCode run(const QCommandLineParser &line, Session &session)
{
    const QString path = line.positionalArguments().constFirst();
    if (path.isEmpty())
        return session.wrongUsage(QStringLiteral("FILE is empty"));
    const bool isLegacy =
            QFileInfo(path).suffix().compare(QLatin1String("kbdx"), Qt::CaseInsensitive) == 0;
    Contents contents;
    const QString fault = faultOf(
            path,
            [&](const QString &file) {
                return isLegacy ? readLegacy(file, contents) : readSet(file, contents);
            },
            session);
    if (!fault.isNull())
        return session.problem(QStringLiteral("%1: %2").arg(path, fault));
    session.out() << printable(contents.title)
                  << ", steps: " << static_cast<int>(contents.steps.size()) << '\n';
    for (const CUI::ShortcutTransformation &step : contents.steps)
        session.out() << stepLine(step, step.actionId().toString()) << '\n';
    return ExitCode::Done;
}

} // namespace

Command showCommand()
{
    Command command;
    command.name = QStringLiteral("show");
    command.synopsis = QStringLiteral("FILE");
    command.summary = QStringLiteral("show what is in a hotkey set or legacy file");
    command.description = QStringLiteral(
            "Prints the name of the set in FILE and whether it is locked, then its steps, one a\n"
            "line, with the id of the action where the file has no description of it. A legacy\n"
            "keyboard file (kbdx) shows all its hotkeys, whatever the defaults of its release\n"
            "were. No host is needed.\n"
            "\n"
            "Example:\n"
            "  hotkeyctl show old-keyboard.kbdx\n");
    command.minimumArguments = 1;
    command.maximumArguments = 1;
    command.run = run;
    return command;
}

} // namespace HotkeyCtl
