#include "ContextPlaces.h"

#include <algorithm>

namespace CUI {

ContextPlaces::ContextPlaces(QObject &owner, Listener listener)
    : m_owner(owner), m_listener(std::move(listener))
{
}

bool ContextPlaces::setWidgets(unsigned long contextId, const std::vector<QWidget *> &widgets)
{
    const Widgets *known = widgetsOf(contextId);
    if (known != nullptr
        && std::equal(widgets.begin(), widgets.end(), known->begin(), known->end()))
        return false;
    removeWidgets(contextId);
    Place &place = m_places[contextId];
    for (QWidget *widget : widgets) {
        place.widgets.emplace_back(widget);
        place.deaths.push_back(
                QObject::connect(widget, &QObject::destroyed, &m_owner,
                                 [this, contextId, widget] { forgetWidget(contextId, widget); }));
    }
    return true;
}

bool ContextPlaces::removeWidgets(unsigned long contextId)
{
    const auto place = m_places.find(contextId);
    if (place == m_places.end())
        return false;
    for (const QMetaObject::Connection &death : place->second.deaths)
        QObject::disconnect(death);
    m_places.erase(place);
    return true;
}

void ContextPlaces::forgetWidget(unsigned long contextId, const QWidget *widget)
{
    Widgets &widgets = m_places[contextId].widgets;
    widgets.erase(std::remove(widgets.begin(), widgets.end(), widget), widgets.end());
    if (!widgets.empty())
        return;
    m_places.erase(contextId);
    m_listener(contextId);
}

const ContextPlaces::Widgets *ContextPlaces::widgetsOf(const HotkeyClaims::Context &context) const
{
    const auto found = context ? m_places.find(*context) : m_places.end();
    return found == m_places.end() ? nullptr : &found->second.widgets;
}

std::size_t ContextPlaces::rankOf(const HotkeyClaims::Context &context) const
{
    const auto place =
            context ? std::find(m_order.begin(), m_order.end(), *context) : m_order.end();
    return static_cast<std::size_t>(place - m_order.begin());
}

} // namespace CUI
