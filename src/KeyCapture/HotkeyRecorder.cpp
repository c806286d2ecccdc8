#include "HotkeyRecorder.h"

#include "KeyNames.h"
#include "NativeKeys.h"
#include "VirtualKeys.h"

#include <QKeyEvent>
#include <QKeySequence>
#include <QLoggingCategory>

namespace CUI::HotkeyRecorder {

namespace {

Q_LOGGING_CATEGORY(keys, "cui.hotkeyeditor.keys")

void writeToLog(const QKeyEvent &event)
{
    const QString line = QStringLiteral("key: %1 Text: %2 modifiers: %3 nativeModifiers: %4 "
                                        "nativeScanCode: %5 nativeVirtualKey: %6");
    QMessageLogger().debug(keys()).noquote() << line.arg(
            QString::number(event.key()), event.text(), QString::number(event.modifiers()),
            QString::number(event.nativeModifiers()), QString::number(event.nativeScanCode()),
            QString::number(event.nativeVirtualKey()));
}

int modifierOf(int key)
{
    switch (key) {
    case Qt::Key_Shift:
        return Qt::ShiftModifier;
    case Qt::Key_Control:
        return Qt::ControlModifier;
    case Qt::Key_Alt:
        return Qt::AltModifier;
    case Qt::Key_Meta:
        return Qt::MetaModifier;
    default:
        return 0;
    }
}

/// The modifier that the key of the event stands for; 0 for other keys.
int modifierOf(const QKeyEvent &event, int virtualKey)
{
    return virtualKey == VirtualKeys::alt ? int{Qt::AltModifier} : modifierOf(event.key());
}

/// Hotkeys never have Meta.
int withoutMeta(int modifiers)
{
    return modifiers & (int{Qt::ShiftModifier} | int{Qt::ControlModifier} | int{Qt::AltModifier});
}

int heldModifiers(const QKeyEvent &event, int virtualKey)
{
    // An event does not always count the key that it reports among the modifiers.
    return withoutMeta(static_cast<int>(event.modifiers()) | modifierOf(event, virtualKey));
}

/// The key as it is without Shift and other modifiers.
int unshiftedKey(const QKeyEvent &event, int virtualKey)
{
    if (VirtualKeys::isDigitOrLetter(virtualKey))
        return virtualKey;
    if (VirtualKeys::isPunctuation(virtualKey)) {
        const int character = NativeKeys::unshiftedCharacterOf(virtualKey, event);
        if (character != 0)
            return character;
    }
    return event.key();
}

int keyOf(const QKeyEvent &event, int virtualKey)
{
    const int key = unshiftedKey(event, virtualKey);
    switch (key) {
    case Qt::Key_Backtab:
        return Qt::Key_Tab;
    case Qt::Key_Return:
        return Qt::Key_Enter;
    default:
        return key;
    }
}

} // namespace

Capture capture(const QKeyEvent &event)
{
    writeToLog(event);
    const int virtualKey = NativeKeys::virtualKeyOf(event);
    const int key = keyOf(event, virtualKey);
    Capture result;
    result.modifiers = heldModifiers(event, virtualKey);
    if (KeyNames::canBeHotkey(key | result.modifiers))
        result.combination = key | result.modifiers;
    if (result.combination != 0 && VirtualKeys::isOnKeypad(virtualKey))
        result.combination |= int{Qt::KeypadModifier};
    return result;
}

WayOut wayOut(const QKeyEvent &event)
{
    const int virtualKey = NativeKeys::virtualKeyOf(event);
    const int modifiers = heldModifiers(event, virtualKey);
    if (!KeyNames::movesFocus(keyOf(event, virtualKey) | modifiers))
        return WayOut::None;
    const bool isBack = event.key() == Qt::Key_Backtab || (modifiers & int{Qt::ShiftModifier}) != 0;
    return isBack ? WayOut::Previous : WayOut::Next;
}

Qt::KeyboardModifiers heldAfter(const QKeyEvent &event)
{
    if (event.type() == QEvent::KeyPress || modifierOf(event.key()) == 0)
        return Qt::KeyboardModifiers(heldModifiers(event, NativeKeys::virtualKeyOf(event)));
    const int released = modifierOf(event, NativeKeys::virtualKeyOf(event));
    return Qt::KeyboardModifiers(withoutMeta(static_cast<int>(event.modifiers()) & ~released));
}

QString displayText(const Capture &capture)
{
    const QKeySequence shown(capture.combination != 0 ? capture.combination : capture.modifiers);
    return shown.toString(QKeySequence::NativeText);
}

} // namespace CUI::HotkeyRecorder
