#include "PlainStore.h"
#include "TestHost.h"
#include "Text.h"

#include <UiCustomizations/QvelMessageLog.h>
#include <UiCustomizations/QvelShortcutManager.h>

#include <QtTest>

#include <random>

using CUI::ActionIdentifier;
using CUI::QvelShortcutManager;

class TestShortcutStoreRandom : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { CUI::QvelMessageLog::getInstance().setMessageLogLevel({}); }
    void equalsPlainRule();
    void standsSlotsThatEdit();

private:
    const QStringList m_keys =
            s("A a B C D E F G H Ctrl+A ctrl+a Num+1 F5 ß ẞ ss ſ s é É").split(QLatin1Char(' '));
};

void TestShortcutStoreRandom::equalsPlainRule()
{
    TestHost host;
    std::vector<ActionIdentifier> ids;
    for (unsigned i = 0; i < 24; ++i) {
        ids.push_back({1 + i % 2, s("action%1").arg(i)});
        if (i < 22) // two stay unknown
            host.registry()->addAction(ids.back(), QString::number(i), i % 3, QString(), false);
    }
    QvelShortcutManager store;
    PlainStore expected(*host.registry());
    std::mt19937 random(7);
    const auto below = [&random](unsigned limit) { return unsigned(random()) % limit; };
    for (int round = 0; round < 20000; ++round) {
        const ActionIdentifier &id = ids[below(unsigned(ids.size()))];
        const QString &key = m_keys.at(int(below(unsigned(m_keys.size()))));
        const unsigned operation = below(200);
        if (operation == 0) {
            store.applyTransforms();
            expected.base = expected.current;
        } else if (operation == 1) {
            if (!store.currentTransformations().empty())
                expected.current = expected.base;
            store.clearTransforms();
        } else if (operation == 2) {
            if (!expected.current.empty() || !expected.base.empty())
                expected.current = expected.base = {};
            store.clearShortcuts();
        } else if (operation < 120) {
            store.assignShortcut(id, key, QString());
            expected.assign(id, key);
        } else {
            store.unassignShortcut(id, key, QString());
            expected.unassign(id, key);
        }
        QVERIFY(plain(store.getShortcuts()) == expected.current);
        for (unsigned long context = 0; context < 3; ++context)
            QCOMPARE(store.getActionIdFromShortcut(key, context), expected.owner(key, context));
        const auto &steps = store.currentTransformations();
        QCOMPARE(store.isUserModified(), !steps.empty());
        bool isActionModified = false;
        bool isModified = false;
        for (const auto &step : steps) {
            isActionModified = isActionModified || step.actionId() == id;
            isModified = isModified || (step.actionId() == id && step.shortcut() == key);
        }
        QCOMPARE(store.isUserModifiedAction(id), isActionModified);
        QCOMPARE(store.isUserModifiedShortcut(id, key), isModified);
        const auto base = expected.base.find(id);
        QCOMPARE(store.getBaseShortcutsFromActionId(id),
                 base == expected.base.end() ? QString() : base->second.join(s(", ")));
    }
}

// Every signal makes a slot edit the store again, three levels deep.
void TestShortcutStoreRandom::standsSlotsThatEdit()
{
    TestHost host;
    std::vector<ActionIdentifier> ids;
    for (unsigned i = 0; i < 6; ++i) {
        ids.push_back({1, s("action%1").arg(i)});
        host.registry()->addAction(ids.back(), QString::number(i), i % 2, QString(), false);
    }
    QvelShortcutManager store;
    std::mt19937 random(11);
    const auto below = [&random](unsigned limit) { return unsigned(random()) % limit; };
    int depth = 0;
    const auto edit = [&] {
        if (depth == 3)
            return;
        ++depth;
        const ActionIdentifier &id = ids[below(6)];
        const QString &key = m_keys.at(int(below(8)));
        const unsigned operation = below(12);
        if (operation == 0)
            store.clearTransforms();
        else if (operation == 1)
            store.applyTransforms();
        else if (operation == 2)
            store.clearShortcuts();
        else if (operation == 3)
            store.saveShortcutTransforms(host.path(s("a.hsx")));
        else if (operation == 4)
            store.collapseTransforms(0);
        else if (below(2) == 0)
            store.assignShortcut(id, key, QString());
        else
            store.unassignShortcut(id, key, QString());
        --depth;
    };
    using Store = QvelShortcutManager;
    connect(&store, &Store::shortcutAssigned, this, edit);
    connect(&store, &Store::shortcutUnassigned, this, edit);
    connect(&store, &Store::shortcutTransformAdded, this, edit);
    for (const auto signal : {&Store::shortcutTransformsCollapsed, &Store::shortcutsModified,
                              &Store::shortcutsUnModified})
        connect(&store, signal, this, edit);
    for (int round = 0; round < 300; ++round) {
        edit();
        PlainStore plainStore(*host.registry());
        plainStore.current = plain(store.getShortcuts());
        for (const QString &key : m_keys)
            QCOMPARE(store.getActionIdFromShortcut(key, 1), plainStore.owner(key, 1));
        for (const auto &[id, list] : store.getShortcuts())
            QVERIFY(!list.isEmpty() && list.size() <= 6);
    }
}

QTEST_GUILESS_MAIN(TestShortcutStoreRandom)
#include "tst_ShortcutStoreRandom.moc"
