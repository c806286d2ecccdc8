#pragma once

class QString;

namespace CUI {

/// Turns keyboard files of older releases into hotkey sets.
namespace LegacyConversion {

/// QvelShortcutManager::convertLegacyShortcuts(), which documents it.
bool convert(const QString &in, const QString &out);

} // namespace LegacyConversion
} // namespace CUI
