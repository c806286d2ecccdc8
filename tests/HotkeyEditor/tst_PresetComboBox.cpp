#include "TestHost.h"
#include "Text.h"

#include <UiCustomizations/QvelPresetComboBox.h>

#include <QAbstractItemModel>
#include <QAbstractItemView>
#include <QHelpEvent>
#include <QTextDocument>
#include <QToolTip>
#include <QtTest>

using CUI::ConfigType;
using CUI::Preset;
using CUI::QvelPresetComboBox;

namespace {

Preset presetAt(const char *path, const char *name = "", bool locked = false)
{
    return Preset(s(path), locked, s(name));
}

QIcon iconOf(Qt::GlobalColor color)
{
    QPixmap pixmap(16, 16);
    pixmap.fill(color);
    return QIcon(pixmap);
}

} // namespace

class TestPresetComboBox : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { QLocale::setDefault(QLocale(QLocale::English)); }
    void init();
    void cleanup();

    void listsShippedSetsFirst();
    void marksWhatCannotBeWritten();
    void keepsTheCurrentPreset_data();
    void keepsTheCurrentPreset();
    void keepsPresetsFromElsewhere();
    void modifiesTheCurrentEntry();
    void marksUnsavedChanges();
    void showsToolTipsAsPlainText();

private:
    QString writeSet(const char *fileName, const char *attributes = "") const;
    void update(bool keepCurrent = false)
    {
        m_box->updatePresets(ConfigType::HotkeySet, keepCurrent);
    }
    QStringList texts() const;

    std::unique_ptr<TestHost> m_host;
    std::unique_ptr<QvelPresetComboBox> m_box;
};

void TestPresetComboBox::init()
{
    m_host = std::make_unique<TestHost>();
    m_host->paths()->defaultPresets = m_host->path(s("shipped"));
    m_host->paths()->userPresets = m_host->path(s("user"));
    QVERIFY(QDir().mkpath(m_host->paths()->defaultPresets));
    QVERIFY(QDir().mkpath(m_host->paths()->userPresets));
    m_box = std::make_unique<QvelPresetComboBox>();
}

void TestPresetComboBox::cleanup()
{
    m_box.reset();
    m_host.reset();
}

QString TestPresetComboBox::writeSet(const char *fileName, const char *attributes) const
{
    return m_host->write(s(fileName), QByteArray("<VelHotkeyTransformations ") + attributes + "/>");
}

QStringList TestPresetComboBox::texts() const
{
    QStringList found;
    for (int index = 0; index < m_box->count(); ++index)
        found << m_box->itemText(index);
    return found;
}

void TestPresetComboBox::listsShippedSetsFirst()
{
    writeSet("shipped/1.hsx", "Description='Zarvi Default Keyset'");
    writeSet("shipped/2.hsx", "Description='Velstudio Default Keyset'");
    writeSet("user/1.hsx", "Description='Beta'");
    writeSet("user/2.hsx", "Description='alpha'");
    update();
    const bool betaIsFirst = QString::localeAwareCompare(s("Beta"), s("alpha")) < 0;
    QCOMPARE(texts(), list("Velstudio Default Keyset|Zarvi Default Keyset")
                              + list(betaIsFirst ? "Beta|alpha" : "alpha|Beta"));
    m_box->updatePresets(ConfigType::Menu, false);
    QCOMPARE(m_box->count(), 0);
}

void TestPresetComboBox::marksWhatCannotBeWritten()
{
    const QString shipped = writeSet("shipped/1.hsx");
    writeSet("user/locked.hsx", "Locked='true'");
    writeSet("user/open.hsx");
    m_box->setLockIcon(iconOf(Qt::green));
    update();
    QCOMPARE(texts(), list("1|locked|open"));
    QVERIFY(!m_box->itemIcon(0).isNull() && !m_box->itemIcon(1).isNull());
    QVERIFY(m_box->itemIcon(2).isNull());
    QCOMPARE(m_box->itemData(0, Qt::ToolTipRole).toString(), shipped);
    QVERIFY(m_box->presetFromIndex(0).isDefaultHotkeySet());
    QVERIFY(!m_box->presetFromIndex(7).isValid());
}

void TestPresetComboBox::keepsTheCurrentPreset_data()
{
    QTest::addColumn<bool>("keepCurrent");
    QTest::addColumn<bool>("fileStays");
    QTest::addColumn<QStringList>("listed");
    QTest::addColumn<QString>("current");
    QTest::addColumn<int>("signalCount");
    QTest::newRow("kept without its file") << true << false << list("a|b") << "b" << 1;
    QTest::newRow("not kept, file gone") << false << false << list("a") << "a" << 0;
}

void TestPresetComboBox::keepsTheCurrentPreset()
{
    QFETCH(bool, keepCurrent);
    QFETCH(bool, fileStays);
    writeSet("user/a.hsx");
    const QString path = writeSet("user/b.hsx");
    update();
    QCOMPARE(m_box->setCurrentPreset(Preset(path, false, QString())), 1);
    QVERIFY(fileStays || QFile::remove(path));

    QSignalSpy indexChanges(m_box.get(), QOverload<int>::of(&QComboBox::currentIndexChanged));
    update(keepCurrent);
    QTEST(texts(), "listed");
    QTEST(m_box->currentPreset().name(), "current");
    QTEST(indexChanges.count(), "signalCount");
    QVERIFY(!m_box->signalsBlocked());
    m_box->blockSignals(true);
    update(keepCurrent);
    QVERIFY(m_box->signalsBlocked());
}

void TestPresetComboBox::keepsPresetsFromElsewhere()
{
    writeSet("user/b.hsx");
    const Preset elsewhere(writeSet("a.hsx"), false, s("a"));
    update();
    m_box->addNotInPathPreset(elsewhere, false);
    QCOMPARE(m_box->currentText(), s("b"));
    m_box->addNotInPathPreset(elsewhere, true);
    QCOMPARE(m_box->currentPreset(), elsewhere);
    update(true);
    QCOMPARE(texts(), list("a|b"));

    for (int i = 0; i < 2; ++i) { // the second time it is not there
        m_box->removePreset(elsewhere);
        QCOMPARE(texts(), list("b"));
    }
    update();
    QCOMPARE(texts(), list("a|b"));

    // Once the file is found in a preset directory as well, it is there twice.
    m_host->paths()->defaultPresets = m_host->path(QString());
    update();
    QCOMPARE(texts().count(s("a")), 2);
}

void TestPresetComboBox::modifiesTheCurrentEntry()
{
    m_box->modifyCurrentPreset(presetAt("/none"));
    QCOMPARE(m_box->count(), 0);
    m_box->addNotInPathPreset(presetAt("/a.hsx"), false);
    m_box->addNotInPathPreset(presetAt("/b.hsx"), false);

    QSignalSpy changes(m_box->model(), &QAbstractItemModel::dataChanged);
    m_box->modifyCurrentPreset(presetAt("/a.hsx", "a", true));
    QCOMPARE(changes.count(), 2); // the preset is taken out and put in; the text stays
    QVERIFY(m_box->currentPreset().isLocked());

    m_box->modifyCurrentPreset(presetAt("/c.hsx", "c"));
    QCOMPARE(texts(), list("c|b"));
    QCOMPARE(m_box->currentPreset().path(), s("/c.hsx"));
    QCOMPARE(m_box->itemData(0, Qt::ToolTipRole).toString(), s("/a.hsx"));
}

void TestPresetComboBox::marksUnsavedChanges()
{
    m_box->addNotInPathPreset(presetAt("/a.hsx", "a"), true);
    m_box->resize(400, 30);
    const QImage plain = m_box->grab().toImage();
    m_box->setCurPresetModified(true);
    const QImage marked = m_box->grab().toImage();
    QVERIFY(marked != plain);
    QCOMPARE(m_box->accessibleDescription(), s("[Unsaved Changes*]"));
    m_box->setUserModifiedColor(Qt::green);
    QVERIFY(m_box->grab().toImage() != marked);
    m_box->setCurPresetModified(false);
    QCOMPARE(m_box->grab().toImage(), plain);
    QVERIFY(m_box->accessibleDescription().isEmpty());
    m_box->setItemIcon(0, iconOf(Qt::green));
    const QImage green = m_box->grab().toImage();
    m_box->setItemIcon(0, iconOf(Qt::blue));
    QVERIFY(m_box->grab().toImage() != green);
}

void TestPresetComboBox::showsToolTipsAsPlainText()
{
    for (const char *path : {"/sets/&lt;a.hsx", "/sets/<b>a</b>.hsx", "/sets/a & b.hsx"})
        m_box->addNotInPathPreset(presetAt(path), false);
    m_box->show();
    QVERIFY(QTest::qWaitForWindowExposed(m_box.get()));
    m_box->showPopup();
    QAbstractItemView *popup = m_box->view();
    for (int row = 0; row < m_box->count(); ++row) {
        const QPoint place = popup->visualRect(popup->model()->index(row, 0)).center();
        QHelpEvent hover(QEvent::ToolTip, place, popup->viewport()->mapToGlobal(place));
        QCoreApplication::sendEvent(popup->viewport(), &hover);
        const QString shown = QToolTip::text();
        QToolTip::hideText();
        QTextDocument reader;
        reader.setHtml(shown);
        QCOMPARE(Qt::mightBeRichText(shown) ? reader.toPlainText() : shown,
                 m_box->presetFromIndex(row).path());
    }
}

QTEST_MAIN(TestPresetComboBox)
#include "tst_PresetComboBox.moc"
