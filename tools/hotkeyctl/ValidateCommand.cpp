#include "Commands.h"

#include "FileFault.h"
#include "Session.h"
#include "TextOutput.h"

#include <QCommandLineParser>
#include <QFileInfo>
#include <QTextStream>

#include <climits>

namespace HotkeyCtl {

namespace {

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

ExitCode run(const QCommandLineParser &line, Session &session)
{
    ExitCode result = ExitCode::Done;
    for (const QString &path : line.positionalArguments()) {
        const Validation validate = validationFor(path);
        const QString found = validate == nullptr ? QStringLiteral("unknown kind of file")
                                                  : faultOf(path, validate, session);
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
