#include "OneTextTranslator.h"
#include "SampleHost.h"
#include "ToolHost.h"

#include <QDir>
#include <QFile>
#include <QJsonDocument>
#include <QJsonObject>
#include <QtTest>

#include <sys/stat.h>

/// The commands that choose among sets and compare them: sets, use and diff, and sets by name.
class HotkeyCtlSetsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void listsTheSets();
    void tellsOfACurrentSetThatIsNotListed();
    void usesASet_data();
    void usesASet();
    void recordsTheDefaultSetWhenItIsChosen();
    void refusesWhatIsNoSet_data();
    void refusesWhatIsNoSet();
    void saysWhenTheChoiceCannotBeRecorded();
    void prefersAFileOfTheName();
    void knowsANameBeforeAndAfterTranslation();
    void compares_data();
    void compares();
    void comparesAsTheListsDo();

private:
    QString path(const char *name) const { return m_host->path(name); }

    std::unique_ptr<ToolHost> m_host;
};

namespace {

QByteArray described(const QByteArray &description, const QByteArray &steps)
{
    return "<VelHotkeyTransformations Description=\"" + description + "\">" + steps
           + "</VelHotkeyTransformations>";
}

} // namespace

void HotkeyCtlSetsTest::init()
{
    m_host = std::make_unique<ToolHost>();
    m_host->write("user/a.hsx", described("Mine", step("Assign", "F9", "1-plain")));
    m_host->write("user/b.hsx", described("Twin", step("Assign", "F10", "1-plain")));
    m_host->write("user/c.hsx", described("Twin", ""));
    QVERIFY(QFile::setPermissions(path("user/c.hsx"), QFileDevice::ReadOwner));
    m_host->writeSet("user/line\nbreak.hsx", "", true);
    m_host->writeSet("user/鍵.hsx", "");
    m_host->write("elsewhere/d.hsx", described("Elsewhere", step("Assign", "F11", "1-plain")));
    // None of these is a set, and reading the pipe would wait forever.
    m_host->write("user/broken.hsx", described("Broken", "<Oops/>"));
    QVERIFY(QDir().mkdir(path("user/folder.hsx")));
    QVERIFY(QFile::link(path("nowhere"), path("user/nowhere.hsx")));
    QVERIFY(QFile::link(path("user/self.hsx"), path("user/self.hsx")));
    QCOMPARE(mkfifo(QFile::encodeName(path("user/pipe.hsx")).constData(), 0600), 0);
}

void HotkeyCtlSetsTest::listsTheSets()
{
    m_host->write("user/bell\a.hsx", "");
    const Outcome outcome = m_host->run("sets");
    QCOMPARE(outcome.done(),
             m_host->text("NAME         LOCKED  SHIPPED  CURRENT  WRITABLE  PATH\n"
                          "Default      yes     yes      yes      no        "
                          "@/host/presets/Default.hsx\n"
                          "Mine         no      no       no       yes       @/user/a.hsx\n"
                          "Twin         no      no       no       yes       @/user/b.hsx\n"
                          "Twin         no      no       no       no        @/user/c.hsx\n"
                          "line\\nbreak  yes     no       no       no        "
                          "@/user/line\\nbreak.hsx\n"
                          "鍵           no      no       no       yes       @/user/鍵.hsx\n"));
    for (const char *name : {"user/broken.hsx", "user/bell\\u0007.hsx"})
        QVERIFY2(outcome.err.contains(path(name)), qPrintable(outcome.err));
    QVERIFY(!m_host->exists("user/current.json"));

    const QStringList json = m_host->run("sets --format json").lines();
    QCOMPARE(json.value(1), m_host->text("  {\"name\": \"Default\", \"locked\": true, "
                                         "\"shipped\": true, \"current\": true, \"writable\": false"
                                         ", \"path\": \"@/host/presets/Default.hsx\"},"));
    QCOMPARE(json.value(5), m_host->text("  {\"name\": \"line\\nbreak\", \"locked\": true, "
                                         "\"shipped\": false, \"current\": false, \"writable\": "
                                         "false, \"path\": \"@/user/line\\nbreak.hsx\"},"));
    QCOMPARE(json.size(), 8);
    QCOMPARE(json.filter(s("\"writable\": true")).size(), 3);
}

void HotkeyCtlSetsTest::tellsOfACurrentSetThatIsNotListed()
{
    QCOMPARE(m_host->run("use @/elsewhere/d.hsx").code, 0);
    QCOMPARE(m_host->run("sets").lines().last(),
             m_host->text("The current set is not among them: @/elsewhere/d.hsx"));
    // A detour to a listed file is not another set.
    QVERIFY(QFile::link(path("user"), path("detour")));
    QCOMPARE(m_host->run("use @/detour/a.hsx").code, 0);
    QVERIFY(m_host->run("sets --format json").json().at(1).toObject()[s("current")].toBool());
}

void HotkeyCtlSetsTest::usesASet_data()
{
    QTest::addColumn<QString>("file");
    const auto row = [](const char *set, const char *file) { QTest::newRow(set) << file; };
    row("Mine", "user/a.hsx");
    row("Default", "host/presets/Default.hsx");
    row("鍵", "user/鍵.hsx");
    row("\"line\nbreak\"", "user/line\nbreak.hsx");
    row("line\\nbreak", "user/line\nbreak.hsx"); // as it is printed
    row("@/user/c.hsx", "user/c.hsx");
    row("@/user/../elsewhere/d.hsx", "elsewhere/d.hsx");
}

void HotkeyCtlSetsTest::usesASet()
{
    QFETCH(QString, file);
    const Outcome outcome = m_host->run(s("use ") + s(QTest::currentDataTag()));
    QVERIFY2(outcome.code == 0 && outcome.lines().size() == 1, qPrintable(outcome.everything()));
    const QJsonDocument record = QJsonDocument::fromJson(ToolHost::read(path("user/current.json")));
    QCOMPARE(record.object().value(s("hotkeySet")).toString(), m_host->path(file));
    Host::SampleHost next(path("host"), path("user"));
    QVERIFY(next.load());
    QCOMPARE(next.paths()->getCurrentConfigurationFile(CUI::ConfigType::HotkeySet),
             m_host->path(file));
}

void HotkeyCtlSetsTest::recordsTheDefaultSetWhenItIsChosen()
{
    m_host->writeSet("away.hsx", "");
    QCOMPARE(m_host->run("use @/away.hsx").code, 0);
    QVERIFY(QFile::remove(path("away.hsx"))); // the default is what is in use now
    QCOMPARE(m_host->run("use Default").code, 0);
    m_host->writeSet("away.hsx", "");
    QCOMPARE(m_host->run("owner F12").done(), s("Editing: Cut (1-cut)\n"));
}

void HotkeyCtlSetsTest::refusesWhatIsNoSet_data()
{
    QTest::addColumn<QString>("error");
    const auto row = [](const char *set, const char *error) { QTest::newRow(set) << error; };
    row("Twin",
        "several hotkey sets are named 'Twin'; their paths are: @/user/b.hsx, @/user/c.hsx");
    row("twin", "there is neither a file nor a hotkey set 'twin'; the sets are: Default, Mine, "
                "Twin, Twin, line\\nbreak, 鍵");
    row("Broken", "there is neither a file nor a hotkey set 'Broken'");
    row("@/user/broken.hsx", "@/user/broken.hsx: not valid: ");
    row("@/user/folder.hsx", "@/user/folder.hsx: is not a regular file");
    row("@/user/pipe.hsx", "@/user/pipe.hsx: is not a regular file");
    row("@/user/nowhere.hsx", "@/user/nowhere.hsx: is a link that leads nowhere");
    row("@/user/self.hsx", "@/user/self.hsx: is a link that leads nowhere");
}

void HotkeyCtlSetsTest::refusesWhatIsNoSet()
{
    QFETCH(QString, error);
    const QString set = s(QTest::currentDataTag());
    QCOMPARE(m_host->run("use Mine").code, 0);
    const QByteArray record = ToolHost::read(path("user/current.json"));

    error = s("hotkeyctl: ") + m_host->text(error.toUtf8());
    QCOMPARE(m_host->run(s("use ") + set).refusal().left(error.size()), error);
    QCOMPARE(ToolHost::read(path("user/current.json")), record);
    for (const char *line : {"--set % list", "diff % base", "diff base %"}) {
        const Outcome outcome = m_host->run(s(line).replace(QLatin1Char('%'), set));
        QVERIFY2(outcome.code == 1 && outcome.out.isEmpty(), line);
    }
}

void HotkeyCtlSetsTest::saysWhenTheChoiceCannotBeRecorded()
{
    m_host->write("file", "");
    const QString error = s("hotkeyctl: the current set cannot be ");
    for (const char *line :
         {"--user @/file use @/host/presets/Default.hsx", "--user @/file use @/user/a.hsx"})
        QCOMPARE(m_host->run(line).refusal().left(error.size()), error);
}

void HotkeyCtlSetsTest::prefersAFileOfTheName()
{
    const QString plain = s("Editing: Plain (1-plain)\n");
    QCOMPARE(m_host->run("--set Mine owner F9").done(), plain);
    m_host->write("Mine", ToolHost::read(path("elsewhere/d.hsx")));
    const QString before = QDir::currentPath();
    QVERIFY(QDir::setCurrent(path("")));
    const Outcome outcome = m_host->run("--set Mine owner F11");
    QVERIFY(QDir::setCurrent(before));
    QCOMPARE(outcome.done(), plain);
}

void HotkeyCtlSetsTest::knowsANameBeforeAndAfterTranslation()
{
    OneTextTranslator translator("CUI", "鍵", "Key"); // as the names of shipped sets
    QVERIFY(QCoreApplication::installTranslator(&translator));
    QVERIFY(m_host->run("sets").lines().value(6).startsWith(s("Key ")));
    QCOMPARE(m_host->run("use Key").code, 0);
    QCOMPARE(m_host->run("use 鍵").code, 0);
}

void HotkeyCtlSetsTest::compares_data()
{
    QTest::addColumn<QString>("out");
    const auto row = [](const char *line, const char *out) { QTest::newRow(line) << out; };
    row("diff @/user/a.hsx base", "CONTEXT  ACTION  ID       Mine  base\n"
                                  "Editing  Plain   1-plain  F9    none\n");
    row("diff Default Mine", "CONTEXT  ACTION  ID       Default  Mine\n"
                             "Editing  Cut     1-cut    F12      Ctrl+X\n"
                             "Editing  Plain   1-plain  none     F9\n");
    row("diff base base", "no differences\n");
    row("diff Mine Mine", "no differences\n");
    row("diff base Reordered", "no differences\n");
    row("diff base Displacing", "CONTEXT  ACTION  ID       base              Displacing\n"
                                "Editing  Copy    1-copy   Ctrl+C, Ctrl+Ins  Ctrl+Ins\n"
                                "Editing  Plain   1-plain  none              Ctrl+C\n"
                                "View     Copy    2-copy   Ctrl+C            Ctrl+C, F1\n");
    row("diff base Mine --format json",
        "[\n  {\"contextId\": 1, \"context\": \"Editing\", \"category\": \"Edit\", \"action\": "
        "\"Plain\", \"id\": \"1-plain\", \"a\": [], \"b\": [\"F9\"]}\n]\n");
    row("diff Mine Mine --format json", "[]\n");
}

void HotkeyCtlSetsTest::compares()
{
    m_host->write("user/reordered.hsx",
                  described("Reordered", step("Unassign", "Ctrl+C", "1-copy")
                                                 + step("Assign", "Ctrl+C", "1-copy")));
    m_host->write("user/displacing.hsx",
                  described("Displacing",
                            step("Assign", "F1", "2-copy") + step("Assign", "Ctrl+C", "1-plain")));
    QTEST(m_host->run(QTest::currentDataTag()).done(), "out");
    QVERIFY(!m_host->exists("user/current.json"));
}

// The hotkeys under each of two sets are also what listing shows with the one and the other.
void HotkeyCtlSetsTest::comparesAsTheListsDo()
{
    const auto json = [this](const char *line) {
        return ToolHost::runBare(m_host->arguments(s("--user @/user ") + s(line))).json();
    };
    const auto sorted = [](const QJsonValue &hotkeys) {
        QStringList texts = hotkeys.toVariant().toStringList();
        texts.sort();
        return texts;
    };
    const QJsonArray listOfA = json("--set \"Velstudio Default Keyset\" list --format json");
    const QJsonArray listOfB = json("--set \"Zarvi Default Keyset\" list --format json");
    QCOMPARE(listOfA.size(), listOfB.size());
    QJsonArray expected;
    for (int i = 0; i < listOfA.size(); ++i) {
        QJsonObject row = listOfA.at(i).toObject();
        row[s("a")] = row.take(s("hotkeys"));
        row[s("b")] = listOfB.at(i).toObject()[s("hotkeys")];
        row.remove(s("baseHotkeys"));
        row.remove(s("changed"));
        if (sorted(row[s("a")]) != sorted(row[s("b")]))
            expected.append(row);
    }
    QVERIFY(expected.size() > 100 && expected.size() < listOfA.size());
    QCOMPARE(json("diff \"Velstudio Default Keyset\" \"Zarvi Default Keyset\" --format json"),
             expected);
}

QTEST_GUILESS_MAIN(HotkeyCtlSetsTest)
#include "tst_HotkeyCtlSets.moc"
