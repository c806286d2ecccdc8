#include "Commands.h"

#include "OutputFile.h"
#include "Session.h"
#include "TextOutput.h"

#include <UiCustomizations/HotkeyKeyboard.h>

#include <QCommandLineParser>
#include <QKeySequence>
#include <QTextStream>

namespace HotkeyCtl {

namespace {

using CUI::KeyboardLayout;

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

std::optional<KeyboardLayout::Shape> shapeOf(const QString &text)
{
    const QMap<QString, KeyboardLayout::Shape> shapes = {
            {QStringLiteral("ansi"), KeyboardLayout::Shape::Ansi},
            {QStringLiteral("iso"), KeyboardLayout::Shape::Iso},
            {QStringLiteral("jis"), KeyboardLayout::Shape::Jis}};
    const auto found = shapes.find(text);
    return found != shapes.end() ? std::optional(found.value()) : std::nullopt;
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
    auto layout = KeyboardLayout::named(line.value(QStringLiteral("layout")));
    if (!layout) {
        return session.wrongUsage(QStringLiteral("--layout takes %1")
                                          .arg(KeyboardLayout::names().join(QStringLiteral(", "))));
    }
    if (const auto text = optionValue(line, QStringLiteral("shape"))) {
        const auto shape = shapeOf(*text);
        if (!shape)
            return session.wrongUsage(QStringLiteral("--shape takes ansi, iso or jis"));
        layout->setShape(*shape);
    }

    const Session::Loading loading = session.load();
    if (loading == Session::Loading::Failed)
        return ExitCode::Problem;
    const auto contexts = chosenContexts(line.values(QStringLiteral("context")), session);
    if (!contexts)
        return ExitCode::Problem;
    CUI::HotkeyKeyboard keyboard(*layout);
    CUI::HotkeyAudit::Options options;
    options.everywhere = session.catalogue().everywhere();
    options.isEverywhereOrdered = true;
    keyboard.setOptions(options);
    keyboard.setContexts(*contexts);
    keyboard.setModifiers(*modifiers);
    keyboard.readHotkeys(session.store());
    const QString fault = writeWhole(path, keyboard.toSvg());
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
            {QStringLiteral("layout"),
             QStringLiteral("The labels: us (if not given), gb, de, fr, br, jp or ru."),
             QStringLiteral("NAME"), QStringLiteral("us")},
            {QStringLiteral("shape"),
             QStringLiteral("ansi, iso or jis, if not the one that goes with the layout."),
             QStringLiteral("SHAPE")},
    };
    command.run = run;
    return command;
}

} // namespace HotkeyCtl
