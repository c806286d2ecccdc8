#include "FocusDistance.h"

#include <QAction>
#include <QApplication>
#include <QMenu>

#include <algorithm>

namespace CUI::FocusDistance {

namespace {

/// The widgets that the action is in, and for a menu, those that the menu is in.
QList<const QWidget *> placesOf(const QAction &action)
{
    QList<const QWidget *> places;
    const QList<QWidget *> widgets = action.associatedWidgets();
    for (const QWidget *widget : widgets) {
        if (const auto *menu = qobject_cast<const QMenu *>(widget))
            places += placesOf(*menu->menuAction());
        else
            places += widget;
    }
    return places;
}

int distanceFromFocus(const QWidget *widget)
{
    int steps = 0;
    for (const QWidget *w = QApplication::focusWidget(); w != nullptr; w = w->parentWidget()) {
        if (w == widget)
            return steps;
        if (w->isWindow() && w->windowType() != Qt::Popup)
            break;
        ++steps;
    }
    return outOfReach;
}

} // namespace

int of(const QAction &action, const ContextPlaces::Widgets *widgets)
{
    if (widgets == nullptr)
        return isInActiveWindow(action) ? wholeWindow : outOfReach;
    if (widgets->empty())
        return outOfReach;
    int nearest = outOfReach;
    for (const QWidget *widget : *widgets)
        nearest = std::min(nearest, distanceFromFocus(widget));
    const QList<const QWidget *> places = placesOf(action);
    for (const QWidget *place : places) {
        const bool contains =
                std::any_of(widgets->begin(), widgets->end(),
                            [place](const QWidget *widget) { return place->isAncestorOf(widget); });
        if (!contains)
            nearest = std::min(nearest, distanceFromFocus(place));
    }
    return nearest;
}

bool isInActiveWindow(const QAction &action)
{
    const QWidget *window = QApplication::activeWindow();
    if (window == nullptr)
        return false;
    // While a floating dock is active, the keys of its window work on.
    const QWidget *behind = window->windowType() == Qt::Tool && window->parentWidget() != nullptr
                                    ? window->parentWidget()->window()
                                    : window;
    const QList<const QWidget *> places = placesOf(action);
    return std::any_of(places.begin(), places.end(), [window, behind](const QWidget *place) {
        return place->window() == window || place->window() == behind;
    });
}

} // namespace CUI::FocusDistance
