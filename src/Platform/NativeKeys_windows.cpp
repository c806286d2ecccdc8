#include "NativeKeys.h"

#include "KeyCodes.h"

#include <QKeyEvent>

#include <qt_windows.h>

namespace CUI::NativeKeys {

namespace {

constexpr UINT virtualKeyToCharacter = 2;
constexpr UINT characterMask = 0xFF; // above it, a bit marks dead keys

UINT scanCodeOf(int code)
{
    switch (code) {
    case KeyCodes::besideRightShift:
        return 0x73;
    case KeyCodes::yen:
        return 0x7D;
    default:
        return static_cast<UINT>(code);
    }
}

char32_t typedBy(int code, bool shift, HKL layout)
{
    constexpr UINT scanCodeToVirtualKey = 3;
    constexpr UINT keepState = 4; // else a dead key would count as pressed
    constexpr BYTE isDown = 0x80;
    const UINT scanCode = scanCodeOf(code);
    const UINT virtualKey = MapVirtualKeyExW(scanCode, scanCodeToVirtualKey, layout);
    BYTE state[256] = {};
    state[VK_SHIFT] = shift ? isDown : 0;
    WCHAR text[4] = {};
    if (virtualKey == 0
        || ToUnicodeEx(virtualKey, scanCode, state, text, 4, keepState, layout) == 0)
        return 0;
    return text[0];
}

} // namespace

int virtualKeyOf(const QKeyEvent &event)
{
    return static_cast<int>(event.nativeVirtualKey());
}

int unshiftedCharacterOf(int virtualKey, const QKeyEvent & /*event*/)
{
    return static_cast<int>(MapVirtualKeyA(static_cast<UINT>(virtualKey), virtualKeyToCharacter)
                            & characterMask);
}

std::optional<KeyboardLayout> knownLayout()
{
    const HKL layout = GetKeyboardLayout(0);
    return KeyboardLayout([layout](int code) {
        if (code == KeyCodes::keypadPoint) {
            const char32_t point =
                    MapVirtualKeyExW(VK_DECIMAL, virtualKeyToCharacter, layout) & characterMask;
            return KeyboardLayout::Characters{point, point};
        }
        return KeyboardLayout::Characters{typedBy(code, false, layout),
                                          typedBy(code, true, layout)};
    });
}

} // namespace CUI::NativeKeys
