#include "TransformationCollapser.h"

#include <cstdint>
#include <utility>

namespace CUI {

namespace {

// Below this many cancelled steps a list is not worth moving.
constexpr std::size_t compactThreshold = 64;

} // namespace

void TransformationCollapser::collapse(Steps &steps, std::size_t start)
{
    if (start >= steps.size())
        return;
    TransformationCollapser collapser;
    collapser.m_start = start;
    collapser.m_openSteps.reserve(steps.size() - start);
    collapser.m_cancelled.reserve(steps.size() - start);
    for (std::size_t i = start; i < steps.size(); ++i)
        collapser.settleStep(steps, i);
    collapser.removeCancelled(steps);
}

void TransformationCollapser::settle(Steps &steps, std::size_t start)
{
    if (start != m_start) {
        compact(steps);
        reset();
        m_start = start;
    }
    for (std::size_t i = m_start + m_cancelled.size(); i < steps.size(); ++i)
        countOpenStep(steps[i].actionId(), settleStep(steps, i));
    dropCancelledEnd(steps);
    if (m_cancelledCount > compactThreshold && m_cancelledCount > steps.size() / 2)
        compact(steps);
}

TransformationCollapser::Effect TransformationCollapser::settleStep(const Steps &steps,
                                                                    std::size_t position)
{
    m_cancelled.push_back(false);
    const auto open = m_openSteps.findOrInsert(steps, position);
    if (!open)
        return Effect::Opened;
    cancel(position);
    if (steps[*open].kind() == steps[position].kind())
        return Effect::Repeated;
    cancel(*open);
    m_openSteps.remove(steps, *open);
    return Effect::Closed;
}

void TransformationCollapser::countOpenStep(const ActionIdentifier &actionId, Effect effect)
{
    if (effect == Effect::Opened)
        ++m_openStepsOfAction[actionId];
    if (effect != Effect::Closed)
        return;
    const auto count = m_openStepsOfAction.find(actionId);
    if (--count->second == 0)
        m_openStepsOfAction.erase(count);
}

void TransformationCollapser::cancel(std::size_t position)
{
    m_cancelled[position - m_start] = true;
    ++m_cancelledCount;
}

void TransformationCollapser::dropCancelledEnd(Steps &steps)
{
    while (!m_cancelled.empty() && m_cancelled.back()) {
        m_cancelled.pop_back();
        steps.pop_back();
        --m_cancelledCount;
    }
}

void TransformationCollapser::compact(Steps &steps)
{
    if (m_cancelledCount == 0)
        return;
    std::vector<std::uint32_t> newPositions(m_cancelled.size());
    auto next = static_cast<std::uint32_t>(m_start);
    for (std::size_t i = 0; i < m_cancelled.size(); ++i) {
        newPositions[i] = next;
        if (!m_cancelled[i])
            ++next;
    }
    m_openSteps.move(m_start, newPositions);
    removeCancelled(steps);
    m_cancelled.assign(m_cancelled.size() - m_cancelledCount, false);
    m_cancelledCount = 0;
}

void TransformationCollapser::removeCancelled(Steps &steps) const
{
    const std::size_t settled = m_start + m_cancelled.size();
    std::size_t to = m_start;
    for (std::size_t from = m_start; from < steps.size(); ++from) {
        if (from < settled && m_cancelled[from - m_start])
            continue;
        if (to != from)
            steps[to] = std::move(steps[from]);
        ++to;
    }
    steps.resize(to);
}

void TransformationCollapser::reset()
{
    m_start = 0;
    m_cancelled.clear();
    m_cancelledCount = 0;
    m_openSteps.clear();
    m_openStepsOfAction.clear();
}

bool TransformationCollapser::hasSettled(const Steps &steps, std::size_t start) const
{
    return start == m_start && m_start + m_cancelled.size() == steps.size();
}

bool TransformationCollapser::touches(const ActionIdentifier &actionId) const
{
    return m_openStepsOfAction.count(actionId) > 0;
}

bool TransformationCollapser::touches(const Steps &steps, const ActionIdentifier &actionId,
                                      const QString &shortcut) const
{
    return m_openSteps.find(steps, actionId, shortcut).has_value();
}

} // namespace CUI
