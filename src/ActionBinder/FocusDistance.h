#pragma once

#include "ContextPlaces.h"
#include "NearestHolder.h"

class QAction;

namespace CUI {

/// How near an action is to the keyboard focus.
namespace FocusDistance {

constexpr int outOfReach = NearestHolder::outOfReach;
constexpr int wholeWindow = NearestHolder::wholeWindow;

/// The number of steps from child to parent that lead from the widget with the focus to one in
/// which the keys of the action act. For an action whose context has widgets, these are @p widgets
/// and the menu bars, toolbars and other widgets that the action is in; those that contain one of
/// @p widgets do not count. Without any widget the action is out of reach. With null, the keys act
/// in the active window.
int of(const QAction &action, const ContextPlaces::Widgets *widgets);

/// True when the action is in a menu, a toolbar or another widget of the active window.
bool isInActiveWindow(const QAction &action);

} // namespace FocusDistance
} // namespace CUI
