#include "HeldActions.h"

#include <QKeyEvent>

#include <algorithm>

namespace CUI {

bool HeldActions::isHeld(const ActionIdentifier &action) const
{
    return std::any_of(m_held.begin(), m_held.end(),
                       [&action](const Held &held) { return held.action == action; });
}

bool HeldActions::press(const QKeyEvent &event, const ActionIdentifier &action)
{
    const bool isNew = !isHeld(action);
    m_held.push_back({event.key(), event.nativeScanCode(), action});
    return isNew;
}

ActionIdentifier HeldActions::release(const QKeyEvent &event)
{
    const auto found = std::find_if(m_held.begin(), m_held.end(), [&event](const Held &held) {
        const bool haveScanCodes = held.scanCode != 0 && event.nativeScanCode() != 0;
        return haveScanCodes ? held.scanCode == event.nativeScanCode() : held.key == event.key();
    });
    if (found == m_held.end())
        return {};
    const ActionIdentifier action = found->action;
    m_held.erase(found);
    return isHeld(action) ? ActionIdentifier() : action;
}

bool HeldActions::remove(const ActionIdentifier &action)
{
    const auto kept = std::remove_if(m_held.begin(), m_held.end(),
                                     [&action](const Held &held) { return held.action == action; });
    const bool wasHeld = kept != m_held.end();
    m_held.erase(kept, m_held.end());
    return wasHeld;
}

ActionIdentifier HeldActions::first() const
{
    return m_held.empty() ? ActionIdentifier() : m_held.front().action;
}

} // namespace CUI
