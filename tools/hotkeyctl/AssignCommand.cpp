#include "Commands.h"

#include "SetEditing.h"
#include "TextOutput.h"

#include <UiCustomizations/HotkeyEdits.h>

namespace HotkeyCtl {

namespace {

using Host::HostCatalogue;

/// The other actions of the context that hold the hotkey, in the catalogue's order.
std::vector<CUI::ActionIdentifier> otherHolders(const Session &session,
                                                const HostCatalogue::Action &action,
                                                const QString &shortcut)
{
    std::vector<CUI::ActionIdentifier> holders;
    for (const HostCatalogue::Action &other : session.catalogue().actions) {
        const QStringList hotkeys = session.hotkeys(other.identifier);
        if (other.contextId == action.contextId && other.identifier != action.identifier
            && !SetEditing::heldSpelling(hotkeys, shortcut).isNull())
            holders.push_back(other.identifier);
    }
    return holders;
}

SetEditing::Report assign(Session &session, const HostCatalogue::Action &action,
                          const QString &shortcut)
{
    const QString name = session.describe(action.identifier);
    const QStringList before = session.hotkeys(action.identifier);
    const QString held = SetEditing::heldSpelling(before, shortcut);
    if (!held.isNull())
        return QStringLiteral("%1 holds %2 already.\n").arg(name, printable(held));
    if (before.size() >= CUI::QShortcutsList::ShortcutLimitPerAction) {
        session.problem(QStringLiteral("%1 holds %2 hotkeys, which is all it can: %3")
                                .arg(name, QString::number(before.size()),
                                     before.join(QLatin1String(", "))));
        return {};
    }

    const auto holders = otherHolders(session, action, shortcut);
    CUI::HotkeyEdits::give(session.store(), action.identifier, shortcut, action.name);
    if (!session.hotkeys(action.identifier).contains(shortcut)) {
        session.problem(QStringLiteral("%1 cannot be assigned to %2").arg(shortcut, name));
        return {};
    }
    QString report = QStringLiteral("Assigned %1 to %2 in %3.\n")
                             .arg(shortcut, name, printable(session.contextName(action.contextId)));
    for (const CUI::ActionIdentifier &holder : holders)
        report += QStringLiteral("Taken from %1.\n").arg(session.describe(holder));
    return report;
}

ExitCode run(const QCommandLineParser &line, Session &session)
{
    return SetEditing::run(line, session, SetEditing::Accepts::Hotkeys, assign);
}

} // namespace

Command assignCommand()
{
    Command command;
    command.name = QStringLiteral("assign");
    command.synopsis = QStringLiteral("ID SHORTCUT [--save FILE [--force]]");
    command.summary = QStringLiteral("give a hotkey to an action");
    command.description = QStringLiteral(
            "Gives SHORTCUT to the action ID on top of the set, and tells from which action of\n"
            "the same context that takes it, which is a step of its own. With --save the set,\n"
            "with these steps at its end, is written to FILE; the set that was loaded stays as it\n"
            "is unless FILE names it. Shipped and locked sets are never written to. An action can\n"
            "hold six hotkeys.\n"
            "\n"
            "Example: try first, then save\n"
            "  hotkeyctl assign 1-exportAll Ctrl+E\n"
            "  hotkeyctl assign 1-exportAll Ctrl+E --save mine.hsx\n");
    command.options = SetEditing::options();
    command.minimumArguments = 2;
    command.maximumArguments = 2;
    command.run = run;
    return command;
}

} // namespace HotkeyCtl
