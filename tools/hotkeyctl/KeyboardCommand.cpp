#include "Commands.h"

#include "HostTranslations.h"
#include "KeyboardOptions.h"
#include "OutputFile.h"
#include "Session.h"

#include <UiCustomizations/WholeFile.h>

#include <QCommandLineParser>
#include <QKeySequence>
#include <QLocale>
#include <QTextStream>

namespace HotkeyCtl {

namespace {

/// The modifiers of a text such as Ctrl+Shift; nothing when it names anything else.
std::optional<Qt::KeyboardModifiers> modifiersOf(const QString &text)
{
    if (text.isEmpty())
        return Qt::KeyboardModifiers();
    const QKeySequence withKey = QKeySequence::fromString(text + QStringLiteral("+A"));
    constexpr int known = Qt::ShiftModifier | Qt::ControlModifier | Qt::AltModifier;
    if (withKey.count() != 1 || (withKey[0] & ~known) != Qt::Key_A)
        return {};
    return Qt::KeyboardModifiers(withKey[0] & known);
}

/// The ids of the contexts that are named; none when all count. Nothing, after telling so, when no
/// context has a name.
std::optional<std::vector<unsigned long>> chosenContexts(const QStringList &names,
                                                         const Session &session)
{
    std::vector<unsigned long> ids;
    for (const QString &name : names) {
        const auto named = session.contextsNamed(name);
        if (!named)
            return {};
        for (const Host::HostCatalogue::Context &context : *named)
            ids.push_back(context.id);
    }
    return ids;
}

ExitCode run(const QCommandLineParser &line, Session &session)
{
    const QString path = line.value(QStringLiteral("output"));
    if (!path.endsWith(QLatin1String(".svg"), Qt::CaseInsensitive))
        return session.wrongUsage(QStringLiteral("--output takes a file that ends in .svg"));
    const auto modifiers = modifiersOf(line.value(QStringLiteral("modifiers")));
    if (!modifiers) {
        return session.wrongUsage(
                QStringLiteral("--modifiers takes Ctrl, Shift, Alt or several joined by +"));
    }
    QString fault;
    const auto layout = layoutOf(line, fault);
    if (!layout)
        return session.wrongUsage(fault);

    const Session::Loading loading = session.load();
    if (loading == Session::Loading::Failed)
        return ExitCode::Problem;
    const auto contexts = chosenContexts(line.values(QStringLiteral("context")), session);
    if (!contexts)
        return ExitCode::Problem;
    Host::installToolkitTranslations(QLocale::system());
    CUI::HotkeyKeyboard keyboard = keyboardOf(*layout, session);
    keyboard.setContexts(*contexts);
    keyboard.setModifiers(*modifiers);
    fault = CUI::WholeFile::save(path, keyboard.toSvg());
    if (!fault.isEmpty())
        return session.problem(QStringLiteral("%1: cannot be written: %2").arg(path, fault));
    return loading == Session::Loading::Complete ? ExitCode::Done : ExitCode::Problem;
}

} // namespace

Command keyboardCommand()
{
    Command command;
    command.name = QStringLiteral("keyboard");
    command.synopsis = QStringLiteral("--output FILE.svg [--context NAME]... [--modifiers KEYS] "
                                      "[--layout NAME] [--shape SHAPE]");
    command.summary = QStringLiteral("draw a keyboard that shows which hotkeys are free");
    command.description = QStringLiteral(
            "Writes the picture of a keyboard as an SVG file. Colour, hatching and a symbol show\n"
            "for each key, together with the modifiers, whether it is free as a hotkey, taken in\n"
            "one context or in several, shadowed by another context or reserved by the system.\n"
            "In a browser, the actions show while the mouse is over a key.\n"
            "\n"
            "Example: what is free with Ctrl+Shift in the viewport\n"
            "  hotkeyctl keyboard -o viewport.svg --context Viewport --modifiers Ctrl+Shift\n");
    command.options = {
            {{QStringLiteral("o"), QStringLiteral("output")},
             QStringLiteral("The file to write."),
             QStringLiteral("FILE")},
            {QStringLiteral("context"),
             QStringLiteral("Only hotkeys of the context NAME. Can be given several times."),
             QStringLiteral("NAME")},
            {QStringLiteral("modifiers"),
             QStringLiteral("The modifiers that are held, such as Ctrl+Shift."),
             QStringLiteral("KEYS")},
    };
    command.options += keyboardOptions();
    command.run = run;
    return command;
}

} // namespace HotkeyCtl
