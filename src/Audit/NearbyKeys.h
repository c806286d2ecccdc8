#pragma once

#include <vector>

namespace CUI {

/// Which key combinations are easily taken for another one, or easily learned in its place.
namespace NearbyKeys {

/// The hotkeys that are most similar to @p combination, a Qt key with modifiers, the most similar
/// first. A modifier more or less counts about as much as a neighbouring key on an English
/// keyboard. Only what the hotkey editor can record is listed; what types a character is not, if
/// the given combination has Ctrl or Alt.
std::vector<int> similarTo(int combination);

} // namespace NearbyKeys
} // namespace CUI
