#include "Commands.h"

#include "FileFault.h"
#include "OutputFile.h"
#include "Session.h"
#include "SetSteps.h"
#include "TextOutput.h"

#include <UiCustomizations/WholeFile.h>

#include <QCommandLineParser>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>
#include <QTextStream>

#include <algorithm>

namespace HotkeyCtl {

namespace {

/// The path of the new set; nothing, after reporting why, if there is none.
std::optional<QString> targetOf(const QStringList &arguments, const Session &session)
{
    if (arguments.size() > 1)
        return arguments.at(1);
    const QString name = QFileInfo(arguments.constFirst()).completeBaseName();
    if (name.isEmpty()) {
        session.problem(QStringLiteral("%1: has no name for the set; give one with OUT")
                                .arg(arguments.constFirst()));
        return {};
    }
    const Host::HostPathManager &paths = session.paths();
    if (!paths.createUserDirectory()) {
        session.problem(QStringLiteral("%1: cannot be made").arg(paths.getUserPresetDirectory()));
        return {};
    }
    return paths.getUserPresetDirectory() + QLatin1Char('/') + name + QLatin1String(".hsx");
}

/// Why the target must not be written; empty when it may.
QString reasonAgainst(const QString &target, bool force, const Session &session)
{
    QString reason = reasonAgainstReplacingSet(target, session.presetDirectory());
    if (reason.isEmpty() && !force && QFileInfo::exists(target))
        reason = QStringLiteral("it is there already; --force replaces it");
    return reason;
}

QByteArray contentsOf(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

ExitCode tell(const QString &path, Session &session)
{
    const auto steps = readSteps(path);
    if (!steps)
        return session.problem(QStringLiteral("%1: cannot be read again").arg(path));
    const auto removed = std::count_if(
            steps->begin(), steps->end(), [](const CUI::ShortcutTransformation &step) {
                return step.kind() == CUI::ShortcutTransformation::Unassign;
            });
    session.out() << "Saved as " << printable(path) << ".\nHotkeys assigned: "
                  << static_cast<int>(steps->size()) - static_cast<int>(removed)
                  << ", removed: " << static_cast<int>(removed) << ".\n";
    return ExitCode::Done;
}

ExitCode run(const QCommandLineParser &line, Session &session)
{
    const QStringList arguments = line.positionalArguments();
    if (arguments.contains(QString()))
        return session.wrongUsage(QStringLiteral("the name of a file is empty"));
    if (!session.open())
        return ExitCode::Problem;
    const QString in = arguments.constFirst();
    const QString fault = faultOf(in, &CUI::QvelShortcutManager::validateLegacyKbdx, session);
    if (!fault.isNull())
        return session.problem(QStringLiteral("%1: %2").arg(in, fault));
    // Beside the target, and only then in its place: a conversion that fails leaves no trace.
    const QTemporaryDir folder;
    const QString converted = folder.filePath(QStringLiteral("converted.hsx"));
    if (!folder.isValid() || !CUI::QvelShortcutManager::convertLegacyShortcuts(in, converted)) {
        return session.problem(QStringLiteral("%1: cannot be converted: %2")
                                       .arg(in, session.log().lastError().simplified()));
    }
    const std::optional<QString> target = targetOf(arguments, session);
    if (!target)
        return ExitCode::Problem;
    const QString reason = reasonAgainst(*target, line.isSet(QStringLiteral("force")), session);
    if (!reason.isEmpty())
        return session.problem(
                QStringLiteral("%1: is not written, because %2").arg(*target, reason));
    const QString error = CUI::WholeFile::save(*target, contentsOf(converted));
    if (!error.isEmpty())
        return session.problem(QStringLiteral("%1: cannot be written: %2").arg(*target, error));
    session.close();
    return tell(*target, session);
}

} // namespace

Command convertCommand()
{
    Command command;
    command.name = QStringLiteral("convert");
    command.synopsis = QStringLiteral("IN.kbdx [OUT.hsx] [--force]");
    command.summary = QStringLiteral("turn a legacy keyboard file into a hotkey set");
    command.description = QStringLiteral(
            "Writes what the user of an older release had changed, the hotkeys added and those\n"
            "removed from the defaults of that release, as a hotkey set. Without OUT the set\n"
            "goes to the user's sets, under the name of the keyboard file. Shipped, locked and\n"
            "read-only sets are never written to.\n"
            "\n"
            "Example: bring the keyboard file of an older release along, and use it\n"
            "  hotkeyctl convert old-keyboard.kbdx\n"
            "  hotkeyctl use old-keyboard\n"
            "\n"
            "Once more, after the file has changed\n"
            "  hotkeyctl convert old-keyboard.kbdx --force\n");
    command.options = {
            {QStringLiteral("force"), QStringLiteral("Replace a set that is there already.")}};
    command.minimumArguments = 1;
    command.maximumArguments = 2;
    command.run = run;
    return command;
}

} // namespace HotkeyCtl
