#include "KeyboardOptions.h"

#include "Command.h"
#include "Session.h"

#include <QCommandLineParser>
#include <QMap>

namespace HotkeyCtl {

namespace {

using CUI::KeyboardLayout;

const QString layoutOption = QStringLiteral("layout");
const QString shapeOption = QStringLiteral("shape");

std::optional<KeyboardLayout::Shape> shapeOf(const QString &text)
{
    const QMap<QString, KeyboardLayout::Shape> shapes = {
            {QStringLiteral("ansi"), KeyboardLayout::Shape::Ansi},
            {QStringLiteral("iso"), KeyboardLayout::Shape::Iso},
            {QStringLiteral("jis"), KeyboardLayout::Shape::Jis}};
    const auto found = shapes.find(text);
    return found != shapes.end() ? std::optional(found.value()) : std::nullopt;
}

} // namespace

QList<QCommandLineOption> keyboardOptions()
{
    return {
            {layoutOption,
             QStringLiteral("The labels of the keys: us (if not given), gb, de, fr, br, jp or ru."),
             QStringLiteral("NAME"), QStringLiteral("us")},
            {shapeOption,
             QStringLiteral("ansi, iso or jis, if not the one that goes with the layout."),
             QStringLiteral("SHAPE")},
    };
}

bool hasKeyboardOptions(const QCommandLineParser &line)
{
    return line.isSet(layoutOption) || line.isSet(shapeOption);
}

std::optional<KeyboardLayout> layoutOf(const QCommandLineParser &line, QString &fault)
{
    auto layout = KeyboardLayout::named(line.value(layoutOption));
    if (!layout) {
        fault = QStringLiteral("--layout takes %1")
                        .arg(KeyboardLayout::names().join(QStringLiteral(", ")));
        return {};
    }
    if (const auto text = optionValue(line, shapeOption)) {
        const auto shape = shapeOf(*text);
        if (!shape) {
            fault = QStringLiteral("--shape takes ansi, iso or jis");
            return {};
        }
        layout->setShape(*shape);
    }
    return layout;
}

CUI::HotkeyKeyboard keyboardOf(const KeyboardLayout &layout, Session &session)
{
    CUI::HotkeyKeyboard keyboard(layout);
    keyboard.setOptions(session.catalogue().auditOptions());
    keyboard.readHotkeys(session.store());
    return keyboard;
}

} // namespace HotkeyCtl
