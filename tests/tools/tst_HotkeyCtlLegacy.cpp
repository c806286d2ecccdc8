#include "SampleHost.h"
#include "ToolHost.h"

#include <QDir>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
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
    void leavesSetsThatAreNotToBeReplaced_data();
    void leavesSetsThatAreNotToBeReplaced();
    void refusesWhatCannotBeConverted_data();
    void refusesWhatCannotBeConverted();
    void bringsAlongWhatTheUserHadChanged_data();
    void bringsAlongWhatTheUserHadChanged();
    void showsFilesWithoutAHost_data();
    void showsFilesWithoutAHost();

private:
    QString path(const char *name) const { return m_host->path(QString::fromUtf8(name)); }
    QString write(const char *name, const QByteArray &contents) const
    {
        return m_host->write(QString::fromUtf8(name), contents);
    }

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

} // namespace

void HotkeyCtlLegacyTest::init()
{
    m_host = std::make_unique<ToolHost>();
    write("host/legacy/LegacyDefaultUI-2019.kbdx",
          keyboard(shortcut('C', "copy") + shortcut('X', "cut")));
    write("My.Old Keys.kbdx", userFile);
}

void HotkeyCtlLegacyTest::convertsIntoTheUsersSets()
{
    const Outcome convert = m_host->run({QStringLiteral("convert"), path("My.Old Keys.kbdx")});
    QCOMPARE(convert.code, 0);
    QCOMPARE(convert.out, QStringLiteral("Saved as %1.\nHotkeys assigned: 2, removed: 1.\n")
                                  .arg(path("user/My.Old Keys.hsx")));
    QVERIFY(!QFile::exists(path("user/current.json")));
    const Outcome list = m_host->run({QStringLiteral("--set"), QStringLiteral("My.Old Keys"),
                                      QStringLiteral("list"), QStringLiteral("--changed")});
    QCOMPARE(list.lines().size(), 3); // Full has no room for another hotkey
    // The set has no texts of its own for the actions.
    QCOMPARE(m_host->run({QStringLiteral("--set"), QStringLiteral("My.Old Keys"),
                          QStringLiteral("steps")})
                     .lines(),
             QStringList({QStringLiteral("Add 'Ctrl+K' to Plain (1-plain)."),
                          QStringLiteral("Remove 'Ctrl+X' from Cut (1-cut).")}));
}

void HotkeyCtlLegacyTest::replacesOnlyWhenForced()
{
    const QStringList convert = {QStringLiteral("convert"), path("My.Old Keys.kbdx"),
                                 m_host->writeSet(QStringLiteral("old.hsx"), "")};
    const QByteArray before = ToolHost::read(path("old.hsx"));
    const Outcome refused = m_host->run(convert);
    QCOMPARE(refused.code, 1);
    QCOMPARE(refused.err, QStringLiteral("hotkeyctl: %1: is not written, because it is there "
                                         "already; --force replaces it\n")
                                  .arg(path("old.hsx")));
    QCOMPARE(ToolHost::read(path("old.hsx")), before);
    QCOMPARE(m_host->run(convert + words("--force")).code, 0);
    QVERIFY(ToolHost::read(path("old.hsx")).contains("Ctrl+K"));
    QVERIFY(!QFile::exists(path("user")));
}

void HotkeyCtlLegacyTest::leavesSetsThatAreNotToBeReplaced_data()
{
    QTest::addColumn<QString>("file");
    QTest::addColumn<QString>("reason");
    const auto row = [](const char *file, const char *reason) {
        QTest::newRow(file) << QString::fromUtf8(file) << QString::fromUtf8(reason);
    };
    row("locked.hsx", "the set 'locked' in it is locked");
    row("read-only.hsx", "it is read-only");
    row("read-only-link.hsx", "it is read-only");
    row("host/presets/Default.hsx", "the sets in its folder are shipped with the host");
    row("host/presets/New.hsx", "the sets in its folder are shipped with the host");
    row("My.Old Keys.kbdx", "it is not a hotkey set");
    row("pipe.hsx", "it is not a regular file");
    row("self.hsx", "it is a link that leads nowhere");
    row("nowhere/New.hsx", "its folder does not exist");
}

void HotkeyCtlLegacyTest::leavesSetsThatAreNotToBeReplaced()
{
    QFETCH(QString, file);
    QFETCH(QString, reason);
    m_host->writeSet(QStringLiteral("locked.hsx"), "", true);
    QVERIFY(QFile::setPermissions(m_host->writeSet(QStringLiteral("read-only.hsx"), ""),
                                  QFileDevice::ReadOwner));
    QVERIFY(QFile::link(path("read-only.hsx"), path("read-only-link.hsx")));
    QVERIFY(QFile::link(path("self.hsx"), path("self.hsx")));
    const QStringList before = m_host->snapshot(QString());
    QCOMPARE(mkfifo(QFile::encodeName(path("pipe.hsx")).constData(), 0600), 0);

    const Outcome outcome = m_host->run({QStringLiteral("convert"), path("My.Old Keys.kbdx"),
                                         m_host->path(file), QStringLiteral("--force")});
    QCOMPARE(outcome.code, 1);
    QCOMPARE(outcome.out, QString());
    QVERIFY2(outcome.err.endsWith(QStringLiteral("hotkeyctl: %1: is not written, because %2\n")
                                          .arg(m_host->path(file), reason)),
             qPrintable(outcome.err));
    QVERIFY(QFile::remove(path("pipe.hsx")));
    QCOMPARE(m_host->snapshot(QString()), before);
}

void HotkeyCtlLegacyTest::refusesWhatCannotBeConverted_data()
{
    QTest::addColumn<QString>("file");
    QTest::addColumn<QString>("error");
    const auto row = [](const char *file, const char *error) {
        QTest::newRow(file) << QString::fromUtf8(file) << QString::fromUtf8(error);
    };
    row("missing.kbdx", "cannot be opened: ");
    row("pipe.kbdx", "cannot be opened: Is not a regular file");
    row("self.kbdx", "cannot be opened: ");
    row("host", "cannot be opened: Is not a regular file");
    row("half.kbdx", "not valid: ");
    row("root.kbdx", "cannot be converted: Could not parse legacy hotkey configuration");
    row("host/presets/Default.hsx", "not valid: ");
}

void HotkeyCtlLegacyTest::refusesWhatCannotBeConverted()
{
    QFETCH(QString, file);
    QFETCH(QString, error);
    write("half.kbdx", "<VLSK_KBD><shortcut");
    write("root.kbdx", "<shortcut/>");
    QVERIFY(QFile::link(path("self.kbdx"), path("self.kbdx")));
    QCOMPARE(mkfifo(QFile::encodeName(path("pipe.kbdx")).constData(), 0600), 0);

    const Outcome outcome = m_host->run({QStringLiteral("convert"), m_host->path(file)});
    QCOMPARE(outcome.code, 1);
    QCOMPARE(outcome.out, QString());
    QVERIFY2(outcome.err.contains(
                     QStringLiteral("hotkeyctl: %1: %2").arg(m_host->path(file), error)),
             qPrintable(outcome.err));
    QVERIFY(!QFile::exists(path("user")));

    // Nor is anything converted without the defaults of the old release.
    QVERIFY(QFile::remove(path("host/legacy/LegacyDefaultUI-2019.kbdx")));
    QCOMPARE(m_host->run({QStringLiteral("convert"), path("My.Old Keys.kbdx")}).code, 1);
    QVERIFY(!QFile::exists(path("user")));
}

void HotkeyCtlLegacyTest::bringsAlongWhatTheUserHadChanged_data()
{
    QTest::addColumn<QString>("user");
    QTest::newRow("artist") << QStringLiteral("legacy-user-artist");
    QTest::newRow("animator") << QStringLiteral("legacy-user-animator");
}

// Wherever today's base is what the old release had, the user has what the user had, and that is
// what counts as changed.
void HotkeyCtlLegacyTest::bringsAlongWhatTheUserHadChanged()
{
    QFETCH(QString, user);
    const auto run = [this](const QStringList &arguments) {
        return ToolHost::runBare(QStringList{QStringLiteral("--user"), path("user")} + arguments);
    };
    const auto hotkeysIn = [&run](const QString &file) {
        Hotkeys hotkeys;
        const QRegularExpression line(QStringLiteral("^Add '(.*)' to (.*)\\.$"));
        for (const QString &text : run({QStringLiteral("show"), file}).lines().mid(1)) {
            const QRegularExpressionMatch match = line.match(text);
            hotkeys[match.captured(2)] << match.captured(1);
        }
        return hotkeys;
    };
    const QString file = QStringLiteral(CUI_TEST_DATA_DIR "/valid/%1.kbdx").arg(user);
    const Hotkeys had = hotkeysIn(file);
    const Hotkeys defaults = hotkeysIn(Host::SampleHost::shippedDirectory()
                                       + QStringLiteral("/legacy/LegacyDefaultUI-2019.kbdx"));
    QCOMPARE(run({QStringLiteral("convert"), file}).code, 0);
    QCOMPARE(run({QStringLiteral("use"), user}).code, 0);

    const auto setOf = [](const QJsonValue &array) {
        QSet<QString> texts;
        for (const QJsonValue &text : array.toArray())
            texts << text.toString();
        return texts;
    };
    int unchangedCount = 0;
    int changedCount = 0;
    const QByteArray json = run(words("list --format json")).out.toUtf8();
    for (const QJsonValue &value : QJsonDocument::fromJson(json).array()) {
        const QJsonObject row = value.toObject();
        const QString id = row.value(QStringLiteral("id")).toString();
        if (setOf(row.value(QStringLiteral("baseHotkeys"))) != defaults.value(id))
            continue;
        const bool isChanged = row.value(QStringLiteral("changed")).toBool();
        QCOMPARE(setOf(row.value(QStringLiteral("hotkeys"))), had.value(id));
        QCOMPARE(isChanged, had.value(id) != defaults.value(id));
        ++(isChanged ? changedCount : unchangedCount);
    }
    QVERIFY(changedCount >= 4 && unchangedCount > 250);
}

void HotkeyCtlLegacyTest::showsFilesWithoutAHost_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QByteArray>("contents");
    QTest::addColumn<QString>("out"); // empty for a refusal

    const auto row = [](const char *name, const QByteArray &contents, const char *out) {
        QTest::newRow(name) << QString::fromUtf8(name) << contents << QString::fromUtf8(out);
    };
    row("set.hsx",
        "<VelHotkeyTransformations Locked='true' Description='One&#10;line'>"
        "<Unassign_Hotkey Shortcut='Ctrl+X' Description='Cut&#9;it' Id='1-cut'/>"
        "<Assign_Hotkey Shortcut='Ctrl+X' Description=' ' Id='9-鍵'/></VelHotkeyTransformations>",
        "Hotkey set 'One\\nline', locked, steps: 2\n"
        "Remove 'Ctrl+X' from Cut\\tit.\nAdd 'Ctrl+X' to 9-鍵.\n");
    QByteArray steps;
    QByteArray lines;
    for (int i = 1; i <= 8; ++i) { // more than an action can hold
        const QByteArray number = QByteArray::number(i);
        steps += "<Assign_Hotkey Shortcut='F" + number + "' Id='1-full'/>";
        lines += "Add 'F" + number + "' to 1-full.\n";
    }
    row("full.hsx", "<VelHotkeyTransformations>" + steps + "</VelHotkeyTransformations>",
        "Hotkey set 'full', not locked, steps: 8\n" + lines);
    row("old.KBDX", userFile,
        "Legacy keyboard file 'old.KBDX', steps: 3\nAdd 'Ctrl+C' to 1-copy.\n"
        "Add 'Ctrl+K' to 1-plain.\nAdd 'Ctrl+L' to 1-full.\n");
    row("other.hsx", userFile, "");
    row("other.kbdx", "<shortcut/>", "");
    row("half.hsx", "<VelHotkeyTransformations", "");
}

void HotkeyCtlLegacyTest::showsFilesWithoutAHost()
{
    QFETCH(QString, name);
    QFETCH(QByteArray, contents);
    QFETCH(QString, out);
    const Outcome outcome =
            ToolHost::runBare({QStringLiteral("--host"), path("nowhere"), QStringLiteral("show"),
                               m_host->write(name, contents)});
    QCOMPARE(outcome.out, out);
    QCOMPARE(outcome.code, out.isEmpty() ? 1 : 0);
    QCOMPARE(outcome.err.isEmpty(), !out.isEmpty());
}

QTEST_GUILESS_MAIN(HotkeyCtlLegacyTest)
#include "tst_HotkeyCtlLegacy.moc"
