#include "Recorder.h"
#include "TestHost.h"
#include "Text.h"

#include <UiCustomizations/QvelShortcutManager.h>

#include <QtTest>

using CUI::ActionIdentifier;
using CUI::QvelShortcutManager;

namespace {

// Actions a and b live in context 5, c in context 6.
const ActionIdentifier a{1, QStringLiteral("a")};
const ActionIdentifier b{1, QStringLiteral("b")};
const ActionIdentifier c{2, QStringLiteral("c")};

} // namespace

/// What the store announces, and its corners. Who holds which hotkey is the random test's.
class TestShortcutStore : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void announcesEdits();
    void ignoresEmptyText();
    void recordsWhatChangesNothing();
    void answersWhatTheUserModified();
    void appliesAndClearsTransforms();
    void collapsesTransforms();
    void clearsShortcuts();
    void ownerFollowsTheRegistry();

private:
    void assign(const ActionIdentifier &id, const char *hotkey)
    {
        m_store->assignShortcut(id, s(hotkey), id.actionId);
    }
    void unassign(const ActionIdentifier &id, const char *hotkey)
    {
        m_store->unassignShortcut(id, s(hotkey), id.actionId);
    }
    ActionIdentifier owner(const char *hotkey, unsigned long context) const
    {
        return m_store->getActionIdFromShortcut(s(hotkey), context);
    }
    std::size_t stepCount() const { return m_store->currentTransformations().size(); }

    std::unique_ptr<TestHost> m_host;
    std::unique_ptr<QvelShortcutManager> m_store;
    std::unique_ptr<Recorder> m_recorder;
};

void TestShortcutStore::init()
{
    m_host = std::make_unique<TestHost>();
    m_host->registry()->addAction(a, s("A"), 5, s("Edit"), false);
    m_host->registry()->addAction(b, s("B"), 5, s("Edit"), false);
    m_host->registry()->addAction(c, s("C"), 6, s("Edit"), false);
    m_store = std::make_unique<QvelShortcutManager>();
    m_recorder = std::make_unique<Recorder>(*m_store);
}

void TestShortcutStore::cleanup()
{
    m_recorder.reset();
    m_store.reset();
    m_host.reset();
}

void TestShortcutStore::announcesEdits()
{
    assign(a, "Ctrl+A");
    QCOMPARE(m_recorder->take(), list("log: Debug: Shortcut 'Ctrl+A' for Action '1-a' added.|"
                                      "assigned 1-a Ctrl+A|collapsed|modified|"
                                      "added Add 'Ctrl+A' to a."));
    assign(a, "F2");
    QCOMPARE(m_recorder->takeSignals(), list("assigned 1-a F2|collapsed|added Add 'F2' to a."));
    QCOMPARE(m_store->getShortcutsFromActionId(a), s("Ctrl+A, F2"));
    QVERIFY(m_store->getBaseShortcutsFromActionId(a).isNull());
    QVERIFY(m_store->getShortcutsFromActionId(b).isNull());

    assign(b, "F2"); // of the same context
    QCOMPARE(m_recorder->take(),
             list("log: Warning: Removing existing shortcut 'F2' from '1-a' and assigning it to "
                  "'1-b'.|log: Warning: Shortcut 'F2' for Action '1-a' removed.|"
                  "unassigned 1-a F2|log: Debug: Shortcut 'F2' for Action '1-b' added.|"
                  "assigned 1-b F2|collapsed|added Add 'F2' to b."));
    QCOMPARE(stepCount(), std::size_t(3));

    m_store->unassignShortcut(b, s("%4"), s("%1 Render"));
    QCOMPARE(m_recorder->takeSignals().last(), s("added Remove '%4' from %1 Render."));
}

void TestShortcutStore::ignoresEmptyText()
{
    m_store->assignShortcut(a, QString(), s("A"));
    unassign(a, "");
    QCOMPARE(m_recorder->take(), QStringList());
    QCOMPARE(stepCount(), std::size_t(0));
}

void TestShortcutStore::recordsWhatChangesNothing()
{
    unassign(a, "X"); // no entry
    QCOMPARE(m_recorder->take(), list("collapsed|modified|added Remove 'X' from a."));
    assign(a, "Y");
    m_recorder->take();
    assign(a, "y"); // held already
    QCOMPARE(m_recorder->take(), list("log: Debug: Shortcut 'y' for Action '1-a' added.|"
                                      "assigned 1-a y|collapsed|added Add 'y' to a."));
    unassign(a, "y"); // an entry, but not this text
    QCOMPARE(m_recorder->take(), list("log: Debug: Shortcut 'y' for Action '1-a' removed.|"
                                      "unassigned 1-a y|collapsed|added Remove 'y' from a."));
    QCOMPARE(m_store->getShortcutsFromActionId(a), s("Y"));
}

void TestShortcutStore::answersWhatTheUserModified()
{
    assign(a, "X");
    assign(a, "Z");
    QVERIFY(m_store->saveShortcutTransforms(m_host->path(s("set.hsx"))));
    QVERIFY(!m_store->isUserModifiedAction(a));
    unassign(b, "Y");
    QVERIFY(m_store->isUserModifiedAction(b));
    QVERIFY(!m_store->isUserModifiedAction(a));
    // Cancelling the saved steps as well leaves the boundary beyond the end.
    unassign(a, "X");
    unassign(a, "Z");
    m_store->collapseTransforms(0);
    QCOMPARE(stepCount(), std::size_t(1));
    QVERIFY(!m_store->isUserModifiedAction(b));
    QVERIFY(!m_store->isUserModifiedShortcut(b, s("Y")));
}

void TestShortcutStore::appliesAndClearsTransforms()
{
    m_store->applyTransforms();
    m_store->clearTransforms();
    QCOMPARE(m_recorder->take(), QStringList());

    assign(a, "X");
    m_recorder->take();
    m_store->applyTransforms();
    QCOMPARE(m_recorder->take(), list("unmodified|transformsCleared"));
    assign(b, "X");
    m_recorder->take();
    m_store->clearTransforms();
    QCOMPARE(m_recorder->take(), list("unmodified|transformsCleared"));
    QCOMPARE(owner("X", 5), a);
}

void TestShortcutStore::collapsesTransforms()
{
    assign(a, "X");
    QVERIFY(m_store->saveShortcutTransforms(m_host->path(s("set.hsx"))));
    unassign(a, "X");
    m_store->collapseTransforms(1);
    QCOMPARE(stepCount(), std::size_t(2));
    m_recorder->take();
    for (int repetition = 0; repetition < 2; ++repetition) {
        m_store->collapseTransforms(0);
        QCOMPARE(m_recorder->take(), list("collapsed"));
        QCOMPARE(stepCount(), std::size_t(0));
    }
    QVERIFY(m_store->isUserModified()); // the flag is only recomputed by an edit
}

void TestShortcutStore::clearsShortcuts()
{
    unassign(a, "X");
    m_recorder->take();
    m_store->clearShortcuts(); // both maps are empty: even the step stays
    QCOMPARE(m_recorder->take(), QStringList());
    QCOMPARE(stepCount(), std::size_t(1));

    assign(a, "Y");
    m_recorder->take();
    m_store->clearShortcuts();
    QCOMPARE(m_recorder->take(), list("unmodified|cleared"));
    m_store->clearShortcuts();
    QCOMPARE(m_recorder->take(), QStringList());
}

void TestShortcutStore::ownerFollowsTheRegistry()
{
    assign(a, "X");
    m_host->registry()->addAction(a, s("A"), 6, s("Edit"), false); // moved to another context
    QVERIFY(owner("X", 5).isEmpty());
    QCOMPARE(owner("X", 6), a);
    m_host->registry()->removeAction(a);
    QVERIFY(owner("X", 6).isEmpty());
    QCOMPARE(m_store->getShortcutsFromActionId(a), s("X"));
}

QTEST_GUILESS_MAIN(TestShortcutStore)
#include "tst_ShortcutStore.moc"
