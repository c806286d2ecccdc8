#include "KeyNames.h"

#include "VirtualKeys.h"

#include <algorithm>
#include <array>
#include <cstdint>

namespace CUI::KeyNames {

namespace {

// Flag bits of an accelerator.
constexpr int fVirtKey = 1;
constexpr int fNoInvert = 2;
constexpr int fShift = 4;
constexpr int fControl = 8;
constexpr int fAlt = 16;
constexpr int fModifiers = fShift | fControl | fAlt;
// Moves the three modifier flags onto Qt::ShiftModifier, Qt::ControlModifier, Qt::AltModifier.
constexpr int modifierShift = 23;

constexpr std::uint32_t keypad = Qt::KeypadModifier;
constexpr std::uint32_t firstNamedKey = 0x01000000;

struct KeyPair {
    std::uint32_t key;
    std::uint32_t virtualKey;
};

// F1 is left out: it stays with the host's help. Enter stands before Return, so that the reverse
// look-up of the virtual key they share gives Enter.
constexpr std::array<KeyPair, 43> namedKeys{{
        {Qt::Key_Escape, 0x1B},
        {Qt::Key_Tab, 0x09},
        {Qt::Key_Backspace, 0x08},
        {Qt::Key_Enter, 0x0D},
        {Qt::Key_Return, 0x0D},
        {Qt::Key_Insert, 0x2D},
        {Qt::Key_Delete, 0x2E},
        {Qt::Key_Home, 0x24},
        {Qt::Key_End, 0x23},
        {Qt::Key_Left, 0x25},
        {Qt::Key_Up, 0x26},
        {Qt::Key_Right, 0x27},
        {Qt::Key_Down, 0x28},
        {Qt::Key_PageUp, 0x21},
        {Qt::Key_PageDown, 0x22},
        {Qt::Key_CapsLock, 0x14},
        {Qt::Key_Space, 0x20},
        {Qt::Key_F2, 0x71},
        {Qt::Key_F3, 0x72},
        {Qt::Key_F4, 0x73},
        {Qt::Key_F5, 0x74},
        {Qt::Key_F6, 0x75},
        {Qt::Key_F7, 0x76},
        {Qt::Key_F8, 0x77},
        {Qt::Key_F9, 0x78},
        {Qt::Key_F10, 0x79},
        {Qt::Key_F11, 0x7A},
        {Qt::Key_F12, 0x7B},
        {Qt::Key_0 + keypad, VirtualKeys::keypad0},
        {Qt::Key_1 + keypad, VirtualKeys::keypad0 + 1},
        {Qt::Key_2 + keypad, VirtualKeys::keypad0 + 2},
        {Qt::Key_3 + keypad, VirtualKeys::keypad0 + 3},
        {Qt::Key_4 + keypad, VirtualKeys::keypad0 + 4},
        {Qt::Key_5 + keypad, VirtualKeys::keypad0 + 5},
        {Qt::Key_6 + keypad, VirtualKeys::keypad0 + 6},
        {Qt::Key_7 + keypad, VirtualKeys::keypad0 + 7},
        {Qt::Key_8 + keypad, VirtualKeys::keypad0 + 8},
        {Qt::Key_9 + keypad, VirtualKeys::keypad0 + 9},
        {Qt::Key_Asterisk + keypad, VirtualKeys::keypadMultiply},
        {Qt::Key_Plus + keypad, VirtualKeys::keypadAdd},
        {Qt::Key_Minus + keypad, VirtualKeys::keypadSubtract},
        {Qt::Key_Period + keypad, VirtualKeys::keypadDecimal},
        {Qt::Key_Slash + keypad, VirtualKeys::keypadDivide},
}};

constexpr std::array<KeyPair, 12> punctuationKeys{{
        {',', 0xBC},
        {'-', 0xBD},
        {'.', 0xBE},
        {'/', 0xBF},
        {';', VirtualKeys::firstPunctuation},
        {'=', 0xBB},
        {'`', 0xC0},
        {'[', 0xDB},
        {'\\', 0xDC},
        {']', 0xDD},
        {'\'', 0xDE},
        {Qt::Key_section, VirtualKeys::lastPunctuation},
}};

template <std::size_t Size>
std::uint32_t virtualKeyOf(const std::array<KeyPair, Size> &pairs, std::uint32_t key)
{
    const auto it = std::find_if(pairs.begin(), pairs.end(),
                                 [key](const KeyPair &pair) { return pair.key == key; });
    return it == pairs.end() ? 0 : it->virtualKey;
}

template <std::size_t Size>
std::uint32_t keyOf(const std::array<KeyPair, Size> &pairs, std::uint32_t virtualKey)
{
    const auto it = std::find_if(pairs.begin(), pairs.end(), [virtualKey](const KeyPair &pair) {
        return pair.virtualKey == virtualKey;
    });
    return it == pairs.end() ? 0 : it->key;
}

int flagsOf(std::uint32_t combination)
{
    const auto modifiers =
            combination & (Qt::ShiftModifier | Qt::ControlModifier | Qt::AltModifier);
    return fNoInvert | fVirtKey | static_cast<int>(modifiers >> modifierShift);
}

QStringList splitAtPlus(const QString &hotkey)
{
    const QLatin1Char plus('+');
    if (!hotkey.endsWith(plus))
        return hotkey.split(plus);
    QString modifiers = hotkey;
    modifiers.chop(2); // the key and the separator before it, if there is one
    return modifiers.split(plus) << QString(plus);
}

} // namespace

bool keySequenceToVirtualKey(const QString &shortcut, int &virtualKey, int &fVirt)
{
    fVirt = fNoInvert;
    virtualKey = 0;
    const QKeySequence sequence = QKeySequence::fromString(shortcut, QKeySequence::PortableText);
    if (sequence.isEmpty())
        return false;
    const auto combination = static_cast<std::uint32_t>(sequence[0]);
    fVirt = flagsOf(combination);
    const std::uint32_t key = combination & ~static_cast<std::uint32_t>(Qt::KeyboardModifierMask);

    const bool onKeypad = (combination & keypad) != 0;
    std::uint32_t found = virtualKeyOf(namedKeys, onKeypad ? key + keypad : key);
    if (found == 0 && !onKeypad)
        found = virtualKeyOf(punctuationKeys, key);
    if (found != 0) {
        virtualKey = static_cast<int>(found);
        return true;
    }
    if (onKeypad || key >= firstNamedKey)
        return false;
    virtualKey = static_cast<int>(key); // letters and digits are their own virtual keys
    return true;
}

QString virtualKeyToStr(int virtualKey, int fVirt)
{
    auto key = static_cast<std::uint32_t>(virtualKey);
    if ((fVirt & fVirtKey) != 0) {
        const auto code = static_cast<std::uint32_t>(virtualKey);
        if (const std::uint32_t named = keyOf(namedKeys, code); named != 0)
            key = named;
        else if (const std::uint32_t punctuation = keyOf(punctuationKeys, code); punctuation != 0)
            key = punctuation;
    }
    const auto modifiers = static_cast<std::uint32_t>(fVirt & fModifiers) << modifierShift;
    return QKeySequence(static_cast<int>(key + modifiers)).toString(QKeySequence::PortableText);
}

int keyToOEM(int key)
{
    return static_cast<int>(virtualKeyOf(punctuationKeys, static_cast<std::uint32_t>(key)));
}

int oemToKey(int virtualKey)
{
    return static_cast<int>(keyOf(punctuationKeys, static_cast<std::uint32_t>(virtualKey)));
}

QString getNumPadKeyName(QKeySequence::SequenceFormat format)
{
    const QKeySequence sequence =
            QKeySequence::fromString(QStringLiteral("Num+A"), QKeySequence::PortableText);
    const QString text = sequence.toString(format);
    return text.left(text.indexOf(QLatin1Char('+')));
}

QStringList partsOf(const QString &hotkey, QKeySequence::SequenceFormat inputFormat,
                    QKeySequence::SequenceFormat outputFormat)
{
    const QString text = QKeySequence(hotkey, inputFormat).toString(outputFormat);
    if (text.isEmpty())
        return {};
    QStringList parts = splitAtPlus(text);
    if (parts.size() > 1 && parts.at(parts.size() - 2) == getNumPadKeyName(outputFormat)) {
        const QString key = parts.takeLast();
        parts.last() += QLatin1Char('+') + key;
    }
    return parts;
}

QKeySequence keyOf(const QString &hotkey)
{
    const QKeySequence key = QKeySequence::fromString(hotkey, QKeySequence::PortableText);
    for (int i = 0; i < key.count(); ++i) {
        const auto combination = static_cast<unsigned>(key[static_cast<uint>(i)]);
        if ((combination & ~static_cast<unsigned>(Qt::KeyboardModifierMask)) == Qt::Key_unknown)
            return {};
    }
    return key;
}

bool canBeHotkey(int combination)
{
    constexpr int modifiers = Qt::ShiftModifier | Qt::ControlModifier | Qt::AltModifier
                              | Qt::MetaModifier | Qt::KeypadModifier;
    const int key = combination & ~modifiers;
    switch (key) {
    case 0:
    case Qt::Key_Shift:
    case Qt::Key_Control:
    case Qt::Key_Alt:
    case Qt::Key_Meta:
    case Qt::Key_Escape:
    case Qt::Key_NumLock:
    case Qt::Key_F1:
    case Qt::Key_Pause:
    case Qt::Key_Backspace:
    case Qt::Key_ScrollLock:
        return false;
    default:
        return key <= Qt::Key_F24 && !movesFocus(combination);
    }
}

bool movesFocus(int combination)
{
    return (combination & ~int{Qt::ShiftModifier}) == (Qt::ControlModifier | Qt::Key_Tab);
}

} // namespace CUI::KeyNames
