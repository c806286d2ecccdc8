#pragma once

#include "ShortcutTransformation.h"

#include <optional>
#include <vector>

namespace CUI {

class XmlDocument;

/// Decoder of the keyboard file of older releases (suffix kbdx): every accelerator as a code of the
/// Windows accelerator table.
namespace LegacyKeyboardFile {

/// Reads all of @p document: a step of that kind, without description, for each accelerator
/// that has a hotkey text. Nothing when the root is another. A file that breaks off gives what
/// stands before.
std::optional<std::vector<ShortcutTransformation>> read(const XmlDocument &document,
                                                        ShortcutTransformation::Kind kind);

} // namespace LegacyKeyboardFile
} // namespace CUI
