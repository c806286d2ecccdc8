#pragma once

#include <QWidget>

namespace CUI {

/// True when the keyboard focus of the window is on the widget or on one inside it.
inline bool hasFocusWithin(const QWidget *widget)
{
    const QWidget *focused = widget->window()->focusWidget();
    return focused != nullptr && (focused == widget || widget->isAncestorOf(focused));
}

} // namespace CUI
