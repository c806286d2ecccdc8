#pragma once

#include "ActionIdentifier.h"
#include "ShortcutTransformation.h"

#include <cstddef>
#include <memory>
#include <optional>
#include <unordered_set>
#include <vector>

namespace CUI {

/// The recorded edits of a store, oldest first: the saved ones, which the file of the hotkey set
/// holds, and after them the unsaved ones. Beside them stand the refused steps of the file, which
/// are not in effect and only keep their places for the next save.
///
/// Opposite steps cancel: a step and the first later one of the opposite kind for the same action
/// and hotkey are both removed; a repetition of a step is removed by itself. The others keep their
/// order.
class RecordedSteps
{
public:
    using Steps = std::vector<ShortcutTransformation>;

    /// Cancels among the steps from index @p start on. A start beyond the end changes nothing.
    /// Returns for each step whether it was removed.
    static std::vector<bool> cancel(Steps &steps, std::size_t start);

    const Steps &steps() const { return m_steps; }

    bool hasUnsaved() const { return m_savedCount < m_steps.size(); }
    /// True when the steps differ from the file. After cancelFrom() has removed saved steps, both
    /// isModified() and isUnmodified() can be false; the store then keeps its modified state.
    bool isModified() const { return hasUnsaved() || m_lacksSavedSteps; }
    bool isUnmodified() const { return m_savedCount == m_steps.size() && !m_lacksSavedSteps; }
    /// The file holds steps that the list lacks, so that no edit of the list leads back to it.
    bool lacksSavedSteps() const { return m_lacksSavedSteps; }

    // The three that follow first lower the number of saved steps to that of all steps.

    /// A copy of the saved steps.
    Steps savedSteps();
    /// Whether an unsaved step concerns the action, or exactly that hotkey of it.
    bool touches(const ActionIdentifier &actionId);
    bool touches(const ActionIdentifier &actionId, const QString &shortcut);

    /// Adds an unsaved step. It is cancelled with others only by the calls below.
    void append(const ShortcutTransformation &step);
    /// Adds an unsaved step in the place of all others, saved ones as well, for the same action and
    /// hotkey.
    void restate(const ShortcutTransformation &step);
    void cancelUnsaved();
    /// Cancels saved steps as well, from index @p start on. The number of saved steps stays as it
    /// is, even beyond the end of the list.
    void cancelFrom(std::size_t start);
    /// All steps are saved.
    void markSaved();
    /// The steps are what the file holds from now on, also for states that are restored later.
    void rememberSaved();
    /// The file holds something else than the saved steps.
    void markFileChanged();
    /// After a save that failed and for which all steps were cancelled: only those that
    /// @p savedSteps begins with still count as saved. @p isModified is the state before the save.
    void reclaimUnsaved(const Steps &savedSteps, bool isModified);
    /// After all steps were replaced by others: those that the saved ones of @p before begin with
    /// count as saved.
    void reclaimSaved(RecordedSteps before);
    void clear();

    /// Keeps a step of the file that cannot be recorded, behind the ones recorded so far.
    void refuse(const ShortcutTransformation &step);
    void forgetRefused() { m_refused.clear(); }
    Steps refusedSteps() const;
    /// The recorded steps with the refused ones at their places.
    Steps withRefusedSteps() const;

    /// What leads from one state of the steps to another and back.
    struct Difference;
    static Difference differenceOf(const RecordedSteps &before, const RecordedSteps &after);
    /// Restores the later state of a difference, or the earlier one. If steps were saved meanwhile,
    /// the restored ones are compared with them instead, and the result is false.
    bool apply(const Difference &difference, bool forward);

private:
    struct Refused {
        ShortcutTransformation step;
        std::size_t place; ///< how many recorded steps stand before it
    };

    void clampSaved();
    void cancelLast();
    void removeAt(std::size_t index);
    void forget();
    void compareWithSaved();

    Steps m_steps;
    std::size_t m_savedCount = 0;
    bool m_lacksSavedSteps = false;
    std::vector<Refused> m_refused; // in the order of their places
    /// What was saved last; null before the first save since a load. Nothing if the file holds
    /// something that is not known.
    std::shared_ptr<const std::optional<Steps>> m_savedAs;
    /// How many of the first steps are cancelled already, as far as they are unsaved.
    std::size_t m_cancelledCount = 0;
    /// The actions of the unsaved steps, once they were asked for. Filtering 10,000 actions by
    /// 1,000 steps takes 51 ms without it.
    std::optional<std::unordered_set<ActionIdentifier>> m_touchedActions;
};

struct RecordedSteps::Difference {
    bool isAny() const;

    std::size_t place = 0; ///< where the steps begin to differ
    Steps before;
    Steps after;
    RecordedSteps stateBefore; ///< all but the steps
    RecordedSteps stateAfter;
};

} // namespace CUI
