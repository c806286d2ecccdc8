#include "SampleHost.h"
#include "ToolHost.h"

#include <QDir>
#include <QFile>
#include <QJsonDocument>
#include <QJsonObject>
#include <QMap>
#include <QSet>
#include <QtTest>

#include <sys/stat.h>

/// The commands that choose among sets, compare, convert and show them.
class HotkeyCtlSetsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void listsTheSets();
    void usesASet_data();
    void usesASet();
    void refusesWhatIsNoSet_data();
    void refusesWhatIsNoSet();
    void compares_data();
    void compares();
    void convertsIntoTheUsersSets();
    void replacesOnlyWhenForced();
    void refusesWhatCannotBeConverted_data();
    void refusesWhatCannotBeConverted();
    void bringsAlongWhatTheUserHadChanged_data();
    void bringsAlongWhatTheUserHadChanged();
    void showsFilesWithoutAHost_data();
    void showsFilesWithoutAHost();

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

using Hotkeys = QMap<QString, QSet<QString>>;

QByteArray keyboard(const QByteArray &shortcuts)
{
    return "<VLSK_KBD>" + shortcuts + "</VLSK_KBD>";
}

QByteArray shortcut(char letter, const char *action) // with Ctrl
{
    return "<shortcut fVirt='11' accleleratorKey='" + QByteArray::number(letter) + "' actionID='"
           + action + "' actionTableID='1'/>";
}

/// Ctrl+K added to Plain, Ctrl+L to Full, and Ctrl+X taken from Cut.
const QByteArray userFile =
        keyboard(shortcut('C', "copy") + shortcut('K', "plain") + shortcut('L', "full"));

const char *const defaultFile = "host/legacy/LegacyDefaultUI-2019.kbdx";

QSet<QString> setOf(const QJsonValue &array)
{
    const QStringList texts = array.toVariant().toStringList();
    return {texts.begin(), texts.end()};
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
    m_host->write(defaultFile, keyboard(shortcut('C', "copy") + shortcut('X', "cut")));
    m_host->write("My.Old Keys.kbdx", userFile);
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
    QCOMPARE(json.size(), 8);
}

void HotkeyCtlSetsTest::usesASet_data()
{
    QTest::addColumn<QString>("file");
    const auto row = [](const char *set, const char *file) { QTest::newRow(set) << file; };
    row("Mine", "user/a.hsx");
    row("鍵", "user/鍵.hsx");
    row("\"line\nbreak\"", "user/line\nbreak.hsx");
    row("@/user/c.hsx", "user/c.hsx");
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
    row("@/user/pipe.hsx", "@/user/pipe.hsx: is not a regular file");
    row("@/user/nowhere.hsx", "@/user/nowhere.hsx: is a link that leads nowhere");
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

void HotkeyCtlSetsTest::compares_data()
{
    QTest::addColumn<QString>("out");
    const auto row = [](const char *line, const char *out) { QTest::newRow(line) << out; };
    row("diff Default Mine", "CONTEXT  ACTION  ID       Default  Mine\n"
                             "Editing  Cut     1-cut    F12      Ctrl+X\n"
                             "Editing  Plain   1-plain  none     F9\n");
    row("diff base Reordered", "no differences\n");
    row("diff base Displacing", "CONTEXT  ACTION  ID       base              Displacing\n"
                                "Editing  Copy    1-copy   Ctrl+C, Ctrl+Ins  Ctrl+Ins\n"
                                "Editing  Plain   1-plain  none              Ctrl+C\n"
                                "View     Copy    2-copy   Ctrl+C            Ctrl+C, F1\n");
    row("diff base Mine --format json",
        "[\n  {\"contextId\": 1, \"context\": \"Editing\", \"category\": \"Edit\", \"action\": "
        "\"Plain\", \"id\": \"1-plain\", \"a\": [], \"b\": [\"F9\"]}\n]\n");
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

void HotkeyCtlSetsTest::convertsIntoTheUsersSets()
{
    QCOMPARE(m_host->run("convert \"@/My.Old Keys.kbdx\"").done(),
             m_host->text("Saved as @/user/My.Old Keys.hsx.\nHotkeys assigned: 2, removed: 1.\n"));
    QVERIFY(!m_host->exists("user/current.json"));
    QCOMPARE(m_host->run("--set \"My.Old Keys\" list --changed").lines().size(),
             3); // Full has no room for another hotkey
    // The set has no texts of its own for the actions.
    QCOMPARE(m_host->run("--set \"My.Old Keys\" steps").done(),
             s("Add 'Ctrl+K' to Plain (1-plain).\nRemove 'Ctrl+X' from Cut (1-cut).\n"));
}

void HotkeyCtlSetsTest::replacesOnlyWhenForced()
{
    const QString set = m_host->writeSet("old.hsx", "");
    const QByteArray before = ToolHost::read(set);
    const QString convert = s("convert \"@/My.Old Keys.kbdx\" @/old.hsx");
    QCOMPARE(m_host->run(convert).refusal(),
             s("hotkeyctl: %1: is not written, because it is there already; --force replaces it\n")
                     .arg(set));
    QCOMPARE(ToolHost::read(set), before);
    QCOMPARE(m_host->run(convert + s(" --force")).code, 0);
    QVERIFY(ToolHost::read(set).contains("Ctrl+K"));
    QVERIFY(!m_host->exists("user/My.Old Keys.hsx"));
}

void HotkeyCtlSetsTest::refusesWhatCannotBeConverted_data()
{
    QTest::addColumn<QString>("error");
    const auto row = [](const char *file, const char *error) { QTest::newRow(file) << error; };
    row("missing.kbdx", "cannot be opened: ");
    row("pipe.kbdx", "cannot be opened: Is not a regular file");
    row("half.kbdx", "not valid: ");
    row("root.kbdx", "cannot be converted: Could not parse legacy hotkey configuration");
    row("My.Old Keys.kbdx", "cannot be converted: Could not open"); // without the defaults
}

void HotkeyCtlSetsTest::refusesWhatCannotBeConverted()
{
    QFETCH(QString, error);
    m_host->write("half.kbdx", "<VLSK_KBD><shortcut");
    m_host->write("root.kbdx", "<shortcut/>");
    QCOMPARE(mkfifo(QFile::encodeName(m_host->path("pipe.kbdx")).constData(), 0600), 0);
    QVERIFY(QFile::remove(m_host->path(defaultFile)));

    const QString file = m_host->path(QTest::currentDataTag());
    error = s("hotkeyctl: %1: %2").arg(file, error);
    QCOMPARE(m_host->run(s("convert \"%1\"").arg(file)).refusal().left(error.size()), error);
    QVERIFY(!m_host->exists("user/My.Old Keys.hsx"));
}

void HotkeyCtlSetsTest::bringsAlongWhatTheUserHadChanged_data()
{
    QTest::addColumn<QString>("user");
    QTest::newRow("artist") << "legacy-user-artist";
    QTest::newRow("animator") << "legacy-user-animator";
}

// Wherever today's base is what the old release had, the user has what the user had, and that is
// what counts as changed.
void HotkeyCtlSetsTest::bringsAlongWhatTheUserHadChanged()
{
    QFETCH(QString, user);
    const auto run = [this](const QString &line) {
        return ToolHost::runBare(m_host->arguments(s("--user @/user ") + line));
    };
    const auto hotkeysIn = [&run](const QString &file) {
        Hotkeys hotkeys;
        const QRegularExpression line(s("^Add '(.*)' to (.*)\\.$"));
        for (const QString &text : run(s("show ") + file).lines().mid(1)) {
            const QRegularExpressionMatch match = line.match(text);
            hotkeys[match.captured(2)] << match.captured(1);
        }
        return hotkeys;
    };
    const QString file = s(CUI_TEST_DATA_DIR "/valid/%1.kbdx").arg(user);
    const Hotkeys had = hotkeysIn(file);
    const Hotkeys defaults = hotkeysIn(Host::SampleHost::shippedDirectory()
                                       + s("/legacy/LegacyDefaultUI-2019.kbdx"));
    QCOMPARE(run(s("convert ") + file).code, 0);
    QCOMPARE(run(s("use ") + user).code, 0);

    int unchangedCount = 0;
    int changedCount = 0;
    for (const QJsonValue &value : run(s("list --format json")).json()) {
        const QJsonObject row = value.toObject();
        const QString id = row[s("id")].toString();
        if (setOf(row[s("baseHotkeys")]) != defaults.value(id))
            continue;
        const bool isChanged = row[s("changed")].toBool();
        QCOMPARE(setOf(row[s("hotkeys")]), had.value(id));
        QCOMPARE(isChanged, had.value(id) != defaults.value(id));
        ++(isChanged ? changedCount : unchangedCount);
    }
    QVERIFY(changedCount >= 4 && unchangedCount > 250);
}

void HotkeyCtlSetsTest::showsFilesWithoutAHost_data()
{
    QTest::addColumn<QByteArray>("contents");
    QTest::addColumn<QString>("out"); // empty for a refusal

    const auto row = [](const char *name, const QByteArray &contents, const char *out) {
        QTest::newRow(name) << contents << out;
    };
    row("set.hsx",
        "<VelHotkeyTransformations Locked='true' Description='One&#10;line'>"
        "<Unassign_Hotkey Shortcut='Ctrl+X' Description='Cut&#9;it' Id='1-cut'/>"
        "<Assign_Hotkey Shortcut='Ctrl+X' Description=' ' Id='9-鍵'/></VelHotkeyTransformations>",
        "Hotkey set 'One\\nline', locked, steps: 2\n"
        "Remove 'Ctrl+X' from Cut\\tit.\nAdd 'Ctrl+X' to 9-鍵.\n");
    row("old.KBDX", userFile,
        "Legacy keyboard file 'old.KBDX', steps: 3\nAdd 'Ctrl+C' to 1-copy.\n"
        "Add 'Ctrl+K' to 1-plain.\nAdd 'Ctrl+L' to 1-full.\n");
    row("other.hsx", userFile, "");
    row("other.kbdx", "<shortcut/>", "");
}

void HotkeyCtlSetsTest::showsFilesWithoutAHost()
{
    QFETCH(QByteArray, contents);
    QFETCH(QString, out);
    const QString file = m_host->write(QTest::currentDataTag(), contents);
    const Outcome outcome = m_host->run(s("--host @/nowhere show ") + file);
    QCOMPARE(outcome.out, out);
    QCOMPARE(outcome.code, out.isEmpty() ? 1 : 0);
    QCOMPARE(outcome.err.isEmpty(), !out.isEmpty());
}

QTEST_GUILESS_MAIN(HotkeyCtlSetsTest)
#include "tst_HotkeyCtlSets.moc"
