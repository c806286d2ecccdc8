#include "SampleHost.h"
#include "ToolHost.h"

#include <UiCustomizations/QvelShortcutManager.h>

#include <QFile>
#include <QtTest>

/// The commands that write: assign, unassign and base.
class HotkeyCtlEditTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { m_host = std::make_unique<ToolHost>(); }
    void assignTakesTheHotkeyFromItsOwner();
    void assignOfWhatIsHeldAddsNoStep();
    void refusesEditsThatCannotBeMade_data();
    void refusesEditsThatCannotBeMade();
    void unassignTakesTheSpellingThatIsHeld_data();
    void unassignTakesTheSpellingThatIsHeld();
    void tellsOfAHolderThatKeepsItsSpelling();
    void leavesFilesThatAreNotToBeReplaced_data();
    void leavesFilesThatAreNotToBeReplaced();
    void editsASetInPlace();
    void writesABaseFileThatLoadsToTheSame();

private:
    QStringList save(const char *arguments) const
    {
        return words(arguments) + QStringList{QStringLiteral("--save"), saved()};
    }
    QString saved() const { return m_host->path(QStringLiteral("saved.hsx")); }
    QStringList stepsOf(const QString &set) const
    {
        return m_host->run({QStringLiteral("--set"), set, QStringLiteral("steps")}).lines();
    }

    std::unique_ptr<ToolHost> m_host;
};

void HotkeyCtlEditTest::assignTakesTheHotkeyFromItsOwner()
{
    const QString report = QStringLiteral("Assigned Ctrl+C to Plain (1-plain) in Editing.\n"
                                          "Taken from Copy (1-copy).\n");
    const Outcome dry = m_host->run(words("assign 1-plain ctrl+c"));
    QCOMPARE(dry.code, 0);
    QVERIFY2(dry.out.startsWith(report + QStringLiteral("Dry run: nothing was saved.")),
             qPrintable(dry.out));
    QVERIFY(!QFile::exists(saved()));

    const Outcome real = m_host->run(save("assign 1-plain ctrl+c"));
    QCOMPARE(real.code, 0);
    QCOMPARE(real.out, report + QStringLiteral("Saved as %1.\n").arg(saved()));
    QCOMPARE(stepsOf(saved()), QStringList({QStringLiteral("Remove 'Ctrl+X' from Cut."),
                                            QStringLiteral("Add 'F12' to Cut."),
                                            QStringLiteral("Add 'Ctrl+C' to Plain.")}));
    const QStringList set = {QStringLiteral("--set"), saved()};
    QCOMPARE(m_host->run(set + words("owner Ctrl+C")).out,
             QStringLiteral("View: Copy (2-copy)\nEditing: Plain (1-plain)\n"));
    QVERIFY(m_host->run(set + words("list")).out.contains(QLatin1String("1-copy   Ctrl+Ins ")));
}

void HotkeyCtlEditTest::assignOfWhatIsHeldAddsNoStep()
{
    const Outcome outcome = m_host->run(save("assign 1-copy ctrl+ins"));
    QCOMPARE(outcome.code, 0);
    QCOMPARE(outcome.out,
             QStringLiteral("Copy (1-copy) holds Ctrl+Ins already.\nSaved as %1.\n").arg(saved()));
    QCOMPARE(stepsOf(saved()).size(), 2);
}

void HotkeyCtlEditTest::refusesEditsThatCannotBeMade_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<QString>("error");

    const auto row = [](const char *arguments, const char *error) {
        QTest::newRow(arguments) << words(arguments) << QString::fromUtf8(error);
    };
    row("assign 1-nothing F9", "there is no action '1-nothing'");
    row("assign x-copy F9", "there is no action 'x-copy'");
    row("assign 1-full F9",
        "Full (1-full) holds 6 hotkeys, which is all it can: F1, F2, F3, F4, F5, F6");
    row("unassign 9-copy F9", "there is no action '9-copy'");
    row("unassign 1-copy F9", "Copy (1-copy) does not hold F9, but Ctrl+C, Ctrl+Ins");
    row("unassign 1-plain F9", "Plain (1-plain) does not hold F9, but no hotkey at all");
    row("unassign 1-cut Ctrl+X", "Cut (1-cut) does not hold Ctrl+X, but F12");
}

void HotkeyCtlEditTest::refusesEditsThatCannotBeMade()
{
    QFETCH(QStringList, arguments);
    QFETCH(QString, error);

    const Outcome outcome = m_host->run(arguments + QStringList{QStringLiteral("--save"), saved()});
    QCOMPARE(outcome.code, 1);
    QCOMPARE(outcome.out, QString());
    QCOMPARE(outcome.err, QStringLiteral("hotkeyctl: %1\n").arg(error));
    QVERIFY(!QFile::exists(saved()));
}

void HotkeyCtlEditTest::unassignTakesTheSpellingThatIsHeld_data()
{
    QTest::addColumn<QString>("held");
    QTest::addColumn<QString>("typed");

    QTest::newRow("canonical") << QStringLiteral("Ctrl+K") << QStringLiteral("Ctrl+K");
    QTest::newRow("typed in small letters") << QStringLiteral("Ctrl+K") << QStringLiteral("ctrl+k");
    QTest::newRow("held in small letters") << QStringLiteral("ctrl+k") << QStringLiteral("Ctrl+K");
    QTest::newRow("no key of a keyboard") << QStringLiteral("Crtl+K") << QStringLiteral("Crtl+K");
}

void HotkeyCtlEditTest::unassignTakesTheSpellingThatIsHeld()
{
    QFETCH(QString, held);
    QFETCH(QString, typed);

    const QString set = m_host->writeSet(QStringLiteral("mine.hsx"),
                                         "<Assign_Hotkey Shortcut=\"" + held.toUtf8()
                                                 + "\" Description=\"\" Id=\"1-plain\"/>");
    const Outcome outcome =
            m_host->run({QStringLiteral("--set"), set, QStringLiteral("unassign"),
                         QStringLiteral("1-plain"), typed, QStringLiteral("--save"), saved()});
    QCOMPARE(outcome.code, 0);
    QCOMPARE(outcome.lines().constFirst(),
             QStringLiteral("Took %1 from Plain (1-plain) in Editing.").arg(held));
    const Outcome after =
            m_host->run(QStringList{QStringLiteral("--set"), saved()} + words("list --changed"));
    QCOMPARE(after.code, 0);
    QCOMPARE(after.lines().size(), 1);
}

void HotkeyCtlEditTest::tellsOfAHolderThatKeepsItsSpelling()
{
    const QString set = m_host->writeSet(
            QStringLiteral("mine.hsx"),
            R"(<Assign_Hotkey Shortcut="ctrl+k" Description="Plain" Id="1-plain"/>)");
    const QStringList options = {QStringLiteral("--set"), set};
    QCOMPARE(m_host->run(options + words("assign 1-cut Ctrl+K")).lines().at(1),
             QStringLiteral("Plain (1-plain) still holds ctrl+k."));
}

void HotkeyCtlEditTest::leavesFilesThatAreNotToBeReplaced_data()
{
    QTest::addColumn<QString>("command");
    QTest::addColumn<QString>("file");
    QTest::addColumn<QString>("error");

    const QString assign = QStringLiteral("assign 1-plain F9 --save");
    const QString base = QStringLiteral("base");
    const auto row = [](const QString &command, const char *file, const char *error) {
        QTest::newRow(qPrintable(command + QLatin1Char(' ') + QString::fromUtf8(file)))
                << command << QString::fromUtf8(file) << QString::fromUtf8(error);
    };
    row(assign, "locked.hsx", "is not written, because the set 'locked' in it is locked");
    row(assign, "link.hsx", "is not written, because the set 'link' in it is locked");
    row(assign, "shipped-link.hsx", "is not written, because the sets in its folder are ");
    row(assign, "read-only.hsx", "is not written, because it is read-only");
    row(assign, "notes.txt", "is not written, because it is not a hotkey set");
    row(assign, "host/base/base.hsxb", "is not written, because it is not a hotkey set");
    row(assign, "host/presets/New.hsx", "is not written, because the sets in its folder are ");
    row(assign, "folder-link/New.hsx", "is not written, because the sets in its folder are ");
    row(assign, "nowhere/New.hsx", "is not written, because its folder does not exist");
    row(assign, "host", "is not written, because it is not a regular file");
    row(base, "locked.hsx", "is not written, because it is not a base hotkey file");
    row(base, "host/presets/New.hsxb", "is not written, because the sets in its folder are ");
    row(base, "nowhere/New.hsxb", "is not written, because its folder does not exist");
    // A name that no file system takes: the failure comes from writing.
    const QByteArray longName = QByteArray(300, 'x') + ".hsx";
    row(assign, longName.constData(), "cannot be written");
    row(base, longName.constData(), "cannot be written: ");
}

void HotkeyCtlEditTest::leavesFilesThatAreNotToBeReplaced()
{
    QFETCH(QString, command);
    QFETCH(QString, file);
    QFETCH(QString, error);

    const QString locked = m_host->writeSet(QStringLiteral("locked.hsx"), "", true);
    QVERIFY(QFile::link(locked, m_host->path(QStringLiteral("link.hsx"))));
    QVERIFY(QFile::link(m_host->writeSet(QStringLiteral("host/presets/Open.hsx"), ""),
                        m_host->path(QStringLiteral("shipped-link.hsx"))));
    QVERIFY(QFile::link(m_host->path(QStringLiteral("host/presets")),
                        m_host->path(QStringLiteral("folder-link"))));
    m_host->write(QStringLiteral("notes.txt"), "to do");
    QVERIFY(QFile::setPermissions(m_host->writeSet(QStringLiteral("read-only.hsx"), ""),
                                  QFileDevice::ReadOwner));
    const QStringList before = m_host->snapshot(QString());
    QVERIFY(before.contains(m_host->path(QStringLiteral("notes.txt")) + QStringLiteral("=to do")));

    const QString path = m_host->path(file);
    const Outcome outcome = m_host->run(words(command.toUtf8().constData()) + QStringList(path));
    QCOMPARE(outcome.code, 1);
    QCOMPARE(outcome.out, QString());
    QVERIFY2(outcome.err.contains(QStringLiteral("hotkeyctl: %1: %2").arg(path, error)),
             qPrintable(outcome.err));
    QCOMPARE(m_host->snapshot(QString()), before);
}

void HotkeyCtlEditTest::editsASetInPlace()
{
    const QString set = m_host->write(QStringLiteral("mine.hsx"), "");
    QCOMPARE(m_host->run(words("--set= assign 1-plain F9 --save") + QStringList(set)).code, 0);
    const QStringList options = {QStringLiteral("--set"), set};
    QCOMPARE(m_host->run(options + words("assign 1-plain F10 --save") + QStringList(set)).code, 0);
    QCOMPARE(m_host->run(options + words("unassign 1-plain F9 --save") + QStringList(set)).code, 0);
    QCOMPARE(m_host->run(options + words("owner F9")).out, QStringLiteral("F9 is free.\n"));
    QCOMPARE(m_host->run(options + words("owner F10")).out,
             QStringLiteral("Editing: Plain (1-plain)\n"));
}

void HotkeyCtlEditTest::writesABaseFileThatLoadsToTheSame()
{
    const QString path = m_host->path(QStringLiteral("all.hsxb"));
    for (int round = 0; round < 2; ++round) { // the second replaces the first
        const Outcome outcome = m_host->run({QStringLiteral("base"), path});
        QCOMPARE(outcome.code, 0);
        QCOMPARE(outcome.out, QStringLiteral("Saved as %1.\n").arg(path));
    }
    Host::SampleHost host(m_host->path(QStringLiteral("host")),
                          m_host->path(QStringLiteral("user")),
                          Host::HostPathManager::Record::InMemory);
    QVERIFY2(host.load(), qPrintable(host.errorText()));
    CUI::QvelShortcutManager configured;
    configured.loadShortcutConfiguration(QString());
    CUI::QvelShortcutManager loaded;
    QVERIFY(loaded.loadShortcuts(path));
    QCOMPARE(loaded.getShortcuts().size(), std::size_t(4));
    QVERIFY(loaded.getShortcuts() == configured.getShortcuts());
}

QTEST_GUILESS_MAIN(HotkeyCtlEditTest)
#include "tst_HotkeyCtlEdit.moc"
