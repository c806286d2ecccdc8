#pragma once

#include "ContextPlaces.h"
#include "NearestHolder.h"

class QAction;

namespace CUI {

/// Where the keyboard focus is, seen from an action.
namespace ActionReach {

constexpr int outOfReach = NearestHolder::outOfReach;
constexpr int wholeWindow = NearestHolder::wholeWindow;

/// How far the focus is from where the keys of the action act, in widgets from child to parent. For
/// an action whose context has widgets, these are @p widgets and the menu bars, toolbars and other
/// widgets that the action is in; those that contain one of @p widgets do not count. Without any
/// widget it is out of reach. With null, the keys act in the active window.
int distance(const QAction &action, const ContextPlaces::Widgets *widgets);

/// True when the action is in a menu, toolbar or whatever else of the active window.
bool isInActiveWindow(const QAction &action);

} // namespace ActionReach
} // namespace CUI
