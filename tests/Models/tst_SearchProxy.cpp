#include "TestHost.h"

#include <UiCustomizations/QvelActionItem.h>
#include <UiCustomizations/QvelActionItemModel.h>
#include <UiCustomizations/QvelMessageLog.h>
#include <UiCustomizations/QvelShortcutManager.h>
#include <UiCustomizations/QvelSortFilterProxyModel.h>

#include <QStringListModel>
#include <QtTest>

using CUI::ActionIdentifier;
using CUI::QvelActionItemModel;
using CUI::QvelShortcutManager;
using CUI::QvelSortFilterProxyModel;
using Model = CUI::QvelActionItemModel;

namespace {

QString s(const char *text)
{
    return QString::fromUtf8(text);
}

QStringList list(const char *text)
{
    return s(text).isEmpty() ? QStringList() : s(text).split(QLatin1Char('|'));
}

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

/// Counts layoutChanged() and filterInvalidated().
class SignalCounts
{
public:
    explicit SignalCounts(const Proxy &proxy)
    {
        QObject::connect(&proxy, &Proxy::layoutChanged, &m_receiver, [this] { ++m_counts.first; });
        QObject::connect(&proxy, &Proxy::filterInvalidated, &m_receiver, [this] {
            ++m_counts.second;
            m_isInOrder = m_isInOrder && m_counts.first == m_counts.second;
        });
    }

    QPair<int, int> take()
    {
        if (!m_isInOrder)
            return {-1, -1};
        return std::exchange(m_counts, {});
    }

private:
    QObject m_receiver;
    QPair<int, int> m_counts;
    bool m_isInOrder = true;
};

/// What an action of the test is made of.
struct Action {
    const char *name;
    unsigned long context = 5;
    const char *category = "Tools";
    const char *hotkeys = "";
};

} // namespace

class TestSearchProxy : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void ranksNames_data();
    void ranksNames();
    void splitsHotkeys_data();
    void splitsHotkeys();
    void searchesNames_data();
    void searchesNames();
    void searchesHotkeys_data();
    void searchesHotkeys();
    void otherColumnsAreNotSearched();
    void matchesTexts();
    void choosesTheSearchedHotkey();
    void filters();
    void filtersByHotkeyState();
    void announcesEachChange();
    void ignoresUnknownHotkeyFilters();
    void listsOnlyActionItems();
    void sorts_data();
    void sorts();
    void ranksOnlyWhenAsked();
    void sortsBySearchedHotkey();
    void breaksTies();
    void followsSortSettings();
    void comparesCellsOfAnySource();
    void readsChangedRows();
    void worksWithoutStore();

private:
    void show(const std::vector<Action> &actions);
    /// The names of the listed rows in their order.
    QStringList names() const;
    QStringList sortedNames() const
    {
        QStringList result = names();
        result.sort();
        return result;
    }
    QModelIndex cell(const char *name, int column) const;
    ActionIdentifier idOf(const char *name) const { return {1, s(name)}; }

    std::unique_ptr<TestHost> m_host;
    std::unique_ptr<QvelShortcutManager> m_store;
    std::unique_ptr<QvelActionItemModel> m_model;
    std::unique_ptr<Proxy> m_proxy;
};

void TestSearchProxy::init()
{
    CUI::QvelMessageLog::getInstance().setMessageLogLevel(CUI::QvelMessageLog::MessageType(0));
    m_host = std::make_unique<TestHost>();
    m_host->registry()->addActionContext(5, s("Edit"));
    m_host->registry()->addActionContext(6, s("View"));
    m_store = std::make_unique<QvelShortcutManager>();
    m_model = std::make_unique<QvelActionItemModel>(m_store.get());
    m_proxy = std::make_unique<Proxy>(m_store.get());
    m_proxy->setSourceModel(m_model.get());
    m_proxy->setSortCaseSensitivity(Qt::CaseInsensitive);
}

void TestSearchProxy::cleanup()
{
    m_proxy.reset();
    m_model.reset();
    m_store.reset();
    m_host.reset();
    CUI::QvelMessageLog::getInstance().setMessageLogLevel(CUI::QvelMessageLog::Warning);
}

void TestSearchProxy::show(const std::vector<Action> &actions)
{
    for (const Action &action : actions) {
        m_host->registry()->addAction(idOf(action.name), s(action.name), action.context,
                                      s(action.category), false);
        for (const QString &hotkey : list(action.hotkeys))
            m_store->assignShortcut(idOf(action.name), hotkey, QString());
    }
    m_model->loadActionsToModel();
}

QStringList TestSearchProxy::names() const
{
    QStringList result;
    for (int row = 0; row < m_proxy->rowCount(); ++row)
        result << m_proxy->index(row, 0).data().toString();
    return result;
}

QModelIndex TestSearchProxy::cell(const char *name, int column) const
{
    return m_model->itemFromVelAction(column, idOf(name))->index();
}

void TestSearchProxy::ranksNames_data()
{
    QTest::addColumn<QString>("search");
    QTest::addColumn<QString>("name");
    QTest::addColumn<int>("rank");

    const auto row = [](const char *search, const char *name, int rank) {
        QTest::addRow("%s in %s", search, name) << s(search) << s(name) << rank;
    };
    row("box", "Box", Proxy::StartsWithSearch);
    row("box", "Boxes", Proxy::StartsWithSearch);
    row("box", "Add BOX Here", Proxy::ContainsSearchAsWord);
    row("box", "Add box", Proxy::ContainsSearchAsWord);
    row("box", "Add boxes", Proxy::ContainsSearch);
    row("box", "Unbox", Proxy::ContainsSearch);
    row("add box", "Add Box Here", Proxy::StartsWithSearch);
    row("add box", "Readd box", Proxy::ContainsSearch);
    row("add box", "Box to add", Proxy::ContainsWordAsWord);
    row("add box", "Please add it", Proxy::ContainsWordAsWord);
    row("add box", "Add", Proxy::ContainsWord); // neither blank before nor behind it
    row("add  box", "Boxes", Proxy::ContainsWord);
    row("add box", "Move", Proxy::NoMatch);
    row("", "Anything", Proxy::StartsWithSearch);
    row("über", "ÜBER", Proxy::StartsWithSearch);
    row("σ", "Άλφα Σ", Proxy::ContainsSearchAsWord);
}

void TestSearchProxy::ranksNames()
{
    QFETCH(QString, search);
    QFETCH(QString, name);
    m_proxy->updateFilterString(search);
    QTEST(int(m_proxy->evaluateStringSearch(name)), "rank");
}

void TestSearchProxy::splitsHotkeys_data()
{
    QTest::addColumn<QString>("hotkey");
    QTest::addColumn<QStringList>("parts");

    const auto row = [](const char *hotkey, const QStringList &parts) {
        QTest::newRow(hotkey) << s(hotkey) << parts;
    };
    row("Ctrl+Shift+Z", list("Ctrl|Shift|Z"));
    row("shift+ctrl+z", list("Ctrl|Shift|Z"));
    row("F2", list("F2"));
    row("+", {QString(), s("+")});
    row("Ctrl++", list("Ctrl|+"));
    row("Num+5", list("Num+5"));
    row("Ctrl+Num+5", list("Ctrl|Num+5"));
    row("Num++", list("Num++"));
    row("Ctrl+,", list("Ctrl|,"));
    row("Ctrl+A, Ctrl+B", list("Ctrl|A, Ctrl|B"));
    row("", QStringList());
    row("no hotkey at all", QStringList());
}

void TestSearchProxy::splitsHotkeys()
{
    QFETCH(QString, hotkey);
    const auto portable = QKeySequence::PortableText;
    QTEST(m_proxy->getModifierAndKey(hotkey, portable, portable), "parts");
}

void TestSearchProxy::searchesNames_data()
{
    QTest::addColumn<QString>("search");
    QTest::addColumn<QStringList>("found");

    const auto row = [](const char *search, const char *found) {
        QTest::newRow(search) << s(search) << list(found);
    };
    row("move", "Move Box|Remove");
    row("  box \t", "Box (solid)|Move Box");
    row("box move", "Move Box");
    row("move box", "Move Box");
    row("move  b", "Move Box");
    row("(s", "Box (solid)");
    row("a.b", "A.B\\C 100%");
    row("\\ 1", "A.B\\C 100%");
    row("%1", "");
    row("strasse", "");
    row("STRAßE", "Straße");
    row("kelvin", "Kelvin"); // the Kelvin sign is a k
    row("移", "移動");
    row("", "A.B\\C 100%|Box (solid)|Kelvin|Move Box|Remove|Straße|移動");
    row("   ", "A.B\\C 100%|Box (solid)|Kelvin|Move Box|Remove|Straße|移動");
}

void TestSearchProxy::searchesNames()
{
    QFETCH(QString, search);
    show({{"Move Box"},
          {"Remove"},
          {"Box (solid)"},
          {"A.B\\C 100%"},
          {"Straße"},
          {"移動"},
          {"Kelvin"}});
    QCOMPARE(m_proxy->updateFilterString(search), !search.trimmed().isEmpty());
    QTEST(sortedNames(), "found");
}

void TestSearchProxy::searchesHotkeys_data()
{
    QTest::addColumn<QString>("search");
    QTest::addColumn<QStringList>("found");

    const auto row = [](const char *search, const char *found) {
        QTest::newRow(search) << s(search) << list(found);
    };
    row("A", "other|plain|shifted|two");
    row("Ctrl+A", "other|plain|shifted|two");
    row("Ctrl+Shift+A", "shifted");
    row("Alt+Ctrl+A", "");
    row("B", "shifted|two");
    row("Ctrl+F1", "far");
    row("F1", "far");
    row("F", "");
    row("5", "keypad");
    row("Num+5", "keypad");
    row("Ctrl++", "plus");
    row("+", "plus");
    row("Ctrl+,", "comma");
    // A modifier behind the key counts too, and so does one of a later hotkey.
    row("Ctrl+Alt+A", "");
    row("Ctrl+Meta+A", "other");
    // No key combination: everything that has a hotkey.
    row("nonsense", "comma|far|keypad|other|plain|plus|shifted|two");
    row(" ", "bare|comma|far|keypad|other|plain|plus|shifted|two");
}

void TestSearchProxy::searchesHotkeys()
{
    QFETCH(QString, search);
    show({{"plain", 10, "", "Ctrl+A"},
          {"shifted", 11, "", "Ctrl+Shift+A|B"},
          {"far", 12, "", "Ctrl+Alt+F1"},
          {"two", 13, "", "B|Ctrl+A"},
          {"other", 14, "", "Meta+A|Meta+Ctrl+F9"},
          {"keypad", 15, "", "Num+5"},
          {"plus", 16, "", "Ctrl++"},
          {"comma", 17, "", "Ctrl+,"},
          {"bare", 18}});
    for (unsigned long context = 10; context < 19; ++context)
        m_host->registry()->addActionContext(context, QString::number(context));
    m_model->loadActionsToModel();
    m_proxy->setFilterKeyColumn(Model::HotkeyColumn);
    QCOMPARE(m_proxy->updateFilterString(search), !search.trimmed().isEmpty());
    QTEST(sortedNames(), "found");
}

void TestSearchProxy::otherColumnsAreNotSearched()
{
    show({{"Move"}, {"Turn"}});
    for (const int column : {-1, 2, 3, 4}) {
        m_proxy->setFilterKeyColumn(column);
        QVERIFY(!m_proxy->updateFilterString(s("move")));
        QCOMPARE(m_proxy->rowCount(), 2);
        QCOMPARE(m_proxy->evaluateStringSearch(s("Turn")), Proxy::NoMatch); // it is stored
    }
    // A search by name that is then read as one of hotkeys matches the hotkey cells.
    m_proxy->setFilterKeyColumn(Model::ActionColumn);
    m_proxy->updateFilterString(s("f2"));
    m_store->assignShortcut(idOf("Turn"), s("F2"), QString());
    for (const int column : {1, 2}) {
        m_proxy->setFilterKeyColumn(column);
        m_proxy->invalidate();
        QCOMPARE(names(), list("Turn"));
    }
    m_proxy->setFilterKeyColumn(Model::HotkeyColumn);
    m_proxy->updateFilterString(s("T"));
    m_proxy->setFilterKeyColumn(Model::ActionColumn);
    m_proxy->invalidate();
    QCOMPARE(names(), QStringList()); // no name has T as a whole key
}

void TestSearchProxy::matchesTexts()
{
    QVERIFY(!m_proxy->getRegularExpressionResult(s("Box")));
    m_proxy->updateFilterString(s("box"));
    QVERIFY(m_proxy->getRegularExpressionResult(s("A Box")));
    QVERIFY(!m_proxy->getRegularExpressionResult(QString()));
    m_proxy->setFilterKeyColumn(Model::HotkeyColumn);
    m_proxy->updateFilterString(s("F2"));
    QVERIFY(m_proxy->getRegularExpressionResult(s("A, F2,  B"))); // the separators become blanks
    m_proxy->setFilterKeyColumn(Model::GroupColumn);
    QVERIFY(!m_proxy->getRegularExpressionResult(s("A, F2, B")));
}

void TestSearchProxy::choosesTheSearchedHotkey()
{
    const QStringList hotkeys = list("A|Ctrl+B|Alt+B");
    QCOMPARE(m_proxy->getSearchedHotkey(hotkeys), s("A"));
    m_proxy->setFilterKeyColumn(Model::HotkeyColumn);
    QCOMPARE(m_proxy->getSearchedHotkey(hotkeys), s("A"));
    m_proxy->updateFilterString(s("B"));
    QCOMPARE(m_proxy->getSearchedHotkey(hotkeys), s("Ctrl+B"));
    m_proxy->updateFilterString(s("Alt+B"));
    QCOMPARE(m_proxy->getSearchedHotkey(hotkeys), s("Alt+B"));
    m_proxy->updateFilterString(s("X"));
    QCOMPARE(m_proxy->getSearchedHotkey(hotkeys), s("A"));
    QCOMPARE(m_proxy->getSearchedHotkey({}), QString());
}

void TestSearchProxy::filters()
{
    show({{"a", 5, "Tools"}, {"b", 6, "Tools"}, {"c", 5, "tools"}, {"d", 6, "Edit"}});
    m_proxy->setFilterSelectedContext(5);
    QCOMPARE(sortedNames(), list("a|c"));
    m_proxy->setFilterSelectedCategory(s("Tools"));
    QCOMPARE(sortedNames(), list("a"));
    m_proxy->disableContextFilter();
    QCOMPARE(sortedNames(), list("a|b"));
    m_proxy->setFilterSelectedCategory(QString());
    QCOMPARE(sortedNames(), QStringList());
    m_proxy->setFilterSelectedCategory(s("All Subgroups/Categories"));
    m_proxy->setFilterSelectedContext(9);
    QCOMPARE(sortedNames(), QStringList());
    m_proxy->setFilterSelectedContext(6);
    m_proxy->updateFilterString(s("d"));
    QCOMPARE(sortedNames(), list("d"));
}

void TestSearchProxy::filtersByHotkeyState()
{
    show({{"kept", 5, "", "A"},
          {"lost one", 5, "", "B|C"},
          {"lost all", 5, "", "D"},
          {"gained", 5, "", "E"},
          {"bare", 5}});
    m_store->applyTransforms();
    m_store->unassignShortcut(idOf("lost one"), s("B"), QString());
    m_store->unassignShortcut(idOf("lost all"), s("D"), QString());
    m_store->assignShortcut(idOf("gained"), s("F"), QString());
    m_store->assignShortcut(idOf("kept"), s("a"), QString()); // it is held already

    const auto listed = [this](Proxy::HotkeyFilter filter) {
        m_proxy->setSelectedHotkeyFilter(filter);
        return sortedNames();
    };
    QCOMPARE(listed(Proxy::AssignedHotkeysOnly), list("gained|kept|lost one"));
    QCOMPARE(listed(Proxy::CustomizedHotkeysOnly), list("gained|lost all"));
    QCOMPARE(listed(Proxy::UnsavedHotkeysOnly), list("gained|kept|lost all|lost one"));
    QCOMPARE(listed(Proxy::AllActions).size(), 5);
}

void TestSearchProxy::announcesEachChange()
{
    show({{"a"}});
    SignalCounts counts(*m_proxy);
    const auto both = qMakePair(1, 1);

    m_proxy->updateFilterString(s("a"));
    QCOMPARE(counts.take(), both);
    m_proxy->updateFilterString(s(" "));
    QCOMPARE(counts.take(), both);
    m_proxy->setFilterSelectedCategory(s("Tools"));
    QCOMPARE(counts.take(), both);
    m_proxy->setFilterSelectedContext(5);
    QCOMPARE(counts.take(), both);
    m_proxy->setFilterSelectedContext(5);
    QCOMPARE(counts.take(), both);
    m_proxy->disableContextFilter();
    QCOMPARE(counts.take(), both);
    m_proxy->setSelectedHotkeyFilter(Proxy::AllActions);
    QCOMPARE(counts.take(), both);
    m_proxy->setActionSearchSorting(true);
    QCOMPARE(counts.take(), qMakePair(0, 0));

    m_proxy->setFilterKeyColumn(Model::GroupColumn);
    counts.take();
    m_proxy->updateFilterString(s("a"));
    QCOMPARE(counts.take(), both);
    m_proxy->setFilterKeyColumn(Model::HotkeyColumn);
    counts.take();
    m_proxy->updateFilterString(s("A"));
    QCOMPARE(counts.take(), qMakePair(1, 0)); // a search by hotkey announces the layout only
    m_proxy->updateFilterString(QString());
    QCOMPARE(counts.take(), both);
}

void TestSearchProxy::ignoresUnknownHotkeyFilters()
{
    show({{"a", 5, "", "A"}, {"b"}});
    m_proxy->setSelectedHotkeyFilter(Proxy::AssignedHotkeysOnly);
    SignalCounts counts(*m_proxy);
    for (const unsigned value : {4U, 5U, ~0U})
        m_proxy->setSelectedHotkeyFilter(Proxy::HotkeyFilter(value));
    QCOMPARE(counts.take(), qMakePair(0, 0));
    m_proxy->invalidate();
    QCOMPARE(names(), list("a"));
}

void TestSearchProxy::listsOnlyActionItems()
{
    show({{"a"}});
    QStandardItemModel plain;
    CUI::VelAction *action = m_host->registry()->getAction(idOf("a"));
    plain.appendRow({new QStandardItem(s("x")), new QStandardItem(s("F1"))});
    plain.appendRow({new QStandardItem(s("x")), new CUI::QvelActionItem(s("F1"), nullptr)});
    plain.appendRow({new QStandardItem(s("x")), new CUI::QvelActionItem(s("F1"), action)});
    plain.appendRow(new QStandardItem(s("x")));
    m_proxy->setSourceModel(&plain);
    QCOMPARE(m_proxy->rowCount(), 1);
    plain.setItem(0, 1, new CUI::QvelActionItem(s("F1"), action));
    QCOMPARE(m_proxy->rowCount(), 2);

    QStringListModel strings(list("a|b"));
    m_proxy->setSourceModel(&strings);
    QCOMPARE(m_proxy->rowCount(), 0);
    m_proxy->setSourceModel(nullptr);
    QCOMPARE(m_proxy->rowCount(), 0);
}

void TestSearchProxy::sorts_data()
{
    QTest::addColumn<int>("column");
    QTest::addColumn<QStringList>("ascending");
    QTest::addColumn<QStringList>("descending");

    QTest::newRow("by name") << int(Model::ActionColumn) << list("a|B|c|d|e") << list("e|d|c|B|a");
    QTest::newRow("by hotkey, rows without one last")
            << int(Model::HotkeyColumn) << list("d|c|B|a|e") << list("B|c|d|e|a");
    QTest::newRow("by group") << int(Model::GroupColumn) << list("c|a|B|d|e") << list("e|d|B|c|a");
    QTest::newRow("by category, rows without one last")
            << int(Model::CategoryColumn) << list("d|c|B|e|a") << list("e|B|c|d|a");
}

void TestSearchProxy::sorts()
{
    QFETCH(int, column);
    // Rows that are equal in everything that is compared would keep the order of the registry.
    m_host->registry()->addActionContext(7, s("Zoo"));
    show({{"c", 5, "Keys", "Ctrl+A"},
          {"a", 5, "Edit"},
          {"e", 7, "Tools"},
          {"B", 6, "Tools", "Alt+B"},
          {"d", 7, "Groups", "7"}});
    m_proxy->sort(column, Qt::AscendingOrder);
    QTEST(names(), "ascending");
    m_proxy->sort(column, Qt::DescendingOrder);
    QTEST(names(), "descending");
}

void TestSearchProxy::ranksOnlyWhenAsked()
{
    show({{"Add box"}, {"Box"}, {"A boxer"}, {"Unbox box"}, {"boxes"}});
    m_proxy->sort(Model::ActionColumn);
    m_proxy->updateFilterString(s("box"));
    QCOMPARE(names(), list("A boxer|Add box|Box|boxes|Unbox box"));
    m_proxy->setActionSearchSorting(true);
    QCOMPARE(names(), list("A boxer|Add box|Box|boxes|Unbox box"));
    m_proxy->invalidate();
    QCOMPARE(names(), list("Box|boxes|Add box|Unbox box|A boxer"));
    m_proxy->updateFilterString(s("unbox box"));
    QCOMPARE(names(), list("Unbox box"));
    m_proxy->updateFilterString(QString());
    QCOMPARE(names(), list("A boxer|Add box|Box|boxes|Unbox box"));
}

void TestSearchProxy::sortsBySearchedHotkey()
{
    show({{"first", 5, "", "A|Ctrl+Z"},
          {"second", 5, "", "B|Ctrl+Alt+Z"},
          {"third", 5, "", "C|Z"}});
    m_proxy->sort(Model::HotkeyColumn);
    QCOMPARE(names(), list("first|second|third"));
    m_proxy->setFilterKeyColumn(Model::HotkeyColumn);
    m_proxy->updateFilterString(s("Z"));
    QCOMPARE(names(), list("third|first|second")); // by the number of modifiers
    m_proxy->updateFilterString(s("Ctrl+Z"));
    QCOMPARE(names(), list("first|second"));
    m_proxy->setFilterKeyColumn(Model::ActionColumn);
    m_proxy->updateFilterString(QString());
    QCOMPARE(names(), list("first|second|third"));
}

void TestSearchProxy::breaksTies()
{
    show({{"a", 5, "Tools", "F2"}, {"b", 6, "Tools", "F2"}, {"c", 6, "Edit"}, {"d", 6, "Edit"}});
    const auto tie = [this](const char *left, const char *right, int column,
                            const QList<Model::ActionTreeColumns> &columns) {
        QModelIndex l = cell(left, column);
        QModelIndex r = cell(right, column);
        const int leftRow = l.row();
        const int rightRow = r.row();
        m_proxy->switchIndexOnEqualString(l, r, columns);
        const bool isRight = l.row() == leftRow && r.row() == rightRow && l.column() == r.column();
        return isRight ? l.column() : -1;
    };
    const QList<Model::ActionTreeColumns> groupFirst{Model::GroupColumn, Model::CategoryColumn};
    QCOMPARE(tie("a", "b", 1, groupFirst), int(Model::GroupColumn));
    QCOMPARE(tie("b", "c", 1, groupFirst), int(Model::CategoryColumn));
    QCOMPARE(tie("c", "d", 1, groupFirst), int(Model::CategoryColumn)); // the last, though equal
    QCOMPARE(tie("c", "d", 1, {}), int(Model::HotkeyColumn));

    QVERIFY(m_proxy->lessThan(cell("a", 1), cell("b", 1))); // by name
    QVERIFY(m_proxy->lessThan(cell("a", 3), cell("b", 3))); // by group
    QVERIFY(m_proxy->lessThan(cell("c", 2), cell("b", 2))); // by category
    QVERIFY(!m_proxy->lessThan(cell("c", 2), cell("d", 2)));
    QVERIFY(!m_proxy->lessThan(cell("d", 2), cell("c", 2)));
    QVERIFY(!m_proxy->lessThan(QModelIndex(), QModelIndex()));
}

void TestSearchProxy::followsSortSettings()
{
    show({{"a"}, {"B"}, {"c"}});
    m_proxy->sort(Model::ActionColumn);
    QCOMPARE(names(), list("a|B|c"));
    m_proxy->setSortCaseSensitivity(Qt::CaseSensitive);
    QCOMPARE(names(), list("B|a|c"));
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

void TestSearchProxy::comparesCellsOfAnySource()
{
    show({{"a"}, {"B"}});
    QStandardItem *parent = m_model->itemFromVelAction(0, idOf("a"));
    for (const char *name : {"y", "X"})
        parent->appendRow(new QStandardItem(s(name)));
    const QModelIndex y = parent->child(0)->index();
    const QModelIndex x = parent->child(1)->index();
    QVERIFY(m_proxy->lessThan(x, y) && !m_proxy->lessThan(y, x));
    QVERIFY(m_proxy->lessThan(cell("a", 0), cell("B", 0)));

    QStringListModel strings(list("b|A"));
    m_proxy->setSourceModel(&strings);
    QVERIFY(m_proxy->lessThan(strings.index(1), strings.index(0)));
    strings.setData(strings.index(1), s("c"));
    QVERIFY(!m_proxy->lessThan(strings.index(1), strings.index(0)));
}

void TestSearchProxy::readsChangedRows()
{
    show({{"a", 5, "Tools", "F1"}, {"b", 5, "Tools"}, {"c", 5, "Tools", "F3"}});
    m_proxy->sort(Model::HotkeyColumn);
    m_proxy->setSelectedHotkeyFilter(Proxy::AssignedHotkeysOnly);
    QCOMPARE(names(), list("a|c"));
    m_store->assignShortcut(idOf("b"), s("F2"), QString());
    QCOMPARE(names(), list("a|b|c")); // the proxy follows by itself
    m_store->unassignShortcut(idOf("a"), s("F1"), QString());
    QCOMPARE(names(), list("b|c"));

    m_proxy->setDynamicSortFilter(false);
    m_store->assignShortcut(idOf("c"), s("0"), QString());
    m_store->unassignShortcut(idOf("c"), s("F3"), QString());
    QCOMPARE(names(), list("b|c"));
    m_proxy->invalidate();
    QCOMPARE(names(), list("c|b"));

    m_host->registry()->addAction(idOf("b"), s("b"), 6, s("Other"), false);
    m_model->loadActionsToModel();
    m_proxy->setFilterSelectedContext(6);
    QCOMPARE(names(), list("b"));
    m_model->removeRow(cell("b", 0).row());
    QCOMPARE(names(), QStringList());
    m_model.reset();
    QCOMPARE(m_proxy->rowCount(), 0);
}

void TestSearchProxy::worksWithoutStore()
{
    show({{"a", 5, "", "F1"}, {"b"}});
    m_store->applyTransforms();
    Proxy proxy(nullptr);
    proxy.setSourceModel(m_model.get());
    QCOMPARE(proxy.rowCount(), 2);
    proxy.setSelectedHotkeyFilter(Proxy::CustomizedHotkeysOnly);
    QCOMPARE(proxy.rowCount(), 1); // nothing is a base hotkey
    proxy.setSelectedHotkeyFilter(Proxy::UnsavedHotkeysOnly);
    QCOMPARE(proxy.rowCount(), 0);

    m_store.reset();
    m_proxy->setSelectedHotkeyFilter(Proxy::UnsavedHotkeysOnly);
    QCOMPARE(m_proxy->rowCount(), 0);
}

QTEST_MAIN(TestSearchProxy)
#include "tst_SearchProxy.moc"
