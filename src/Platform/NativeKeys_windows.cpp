#include "NativeKeys.h"

#include <QKeyEvent>

#include <qt_windows.h>

namespace CUI::NativeKeys {

int virtualKeyOf(const QKeyEvent &event)
{
    return static_cast<int>(event.nativeVirtualKey());
}

int unshiftedCharacterOf(int virtualKey, const QKeyEvent & /*event*/)
{
    constexpr UINT virtualKeyToCharacter = 2;
    constexpr UINT characterMask = 0xFF; // above it, a bit marks dead keys
    return static_cast<int>(MapVirtualKeyA(static_cast<UINT>(virtualKey), virtualKeyToCharacter)
                            & characterMask);
}

} // namespace CUI::NativeKeys
