#pragma once

#include "KeyboardLayout.h"

#include <optional>

class QKeyEvent;

namespace CUI {

/// Which key of the keyboard was pressed, whatever the modifiers made of it. Windows virtual keys
/// name them; other systems are translated to these.
namespace NativeKeys {

/// The Windows virtual key of the pressed key, 0 when it is not known. Digits, letters,
/// punctuation, Alt and, while they type numbers, the keys of the keypad are known everywhere,
/// others on some systems.
int virtualKeyOf(const QKeyEvent &event);

/// The character that the key of @p event types without modifiers, as a Qt key code; 0 when it is
/// not known. @p virtualKey is that key's, one for which VirtualKeys::isPunctuation() is true.
int unshiftedCharacterOf(int virtualKey, const QKeyEvent &event);

/// What the keys type in the layout that is active now; nothing where the system does not tell, as
/// under Wayland without an X server beside it.
std::optional<KeyboardLayout> knownLayout();

/// The same, and the US layout where the system does not tell.
inline KeyboardLayout layoutInUse()
{
    return knownLayout().value_or(KeyboardLayout());
}

} // namespace NativeKeys
} // namespace CUI
