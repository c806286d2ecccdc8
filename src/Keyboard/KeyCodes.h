#pragma once

#include "UiCustomizationsExport.h"

namespace CUI {

/// Keys with a meaning of their own, by the key codes of the Linux kernel.
namespace KeyCodes {

constexpr int backspace = 14;
constexpr int tab = 15;
constexpr int enter = 28;
constexpr int leftControl = 29;
constexpr int leftShift = 42;
constexpr int rightShift = 54;
constexpr int leftAlt = 56;
constexpr int keypadPoint = 83;
constexpr int besideLeftShift = 86;
constexpr int besideRightShift = 89; ///< on keyboards of Japan and Brazil
constexpr int rightControl = 97;
constexpr int rightAlt = 100;
constexpr int yen = 124;
constexpr int leftMeta = 125;
constexpr int rightMeta = 126;

/// X11 numbers keys from here on.
constexpr int firstOfX11 = 8;

/// What the key types on a US keyboard, letters in upper case; 0 for keys that type nothing there.
CUI_CORE_EXPORT char32_t usCharacterOf(int code);

} // namespace KeyCodes
} // namespace CUI
