#include "Rows.h"
#include "TransformationCollapser.h"

#include <random>

namespace CUI::Bench {

namespace {

using Steps = TransformationCollapser::Steps;
using Random = std::mt19937;

int below(int limit, Random &random)
{
    return static_cast<int>(random() % static_cast<unsigned>(limit));
}

ShortcutTransformation randomStep(int action, int hotkeyCount, int number, Random &random)
{
    const auto kind = below(2, random) == 0 ? ShortcutTransformation::Assign
                                            : ShortcutTransformation::Unassign;
    // The description tells which of several equal steps is left.
    return {kind,
            {1, QStringLiteral("command.%1").arg(action)},
            QStringLiteral("Ctrl+F%1").arg(below(hotkeyCount, random)),
            QString::number(number)};
}

Steps randomSteps(int count, int actionCount, int hotkeyCount, Random &random)
{
    Steps steps;
    for (int i = 0; i < count; ++i)
        steps.push_back(randomStep(below(actionCount, random), hotkeyCount, i, random));
    return steps;
}

/// Two steps for each hotkey, not far from each other: some cancel, some repeat, some stand alone.
/// Were they spread over the whole list, a long one would be slower only because less of it fits
/// the processor's cache.
Steps sessionSteps(int count, Random &random)
{
    constexpr int hotkeysOfAction = 5;
    constexpr int actionsInMind = 50;
    Steps steps;
    for (int i = 0; i < count; ++i)
        steps.push_back(randomStep(i / (2 * hotkeysOfAction) + below(actionsInMind, random),
                                   hotkeysOfAction, i, random));
    return steps;
}

/// The definition of cancelling, word for word: each step looks for its like in all later ones.
void collapsePlainly(Steps &steps, std::size_t start)
{
    for (std::size_t i = start; i < steps.size();) {
        bool isCancelled = false;
        for (std::size_t j = i + 1; j < steps.size() && !isCancelled;) {
            if (steps[j].actionId() != steps[i].actionId()
                || steps[j].shortcut() != steps[i].shortcut()) {
                ++j;
                continue;
            }
            isCancelled = steps[j].kind() != steps[i].kind();
            steps.erase(steps.begin() + static_cast<std::ptrdiff_t>(j));
        }
        if (isCancelled)
            steps.erase(steps.begin() + static_cast<std::ptrdiff_t>(i));
        else
            ++i;
    }
}

bool isSame(const Steps &a, const Steps &b)
{
    return std::equal(a.begin(), a.end(), b.begin(), b.end(),
                      [](const ShortcutTransformation &x, const ShortcutTransformation &y) {
                          return x.kind() == y.kind() && x.actionId() == y.actionId()
                                 && x.shortcut() == y.shortcut()
                                 && x.description() == y.description();
                      });
}

bool isCollapsedAsPlainly(const Steps &steps, std::size_t start)
{
    Steps expected = steps;
    collapsePlainly(expected, start);
    Steps collapsed = steps;
    TransformationCollapser::collapse(collapsed, start);
    return isSame(collapsed, expected);
}

/// The list that an object keeps cancelled while it grows, one step at a time.
bool isSettledAsPlainly(const Steps &steps, std::size_t start)
{
    Steps settled;
    Steps expected;
    TransformationCollapser collapser;
    for (const ShortcutTransformation &step : steps) {
        settled.push_back(step);
        expected.push_back(step);
        if (collapser.count(settled) <= start)
            continue;
        collapser.settle(settled, start);
        collapsePlainly(expected, start);
        if (collapser.count(settled) != expected.size())
            return false;
    }
    collapser.compact(settled);
    return isSame(settled, expected);
}

QString faultOfCollapsing(Random &random)
{
    constexpr int lists = 5000;
    constexpr int longestList = 40;
    for (int i = 0; i < lists; ++i) {
        const Steps steps =
                randomSteps(below(longestList, random), 1 + below(4, random), 2, random);
        const auto start = static_cast<std::size_t>(below(longestList / 4, random));
        if (!isCollapsedAsPlainly(steps, start) || !isSettledAsPlainly(steps, start))
            return QStringLiteral("Random list %1 is collapsed wrongly").arg(i);
    }
    return isCollapsedAsPlainly(randomSteps(3000, 300, 3, random), 0)
                           && isCollapsedAsPlainly(sessionSteps(3000, random), 100)
                   ? QString()
                   : QStringLiteral("A long list is collapsed wrongly");
}

/// The mean time of collapsing a list of @p lists. All are copied first, so that lists of different
/// sizes find as little of themselves in the processor's cache when they are together as long.
double secondsOfCollapsing(const std::vector<Steps> &lists)
{
    std::vector<Steps> copies = lists;
    const double all = busySecondsOf([&copies] {
        for (Steps &steps : copies)
            TransformationCollapser::collapse(steps, 0);
    });
    return all / static_cast<double>(lists.size());
}

void compareSizes(benchmark::State &state)
{
    Random random(20190611);
    if (isWrong(state, faultOfCollapsing(random)))
        return;
    const std::vector<Steps> large = {sessionSteps(100000, random)};
    std::vector<Steps> small;
    for (int i = 0; i < 10; ++i)
        small.push_back(sessionSteps(10000, random));
    compare(
            state, 15.0, [&] { return secondsOfCollapsing(large); },
            [&] { return secondsOfCollapsing(small); });
}

} // namespace

void addCollapseRows()
{
    addRow("collapse/100k steps", "10k steps", 100, compareSizes);
}

} // namespace CUI::Bench
