#include "LanguageWatch.h"

#include <QCoreApplication>
#include <QEvent>

#include <utility>

namespace CUI {

LanguageWatch::LanguageWatch(std::function<void()> changed) : m_changed(std::move(changed))
{
    if (QCoreApplication::instance() != nullptr)
        QCoreApplication::instance()->installEventFilter(this);
}

bool LanguageWatch::eventFilter(QObject *watched, QEvent *event)
{
    // Widgets get the event as well, and later.
    if (event->type() == QEvent::LanguageChange && watched == QCoreApplication::instance())
        m_changed();
    return QObject::eventFilter(watched, event);
}

} // namespace CUI
