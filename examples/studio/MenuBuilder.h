#pragma once

class QMenu;

namespace Studio {

class MainWindow;

/// The menu bar: a menu for each context of the catalogue, with the hotkeys in effect.
namespace MenuBuilder {

/// The actions of the contexts that count everywhere are in menus of their categories, the
/// others in one menu for each context; the modes of the viewport share a menu.
void build(MainWindow &window);

} // namespace MenuBuilder
} // namespace Studio
