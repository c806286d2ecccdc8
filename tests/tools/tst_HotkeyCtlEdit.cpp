#include "SampleHost.h"
#include "ToolHost.h"

#include <UiCustomizations/QvelShortcutManager.h>

#include <QFile>
#include <QtTest>

#include <random>

#include <sys/stat.h>

/// The commands that write: assign, unassign and base.
class HotkeyCtlEditTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { m_host = std::make_unique<ToolHost>(); }
    void edits_data();
    void edits();
    void refusesEditsThatCannotBeMade_data();
    void refusesEditsThatCannotBeMade();
    void resets();
    void savesWhatItShows();
    void leavesFilesThatAreNotToBeReplaced_data();
    void leavesFilesThatAreNotToBeReplaced();
    void editsASetInPlace();
    void writesABaseFileThatLoadsToTheSame();

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
    for (const char *held : {"Ctrl+K", "ctrl+k"})
        row("unassign 1-plain CTRL+K", held, "Took % from Plain (1-plain) in Editing.\n", "");
    row("unassign 1-plain Crtl+K", "Crtl+K", "Took % from Plain (1-plain) in Editing.\n", "");
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

void HotkeyCtlEditTest::refusesEditsThatCannotBeMade_data()
{
    QTest::addColumn<QString>("error");

    const auto row = [](const char *line, const char *error) { QTest::newRow(line) << error; };
    row("assign 1-nothing F9", "there is no action '1-nothing'");
    row("assign 1-full F9",
        "Full (1-full) holds 6 hotkeys, which is all it can: F1, F2, F3, F4, F5, F6");
    row("unassign 1-copy F9", "Copy (1-copy) does not hold F9, but Ctrl+C, Ctrl+Ins");
    row("unassign 1-plain F9", "Plain (1-plain) does not hold F9, but no hotkey at all");
    row("unassign 1-cut Ctrl+X", "Cut (1-cut) does not hold Ctrl+X, but F12");
}

void HotkeyCtlEditTest::refusesEditsThatCannotBeMade()
{
    QFETCH(QString, error);
    QCOMPARE(m_host->run(s(QTest::currentDataTag()) + s(" --save @/saved.hsx")).refusal(),
             s("hotkeyctl: %1\n").arg(error));
    QVERIFY(!m_host->exists("saved.hsx"));
}

void HotkeyCtlEditTest::resets()
{
    m_host->writeSet("mine.hsx", step("Unassign", "Ctrl+X", "1-cut")
                                         + step("Assign", "Ctrl+X", "1-plain")
                                         + step("Unassign", "F6", "1-full"));
    const QByteArray before = ToolHost::read(m_host->path("mine.hsx"));
    const auto steps = [this](const char *arguments) {
        m_host->run(s("--log-level 0 --set @/mine.hsx reset %1 --save @/saved.hsx")
                            .arg(s(arguments)))
                .done();
        return m_host->run("--set @/saved.hsx steps").done();
    };
    QCOMPARE(m_host->run("--set @/mine.hsx reset 1-cut --dry-run").done(),
             s("Add 'Ctrl+X' to Cut.\nCtrl+X is taken from Plain (1-plain) for Cut (1-cut).\n"
               "Dry run: nothing was saved.\n"));
    QCOMPARE(steps("1-cut"), s("Remove 'F6' from Full (1-full).\n"));
    QVERIFY(steps("1-cut --leave").contains(s("Ctrl+X' to Plain")));
    QCOMPARE(steps("--context Editing"), QString());
    QCOMPARE(steps("--all"), QString());
    QCOMPARE(ToolHost::read(m_host->path("mine.hsx")), before);
    QCOMPARE(m_host->run("reset --all 1-cut --save @/x.hsx").code, 2);
    QCOMPARE(m_host->run("--set= reset --all").done().section(QLatin1Char('\n'), 0, 0),
             s("Nothing to reset."));
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
    refused(assign, "host/base/base.hsxb", "it is not a hotkey set");
    refused(assign, "shipped-link.hsx", shipped);
    refused(assign, "folder-link/New.hsx", shipped);
    refused(assign, "nowhere/New.hsx", "its folder does not exist");
    refused(assign, "host", "it is not a regular file");
    refused(assign, "pipe.hsx", "it is not a regular file");
    refused(assign, "self.hsx", "it is a link that leads nowhere");
    refused(base, "locked.hsx", "it is not a base hotkey file");
    refused(base, "host/presets/New.hsxb", shipped);
    // A name that no file system takes: the failure comes from writing.
    const QByteArray longName = QByteArray(300, 'x') + ".hsx";
    row(assign, longName, "cannot be written\n");
    row(base, longName, "cannot be written: ");
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

void HotkeyCtlEditTest::editsASetInPlace()
{
    m_host->write("mine.hsx", "");
    for (const char *line : {"--set= assign 1-plain F9 --save @/mine.hsx",
                             "--set @/mine.hsx assign 1-plain F10 --save @/mine.hsx",
                             "--set @/mine.hsx unassign 1-plain F9 --save @/mine.hsx"})
        QVERIFY2(m_host->run(line).code == 0, line);
    QCOMPARE(m_host->run("--set @/mine.hsx steps").done(), s("Add 'F10' to Plain.\n"));
}

void HotkeyCtlEditTest::writesABaseFileThatLoadsToTheSame()
{
    const QString saved = m_host->text("Saved as @/all.hsxb.\n");
    QCOMPARE(m_host->run("base @/all.hsxb").done(), saved);
    QCOMPARE(m_host->run("base @/all.hsxb").done(), saved); // replaces the first
    Host::SampleHost host(m_host->path("host"), m_host->path("user"),
                          Host::HostPathManager::Record::InMemory);
    QVERIFY2(host.load(), qPrintable(host.errorText()));
    CUI::QvelShortcutManager configured;
    configured.loadShortcutConfiguration(QString());
    CUI::QvelShortcutManager loaded;
    QVERIFY(loaded.loadShortcuts(m_host->path("all.hsxb")));
    QCOMPARE(loaded.getShortcuts().size(), std::size_t(4));
    QVERIFY(loaded.getShortcuts() == configured.getShortcuts());
}

QTEST_GUILESS_MAIN(HotkeyCtlEditTest)
#include "tst_HotkeyCtlEdit.moc"
