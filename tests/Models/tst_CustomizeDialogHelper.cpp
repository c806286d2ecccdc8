#include "TestHost.h"

#include <UiCustomizations/QvelCustomizeDialogHelper.h>

#include <QComboBox>
#include <QTranslator>
#include <QtTest>

using namespace CUI::QvelCustomizeDialogHelper;

namespace {

const QString allCategories = QStringLiteral("All Subgroups/Categories");

QStringList textsOf(const QComboBox &box)
{
    QStringList texts;
    for (int index = 0; index < box.count(); ++index)
        texts << box.itemText(index);
    return texts;
}

/// Puts brackets around every text of the dialog.
class DialogTranslator : public QTranslator
{
public:
    bool isEmpty() const override { return false; }
    QString translate(const char *context, const char *source, const char *, int) const override
    {
        return qstrcmp(context, "QvelCustomizeUiDialog") == 0
                       ? QStringLiteral("[%1]").arg(QString::fromUtf8(source))
                       : QString();
    }
};

} // namespace

class TestCustomizeDialogHelper : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void listsContextsByName();
    void listsOneOfContextsThatDifferInCase();
    void listsCategories();
    void listsCategoriesOfOneContext_data();
    void listsCategoriesOfOneContext();
    void translatesAllButTheCategory();
    void worksWithoutRegistry();

private:
    void addAction(unsigned long contextId, const char *category);

    std::unique_ptr<TestHost> m_host;
    std::unique_ptr<QComboBox> m_box;
    unsigned long m_actionCount = 0;
};

void TestCustomizeDialogHelper::init()
{
    m_host.reset(); // before another one is installed
    m_host = std::make_unique<TestHost>();
    m_box = std::make_unique<QComboBox>();
    m_box->addItems({QStringLiteral("old"), QStringLiteral("older")});
    m_box->setCurrentIndex(1);
}

void TestCustomizeDialogHelper::addAction(unsigned long contextId, const char *category)
{
    m_host->registry()->addAction(++m_actionCount, QStringLiteral("a"), QStringLiteral("A"),
                                  contextId, QString::fromUtf8(category), false);
}

void TestCustomizeDialogHelper::listsContextsByName()
{
    m_host->registry()->addActionContext(3, QStringLiteral("beta"));
    m_host->registry()->addActionContext(4294967295, QStringLiteral("Alpha"));
    m_host->registry()->addActionContext(0, QStringLiteral("Gamma"));
    initializeContextList(m_box.get());

    QCOMPARE(textsOf(*m_box), QStringList({QStringLiteral("All Groups"), QStringLiteral("Alpha"),
                                           QStringLiteral("beta"), QStringLiteral("Gamma")}));
    QCOMPARE(m_box->currentIndex(), 0);
    QVERIFY(!m_box->itemData(0).isValid());
    QCOMPARE(m_box->itemData(1), QVariant(quint64{4294967295}));
    QCOMPARE(m_box->itemData(1).userType(), int(QMetaType::ULongLong));
    QCOMPARE(m_box->itemData(2), QVariant(quint64{3}));
    QCOMPARE(m_box->itemData(3), QVariant(quint64{0}));
    QVERIFY(m_box->itemIcon(1).isNull());
}

void TestCustomizeDialogHelper::listsOneOfContextsThatDifferInCase()
{
    for (unsigned long id = 1; id <= 3; ++id)
        m_host->registry()->addActionContext(id, QStringLiteral("Same"));
    m_host->registry()->addActionContext(4, QStringLiteral("SAME"));
    unsigned long last = 0;
    for (const auto &entry : m_host->registry()->actionContexts())
        last = entry.first;
    initializeContextList(m_box.get());

    QCOMPARE(m_box->count(), 2);
    QCOMPARE(m_box->itemData(1), QVariant(quint64{last}));
}

void TestCustomizeDialogHelper::listsCategories()
{
    m_host->registry()->addActionContext(1, QStringLiteral("One"));
    m_host->registry()->addActionContext(2, QStringLiteral("Two"));
    for (const char *category :
         {"view", "Zoom", "Edit", "edit", "All Subgroups/Categories", "Edit"})
        addAction(1, category);
    addAction(2, "<b>Bold</b>");
    addAction(2, "view");
    addAction(9, "of a context that is not registered");
    initializeCategoryList(m_box.get());

    QCOMPARE(textsOf(*m_box),
             QStringList({allCategories, QStringLiteral("<b>Bold</b>"), QStringLiteral("Edit"),
                          QStringLiteral("edit"), QStringLiteral("view"), QStringLiteral("Zoom")}));
    QCOMPARE(m_box->currentIndex(), 0);
}

void TestCustomizeDialogHelper::listsCategoriesOfOneContext_data()
{
    QTest::addColumn<uint>("contextId");
    QTest::addColumn<QStringList>("categories");
    QTest::newRow("some") << 1U << QStringList({QStringLiteral("A"), QStringLiteral("c")});
    QTest::newRow("an empty one") << 2U << QStringList(QString());
    QTest::newRow("no actions") << 3U << QStringList();
    QTest::newRow("not registered") << 9U << QStringList();
}

void TestCustomizeDialogHelper::listsCategoriesOfOneContext()
{
    QFETCH(uint, contextId);
    QFETCH(QStringList, categories);
    for (unsigned long id = 1; id <= 3; ++id)
        m_host->registry()->addActionContext(id, QStringLiteral("Context %1").arg(id));
    for (const char *category : {"c", "A", "c"})
        addAction(1, category);
    addAction(2, "");
    addAction(9, "b");
    updateCategoryList(m_box.get(), contextId);
    QCOMPARE(textsOf(*m_box), QStringList(allCategories) + categories);
    QCOMPARE(m_box->currentIndex(), 0);
}

void TestCustomizeDialogHelper::translatesAllButTheCategory()
{
    DialogTranslator translator;
    QVERIFY(QCoreApplication::installTranslator(&translator));
    initializeContextList(m_box.get());
    QCOMPARE(textsOf(*m_box), QStringList(QStringLiteral("[All Groups]")));
    initializeCategoryList(m_box.get());
    QCOMPARE(textsOf(*m_box), QStringList(allCategories));
    initializeHotkeyFilterList(m_box.get());
    QCOMPARE(textsOf(*m_box), QStringList({QStringLiteral("[All Actions]"),
                                           QStringLiteral("[Assigned Hotkeys Only]"),
                                           QStringLiteral("[Customized Hotkeys Only]"),
                                           QStringLiteral("[Unsaved Hotkeys Only]")}));
    QCOMPARE(m_box->currentIndex(), 0);
}

void TestCustomizeDialogHelper::worksWithoutRegistry()
{
    std::unique_ptr<CUI::ICuiActionManager> none;
    CUI::ICuiActionManager::set(none);
    initializeContextList(m_box.get());
    QCOMPARE(textsOf(*m_box), QStringList(QStringLiteral("All Groups")));
    updateCategoryList(m_box.get(), 1);
    QCOMPARE(textsOf(*m_box), QStringList(allCategories));
}

QTEST_MAIN(TestCustomizeDialogHelper)
#include "tst_CustomizeDialogHelper.moc"
