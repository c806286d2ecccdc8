#include "ProxyTest.h"

#include <UiCustomizations/QvelActionItem.h>

#include <QStringListModel>
#include <QtTest>

#include <utility>

using Model = CUI::QvelActionItemModel;

namespace {

/// Counts layoutChanged() and filterInvalidated().
class SignalCounts
{
public:
    explicit SignalCounts(const CUI::QvelSortFilterProxyModel &proxy)
    {
        QObject::connect(&proxy, &CUI::QvelSortFilterProxyModel::layoutChanged, &m_receiver,
                         [this] { ++m_counts.first; });
        QObject::connect(&proxy, &CUI::QvelSortFilterProxyModel::filterInvalidated, &m_receiver,
                         [this] {
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

} // namespace

/// Which rows the proxy lists.
class TestSearchProxy : public ProxyTest
{
    Q_OBJECT

private Q_SLOTS:
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
    void worksWithoutStore();
};

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
