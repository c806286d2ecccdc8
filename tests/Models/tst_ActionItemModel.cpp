#include "TestHost.h"

#include <UiCustomizations/QvelActionItem.h>
#include <UiCustomizations/QvelActionItemModel.h>
#include <UiCustomizations/QvelMessageLog.h>
#include <UiCustomizations/QvelShortcutManager.h>
#include <UiCustomizations/QvelSortFilterProxyModel.h>

#include <QSortFilterProxyModel>
#include <QTreeView>
#include <QtTest>

using CUI::ActionIdentifier;
using CUI::QvelActionItem;
using CUI::QvelActionItemModel;
using CUI::QvelShortcutManager;
using Model = CUI::QvelActionItemModel;

namespace {

QString s(const char *text)
{
    return QString::fromUtf8(text);
}

ActionIdentifier id(const char *actionId)
{
    return {1, s(actionId)};
}

} // namespace

/// Writes down, in their order, the signals of a model that a view listens to.
class SignalLog : public QObject
{
    Q_OBJECT

public:
    explicit SignalLog(const QAbstractItemModel &model)
    {
        const auto note = [&](auto signal, const char *name) {
            connect(&model, signal, this, [this, name] { m_lines << s(name); });
        };
        note(&QAbstractItemModel::modelAboutToBeReset, "about to reset");
        note(&QAbstractItemModel::modelReset, "reset");
        note(&QAbstractItemModel::rowsAboutToBeInserted, "about to insert");
        note(&QAbstractItemModel::rowsInserted, "inserted");
        note(&QAbstractItemModel::rowsRemoved, "removed");
        note(&QAbstractItemModel::columnsInserted, "columns inserted");
        note(&QAbstractItemModel::headerDataChanged, "header");
        note(&QAbstractItemModel::layoutAboutToBeChanged, "about to change layout");
        note(&QAbstractItemModel::layoutChanged, "layout");
        connect(&model, &QAbstractItemModel::dataChanged, this,
                [this](const QModelIndex &from, const QModelIndex &to, const QVector<int> &roles) {
                    m_lines << QStringLiteral("data %1,%2 to %3,%4%5")
                                       .arg(from.row())
                                       .arg(from.column())
                                       .arg(to.row())
                                       .arg(to.column())
                                       .arg(roles.isEmpty() ? QString() : s(" with roles"));
                });
    }

    QStringList take() { return std::exchange(m_lines, {}); }

private:
    QStringList m_lines;
};

class TestActionItemModel : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void showsTheRegistry();
    void cellsAreNotEditable();
    void reloadsAsOneReset();
    void keepsRowsWithoutRegistry();
    void blocksTheRegistryWhileLoading();
    void followsTheStore();
    void waitsForAConfiguration();
    void findsItems();
    void findsItemsAmongMovedRows();
    void survivesAChangedRegistry_data();
    void survivesAChangedRegistry();
    void findsActionsOfIndexes();
    void findsActionsOfHotkeys_data();
    void findsActionsOfHotkeys();
    void findsHotkeysOfChangedCells();
    void invalidatesPastTheEnd();
    void worksWithoutStore();

private:
    int rowOf(const char *actionId) const
    {
        return m_model->itemFromVelAction(Model::ActionColumn, id(actionId))->row();
    }
    QString text(const char *actionId, int column) const
    {
        return m_model->itemFromVelAction(column, id(actionId))->text();
    }
    void assign(const char *actionId, const char *hotkey)
    {
        m_store->assignShortcut(id(actionId), s(hotkey), QString());
    }

    std::unique_ptr<TestHost> m_host;
    std::unique_ptr<QvelShortcutManager> m_store;
    std::unique_ptr<QvelActionItemModel> m_model;
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
    m_model = std::make_unique<QvelActionItemModel>(m_store.get());
}

void TestActionItemModel::cleanup()
{
    m_model.reset();
    m_store.reset();
    m_host.reset();
    CUI::QvelMessageLog::getInstance().setMessageLogLevel(CUI::QvelMessageLog::Warning);
}

void TestActionItemModel::showsTheRegistry()
{
    QStringList headers;
    for (int column = 0; column < m_model->columnCount(); ++column)
        headers << m_model->headerData(column, Qt::Horizontal).toString();
    QCOMPARE(headers, QStringList({s("Action"), s("Hotkey"), s("Group"), s("Category")}));

    QStringList actual;
    for (int row = 0; row < m_model->rowCount(); ++row) {
        for (int column = 0; column < 4; ++column) {
            const auto *item = dynamic_cast<QvelActionItem *>(m_model->item(row, column));
            QVERIFY(item != nullptr);
            QCOMPARE(item->velAction(), m_model->velActionFromModelIdx(m_model->index(row, 0)));
        }
        actual << m_model->velActionFromModelIdx(m_model->index(row, 0))->name();
    }
    QStringList expected;
    for (const auto &[identifier, action] : m_host->registry()->actions()) {
        if (identifier != id("lost"))
            expected << action->name();
    }
    QCOMPARE(actual, expected);

    QCOMPARE(text("copy", Model::ActionColumn), s("Copy"));
    QCOMPARE(text("copy", Model::HotkeyColumn), s("Ctrl+A, F2"));
    QCOMPARE(text("copy", Model::GroupColumn), s("Edit"));
    QCOMPARE(text("copy", Model::CategoryColumn), s("edit"));
    QCOMPARE(text("cut", Model::CategoryColumn), QString());
    QCOMPARE(text("paste", Model::CategoryColumn), s("Clipboard"));
    QCOMPARE(text("zoom", Model::HotkeyColumn), QString());
    QVERIFY(m_model->itemFromVelAction(Model::ActionColumn, id("lost")) == nullptr);
}

void TestActionItemModel::cellsAreNotEditable()
{
    QTreeView view;
    view.setModel(m_model.get());
    for (int column = 0; column < 4; ++column) {
        const QModelIndex index = m_model->index(0, column);
        QCOMPARE(m_model->flags(index),
                 m_model->QStandardItemModel::flags(index) & ~Qt::ItemIsEditable);
        QVERIFY(m_model->flags(index).testFlag(Qt::ItemIsSelectable));
        view.setCurrentIndex(index);
        QTest::ignoreMessage(QtWarningMsg, "edit: editing failed");
        view.edit(index);
        QVERIFY(view.findChild<QWidget *>(s("qt_spinbox_lineedit")) == nullptr);
        QVERIFY(!view.isPersistentEditorOpen(index) && view.indexWidget(index) == nullptr);
    }
    m_model->item(0, 0)->setEnabled(false);
    QVERIFY(!m_model->flags(m_model->index(0, 0)).testFlag(Qt::ItemIsEnabled));
}

void TestActionItemModel::reloadsAsOneReset()
{
    m_host->registry()->addAction(id("pan"), s("Pan"), 6, s("View"), false);
    SignalLog log(*m_model);
    m_model->loadActionsToModel();
    QCOMPARE(log.take(), QStringList({s("about to reset"), s("reset")}));
    QCOMPARE(m_model->rowCount(), 5);
    QCOMPARE(text("pan", Model::ActionColumn), s("Pan"));
    QCOMPARE(text("copy", Model::HotkeyColumn), s("Ctrl+A, F2"));
}

void TestActionItemModel::keepsRowsWithoutRegistry()
{
    std::unique_ptr<CUI::ICuiActionManager> none;
    CUI::ICuiActionManager::set(none);
    SignalLog log(*m_model);
    m_model->loadActionsToModel();
    QCOMPARE(log.take(), QStringList());
    QCOMPARE(m_model->rowCount(), 4);

    const QvelActionItemModel empty(m_store.get());
    QCOMPARE(empty.rowCount(), 0);
    QVERIFY(empty.itemFromVelAction(0, id("cut")) == nullptr);
    QVERIFY(empty.velActionFromShortcut(s("F2"), 5) == nullptr);
}

void TestActionItemModel::blocksTheRegistryWhileLoading()
{
    TestRegistry *registry = m_host->registry();
    bool wasBlocked = false;
    connect(m_model.get(), &QAbstractItemModel::modelReset, registry,
            [&] { wasBlocked = registry->signalsBlocked(); });
    for (const bool isBlocked : {false, true}) {
        registry->blockSignals(isBlocked);
        m_model->loadActionsToModel();
        QVERIFY(wasBlocked);
        QCOMPARE(registry->signalsBlocked(), isBlocked);
    }
}

void TestActionItemModel::followsTheStore()
{
    const int cut = rowOf("cut");
    const int copy = rowOf("copy");
    const auto cell = [](int row) {
        return QStringLiteral("data %1,1 to %1,1 with roles").arg(row);
    };
    const auto whole = [](int row) { return QStringLiteral("data %1,0 to %1,3").arg(row); };

    SignalLog log(*m_model);
    assign("cut", "F2"); // taken from another action of the context
    QCOMPARE(text("cut", Model::HotkeyColumn), s("F2"));
    QCOMPARE(text("copy", Model::HotkeyColumn), s("Ctrl+A"));
    QCOMPARE(log.take(), QStringList({cell(copy), whole(copy), cell(cut), whole(cut)}));

    assign("cut", "F2"); // nothing changes
    QCOMPARE(log.take(), QStringList({whole(cut)}));

    m_store->unassignShortcut(id("cut"), s("F2"), QString());
    QCOMPARE(text("cut", Model::HotkeyColumn), QString());
    QCOMPARE(log.take(), QStringList({cell(cut), whole(cut)}));

    assign("lost", "F9"); // no row
    QCOMPARE(log.take(), QStringList());

    m_store->clearShortcuts();
    QCOMPARE(text("copy", Model::HotkeyColumn), QString());
    QCOMPARE(log.take(), QStringList({cell(copy)}));

    assign("zoom", "F3");
    log.take();
    m_store->clearTransforms();
    QCOMPARE(log.take(), QStringList({cell(rowOf("zoom"))}));
    QCOMPARE(text("zoom", Model::HotkeyColumn), QString());
}

void TestActionItemModel::waitsForAConfiguration()
{
    Q_EMIT m_store->shortcutConfigurationAboutToLoad(QString());
    SignalLog log(*m_model);
    assign("cut", "F2");
    m_model->updateShortcuts();
    QCOMPARE(text("cut", Model::HotkeyColumn), QString());
    QCOMPARE(text("copy", Model::HotkeyColumn), s("Ctrl+A, F2"));
    QCOMPARE(log.take(), QStringList());

    Q_EMIT m_store->shortcutConfigurationLoaded(QString());
    QCOMPARE(text("cut", Model::HotkeyColumn), s("F2"));
    QCOMPARE(text("copy", Model::HotkeyColumn), s("Ctrl+A"));
    QCOMPARE(log.take().size(), 2); // a signal for each cell that has changed
}

void TestActionItemModel::findsItems()
{
    for (int column = 0; column < 4; ++column) {
        const QvelActionItem *item = m_model->itemFromVelAction(column, id("copy"));
        QCOMPARE(item->column(), column);
        QCOMPARE(item->velAction(), m_host->registry()->getAction(id("copy")));
    }
    QVERIFY(m_model->itemFromVelAction(4, id("copy")) == nullptr);
    QVERIFY(m_model->itemFromVelAction(-1, id("copy")) == nullptr);
    QVERIFY(m_model->itemFromVelAction(0, id("COPY")) == nullptr);
    QVERIFY(m_model->itemFromVelAction(0, {2, s("copy")}) == nullptr);
    QVERIFY(m_model->itemFromVelAction(0, ActionIdentifier()) == nullptr);
}

void TestActionItemModel::findsItemsAmongMovedRows()
{
    m_model->sort(Model::ActionColumn, Qt::DescendingOrder);
    QCOMPARE(rowOf("zoom"), 0);
    QCOMPARE(m_model->itemFromVelAction(1, id("copy"))->text(), s("Ctrl+A, F2"));
    QCOMPARE(m_model->velActionFromShortcut(s("F2"), 5)->name(), s("Copy"));
    assign("cut", "F2");
    QCOMPARE(text("cut", Model::HotkeyColumn), s("F2"));

    m_model->loadActionsToModel();
    const int copy = rowOf("copy");
    CUI::VelAction *action = m_host->registry()->getAction(id("copy"));
    m_model->insertRow(0, {new QvelActionItem(s("Copy 2"), action), new QStandardItem(s("F8"))});
    QCOMPARE(m_model->itemFromVelAction(0, id("copy"))->row(), 0); // the first
    QCOMPARE(m_model->itemFromVelAction(1, id("copy"))->row(), copy + 1); // no action in row 0
    QVERIFY(m_model->velActionFromShortcut(s("F8"), 5) == nullptr);

    m_model->loadActionsToModel();
    delete m_model->takeItem(copy, 1);
    QVERIFY(m_model->itemFromVelAction(1, id("copy")) == nullptr);
    m_model->setItem(0, 2, new QvelActionItem(s("Edit"), action));
    QCOMPARE(m_model->itemFromVelAction(2, id("copy"))->row(), 0);
    m_model->clear();
    QVERIFY(m_model->itemFromVelAction(0, id("copy")) == nullptr);
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
    CUI::QvelSortFilterProxyModel proxy(m_store.get());
    proxy.setSourceModel(m_model.get());
    proxy.sort(Model::HotkeyColumn);
    QCOMPARE(proxy.index(0, 0).data().toString(), s("Copy"));

    // The rows still show the old actions, which are gone.
    m_host->registry()->renameAction(id("copy"), id("duplicate"), s("Duplicate"));
    m_host->registry()->removeAction(id("cut"));
    m_host->registry()->addAction(id("paste"), s("Insert"), 6, QString(), false);
    if (isMoved)
        m_model->sort(Model::ActionColumn, Qt::DescendingOrder);
    assign("duplicate", "F2");
    m_store->unassignShortcut(id("copy"), s("Ctrl+A"), QString());
    QCOMPARE(text("copy", Model::HotkeyColumn), s("F2"));
    const QModelIndex copy = m_model->itemFromVelAction(0, id("copy"))->index();
    QCOMPARE(m_model->velActionFromShortcut(s("F2"), 5), m_model->velActionFromModelIdx(copy));
    QVERIFY(m_model->velActionFromShortcut(s("F2"), 6) == nullptr);

    m_model->invalidateAllRows();
    proxy.setFilterSelectedContext(5);
    QCOMPARE(proxy.rowCount(), 3);
    m_model->insertRow(0, new QStandardItem(s("Heading")));
    m_model->removeRow(rowOf("cut"));
    proxy.updateFilterString(s("pas"));
    QCOMPARE(proxy.rowCount(), 1);
    m_store->clearShortcuts();
    QCOMPARE(text("copy", Model::HotkeyColumn), QString());

    m_model->loadActionsToModel();
    QCOMPARE(m_model->rowCount(), 3);
    QCOMPARE(text("duplicate", Model::ActionColumn), s("Duplicate"));
    QCOMPARE(proxy.rowCount(), 0); // now it is "Insert", of another context
}

void TestActionItemModel::findsActionsOfIndexes()
{
    QSortFilterProxyModel proxy;
    proxy.setSourceModel(m_model.get());
    QVERIFY(m_model->velActionFromModelIdx(proxy.index(0, 0)) == nullptr);
    QVERIFY(m_model->velActionFromModelIdx(QModelIndex()) == nullptr);

    QModelIndex pastTheEnd;
    connect(m_model.get(), &QAbstractItemModel::dataChanged, this,
            [&](const QModelIndex &, const QModelIndex &last) { pastTheEnd = last; });
    m_model->invalidateAllRows();
    QVERIFY(pastTheEnd.isValid());
    QVERIFY(m_model->velActionFromModelIdx(pastTheEnd) == nullptr);
    QVERIFY(!m_model->data(pastTheEnd).isValid());

    m_model->setItem(0, 0, new QStandardItem(s("plain")));
    QVERIFY(m_model->velActionFromModelIdx(m_model->index(0, 0)) == nullptr);
    delete m_model->takeItem(1, 0);
    QVERIFY(m_model->velActionFromModelIdx(m_model->index(1, 0)) == nullptr);
    QVERIFY(m_model->item(1, 0) == nullptr); // none was made by asking
}

void TestActionItemModel::findsActionsOfHotkeys_data()
{
    QTest::addColumn<QString>("hotkey");
    QTest::addColumn<int>("context");
    QTest::addColumn<QString>("action");

    QTest::newRow("the first of two") << s("Ctrl+A") << 5 << s("copy");
    QTest::newRow("in small letters") << s("ctrl+a") << 5 << s("copy");
    QTest::newRow("the second") << s("f2") << 5 << s("copy");
    QTest::newRow("of another context") << s("F2") << 6 << QString();
    QTest::newRow("both as one text") << s("Ctrl+A, F2") << 5 << QString();
    QTest::newRow("a part of one") << s("Ctrl") << 5 << QString();
    QTest::newRow("none") << QString() << 5 << QString();
}

void TestActionItemModel::findsActionsOfHotkeys()
{
    QFETCH(QString, hotkey);
    QFETCH(int, context);
    QFETCH(QString, action);
    const CUI::VelAction *found = m_model->velActionFromShortcut(hotkey, unsigned(context));
    QCOMPARE(found == nullptr ? QString() : found->identifier().actionId, action);
}

void TestActionItemModel::findsHotkeysOfChangedCells()
{
    QCOMPARE(m_model->velActionFromShortcut(s("F2"), 5)->name(), s("Copy"));
    m_model->itemFromVelAction(1, id("copy"))->setText(s("F5, f5"));
    QVERIFY(m_model->velActionFromShortcut(s("F2"), 5) == nullptr);
    QCOMPARE(m_model->velActionFromShortcut(s("F5"), 5)->name(), s("Copy"));

    // Of several holders, the first row counts.
    m_model->itemFromVelAction(1, id("cut"))->setText(s("F5"));
    const char *first = rowOf("cut") < rowOf("copy") ? "cut" : "copy";
    QCOMPARE(m_model->velActionFromShortcut(s("F5"), 5)->identifier(), id(first));
    m_model->itemFromVelAction(1, id(first))->setText(QString());
    QVERIFY(m_model->velActionFromShortcut(s("F5"), 5)->identifier() != id(first));

    {
        const QSignalBlocker blocker(m_model.get());
        assign("paste", "F7");
    }
    QCOMPARE(m_model->velActionFromShortcut(s("F7"), 5)->name(), s("Paste"));
}

void TestActionItemModel::invalidatesPastTheEnd()
{
    QSortFilterProxyModel bare;
    CUI::QvelSortFilterProxyModel proxy(m_store.get());
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

    SignalLog log(*m_model);
    SignalLog proxyLog(proxy);
    m_model->invalidateAllRows();
    QCOMPARE(log.take(), QStringList({s("data 0,0 to 4,3")}));
    QVERIFY(proxyLog.take().contains(s("data 0,0 to 3,3")));
    QCoreApplication::processEvents();

    m_model->removeRows(0, 4);
    log.take();
    m_model->invalidateAllRows();
    QCOMPARE(log.take(), QStringList({s("data 0,0 to 0,3")}));
    QCoreApplication::processEvents();
    QCOMPARE(proxy.rowCount(), 0);
}

void TestActionItemModel::worksWithoutStore()
{
    const QvelActionItemModel plain(nullptr);
    QCOMPARE(plain.rowCount(), 4);
    QCOMPARE(plain.itemFromVelAction(1, id("copy"))->text(), QString());

    m_store.reset();
    m_model->updateShortcuts();
    QCOMPARE(text("copy", Model::HotkeyColumn), QString());
    m_model->loadActionsToModel();
    QCOMPARE(m_model->rowCount(), 4);
}

QTEST_MAIN(TestActionItemModel)
#include "tst_ActionItemModel.moc"
