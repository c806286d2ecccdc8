#include "TestHost.h"
#include "Text.h"

#include <UiCustomizations/QvelActionItem.h>
#include <UiCustomizations/QvelActionItemModel.h>
#include <UiCustomizations/QvelMessageLog.h>
#include <UiCustomizations/QvelShortcutManager.h>
#include <UiCustomizations/QvelSortFilterProxyModel.h>

#include <QStringListModel>
#include <QTranslator>
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

/// A language in which one key has another name.
class Translator : public QTranslator
{
public:
    bool isEmpty() const override { return false; }
    QString translate(const char *context, const char *text, const char *, int) const override
    {
        const bool isDelete = qstrcmp(context, "QShortcut") == 0 && qstrcmp(text, "Del") == 0;
        return isDelete ? s("Zap") : QString();
    }
};

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
    void searchesQuietlyForHalfAPair();
    void filtersByHotkeyState();
    void answersItsSubclasses();
    void announcesEachChange();
    void listsOnlyActionItems();
    void worksWithoutStore();
    void sortsAnewWhenAsked();
    void followsSortSettings();
    void followsTheLanguage();
    void comparesCellsOfAnySource();
    void readsChangedRows();

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

void TestSortFilterProxy::searchesQuietlyForHalfAPair()
{
    static int warnings;
    warnings = 0;
    show({{"a", "A"}, {"b", "B"}});
    const auto handler = qInstallMessageHandler(
            [](QtMsgType, const QMessageLogContext &, const QString &) { ++warnings; });
    m_proxy->updateFilterString(QString(QChar(0xd83d)));
    const QStringList listed = names();
    qInstallMessageHandler(handler);
    QCOMPARE(listed, QStringList());
    QCOMPARE(warnings, 0);
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
    QCOMPARE(search(" "), both);
    QCOMPARE(eventsOf([this] { m_proxy->setFilterSelectedCategory(s("Tools")); }), both);
    for (int repetition = 0; repetition < 2; ++repetition)
        QCOMPARE(eventsOf([this] { m_proxy->setFilterSelectedContext(5); }), both);
    QCOMPARE(eventsOf([this] { m_proxy->disableContextFilter(); }), both);
    QCOMPARE(eventsOf([this] { m_proxy->setActionSearchSorting(true); }), QStringList());
    QCOMPARE(filter(Proxy::AssignedHotkeysOnly), both);
    for (const unsigned unknown : {4U, ~0U})
        QCOMPARE(filter(unknown), QStringList());
    m_proxy->invalidate();
    QCOMPARE(names(), list("a"));

    m_proxy->setFilterKeyColumn(Model::GroupColumn);
    QCOMPARE(search("a"), both);
    m_proxy->setFilterKeyColumn(Model::HotkeyColumn);
    QCOMPARE(search("A"), list("layout")); // a search by hotkey announces the layout only
    QCOMPARE(search(""), both);
}

void TestSortFilterProxy::listsOnlyActionItems()
{
    show({{"a"}});
    QStandardItemModel plain;
    CUI::VelAction *action = m_host->registry()->getAction(idOf("a"));
    plain.appendRow({new QStandardItem(s("x")), new QStandardItem(s("F1"))});
    plain.appendRow({new QStandardItem(s("x")), new QvelActionItem(s("F1"), nullptr)});
    plain.appendRow({new QStandardItem(s("x")), new QvelActionItem(s("F1"), action)});
    plain.appendRow(new QStandardItem(s("x")));
    m_proxy->setSourceModel(&plain);
    QCOMPARE(m_proxy->rowCount(), 1);
    plain.setItem(0, 1, new QvelActionItem(s("F1"), action));
    QCOMPARE(m_proxy->rowCount(), 2);

    QStringListModel strings(list("a|b"));
    m_proxy->setSourceModel(&strings);
    QCOMPARE(m_proxy->rowCount(), 0);
    m_proxy->setSourceModel(nullptr);
    QCOMPARE(m_proxy->rowCount(), 0);
}

void TestSortFilterProxy::worksWithoutStore()
{
    show({{"a", "F1"}, {"b"}});
    m_store->applyTransforms();
    Proxy proxy(nullptr);
    proxy.setSourceModel(m_model.get());
    proxy.setSelectedHotkeyFilter(Proxy::CustomizedHotkeysOnly);
    QCOMPARE(proxy.rowCount(), 1); // nothing is a base hotkey
    proxy.setSelectedHotkeyFilter(Proxy::UnsavedHotkeysOnly);
    QCOMPARE(proxy.rowCount(), 0);
    m_store.reset();
    m_proxy->setSelectedHotkeyFilter(Proxy::UnsavedHotkeysOnly);
    QCOMPARE(m_proxy->rowCount(), 0);
}

void TestSortFilterProxy::sortsAnewWhenAsked()
{
    show({{"Add box"}, {"Box"}, {"A boxer"}, {"Unbox box"}, {"boxes"}});
    m_proxy->sort(Model::ActionColumn);
    m_proxy->updateFilterString(s("box"));
    for (const bool isRanking : {false, true}) {
        m_proxy->setActionSearchSorting(isRanking);
        QCOMPARE(names(), list("A boxer|Add box|Box|boxes|Unbox box"));
    }
    m_proxy->invalidate();
    QCOMPARE(names(), list("Box|boxes|Add box|Unbox box|A boxer"));
}

void TestSortFilterProxy::followsSortSettings()
{
    show({{"a"}, {"B"}, {"c"}});
    m_proxy->sort(Model::ActionColumn);
    m_proxy->setSortLocaleAware(true);
    QCOMPARE(m_proxy->lessThan(cell("a", 0), cell("B", 0)), s("a").localeAwareCompare(s("B")) < 0);

    // By another role, and by values that are no texts.
    m_proxy->setSortRole(Qt::UserRole);
    m_model->setData(cell("c", 0), 1, Qt::UserRole);
    m_model->setData(cell("a", 0), 2, Qt::UserRole);
    m_model->setData(cell("B", 0), 10, Qt::UserRole);
    QCOMPARE(names(), list("c|a|B"));
    m_proxy->setSortRole(Qt::DisplayRole);
    m_model->setData(cell("a", 0), 10);
    m_model->setData(cell("B", 0), 9);
    QVERIFY(m_proxy->lessThan(cell("B", 0), cell("a", 0)));
}

void TestSortFilterProxy::followsTheLanguage()
{
    show({{"delete", "Del"}, {"home", "Home"}, {"insert", "Ins"}});
    m_proxy->sort(Model::HotkeyColumn);
    Translator translator;
    QCoreApplication::installTranslator(&translator);
    QCOMPARE(names(), list("delete|home|insert")); // until it is sorted again
    m_proxy->invalidate();
    QCOMPARE(names(), list("home|insert|delete"));
    QCoreApplication::removeTranslator(&translator);
    m_proxy->invalidate();
    QCOMPARE(names(), list("delete|home|insert"));
}

void TestSortFilterProxy::comparesCellsOfAnySource()
{
    show({{"a"}, {"B"}});
    QVERIFY(!m_proxy->lessThan(QModelIndex(), QModelIndex()));
    QStandardItem *parent = m_model->itemFromVelAction(0, idOf("a"));
    for (const char *name : {"y", "X"})
        parent->appendRow(new QStandardItem(s(name)));
    const QModelIndex y = parent->child(0)->index();
    const QModelIndex x = parent->child(1)->index();
    QVERIFY(m_proxy->lessThan(x, y) && !m_proxy->lessThan(y, x));
    QVERIFY(m_proxy->lessThan(cell("a", 0), cell("B", 0)));

    QStringListModel strings(list("b|A|A"));
    m_proxy->setSourceModel(&strings);
    QVERIFY(m_proxy->lessThan(strings.index(1), strings.index(0)));
    QModelIndex left = strings.index(1);
    QModelIndex right = strings.index(2);
    QVERIFY(!m_proxy->lessThan(left, right) && !m_proxy->lessThan(right, left));
    m_proxy->switchIndexOnEqualString(left, right, {Model::GroupColumn}); // there is none
    QVERIFY(left == strings.index(1) && right == strings.index(2));
    strings.setData(strings.index(1), s("c"));
    QVERIFY(!m_proxy->lessThan(strings.index(1), strings.index(0)));
}

void TestSortFilterProxy::readsChangedRows()
{
    show({{"a", "F1"}, {"b"}, {"c", "F3"}});
    m_proxy->sort(Model::HotkeyColumn);
    m_proxy->setSelectedHotkeyFilter(Proxy::AssignedHotkeysOnly);
    m_store->assignShortcut(idOf("b"), s("F2"), QString());
    QCOMPARE(names(), list("a|b|c")); // the proxy follows by itself
    m_store->unassignShortcut(idOf("a"), s("F1"), QString());
    QCOMPARE(names(), list("b|c"));

    m_host->registry()->addAction(idOf("b"), s("b"), 6, s("Other"), false);
    m_model->loadActionsToModel();
    m_proxy->setFilterSelectedContext(6);
    QCOMPARE(names(), list("b"));
    m_model->removeRow(cell("b", 0).row());
    QCOMPARE(names(), QStringList());
    m_model.reset();
    QCOMPARE(m_proxy->rowCount(), 0);
}

QTEST_MAIN(TestSortFilterProxy)
#include "tst_SortFilterProxy.moc"
