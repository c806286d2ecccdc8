#pragma once

#include <QObject>
#include <QPoint>
#include <QString>

class QWidget;

namespace Studio {

/// Mouse and keyboard input, sent as events in the way that the toolkit sends the real ones.
namespace Gestures {

/// Presses and releases a mouse button, in the middle of the widget or at @p place.
void click(QWidget *widget, QPoint place = QPoint(-1, -1));
void pressKey(QWidget *widget, int key, Qt::KeyboardModifiers modifiers = Qt::NoModifier,
              const QString &text = QString(), bool repeated = false);
void releaseKey(QWidget *widget, int key, Qt::KeyboardModifiers modifiers = Qt::NoModifier);
void tapKey(QWidget *widget, int key, Qt::KeyboardModifiers modifiers = Qt::NoModifier,
            const QString &text = QString());
/// Types letters and digits into a field.
void type(QWidget *widget, const QString &text);
/// Handles what is waiting, for that many milliseconds at least.
void wait(int milliseconds = 30);

} // namespace Gestures
} // namespace Studio
