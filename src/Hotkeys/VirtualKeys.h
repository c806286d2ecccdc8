#pragma once

namespace CUI {

/// The codes of Windows virtual keys that more than one file needs. A digit or a Latin letter in
/// upper case is its own code.
namespace VirtualKeys {

constexpr int alt = 0x12;

constexpr int keypad0 = 0x60; // to keypad0 + 9
constexpr int keypadMultiply = 0x6A;
constexpr int keypadAdd = 0x6B;
constexpr int keypadSeparator = 0x6C;
constexpr int keypadSubtract = 0x6D;
constexpr int keypadDecimal = 0x6E;
constexpr int keypadDivide = 0x6F;

constexpr int firstPunctuation = 0xBA;
constexpr int lastPunctuation = 0xDF; // a key of some layouts only, that of the section sign
constexpr int besideLeftShift = 0xE2; // a key that US keyboards do not have

constexpr bool isBetween(int code, int first, int last)
{
    return code >= first && code <= last;
}

constexpr bool isDigitOrLetter(int code)
{
    return isBetween(code, '0', '9') || isBetween(code, 'A', 'Z');
}

constexpr bool isOnKeypad(int code)
{
    return isBetween(code, keypad0, keypadDivide) && code != keypadSeparator;
}

constexpr bool isPunctuation(int code)
{
    return isBetween(code, firstPunctuation, lastPunctuation);
}

} // namespace VirtualKeys
} // namespace CUI
