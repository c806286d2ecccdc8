#include "PlainStore.h"
#include "Recorder.h"
#include "Text.h"

#include <UiCustomizations/HotkeyEdits.h>
#include <UiCustomizations/QvelMessageLog.h>
#include <UiCustomizations/QvelShortcutManager.h>

#include <QtTest>

#include <random>

using CUI::ActionIdentifier;
using CUI::HotkeyEdits;
using CUI::QvelShortcutManager;
using Step = CUI::ShortcutTransformation;

namespace {

/// The hotkeys of each action, whatever their order.
PlainMap sorted(PlainMap map)
{
    for (auto &entry : map)
        entry.second.sort();
    return map;
}

} // namespace

/// After each edit of an editor, what would be saved replays to what is shown.
class TestHotkeyEdits : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void recordsWhatItTakesAway();
    void savesWhatIsShown();

private:
    ActionIdentifier anyAction() { return m_ids[below(unsigned(m_ids.size()))]; }
    QString anyKey() { return m_keys.at(int(below(unsigned(m_keys.size())))); }
    unsigned below(unsigned limit) { return unsigned(m_random()) % limit; }
    void loadStrangersSet(QvelShortcutManager &store);
    PlainMap savedMap(const QvelShortcutManager &store) const;
    PlainMap reloadedMap(QvelShortcutManager &store) const;

    std::mt19937 m_random{5};
    std::vector<ActionIdentifier> m_ids;
    const QStringList m_keys = s("A a B C D E F G H I").split(QLatin1Char(' '));
    std::unique_ptr<TestHost> m_host;
};

void TestHotkeyEdits::init()
{
    m_host.reset();
    m_host = std::make_unique<TestHost>();
    m_ids.clear();
    for (unsigned i = 0; i < 6; ++i) {
        m_ids.push_back({1, s("action%1").arg(i)});
        m_host->registry()->addAction(m_ids.back(), s("Action %1").arg(i), i % 2, QString(), false);
    }
}

void TestHotkeyEdits::recordsWhatItTakesAway()
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
void TestHotkeyEdits::loadStrangersSet(QvelShortcutManager &store)
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

PlainMap TestHotkeyEdits::savedMap(const QvelShortcutManager &store) const
{
    std::vector<Step> steps = store.currentTransformations();
    collapsePlainly(steps, 0);
    PlainStore saved(*m_host->registry());
    saved.current = plain(store.getBaseShortcuts());
    for (const Step &step : steps)
        saved.apply(step);
    return saved.current;
}

PlainMap TestHotkeyEdits::reloadedMap(QvelShortcutManager &store) const
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

void TestHotkeyEdits::savesWhatIsShown()
{
    CUI::QvelMessageLog::getInstance().setMessageLogLevel({});
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

QTEST_GUILESS_MAIN(TestHotkeyEdits)
#include "tst_HotkeyEdits.moc"
