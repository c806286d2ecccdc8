#include "Commands.h"

#include "FileFault.h"
#include "Session.h"
#include "SetSearch.h"
#include "TextOutput.h"

#include <QCommandLineParser>
#include <QDir>
#include <QFileInfo>
#include <QTextStream>

namespace HotkeyCtl {

namespace {

constexpr auto hotkeySet = CUI::ConfigType::HotkeySet;

/// False when the record on disk does not name the set @p path afterwards.
bool record(const QString &path, Host::HostPathManager &paths)
{
    paths.chooseConfigurationFile(hotkeySet, path);

    // What the next program will find, without a default to fall back on.
    const Host::HostPathManager next(paths.getInstallDirectory(), paths.getUserDirectory(),
                                     QString(), Host::HostPathManager::Record::InMemory);
    return next.getCurrentConfigurationFile(hotkeySet) == path;
}

ExitCode run(const QCommandLineParser &line, Session &session)
{
    const QString text = line.positionalArguments().constFirst();
    if (text.isEmpty())
        return session.wrongUsage(QStringLiteral("SET is empty"));
    if (!session.open(Host::HostPathManager::Record::OnDisk))
        return ExitCode::Problem;
    const std::optional<QString> found = findSet(session, text);
    if (!found)
        return ExitCode::Problem;
    const QString path = QDir::cleanPath(QFileInfo(*found).absoluteFilePath());
    const QString fault =
            faultOf(path, &CUI::QvelShortcutManager::validateShortcutsTransforms, session);
    if (!fault.isNull())
        return session.problem(QStringLiteral("%1: %2").arg(path, fault));
    bool isLocked = false;
    QString name;
    if (!CUI::QvelShortcutManager::peekPresetMetadata(path, isLocked, name))
        return session.problem(QStringLiteral("%1: is no longer a hotkey set").arg(path));
    if (!record(path, session.paths())) {
        return session.problem(QStringLiteral("the current set cannot be recorded in %1")
                                       .arg(session.paths().getUserDirectory()));
    }
    session.out() << "The current set is now '" << printable(name) << "': " << printable(path)
                  << '\n';
    return ExitCode::Done;
}

} // namespace

Command useCommand()
{
    Command command;
    command.name = QStringLiteral("use");
    command.synopsis = QStringLiteral("SET");
    command.summary = QStringLiteral("choose the current hotkey set");
    command.description = QStringLiteral(
            "Makes SET the current set, for this program and for the host, from now on. SET is\n"
            "the path of a file, wherever it lies, or the name of a set as 'hotkeyctl sets'\n"
            "shows it. A file that is no valid set is refused, and the current set stays.\n"
            "\n"
            "Example:\n"
            "  hotkeyctl use \"Zarvi Default Keyset\"\n");
    command.minimumArguments = 1;
    command.maximumArguments = 1;
    command.run = run;
    return command;
}

} // namespace HotkeyCtl
