#include "Recorder.h"
#include "TestHost.h"

#include <UiCustomizations/QvelShortcutManager.h>

#include <QtTest>

using CUI::ActionIdentifier;
using CUI::QShortcutsList;
using CUI::QvelShortcutManager;

namespace {

// Actions a and b live in context 5, c in context 6.
const ActionIdentifier a{1, QStringLiteral("a")};
const ActionIdentifier b{1, QStringLiteral("b")};
const ActionIdentifier c{2, QStringLiteral("c")};
const ActionIdentifier unknown{9, QStringLiteral("nobody")};

QString s(const char *text)
{
    return QString::fromUtf8(text);
}

} // namespace

class TestShortcutStore : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void listLimits();
    void assigns();
    void movesHotkeyWithinContext();
    void sharesHotkeyAcrossContexts();
    void findsConflictInOtherLetterCase();
    void recordsStepOfUnknownAction();
    void worksWithoutRegistry();
    void refusesSeventhHotkey();
    void repeatsAssignment();
    void ignoresEmptyText();
    void unassigns();
    void survivesArgumentsFromItsOwnMap();
    void modifiedFollowsTheSteps();
    void answersWhatTheUserModified();
    void clearsTransforms();
    void appliesTransforms();
    void collapsesTransforms();
    void clearsShortcuts();
    void ownerFollowsTheRegistry();
    void stepsInWords();

private:
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

void TestShortcutStore::listLimits()
{
    QShortcutsList list;
    QVERIFY(list.addShortcut(s("Ctrl+A")));
    QVERIFY(!list.addShortcut(s("CTRL+a")));
    for (const char *key : {"B", "C", "D", "E", "F"})
        QVERIFY(list.addShortcut(s(key)));
    QVERIFY(!list.addShortcut(s("G")));
    QCOMPARE(list.join(s(" ")), s("Ctrl+A B C D E F"));
}

void TestShortcutStore::assigns()
{
    m_store->assignShortcut(a, s("Ctrl+A"), s("A"));
    QCOMPARE(m_recorder->take(),
             QStringList({s("log: Debug: Shortcut 'Ctrl+A' for Action '1-a' added."),
                          s("assigned 1-a Ctrl+A"), s("collapsed"), s("modified"),
                          s("added Add 'Ctrl+A' to A.")}));
    m_store->assignShortcut(a, s("F2"), s("A"));
    QCOMPARE(m_recorder->takeSignals(),
             QStringList({s("assigned 1-a F2"), s("collapsed"), s("added Add 'F2' to A.")}));
    QCOMPARE(m_store->getShortcutsFromActionId(a), s("Ctrl+A, F2"));
    QVERIFY(m_store->getBaseShortcutsFromActionId(a).isNull());
    QVERIFY(m_store->getShortcutsFromActionId(b).isNull());
    QCOMPARE(m_store->getActionIdFromShortcut(s("ctrl+a"), 5), a);
    QVERIFY(m_store->getActionIdFromShortcut(s("ctrl+a"), 6).isEmpty());
}

void TestShortcutStore::movesHotkeyWithinContext()
{
    m_store->assignShortcut(a, s("Ctrl+A"), s("A"));
    m_recorder->take();
    m_store->assignShortcut(b, s("Ctrl+A"), s("B"));
    QCOMPARE(
            m_recorder->take(),
            QStringList({s("log: Warning: Removing existing shortcut 'Ctrl+A' from '1-a' and "
                           "assigning it to '1-b'."),
                         s("log: Warning: Shortcut 'Ctrl+A' for Action '1-a' removed."),
                         s("unassigned 1-a Ctrl+A"),
                         s("log: Debug: Shortcut 'Ctrl+A' for Action '1-b' added."),
                         s("assigned 1-b Ctrl+A"), s("collapsed"), s("added Add 'Ctrl+A' to B.")}));
    QVERIFY(m_store->getShortcuts().count(a) == 0);
    QCOMPARE(m_store->currentTransformations().size(), std::size_t(2));
}

void TestShortcutStore::sharesHotkeyAcrossContexts()
{
    m_store->assignShortcut(c, s("Ctrl+A"), s("C"));
    m_store->assignShortcut(b, s("Ctrl+A"), s("B"));
    QCOMPARE(m_store->getActionIdFromShortcut(s("Ctrl+A"), 5), b);
    QCOMPARE(m_store->getActionIdFromShortcut(s("Ctrl+A"), 6), c);
}

void TestShortcutStore::findsConflictInOtherLetterCase()
{
    m_store->assignShortcut(a, s("Ctrl+A"), s("A"));
    m_recorder->take();
    m_store->assignShortcut(b, s("ctrl+a"), s("B"));
    // The conflict is found without regard to case, the removal compares exactly.
    QCOMPARE(m_recorder->takeSignals(),
             QStringList({s("unassigned 1-a ctrl+a"), s("assigned 1-b ctrl+a"), s("collapsed"),
                          s("added Add 'ctrl+a' to B.")}));
    QCOMPARE(m_store->getShortcutsFromActionId(a), s("Ctrl+A"));
    QCOMPARE(m_store->getShortcutsFromActionId(b), s("ctrl+a"));
    // Of two holders, the one with the smaller identifier, whatever came first.
    QCOMPARE(m_store->getActionIdFromShortcut(s("CTRL+A"), 5), a);
    m_store->applyTransforms();
    QCOMPARE(m_store->getActionIdFromShortcut(s("CTRL+A"), 5), a);
}

void TestShortcutStore::recordsStepOfUnknownAction()
{
    m_store->assignShortcut(unknown, s("X"), s("Nobody"));
    QCOMPARE(m_recorder->take(),
             QStringList({s("log: Warning: Action '9-nobody' not found."), s("collapsed"),
                          s("modified"), s("added Add 'X' to Nobody.")}));
    QVERIFY(m_store->getShortcuts().empty());
}

void TestShortcutStore::worksWithoutRegistry()
{
    std::unique_ptr<CUI::ICuiActionManager> none;
    CUI::ICuiActionManager::set(none);
    m_store->assignShortcut(a, s("X"), s("A"));
    m_store->assignShortcut(b, s("X"), s("B"));
    QCOMPARE(m_store->getShortcutsFromActionId(a), s("X"));
    QCOMPARE(m_store->getShortcutsFromActionId(b), s("X"));
    QVERIFY(m_store->getActionIdFromShortcut(s("X"), 5).isEmpty());
}

void TestShortcutStore::refusesSeventhHotkey()
{
    for (const char *key : {"A", "B", "C", "D", "E", "F"})
        m_store->assignShortcut(a, s(key), s("A"));
    m_recorder->take();
    m_store->assignShortcut(a, s("G"), s("A"));
    QCOMPARE(m_recorder->take(), QStringList());
    QCOMPARE(m_store->currentTransformations().size(), std::size_t(6));
}

void TestShortcutStore::repeatsAssignment()
{
    m_store->assignShortcut(a, s("X"), s("A"));
    m_recorder->take();
    m_store->assignShortcut(a, s("x"), s("A"));
    QCOMPARE(m_recorder->take(),
             QStringList({s("log: Debug: Shortcut 'x' for Action '1-a' added."),
                          s("assigned 1-a x"), s("collapsed"), s("added Add 'x' to A.")}));
    QCOMPARE(m_store->getShortcutsFromActionId(a), s("X"));
}

void TestShortcutStore::ignoresEmptyText()
{
    m_store->assignShortcut(a, QString(), s("A"));
    m_store->unassignShortcut(a, s(""), s("A"));
    QCOMPARE(m_recorder->take(), QStringList());
    QVERIFY(m_store->currentTransformations().empty());
}

void TestShortcutStore::unassigns()
{
    m_store->unassignShortcut(a, s("X"), s("A")); // no entry: recorded, nothing removed
    QCOMPARE(m_recorder->take(),
             QStringList({s("collapsed"), s("modified"), s("added Remove 'X' from A.")}));

    m_store->assignShortcut(a, s("Y"), s("A"));
    m_recorder->take();
    m_store->unassignShortcut(a, s("y"), s("A")); // an entry, but not this text
    QCOMPARE(m_recorder->take(),
             QStringList({s("log: Debug: Shortcut 'y' for Action '1-a' removed."),
                          s("unassigned 1-a y"), s("collapsed"), s("added Remove 'y' from A.")}));
    QCOMPARE(m_store->getShortcutsFromActionId(a), s("Y"));

    m_store->unassignShortcut(a, s("Y"), s("A"));
    QVERIFY(m_store->getShortcuts().empty());
    QVERIFY(m_store->getActionIdFromShortcut(s("Y"), 5).isEmpty());
}

void TestShortcutStore::survivesArgumentsFromItsOwnMap()
{
    m_store->assignShortcut(a, s("X"), s("A"));
    const auto entry = m_store->getShortcuts().begin();
    m_store->unassignShortcut(entry->first, entry->second.first(), s("A"));
    QCOMPARE(m_recorder->takeSignals().last(), s("added Remove 'X' from A."));
    QVERIFY(m_store->getShortcuts().empty());
}

void TestShortcutStore::modifiedFollowsTheSteps()
{
    m_store->assignShortcut(a, s("X"), s("A"));
    m_store->assignShortcut(b, s("X"), s("B"));
    m_store->unassignShortcut(b, s("X"), s("B"));
    m_recorder->take();
    m_store->unassignShortcut(a, s("X"), s("A"));
    QCOMPARE(m_recorder->takeSignals(),
             QStringList({s("collapsed"), s("unmodified"), s("added Remove 'X' from A.")}));
    QVERIFY(!m_store->isUserModified());
    QVERIFY(m_store->currentTransformations().empty());
}

void TestShortcutStore::answersWhatTheUserModified()
{
    m_store->assignShortcut(a, s("X"), s("A"));
    QVERIFY(m_store->isUserModifiedAction(a));
    QVERIFY(!m_store->isUserModifiedAction(b));
    QVERIFY(m_store->isUserModifiedShortcut(a, s("X")));
    QVERIFY(!m_store->isUserModifiedShortcut(a, s("x")));

    QVERIFY(m_store->saveShortcutTransforms(m_host->path(s("set.hsx"))));
    QVERIFY(!m_store->isUserModifiedAction(a));
    m_store->unassignShortcut(b, s("Y"), s("B"));
    QVERIFY(m_store->isUserModifiedAction(b));
    QVERIFY(!m_store->isUserModifiedAction(a));
    // Cancelling the saved steps as well leaves the boundary beyond the end.
    m_store->unassignShortcut(a, s("X"), s("A"));
    m_store->collapseTransforms(0);
    QCOMPARE(m_store->currentTransformations().size(), std::size_t(1));
    QVERIFY(!m_store->isUserModifiedAction(b));
    QVERIFY(!m_store->isUserModifiedShortcut(b, s("Y")));
}

void TestShortcutStore::clearsTransforms()
{
    m_store->clearTransforms();
    QCOMPARE(m_recorder->take(), QStringList());

    m_store->assignShortcut(a, s("X"), s("A"));
    m_store->applyTransforms();
    m_store->assignShortcut(b, s("X"), s("B"));
    m_recorder->take();
    m_store->clearTransforms();
    QCOMPARE(m_recorder->take(), QStringList({s("unmodified"), s("transformsCleared")}));
    QCOMPARE(m_store->getActionIdFromShortcut(s("X"), 5), a);
    QVERIFY(m_store->currentTransformations().empty());
}

void TestShortcutStore::appliesTransforms()
{
    m_store->applyTransforms();
    QCOMPARE(m_recorder->take(), QStringList());

    m_store->assignShortcut(a, s("X"), s("A"));
    m_recorder->take();
    m_store->applyTransforms();
    QCOMPARE(m_recorder->take(), QStringList({s("unmodified"), s("transformsCleared")}));
    QCOMPARE(m_store->getBaseShortcutsFromActionId(a), s("X"));
    QCOMPARE(m_store->getShortcutsFromActionId(a), s("X"));
}

void TestShortcutStore::collapsesTransforms()
{
    m_store->collapseTransforms(0);
    QCOMPARE(m_recorder->take(), QStringList({s("collapsed")}));

    m_store->assignShortcut(a, s("X"), s("A"));
    QVERIFY(m_store->saveShortcutTransforms(m_host->path(s("set.hsx"))));
    m_store->unassignShortcut(a, s("X"), s("A"));
    QCOMPARE(m_store->currentTransformations().size(), std::size_t(2));
    m_store->collapseTransforms(1);
    QCOMPARE(m_store->currentTransformations().size(), std::size_t(2));
    m_recorder->take();
    m_store->collapseTransforms(0);
    QCOMPARE(m_recorder->take(), QStringList({s("collapsed")}));
    QVERIFY(m_store->currentTransformations().empty());
    QVERIFY(m_store->isUserModified()); // the flag is only recomputed by an edit
}

void TestShortcutStore::clearsShortcuts()
{
    m_store->unassignShortcut(a, s("X"), s("A"));
    m_recorder->take();
    m_store->clearShortcuts(); // both maps are empty: even the step stays
    QCOMPARE(m_recorder->take(), QStringList());
    QCOMPARE(m_store->currentTransformations().size(), std::size_t(1));

    m_store->assignShortcut(a, s("Y"), s("A"));
    m_recorder->take();
    m_store->clearShortcuts();
    QCOMPARE(m_recorder->take(), QStringList({s("unmodified"), s("cleared")}));
    QVERIFY(m_store->getShortcuts().empty());
    QVERIFY(m_store->getActionIdFromShortcut(s("Y"), 5).isEmpty());
    m_store->clearShortcuts();
    QCOMPARE(m_recorder->take(), QStringList());
}

void TestShortcutStore::ownerFollowsTheRegistry()
{
    m_store->assignShortcut(a, s("X"), s("A"));
    m_host->registry()->addAction(a, s("A"), 6, s("Edit"), false); // moved to another context
    QVERIFY(m_store->getActionIdFromShortcut(s("X"), 5).isEmpty());
    QCOMPARE(m_store->getActionIdFromShortcut(s("X"), 6), a);
    m_host->registry()->removeAction(a);
    QVERIFY(m_store->getActionIdFromShortcut(s("X"), 6).isEmpty());
    QCOMPARE(m_store->getShortcutsFromActionId(a), s("X"));
}

void TestShortcutStore::stepsInWords()
{
    using CUI::ShortcutTransformation;
    QCOMPARE(ShortcutTransformation(ShortcutTransformation::Assign, a, s("Ctrl+E"), s("Export"))
                     .toString(),
             s("Add 'Ctrl+E' to Export."));
    QCOMPARE(ShortcutTransformation(ShortcutTransformation::Unassign, a, s("%4"), s("%1 Render"))
                     .toString(),
             s("Remove '%4' from %1 Render."));
}

QTEST_GUILESS_MAIN(TestShortcutStore)
#include "tst_ShortcutStore.moc"
