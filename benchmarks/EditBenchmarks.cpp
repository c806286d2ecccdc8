#include "Configuration.h"
#include "QvelShortcutManager.h"
#include "RecordedSteps.h"
#include "Rows.h"

#include <vector>

namespace CUI::Bench {

namespace {

/// Gives hotkeys to actions and takes them away again.
class Exchange
{
public:
    Exchange(QvelShortcutManager &store, int first, int count) : m_store(store)
    {
        for (int i = first; i < first + count; ++i)
            m_edits.push_back({actionAt(i), unusedHotkey(i)});
    }

    void assign()
    {
        for (const Edit &edit : m_edits)
            m_store.assignShortcut(edit.actionId, edit.hotkey, {});
    }

    void unassign()
    {
        for (const Edit &edit : m_edits)
            m_store.unassignShortcut(edit.actionId, edit.hotkey, {});
    }

    /// The mean seconds of an edit.
    double seconds()
    {
        const double all = secondsOf([this] {
            assign();
            unassign();
        });
        return all / (2.0 * static_cast<double>(m_edits.size()));
    }

private:
    struct Edit {
        ActionIdentifier actionId;
        QString hotkey;
    };

    QvelShortcutManager &m_store;
    std::vector<Edit> m_edits;
};

double secondsAtLevel(Exchange &exchange, int logLevel)
{
    Silence::setLevel(logLevel);
    const double seconds = exchange.seconds();
    Silence::setLevel(QvelMessageLog::Warning);
    return seconds;
}

QString faultOfLogging(QvelShortcutManager &store, Exchange &exchange, int expectedLines)
{
    int lines = 0;
    const QMetaObject::Connection connection =
            QObject::connect(&QvelMessageLog::getInstance(), &QvelMessageLog::messageLogged,
                             [&lines](const QString &) { ++lines; });
    secondsAtLevel(exchange, QvelMessageLog::Warning);
    const bool isSilent = lines == 0;
    secondsAtLevel(exchange, QvelMessageLog::Debug);
    QObject::disconnect(connection);
    return isSilent && lines == expectedLines && store.getShortcuts().empty()
                   ? QString()
                   : QStringLiteral("%1 lines are logged").arg(lines);
}

// If lines that nobody is going to read were put together all the same, the two would cost as much.
void compareLogLevels(benchmark::State &state, Workload &workload)
{
    constexpr int actions = 10; // few enough for the steps to cost nothing
    workload.select(1000);
    QvelShortcutManager store;
    Exchange exchange(store, 0, actions);
    if (isWrong(state, faultOfLogging(store, exchange, 2 * actions)))
        return;
    compare(
            state, 0.8, [&] { return secondsAtLevel(exchange, QvelMessageLog::Warning); },
            [&] { return secondsAtLevel(exchange, QvelMessageLog::Debug); });
}

void compareWithUnnoticed(benchmark::State &state, Workload &workload)
{
    constexpr int unsaved = 1000;
    constexpr double unnoticed = 1e-4;
    const Silence silence;
    workload.select(10000);
    QvelShortcutManager store;
    Exchange(store, 0, unsaved).assign();
    Exchange exchange(store, unsaved, 100);
    exchange.seconds();
    if (isWrong(state, store.currentTransformations().size() == unsaved
                               ? QString()
                               : QStringLiteral("Edits are not cancelled")))
        return;
    compare(
            state, 1.0, [&] { return exchange.seconds(); }, [] { return unnoticed; });
}

/// Two steps for each hotkey: some cancel, some repeat, some stand alone.
RecordedSteps::Steps editedSteps(int count)
{
    RecordedSteps::Steps steps;
    for (int i = 0; i < count; ++i) {
        const int subject = i * 7919 % (count / 2);
        steps.emplace_back(i % 3 == 0 ? ShortcutTransformation::Unassign
                                      : ShortcutTransformation::Assign,
                           actionAt(subject), unusedHotkey(subject), QString::number(i));
    }
    return steps;
}

/// The definition of cancelling, word for word: each step looks for its like in all later ones.
void cancelPlainly(RecordedSteps::Steps &steps)
{
    for (std::size_t i = 0; i < steps.size();) {
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

void compareCancelling(benchmark::State &state)
{
    constexpr double unnoticed = 5e-3;
    RecordedSteps::Steps cancelled = editedSteps(3000);
    RecordedSteps::Steps expected = cancelled;
    RecordedSteps::cancel(cancelled, 0);
    cancelPlainly(expected);
    const auto isSame = [](const ShortcutTransformation &a, const ShortcutTransformation &b) {
        return a.kind() == b.kind() && a.description() == b.description();
    };
    const bool isRight = std::equal(cancelled.begin(), cancelled.end(), expected.begin(),
                                    expected.end(), isSame);
    if (isWrong(state, isRight ? QString() : QStringLiteral("The list is cancelled wrongly")))
        return;
    const RecordedSteps::Steps steps = editedSteps(10000);
    compare(
            state, 1.0,
            [&] {
                RecordedSteps::Steps copy = steps;
                return secondsOf([&] { RecordedSteps::cancel(copy, 0); });
            },
            [] { return unnoticed; });
}

} // namespace

void addEditRows(Workload &workload)
{
    addRow("edit, 1,000 unsaved", "what nobody notices", 60,
           [&](benchmark::State &state) { compareWithUnnoticed(state, workload); });
    addRow("edit, default log level", "one whose line is put together", 60,
           [&](benchmark::State &state) { compareLogLevels(state, workload); });
    addRow("edit/cancelling 10,000 steps", "what nobody notices", 60, compareCancelling);
}

} // namespace CUI::Bench
