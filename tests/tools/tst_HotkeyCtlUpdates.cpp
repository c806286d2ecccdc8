#include "ToolHost.h"

#include <UiCustomizations/QvelMessageLog.h>

#include <QtTest>

/// The commands for sets that have changed elsewhere, or whose base has: check, merge and --force.
class HotkeyCtlUpdatesTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { m_host = std::make_unique<ToolHost>(); }
    void checks();
    void merges();
    void keepsStepsThatDoNotApply();
    void refusesToSaveOverAChangedSet();

private:
    std::unique_ptr<ToolHost> m_host;
};

void HotkeyCtlUpdatesTest::checks()
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

void HotkeyCtlUpdatesTest::merges()
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

void HotkeyCtlUpdatesTest::keepsStepsThatDoNotApply()
{
    m_host->writeSet("mine.hsx", step("Assign", "F9", "1-full", "Full")
                                         + step("Assign", "F9", "9-gone", "Gone")
                                         + step("Unassign", "F9", "1-copy", "Copy"));
    QCOMPARE(m_host->run("--set @/mine.hsx assign 1-plain F10 --save @/mine.hsx").code, 0);
    QCOMPARE(m_host->run("show @/mine.hsx").lines().mid(1),
             list("Add 'F9' to Full.|Add 'F9' to Gone.|Remove 'F9' from Copy.|"
                  "Add 'F10' to Plain."));
}

void HotkeyCtlUpdatesTest::refusesToSaveOverAChangedSet()
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

QTEST_GUILESS_MAIN(HotkeyCtlUpdatesTest)
#include "tst_HotkeyCtlUpdates.moc"
