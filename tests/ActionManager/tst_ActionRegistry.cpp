#include "TestHost.h"
#include "Text.h"

#include <QSignalSpy>
#include <QtTest>

using CUI::ActionIdentifier;
using CUI::ICuiActionManager;

namespace {

const ActionIdentifier undo{1, s("undo")};
const ActionIdentifier redo{1, s("redo")};

/// Tells when it is destroyed.
class MortalRegistry : public TestRegistry
{
public:
    explicit MortalRegistry(bool *alive) : m_alive(alive) { *m_alive = true; }
    ~MortalRegistry() override
    {
        *m_alive = false;
        foundAtDeath = ICuiActionManager::get();
    }
    static inline ICuiActionManager *foundAtDeath = nullptr;

private:
    bool *m_alive;
};

} // namespace

class TestActionRegistry : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void installs();
    void replacesDuplicates();
    void renames();
    void removes();

private:
    TestRegistry m_registry;
};

void TestActionRegistry::init()
{
    m_registry.clearActionManager();
    m_registry.addActionContext(3, s("Viewport"));
    m_registry.addAction(undo, s("Undo"), 3, s("Edit"), true);
}

void TestActionRegistry::installs()
{
    bool firstAlive = false;
    bool secondAlive = false;
    std::unique_ptr<ICuiActionManager> first = std::make_unique<MortalRegistry>(&firstAlive);
    std::unique_ptr<ICuiActionManager> second = std::make_unique<MortalRegistry>(&secondAlive);
    ICuiActionManager *secondPointer = second.get();

    ICuiActionManager::set(first);
    QVERIFY(first == nullptr && firstAlive);
    ICuiActionManager::set(second);
    QVERIFY(!firstAlive);
    QVERIFY(MortalRegistry::foundAtDeath != secondPointer); // the old one dies first
    QCOMPARE(ICuiActionManager::get(), secondPointer);
    ICuiActionManager::set(second); // empty by now
    QVERIFY(!secondAlive);
    QVERIFY(ICuiActionManager::get() == nullptr);
}

void TestActionRegistry::replacesDuplicates()
{
    m_registry.addAction(1, s("undo"), s("Take Back"), 99, s("Other"), false);
    m_registry.addActionContext(3, s("View"));
    QCOMPARE(m_registry.actions().size(), std::size_t(1));
    QCOMPARE(m_registry.actionContexts().size(), std::size_t(1));
    const CUI::VelAction *action = m_registry.getAction(undo);
    QVERIFY(action != nullptr); // although nobody registered context 99
    QCOMPARE(action->name(), s("Take Back"));
    QVERIFY(!action->momentary());
    QCOMPARE(m_registry.getActionContext(3)->name(), s("View"));

    QVERIFY(m_registry.getAction({1, s("Undo")}) == nullptr);
    QVERIFY(m_registry.getActionContext(4) == nullptr);
    QCOMPARE(m_registry.actions().size(), std::size_t(1)); // looking up creates nothing
    QCOMPARE(m_registry.actionContexts().size(), std::size_t(1));
}

void TestActionRegistry::renames()
{
    QSignalSpy modified(&m_registry, &ICuiActionManager::actionsModified);
    m_registry.renameAction(redo, undo, s("Redo")); // there is none
    QCOMPARE(modified.count(), 0);

    m_registry.renameAction(undo, redo, s("Redo"));
    QCOMPARE(modified.count(), 1);
    QVERIFY(m_registry.getAction(undo) == nullptr);
    const CUI::VelAction *action = m_registry.getAction(redo);
    QCOMPARE(action->identifier(), redo);
    QCOMPARE(action->name(), s("Redo"));
    QCOMPARE(action->contextId(), 3UL);
    QCOMPARE(action->category(), s("Edit"));
    QVERIFY(action->momentary());

    m_registry.renameAction(redo, redo, s("Redo")); // its own identifier
    QCOMPARE(modified.count(), 2);
    QVERIFY(m_registry.getAction(redo) == nullptr);
}

void TestActionRegistry::removes()
{
    QVERIFY(m_registry.removeAction(undo));
    QVERIFY(!m_registry.removeAction(undo));
    m_registry.clearActionManager();
    QVERIFY(m_registry.actionContexts().empty());
}

QTEST_GUILESS_MAIN(TestActionRegistry)
#include "tst_ActionRegistry.moc"
