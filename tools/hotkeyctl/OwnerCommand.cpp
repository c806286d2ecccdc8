#include "Commands.h"

#include "HotkeyText.h"
#include "Session.h"
#include "TextOutput.h"

#include <QCommandLineParser>
#include <QTextStream>

namespace HotkeyCtl {

namespace {

ExitCode run(const QCommandLineParser &line, Session &session)
{
    QString reason;
    const std::optional<QString> shortcut =
            Host::canonicalHotkey(line.positionalArguments().constFirst().trimmed(), reason);
    if (!shortcut)
        return session.wrongUsage(reason);

    const Session::Loading loading = session.load();
    if (loading == Session::Loading::Failed)
        return ExitCode::Problem;
    const std::optional<QString> contextName = optionValue(line, QStringLiteral("context"));
    const auto contexts = session.contextsNamed(contextName);
    if (!contexts)
        return ExitCode::Problem;
    bool isFree = true;
    for (const Host::HostCatalogue::Context &context : *contexts) {
        const CUI::ActionIdentifier owner =
                session.store().getActionIdFromShortcut(*shortcut, context.id);
        if (owner.isEmpty())
            continue;
        session.out() << printable(context.name) << ": " << session.describe(owner) << '\n';
        isFree = false;
    }
    if (isFree) {
        session.out() << *shortcut << " is free";
        if (contextName)
            session.out() << " in " << printable(*contextName);
        session.out() << ".\n";
    }
    return loading == Session::Loading::Complete ? ExitCode::Done : ExitCode::Problem;
}

} // namespace

Command ownerCommand()
{
    Command command;
    command.name = QStringLiteral("owner");
    command.synopsis = QStringLiteral("SHORTCUT [--context NAME]");
    command.summary = QStringLiteral("tell which actions hold a hotkey");
    command.description = QStringLiteral(
            "Prints, for each context in which an action holds SHORTCUT, the context, the\n"
            "action and its id; or says that the hotkey is free. SHORTCUT is one key\n"
            "combination such as Ctrl+Shift+Z or Num+5, in whatever letter case.\n"
            "\n"
            "Example:\n"
            "  hotkeyctl owner ctrl+z\n");
    command.options = {{QStringLiteral("context"), QStringLiteral("Only in the context NAME."),
                        QStringLiteral("NAME")}};
    command.minimumArguments = 1;
    command.maximumArguments = 1;
    command.run = run;
    return command;
}

} // namespace HotkeyCtl
