#pragma once

#include "NearestHolder.h"

class QAction;
class QWidget;

namespace CUI {

/// Where the keyboard focus is, seen from an action.
namespace ActionReach {

constexpr int outOfReach = NearestHolder::outOfReach;
constexpr int wholeWindow = NearestHolder::wholeWindow;

/// How far the focus is from where the keys of the action act, in widgets from child to parent. For
/// an action whose context has the widget @p scope, that is this widget, and the menu bars,
/// toolbars and other widgets that the action is in. An application may also have added it to a
/// window that contains the scope; that extends nothing. Without scope it is the active window.
int distance(const QAction &action, const QWidget *scope);

/// True when the action is in a menu, toolbar or whatever else of the active window.
bool isInActiveWindow(const QAction &action);

} // namespace ActionReach
} // namespace CUI
