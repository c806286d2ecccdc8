#include "TestHost.h"
#include "Text.h"

#include <UiCustomizations/QvelActionItemModel.h>
#include <UiCustomizations/QvelCustomizeDialogHelper.h>
#include <UiCustomizations/QvelMenusWidget.h>
#include <UiCustomizations/QvelShortcutManager.h>

#include <QComboBox>
#include <QHeaderView>
#include <QTreeView>
#include <QtTest>

using CUI::QvelActionItemModel;
using namespace CUI::QvelCustomizeDialogHelper;

class TestCustomizeDialogHelper : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void listsContexts();
    void listsCategories();
    void showsAllButTheHotkeys();

private:
    void addActions(unsigned long contextId, const char *categories);
    /// The texts of the box, the first of which is current.
    QStringList texts() const;

    std::unique_ptr<TestHost> m_host;
    std::unique_ptr<QComboBox> m_box;
    unsigned long m_actionCount = 0;
};

void TestCustomizeDialogHelper::init()
{
    m_host.reset(); // before another one is installed
    m_host = std::make_unique<TestHost>();
    m_box = std::make_unique<QComboBox>();
    m_box->addItems(list("old|older"));
    m_box->setCurrentIndex(1);
}

void TestCustomizeDialogHelper::addActions(unsigned long contextId, const char *categories)
{
    for (const QString &category : s(categories).split(QLatin1Char('|')))
        m_host->registry()->addAction(++m_actionCount, s("a"), s("A"), contextId, category, false);
}

QStringList TestCustomizeDialogHelper::texts() const
{
    QStringList texts;
    for (int index = 0; index < m_box->count(); ++index)
        texts << m_box->itemText(index);
    return m_box->currentIndex() == 0 ? texts : QStringList(s("another entry is current"));
}

void TestCustomizeDialogHelper::listsContexts()
{
    for (const auto &[id, name] : {std::pair(3UL, "beta"), {4294967295UL, "Alpha"}, {0UL, "Gamma"}})
        m_host->registry()->addActionContext(id, s(name));
    initializeContextList(m_box.get());
    QCOMPARE(texts(), list("All Groups|Alpha|beta|Gamma"));
    QVERIFY(!m_box->itemData(0).isValid());
    QCOMPARE(m_box->itemData(1), QVariant(quint64{4294967295}));
    QCOMPARE(m_box->itemData(1).userType(), int(QMetaType::ULongLong));
    QCOMPARE(m_box->itemData(3), QVariant(quint64{0}));

    // Of contexts that differ in letter case only, the last one of the registry.
    m_host->registry()->addActionContext(8, s("BETA"));
    quint64 last = 0;
    for (const auto &[id, context] : m_host->registry()->actionContexts())
        last = id == 3 || id == 8 ? id : last;
    initializeContextList(m_box.get());
    QCOMPARE(m_box->count(), 4);
    QCOMPARE(m_box->itemData(2), QVariant(last));
}

void TestCustomizeDialogHelper::listsCategories()
{
    for (unsigned long id = 1; id <= 3; ++id)
        m_host->registry()->addActionContext(id, s("Context %1").arg(id));
    addActions(1, "view|Zoom|Edit|edit|All Subgroups/Categories|Edit");
    addActions(2, "<b>Bold</b>|view|");
    addActions(9, "of a context that is not registered");
    initializeCategoryList(m_box.get());
    QCOMPARE(texts(), list("All Subgroups/Categories||<b>Bold</b>|Edit|edit|view|Zoom"));
    const char *expected[] = {"All Subgroups/Categories|Edit|edit|view|Zoom",
                              "All Subgroups/Categories||<b>Bold</b>|view",
                              "All Subgroups/Categories"};
    for (unsigned long id = 1; id <= 3; ++id) {
        updateCategoryList(m_box.get(), id);
        QCOMPARE(texts(), list(expected[id - 1]));
    }
    updateCategoryList(m_box.get(), 9);
    QCOMPARE(texts(), list("All Subgroups/Categories"));
}

void TestCustomizeDialogHelper::showsAllButTheHotkeys()
{
    m_host->registry()->addActionContext(1, s("Scene"));
    for (const QString &name : list("b|<i>a</i>|c"))
        m_host->registry()->addAction(1, name, name, 1, s("Edit"), false);
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

QTEST_MAIN(TestCustomizeDialogHelper)
#include "tst_CustomizeDialogHelper.moc"
