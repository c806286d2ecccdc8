#include "OneTextTranslator.h"
#include "TestHost.h"
#include "Text.h"

#include <UiCustomizations/QvelPresetComboBox.h>

#include <QAbstractItemModel>
#include <QAbstractItemView>
#include <QHelpEvent>
#include <QStyleFactory>
#include <QTextDocument>
#include <QToolTip>
#include <QtTest>

#include <algorithm>

using CUI::ConfigType;
using CUI::Preset;
using CUI::QvelPresetComboBox;

namespace {

Preset presetAt(const char *path, const char *name = "", bool locked = false)
{
    return Preset(s(path), locked, s(name));
}

QIcon greenIcon()
{
    QPixmap pixmap(16, 16);
    pixmap.fill(Qt::green);
    return QIcon(pixmap);
}

/// A box in the style that is the same everywhere. Its marker is red, its icon green and its name
/// blue.
class PaintedBox : public QvelPresetComboBox
{
public:
    explicit PaintedBox(const QString &text = QString(), const QIcon &icon = QIcon())
    {
        setStyle(m_style.get());
        QPalette blueText = palette();
        blueText.setColor(QPalette::Text, Qt::blue);
        setPalette(blueText);
        resize(400, 30);
        addItem(icon, text);
    }

    QRect marker() { return extentOf(0); }
    QRect icon() { return extentOf(1); }
    QRect name() { return extentOf(2); }

private:
    /// Where its pixels are mostly of the color of that channel.
    QRect extentOf(int channel)
    {
        const QImage image = grab().toImage();
        QRect extent;
        for (int y = 0; y < image.height(); ++y) {
            for (int x = 0; x < image.width(); ++x) {
                const QRgb pixel = image.pixel(x, y);
                int channels[] = {qRed(pixel), qGreen(pixel), qBlue(pixel)};
                std::swap(channels[0], channels[channel]);
                if (channels[0] - std::max(channels[1], channels[2]) > 60)
                    extent |= QRect(x, y, 1, 1);
            }
        }
        return extent;
    }

    std::unique_ptr<QStyle> m_style{QStyleFactory::create(s("Fusion"))};
};

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
    void startsAtTheFirstListedPreset();
    void keepsPresetsFromElsewhere();
    void findsByPath();
    void modifiesTheCurrentEntry();
    void paints_data();
    void paints();
    void paintsFromRightToLeft();
    void shortensTheNameOnly();
    void translatesTheMarker();
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
    m_box->setLockIcon(greenIcon());
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
    QTest::newRow("kept") << true << true << list("a|b") << "b" << 1;
    QTest::newRow("kept without its file") << true << false << list("a|b") << "b" << 1;
    QTest::newRow("not kept") << false << true << list("a|b") << "a" << 0;
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

void TestPresetComboBox::startsAtTheFirstListedPreset()
{
    writeSet("user/1.hsx", "Description='Z'");
    writeSet("user/2.hsx", "Description='A'");
    update(true);
    QCOMPARE(texts(), list("A|Z"));
    QCOMPARE(m_box->currentText(), s("Z"));
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

void TestPresetComboBox::findsByPath()
{
    m_box->addItem(s("no preset"));
    m_box->addNotInPathPreset(presetAt("/nowhere/Set.hsx", "<b>Set</b> & more"), true);
    QCOMPARE(m_box->currentText(), s("<b>Set</b> & more"));
    const Preset samePath = presetAt("/nowhere/Set.hsx", "other", true);
    QCOMPARE(m_box->findPreset(samePath), m_box->currentIndex());
    QVERIFY(!m_box->containsPreset(presetAt("/nowhere/set.hsx")));
    QVERIFY(!m_box->containsPreset(Preset()));

    QCOMPARE(m_box->setCurrentPreset(presetAt("/nowhere")), -1);
    QCOMPARE(m_box->currentIndex(), -1);
    QVERIFY(!m_box->currentPreset().isValid());
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

void TestPresetComboBox::paints_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<bool>("modified");
    QTest::addColumn<bool>("editable");
    QTest::addColumn<bool>("withIcon");
    QTest::addColumn<QString>("parts"); // from left to right
    QTest::newRow("name") << "Set" << false << false << false << "n";
    QTest::newRow("name, modified") << "Set" << true << false << false << "nm";
    QTest::newRow("icon and name") << "Set" << false << false << true << "in";
    QTest::newRow("icon and name, modified") << "Set" << true << false << true << "inm";
    QTest::newRow("nothing") << "" << false << false << false << "";
    QTest::newRow("nothing, modified") << "" << true << false << false << "m";
    QTest::newRow("editable, modified") << "Set" << true << true << true << "n"; // by the line edit
}

void TestPresetComboBox::paints()
{
    QFETCH(QString, text);
    QFETCH(bool, modified);
    QFETCH(bool, editable);
    QFETCH(bool, withIcon);
    PaintedBox box(text, withIcon ? greenIcon() : QIcon());
    box.setEditable(editable);
    box.setCurPresetModified(modified);

    QMap<int, QString> parts;
    for (const auto &[part, name] :
         {std::pair(box.icon(), "i"), std::pair(box.name(), "n"), std::pair(box.marker(), "m")}) {
        if (!part.isNull())
            parts.insert(part.left(), s(name));
    }
    QTEST(QStringList(parts.values()).join(QString()), "parts");
    QVERIFY(!box.name().intersects(box.marker()));
    QVERIFY(!box.name().intersects(box.icon()));

    box.setUserModifiedColor(Qt::green);
    QVERIFY(box.marker().isNull());
}

void TestPresetComboBox::paintsFromRightToLeft()
{
    PaintedBox box(s("Set"), greenIcon());
    box.setCurPresetModified(true);
    const int iconGap = box.name().left() - box.icon().right();
    const int markerGap = box.marker().left() - box.name().right();
    box.setLayoutDirection(Qt::RightToLeft);
    QVERIFY(box.marker().right() < box.name().left());
    QVERIFY(box.name().right() < box.icon().left());
    // Characters have room of their own at their sides, not the same at both.
    QVERIFY(qAbs(box.icon().left() - box.name().right() - iconGap) <= 3);
    QVERIFY(qAbs(box.name().left() - box.marker().right() - markerGap) <= 3);
}

void TestPresetComboBox::shortensTheNameOnly()
{
    PaintedBox box(s("Set"));
    box.setCurPresetModified(true);
    const QSize marker = box.marker().size();
    const int height = box.name().height();
    box.setItemText(0, QString(200, QLatin1Char('.')) + s("S")); // what is cut off is dots
    QCOMPARE(box.marker().size(), marker);
    QVERIFY(box.name().width() > 100);
    QVERIFY(box.name().height() >= height - 2);

    // No room for any name, then not even for the marker.
    for (int width = 400; width > 0; width -= 4) {
        box.resize(width, 30);
        QVERIFY(box.name().isNull() || box.name().right() < box.marker().left());
    }
}

void TestPresetComboBox::translatesTheMarker()
{
    PaintedBox box;
    box.setCurPresetModified(true);
    const int untranslated = box.marker().width();
    OneTextTranslator translator("CUI::QvelPresetComboBox", "[Unsaved Changes*]", "!!");
    QVERIFY(QCoreApplication::installTranslator(&translator));
    QVERIFY(box.marker().width() < untranslated / 2);

    // It is read out, too.
    QApplication::sendPostedEvents();
    QCOMPARE(box.accessibleDescription(), s("!!"));
    QCoreApplication::removeTranslator(&translator);
    QApplication::sendPostedEvents();
    QCOMPARE(box.accessibleDescription(), s("[Unsaved Changes*]"));
    box.setCurPresetModified(false);
    QVERIFY(box.accessibleDescription().isEmpty());
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
