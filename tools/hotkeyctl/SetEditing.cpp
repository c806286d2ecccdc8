#include "SetEditing.h"

#include "HotkeyText.h"
#include "OutputFile.h"
#include "TextOutput.h"

#include <QCommandLineParser>
#include <QFileInfo>
#include <QLockFile>
#include <QTextStream>

namespace HotkeyCtl::SetEditing {

namespace {

const QString save = QStringLiteral("save");
const QString force = QStringLiteral("force");

/// Reports what is wrong with the target; Done if nothing is.
ExitCode checkTarget(const Session &session, const QString &path)
{
    const QString reason = reasonAgainstReplacingSet(path, session.presetDirectory());
    if (reason.isEmpty())
        return ExitCode::Done;
    return session.problem(QStringLiteral("%1: is not written, because %2").arg(path, reason));
}

} // namespace

QList<QCommandLineOption> options()
{
    return {
            {save, QStringLiteral("Save the resulting set as FILE; a dry run without it."),
             QStringLiteral("FILE")},
            {force,
             QStringLiteral("Save even if the set has changed in FILE since it was loaded.")},
    };
}

ExitCode saveSet(const QCommandLineParser &line, Session &session, const QString &path)
{
    const CUI::QvelShortcutManager &store = session.store();
    // Two programs that both look before either of them saves would not notice each other.
    const QFileInfo info(path);
    QLockFile lock(info.absolutePath() + QStringLiteral("/.%1.lock").arg(info.fileName()));
    constexpr int patience = 10000; // milliseconds
    if (!lock.tryLock(patience) && lock.error() == QLockFile::LockFailedError) {
        return session.problem(
                QStringLiteral("%1: is not written, because another program is writing it")
                        .arg(path));
    }
    if (!line.isSet(force) && QFileInfo(path) == QFileInfo(store.transformsFile())
        && store.hasTransformsFileChanged()) {
        return session.problem(QStringLiteral("%1: is not written, because it has changed since it "
                                              "was loaded; --force replaces it")
                                       .arg(path));
    }
    if (!session.store().saveShortcutTransforms(path))
        return session.problem(QStringLiteral("%1: cannot be written").arg(path));
    return ExitCode::Done;
}

QString heldSpelling(const QStringList &hotkeys, const QString &shortcut)
{
    for (const QString &hotkey : hotkeys) {
        if (hotkey.compare(shortcut, Qt::CaseInsensitive) == 0)
            return hotkey;
    }
    return {};
}

ExitCode run(const QCommandLineParser &line, Session &session, Accepts accepts, const Edit &edit)
{
    const QString idText = line.positionalArguments().at(0);
    const QString hotkeyText = line.positionalArguments().at(1);
    QString reason;
    std::optional<QString> shortcut = Host::canonicalHotkey(hotkeyText.trimmed(), reason);
    if (!shortcut && accepts == Accepts::Hotkeys)
        return session.wrongUsage(reason);
    const std::optional<QString> target = optionValue(line, save);
    if (target && target->isEmpty())
        return session.wrongUsage(QStringLiteral("--save needs the name of a file"));

    // Saved on top of half a configuration, the edit would come out as another one later.
    if (session.load() != Session::Loading::Complete)
        return session.problem(QStringLiteral("nothing was changed"));
    const Host::HostCatalogue::Action *action = session.findAction(idText);
    if (action == nullptr)
        return session.problem(QStringLiteral("there is no action '%1'").arg(idText));
    if (!shortcut && session.hotkeys(action->identifier).contains(hotkeyText))
        shortcut = hotkeyText;
    if (!shortcut)
        return session.wrongUsage(reason);

    const Report report = edit(session, *action, *shortcut);
    if (!report)
        return ExitCode::Problem;
    return finish(line, session, *report);
}

ExitCode finish(const QCommandLineParser &line, Session &session, const QString &report)
{
    const std::optional<QString> target = optionValue(line, save);
    if (target
        && (checkTarget(session, *target) != ExitCode::Done
            || saveSet(line, session, *target) != ExitCode::Done))
        return ExitCode::Problem;
    session.out() << report;
    if (target)
        session.out() << "Saved as " << printable(*target) << ".\n";
    else
        session.out() << "Dry run: nothing was saved. --save FILE saves the set.\n";
    return ExitCode::Done;
}

} // namespace HotkeyCtl::SetEditing
