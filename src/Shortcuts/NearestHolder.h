#pragma once

#include "ActionIdentifier.h"
#include "HotkeyClaims.h"

#include <limits>

namespace CUI {

/// Which action a key is meant for when several contexts have one for it: that of the context that
/// is nearest to the keyboard focus. Within a context the smallest identifier is chosen; between
/// two contexts that are equally near it cannot be told.
class NearestHolder
{
public:
    static constexpr int outOfReach = std::numeric_limits<int>::max();
    /// The distance of a context that counts everywhere.
    static constexpr int wholeWindow = outOfReach - 1;

    /// Takes an action into account. True when it is the chosen one as far as is known.
    bool offer(int distance, const HotkeyClaims::Context &context, const ActionIdentifier &action)
    {
        const bool isNearer = distance < m_distance;
        const bool isEquallyNear = distance == m_distance && distance != outOfReach;
        if (isNearer)
            m_isUnclear = false;
        else if (isEquallyNear && context != m_context)
            m_isUnclear = true;
        if (!isNearer && !(isEquallyNear && action < m_action))
            return false;
        m_distance = distance;
        m_context = context;
        m_action = action;
        return true;
    }

    /// True when actions of several contexts are equally near.
    bool isUnclear() const { return m_isUnclear; }
    /// The chosen one; the empty identifier when none is in reach or it cannot be told.
    ActionIdentifier action() const { return m_isUnclear ? ActionIdentifier() : m_action; }

private:
    int m_distance = outOfReach;
    HotkeyClaims::Context m_context;
    ActionIdentifier m_action;
    bool m_isUnclear = false;
};

} // namespace CUI
