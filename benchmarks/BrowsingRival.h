#pragma once

#include "BrowsingStage.h"

#include <memory>

namespace CUI::Bench {

/// Whether the benchmarks were built with the editor of makeShortcutsEditor().
bool hasShortcutsEditor();

/// The shortcut editor of KDE Frameworks with the actions and hotkeys of a stage of that size, on
/// as large a screen; null without it. What it waits before it
/// searches a typed text is left out.
std::unique_ptr<Searcher> makeShortcutsEditor(int actionCount);

/// How long that editor takes, with its actions there, from its constructor to the first painting;
/// 0 without it.
double secondsToOpenShortcutsEditor(int actionCount);

} // namespace CUI::Bench
