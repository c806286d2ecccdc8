#pragma once

#include "ShortcutTransformation.h"

#include <vector>

class QString;

namespace CUI {

/// Turns keyboard files of older releases into hotkey sets.
namespace LegacyConversion {

/// QvelShortcutManager::convertLegacyShortcuts(), which documents it.
bool convert(const QString &in, const QString &out);

/// QvelShortcutManager::readLegacyShortcuts(), which documents it.
bool readAssignments(const QString &path, std::vector<ShortcutTransformation> &steps);

} // namespace LegacyConversion
} // namespace CUI
