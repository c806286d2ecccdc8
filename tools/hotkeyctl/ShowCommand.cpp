#include "Commands.h"

#include "FileFault.h"
#include "OutputFile.h"
#include "Session.h"
#include "SetSteps.h"
#include "TextOutput.h"

#include <QCommandLineParser>
#include <QDir>
#include <QFileInfo>
#include <QTemporaryDir>
#include <QTextStream>

namespace HotkeyCtl {

namespace {

using CUI::QvelShortcutManager;
using Steps = std::vector<CUI::ShortcutTransformation>;

/// Converts a legacy file as if the release had had no default hotkeys at all: each hotkey in it
/// becomes an assignment.
bool convertWithoutDefaults(const QString &path, const QString &out, const QDir &folder)
{
    std::unique_ptr<CUI::IPathManager> paths = std::make_unique<Host::HostPathManager>(
            folder.path(), folder.path(), QString(), Host::HostPathManager::Record::InMemory);
    const QDir legacy(paths->getLegacyHotkeyDirectory());
    if (!folder.mkpath(legacy.path())
        || !writeWhole(legacy.filePath(QStringLiteral("LegacyDefaultUI-2019.kbdx")), "<VLSK_KBD/>")
                    .isEmpty())
        return false;
    CUI::IPathManager::set(paths);
    const bool isConverted = QvelShortcutManager::convertLegacyShortcuts(path, out);
    paths.reset();
    CUI::IPathManager::set(paths);
    return isConverted;
}

std::optional<Steps> stepsOfLegacyFile(const QString &path)
{
    const QTemporaryDir folder;
    const QString set = folder.filePath(QStringLiteral("converted.hsx"));
    if (!folder.isValid() || !convertWithoutDefaults(path, set, QDir(folder.path())))
        return {};
    return readSteps(set);
}

QString title(const QString &path, bool isLegacy)
{
    if (isLegacy)
        return QStringLiteral("Legacy keyboard file '%1'").arg(QFileInfo(path).fileName());
    bool isLocked = false;
    QString name;
    QvelShortcutManager::peekPresetMetadata(path, isLocked, name);
    return QStringLiteral("Hotkey set '%1', %2")
            .arg(name, isLocked ? QStringLiteral("locked") : QStringLiteral("not locked"));
}

ExitCode run(const QCommandLineParser &line, Session &session)
{
    const QString path = line.positionalArguments().constFirst();
    if (path.isEmpty())
        return session.wrongUsage(QStringLiteral("FILE is empty"));
    const bool isLegacy =
            QFileInfo(path).suffix().compare(QLatin1String("kbdx"), Qt::CaseInsensitive) == 0;
    const QString fault = faultOf(path,
                                  isLegacy ? &QvelShortcutManager::validateLegacyKbdx
                                           : &QvelShortcutManager::validateShortcutsTransforms,
                                  session);
    if (!fault.isNull())
        return session.problem(QStringLiteral("%1: %2").arg(path, fault));
    const std::optional<Steps> steps = isLegacy ? stepsOfLegacyFile(path) : readSteps(path);
    if (!steps) {
        return session.problem(QStringLiteral("%1: cannot be read: %2")
                                       .arg(path, session.log().lastError().simplified()));
    }
    session.out() << printable(title(path, isLegacy))
                  << ", steps: " << static_cast<int>(steps->size()) << '\n';
    for (const CUI::ShortcutTransformation &step : *steps)
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
