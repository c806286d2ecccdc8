#include "TestHost.h"
#include "Text.h"

#include <UiCustomizations/QvelActionItemModel.h>
#include <UiCustomizations/QvelMenusWidget.h>
#include <UiCustomizations/QvelShortcutManager.h>

#include <QHeaderView>
#include <QTreeView>
#include <QtTest>

using CUI::QvelActionItemModel;

class TestMenusWidget : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void showsAllButTheHotkeys();
};

void TestMenusWidget::showsAllButTheHotkeys()
{
    const TestHost host;
    host.registry()->addActionContext(1, s("Scene"));
    for (const QString &name : list("b|<i>a</i>|c"))
        host.registry()->addAction(1, name, name, 1, s("Edit"), false);
    CUI::QvelShortcutManager store;
    auto model = std::make_unique<QvelActionItemModel>(&store);
    CUI::QvelMenusWidget widget(model.get());
    auto *view = widget.findChild<QTreeView *>(s("menuActionsTreeView"));
    QVERIFY(view->isColumnHidden(QvelActionItemModel::HotkeyColumn));
    QCOMPARE(view->header()->count() - view->header()->hiddenSectionCount(), 3);

    widget.show();
    QVERIFY(QTest::qWaitForWindowExposed(&widget));
    const auto names = [&] {
        QStringList texts;
        for (int row = 0; row < model->rowCount(); ++row) {
            const QRect place = view->visualRect(model->index(row, 0));
            texts << view->indexAt(place.center()).data().toString();
        }
        return texts;
    };
    QCOMPARE(names(), list("c|b|<i>a</i>"));
    const int x = view->header()->sectionViewportPosition(QvelActionItemModel::ActionColumn) + 20;
    QTest::mouseClick(view->header()->viewport(), Qt::LeftButton, {}, QPoint(x, 5));
    QCOMPARE(names(), list("<i>a</i>|b|c"));

    model.reset(); // which the widget outlives
    QVERIFY(!widget.grab().isNull());
}

QTEST_MAIN(TestMenusWidget)
#include "tst_MenusWidget.moc"
