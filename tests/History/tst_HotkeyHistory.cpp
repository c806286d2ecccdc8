#include "PlainStore.h"
#include "Recorder.h"
#include "Text.h"

#include <UiCustomizations/HotkeyDefaults.h>
#include <UiCustomizations/HotkeyEditGroup.h>
#include <UiCustomizations/HotkeyEdits.h>
#include <UiCustomizations/QvelHotkeyHistory.h>
#include <UiCustomizations/QvelMessageLog.h>
#include <UiCustomizations/QvelShortcutManager.h>

#include <QSignalSpy>
#include <QtTest>

#include <random>

using CUI::ActionIdentifier;
using CUI::HotkeyEdits;
using CUI::QvelHotkeyHistory;
using CUI::QvelShortcutManager;
using Step = CUI::ShortcutTransformation;

namespace {

const QStringList keys = list("A|a|B|C|D|E|F|G");

/// All that a store answers.
struct Snapshot {
    PlainMap current;
    PlainMap base;
    std::vector<Step> steps;
    bool isModified = false;
    QStringList answers;
    int saves = 0;
};

QStringList texts(const std::vector<Step> &steps)
{
    QStringList result;
    for (const auto &step : steps)
        result << step.toString() + step.actionId().toString();
    return result;
}

/// The hotkeys of each action, whatever their order.
PlainMap sorted(PlainMap map)
{
    for (auto &entry : map)
        entry.second.sort();
    return map;
}

} // namespace

/// The edits of an editor: what is saved replays to what is shown, and undo and redo restore it.
class TestHotkeyHistory : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void namesAndAnnounces();
    void equalsSnapshots();
    void outlivesSlotsThatEdit();
    void recordsWhatItTakesAway();
    void savesWhatIsShown();

private:
    void loadStrangersSet(QvelShortcutManager &store);
    PlainMap savedMap(const QvelShortcutManager &store) const;
    PlainMap reloadedMap(QvelShortcutManager &store) const;
    unsigned below(unsigned limit) { return unsigned(m_random()) % limit; }
    const ActionIdentifier &anyAction() { return m_ids[below(unsigned(m_ids.size()))]; }
    QString anyKey() { return keys.at(int(below(unsigned(keys.size())))); }
    void edit(QvelShortcutManager &store);
    Snapshot snapshot(QvelShortcutManager &store) const;
    void compare(QvelShortcutManager &store, const Snapshot &expected) const;

    std::mt19937 m_random;
    std::vector<ActionIdentifier> m_ids;
    std::unique_ptr<TestHost> m_host;
    int m_saves = 0;
    std::vector<Step> m_saved;
};

void TestHotkeyHistory::init()
{
    CUI::QvelMessageLog::getInstance().setMessageLogLevel({});
    m_host.reset();
    m_host = std::make_unique<TestHost>();
    m_random.seed(9);
    m_ids.clear();
    for (unsigned i = 0; i < 6; ++i) {
        m_ids.push_back({1, s("action%1").arg(i)});
        m_host->registry()->addAction(m_ids.back(), s("Action %1").arg(i), i % 2, QString(), false);
    }
}

void TestHotkeyHistory::namesAndAnnounces()
{
    QvelShortcutManager store;
    store.assignShortcut(m_ids[0], s("A"), s("Base"));
    store.applyTransforms();
    QvelHotkeyHistory history(&store);
    HotkeyEdits::give(store, m_ids[2], s("A"), s("Two"));
    QCOMPARE(history.count(), 1);
    QCOMPARE(history.undoText(), s("Add 'A' to Two."));
    {
        const CUI::HotkeyEditGroup group(&store, s("Both"));
        store.assignShortcut(m_ids[2], s("B"), s("Two"));
        store.assignShortcut(m_ids[2], s("C"), s("Two"));
    }
    QCOMPARE(history.undoText(), s("Both"));
    Recorder recorder(store);
    history.undo();
    QCOMPARE(recorder.takeSignals(), list("transformsCleared|collapsed"));
    history.undo();
    QCOMPARE(recorder.takeSignals(), list("unmodified|transformsCleared"));
    QCOMPARE(store.getShortcutsFromActionId(m_ids[0]), s("A"));
    history.redo();
    QCOMPARE(recorder.takeSignals(), list("modified|transformsCleared|collapsed"));
    QCOMPARE(store.getActionIdFromShortcut(s("A"), 0), m_ids[2]);
    store.clearTransforms();
    QCOMPARE(history.count(), 0);
}

void TestHotkeyHistory::edit(QvelShortcutManager &store)
{
    const ActionIdentifier &action = anyAction();
    const QString name = QString::number(below(1000));
    switch (below(8)) {
    case 0:
        store.assignShortcut(action, anyKey(), name);
        break;
    case 1:
        store.unassignShortcut(action, anyKey(), name);
        break;
    case 2: {
        const CUI::HotkeyEditGroup group(&store);
        for (int i = 0; i < 3; ++i)
            edit(store);
        break;
    }
    case 3:
        if (below(4) == 0) {
            auto steps = store.currentTransformations();
            std::reverse(steps.begin(), steps.end());
            store.replaceTransforms(steps);
            break;
        }
        Q_FALLTHROUGH();
    case 4:
        HotkeyEdits::take(store, action, anyKey(), name);
        break;
    default:
        HotkeyEdits::give(store, action, anyKey(), name);
    }
}

Snapshot TestHotkeyHistory::snapshot(QvelShortcutManager &store) const
{
    Snapshot now{plain(store.getShortcuts()),
                 plain(store.getBaseShortcuts()),
                 store.currentTransformations(),
                 store.isUserModified(),
                 {},
                 m_saves};
    for (const ActionIdentifier &id : m_ids) {
        now.answers << QString::number(store.isUserModifiedAction(id));
        for (const QString &key : keys) {
            now.answers << QString::number(store.isUserModifiedShortcut(id, key))
                        << store.getActionIdFromShortcut(key, id.tableId).toString();
        }
    }
    return now;
}

void TestHotkeyHistory::compare(QvelShortcutManager &store, const Snapshot &expected) const
{
    const Snapshot now = snapshot(store);
    QCOMPARE(now.current, expected.current);
    QCOMPARE(now.base, expected.base);
    QCOMPARE(texts(now.steps), texts(expected.steps));
    if (expected.saves == m_saves) {
        QCOMPARE(now.isModified, expected.isModified);
        QCOMPARE(now.answers, expected.answers);
        return;
    }
    auto cancelled = now.steps;
    collapsePlainly(cancelled, 0);
    const bool isSaved = std::equal(cancelled.begin(), cancelled.end(), m_saved.begin(),
                                    m_saved.end(), [](const auto &a, const auto &b) {
                                        return a.kind() == b.kind() && a.actionId() == b.actionId()
                                               && a.shortcut() == b.shortcut();
                                    });
    QCOMPARE(now.isModified, !isSaved);
}

void TestHotkeyHistory::equalsSnapshots()
{
    QvelShortcutManager store;
    for (int i = 0; i < 12; ++i)
        HotkeyEdits::give(store, anyAction(), anyKey(), s("Base"));
    store.applyTransforms();
    QvelHotkeyHistory history(&store);
    QSignalSpy recorded(&store, &QvelShortcutManager::shortcutTransformAdded);
    std::vector<Snapshot> snapshots{snapshot(store)};
    int restored = 0;
    for (int round = 0; round < 10000; ++round) {
        const int index = history.index();
        const unsigned operation = below(100);
        if (operation < 45) {
            recorded.clear();
            edit(store);
            if (recorded.isEmpty() && history.index() == index)
                continue;
            QCOMPARE(history.index(), index + 1);
            QCOMPARE(history.count(), index + 1);
            snapshots.resize(std::size_t(index) + 1);
            snapshots.push_back(snapshot(store));
        } else if (operation < 90) {
            if (operation < 65)
                history.undo();
            else if (operation < 85)
                history.redo();
            else
                history.setIndex(int(below(unsigned(history.count()) + 1)));
            compare(store, snapshots[std::size_t(history.index())]);
            restored += history.index() != index ? 1 : 0;
        } else if (operation < 98) {
            const bool isWritable = below(3) > 0;
            QCOMPARE(store.saveShortcutTransforms(
                             m_host->path(isWritable ? s("set.hsx") : s("nowhere/set.hsx"))),
                     isWritable);
            if (isWritable) {
                ++m_saves;
                m_saved = store.currentTransformations();
            }
            snapshots[std::size_t(index)] = snapshot(store);
        } else if (operation == 98) {
            store.collapseTransforms(below(3));
            snapshots[std::size_t(index)] = snapshot(store);
        } else if (below(20) == 0) {
            QVERIFY(store.loadShortcutTransforms(m_host->write(
                    s("other.hsx"), "<VelHotkeyTransformations><Assign_Hotkey Shortcut='A' "
                                    "Id='1-action1'/></VelHotkeyTransformations>")));
            QCOMPARE(history.count(), 0);
            snapshots = {snapshot(store)};
        }
        QCOMPARE(history.isClean(), !store.isUserModified());
        if (QTest::currentTestFailed()) {
            qWarning("in round %d", round);
            return;
        }
    }
    QVERIFY(restored > 1000);

    using CUI::HotkeyDefaults;
    const PlainMap before = plain(store.getShortcuts());
    const int index = history.index();
    HotkeyDefaults::apply(store, HotkeyDefaults::planForAll(store), HotkeyDefaults::Held::Take);
    QCOMPARE(history.index(), index + 1);
    QCOMPARE(sorted(plain(store.getShortcuts())), sorted(plain(store.getBaseShortcuts())));
    history.undo();
    QCOMPARE(plain(store.getShortcuts()), before);
}

void TestHotkeyHistory::outlivesSlotsThatEdit()
{
    QvelShortcutManager store;
    QvelHotkeyHistory history(&store);
    for (const char *key : {"A", "B", "C"})
        store.assignShortcut(m_ids[0], s(key), QString());
    const auto connection = connect(&store, &QvelShortcutManager::shortcutTransformsCleared, this,
                                    [&] { store.assignShortcut(m_ids[1], s("D"), QString()); });
    history.setIndex(0);
    disconnect(connection);
    QCOMPARE(history.count(), 0);
    store.assignShortcut(m_ids[2], s("E"), QString());
    history.undo();
    QVERIFY(store.getShortcutsFromActionId(m_ids[2]).isEmpty());
}

void TestHotkeyHistory::recordsWhatItTakesAway()
{
    QvelShortcutManager store;
    store.assignShortcut(m_ids[0], s("Ctrl+A"), s("Base"));
    store.applyTransforms();
    Recorder recorder(store);
    HotkeyEdits::give(store, m_ids[2], s("ctrl+A"), s("C"));
    QCOMPARE(recorder.take(),
             list("log: Warning: Removing existing shortcut 'ctrl+A' from '1-action0' and "
                  "assigning it to '1-action2'.|"
                  "log: Warning: Shortcut 'Ctrl+A' for Action '1-action0' removed.|"
                  "unassigned 1-action0 Ctrl+A|collapsed|modified|"
                  "added Remove 'Ctrl+A' from Action 0.|"
                  "log: Debug: Shortcut 'ctrl+A' for Action '1-action2' added.|"
                  "assigned 1-action2 ctrl+A|collapsed|added Add 'ctrl+A' to C."));
}

// A set as other programs may write it: with steps that have no effect, take hotkeys away without
// saying so, and cancel each other.
void TestHotkeyHistory::loadStrangersSet(QvelShortcutManager &store)
{
    QByteArray steps;
    for (unsigned i = 0; i < 12; ++i)
        steps += s("<%1_Hotkey Shortcut='%2' Id='%3'/>")
                         .arg(below(3) == 0 ? s("Unassign") : s("Assign"), anyKey(),
                              anyAction().toString())
                         .toUtf8();
    QVERIFY(store.loadShortcutTransforms(m_host->write(
            s("set.hsx"), "<VelHotkeyTransformations>" + steps + "</VelHotkeyTransformations>")));
}

PlainMap TestHotkeyHistory::savedMap(const QvelShortcutManager &store) const
{
    std::vector<Step> steps = store.currentTransformations();
    collapsePlainly(steps, 0);
    PlainStore saved(*m_host->registry());
    saved.current = plain(store.getBaseShortcuts());
    for (const Step &step : steps)
        saved.apply(step);
    return saved.current;
}

PlainMap TestHotkeyHistory::reloadedMap(QvelShortcutManager &store) const
{
    QvelShortcutManager reloaded;
    for (const auto &[action, hotkeys] : store.getBaseShortcuts()) {
        for (const QString &hotkey : hotkeys)
            reloaded.assignShortcut(action, hotkey, QString());
    }
    reloaded.applyTransforms();
    const QString path = m_host->path(s("set.hsx"));
    if (!store.saveShortcutTransforms(path) || !reloaded.loadShortcutTransforms(path))
        return {};
    return plain(reloaded.getShortcuts());
}

void TestHotkeyHistory::savesWhatIsShown()
{
    for (int set = 0; set < 25; ++set) {
        QvelShortcutManager store;
        for (int i = 0; i < 30; ++i)
            HotkeyEdits::give(store, anyAction(), anyKey(), QString());
        store.applyTransforms();
        store.setKeepsRefusedTransforms(set % 4 == 0);
        if (set % 2 == 0)
            loadStrangersSet(store);
        for (int edit = 0; edit < 100; ++edit) {
            PlainStore expected(*m_host->registry());
            expected.current = plain(store.getShortcuts());
            const ActionIdentifier action = anyAction();
            const QString key = anyKey();
            if (below(2) == 0) {
                HotkeyEdits::give(store, action, key, QString());
                expected.give(action, key);
            } else {
                HotkeyEdits::take(store, action, key, QString());
                expected.unassign(action, key);
            }
            QCOMPARE(plain(store.getShortcuts()), expected.current);
            if (!store.keepsRefusedTransforms())
                QCOMPARE(sorted(savedMap(store)), sorted(expected.current));
            if (below(20) == 0)
                QCOMPARE(sorted(reloadedMap(store)), sorted(expected.current));
        }
    }
}

QTEST_GUILESS_MAIN(TestHotkeyHistory)
#include "tst_HotkeyHistory.moc"
