#include "RecordedSteps.h"

#include <QHash>

#include <algorithm>
#include <utility>

namespace CUI {

namespace {

using Step = ShortcutTransformation;

bool concernsSame(const Step &a, const Step &b)
{
    return a.actionId() == b.actionId() && a.shortcut() == b.shortcut();
}

bool isSame(const Step &a, const Step &b)
{
    return a.kind() == b.kind() && concernsSame(a, b);
}

bool isIdentical(const Step &a, const Step &b)
{
    return isSame(a, b) && a.description() == b.description();
}

struct HashOfSubject {
    std::size_t operator()(const Step *step) const
    {
        // Not XOR: qHash() is a CRC on some processors, and the CRCs of texts that end alike would
        // cancel out.
        return 31 * std::hash<ActionIdentifier>()(step->actionId()) + qHash(step->shortcut());
    }
};

struct SameSubject {
    bool operator()(const Step *a, const Step *b) const { return concernsSame(*a, *b); }
};

} // namespace

std::vector<bool> RecordedSteps::cancel(Steps &steps, std::size_t start)
{
    std::vector<bool> isCancelled(steps.size());
    if (start >= steps.size())
        return isCancelled;
    // The steps of one action and hotkey never touch those of another. Of each, at most one is
    // open.
    std::unordered_set<const Step *, HashOfSubject, SameSubject> open;
    open.reserve(steps.size() - start);
    for (std::size_t i = start; i < steps.size(); ++i) {
        const auto [earlier, isOpened] = open.insert(&steps[i]);
        if (isOpened)
            continue;
        isCancelled[i] = true;
        if ((*earlier)->kind() != steps[i].kind()) {
            isCancelled[static_cast<std::size_t>(*earlier - steps.data())] = true;
            open.erase(earlier);
        }
    }
    std::size_t kept = start;
    for (std::size_t i = start; i < steps.size(); ++i) {
        if (isCancelled[i])
            continue;
        if (kept != i)
            steps[kept] = std::move(steps[i]);
        ++kept;
    }
    steps.resize(kept);
    return isCancelled;
}

RecordedSteps::Steps RecordedSteps::savedSteps()
{
    clampSaved();
    return {m_steps.begin(), m_steps.begin() + static_cast<std::ptrdiff_t>(m_savedCount)};
}

bool RecordedSteps::touches(const ActionIdentifier &actionId)
{
    clampSaved();
    if (!m_touchedActions) {
        m_touchedActions.emplace();
        for (std::size_t i = m_savedCount; i < m_steps.size(); ++i)
            m_touchedActions->insert(m_steps[i].actionId());
    }
    return m_touchedActions->count(actionId) > 0;
}

bool RecordedSteps::touches(const ActionIdentifier &actionId, const QString &shortcut)
{
    return touches(actionId)
           && std::any_of(m_steps.begin() + static_cast<std::ptrdiff_t>(m_savedCount),
                          m_steps.end(), [&](const Step &step) {
                              return step.actionId() == actionId && step.shortcut() == shortcut;
                          });
}

void RecordedSteps::append(const ShortcutTransformation &step)
{
    m_steps.push_back(step);
    m_touchedActions.reset();
}

void RecordedSteps::restate(const ShortcutTransformation &step)
{
    clampSaved();
    for (std::size_t i = m_steps.size(); i-- > 0;) {
        if (!concernsSame(m_steps[i], step))
            continue;
        removeAt(i);
        if (i < m_savedCount) {
            --m_savedCount;
            m_lacksSavedSteps = true;
        }
    }
    forget();
    append(step);
}

void RecordedSteps::cancelUnsaved()
{
    if (m_cancelledCount >= m_savedCount && m_cancelledCount + 1 == m_steps.size())
        cancelLast();
    else
        cancelFrom(m_savedCount);
    m_touchedActions.reset();
    m_cancelledCount = m_steps.size();
}

// What an edit does: looking through the others takes 2 us at 1,000 steps, a pass over all 50 us.
void RecordedSteps::cancelLast()
{
    const std::size_t last = m_steps.size() - 1;
    for (std::size_t i = m_savedCount; i < last; ++i) {
        if (!concernsSame(m_steps[i], m_steps[last]))
            continue;
        const bool isOpposite = m_steps[i].kind() != m_steps[last].kind();
        removeAt(last);
        if (isOpposite)
            removeAt(i);
        return;
    }
}

void RecordedSteps::removeAt(std::size_t index)
{
    m_steps.erase(m_steps.begin() + static_cast<std::ptrdiff_t>(index));
    for (Refused &refused : m_refused) {
        if (refused.place > index)
            --refused.place;
    }
}

void RecordedSteps::cancelFrom(std::size_t start)
{
    const std::vector<bool> isCancelled = cancel(m_steps, start);
    for (Refused &refused : m_refused) {
        const auto end = isCancelled.begin() + static_cast<std::ptrdiff_t>(refused.place);
        refused.place -= static_cast<std::size_t>(std::count(isCancelled.begin(), end, true));
    }
    forget();
}

void RecordedSteps::forget()
{
    m_touchedActions.reset();
    m_cancelledCount = 0;
}

void RecordedSteps::clampSaved()
{
    m_savedCount = std::min(m_savedCount, m_steps.size());
}

void RecordedSteps::markSaved()
{
    m_savedCount = m_steps.size();
    m_lacksSavedSteps = false;
    forget();
}

void RecordedSteps::rememberSaved()
{
    m_savedAs = std::make_shared<const std::optional<Steps>>(m_steps);
}

void RecordedSteps::markFileChanged()
{
    m_savedAs = std::make_shared<const std::optional<Steps>>();
    m_lacksSavedSteps = true;
}

// The steps have been cancelled across the boundary between saved and unsaved. If all of them were
// still taken for saved ones, unsaved edits would pass for saved ones. Saved steps that were
// cancelled with unsaved ones are still in the file.
void RecordedSteps::reclaimUnsaved(const Steps &savedSteps, bool isModified)
{
    forget();
    if (!isModified) {
        m_savedCount = m_steps.size(); // the same edits, some in fewer steps
        return;
    }
    const auto common = std::mismatch(savedSteps.begin(), savedSteps.end(), m_steps.begin(),
                                      m_steps.end(), isSame);
    m_lacksSavedSteps |= common.first != savedSteps.end();
    m_savedCount = static_cast<std::size_t>(common.second - m_steps.begin());
}

void RecordedSteps::reclaimSaved(RecordedSteps before)
{
    m_savedAs = before.m_savedAs;
    reclaimUnsaved(before.savedSteps(), true);
    const Steps refusedBefore = before.refusedSteps();
    const Steps refused = refusedSteps();
    m_lacksSavedSteps |= before.m_lacksSavedSteps
                         || !std::equal(refusedBefore.begin(), refusedBefore.end(), refused.begin(),
                                        refused.end(), isSame);
}

RecordedSteps::Difference RecordedSteps::differenceOf(const RecordedSteps &before,
                                                      const RecordedSteps &after)
{
    Difference difference;
    const Steps &a = before.m_steps;
    const Steps &b = after.m_steps;
    const auto first = std::mismatch(a.begin(), a.end(), b.begin(), b.end(), isIdentical);
    const auto last =
            std::mismatch(a.rbegin(), Steps::const_reverse_iterator(first.first), b.rbegin(),
                          Steps::const_reverse_iterator(first.second), isIdentical);
    difference.place = static_cast<std::size_t>(first.first - a.begin());
    difference.before = Steps(first.first, last.first.base());
    difference.after = Steps(first.second, last.second.base());
    const auto withoutSteps = [](const RecordedSteps &state) {
        RecordedSteps rest;
        rest.m_savedCount = state.m_savedCount;
        rest.m_lacksSavedSteps = state.m_lacksSavedSteps;
        rest.m_refused = state.m_refused;
        rest.m_savedAs = state.m_savedAs;
        return rest;
    };
    difference.stateBefore = withoutSteps(before);
    difference.stateAfter = withoutSteps(after);
    return difference;
}

bool RecordedSteps::Difference::isAny() const
{
    return !before.empty() || !after.empty() || stateBefore.m_savedCount != stateAfter.m_savedCount
           || stateBefore.m_lacksSavedSteps != stateAfter.m_lacksSavedSteps
           || stateBefore.m_savedAs != stateAfter.m_savedAs;
}

bool RecordedSteps::apply(const Difference &difference, bool forward)
{
    const Steps &old = forward ? difference.before : difference.after;
    const Steps &restored = forward ? difference.after : difference.before;
    const std::size_t place = std::min(difference.place, m_steps.size());
    const std::size_t end = std::min(place + old.size(), m_steps.size());
    Steps steps = std::move(m_steps);
    const auto gap = steps.erase(steps.begin() + static_cast<std::ptrdiff_t>(place),
                                 steps.begin() + static_cast<std::ptrdiff_t>(end));
    steps.insert(gap, restored.begin(), restored.end());

    const auto savedAs = m_savedAs;
    *this = forward ? difference.stateAfter : difference.stateBefore;
    m_steps = std::move(steps);
    if (savedAs == nullptr || savedAs == m_savedAs)
        return true;
    m_savedAs = savedAs;
    compareWithSaved();
    return false;
}

void RecordedSteps::compareWithSaved()
{
    m_savedCount = 0;
    m_lacksSavedSteps = true;
    if (!*m_savedAs)
        return;
    const Steps &saved = **m_savedAs;
    Steps cancelled = m_steps; // as saving does
    cancel(cancelled, 0);
    if (std::equal(cancelled.begin(), cancelled.end(), saved.begin(), saved.end(), isSame)) {
        markSaved();
        return;
    }
    const auto common =
            std::mismatch(saved.begin(), saved.end(), m_steps.begin(), m_steps.end(), isSame);
    m_savedCount = static_cast<std::size_t>(common.second - m_steps.begin());
    m_lacksSavedSteps = common.first != saved.end();
}

void RecordedSteps::clear()
{
    *this = RecordedSteps();
}

void RecordedSteps::refuse(const ShortcutTransformation &step)
{
    m_refused.push_back({step, m_steps.size()});
}

RecordedSteps::Steps RecordedSteps::refusedSteps() const
{
    Steps steps;
    for (const Refused &refused : m_refused)
        steps.push_back(refused.step);
    return steps;
}

RecordedSteps::Steps RecordedSteps::withRefusedSteps() const
{
    Steps steps = m_steps;
    // From the back, so that the places of the others stay right.
    for (auto refused = m_refused.rbegin(); refused != m_refused.rend(); ++refused)
        steps.insert(steps.begin() + static_cast<std::ptrdiff_t>(refused->place), refused->step);
    return steps;
}

} // namespace CUI
