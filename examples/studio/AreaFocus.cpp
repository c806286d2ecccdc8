#include "AreaFocus.h"

#include <QApplication>
#include <QEvent>
#include <QWidget>

#include <algorithm>

namespace Studio {

AreaFocus::AreaFocus(QWidget *window) : QObject(window), m_window(window)
{
    qApp->installEventFilter(this);
    connect(qApp, &QApplication::focusChanged, this,
            [this](const QWidget *, const QWidget *now) { followFocus(now); });
}

QWidget *AreaFocus::current() const
{
    if (m_current != nullptr)
        return m_current;
    return m_areas.empty() ? nullptr : m_areas.front().data();
}

void AreaFocus::setCurrent(QWidget *area)
{
    if (area == m_current)
        return;
    m_current = area;
    Q_EMIT currentChanged(area);
}

QWidget *AreaFocus::areaOf(const QWidget *widget) const
{
    for (; widget != nullptr; widget = widget->parentWidget()) {
        const auto area = std::find(m_areas.begin(), m_areas.end(), widget);
        if (area != m_areas.end())
            return *area;
        if (widget->windowType() == Qt::Dialog)
            return nullptr;
    }
    return nullptr;
}

void AreaFocus::followFocus(const QWidget *widget)
{
    if (QWidget *area = areaOf(widget))
        setCurrent(area);
    else if (widget == nullptr) // the toolkit may be about to give the focus to another widget
        QMetaObject::invokeMethod(this, &AreaFocus::restoreFocus, Qt::QueuedConnection);
}

void AreaFocus::restoreFocus()
{
    if (QApplication::focusWidget() == nullptr && m_window->isActiveWindow() && current() != nullptr
        && current()->isVisible())
        current()->setFocus();
}

bool AreaFocus::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() != QEvent::MouseButtonPress)
        return false;
    QWidget *area = areaOf(qobject_cast<QWidget *>(watched));
    if (area != nullptr) {
        setCurrent(area);
        if (!area->isAncestorOf(QApplication::focusWidget()))
            area->setFocus(Qt::MouseFocusReason);
    }
    return false;
}

} // namespace Studio
