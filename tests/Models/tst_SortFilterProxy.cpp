#include "OneTextTranslator.h"
#include "TestHost.h"
#include "Text.h"

#include <UiCustomizations/QvelActionItem.h>
#include <UiCustomizations/QvelActionItemModel.h>
#include <UiCustomizations/QvelMessageLog.h>
#include <UiCustomizations/QvelShortcutManager.h>
#include <UiCustomizations/QvelSortFilterProxyModel.h>

#include <QtTest>

#include <functional>

using CUI::QvelActionItem;
using CUI::QvelShortcutManager;
using CUI::QvelSortFilterProxyModel;
using Model = CUI::QvelActionItemModel;

namespace {

/// Makes the protected operations public.
class Proxy : public QvelSortFilterProxyModel
{
public:
    using QvelSortFilterProxyModel::evaluateStringSearch;
    using QvelSortFilterProxyModel::getModifierAndKey;
    using QvelSortFilterProxyModel::getRegularExpressionResult;
    using QvelSortFilterProxyModel::getSearchedHotkey;
    using QvelSortFilterProxyModel::lessThan;
    using QvelSortFilterProxyModel::QvelSortFilterProxyModel;
    using QvelSortFilterProxyModel::switchIndexOnEqualString;
};

/// What an action of the test is made of.
struct Action {
    const char *name;
    const char *hotkeys = "";
    unsigned long context = 5;
    const char *category = "Tools";
};

CUI::ActionIdentifier idOf(const char *name)
{
    return {1, s(name)};
}

} // namespace

/// What the proxy does besides listing the right rows in the right order, which the random test
/// looks after; of these only what shows the rules.
class TestSortFilterProxy : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void searches_data();
    void searches();
    void filtersByHotkeyState();
    void answersItsSubclasses();
    void announcesEachChange();
    void followsTheLanguage();

private:
    void show(const std::vector<Action> &actions);
    /// The names of the listed rows in their order.
    QStringList names() const;
    QModelIndex cell(const char *name, int column) const
    {
        return m_model->itemFromVelAction(column, idOf(name))->index();
    }

    std::unique_ptr<TestHost> m_host;
    std::unique_ptr<QvelShortcutManager> m_store;
    std::unique_ptr<Model> m_model;
    std::unique_ptr<Proxy> m_proxy;
};

void TestSortFilterProxy::init()
{
    CUI::QvelMessageLog::getInstance().setMessageLogLevel(CUI::QvelMessageLog::MessageType(0));
    m_host = std::make_unique<TestHost>();
    m_host->registry()->addActionContext(5, s("Edit"));
    m_host->registry()->addActionContext(6, s("View"));
    m_store = std::make_unique<QvelShortcutManager>();
    m_model = std::make_unique<Model>(m_store.get());
    m_proxy = std::make_unique<Proxy>(m_store.get());
    m_proxy->setSourceModel(m_model.get());
    m_proxy->setSortCaseSensitivity(Qt::CaseInsensitive);
}

void TestSortFilterProxy::cleanup()
{
    m_proxy.reset();
    m_model.reset();
    m_store.reset();
    m_host.reset();
}

void TestSortFilterProxy::show(const std::vector<Action> &actions)
{
    for (const Action &action : actions) {
        m_host->registry()->addAction(idOf(action.name), s(action.name), action.context,
                                      s(action.category), false);
        for (const QString &hotkey : list(action.hotkeys))
            m_store->assignShortcut(idOf(action.name), hotkey, QString());
    }
    m_model->loadActionsToModel();
}

QStringList TestSortFilterProxy::names() const
{
    QStringList result;
    for (int row = 0; row < m_proxy->rowCount(); ++row)
        result << m_proxy->index(row, 0).data().toString();
    return result;
}

void TestSortFilterProxy::searches_data()
{
    QTest::addColumn<int>("column");
    QTest::addColumn<QString>("search");
    QTest::addColumn<QStringList>("found");

    const auto row = [](int column, const char *search, const char *found) {
        QTest::newRow(search) << column << s(search) << list(found);
    };
    row(Model::ActionColumn, "box  move\t", "Move Box");
    row(Model::ActionColumn, "(s", "Box (solid)");
    row(Model::ActionColumn, "\\ 1", "A.B\\C 100%");
    row(Model::ActionColumn, "strasse", "");
    row(Model::ActionColumn, "kelvin", "Kelvin"); // the Kelvin sign is a k
    row(Model::HotkeyColumn, "A", "A.B\\C 100%|Box (solid)|Move Box|Straße");
    row(Model::HotkeyColumn, "Ctrl+Shift+A", "Box (solid)");
    row(Model::HotkeyColumn, "F", "");
    row(Model::HotkeyColumn, "5", "Kelvin");
    row(Model::HotkeyColumn, "Ctrl++", "Remove");
    // A modifier behind the key counts too, and so does one of a later hotkey.
    row(Model::HotkeyColumn, "Ctrl+Meta+A", "Straße");
    // No key combination: everything that has a hotkey.
    row(Model::HotkeyColumn, "nonsense", "A.B\\C 100%|Box (solid)|Kelvin|Move Box|Remove|Straße");
    row(Model::HotkeyColumn, " ", "A.B\\C 100%|Box (solid)|Kelvin|Move Box|Remove|Straße|移動");
}

void TestSortFilterProxy::searches()
{
    QFETCH(int, column);
    QFETCH(QString, search);
    for (unsigned long context = 10; context < 13; ++context)
        m_host->registry()->addActionContext(context, QString::number(context));
    show({{"Move Box", "Ctrl+A", 10},
          {"Box (solid)", "Ctrl+Shift+A|B", 10},
          {"A.B\\C 100%", "B|Ctrl+A", 11},
          {"Straße", "Meta+A|Meta+Ctrl+F9", 12},
          {"Kelvin", "Num+5"},
          {"Remove", "Ctrl++"},
          {"移動"}});
    m_proxy->setFilterKeyColumn(column);
    QCOMPARE(m_proxy->updateFilterString(search), !search.trimmed().isEmpty());
    QStringList found = names();
    found.sort();
    QTEST(found, "found");
}

void TestSortFilterProxy::filtersByHotkeyState()
{
    show({{"bare"}, {"gained", "E"}, {"lost all", "D"}, {"lost one", "B|C"}, {"respelt", "A"}});
    m_store->applyTransforms();
    m_store->unassignShortcut(idOf("lost one"), s("B"), QString());
    m_store->unassignShortcut(idOf("lost all"), s("D"), QString());
    m_store->assignShortcut(idOf("gained"), s("F"), QString());
    m_store->unassignShortcut(idOf("respelt"), s("A"), QString());
    m_store->assignShortcut(idOf("respelt"), s("a"), QString());
    m_proxy->sort(Model::ActionColumn);
    const auto listed = [this](Proxy::HotkeyFilter filter) {
        m_proxy->setSelectedHotkeyFilter(filter);
        return names();
    };
    QCOMPARE(listed(Proxy::AssignedHotkeysOnly), list("gained|lost one|respelt"));
    QCOMPARE(listed(Proxy::CustomizedHotkeysOnly), list("gained|lost all"));
    QCOMPARE(listed(Proxy::UnsavedHotkeysOnly), list("gained|lost all|lost one|respelt"));
}

void TestSortFilterProxy::answersItsSubclasses()
{
    const auto portable = QKeySequence::PortableText;
    QCOMPARE(m_proxy->getModifierAndKey(s("num++"), portable, portable), list("Num++"));
    QCOMPARE(m_proxy->getModifierAndKey(s("shift+ctrl+z"), portable, portable),
             list("Ctrl|Shift|Z"));

    m_proxy->updateFilterString(s("add box"));
    QCOMPARE(m_proxy->evaluateStringSearch(s("Add boxes")), Proxy::StartsWithSearch);
    QCOMPARE(m_proxy->evaluateStringSearch(s("Box to add")), Proxy::ContainsWordAsWord);
    // A word that is the whole name has no blank on either side.
    QCOMPARE(m_proxy->evaluateStringSearch(s("Add")), Proxy::ContainsWord);

    const QStringList hotkeys = list("A|Ctrl+B|Alt+B");
    m_proxy->updateFilterString(QString());
    QVERIFY(!m_proxy->getRegularExpressionResult(s("A")));
    m_proxy->setFilterKeyColumn(Model::HotkeyColumn);
    QCOMPARE(m_proxy->getSearchedHotkey(hotkeys), s("A"));
    m_proxy->updateFilterString(s("Alt+B"));
    QVERIFY(m_proxy->getRegularExpressionResult(s("A, Alt+B,  C"))); // separators become blanks
    QVERIFY(!m_proxy->getRegularExpressionResult(QString()));
    QCOMPARE(m_proxy->getSearchedHotkey(hotkeys), s("Alt+B"));
    QCOMPARE(m_proxy->getSearchedHotkey({}), QString());
    m_proxy->updateFilterString(s("X"));
    QCOMPARE(m_proxy->getSearchedHotkey(hotkeys), s("A"));
}

void TestSortFilterProxy::announcesEachChange()
{
    show({{"a", "A"}, {"b"}});
    QStringList events;
    connect(m_proxy.get(), &Proxy::layoutChanged, this, [&] { events << s("layout"); });
    connect(m_proxy.get(), &Proxy::filterInvalidated, this, [&] { events << s("filter"); });
    const auto eventsOf = [&](const std::function<void()> &change) {
        events.clear();
        change();
        return events;
    };
    const QStringList both = list("layout|filter");
    const auto search = [&](const char *text) {
        return eventsOf([&] { m_proxy->updateFilterString(s(text)); });
    };
    const auto filter = [&](unsigned value) {
        return eventsOf([&] { m_proxy->setSelectedHotkeyFilter(Proxy::HotkeyFilter(value)); });
    };
    QCOMPARE(search("a"), both);
    for (int repetition = 0; repetition < 2; ++repetition)
        QCOMPARE(eventsOf([this] { m_proxy->setFilterSelectedContext(5); }), both);
    QCOMPARE(eventsOf([this] { m_proxy->setActionSearchSorting(true); }), QStringList());
    QCOMPARE(filter(Proxy::AssignedHotkeysOnly), both);
    QCOMPARE(filter(~0U), QStringList());
    m_proxy->setFilterKeyColumn(Model::HotkeyColumn);
    QCOMPARE(search("A"), list("layout")); // a search by hotkey announces the layout only
    QCOMPARE(search(""), both);
}

void TestSortFilterProxy::followsTheLanguage()
{
    show({{"delete", "Del"}, {"home", "Home"}});
    m_proxy->sort(Model::HotkeyColumn);
    OneTextTranslator translator("QShortcut", "Del", "Zap");
    QCoreApplication::installTranslator(&translator);
    QCOMPARE(names(), list("delete|home")); // until it is sorted again
    m_proxy->invalidate();
    QCOMPARE(names(), list("home|delete"));
    QCoreApplication::removeTranslator(&translator);
}

QTEST_MAIN(TestSortFilterProxy)
#include "tst_SortFilterProxy.moc"
