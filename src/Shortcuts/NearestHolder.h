#pragma once

#include "ActionIdentifier.h"
#include "HotkeyClaims.h"

#include <cstddef>
#include <limits>
#include <utility>

namespace CUI {

/// Which action a key is meant for when several contexts have one for it: that of the context that
/// is nearest to the keyboard focus. Of contexts that are equally near, the one of the lowest rank
/// is chosen; between two of the same rank it is unclear. Within a context the smallest identifier
/// is chosen.
class NearestHolder
{
public:
    static constexpr int outOfReach = std::numeric_limits<int>::max();
    /// The distance of a context that counts everywhere.
    static constexpr int wholeWindow = outOfReach - 1;

    /// Takes an action into account. True when it is the chosen one as far as is known.
    bool offer(int distance, const HotkeyClaims::Context &context, const ActionIdentifier &action,
               std::size_t rank = 0)
    {
        if (distance == outOfReach)
            return false;
        const auto place = std::make_pair(distance, rank);
        const bool isNearer = place < m_place;
        const bool isEquallyNear = place == m_place;
        if (isNearer)
            m_isUnclear = false;
        else if (isEquallyNear && context != m_context)
            m_isUnclear = true;
        if (!isNearer && !(isEquallyNear && action < m_action))
            return false;
        m_place = place;
        m_context = context;
        m_action = action;
        return true;
    }

    /// True when actions of several contexts are equally near.
    bool isUnclear() const { return m_isUnclear; }
    /// The chosen one; the empty identifier when none is in reach or several are equally near.
    ActionIdentifier action() const { return m_isUnclear ? ActionIdentifier() : m_action; }

private:
    std::pair<int, std::size_t> m_place{outOfReach, 0}; // distance and rank
    HotkeyClaims::Context m_context;
    ActionIdentifier m_action;
    bool m_isUnclear = false;
};

} // namespace CUI
