#include "TestHost.h"
#include "Text.h"

#include <QSignalSpy>
#include <QtTest>

using CUI::ActionIdentifier;
using CUI::ICuiActionManager;

namespace {

const ActionIdentifier undo{1, s("undo")};
const ActionIdentifier redo{1, s("redo")};

} // namespace

class TestActionRegistry : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void parsesTextForm_data();
    void parsesTextForm();
    void replacesDuplicates();
    void renames();

private:
    TestRegistry m_registry;
};

void TestActionRegistry::init()
{
    m_registry.clearActionManager();
    m_registry.addActionContext(3, s("Viewport"));
    m_registry.addAction(undo, s("Undo"), 3, s("Edit"), true);
}

void TestActionRegistry::parsesTextForm_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<quint64>("tableId");
    QTest::addColumn<QString>("actionId");

    QTest::newRow("plain") << "1-undo" << quint64(1) << "undo";
    QTest::newRow("hyphens stay in the action") << "12-my-action-" << quint64(12) << "my-action-";
    QTest::newRow("not a number") << "abc-x" << quint64(0) << "x";
    QTest::newRow("negative") << "--5" << quint64(0) << "-5";
    QTest::newRow("largest") << "4294967295-x" << quint64(4294967295U) << "x";
    QTest::newRow("33 bits") << "4294967296-x" << quint64(0) << "x";
    QTest::newRow("hexadecimal") << "0x10-x" << quint64(0) << "x";
    QTest::newRow("fraction") << "1.5-x" << quint64(0) << "x";
    QTest::newRow("no action") << "7-" << quint64(7) << "";
    QTest::newRow("no hyphen") << "7undo" << quint64(0) << "";
    QTest::newRow("empty") << "" << quint64(0) << "";
}

void TestActionRegistry::parsesTextForm()
{
    QFETCH(QString, text);
    const auto identifier = ActionIdentifier::fromString(text);
    QTEST(quint64(identifier.tableId), "tableId");
    QTEST(identifier.actionId, "actionId");
    QCOMPARE(ActionIdentifier::fromString(identifier.toString()), identifier);
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
    QVERIFY(m_registry.removeAction(undo));
    QVERIFY(!m_registry.removeAction(undo));
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

QTEST_GUILESS_MAIN(TestActionRegistry)
#include "tst_ActionRegistry.moc"
