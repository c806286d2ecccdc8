#include "PlainBrowsing.h"
#include "TestHost.h"
#include "Text.h"

#include <UiCustomizations/QvelActionItem.h>
#include <UiCustomizations/QvelActionItemModel.h>
#include <UiCustomizations/QvelMessageLog.h>

#include <QAbstractItemModelTester>
#include <QtTest>

#include <random>

using CUI::ActionIdentifier;
using CUI::QvelActionItemModel;
using CUI::QvelShortcutManager;
using CUI::QvelSortFilterProxyModel;

/// A registry, a store, a model and two proxies through which a user, a host and a file loader go
/// at random. One proxy is as the editor's, the other filters by itself.
class TestBrowsingRandom : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void equalsPlainRules_data();
    void equalsPlainRules();

private:
    void step();
    void changeRegistry();
    void changeStore();
    QString anySearch();
    void changeSearch();
    void changeFilter();
    void sortAnew();
    void restartTesters();

    void compareModel();
    void compareProxies();
    void compareLookUps();
    QVector<int> listed(const QvelSortFilterProxyModel &proxy) const;

    int below(int limit) { return int(m_random() % unsigned(limit)); }
    const QString &any(const QStringList &texts) { return texts.at(below(texts.size())); }
    ActionIdentifier anyAction() { return {1, QString::number(below(60))}; }

    const QStringList m_words = list("Box|box|Boxes|Move|move|Über|über|Straße|ſide|Kelvin|K|"
                                     "移動|a|B|+|\\|(x|%1|İ|ı|œ|Œ|µ|µm|two\nlines|x  y");
    const QStringList m_hotkeys = list(
            "Ctrl+A|ctrl+a|Ctrl+Shift+A|Alt+A|Meta+Ctrl+A|A|B|F2|F10|1|2|10|Alt+1|Num+5|Ctrl+Num+5|"
            "Num++|+|Ctrl++|Ctrl+,|,|Ctrl+Alt+F1|Shift+Space|nonsense|Ctrl+A, Ctrl+B|Ctrl+ |É");
    const QStringList m_categories = list("Edit|edit|View|Tools|All Subgroups/Categories|");

    std::mt19937 m_random;
    std::unique_ptr<TestHost> m_host;
    std::unique_ptr<QvelShortcutManager> m_store;
    std::unique_ptr<PlainBrowsing> m_plain;
    std::unique_ptr<QvelActionItemModel> m_model;
    std::unique_ptr<QvelSortFilterProxyModel> m_proxy;
    std::unique_ptr<QvelSortFilterProxyModel> m_live;
    std::vector<std::unique_ptr<QAbstractItemModelTester>> m_testers;
};

void TestBrowsingRandom::init()
{
    CUI::QvelMessageLog::getInstance().setMessageLogLevel(CUI::QvelMessageLog::MessageType(0));
    m_host = std::make_unique<TestHost>();
    m_store = std::make_unique<QvelShortcutManager>();
    m_plain = std::make_unique<PlainBrowsing>(*m_store);
    for (unsigned long context = 0; context < 4; ++context)
        m_host->registry()->addActionContext(context, any(m_categories));
    for (int i = 0; i < 60; ++i)
        changeRegistry();
    m_model = std::make_unique<QvelActionItemModel>(m_store.get());
    m_plain->load(*m_host->registry());
    m_proxy = std::make_unique<QvelSortFilterProxyModel>(m_store.get());
    m_proxy->setDynamicSortFilter(false);
    m_live = std::make_unique<QvelSortFilterProxyModel>(m_store.get());
    for (QvelSortFilterProxyModel *proxy : {m_proxy.get(), m_live.get()}) {
        proxy->setFilterKeyColumn(0);
        proxy->setSourceModel(m_model.get());
    }
    restartTesters();
}

void TestBrowsingRandom::cleanup()
{
    m_testers.clear();
    m_proxy.reset();
    m_live.reset();
    m_model.reset();
    m_plain.reset();
    m_store.reset();
    m_host.reset();
}

void TestBrowsingRandom::restartTesters()
{
    m_testers.clear();
    for (QAbstractItemModel *model :
         std::initializer_list<QAbstractItemModel *>{m_model.get(), m_proxy.get(), m_live.get()})
        m_testers.push_back(std::make_unique<QAbstractItemModelTester>(
                model, QAbstractItemModelTester::FailureReportingMode::QtTest));
}

void TestBrowsingRandom::changeRegistry()
{
    TestRegistry &registry = *m_host->registry();
    const auto name = [this] {
        QStringList words;
        for (int count = below(4); count > 0; --count)
            words << any(m_words);
        return words.join(QLatin1Char(' '));
    };
    const int operation = below(20);
    if (operation == 0)
        registry.removeAction(anyAction());
    else if (operation < 3)
        registry.renameAction(anyAction(), anyAction(), name());
    else if (operation < 5)
        registry.addActionContext(unsigned(below(4)), any(m_categories));
    else
        registry.addAction(anyAction(), name(), unsigned(below(5)), any(m_categories), false);
}

void TestBrowsingRandom::changeStore()
{
    const int operation = below(60);
    const ActionIdentifier action = anyAction();
    if (operation == 0 && below(4) == 0)
        m_store->clearShortcuts();
    else if (operation == 1)
        m_store->clearTransforms();
    else if (operation < 4)
        m_store->applyTransforms();
    else if (operation < 45)
        m_store->assignShortcut(action, any(m_hotkeys), QString());
    else if (m_store->getShortcuts().count(action) > 0)
        m_store->unassignShortcut(action, any(m_store->getShortcuts().at(action)), QString());
}

QString TestBrowsingRandom::anySearch()
{
    if (below(4) == 0)
        return {};
    if (m_plain->keyColumn == 1)
        return any(m_hotkeys);
    QString text = any(m_words).left(1 + below(3));
    if (below(2) == 0)
        text += s("  ").left(below(3)) + any(m_words).left(1 + below(2));
    return text;
}

void TestBrowsingRandom::changeSearch()
{
    const QString text = anySearch();
    m_plain->search(text);
    for (QvelSortFilterProxyModel *proxy : {m_proxy.get(), m_live.get()})
        QCOMPARE(proxy->updateFilterString(text), m_plain->isSearching());
}

void TestBrowsingRandom::changeFilter()
{
    const auto set = [this](auto setter, auto value) {
        for (QvelSortFilterProxyModel *proxy : {m_proxy.get(), m_live.get()})
            (proxy->*setter)(value);
    };
    using Proxy = QvelSortFilterProxyModel;
    // Filters that let everything pass are the more frequent ones, or little would be listed.
    const bool isEnd = below(3) != 0;
    const int keyColumns[] = {0, 0, 0, 0, 1, 1, 1, 1, 2, -1};
    switch (below(6)) {
    case 0:
        set(&Proxy::setFilterKeyColumn, m_plain->keyColumn = keyColumns[below(10)]);
        break;
    case 1:
        set(&Proxy::setActionSearchSorting, m_plain->isRanking = !m_plain->isRanking);
        break;
    case 2:
        m_plain->category = isEnd ? m_categories.at(4) : any(m_categories);
        set(&Proxy::setFilterSelectedCategory, m_plain->category);
        break;
    case 3:
        m_plain->hasContextFilter = true;
        set(&Proxy::setFilterSelectedContext, m_plain->context = unsigned(below(6)));
        break;
    case 4:
        m_plain->hotkeyFilter = Proxy::HotkeyFilter(isEnd ? 0 : below(4));
        set(&Proxy::setSelectedHotkeyFilter, m_plain->hotkeyFilter);
        break;
    default:
        m_plain->hasContextFilter = false;
        m_proxy->disableContextFilter();
        m_live->disableContextFilter();
    }
}

void TestBrowsingRandom::sortAnew()
{
    m_plain->sortColumn = below(5) - 1;
    m_plain->sortOrder = Qt::SortOrder(below(2));
    m_plain->sortCase = Qt::CaseSensitivity(below(2));
    for (QvelSortFilterProxyModel *proxy : {m_proxy.get(), m_live.get()}) {
        proxy->setSortCaseSensitivity(m_plain->sortCase);
        proxy->sort(m_plain->sortColumn, m_plain->sortOrder);
    }
}

void TestBrowsingRandom::step()
{
    const int operation = below(40);
    if (operation < 20) {
        changeStore();
    } else if (operation < 26) {
        changeSearch();
    } else if (operation < 32) {
        changeFilter();
    } else if (operation < 36) {
        sortAnew();
    } else if (operation == 36) {
        Q_EMIT m_store->shortcutConfigurationAboutToLoad(QString());
        for (int i = 0; i < 20; ++i)
            changeStore();
        Q_EMIT m_store->shortcutConfigurationLoaded(QString());
    } else if (operation == 37) {
        m_testers.clear(); // they rightly object to a row past the end
        m_model->invalidateAllRows();
        restartTesters();
    } else {
        for (int i = 0; i < 10; ++i)
            changeRegistry();
        m_model->loadActionsToModel();
        m_plain->load(*m_host->registry());
    }
}

QVector<int> TestBrowsingRandom::listed(const QvelSortFilterProxyModel &proxy) const
{
    QVector<int> rows;
    for (int row = 0; row < proxy.rowCount(); ++row)
        rows << proxy.mapToSource(proxy.index(row, 0)).row();
    return rows;
}

void TestBrowsingRandom::compareModel()
{
    const QVector<PlainRow> rows = m_plain->rows();
    QCOMPARE(m_model->rowCount(), rows.size());
    for (int row = 0; row < rows.size(); ++row) {
        for (int column = 0; column < 4; ++column)
            QCOMPARE(m_model->index(row, column).data().toString(), rows[row].texts[column]);
    }
}

void TestBrowsingRandom::compareProxies()
{
    m_proxy->invalidate();
    QCOMPARE(listed(*m_proxy), m_plain->sorted());
    // Whether hotkeys are customized or unsaved may change without a change of their cell.
    if (m_plain->hotkeyFilter < QvelSortFilterProxyModel::CustomizedHotkeysOnly) {
        QVector<int> rows = listed(*m_live);
        std::sort(rows.begin(), rows.end());
        QCOMPARE(rows, m_plain->accepted());
    }
}

void TestBrowsingRandom::compareLookUps()
{
    const QVector<PlainRow> rows = m_plain->rows();
    const ActionIdentifier action = anyAction();
    const auto found = std::find_if(rows.begin(), rows.end(), [&action](const PlainRow &row) {
        return row.identifier == action;
    });
    const QStandardItem *item = m_model->itemFromVelAction(below(4), action);
    QCOMPARE(item == nullptr ? int(rows.size()) : item->row(), int(found - rows.begin()));

    const QString hotkey = any(m_hotkeys);
    const unsigned long context = unsigned(below(6));
    const int holder = m_plain->rowOfHotkey(hotkey, context);
    QCOMPARE(m_model->velActionFromShortcut(hotkey, context),
             m_model->velActionFromModelIdx(m_model->index(holder, 1)));
}

void TestBrowsingRandom::equalsPlainRules_data()
{
    QTest::addColumn<unsigned>("seed");
    for (unsigned seed = 1; seed <= 6; ++seed)
        QTest::addRow("seed %u", seed) << seed;
}

void TestBrowsingRandom::equalsPlainRules()
{
    QFETCH(unsigned, seed);
    m_random.seed(seed);
    for (int i = 0; i < 600 && !QTest::currentTestFailed(); ++i) {
        step();
        compareModel();
        compareProxies();
        compareLookUps();
    }
}

QTEST_MAIN(TestBrowsingRandom)
#include "tst_BrowsingRandom.moc"
