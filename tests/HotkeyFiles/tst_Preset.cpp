#include "TestHost.h"

#include <UiCustomizations/Preset.h>
#include <UiCustomizations/QvelMessageLog.h>

#include <QSignalSpy>
#include <QTranslator>
#include <QtTest>

#include <utility>

#include <sys/stat.h>

using CUI::ConfigType;
using CUI::Preset;

namespace {

QString s(const char *text)
{
    return QString::fromUtf8(text);
}

const char *const emptySet = "<VelHotkeyTransformations/>";

/// Translates one name, as the translations of the shipped sets do.
class NameTranslator : public QTranslator
{
public:
    bool isEmpty() const override { return false; }
    QString translate(const char *context, const char *sourceText, const char *, int) const override
    {
        return qstrcmp(context, "CUI") == 0 && s(sourceText) == s("Défaut") ? s("Default")
                                                                            : QString();
    }
};

} // namespace

class TestPreset : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup() { m_host.reset(); }
    void comparesByPath();
    void namesItself_data();
    void namesItself();
    void tellsShippedSetsByTheirPath_data();
    void tellsShippedSetsByTheirPath();
    void writable();
    void keepsOtherPermissions();
    void lists();
    void listsSymlinkedPathsOnce();
    void translatesNames();
    void leavesOutWhatIsNoSet();
    void seesEveryChange();
    void listsNothingOfMenus();
    void listsNothingWithoutHost();

private:
    QStringList listed() const;
    void writeSet(const QString &path, const QByteArray &contents = emptySet) const;
    std::unique_ptr<TestHost> m_host;
};

void TestPreset::init()
{
    m_host = std::make_unique<TestHost>();
    m_host->paths()->defaultPresets = m_host->path(s("shipped"));
    m_host->paths()->userPresets = m_host->path(s("user"));
    QDir().mkpath(m_host->path(s("shipped")));
    QDir().mkpath(m_host->path(s("user")));
}

// "folder/file=name" of each listed set, "!" for locked and "*" for shipped ones.
QStringList TestPreset::listed() const
{
    QStringList result;
    for (const Preset &preset : Preset::getPresetList(ConfigType::HotkeySet)) {
        QString text = QDir(m_host->path(QString())).relativeFilePath(preset.path());
        text += QLatin1Char('=') + preset.name();
        text += s(preset.isLocked() ? "!" : "") + s(preset.isDefaultHotkeySet() ? "*" : "");
        result << (preset.isCustomName() && preset.isValid() ? text : s("flags of ") + text);
    }
    return result;
}

void TestPreset::writeSet(const QString &path, const QByteArray &contents) const
{
    m_host->write(path, contents);
}

void TestPreset::comparesByPath()
{
    const Preset a(s("/a.hsx"), false, s("A"));
    QVERIFY(a == Preset(s("/a.hsx"), true, s("B")));
    QVERIFY(a != Preset(s("/A.hsx"), false, s("A")));
    QVERIFY(Preset(s("/B.hsx"), false, s("A")) < a); // by code units
    QVERIFY(!(a < a));
    QVERIFY(!Preset().isValid());
}

void TestPreset::namesItself_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<QString>("given");
    QTest::addColumn<QString>("name");
    QTest::newRow("up to the first dot") << "/x/My.Keys.hsx"
                                         << ""
                                         << "My";
    QTest::newRow("given") << "/x/My.Keys.hsx"
                           << "Mine"
                           << "Mine";
    QTest::newRow("no path") << ""
                             << ""
                             << "";
}

void TestPreset::namesItself()
{
    QFETCH(QString, path);
    QFETCH(QString, given);
    Preset preset(path, false, given);
    QTEST(preset.name(), "name");
    QCOMPARE(preset.isCustomName(), !given.isEmpty());
    preset.setName(s("Later"));
    QCOMPARE(preset.name(), s("Later"));
    QVERIFY(preset.isCustomName());
}

void TestPreset::tellsShippedSetsByTheirPath_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<bool>("shipped");
    QTest::newRow("inside") << "shipped/a.hsx" << true;
    QTest::newRow("by a detour") << "user/../shipped//./a.hsx" << true;
    QTest::newRow("folder beside it with a longer name") << "shipped-old/a.hsx" << true;
    QTest::newRow("other letter case") << "Shipped/a.hsx" << false;
    QTest::newRow("other folder") << "user/a.hsx" << false;
}

void TestPreset::tellsShippedSetsByTheirPath()
{
    QFETCH(QString, path);
    QTEST(Preset(m_host->path(path), false, QString()).isDefaultHotkeySet(), "shipped");
}

void TestPreset::writable()
{
    const QString path = m_host->path(s("user/a.hsx"));
    QVERIFY(Preset(path, false, QString()).isWritable()); // a new file can be saved there
    QVERIFY(!Preset::isFileReadOnly(path));
    writeSet(s("user/a.hsx"));
    QVERIFY(Preset(path, false, QString()).isWritable());
    QVERIFY(!Preset(path, true, QString()).isWritable());
    Preset::setPresetFilesToReadOnly(
            {Preset(path, false, QString()), Preset(m_host->path(s("missing")), false, QString())});
    QVERIFY(Preset::isFileReadOnly(path)); // for root, too
    QVERIFY(!Preset(path, false, QString()).isWritable());
}

void TestPreset::keepsOtherPermissions()
{
    writeSet(s("user/a.hsx"));
    const QByteArray path = QFile::encodeName(m_host->path(s("user/a.hsx")));
    QCOMPARE(chmod(path.constData(), 0765), 0);
    Preset::setPresetFilesToReadOnly({Preset(QFile::decodeName(path), false, QString())});
    struct stat status {
    };
    QCOMPARE(stat(path.constData(), &status), 0);
    QCOMPARE(int(status.st_mode & 07777), 0565);
}

void TestPreset::lists()
{
    writeSet(s("shipped/b.hsx"), "<VelHotkeyTransformations Locked='true' Description='Bee'/>");
    writeSet(s("shipped/a.hsx"));
    writeSet(s("shipped/Z.hsx"));
    writeSet(s("shipped/readme.txt"));
    writeSet(s("user/a.b.hsx"), "<VelHotkeyTransformations Description='' Locked='1'/>");
    writeSet(s("user/鍵.hsx"));
    QCOMPARE(listed(),
             QStringList({s("shipped/Z.hsx=Z*"), s("shipped/a.hsx=a*"), s("shipped/b.hsx=Bee!*"),
                          s("user/a.b.hsx=a.b!"), s("user/鍵.hsx=鍵")}));
    QVERIFY(Preset::isFileReadOnly(m_host->path(s("shipped/Z.hsx"))));
    QVERIFY(!Preset::isFileReadOnly(m_host->path(s("shipped/readme.txt"))));
    QVERIFY(!Preset::isFileReadOnly(m_host->path(s("user/a.b.hsx"))));
}

void TestPreset::listsSymlinkedPathsOnce()
{
    writeSet(s("shipped/a.hsx"));
    m_host->paths()->userPresets = m_host->path(s("user/../shipped/"));
    QCOMPARE(listed(), QStringList(s("shipped/a.hsx=a*")));
}

void TestPreset::translatesNames()
{
    NameTranslator translator;
    QCoreApplication::installTranslator(&translator);
    writeSet(s("shipped/a.hsx"), "<VelHotkeyTransformations Description='Défaut'/>");
    writeSet(s("user/b.hsx"), "<VelHotkeyTransformations Description='Autre'/>");
    QCOMPARE(listed(), QStringList({s("shipped/a.hsx=Default*"), s("user/b.hsx=Autre")}));
}

void TestPreset::leavesOutWhatIsNoSet()
{
    writeSet(s("user/good.hsx"));
    writeSet(s("user/line\nbreak.hsx"));
    writeSet(s("user/half.hsx"), "<VelHotkeyTransformations><Assign_Hotkey");
    writeSet(s("user/empty.hsx"), "");
    writeSet(s("user/other.hsx"), "<VelHotkeys/>");
    QVERIFY(QDir().mkdir(m_host->path(s("user/folder.hsx"))));
    QVERIFY(QFile::link(m_host->path(s("nowhere")), m_host->path(s("user/nowhere.hsx"))));
    QVERIFY(QFile::link(m_host->path(s("user/self.hsx")), m_host->path(s("user/self.hsx"))));
    QVERIFY(QFile::link(m_host->path(s("user/good.hsx")), m_host->path(s("user/link.hsx"))));
    // Reading a pipe that nobody writes to would wait forever.
    QCOMPARE(mkfifo(QFile::encodeName(m_host->path(s("user/pipe.hsx"))).constData(), 0600), 0);

    QSignalSpy lines(&CUI::QvelMessageLog::getInstance(), &CUI::QvelMessageLog::messageLogged);
    const QStringList expected{s("user/good.hsx=good"), s("user/line\nbreak.hsx=line\nbreak"),
                               s("user/link.hsx=link")};
    for (int round = 1; round <= 2; ++round) {
        QCOMPARE(listed(), expected);
        QCOMPARE(lines.count(), 3 * round); // every listing names the three that are not valid
    }
}

// A file that is written again and again within the clock's resolution, at the same size.
void TestPreset::seesEveryChange()
{
    for (int round = 0; round < 60; ++round) {
        const QByteArray name = QByteArray::number(10 + round);
        writeSet(s("user/a.hsx"), "<VelHotkeyTransformations Description='" + name + "'/>");
        QCOMPARE(listed(), QStringList(s("user/a.hsx=") + s(name)));
    }
    QTest::qWait(80); // long enough for the file to be remembered
    for (int round = 0; round < 3; ++round)
        QCOMPARE(listed(), QStringList(s("user/a.hsx=69")));
    writeSet(s("user/a.hsx"), "<VelHotkeyTransformations Description='70'/>");
    QCOMPARE(listed(), QStringList(s("user/a.hsx=70")));
    QVERIFY(QFile::remove(m_host->path(s("user/a.hsx"))));
    QCOMPARE(listed(), QStringList());
}

void TestPreset::listsNothingOfMenus()
{
    writeSet(s("shipped/a.mnuxt"));
    writeSet(s("shipped/a.hsx"));
    QVERIFY(Preset::getPresetList(ConfigType::Menu).isEmpty());
    QVERIFY(Preset::getPresetList(static_cast<ConfigType>(7)).isEmpty());
    QVERIFY(!Preset::isFileReadOnly(m_host->path(s("shipped/a.hsx"))));
}

void TestPreset::listsNothingWithoutHost()
{
    m_host->paths()->defaultPresets.clear();
    m_host->paths()->userPresets = m_host->path(s("missing"));
    QVERIFY(listed().isEmpty());
    QVERIFY(!Preset(m_host->path(s("a.hsx")), false, QString()).isDefaultHotkeySet());
    std::unique_ptr<CUI::IPathManager> none;
    CUI::IPathManager::set(none);
    QVERIFY(Preset::getPresetList(ConfigType::HotkeySet).isEmpty());
}

QTEST_GUILESS_MAIN(TestPreset)
#include "tst_Preset.moc"
