#include "SampleHost.h"
#include "ToolHost.h"

#include <UiCustomizations/ICuiActionManager.h>
#include <UiCustomizations/QvelShortcutManager.h>

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QSet>
#include <QtTest>

#include <algorithm>

/// The commands that show something and write nothing.
class HotkeyCtlShowTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void listsAsText();
    void orderIsNoChangeButLetterCaseIs();
    void listsAsCsv();
    void listsNamesThatNeedCare();
    void jsonHoldsWhatTheStoreHolds();
    void tellsTheOwnersOfAHotkey_data();
    void tellsTheOwnersOfAHotkey();
    void showsSteps();
    void validatesEveryFile();

private:
    ToolHost m_host;
};

void HotkeyCtlShowTest::listsAsText()
{
    const Outcome outcome = m_host.run({QStringLiteral("list")});
    QCOMPARE(outcome.code, 0);
    QCOMPARE(outcome.lines(),
             QStringList({
                     QStringLiteral("CONTEXT  ACTION  ID       HOTKEYS                 CHANGED "
                                    "FROM"),
                     QStringLiteral("Editing  Copy    1-copy   Ctrl+C, Ctrl+Ins"),
                     QStringLiteral("Editing  Cut     1-cut    F12                     Ctrl+X"),
                     QStringLiteral("Editing  Full    1-full   F1, F2, F3, F4, F5, F6"),
                     QStringLiteral("Editing  Plain   1-plain"),
                     QStringLiteral("View     Copy    2-copy   Ctrl+C"),
             }));
    QCOMPARE(m_host.run(words("list --changed")).lines().size(), 2);
    QCOMPARE(m_host.run(words("list --context View")).lines().size(), 2);
    QCOMPARE(m_host.run(words("list --context View --changed --format json")).out,
             QStringLiteral("[]\n"));
    QCOMPARE(m_host.run(words("--set= list --changed")).lines().size(), 1);
}

void HotkeyCtlShowTest::orderIsNoChangeButLetterCaseIs()
{
    const QString set =
            m_host.writeSet(QStringLiteral("mine.hsx"),
                            R"(<Unassign_Hotkey Shortcut="Ctrl+C" Description="Copy" Id="1-copy"/>
               <Assign_Hotkey Shortcut="Ctrl+C" Description="Copy" Id="1-copy"/>
               <Unassign_Hotkey Shortcut="Ctrl+X" Description="Cut" Id="1-cut"/>
               <Assign_Hotkey Shortcut="ctrl+x" Description="Cut" Id="1-cut"/>)");
    const QStringList options = {QStringLiteral("--set"), set};
    QVERIFY(m_host.run(options + words("list")).out.contains(QLatin1String("Ctrl+Ins, Ctrl+C\n")));
    QCOMPARE(m_host.run(options + words("list --changed")).lines().mid(1),
             QStringList({QStringLiteral("Editing  Cut     1-cut  ctrl+x   Ctrl+X")}));
}

void HotkeyCtlShowTest::listsAsCsv()
{
    const Outcome outcome = m_host.run(words("list --context Editing --format csv"));
    QCOMPARE(outcome.code, 0);
    QCOMPARE(outcome.out,
             QStringLiteral("contextId,context,category,action,id,hotkeys,baseHotkeys,changed\r\n"
                            "1,Editing,Edit,Copy,1-copy,\"Ctrl+C, Ctrl+Ins\",\"Ctrl+C, Ctrl+Ins\","
                            "false\r\n"
                            "1,Editing,Edit,Cut,1-cut,F12,Ctrl+X,true\r\n"
                            "1,Editing,Edit,Full,1-full,\"F1, F2, F3, F4, F5, F6\","
                            "\"F1, F2, F3, F4, F5, F6\",false\r\n"
                            "1,Editing,Edit,Plain,1-plain,,,false\r\n"));
}

void HotkeyCtlShowTest::listsNamesThatNeedCare()
{
    m_host.write(QStringLiteral("odd/host.json"),
                 R"({"defaultSet": "", "contexts": [{"id": 1, "name": "\u8996\u91ce"}],
                     "actions": [{"table": 1, "id": "a", "name": "e\u0301 \"q\"\\\n\u001b", "context": 1,
                                  "category": "x,y", "accelerators": [",", "\""]},
                                 {"table": 1, "id": "b", "name": "\ud83d\ude00", "context": 1,
                                  "category": ""}]})");
    const QStringList options = {QStringLiteral("--host"), m_host.path(QStringLiteral("odd"))};
    const QString name = QStringLiteral("e\u0301 \"q\"\\\n\u001b");

    const Outcome json = m_host.run(options + words("list --format json"));
    QCOMPARE(json.code, 0);
    const QJsonArray array = QJsonDocument::fromJson(json.out.toUtf8()).array();
    QCOMPARE(array.size(), 2);
    QCOMPARE(array.at(0).toObject().value(QStringLiteral("action")).toString(), name);
    QCOMPARE(array.at(0).toObject().value(QStringLiteral("context")).toString(),
             QStringLiteral("\u8996\u91ce"));
    QCOMPARE(array.at(0).toObject().value(QStringLiteral("hotkeys")).toArray(),
             QJsonArray({QStringLiteral(","), QStringLiteral("\"")}));

    QVERIFY(m_host.run(options + words("list --format csv"))
                    .out.contains(QStringLiteral("\r\n1,\u8996\u91ce,\"x,y\",\"e\u0301 "
                                                 "\"\"q\"\"\\\n\u001b\",1-a,\",, \"\"\",")));
    QCOMPARE(m_host.run(options + words("list")).lines(),
             QStringList({QStringLiteral("CONTEXT  ACTION          ID   HOTKEYS  CHANGED FROM"),
                          QStringLiteral("\u8996\u91ce     e\u0301 \"q\"\\\\n\\u001b  1-a  ,, \""),
                          QStringLiteral("\u8996\u91ce     \U0001f600              1-b")}));
}

void HotkeyCtlShowTest::jsonHoldsWhatTheStoreHolds()
{
    const QString directory = Host::SampleHost::shippedDirectory();
    const QString set = directory + QStringLiteral("/presets/Zarvi Default Keyset.hsx");
    const Outcome outcome = ToolHost::runBare(QStringList{QStringLiteral("--user"),
                                                          m_host.path(QStringLiteral("user")),
                                                          QStringLiteral("--set"), set}
                                              + words("list --format json"));
    QCOMPARE(outcome.code, 0);
    QVERIFY(outcome.lines().at(1).startsWith(QLatin1String("  {\"contextId\": ")));
    const QJsonArray array = QJsonDocument::fromJson(outcome.out.toUtf8()).array();

    Host::SampleHost host(directory, m_host.path(QStringLiteral("user")),
                          Host::HostPathManager::Record::InMemory);
    QVERIFY2(host.load(), qPrintable(host.errorText()));
    CUI::QvelShortcutManager store;
    store.loadShortcutConfiguration(set);
    QCOMPARE(std::size_t(array.size()), host.catalogue().actions.size());
    int changedCount = 0;
    QStringList order;
    QSet<QString> identifiers;
    for (const QJsonValue &value : array) {
        const QJsonObject object = value.toObject();
        const auto identifier =
                CUI::ActionIdentifier::fromString(object.value(QStringLiteral("id")).toString());
        const CUI::VelAction *action = CUI::ICuiActionManager::get()->getAction(identifier);
        QVERIFY(action != nullptr);
        QCOMPARE(object.value(QStringLiteral("action")).toString(), action->name());
        QCOMPARE(object.value(QStringLiteral("category")).toString(), action->category());
        QCOMPARE(object.value(QStringLiteral("contextId")).toDouble(), double(action->contextId()));
        const auto joined = [&object](const QString &key) {
            QStringList texts;
            for (const QJsonValue &text : object.value(key).toArray())
                texts << text.toString();
            return texts.join(QLatin1String(", "));
        };
        const QString current = store.getShortcutsFromActionId(identifier);
        const QString base = store.getBaseShortcutsFromActionId(identifier);
        QCOMPARE(joined(QStringLiteral("hotkeys")), current);
        QCOMPARE(joined(QStringLiteral("baseHotkeys")), base);
        const bool changed = object.value(QStringLiteral("changed")).toBool();
        // The sets keep the hotkeys they leave alone in their order, so that texts compare.
        QCOMPARE(changed, current != base);
        changedCount += changed ? 1 : 0;
        order << object.value(QStringLiteral("context")).toString() + QLatin1Char('\n')
                         + action->name();
        identifiers.insert(identifier.toString());
    }
    QVERIFY(changedCount > 100 && changedCount < array.size());
    QCOMPARE(identifiers.size(), array.size());
    QVERIFY(std::is_sorted(order.cbegin(), order.cend()));
}

void HotkeyCtlShowTest::tellsTheOwnersOfAHotkey_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<QString>("out");

    const auto row = [](const char *arguments, const char *out) {
        QTest::newRow(arguments) << words(arguments) << QString::fromUtf8(out);
    };
    row("owner Ctrl+C", "View: Copy (2-copy)\nEditing: Copy (1-copy)\n");
    row("owner cTRL+c", "View: Copy (2-copy)\nEditing: Copy (1-copy)\n");
    row("owner f12", "Editing: Cut (1-cut)\n");
    row("owner Ctrl+C --context View", "View: Copy (2-copy)\n");
    row("owner F12 --context View", "F12 is free in View.\n");
    row("owner ctrl+x", "Ctrl+X is free.\n");
    row("--set= owner ctrl+x", "Editing: Cut (1-cut)\n");
    row("owner -", "- is free.\n");
    row("owner num+5", "Num+5 is free.\n");
}

void HotkeyCtlShowTest::tellsTheOwnersOfAHotkey()
{
    QFETCH(QStringList, arguments);
    QFETCH(QString, out);

    const Outcome outcome = m_host.run(arguments);
    QCOMPARE(outcome.err, QString());
    QCOMPARE(outcome.out, out);
    QCOMPARE(outcome.code, 0);
}

void HotkeyCtlShowTest::showsSteps()
{
    QCOMPARE(m_host.run({QStringLiteral("steps")}).lines(),
             QStringList({QStringLiteral("Remove 'Ctrl+X' from Cut."),
                          QStringLiteral("Add 'F12' to Cut.")}));
    const Outcome none = m_host.run(words("--set= steps"));
    QCOMPARE(none.code, 0);
    QCOMPARE(none.out, QString());
}

void HotkeyCtlShowTest::validatesEveryFile()
{
    const QString base = m_host.path(QStringLiteral("host/base/base.hsxb"));
    const QString set = m_host.path(QStringLiteral("host/presets/Default.hsx"));
    const QString legacy = QStringLiteral(CUI_TEST_DATA_DIR "/valid/legacy-user-artist.kbdx");
    const QString swapped = m_host.write(QStringLiteral("swapped.hsxb"), ToolHost::read(set));
    const QString damaged =
            m_host.write(QStringLiteral("damaged.HSX"), "<VelHotkeyTransformations>\n  <Oops/>\n"
                                                        "</VelHotkeyTransformations>\n");
    const QString other = m_host.write(QStringLiteral("host.txt"), "");
    const QString missing = m_host.path(QStringLiteral("missing.hsx"));
    const QString folder = m_host.path(QStringLiteral("folder.hsx"));
    QVERIFY(QDir().mkpath(folder));

    const Outcome good = m_host.run({QStringLiteral("validate"), base, set, legacy});
    QCOMPARE(good.code, 0);
    QCOMPARE(good.lines(),
             QStringList({base + QStringLiteral(": valid"), set + QStringLiteral(": valid"),
                          legacy + QStringLiteral(": valid")}));

    // Without log lines, the result still tells the place.
    const Outcome mixed = m_host.run(words("--log-level 0 validate")
                                     + QStringList{swapped, missing, damaged, other, folder, base});
    QCOMPARE(mixed.code, 1);
    QCOMPARE(mixed.err, QString());
    const QStringList lines = mixed.lines();
    QCOMPARE(lines.size(), 6);
    QVERIFY2(lines.at(0).startsWith(swapped + QStringLiteral(": not valid: "))
                     && lines.at(0).contains(QLatin1String(" Line: 2 ")),
             qPrintable(lines.at(0)));
    QVERIFY2(lines.at(1).startsWith(missing + QStringLiteral(": cannot be opened: ")),
             qPrintable(lines.at(1)));
    QVERIFY2(lines.at(2).startsWith(damaged + QStringLiteral(": not valid: "))
                     && lines.at(2).contains(QLatin1String(" Line: 2 ")),
             qPrintable(lines.at(2)));
    QCOMPARE(lines.at(3), other + QStringLiteral(": unknown kind of file"));
    QVERIFY2(lines.at(4).startsWith(folder + QStringLiteral(": cannot be opened: ")),
             qPrintable(lines.at(4)));
    QCOMPARE(lines.at(5), base + QStringLiteral(": valid"));
}

QTEST_GUILESS_MAIN(HotkeyCtlShowTest)
#include "tst_HotkeyCtlShow.moc"
