#include "TestHost.h"
#include "Text.h"

#include <UiCustomizations/Preset.h>
#include <UiCustomizations/QvelMessageLog.h>

#include <QSignalSpy>
#include <QtTest>

#include <sys/stat.h>

using CUI::ConfigType;
using CUI::Preset;

class TestPreset : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup() { m_host.reset(); }
    void tellsShippedSetsByTheirPath();
    void writable();
    void keepsOtherPermissions();
    void lists();
    void leavesOutWhatIsNoSet();
    void seesEveryChange();
    void listsNothingWithoutHost();

private:
    QStringList listed() const;
    QString path(const char *name) const { return m_host->path(s(name)); }
    Preset preset(const char *name, bool locked = false) const
    {
        return Preset(path(name), locked, QString());
    }
    /// Writes a set whose root has those attributes.
    void writeSet(const char *name, const QByteArray &attributes = {}) const
    {
        m_host->write(s(name), "<VelHotkeyTransformations " + attributes + "/>");
    }
    std::unique_ptr<TestHost> m_host;
};

void TestPreset::init()
{
    m_host = std::make_unique<TestHost>();
    m_host->paths()->defaultPresets = path("shipped");
    m_host->paths()->userPresets = path("user");
    QVERIFY(QDir().mkpath(path("shipped")) && QDir().mkpath(path("user")));
}

// "folder/file=name" of each listed set, "!" for locked and "*" for shipped ones.
QStringList TestPreset::listed() const
{
    QStringList result;
    for (const Preset &preset : Preset::getPresetList(ConfigType::HotkeySet)) {
        QString text = QDir(path("")).relativeFilePath(preset.path());
        text += QLatin1Char('=') + preset.name();
        text += s(preset.isLocked() ? "!" : "") + s(preset.isDefaultHotkeySet() ? "*" : "");
        result << (preset.isCustomName() && preset.isValid() ? text : s("flags of ") + text);
    }
    return result;
}

void TestPreset::tellsShippedSetsByTheirPath()
{
    QVERIFY(preset("shipped/a.hsx").isDefaultHotkeySet());
    QVERIFY(preset("user/../shipped//./a.hsx").isDefaultHotkeySet());
    QVERIFY(preset("shipped-old/a.hsx").isDefaultHotkeySet()); // a longer name counts, too
    QVERIFY(!preset("Shipped/a.hsx").isDefaultHotkeySet());
    QVERIFY(!preset("user/a.hsx").isDefaultHotkeySet());
}

void TestPreset::writable()
{
    QVERIFY(preset("user/a.hsx").isWritable()); // a new file can be saved there
    writeSet("user/a.hsx");
    QVERIFY(preset("user/a.hsx").isWritable());
    QVERIFY(!preset("user/a.hsx", true).isWritable());
    Preset::setPresetFilesToReadOnly({preset("user/a.hsx"), preset("missing")});
    QVERIFY(Preset::isFileReadOnly(path("user/a.hsx"))); // for root, too
    QVERIFY(!preset("user/a.hsx").isWritable());
}

void TestPreset::keepsOtherPermissions()
{
    writeSet("user/a.hsx");
    const QByteArray file = QFile::encodeName(path("user/a.hsx"));
    QCOMPARE(chmod(file.constData(), 0765), 0);
    Preset::setPresetFilesToReadOnly({preset("user/a.hsx")});
    struct stat status {
    };
    QCOMPARE(stat(file.constData(), &status), 0);
    QCOMPARE(int(status.st_mode & 07777), 0565);
}

void TestPreset::lists()
{
    writeSet("shipped/b.hsx", "Locked='true' Description='Bee'");
    writeSet("shipped/a.hsx");
    writeSet("shipped/Z.hsx");
    writeSet("shipped/readme.txt");
    writeSet("user/a.b.hsx", "Description='' Locked='1'");
    writeSet("user/鍵.hsx");
    QCOMPARE(listed(), list("shipped/Z.hsx=Z*|shipped/a.hsx=a*|shipped/b.hsx=Bee!*|"
                            "user/a.b.hsx=a.b!|user/鍵.hsx=鍵"));
    QVERIFY(Preset::isFileReadOnly(path("shipped/Z.hsx")));
    QVERIFY(!Preset::isFileReadOnly(path("shipped/readme.txt")));
    QVERIFY(!Preset::isFileReadOnly(path("user/a.b.hsx")));
}

void TestPreset::leavesOutWhatIsNoSet()
{
    writeSet("user/good.hsx");
    writeSet("user/line\nbreak.hsx");
    m_host->write(s("user/half.hsx"), "<VelHotkeyTransformations><Assign_Hotkey");
    m_host->write(s("user/empty.hsx"), "");
    m_host->write(s("user/other.hsx"), "<VelHotkeys/>");
    QVERIFY(QDir().mkdir(path("user/folder.hsx")));
    QVERIFY(QFile::link(path("nowhere"), path("user/nowhere.hsx")));
    QVERIFY(QFile::link(path("user/self.hsx"), path("user/self.hsx")));
    QVERIFY(QFile::link(path("user/good.hsx"), path("user/link.hsx")));
    // Reading a pipe that nobody writes to would wait forever.
    QCOMPARE(mkfifo(QFile::encodeName(path("user/pipe.hsx")).constData(), 0600), 0);

    QSignalSpy lines(&CUI::QvelMessageLog::getInstance(), &CUI::QvelMessageLog::messageLogged);
    for (int round = 1; round <= 2; ++round) {
        QCOMPARE(listed(), list("user/good.hsx=good|user/line\nbreak.hsx=line\nbreak|"
                                "user/link.hsx=link"));
        QCOMPARE(lines.count(), 3 * round); // every listing names the three that are not valid
    }
}

// A file that is written again and again within the clock's resolution, at the same size.
void TestPreset::seesEveryChange()
{
    for (int round = 10; round < 70; ++round) {
        const QString name = QString::number(round);
        writeSet("user/a.hsx", "Description='" + name.toUtf8() + "'");
        QCOMPARE(listed(), QStringList(s("user/a.hsx=") + name));
    }
    QTest::qWait(80); // long enough for the file to be remembered
    for (int round = 0; round < 3; ++round)
        QCOMPARE(listed(), list("user/a.hsx=69"));
    writeSet("user/a.hsx", "Description='70'");
    QCOMPARE(listed(), list("user/a.hsx=70"));
    QVERIFY(QFile::remove(path("user/a.hsx")));
    QCOMPARE(listed(), QStringList());
}

void TestPreset::listsNothingWithoutHost()
{
    m_host->paths()->defaultPresets.clear();
    m_host->paths()->userPresets = path("missing");
    QVERIFY(listed().isEmpty());
    QVERIFY(!preset("a.hsx").isDefaultHotkeySet());
    std::unique_ptr<CUI::IPathManager> none;
    CUI::IPathManager::set(none);
    QVERIFY(listed().isEmpty());
}

QTEST_GUILESS_MAIN(TestPreset)
#include "tst_Preset.moc"
