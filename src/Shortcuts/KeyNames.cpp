#include "KeyNames.h"

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
        {Qt::Key_0 + keypad, 0x60},
        {Qt::Key_1 + keypad, 0x61},
        {Qt::Key_2 + keypad, 0x62},
        {Qt::Key_3 + keypad, 0x63},
        {Qt::Key_4 + keypad, 0x64},
        {Qt::Key_5 + keypad, 0x65},
        {Qt::Key_6 + keypad, 0x66},
        {Qt::Key_7 + keypad, 0x67},
        {Qt::Key_8 + keypad, 0x68},
        {Qt::Key_9 + keypad, 0x69},
        {Qt::Key_Asterisk + keypad, 0x6A},
        {Qt::Key_Plus + keypad, 0x6B},
        {Qt::Key_Minus + keypad, 0x6D},
        {Qt::Key_Period + keypad, 0x6E},
        {Qt::Key_Slash + keypad, 0x6F},
}};

constexpr std::array<KeyPair, 12> punctuationKeys{{
        {',', 0xBC},
        {'-', 0xBD},
        {'.', 0xBE},
        {'/', 0xBF},
        {';', 0xBA},
        {'=', 0xBB},
        {'`', 0xC0},
        {'[', 0xDB},
        {'\\', 0xDC},
        {']', 0xDD},
        {'\'', 0xDE},
        {Qt::Key_section, 0xDF},
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

} // namespace CUI::KeyNames
