#include "ProxyTest.h"

#include <UiCustomizations/QvelActionItem.h>

#include <QStringListModel>
#include <QTranslator>
#include <QtTest>

using Model = CUI::QvelActionItemModel;

namespace {

/// A language in which one key has another name.
class Translator : public QTranslator
{
public:
    bool isEmpty() const override { return false; }
    QString translate(const char *context, const char *text, const char *, int) const override
    {
        return qstrcmp(context, "QShortcut") == 0 && qstrcmp(text, "Del") == 0 ? s("Zap")
                                                                               : QString();
    }
};

} // namespace

/// In which order the proxy lists its rows.
class TestSortProxy : public ProxyTest
{
    Q_OBJECT

private Q_SLOTS:
    void sorts_data();
    void sorts();
    void ranksOnlyWhenAsked();
    void sortsBySearchedHotkey();
    void breaksTies();
    void followsSortSettings();
    void followsTheLanguage();
    void comparesCellsOfAnySource();
    void readsChangedRows();
};

void TestSortProxy::sorts_data()
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

void TestSortProxy::sorts()
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

void TestSortProxy::ranksOnlyWhenAsked()
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

void TestSortProxy::sortsBySearchedHotkey()
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

void TestSortProxy::breaksTies()
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

void TestSortProxy::followsSortSettings()
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

void TestSortProxy::followsTheLanguage()
{
    show({{"delete", 5, "", "Del"}, {"home", 5, "", "Home"}, {"insert", 5, "", "Ins"}});
    m_proxy->sort(Model::HotkeyColumn);
    QCOMPARE(names(), list("delete|home|insert"));
    Translator translator;
    QCoreApplication::installTranslator(&translator);
    QCOMPARE(names(), list("delete|home|insert")); // until it is sorted again
    m_proxy->invalidate();
    QCOMPARE(names(), list("home|insert|delete"));
    QCoreApplication::removeTranslator(&translator);
    m_proxy->invalidate();
    QCOMPARE(names(), list("delete|home|insert"));
}

void TestSortProxy::comparesCellsOfAnySource()
{
    show({{"a"}, {"B"}});
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

void TestSortProxy::readsChangedRows()
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

QTEST_MAIN(TestSortProxy)
#include "tst_SortProxy.moc"
