#include "TransformationCollapser.h"

#include <QHash>

#include <utility>

namespace CUI {

namespace {

// Below this many cancelled steps a list is not worth moving.
constexpr std::size_t compactThreshold = 64;

} // namespace

bool TransformationCollapser::StepKey::operator==(const StepKey &other) const
{
    return actionId == other.actionId && shortcut == other.shortcut;
}

std::size_t TransformationCollapser::StepKeyHash::operator()(const StepKey &key) const
{
    return std::hash<ActionIdentifier>()(key.actionId) * 31U + qHash(key.shortcut, 0U);
}

void TransformationCollapser::collapse(Steps &steps, std::size_t start)
{
    TransformationCollapser collapser;
    collapser.m_openSteps.reserve(steps.size());
    collapser.settle(steps, start);
    collapser.compact(steps);
}

void TransformationCollapser::settle(Steps &steps, std::size_t start)
{
    if (start != m_start) {
        compact(steps);
        reset();
        m_start = start;
    }
    for (std::size_t i = m_start + m_cancelled.size(); i < steps.size(); ++i)
        settleStep(steps, i);
    dropCancelledEnd(steps);
    if (m_cancelledCount > compactThreshold && m_cancelledCount > steps.size() / 2)
        compact(steps);
}

void TransformationCollapser::settleStep(const Steps &steps, std::size_t position)
{
    const ShortcutTransformation &step = steps[position];
    StepKey key{step.actionId(), step.shortcut()};
    m_cancelled.push_back(false);
    const auto open = m_openSteps.find(key);
    if (open == m_openSteps.end()) {
        ++m_openStepsOfAction[key.actionId];
        m_openSteps.emplace(std::move(key), position);
        return;
    }
    cancel(position);
    if (steps[open->second].kind() != step.kind()) {
        cancel(open->second);
        forgetOpenStep(key);
    }
}

void TransformationCollapser::cancel(std::size_t position)
{
    m_cancelled[position - m_start] = true;
    ++m_cancelledCount;
}

void TransformationCollapser::forgetOpenStep(const StepKey &key)
{
    m_openSteps.erase(key);
    const auto count = m_openStepsOfAction.find(key.actionId);
    if (--count->second == 0)
        m_openStepsOfAction.erase(count);
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
    const std::size_t settled = m_start + m_cancelled.size();
    std::size_t to = m_start;
    for (std::size_t from = m_start; from < steps.size(); ++from) {
        if (from < settled) {
            if (m_cancelled[from - m_start])
                continue;
            m_openSteps[{steps[from].actionId(), steps[from].shortcut()}] = to;
        }
        if (to != from)
            steps[to] = std::move(steps[from]);
        ++to;
    }
    steps.resize(to);
    m_cancelled.assign(m_cancelled.size() - m_cancelledCount, false);
    m_cancelledCount = 0;
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

bool TransformationCollapser::touches(const ActionIdentifier &actionId,
                                      const QString &shortcut) const
{
    return m_openSteps.count({actionId, shortcut}) > 0;
}

} // namespace CUI
