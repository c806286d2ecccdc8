#pragma once

#include "ActionIdentifier.h"
#include "OpenSteps.h"
#include "ShortcutTransformation.h"

#include <cstddef>
#include <unordered_map>
#include <vector>

namespace CUI {

/// Cancels opposite steps: a step and the first later one of the opposite kind for the same action
/// and hotkey both vanish; a repetition of a step that is still open vanishes by itself. The others
/// keep their order.
///
/// The steps of one action and hotkey never touch those of another, so one pass that remembers the
/// open step of each pair gives the result of scanning the rest of the list for every step.
///
/// An object keeps the end of a growing list cancelled at constant cost a step. To that end it
/// leaves cancelled steps in the list until compact(); the list must not change otherwise than by
/// appending while the object remembers it (reset() makes it forget).
class TransformationCollapser
{
public:
    using Steps = std::vector<ShortcutTransformation>;

    /// Cancels among the steps from index @p start on, at once and for good. A start beyond the end
    /// does nothing.
    static void collapse(Steps &steps, std::size_t start);

    /// Cancels among the steps from index @p start on; costs what was appended since the last call
    /// with the same start. @p start counts no cancelled steps.
    void settle(Steps &steps, std::size_t start);

    /// Removes the cancelled steps that settle() left behind.
    void compact(Steps &steps);

    /// How many steps the list counts without the cancelled ones.
    std::size_t count(const Steps &steps) const { return steps.size() - m_cancelledCount; }

    /// Forgets the list. Call it when the list is emptied or replaced.
    void reset();

    /// True when all steps of the list from @p start on have been settled, so that the two queries
    /// below speak of them.
    bool hasSettled(const Steps &steps, std::size_t start) const;
    bool touches(const ActionIdentifier &actionId) const;
    bool touches(const Steps &steps, const ActionIdentifier &actionId,
                 const QString &shortcut) const;

private:
    /// What a step did to the open step of its action and hotkey.
    enum class Effect { Opened, Repeated, Closed };

    Effect settleStep(const Steps &steps, std::size_t position);
    void countOpenStep(const ActionIdentifier &actionId, Effect effect);
    void cancel(std::size_t position);
    void dropCancelledEnd(Steps &steps);
    void removeCancelled(Steps &steps) const;

    std::size_t m_start = 0;
    std::vector<bool> m_cancelled; // one for each settled step, from m_start on
    std::size_t m_cancelledCount = 0;
    OpenSteps m_openSteps;
    std::unordered_map<ActionIdentifier, int> m_openStepsOfAction;
};

} // namespace CUI
