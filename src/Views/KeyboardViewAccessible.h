#pragma once

namespace CUI {

/// Makes each key of a KeyboardView a child that assistive technology can name, describe and press.
namespace KeyboardViewAccessible {

/// Has an effect once in a process.
void install();

} // namespace KeyboardViewAccessible
} // namespace CUI
