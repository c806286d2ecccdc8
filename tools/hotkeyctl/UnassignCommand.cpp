#include "Commands.h"

#include "SetEditing.h"
#include "TextOutput.h"

#include <UiCustomizations/HotkeyEdits.h>

namespace HotkeyCtl {

namespace {

SetEditing::Report unassign(Session &session, const Host::HostCatalogue::Action &action,
                            const QString &shortcut)
{
    const QString name = session.describe(action.identifier);
    const QStringList before = session.hotkeys(action.identifier);
    // The store takes away exactly the text it is given.
    const QString held = SetEditing::heldSpelling(before, shortcut);
    if (held.isNull()) {
        session.problem(QStringLiteral("%1 does not hold %2, but %3")
                                .arg(name, shortcut,
                                     before.isEmpty() ? QStringLiteral("no hotkey at all")
                                                      : before.join(QLatin1String(", "))));
        return {};
    }
    CUI::HotkeyEdits::take(session.store(), action.identifier, held, action.name);
    return QStringLiteral("Took %1 from %2 in %3.\n")
            .arg(printable(held), name, printable(session.contextName(action.contextId)));
}

ExitCode run(const QCommandLineParser &line, Session &session)
{
    return SetEditing::run(line, session, SetEditing::Accepts::HeldTexts, unassign);
}

} // namespace

Command unassignCommand()
{
    Command command;
    command.name = QStringLiteral("unassign");
    command.synopsis = QStringLiteral("ID SHORTCUT [--save FILE [--force]]");
    command.summary = QStringLiteral("take a hotkey from an action");
    command.description = QStringLiteral(
            "Takes SHORTCUT from the action ID on top of the set. With --save the set, with this\n"
            "step at its end, is written to FILE; the set that was loaded stays as it is unless\n"
            "FILE names it. Shipped and locked sets are never written to.\n"
            "\n"
            "Example:\n"
            "  hotkeyctl --set mine.hsx unassign 1-undo Ctrl+Z --save mine.hsx\n");
    command.options = SetEditing::options();
    command.minimumArguments = 2;
    command.maximumArguments = 2;
    command.run = run;
    return command;
}

} // namespace HotkeyCtl
