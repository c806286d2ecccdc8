#include "Gestures.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPointer>
#include <QThread>
#include <QWidget>

namespace Studio::Gestures {

namespace {

void sendKey(QWidget *widget, QEvent::Type type, int key, Qt::KeyboardModifiers modifiers,
             const QString &text, bool repeated)
{
    QKeyEvent event(type, key, modifiers, text, repeated);
    event.setAccepted(type != QEvent::ShortcutOverride); // as Qt makes them
    QCoreApplication::sendEvent(widget, &event);
}

void sendMouse(QWidget *widget, QEvent::Type type, QPoint place, Qt::MouseButtons held)
{
    QMouseEvent event(type, place, widget->mapToGlobal(place), Qt::LeftButton, held,
                      Qt::NoModifier);
    QCoreApplication::sendEvent(widget, &event);
}

} // namespace

void click(QWidget *widget, QPoint place)
{
    const QPointer<QWidget> alive(widget);
    const QPoint at = place == QPoint(-1, -1) ? widget->rect().center() : place;
    if ((widget->focusPolicy() & Qt::ClickFocus) != 0)
        widget->setFocus(Qt::MouseFocusReason);
    sendMouse(widget, QEvent::MouseButtonPress, at, Qt::LeftButton);
    if (alive != nullptr)
        sendMouse(widget, QEvent::MouseButtonRelease, at, Qt::NoButton);
    wait();
}

void pressKey(QWidget *widget, int key, Qt::KeyboardModifiers modifiers, const QString &text,
              bool repeated)
{
    // The question whether the key is a shortcut comes before the key.
    sendKey(widget, QEvent::ShortcutOverride, key, modifiers, text, repeated);
    sendKey(widget, QEvent::KeyPress, key, modifiers, text, repeated);
}

void releaseKey(QWidget *widget, int key, Qt::KeyboardModifiers modifiers)
{
    sendKey(widget, QEvent::KeyRelease, key, modifiers, QString(), false);
}

void tapKey(QWidget *widget, int key, Qt::KeyboardModifiers modifiers, const QString &text)
{
    const QPointer<QWidget> alive(widget);
    pressKey(widget, key, modifiers, text);
    if (alive != nullptr)
        releaseKey(widget, key, modifiers);
    wait();
}

void type(QWidget *widget, const QString &text)
{
    for (QChar letter : text)
        tapKey(widget, letter.toUpper().unicode(), Qt::NoModifier, letter);
}

void wait(int milliseconds)
{
    QElapsedTimer timer;
    timer.start();
    do {
        QCoreApplication::processEvents(QEventLoop::AllEvents, 10);
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        QThread::msleep(2);
    } while (timer.elapsed() < milliseconds);
}

} // namespace Studio::Gestures
