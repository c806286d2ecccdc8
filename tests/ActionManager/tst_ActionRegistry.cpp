#include "TestHost.h"

#include <QSignalSpy>
#include <QtTest>

using CUI::ActionIdentifier;
using CUI::ICuiActionManager;

namespace {

const ActionIdentifier undo{1, QStringLiteral("undo")};
const ActionIdentifier redo{1, QStringLiteral("redo")};

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
    void tellsLetterCaseApart();
    void renames();
    void renamesByItsOwnIdentifier();
    void removesAndClears();

private:
    TestRegistry m_registry;
};

void TestActionRegistry::init()
{
    m_registry.clearActionManager();
    m_registry.addActionContext(3, QStringLiteral("Viewport"));
    m_registry.addAction(undo, QStringLiteral("Undo"), 3, QStringLiteral("Edit"), true);
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
    m_registry.addAction(1, QStringLiteral("undo"), QStringLiteral("Take Back"), 99,
                         QStringLiteral("Other"), false);
    m_registry.addActionContext(3, QStringLiteral("View"));
    QCOMPARE(m_registry.actions().size(), std::size_t(1));
    QCOMPARE(m_registry.actionContexts().size(), std::size_t(1));
    const CUI::VelAction *action = m_registry.getAction(undo);
    QVERIFY(action != nullptr); // although nobody registered context 99
    QCOMPARE(action->identifier(), undo);
    QCOMPARE(action->name(), QStringLiteral("Take Back"));
    QCOMPARE(action->contextId(), 99UL);
    QCOMPARE(action->category(), QStringLiteral("Other"));
    QVERIFY(!action->momentary());
    QCOMPARE(m_registry.getActionContext(3)->name(), QStringLiteral("View"));
}

void TestActionRegistry::tellsLetterCaseApart()
{
    QVERIFY(m_registry.getAction({1, QStringLiteral("Undo")}) == nullptr);
    QVERIFY(m_registry.getActionContext(4) == nullptr);
    QCOMPARE(m_registry.actions().size(), std::size_t(1)); // looking up creates nothing
    QCOMPARE(m_registry.actionContexts().size(), std::size_t(1));
}

void TestActionRegistry::renames()
{
    QSignalSpy modified(&m_registry, &ICuiActionManager::actionsModified);
    m_registry.renameAction(redo, undo, QStringLiteral("Redo"));
    QCOMPARE(modified.count(), 0);

    m_registry.renameAction(undo, redo, QStringLiteral("Redo"));
    QCOMPARE(modified.count(), 1);
    QVERIFY(m_registry.getAction(undo) == nullptr);
    const CUI::VelAction *action = m_registry.getAction(redo);
    QCOMPARE(action->identifier(), redo);
    QCOMPARE(action->name(), QStringLiteral("Redo"));
    QCOMPARE(action->contextId(), 3UL);
    QCOMPARE(action->category(), QStringLiteral("Edit"));
    QVERIFY(action->momentary());
}

void TestActionRegistry::renamesByItsOwnIdentifier()
{
    QSignalSpy modified(&m_registry, &ICuiActionManager::actionsModified);
    m_registry.renameAction(undo, undo, QStringLiteral("Undo"));
    QVERIFY(m_registry.getAction(undo) == nullptr);
    QCOMPARE(modified.count(), 1);
}

void TestActionRegistry::removesAndClears()
{
    QVERIFY(m_registry.removeAction(undo));
    QVERIFY(!m_registry.removeAction(undo));
    m_registry.clearActionManager();
    QVERIFY(m_registry.actions().empty());
    QVERIFY(m_registry.actionContexts().empty());
}

QTEST_GUILESS_MAIN(TestActionRegistry)
#include "tst_ActionRegistry.moc"
