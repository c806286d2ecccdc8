#include "FullDisk.h"
#include "SampleHost.h"
#include "ToolHost.h"

#include <UiCustomizations/QvelMessageLog.h>
#include <UiCustomizations/QvelShortcutManager.h>

#include <QFile>
#include <QProcess>
#include <QtTest>

#include <random>

#include <sys/stat.h>

/// The commands that write: assign, unassign, reset, base, check, merge and sheet.
class HotkeyCtlEditTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { m_host = std::make_unique<ToolHost>(); }
    void edits_data();
    void edits();
    void savesWhatItShows();
    void leavesFilesThatAreNotToBeReplaced_data();
    void leavesFilesThatAreNotToBeReplaced();
    void checks();
    void merges();
    void keepsStepsThatDoNotApply();
    void refusesToSaveOverAChangedSet();
    void chooses_data();
    void chooses();
    void keepsTheOldFileOnAFullDisk();
    void writesEveryFormat();
    void drawsTheKeyboard();

private:
    std::unique_ptr<ToolHost> m_host;
};

void HotkeyCtlEditTest::edits_data()
{
    QTest::addColumn<QString>("held");
    QTest::addColumn<QString>("report");
    QTest::addColumn<QString>("steps");

    const auto row = [](const char *line, const char *held, const char *report, const char *steps) {
        QTest::addRow("%s, %s held", line, held) << held << report << steps;
    };
    row("assign 1-plain ctrl+c", "F9",
        "Assigned Ctrl+C to Plain (1-plain) in Editing.\nTaken from Copy (1-copy).\n",
        "Add 'F9' to Plain (1-plain).\nRemove 'Ctrl+C' from Copy.\nAdd 'Ctrl+C' to Plain.\n");
    row("assign 1-cut Ctrl+K", "ctrl+k",
        "Assigned Ctrl+K to Cut (1-cut) in Editing.\nTaken from Plain (1-plain).\n",
        "Add 'Ctrl+K' to Cut.\n");
    row("assign 1-plain Ctrl+K", "ctrl+k", "Plain (1-plain) holds % already.\n",
        "Add 'ctrl+k' to Plain (1-plain).\n");
    row("unassign 1-plain CTRL+K", "ctrl+k", "Took % from Plain (1-plain) in Editing.\n", "");
    row("unassign 1-plain Ctrl+X", "Ctrl+X", "Took % from Plain (1-plain) in Editing.\n",
        "Remove 'Ctrl+X' from Cut.\n");
}

void HotkeyCtlEditTest::edits()
{
    QFETCH(QString, held);
    QFETCH(QString, report);
    m_host->writeSet("mine.hsx", step("Assign", held.toUtf8(), "1-plain"));
    report.replace(QLatin1Char('%'), held);
    const QString edit = s("--set @/mine.hsx ") + s(QTest::currentDataTag()).section(s(", "), 0, 0);
    const QString dry = m_host->run(edit).done();
    QVERIFY2(dry.startsWith(report + s("Dry run: nothing was saved.")), qPrintable(dry));
    QCOMPARE(m_host->run(edit + s(" --save @/saved.hsx")).done(),
             report + m_host->text("Saved as @/saved.hsx.\n"));
    QTEST(m_host->run("--set @/saved.hsx steps").done(), "steps");
}

void HotkeyCtlEditTest::savesWhatItShows()
{
    std::mt19937 random(3);
    const auto oneOf = [&random](const char *texts) {
        const QStringList all = list(texts);
        return all.at(int(random() % unsigned(all.size())));
    };
    QByteArray strange;
    for (int i = 0; i < 8; ++i)
        strange += step(oneOf("Assign|Unassign").toUtf8(), oneOf("Ctrl+X|F1|F9").toUtf8(),
                        oneOf("1-copy|1-cut|1-full|1-plain").toUtf8());
    m_host->writeSet("mine.hsx", strange);
    const auto listed = [this] {
        QMap<QString, QStringList> hotkeys;
        for (const QJsonValue &action : m_host->run("--set @/mine.hsx list --format json").json()) {
            const QStringList held = action[s("hotkeys")].toVariant().toStringList();
            hotkeys[action[s("id")].toString()] = held;
            hotkeys[action[s("id")].toString()].sort();
        }
        return hotkeys;
    };
    for (int edit = 0; edit < 60; ++edit) {
        QMap<QString, QStringList> expected = listed();
        const QString id = oneOf("1-copy|1-cut|1-full|1-plain");
        const QString key = oneOf("Ctrl+C|Ctrl+X|F1|F2|F9");
        const bool isHeld = expected[id].contains(key);
        if (!isHeld && expected[id].size() == 6)
            continue;
        if (!isHeld) {
            for (const char *other : {"1-copy", "1-cut", "1-full", "1-plain"})
                expected[s(other)].removeOne(key);
            expected[id] << key;
            expected[id].sort();
        } else {
            expected[id].removeOne(key);
        }
        m_host->run(s("--log-level 0 --set @/mine.hsx %1 %2 %3 --save @/mine.hsx")
                            .arg(isHeld ? s("unassign") : s("assign"), id, key))
                .done();
        QCOMPARE(listed(), expected);
    }
}

void HotkeyCtlEditTest::leavesFilesThatAreNotToBeReplaced_data()
{
    QTest::addColumn<QString>("command");
    QTest::addColumn<QString>("file");
    QTest::addColumn<QString>("error");

    const auto row = [](const char *command, const QByteArray &file, const char *error) {
        QTest::addRow("%s %s", command, file.constData()) << command << s(file) << error;
    };
    const auto refused = [&row](const char *command, const char *file, const char *reason) {
        row(command, file, QByteArray("is not written, because ") + reason + "\n");
    };
    const char *const assign = "assign 1-plain F9 --save";
    const char *const base = "base";
    const char *const convert = "convert --force @/old.kbdx";
    const char *const shipped = "the sets in its folder are shipped with the host";
    for (const char *command : {assign, convert}) {
        refused(command, "locked.hsx", "the set 'locked' in it is locked");
        refused(command, "link.hsx", "the set 'link' in it is locked");
        refused(command, "read-only.hsx", "it is read-only");
        refused(command, "old.kbdx", "it is not a hotkey set");
        refused(command, "host/presets/Default.hsx", shipped);
    }
    refused(assign, "shipped-link.hsx", shipped);
    refused(assign, "folder-link/New.hsx", shipped);
    refused(assign, "pipe.hsx", "it is not a regular file");
    refused(assign, "self.hsx", "it is a link that leads nowhere");
    refused(base, "locked.hsx", "it is not a base hotkey file");
    refused(base, "host/presets/New.hsxb", shipped);
    // A name that no file system takes: the failure comes from writing.
    const QByteArray longName = QByteArray(300, 'x') + ".hsx";
    row(assign, longName, "cannot be written\n");
    row(convert, longName, "cannot be written: ");
}

void HotkeyCtlEditTest::leavesFilesThatAreNotToBeReplaced()
{
    QFETCH(QString, command);
    QFETCH(QString, file);
    QFETCH(QString, error);

    const auto link = [this](const QString &target, const char *name) {
        return QFile::link(target, m_host->path(name));
    };
    QVERIFY(link(m_host->writeSet("locked.hsx", "", true), "link.hsx"));
    QVERIFY(link(m_host->writeSet("host/presets/Open.hsx", ""), "shipped-link.hsx"));
    QVERIFY(link(m_host->path("host/presets"), "folder-link"));
    QVERIFY(link(m_host->path("self.hsx"), "self.hsx"));
    m_host->write("old.kbdx", "<VLSK_KBD/>");
    m_host->write("host/legacy/LegacyDefaultUI-2019.kbdx", "<VLSK_KBD/>");
    QVERIFY(QFile::setPermissions(m_host->writeSet("read-only.hsx", ""), QFileDevice::ReadOwner));
    const QStringList before = m_host->snapshot("");
    QVERIFY(before.contains(m_host->text("@/old.kbdx=<VLSK_KBD/>")));
    // Reading a pipe that nobody writes to would wait forever.
    QCOMPARE(mkfifo(QFile::encodeName(m_host->path("pipe.hsx")).constData(), 0600), 0);

    error = s("hotkeyctl: %1: %2").arg(m_host->path(file), error);
    QCOMPARE(m_host->run(command + s(" @/") + file).refusal().left(error.size()), error);
    QVERIFY(QFile::remove(m_host->path("pipe.hsx")));
    QCOMPARE(m_host->snapshot(""), before);
}

void HotkeyCtlEditTest::checks()
{
    m_host->writeSet(
            "mine.hsx",
            step("Assign", "F9", "1-plian") + step("Assign", "F9", "1-zzz", "Zed")
                    + step("Unassign", "F9", "1-copy") + step("Assign", "F9", "1-full")
                    + step("Unassign", "Ctrl+C", "1-copy") + step("Assign", "Ctrl+C", "1-plain")
                    + step("Unassign", "Ctrl+C", "1-copy") + step("Assign", "Ctrl+X", "1-plain")
                    + step("Unassign", "Ctrl+X", "1-cut", "Cut"));
    m_host->writeSet("new.hsx", step("Assign", "ctrl+ins", "1-copy")
                                        + step("Assign", "Ctrl+X", "1-plain", "Plain"));
    const Outcome outcome = m_host->run("check @/mine.hsx");
    QCOMPARE(outcome.code, 1);
    QCOMPARE(outcome.lines(),
             list("Add 'F9' to 1-plian. there is no action 1-plian; most similar is Plain "
                  "(1-plain)|"
                  "Add 'F9' to Zed. there is no action 1-zzz|"
                  "Remove 'F9' from Copy (1-copy). the action does not have it|"
                  "Add 'F9' to Full (1-full). the action has six hotkeys already|"
                  "Remove 'Ctrl+C' from Copy (1-copy). applies|"
                  "Add 'Ctrl+C' to Plain (1-plain). applies|"
                  "Remove 'Ctrl+C' from Copy (1-copy). has no effect|"
                  "Add 'Ctrl+X' to Plain (1-plain). applies|"
                  "Remove 'Ctrl+X' from Cut. has no effect|"
                  "4 of 9 steps do not apply."));
    const QJsonArray json = m_host->run("check @/new.hsx --format json").json();
    QCOMPARE(json.at(0)[s("effect")].toString(), s("no-effect"));
    QCOMPARE(json.at(1)[s("effect")].toString(), s("takes-new-base-hotkey"));
    QCOMPARE(json.at(1)[s("other")].toString(), s("1-cut"));
    QCOMPARE(m_host->run("check @/new.hsx").code, 0);
}

void HotkeyCtlEditTest::merges()
{
    m_host->writeSet("base.hsx", step("Assign", "F9", "1-plain", "Plain"));
    m_host->writeSet("mine.hsx", step("Assign", "F9", "1-plain", "Plain")
                                         + step("Assign", "F11", "1-cut", "Cut"));
    m_host->writeSet("theirs.hsx", step("Assign", "F10", "1-plain", "Plain")
                                           + step("Assign", "F11", "1-copy", "Copy"));
    const QString merge = s("merge @/base.hsx @/mine.hsx @/theirs.hsx -o @/out.hsx");
    const Outcome outcome = m_host->run(merge);
    QCOMPARE(outcome.code, 1);
    QCOMPARE(outcome.out, s("Clash: F11 in Editing\n"
                            "  ours:   Add 'F11' to Cut.\n"
                            "  theirs: Add 'F11' to Copy.\n"));
    QVERIFY(!m_host->exists("out.hsx"));
    const QJsonArray json = m_host->run(merge + s(" --theirs --format json")).json();
    QCOMPARE(json.at(0)[s("ours")][0][s("id")].toString(), s("1-cut"));
    QCOMPARE(m_host->run("--set @/out.hsx steps").done(),
             s("Add 'F10' to Plain.\nAdd 'F11' to Copy.\n"));
    QCOMPARE(m_host->run(merge + s(" --theirs --ours")).code, 2);
}

void HotkeyCtlEditTest::keepsStepsThatDoNotApply()
{
    m_host->writeSet("mine.hsx", step("Assign", "F9", "1-full", "Full")
                                         + step("Assign", "F9", "9-gone", "Gone")
                                         + step("Unassign", "F9", "1-copy", "Copy"));
    QCOMPARE(m_host->run("--set @/mine.hsx assign 1-plain F10 --save @/mine.hsx").code, 0);
    QCOMPARE(m_host->run("show @/mine.hsx").lines().mid(1),
             list("Add 'F9' to Full.|Add 'F9' to Gone.|Remove 'F9' from Copy.|"
                  "Add 'F10' to Plain."));
}

void HotkeyCtlEditTest::refusesToSaveOverAChangedSet()
{
    const QString path = m_host->writeSet("mine.hsx", step("Assign", "F9", "1-cut"));
    // What another program may do between the loading and the saving.
    const auto changing =
            connect(&CUI::QvelMessageLog::getInstance(), &CUI::QvelMessageLog::messageLogged, this,
                    [this](const QString &line) {
                        if (line.contains(s("Transform file loaded")))
                            m_host->writeSet("mine.hsx", step("Assign", "F10", "1-cut"));
                    });
    const QString edit = s("--log-level 3 --set @/mine.hsx assign 1-plain F11 --save @/mine.hsx");
    const QString refusal = m_host->run(edit).refusal();
    QVERIFY2(refusal.contains(s("has changed")), qPrintable(refusal));
    QVERIFY(ToolHost::read(path).contains("F10"));
    m_host->writeSet("mine.hsx", step("Assign", "F9", "1-cut"));
    QCOMPARE(m_host->run(edit + s(" --force")).code, 0);
    disconnect(changing);
    QVERIFY(!ToolHost::read(path).contains("F10"));
}

void HotkeyCtlEditTest::chooses_data()
{
    QTest::addColumn<QString>("ids");
    const auto row = [](const char *line, const char *ids) { QTest::newRow(line) << s(ids); };
    row("", "1-copy|1-cut|1-full|2-copy");
    row("--context Editing --all", "1-copy|1-cut|1-full|1-plain");
    row("--category Views", "2-copy");
    row("--changed", "1-cut");
    row("--search \" COP\"", "1-copy|2-copy");
    row("--search-hotkey ctrl+c --context View", "2-copy");
}

void HotkeyCtlEditTest::chooses()
{
    m_host->run(s("sheet -o @/keys.csv ") + s(QTest::currentDataTag())).done();
    QStringList ids;
    for (const QByteArray &record : ToolHost::read(m_host->path("keys.csv")).split('\n').mid(1))
        ids << QString::fromUtf8(record.split('"').value(9));
    ids.removeAll(QString());
    QTEST(ids.join(QLatin1Char('|')), "ids");
}

void HotkeyCtlEditTest::keepsTheOldFileOnAFullDisk()
{
    m_host->write("old.html", "old");
    const FullDisk disk(1000);
    QCOMPARE(m_host->run("sheet -o @/old.html").code, 1);
    QCOMPARE(ToolHost::read(m_host->path("old.html")), QByteArray("old"));
}

/// As a process, since only its own main() has the fonts for a PDF.
void HotkeyCtlEditTest::writesEveryFormat()
{
    const QMap<QString, QByteArray> beginnings = {{s("pdf"), "%PDF-"},
                                                  {s("HTML"), "<!DOCTYPE html>"},
                                                  {s("md"), "# Hotkeys\n"},
                                                  {s("csv"), "\xEF\xBB\xBF\"Group\""}};
    for (auto format = beginnings.begin(); format != beginnings.end(); ++format) {
        const QString line = s("--host @/host --user @/user sheet -o @/keys.") + format.key();
        QCOMPARE(QProcess::execute(QCoreApplication::applicationDirPath() + s("/hotkeyctl"),
                                   m_host->arguments(line)),
                 0);
        const QByteArray written = ToolHost::read(m_host->path(s("keys.") + format.key()));
        QVERIFY2(written.startsWith(format.value()), written.left(100));
    }
}

void HotkeyCtlEditTest::drawsTheKeyboard()
{
    m_host->run("sheet -o @/keys.html --keyboard --layout de").done();
    const QByteArray page = ToolHost::read(m_host->path("keys.html"));
    QVERIFY(page.contains("<svg") && page.contains(">\xC3\x9C</text>"));
    QVERIFY(m_host->run("sheet -o @/new.pdf --layout de").refusal(2).contains(s("--keyboard")));
}

QTEST_GUILESS_MAIN(HotkeyCtlEditTest)
#include "tst_HotkeyCtlEdit.moc"
