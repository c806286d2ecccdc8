#include "Configuration.h"
#include "QvelShortcutManager.h"
#include "Rows.h"

#include <vector>

namespace CUI::Bench {

namespace {

/// A store that holds the base hotkeys of a registry, and a few of its actions, spread evenly. The
/// same number of them is touched whatever the size, so that a larger store is not slower only
/// because less of it fits the processor's cache.
class SizedStore
{
public:
    SizedStore(Workload &workload, int actionCount) : m_workload(workload), m_size(actionCount)
    {
        const Configuration &configuration = workload.configuration(actionCount, Steps::Displacing);
        select();
        m_isLoaded = m_store.loadShortcuts(configuration.basePath)
                     && hotkeyCount(m_store) == configuration.hotkeysOfBase();
    }

    void select() { m_workload.select(m_size); }
    bool isLoaded() const { return m_isLoaded; }
    QvelShortcutManager &store() { return m_store; }

    /// The action that is @p part of @p parts through the registry.
    int actionNumber(int part, int parts) const { return m_size / parts * part; }

private:
    Workload &m_workload;
    int m_size;
    bool m_isLoaded = false;
    QvelShortcutManager m_store;
};

// Displacing assignments

/// Two actions of one context that take hotkeys from each other.
class Rivals
{
public:
    /// @p a and the next action of its context.
    Rivals(QvelShortcutManager &store, int a)
        : m_store(store),
          m_context(contextOf(a)),
          m_a(actionAt(a)),
          m_b(actionAt(a + contextCount)),
          m_hotkeyOfA(firstHotkeyOf(a)),
          m_hotkeyOfB(firstHotkeyOf(a + contextCount))
    {
    }

    /// Each of these displaces the other action's hotkey; all four restore the state.
    void exchange()
    {
        m_store.assignShortcut(m_b, m_hotkeyOfA, {});
        m_store.assignShortcut(m_a, m_hotkeyOfB, {});
        m_store.assignShortcut(m_a, m_hotkeyOfA, {});
        m_store.assignShortcut(m_b, m_hotkeyOfB, {});
    }

    bool isExchangedRightly()
    {
        if (!areOwners(m_a, m_b))
            return false;
        m_store.assignShortcut(m_b, m_hotkeyOfA, {});
        const bool firstIsRight = areOwners(m_b, m_b);
        m_store.assignShortcut(m_a, m_hotkeyOfB, {});
        const bool secondIsRight = areOwners(m_b, m_a);
        m_store.assignShortcut(m_a, m_hotkeyOfA, {});
        m_store.assignShortcut(m_b, m_hotkeyOfB, {});
        return firstIsRight && secondIsRight && areOwners(m_a, m_b);
    }

    static constexpr int assignments = 4;

private:
    bool areOwners(const ActionIdentifier &ownerOfA, const ActionIdentifier &ownerOfB) const
    {
        return isOwner(m_hotkeyOfA, ownerOfA) && isOwner(m_hotkeyOfB, ownerOfB);
    }

    bool isOwner(const QString &hotkey, const ActionIdentifier &owner) const
    {
        const ActionIdentifier &other = owner == m_a ? m_b : m_a;
        return m_store.getActionIdFromShortcut(hotkey, m_context) == owner
               && m_store.getShortcuts().at(owner).contains(hotkey)
               && !m_store.getShortcutsFromActionId(other)
                           .split(QLatin1String(", "))
                           .contains(hotkey);
    }

    QvelShortcutManager &m_store;
    unsigned long m_context;
    ActionIdentifier m_a;
    ActionIdentifier m_b;
    QString m_hotkeyOfA;
    QString m_hotkeyOfB;
};

class DisplacingAssignments
{
public:
    DisplacingAssignments(Workload &workload, int actionCount) : m_sized(workload, actionCount)
    {
        for (int i = 0; i < pairCount; ++i)
            m_rivals.emplace_back(m_sized.store(),
                                  m_sized.actionNumber(i, pairCount) + i % contextCount);
    }

    QString fault()
    {
        m_sized.select();
        bool isRight = m_sized.isLoaded();
        for (Rivals &rivals : m_rivals)
            isRight = isRight && rivals.isExchangedRightly();
        return isRight ? QString() : QStringLiteral("A hotkey did not change its owner");
    }

    double seconds()
    {
        constexpr int repetitions = 8;
        m_sized.select();
        run(); // what the other store has driven out of the cache returns
        const double all = secondsOf([&] {
            for (int i = 0; i < repetitions; ++i)
                run();
        });
        return all / (repetitions * pairCount * Rivals::assignments);
    }

private:
    static constexpr int pairCount = 25;

    void run()
    {
        for (Rivals &rivals : m_rivals)
            rivals.exchange();
    }

    SizedStore m_sized;
    std::vector<Rivals> m_rivals;
};

void compareAssignments(benchmark::State &state, Workload &workload)
{
    const Silence silence;
    DisplacingAssignments large(workload, 100000);
    DisplacingAssignments small(workload, 1000);
    if (isWrong(state, large.fault()) || isWrong(state, small.fault()))
        return;
    compare(
            state, 2.0, [&] { return large.seconds(); }, [&] { return small.seconds(); });
}

// Look-ups

class LookUps
{
public:
    LookUps(Workload &workload, int actionCount) : m_sized(workload, actionCount)
    {
        for (int i = 0; i < questionCount; ++i) {
            const int action = m_sized.actionNumber(i, questionCount) + i % contextCount;
            m_questions.push_back({firstHotkeyOf(action), contextOf(action), actionAt(action)});
        }
    }

    QString fault()
    {
        m_sized.select();
        bool isRight = m_sized.isLoaded();
        for (const Question &question : m_questions)
            isRight = isRight
                      && m_sized.store().getActionIdFromShortcut(question.hotkey, question.context)
                                 == question.answer;
        isRight = isRight && m_sized.store().getActionIdFromShortcut(unusedHotkey(0), 0).isEmpty();
        return isRight ? QString() : QStringLiteral("A hotkey was not found");
    }

    double seconds()
    {
        constexpr int repetitions = 16;
        m_sized.select();
        run();
        const double all = secondsOf([&] {
            for (int i = 0; i < repetitions; ++i)
                run();
        });
        return all / (repetitions * questionCount);
    }

private:
    struct Question {
        QString hotkey;
        unsigned long context;
        ActionIdentifier answer;
    };
    static constexpr int questionCount = 50;

    void run()
    {
        for (const Question &question : m_questions)
            benchmark::DoNotOptimize(
                    m_sized.store().getActionIdFromShortcut(question.hotkey, question.context));
    }

    SizedStore m_sized;
    std::vector<Question> m_questions;
};

void compareLookUps(benchmark::State &state, Workload &workload)
{
    LookUps large(workload, 100000);
    LookUps small(workload, 1000);
    if (isWrong(state, large.fault()) || isWrong(state, small.fault()))
        return;
    compare(
            state, 2.0, [&] { return large.seconds(); }, [&] { return small.seconds(); });
}

} // namespace

void addStoreRows(Workload &workload)
{
    addRow("assign-displacing/100k actions", "1k actions", 30,
           [&](benchmark::State &state) { compareAssignments(state, workload); });
    addRow("action-of-hotkey/100k actions", "1k actions", 30,
           [&](benchmark::State &state) { compareLookUps(state, workload); });
}

} // namespace CUI::Bench
