#include "Gestures.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPointer>
#include <QThread>
#include <QWidget>

// Asks the shortcuts first, as the toolkit does for the keys of the window system. Its own test
// library declares it so.
QT_BEGIN_NAMESPACE
Q_GUI_EXPORT bool qt_sendShortcutOverrideEvent(QObject *receiver, ulong timestamp, int key,
                                               Qt::KeyboardModifiers modifiers,
                                               const QString &text = QString(),
                                               bool autorep = false, ushort count = 1);
QT_END_NAMESPACE

namespace Studio::Gestures {

namespace {

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
    QKeyEvent event(QEvent::KeyPress, key, modifiers, text, repeated);
    if (!qt_sendShortcutOverrideEvent(widget, event.timestamp(), key, modifiers, text, repeated))
        QCoreApplication::sendEvent(widget, &event);
}

void releaseKey(QWidget *widget, int key, Qt::KeyboardModifiers modifiers)
{
    QKeyEvent event(QEvent::KeyRelease, key, modifiers);
    QCoreApplication::sendEvent(widget, &event);
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
