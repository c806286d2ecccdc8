#include "TestHost.h"

#include <UiCustomizations/QvelActionItemModel.h>
#include <UiCustomizations/QvelMenusWidget.h>
#include <UiCustomizations/QvelShortcutManager.h>

#include <QHeaderView>
#include <QTreeView>
#include <QtTest>

using CUI::QvelActionItemModel;
using CUI::QvelMenusWidget;

class TestMenusWidget : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void showsAllButTheHotkeys();
    void outlivesItsModel();

private:
    TestHost m_host;
};

void TestMenusWidget::showsAllButTheHotkeys()
{
    m_host.registry()->addActionContext(1, QStringLiteral("Scene"));
    for (const char *name : {"b", "<i>a</i>", "c"}) {
        const QString text = QString::fromUtf8(name);
        m_host.registry()->addAction(1, text, text, 1, QStringLiteral("Edit"), false);
    }
    CUI::QvelShortcutManager store;
    QvelActionItemModel model(&store);
    QvelMenusWidget widget(&model);
    auto *view = widget.findChild<QTreeView *>(QStringLiteral("menuActionsTreeView"));
    QVERIFY(view != nullptr);
    QVERIFY(view->isColumnHidden(QvelActionItemModel::HotkeyColumn));
    QCOMPARE(view->header()->count() - view->header()->hiddenSectionCount(), 3);

    widget.show();
    QVERIFY(QTest::qWaitForWindowExposed(&widget));
    const auto names = [&] {
        QStringList texts;
        for (int row = 0; row < model.rowCount(); ++row)
            texts << view->indexAt(view->visualRect(model.index(row, 0)).center())
                             .data()
                             .toString();
        return texts;
    };
    const QStringList ascending(
            {QStringLiteral("<i>a</i>"), QStringLiteral("b"), QStringLiteral("c")});
    QCOMPARE(names(), QStringList(ascending.crbegin(), ascending.crend()));
    const int x = view->header()->sectionViewportPosition(QvelActionItemModel::ActionColumn) + 20;
    QTest::mouseClick(view->header()->viewport(), Qt::LeftButton, {}, QPoint(x, 5));
    QCOMPARE(names(), ascending);
}

void TestMenusWidget::outlivesItsModel()
{
    auto store = std::make_unique<CUI::QvelShortcutManager>();
    auto model = std::make_unique<QvelActionItemModel>(store.get());
    QvelMenusWidget widget(model.get());
    widget.show();
    QVERIFY(QTest::qWaitForWindowExposed(&widget));
    model.reset();
    QVERIFY(!widget.grab().isNull());
}

QTEST_MAIN(TestMenusWidget)
#include "tst_MenusWidget.moc"
