#include "Commands.h"

#include "Session.h"
#include "TextOutput.h"

#include <QCommandLineParser>
#include <QFile>
#include <QFileInfo>
#include <QTextStream>

#include <climits>

namespace HotkeyCtl {

namespace {

using Validation = bool (*)(const QString &path);

Validation validationFor(const QString &path)
{
    const QString suffix = QFileInfo(path).suffix().toLower();
    if (suffix == QLatin1String("hsxb"))
        return &CUI::QvelShortcutManager::validateShortcuts;
    if (suffix == QLatin1String("hsx"))
        return &CUI::QvelShortcutManager::validateShortcutsTransforms;
    if (suffix == QLatin1String("kbdx"))
        return &CUI::QvelShortcutManager::validateLegacyKbdx;
    return nullptr;
}

/// What is wrong with the file; null when it is valid.
QString fault(const QString &path, const Session &session)
{
    const Validation validate = validationFor(path);
    if (validate == nullptr)
        return QStringLiteral("unknown kind of file");
    QFile file(path);
    if (QFileInfo(path).exists() && !QFileInfo(path).isFile())
        return QStringLiteral("cannot be opened: Is not a regular file");
    if (!file.open(QIODevice::ReadOnly))
        return QStringLiteral("cannot be opened: %1").arg(file.errorString());
    const int errorsBefore = session.log().errorCount();
    if (validate(path))
        return {};
    if (session.log().errorCount() == errorsBefore)
        return QStringLiteral("cannot be validated");
    // The log's last line tells the fault and its place; the ones before it name the files.
    return QStringLiteral("not valid: %1")
            .arg(session.log().lastError().section(QLatin1Char('\n'), -1));
}

ExitCode run(const QCommandLineParser &line, Session &session)
{
    ExitCode result = ExitCode::Done;
    for (const QString &path : line.positionalArguments()) {
        const QString found = fault(path, session);
        session.out() << printable(path) << ": "
                      << (found.isNull() ? QStringLiteral("valid") : printable(found)) << '\n';
        if (!found.isNull())
            result = ExitCode::Problem;
    }
    return result;
}

} // namespace

Command validateCommand()
{
    Command command;
    command.name = QStringLiteral("validate");
    command.synopsis = QStringLiteral("FILE...");
    command.summary = QStringLiteral("check files against their schemas");
    command.description = QStringLiteral(
            "Checks each file against the schema of its kind, which its suffix tells: hsxb for\n"
            "base files, hsx for hotkey sets, kbdx for legacy keyboard files. Prints one line a\n"
            "file, with the fault and its place if there is one. All files are checked; the exit\n"
            "status is 1 when any of them is not valid.\n"
            "\n"
            "Example:\n"
            "  hotkeyctl validate base/*.hsxb presets/*.hsx\n");
    command.minimumArguments = 1;
    command.maximumArguments = INT_MAX;
    command.run = run;
    return command;
}

} // namespace HotkeyCtl
