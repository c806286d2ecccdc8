#include "Commands.h"

#include "OutputFile.h"
#include "Session.h"
#include "TextOutput.h"

#include <UiCustomizations/WholeFile.h>

#include <QCommandLineParser>
#include <QFile>
#include <QTemporaryDir>
#include <QTextStream>

namespace HotkeyCtl {

namespace {

/// The text of the base file; nothing when it cannot be made. The store does not say whether it
/// could save, but a file in a new folder can only come from it.
std::optional<QByteArray> baseFileText(const CUI::QvelShortcutManager &store)
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("base.hsxb"));
    if (folder.isValid())
        store.saveShortcuts(path);
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly) || !CUI::QvelShortcutManager::validateShortcuts(path))
        return {};
    return file.readAll();
}

ExitCode run(const QCommandLineParser &line, Session &session)
{
    const QString path = line.positionalArguments().constFirst();
    if (path.isEmpty())
        return session.wrongUsage(QStringLiteral("FILE is empty"));
    if (!session.loadBase())
        return ExitCode::Problem;
    const QString reason = reasonAgainstReplacingBase(path, session.presetDirectory());
    if (!reason.isEmpty()) {
        return session.problem(QStringLiteral("%1: is not written, because %2").arg(path, reason));
    }
    const std::optional<QByteArray> text = baseFileText(session.store());
    if (!text) {
        return session.problem(
                QStringLiteral("the base hotkeys cannot be written as a valid base file"));
    }
    const QString error = CUI::WholeFile::save(path, *text);
    if (!error.isEmpty())
        return session.problem(QStringLiteral("%1: cannot be written: %2").arg(path, error));
    session.out() << "Saved as " << printable(path) << ".\n";
    return ExitCode::Done;
}

} // namespace

Command baseCommand()
{
    Command command;
    command.name = QStringLiteral("base");
    command.synopsis = QStringLiteral("FILE");
    command.summary = QStringLiteral("write the base hotkeys to a file");
    command.description = QStringLiteral(
            "Writes what the configuration stands on, its base files and the default hotkeys of\n"
            "the actions taken together, as one base file. The set plays no part in it. An\n"
            "existing FILE is replaced only if it is a base file.\n"
            "\n"
            "Example:\n"
            "  hotkeyctl base all.hsxb\n");
    command.minimumArguments = 1;
    command.maximumArguments = 1;
    command.run = run;
    return command;
}

} // namespace HotkeyCtl
