#include "SampleHost.h"
#include "ToolHost.h"

#include <QFile>
#include <QJsonObject>
#include <QMap>
#include <QSet>
#include <QtTest>

#include <sys/stat.h>

/// The commands for files of older releases and for files alone: convert and show.
class HotkeyCtlLegacyTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void convertsIntoTheUsersSets();
    void replacesOnlyWhenForced();
    void refusesWhatCannotBeConverted_data();
    void refusesWhatCannotBeConverted();
    void bringsAlongWhatTheUserHadChanged_data();
    void bringsAlongWhatTheUserHadChanged();
    void showsFilesWithoutAHost_data();
    void showsFilesWithoutAHost();

private:
    std::unique_ptr<ToolHost> m_host;
};

namespace {

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

void HotkeyCtlLegacyTest::init()
{
    m_host = std::make_unique<ToolHost>();
    m_host->write(defaultFile, keyboard(shortcut('C', "copy") + shortcut('X', "cut")));
    m_host->write("My.Old Keys.kbdx", userFile);
}

void HotkeyCtlLegacyTest::convertsIntoTheUsersSets()
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

void HotkeyCtlLegacyTest::replacesOnlyWhenForced()
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
    QVERIFY(!m_host->exists("user"));
}

void HotkeyCtlLegacyTest::refusesWhatCannotBeConverted_data()
{
    QTest::addColumn<QString>("error");
    const auto row = [](const char *file, const char *error) { QTest::newRow(file) << error; };
    row("missing.kbdx", "cannot be opened: ");
    row("pipe.kbdx", "cannot be opened: Is not a regular file");
    row("half.kbdx", "not valid: ");
    row("root.kbdx", "cannot be converted: Could not parse legacy hotkey configuration");
    row("My.Old Keys.kbdx", "cannot be converted: Could not open"); // without the defaults
}

void HotkeyCtlLegacyTest::refusesWhatCannotBeConverted()
{
    QFETCH(QString, error);
    m_host->write("half.kbdx", "<VLSK_KBD><shortcut");
    m_host->write("root.kbdx", "<shortcut/>");
    QCOMPARE(mkfifo(QFile::encodeName(m_host->path("pipe.kbdx")).constData(), 0600), 0);
    QVERIFY(QFile::remove(m_host->path(defaultFile)));

    const QString file = m_host->path(QTest::currentDataTag());
    error = s("hotkeyctl: %1: %2").arg(file, error);
    QCOMPARE(m_host->run(s("convert \"%1\"").arg(file)).refusal().left(error.size()), error);
    QVERIFY(!m_host->exists("user"));
}

void HotkeyCtlLegacyTest::bringsAlongWhatTheUserHadChanged_data()
{
    QTest::addColumn<QString>("user");
    QTest::newRow("artist") << "legacy-user-artist";
    QTest::newRow("animator") << "legacy-user-animator";
}

// Wherever today's base is what the old release had, the user has what the user had, and that is
// what counts as changed.
void HotkeyCtlLegacyTest::bringsAlongWhatTheUserHadChanged()
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

void HotkeyCtlLegacyTest::showsFilesWithoutAHost_data()
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
    QByteArray steps;
    QByteArray lines;
    for (const char *key : {"F1", "F2", "F3", "F4", "F5", "F6", "F7"}) { // more than there is room
        steps += step("Assign", key, "1-full");
        lines += QByteArray("Add '") + key + "' to 1-full.\n";
    }
    row("full.hsx", "<VelHotkeyTransformations>" + steps + "</VelHotkeyTransformations>",
        "Hotkey set 'full', not locked, steps: 7\n" + lines);
    row("old.KBDX", userFile,
        "Legacy keyboard file 'old.KBDX', steps: 3\nAdd 'Ctrl+C' to 1-copy.\n"
        "Add 'Ctrl+K' to 1-plain.\nAdd 'Ctrl+L' to 1-full.\n");
    row("other.hsx", userFile, "");
    row("other.kbdx", "<shortcut/>", "");
}

void HotkeyCtlLegacyTest::showsFilesWithoutAHost()
{
    QFETCH(QByteArray, contents);
    QFETCH(QString, out);
    const QString file = m_host->write(QTest::currentDataTag(), contents);
    const Outcome outcome = m_host->run(s("--host @/nowhere show ") + file);
    QCOMPARE(outcome.out, out);
    QCOMPARE(outcome.code, out.isEmpty() ? 1 : 0);
    QCOMPARE(outcome.err.isEmpty(), !out.isEmpty());
}

QTEST_GUILESS_MAIN(HotkeyCtlLegacyTest)
#include "tst_HotkeyCtlLegacy.moc"
