#include "Configuration.h"
#include "QvelShortcutManager.h"
#include "Rows.h"

#include <vector>

namespace CUI::Bench {

namespace {

constexpr int actionCount = 10000;
// The two windows that are timed, by the number of the edit in its session.
constexpr int windowSize = 20;
constexpr int earlyWindow = 90;
constexpr int lateWindow = 9990;
constexpr int sessionLength = lateWindow + windowSize;

enum class Kind { Assigning, Cancelling };

struct Edit {
    ActionIdentifier actionId;
    QString hotkey;
};

struct WindowTimes {
    double early = 0;
    double late = 0;
};

/// A session of edits that are never saved: each assigns another hotkey. In the timed windows of a
/// cancelling session each takes back one of the first edits instead.
class Session
{
public:
    Session(Workload &workload, Kind kind) : m_kind(kind)
    {
        const Configuration &configuration = workload.configuration(actionCount, Steps::Displacing);
        workload.select(actionCount);
        m_isLoaded = m_store.loadShortcuts(configuration.basePath);
        for (int i = 0; i < sessionLength; ++i)
            m_edits.push_back({actionAt(i % actionCount), unusedHotkey(i)});
    }

    QString fault()
    {
        run();
        const int cancelled = m_kind == Kind::Cancelling ? 2 * windowSize : 0;
        const auto steps = static_cast<std::size_t>(sessionLength - 2 * cancelled);
        if (!m_isLoaded || m_store.currentTransformations().size() != steps)
            return QStringLiteral("%1 steps remain").arg(m_store.currentTransformations().size());
        for (int i = 0; i < sessionLength; ++i) {
            const bool isAssigned = !isTakenBack(i) && !(cancelled > 0 && isTimed(i));
            const ActionIdentifier owner = m_store.getActionIdFromShortcut(
                    m_edits[static_cast<std::size_t>(i)].hotkey, contextOf(i));
            if (owner.isEmpty() == isAssigned)
                return QStringLiteral("Edit %1 went wrong").arg(i);
        }
        return {};
    }

    /// The mean costs of an edit in the two windows.
    WindowTimes run()
    {
        m_store.clearTransforms();
        WindowTimes times;
        assign(0, earlyWindow);
        touch(0);
        times.early = secondsOf([&] { editWindow(earlyWindow, 0); }) / windowSize;
        assign(earlyWindow + windowSize, lateWindow);
        touch(windowSize);
        times.late = secondsOf([&] { editWindow(lateWindow, windowSize); }) / windowSize;
        return times;
    }

private:
    static bool isTimed(int edit)
    {
        return edit >= lateWindow || (edit >= earlyWindow && edit < earlyWindow + windowSize);
    }

    bool isTakenBack(int edit) const { return m_kind == Kind::Cancelling && edit < 2 * windowSize; }

    // What the session's first edits have left lies in the processor's cache in the early window
    // and no longer in the late one. Asking for it makes the two equal.
    void touch(int firstCancelled)
    {
        const auto &steps = m_store.currentTransformations();
        for (int i = 0; i < windowSize; ++i) {
            const int number = firstCancelled + i;
            const Edit &edit = m_edits[static_cast<std::size_t>(number)];
            benchmark::DoNotOptimize(steps[static_cast<std::size_t>(i)].kind());
            benchmark::DoNotOptimize(m_store.isUserModifiedAction(edit.actionId));
            benchmark::DoNotOptimize(m_store.isUserModifiedShortcut(edit.actionId, edit.hotkey));
            benchmark::DoNotOptimize(
                    m_store.getActionIdFromShortcut(edit.hotkey, contextOf(number)));
            benchmark::DoNotOptimize(m_store.getShortcutsFromActionId(edit.actionId));
        }
    }

    void editWindow(int start, int firstCancelled)
    {
        if (m_kind == Kind::Assigning)
            assign(start, start + windowSize);
        else
            unassign(firstCancelled, firstCancelled + windowSize);
    }

    void assign(int from, int to)
    {
        for (int i = from; i < to; ++i) {
            const Edit &edit = m_edits[static_cast<std::size_t>(i)];
            m_store.assignShortcut(edit.actionId, edit.hotkey, m_description);
        }
    }

    void unassign(int from, int to)
    {
        for (int i = from; i < to; ++i) {
            const Edit &edit = m_edits[static_cast<std::size_t>(i)];
            m_store.unassignShortcut(edit.actionId, edit.hotkey, m_description);
        }
    }

    Kind m_kind;
    bool m_isLoaded = false;
    QvelShortcutManager m_store;
    std::vector<Edit> m_edits;
    QString m_description = QStringLiteral("Command");
};

void compareWindows(benchmark::State &state, Workload &workload, Kind kind)
{
    const Silence silence;
    Session session(workload, kind);
    if (isWrong(state, session.fault()))
        return;
    WindowTimes shortest = session.run();
    for (auto round : state) {
        Q_UNUSED(round)
        const WindowTimes times = session.run();
        shortest.early = std::min(shortest.early, times.early);
        shortest.late = std::min(shortest.late, times.late);
        state.SetIterationTime(times.late);
    }
    setRatio(state, shortest.late, shortest.early, 2.0);
}

/// Gives hotkeys to actions and takes them away again.
class Exchange
{
public:
    explicit Exchange(Workload &workload)
    {
        workload.select(1000);
        for (int i = 0; i < editCount; ++i)
            m_edits.push_back({actionAt(i), unusedHotkey(i)});
    }

    QString fault()
    {
        int lines = 0;
        const QMetaObject::Connection connection =
                QObject::connect(&QvelMessageLog::getInstance(), &QvelMessageLog::messageLogged,
                                 [&lines](const QString &) { ++lines; });
        run(QvelMessageLog::Warning);
        const bool isSilent = lines == 0;
        run(QvelMessageLog::Debug);
        QObject::disconnect(connection);
        return isSilent && lines == 2 * editCount && m_store.getShortcuts().empty()
                       ? QString()
                       : QStringLiteral("%1 lines are logged").arg(lines);
    }

    double seconds(int logLevel)
    {
        return secondsOf([&] { run(logLevel); }) / (2 * editCount);
    }

private:
    static constexpr int editCount = 500;

    void run(int logLevel)
    {
        Silence::setLevel(logLevel);
        for (const Edit &edit : m_edits)
            m_store.assignShortcut(edit.actionId, edit.hotkey, {});
        for (const Edit &edit : m_edits)
            m_store.unassignShortcut(edit.actionId, edit.hotkey, {});
        Silence::setLevel(QvelMessageLog::Warning);
    }

    QvelShortcutManager m_store;
    std::vector<Edit> m_edits;
};

// If lines that nobody is going to read were put together all the same, the two would cost as much.
void compareLogLevels(benchmark::State &state, Workload &workload)
{
    Exchange exchange(workload);
    if (isWrong(state, exchange.fault()))
        return;
    compare(
            state, 0.8, [&] { return exchange.seconds(QvelMessageLog::Warning); },
            [&] { return exchange.seconds(QvelMessageLog::Debug); });
}

} // namespace

void addEditRows(Workload &workload)
{
    addRow("edit/10,000th, assigning", "the 100th", 60,
           [&](benchmark::State &state) { compareWindows(state, workload, Kind::Assigning); });
    addRow("edit/10,000th, cancelling", "the 100th", 60,
           [&](benchmark::State &state) { compareWindows(state, workload, Kind::Cancelling); });
    addRow("edit, default log level", "one whose line is put together", 60,
           [&](benchmark::State &state) { compareLogLevels(state, workload); });
}

} // namespace CUI::Bench
