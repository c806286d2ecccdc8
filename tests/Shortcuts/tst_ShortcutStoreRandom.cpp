#include "Recorder.h"
#include "TestHost.h"

#include <UiCustomizations/QvelShortcutManager.h>

#include <QtTest>

#include <map>
#include <random>

using CUI::ActionIdentifier;
using CUI::QvelShortcutManager;

namespace {

using PlainMap = std::map<ActionIdentifier, QStringList>;

/// The conflict rule evaluated from scratch: it scans all entries for the holder of a hotkey. Of
/// several holders the store prefers the oldest; the random texts are all of one letter case, so
/// that there is never more than one.
class PlainStore
{
public:
    explicit PlainStore(const TestRegistry &registry) : m_registry(registry) { }

    void assign(const ActionIdentifier &id, const QString &shortcut)
    {
        if (current.count(id) > 0 && current[id].size() >= 6)
            return;
        const CUI::VelAction *action = m_registry.getAction(id);
        if (action == nullptr)
            return;
        const ActionIdentifier holder = owner(shortcut, action->contextId());
        if (!holder.isEmpty() && holder != id)
            unassign(holder, shortcut);
        if (!current[id].contains(shortcut))
            current[id] << shortcut;
    }

    void unassign(const ActionIdentifier &id, const QString &shortcut)
    {
        if (current.count(id) == 0)
            return;
        current[id].removeOne(shortcut);
        if (current[id].isEmpty())
            current.erase(id);
    }

    ActionIdentifier owner(const QString &shortcut, unsigned long context) const
    {
        for (const auto &[id, list] : current) {
            const CUI::VelAction *action = m_registry.getAction(id);
            if (action != nullptr && action->contextId() == context && list.contains(shortcut))
                return id;
        }
        return {};
    }

    PlainMap current;
    PlainMap base;

private:
    const TestRegistry &m_registry;
};

PlainMap plain(const std::unordered_map<ActionIdentifier, CUI::QShortcutsList> &map)
{
    return PlainMap(map.begin(), map.end());
}

} // namespace

class TestShortcutStoreRandom : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void equalsPlainRule();

private:
    const QStringList m_keys =
            QStringLiteral("A B C D E F G H Ctrl+A Ctrl+B Num+1 F5 ß ſ é").split(QLatin1Char(' '));
};

void TestShortcutStoreRandom::equalsPlainRule()
{
    TestHost host;
    std::vector<ActionIdentifier> ids;
    for (unsigned i = 0; i < 24; ++i) {
        ids.push_back({1 + i % 2, QStringLiteral("action%1").arg(i)});
        if (i < 22) // two stay unknown
            host.registry()->addAction(ids.back(), QString::number(i), i % 3, QString(), false);
    }
    CUI::QvelMessageLog::getInstance().setMessageLogLevel(CUI::QvelMessageLog::MessageType(0));
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
        QCOMPARE(store.isUserModified(), !store.currentTransformations().empty());
    }
    CUI::QvelMessageLog::getInstance().setMessageLogLevel(CUI::QvelMessageLog::Warning);
}

QTEST_GUILESS_MAIN(TestShortcutStoreRandom)
#include "tst_ShortcutStoreRandom.moc"
