#include "TestHost.h"

#include <UiCustomizations/QvelPresetComboBox.h>

#include <QAbstractItemModel>
#include <QAbstractItemView>
#include <QHelpEvent>
#include <QStyleFactory>
#include <QTextDocument>
#include <QToolTip>
#include <QTranslator>
#include <QtTest>

#include <algorithm>

using CUI::ConfigType;
using CUI::Preset;
using CUI::QvelPresetComboBox;

namespace {

QString s(const char *text)
{
    return QString::fromUtf8(text);
}

QStringList textsOf(const QvelPresetComboBox &box)
{
    QStringList texts;
    for (int index = 0; index < box.count(); ++index)
        texts << box.itemText(index);
    return texts;
}

QIcon iconOf(const QColor &color)
{
    QPixmap pixmap(16, 16);
    pixmap.fill(color);
    return QIcon(pixmap);
}

/// A box in the style that is the same everywhere, with a blue text.
class PaintedBox : public QvelPresetComboBox
{
public:
    PaintedBox()
    {
        m_style.reset(QStyleFactory::create(s("Fusion")));
        setStyle(m_style.get());
        QPalette blueText = palette();
        blueText.setColor(QPalette::Text, Qt::blue);
        setPalette(blueText);
        resize(400, 30);
    }

    /// Where its pixels are mostly of the color of that channel, 0 being red.
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
    QRect marker() { return extentOf(0); }
    QRect icon() { return extentOf(1); }
    QRect name() { return extentOf(2); }

private:
    std::unique_ptr<QStyle> m_style;
};

/// Translates the marker.
class MarkerTranslator : public QTranslator
{
public:
    bool isEmpty() const override { return false; }
    QString translate(const char *context, const char *source, const char *, int) const override
    {
        return qstrcmp(context, "CUI::QvelPresetComboBox") == 0
                               && qstrcmp(source, "[Unsaved Changes*]") == 0
                       ? s("!!")
                       : QString();
    }
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
    void showsToolTipsAsPlainText_data();
    void showsToolTipsAsPlainText();

private:
    QString writeSet(const char *fileName, const char *attributes) const;

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

void TestPresetComboBox::listsShippedSetsFirst()
{
    writeSet("shipped/1.hsx", "Description='Zarvi Default Keyset'");
    writeSet("shipped/2.hsx", "Description='Velstudio Default Keyset'");
    writeSet("user/1.hsx", "Description='Beta'");
    writeSet("user/2.hsx", "Description='alpha'");
    m_box->updatePresets(ConfigType::HotkeySet, false);

    QStringList users({s("Beta"), s("alpha")});
    std::sort(users.begin(), users.end(), [](const QString &a, const QString &b) {
        return QString::localeAwareCompare(a, b) < 0;
    });
    QCOMPARE(textsOf(*m_box),
             QStringList({s("Velstudio Default Keyset"), s("Zarvi Default Keyset")}) + users);
    m_box->updatePresets(ConfigType::Menu, false);
    QCOMPARE(m_box->count(), 0);
}

void TestPresetComboBox::marksWhatCannotBeWritten()
{
    const QString shipped = writeSet("shipped/1.hsx", "");
    writeSet("user/locked.hsx", "Locked='true'");
    writeSet("user/open.hsx", "");
    m_box->setLockIcon(iconOf(Qt::green));
    m_box->updatePresets(ConfigType::HotkeySet, false);

    QCOMPARE(textsOf(*m_box), QStringList({s("1"), s("locked"), s("open")}));
    QVERIFY(!m_box->itemIcon(0).isNull());
    QVERIFY(!m_box->itemIcon(1).isNull());
    QVERIFY(m_box->itemIcon(2).isNull());
    QCOMPARE(m_box->itemData(0, Qt::ToolTipRole).toString(), shipped);
    QCOMPARE(m_box->presetFromIndex(0).path(), shipped);
    QVERIFY(m_box->presetFromIndex(0).isDefaultHotkeySet());
    QVERIFY(!m_box->presetFromIndex(7).isValid());
}

void TestPresetComboBox::keepsTheCurrentPreset_data()
{
    QTest::addColumn<bool>("keepCurrent");
    QTest::addColumn<bool>("fileStays");
    QTest::addColumn<QStringList>("texts");
    QTest::addColumn<QString>("current");
    QTest::addColumn<int>("signalCount");

    const QStringList both({s("a"), s("b")});
    QTest::newRow("kept") << true << true << both << "b" << 1;
    QTest::newRow("kept without its file") << true << false << both << "b" << 1;
    QTest::newRow("not kept") << false << true << both << "a" << 0;
    QTest::newRow("not kept, file gone") << false << false << QStringList(s("a")) << "a" << 0;
}

void TestPresetComboBox::keepsTheCurrentPreset()
{
    QFETCH(bool, keepCurrent);
    QFETCH(bool, fileStays);
    QFETCH(QStringList, texts);
    writeSet("user/a.hsx", "");
    const QString path = writeSet("user/b.hsx", "");
    m_box->updatePresets(ConfigType::HotkeySet, false);
    QCOMPARE(m_box->setCurrentPreset(Preset(path, false, QString())), 1);
    QVERIFY(fileStays || QFile::remove(path));

    QSignalSpy indexChanges(m_box.get(), QOverload<int>::of(&QComboBox::currentIndexChanged));
    m_box->updatePresets(ConfigType::HotkeySet, keepCurrent);
    QCOMPARE(textsOf(*m_box), texts);
    QTEST(m_box->currentPreset().name(), "current");
    QTEST(indexChanges.count(), "signalCount");
    QVERIFY(!m_box->signalsBlocked());

    m_box->blockSignals(true);
    m_box->updatePresets(ConfigType::HotkeySet, keepCurrent);
    QVERIFY(m_box->signalsBlocked());
}

void TestPresetComboBox::startsAtTheFirstListedPreset()
{
    writeSet("user/1.hsx", "Description='Z'");
    writeSet("user/2.hsx", "Description='A'");
    m_box->updatePresets(ConfigType::HotkeySet, true);
    QCOMPARE(textsOf(*m_box), QStringList({s("A"), s("Z")}));
    QCOMPARE(m_box->currentText(), s("Z"));
}

void TestPresetComboBox::keepsPresetsFromElsewhere()
{
    writeSet("user/b.hsx", "");
    const Preset elsewhere(writeSet("a.hsx", ""), false, s("a"));
    m_box->updatePresets(ConfigType::HotkeySet, false);

    m_box->addNotInPathPreset(elsewhere, false);
    QCOMPARE(m_box->currentText(), s("b"));
    m_box->addNotInPathPreset(elsewhere, true);
    QCOMPARE(textsOf(*m_box), QStringList({s("a"), s("b")}));
    QCOMPARE(m_box->currentPreset(), elsewhere);
    m_box->updatePresets(ConfigType::HotkeySet, true);
    QCOMPARE(textsOf(*m_box), QStringList({s("a"), s("b")}));

    m_box->removePreset(elsewhere);
    QCOMPARE(textsOf(*m_box), QStringList(s("b")));
    m_box->removePreset(elsewhere);
    QCOMPARE(textsOf(*m_box), QStringList(s("b")));
    m_box->updatePresets(ConfigType::HotkeySet, false);
    QCOMPARE(textsOf(*m_box), QStringList({s("a"), s("b")}));

    // Once the file is found in a preset directory as well, it is there twice.
    m_host->paths()->defaultPresets = m_host->path(QString());
    m_box->updatePresets(ConfigType::HotkeySet, false);
    QCOMPARE(textsOf(*m_box).count(s("a")), 2);
}

void TestPresetComboBox::findsByPath()
{
    const Preset preset(s("/nowhere/Set.hsx"), false, s("<b>Set</b> & more"));
    m_box->addItem(s("no preset"));
    m_box->addNotInPathPreset(preset, true);
    QCOMPARE(m_box->currentText(), s("<b>Set</b> & more"));
    QCOMPARE(m_box->findPreset(Preset(s("/nowhere/Set.hsx"), true, s("other"))),
             m_box->currentIndex());
    QVERIFY(!m_box->containsPreset(Preset(s("/nowhere/set.hsx"), false, QString())));
    QVERIFY(!m_box->containsPreset(Preset()));

    QCOMPARE(m_box->setCurrentPreset(Preset(s("/nowhere"), false, QString())), -1);
    QCOMPARE(m_box->currentIndex(), -1);
    QVERIFY(!m_box->currentPreset().isValid());
}

void TestPresetComboBox::modifiesTheCurrentEntry()
{
    m_box->modifyCurrentPreset(Preset(s("/none"), false, QString()));
    QCOMPARE(m_box->count(), 0);
    m_box->addNotInPathPreset(Preset(s("/a.hsx"), false, QString()), false);
    m_box->addNotInPathPreset(Preset(s("/b.hsx"), false, QString()), false);

    QSignalSpy changes(m_box->model(), &QAbstractItemModel::dataChanged);
    m_box->modifyCurrentPreset(Preset(s("/a.hsx"), true, s("a")));
    QCOMPARE(changes.count(), 2); // the preset is taken out and put in; the text stays
    QVERIFY(m_box->currentPreset().isLocked());

    m_box->modifyCurrentPreset(Preset(s("/c.hsx"), false, s("c")));
    QCOMPARE(textsOf(*m_box), QStringList({s("c"), s("b")}));
    QCOMPARE(m_box->presetFromIndex(0).path(), s("/c.hsx"));
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
    PaintedBox box;
    box.addItem(withIcon ? iconOf(Qt::green) : QIcon(), text);
    box.setEditable(editable);
    box.setCurPresetModified(modified);

    QMap<int, QChar> parts;
    if (!box.icon().isNull())
        parts.insert(box.icon().left(), QLatin1Char('i'));
    if (!box.name().isNull())
        parts.insert(box.name().left(), QLatin1Char('n'));
    if (!box.marker().isNull())
        parts.insert(box.marker().left(), QLatin1Char('m'));
    QString painted;
    for (const QChar part : qAsConst(parts))
        painted += part;
    QTEST(painted, "parts");
    QVERIFY(!box.name().intersects(box.marker()));
    QVERIFY(!box.name().intersects(box.icon()));

    box.setUserModifiedColor(Qt::green);
    QVERIFY(box.marker().isNull());
}

void TestPresetComboBox::paintsFromRightToLeft()
{
    PaintedBox box;
    box.addItem(iconOf(Qt::green), s("Set"));
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
    PaintedBox box;
    box.addItem(s("Set"));
    box.setCurPresetModified(true);
    const QSize marker = box.marker().size();
    const int height = box.name().height();
    box.setItemText(0,
                    QString(200, QLatin1Char('.')) + QLatin1Char('S')); // what is cut off is dots
    QCOMPARE(box.marker().size(), marker);
    QVERIFY(box.name().width() > 100);
    QVERIFY(box.name().height() >= height - 2);
    QVERIFY(box.name().right() < box.marker().left());

    // No room for any name, then not even for the marker.
    for (int width = 200; width > 0; width -= 3) {
        box.resize(width, 30);
        QVERIFY(box.name().isNull() || box.name().right() < box.marker().left());
    }
}

void TestPresetComboBox::translatesTheMarker()
{
    PaintedBox box;
    box.setCurPresetModified(true);
    const int untranslated = box.marker().width();
    MarkerTranslator translator;
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

void TestPresetComboBox::showsToolTipsAsPlainText_data()
{
    QTest::addColumn<QString>("path");
    QTest::newRow("plain") << "/sets/a & b.hsx";
    QTest::newRow("tag") << "/sets/<b>a</b>.hsx";
    QTest::newRow("entity") << "/sets/&lt;a.hsx";
}

void TestPresetComboBox::showsToolTipsAsPlainText()
{
    QFETCH(QString, path);
    m_box->addNotInPathPreset(Preset(path, false, QString()), true);
    m_box->show();
    QVERIFY(QTest::qWaitForWindowExposed(m_box.get()));
    m_box->showPopup();

    QAbstractItemView *list = m_box->view();
    const QPoint place = list->visualRect(list->model()->index(0, 0)).center();
    QHelpEvent hover(QEvent::ToolTip, place, list->viewport()->mapToGlobal(place));
    QCoreApplication::sendEvent(list->viewport(), &hover);

    const QString shown = QToolTip::text();
    QTextDocument reader;
    reader.setHtml(shown);
    QCOMPARE(Qt::mightBeRichText(shown) ? reader.toPlainText() : shown, path);
    QToolTip::hideText();
}

QTEST_MAIN(TestPresetComboBox)
#include "tst_PresetComboBox.moc"
