#include "TestHost.h"
#include "Text.h"

#include <UiCustomizations/QvelActionItem.h>
#include <UiCustomizations/QvelActionItemModel.h>
#include <UiCustomizations/QvelMessageLog.h>
#include <UiCustomizations/QvelShortcutManager.h>
#include <UiCustomizations/QvelSortFilterProxyModel.h>

#include <QTreeView>
#include <QtTest>

using CUI::ActionIdentifier;
using CUI::QvelActionItem;
using CUI::QvelShortcutManager;
using CUI::QvelSortFilterProxyModel;
using Model = CUI::QvelActionItemModel;

namespace {

ActionIdentifier id(const char *actionId)
{
    return {1, s(actionId)};
}

/// Writes down, in their order, the signals of a model that a view listens to.
class SignalLog : public QObject
{
public:
    explicit SignalLog(const QAbstractItemModel &model)
    {
        const auto note = [&](auto signal, const char *name) {
            connect(&model, signal, this, [this, name] { m_lines << s(name); });
        };
        note(&QAbstractItemModel::modelAboutToBeReset, "about to reset");
        note(&QAbstractItemModel::modelReset, "reset");
        note(&QAbstractItemModel::rowsInserted, "inserted");
        note(&QAbstractItemModel::rowsRemoved, "removed");
        note(&QAbstractItemModel::columnsInserted, "columns inserted");
        note(&QAbstractItemModel::headerDataChanged, "header");
        note(&QAbstractItemModel::layoutChanged, "layout");
        connect(&model, &QAbstractItemModel::dataChanged, this,
                [this](const QModelIndex &from, const QModelIndex &to, const QVector<int> &roles) {
                    m_lines << s("data %1,%2 to %3,%4")
                                               .arg(from.row())
                                               .arg(from.column())
                                               .arg(to.row())
                                               .arg(to.column())
                                       + s(roles.isEmpty() ? "" : " with roles");
                });
    }

    QStringList take() { return std::exchange(m_lines, {}); }

private:
    QStringList m_lines;
};

} // namespace

/// What the model does besides showing the right texts, which the random test looks after.
class TestActionItemModel : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void followsTheStore();
    void waitsForAConfiguration();
    void findsItemsAmongMovedRows();
    void survivesAChangedRegistry_data();
    void survivesAChangedRegistry();
    void invalidatesPastTheEnd();

private:
    QStandardItem *item(const char *actionId, int column = Model::ActionColumn) const
    {
        return m_model->itemFromVelAction(column, id(actionId));
    }
    QString hotkeys(const char *actionId) const
    {
        return item(actionId, Model::HotkeyColumn)->text();
    }
    CUI::VelAction *holder(const char *hotkey) const
    {
        return m_model->velActionFromShortcut(s(hotkey), 5);
    }
    void assign(const char *actionId, const char *hotkey)
    {
        m_store->assignShortcut(id(actionId), s(hotkey), QString());
    }

    std::unique_ptr<TestHost> m_host;
    std::unique_ptr<QvelShortcutManager> m_store;
    std::unique_ptr<Model> m_model;
};

void TestActionItemModel::init()
{
    CUI::QvelMessageLog::getInstance().setMessageLogLevel(CUI::QvelMessageLog::MessageType(0));
    m_host = std::make_unique<TestHost>();
    TestRegistry *registry = m_host->registry();
    registry->addActionContext(5, s("Edit"));
    registry->addActionContext(6, s("View"));
    registry->addAction(id("cut"), s("Cut"), 5, s("Edit"), false);
    registry->addAction(id("copy"), s("Copy"), 5, s("edit"), false);
    registry->addAction(id("paste"), s("Paste"), 5, s("Clipboard"), false);
    registry->addAction(id("zoom"), s("Zoom"), 6, QString(), false);
    registry->addAction(id("lost"), s("Lost"), 7, s("Edit"), false);
    m_store = std::make_unique<QvelShortcutManager>();
    assign("copy", "Ctrl+A");
    assign("copy", "F2");
    m_model = std::make_unique<Model>(m_store.get());
}

void TestActionItemModel::cleanup()
{
    m_model.reset();
    m_store.reset();
    m_host.reset();
}

void TestActionItemModel::followsTheStore()
{
    const auto cell = [this](const char *actionId) {
        return s("data %1,1 to %1,1 with roles").arg(item(actionId)->row());
    };
    const auto whole = [this](const char *actionId) {
        return s("data %1,0 to %1,3").arg(item(actionId)->row());
    };
    SignalLog log(*m_model);
    assign("cut", "F2"); // taken from another action of the context
    QCOMPARE(log.take(), QStringList({cell("copy"), whole("copy"), cell("cut"), whole("cut")}));
    assign("cut", "F2"); // nothing changes
    QCOMPARE(log.take(), QStringList(whole("cut")));
    m_store->unassignShortcut(id("cut"), s("F2"), QString());
    QCOMPARE(log.take(), QStringList({cell("cut"), whole("cut")}));
    assign("lost", "F9"); // no row
    QCOMPARE(log.take(), QStringList());
    m_store->clearShortcuts();
    QCOMPARE(log.take(), QStringList(cell("copy")));
    assign("zoom", "F3");
    log.take();
    m_store->clearTransforms();
    QCOMPARE(log.take(), QStringList(cell("zoom")));
}

void TestActionItemModel::waitsForAConfiguration()
{
    Q_EMIT m_store->shortcutConfigurationAboutToLoad(QString());
    SignalLog log(*m_model);
    assign("cut", "F2");
    m_model->updateShortcuts();
    QCOMPARE(hotkeys("copy"), s("Ctrl+A, F2"));
    QCOMPARE(log.take(), QStringList());

    Q_EMIT m_store->shortcutConfigurationLoaded(QString());
    QCOMPARE(hotkeys("cut"), s("F2"));
    QCOMPARE(log.take().size(), 2); // a signal for each cell that has changed
}

void TestActionItemModel::findsItemsAmongMovedRows()
{
    m_model->sort(Model::ActionColumn, Qt::DescendingOrder);
    QCOMPARE(item("zoom")->row(), 0);
    QCOMPARE(hotkeys("copy"), s("Ctrl+A, F2"));
    QCOMPARE(holder("F2")->name(), s("Copy"));
    assign("cut", "F2");
    QCOMPARE(hotkeys("cut"), s("F2"));

    m_model->loadActionsToModel();
    const int copy = item("copy")->row();
    CUI::VelAction *action = m_host->registry()->getAction(id("copy"));
    m_model->insertRow(0, {new QvelActionItem(s("Copy 2"), action), new QStandardItem(s("F8"))});
    QCOMPARE(item("copy")->row(), 0); // the first
    QCOMPARE(item("copy", 1)->row(), copy + 1); // no action in row 0
    QVERIFY(holder("F8") == nullptr);

    m_model->loadActionsToModel();
    delete m_model->takeItem(copy, 1);
    QVERIFY(item("copy", 1) == nullptr);
    m_model->setItem(0, 2, new QvelActionItem(s("Edit"), action));
    QCOMPARE(item("copy", 2)->row(), 0);
    m_model->clear();
    QVERIFY(item("copy") == nullptr);
}

void TestActionItemModel::survivesAChangedRegistry_data()
{
    QTest::addColumn<bool>("isMoved");
    QTest::newRow("rows as they were loaded") << false;
    QTest::newRow("moved rows") << true;
}

void TestActionItemModel::survivesAChangedRegistry()
{
    QFETCH(bool, isMoved);
    QvelSortFilterProxyModel proxy(m_store.get());
    proxy.setSourceModel(m_model.get());
    proxy.sort(Model::HotkeyColumn);

    // The rows still show the old actions, which are gone.
    m_host->registry()->renameAction(id("copy"), id("duplicate"), s("Duplicate"));
    m_host->registry()->removeAction(id("cut"));
    m_host->registry()->addAction(id("paste"), s("Insert"), 6, QString(), false);
    if (isMoved)
        m_model->sort(Model::ActionColumn, Qt::DescendingOrder);
    assign("duplicate", "F2");
    m_store->unassignShortcut(id("copy"), s("Ctrl+A"), QString());
    QCOMPARE(hotkeys("copy"), s("F2"));
    QCOMPARE(holder("F2"), m_model->velActionFromModelIdx(item("copy")->index()));
    QVERIFY(m_model->velActionFromShortcut(s("F2"), 6) == nullptr);

    m_model->invalidateAllRows();
    proxy.setFilterSelectedContext(5);
    QCOMPARE(proxy.rowCount(), 3);
    m_model->insertRow(0, new QStandardItem(s("Heading")));
    m_model->removeRow(item("cut")->row());
    proxy.updateFilterString(s("pas"));
    QCOMPARE(proxy.rowCount(), 1);
    m_store->clearShortcuts();
    QCOMPARE(hotkeys("copy"), QString());

    m_model->loadActionsToModel();
    QCOMPARE(m_model->rowCount(), 3);
    QCOMPARE(item("duplicate")->text(), s("Duplicate"));
    QCOMPARE(proxy.rowCount(), 0); // now it is "Insert", of another context
}

void TestActionItemModel::invalidatesPastTheEnd()
{
    QSortFilterProxyModel bare;
    QvelSortFilterProxyModel proxy(m_store.get());
    QTreeView views[3];
    QAbstractItemModel *models[] = {m_model.get(), &bare, &proxy};
    bare.setSourceModel(m_model.get());
    proxy.setSourceModel(m_model.get());
    for (int i = 0; i < 3; ++i) {
        views[i].setModel(models[i]);
        views[i].setSortingEnabled(i > 0);
        views[i].setCurrentIndex(models[i]->index(3, 3));
        views[i].show();
    }
    QCoreApplication::processEvents();
    QModelIndex pastTheEnd;
    connect(m_model.get(), &QAbstractItemModel::dataChanged, this,
            [&](const QModelIndex &, const QModelIndex &last) { pastTheEnd = last; });
    SignalLog log(*m_model);
    SignalLog proxyLog(proxy);
    m_model->invalidateAllRows();
    QCOMPARE(log.take(), list("data 0,0 to 4,3"));
    QVERIFY(proxyLog.take().contains(s("data 0,0 to 3,3")));
    QVERIFY(m_model->velActionFromModelIdx(pastTheEnd) == nullptr);
    QVERIFY(!m_model->data(pastTheEnd).isValid());
    QCoreApplication::processEvents();

    m_model->removeRows(0, 4);
    log.take();
    m_model->invalidateAllRows();
    QCOMPARE(log.take(), list("data 0,0 to 0,3"));
    QCoreApplication::processEvents();
    QCOMPARE(proxy.rowCount(), 0);
}

QTEST_MAIN(TestActionItemModel)
#include "tst_ActionItemModel.moc"
