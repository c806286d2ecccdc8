#include "SampleHost.h"
#include "ToolHost.h"

#include <UiCustomizations/ICuiActionManager.h>
#include <UiCustomizations/QvelShortcutManager.h>

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
    void prints_data();
    void prints();
    void orderIsNoChangeButLetterCaseIs();
    void listsNamesThatNeedCare();
    void jsonHoldsWhatTheStoreHolds();
    void lints();
    void drawsKeyboards();
    void validatesEveryFile();

private:
    ToolHost m_host;
};

void HotkeyCtlShowTest::prints_data()
{
    QTest::addColumn<QString>("out");

    const auto row = [](const char *line, const char *out) { QTest::newRow(line) << out; };
    row("list", "CONTEXT  ACTION  ID       HOTKEYS                 CHANGED FROM\n"
                "Editing  Copy    1-copy   Ctrl+C, Ctrl+Ins\n"
                "Editing  Cut     1-cut    F12                     Ctrl+X\n"
                "Editing  Full    1-full   F1, F2, F3, F4, F5, F6\n"
                "Editing  Plain   1-plain\n"
                "View     Copy    2-copy   Ctrl+C\n");
    row("list --changed", "CONTEXT  ACTION  ID     HOTKEYS  CHANGED FROM\n"
                          "Editing  Cut     1-cut  F12      Ctrl+X\n");
    row("list --context View", "CONTEXT  ACTION  ID      HOTKEYS  CHANGED FROM\n"
                               "View     Copy    2-copy  Ctrl+C\n");
    row("list --context View --changed --format json", "[]\n");
    row("--set= list --changed", "CONTEXT  ACTION  ID  HOTKEYS  CHANGED FROM\n");
    row("list --changed --format csv",
        "contextId,context,category,action,id,hotkeys,baseHotkeys,changed\r\n"
        "1,Editing,Edit,Cut,1-cut,F12,Ctrl+X,true\r\n");
    row("owner cTRL+c", "View: Copy (2-copy)\nEditing: Copy (1-copy)\n");
    row("owner f12", "Editing: Cut (1-cut)\n");
    row("owner Ctrl+C --context View", "View: Copy (2-copy)\n");
    row("owner F12 --context View", "F12 is free in View.\n");
    row("owner ctrl+x", "Ctrl+X is free.\n");
    row("--set= owner ctrl+x", "Editing: Cut (1-cut)\n");
    row("owner -", "- is free.\n");
    row("owner num+5", "Num+5 is free.\n");
    row("steps", "Remove 'Ctrl+X' from Cut.\nAdd 'F12' to Cut.\n");
    row("--set= steps", "");
}

void HotkeyCtlShowTest::prints()
{
    const Outcome outcome = m_host.run(QTest::currentDataTag());
    QTEST(outcome.done(), "out");
    QCOMPARE(outcome.err, QString());
}

void HotkeyCtlShowTest::orderIsNoChangeButLetterCaseIs()
{
    m_host.writeSet("mine.hsx", step("Unassign", "Ctrl+C", "1-copy")
                                        + step("Assign", "Ctrl+C", "1-copy")
                                        + step("Unassign", "Ctrl+X", "1-cut")
                                        + step("Assign", "ctrl+x", "1-cut"));
    QVERIFY(m_host.run("--set @/mine.hsx list").out.contains(s("Ctrl+Ins, Ctrl+C\n")));
    QCOMPARE(m_host.run("--set @/mine.hsx list --changed").lines().mid(1),
             QStringList(s("Editing  Cut     1-cut  ctrl+x   Ctrl+X")));
}

void HotkeyCtlShowTest::listsNamesThatNeedCare()
{
    m_host.write("odd/host.json",
                 R"({"defaultSet": "", "contexts": [{"id": 1, "name": "\u8996\u91ce"}],
                     "actions": [{"table": 1, "id": "a", "name": "e\u0301 \"q\"\\\n\u001b", "context": 1,
                                  "category": "x,y", "accelerators": [",", "\""]},
                                 {"table": 1, "id": "b", "name": "\ud83d\ude00", "context": 1,
                                  "category": ""}]})");

    const QJsonArray array = m_host.run("--host @/odd list --format json").json();
    QCOMPARE(array.size(), 2);
    const QJsonObject first = array.at(0).toObject();
    QCOMPARE(first[s("action")].toString(), s("e\u0301 \"q\"\\\n\u001b"));
    QCOMPARE(first[s("context")].toString(), s("\u8996\u91ce"));
    QCOMPARE(first[s("hotkeys")].toArray(), QJsonArray({s(","), s("\"")}));
    QVERIFY(m_host.run("--host @/odd list --format csv")
                    .out.contains(
                            s("\r\n1,\u8996\u91ce,\"x,y\",\"e\u0301 \"\"q\"\"\\\n\u001b\",1-a,"
                              "\",, \"\"\",")));
    QCOMPARE(m_host.run("--host @/odd list").done(),
             s("CONTEXT  ACTION          ID   HOTKEYS  CHANGED FROM\n"
               "\u8996\u91ce     e\u0301 \"q\"\\\\n\\u001b  1-a  ,, \"\n"
               "\u8996\u91ce     \U0001f600              1-b\n"));
}

void HotkeyCtlShowTest::jsonHoldsWhatTheStoreHolds()
{
    const QString directory = Host::SampleHost::shippedDirectory();
    const QString set = directory + s("/presets/Zarvi Default Keyset.hsx");
    const Outcome outcome = ToolHost::runBare({s("--user"), m_host.path("user"), s("--set"), set,
                                               s("list"), s("--format"), s("json")});
    QVERIFY(outcome.done().startsWith(s("[\n  {\"contextId\": ")));

    Host::SampleHost host(directory, m_host.path("user"), Host::HostPathManager::Record::InMemory);
    QVERIFY2(host.load(), qPrintable(host.errorText()));
    CUI::QvelShortcutManager store;
    store.loadShortcutConfiguration(set);
    int changedCount = 0;
    QStringList order;
    QSet<QString> identifiers;
    for (const QJsonValue &value : outcome.json()) {
        const QJsonObject row = value.toObject();
        const auto identifier = CUI::ActionIdentifier::fromString(row[s("id")].toString());
        const CUI::VelAction *action = CUI::ICuiActionManager::get()->getAction(identifier);
        QVERIFY(action != nullptr);
        QCOMPARE(row[s("action")].toString(), action->name());
        QCOMPARE(row[s("category")].toString(), action->category());
        QCOMPARE(row[s("contextId")].toDouble(), double(action->contextId()));
        const auto joined = [&row](const char *key) {
            return row[s(key)].toVariant().toStringList().join(s(", "));
        };
        QCOMPARE(joined("hotkeys"), store.getShortcutsFromActionId(identifier));
        QCOMPARE(joined("baseHotkeys"), store.getBaseShortcutsFromActionId(identifier));
        // The sets keep the hotkeys they leave alone in their order, so that texts compare.
        const bool changed = joined("hotkeys") != joined("baseHotkeys");
        QCOMPARE(row[s("changed")].toBool(), changed);
        changedCount += changed ? 1 : 0;
        order << row[s("context")].toString() + QLatin1Char('\n') + action->name();
        identifiers.insert(identifier.toString());
    }
    QVERIFY(changedCount > 100 && changedCount < order.size());
    QCOMPARE(std::size_t(order.size()), host.catalogue().actions.size());
    QCOMPARE(identifiers.size(), order.size());
    QVERIFY(std::is_sorted(order.cbegin(), order.cend()));
}

void HotkeyCtlShowTest::drawsKeyboards()
{
    const ToolHost host;
    const auto drawn = [&host](const char *options) {
        const QString line = s("keyboard -o @/keys.svg ") + s(options);
        const QString out = host.run(line).done();
        return out + QString::fromUtf8(ToolHost::read(host.path("keys.svg")));
    };
    const QString both = s("<title>Ctrl+C\nTaken in several groups\n"
                           "Copy (Editing)\nCopy (View)\n");
    QVERIFY(drawn("--modifiers Ctrl").contains(both));
    QVERIFY(drawn("--modifiers ctrl --context Editing --context View").contains(both));
    QVERIFY(drawn("--modifiers Ctrl --context View")
                    .contains(s("<title>Ctrl+C\nTaken\nCopy (View)\n")));
    QVERIFY(drawn("--layout de").contains(s(">Ü<")));
    QVERIFY(drawn("--shape jis").contains(s(">変換<")));

    for (const char *line : {"keyboard", "keyboard -o keys.png", "keyboard -o a.svg --shape round",
                             "keyboard -o a.svg --layout xx", "keyboard -o a.svg --modifiers A",
                             "keyboard -o a.svg --modifiers Ctrl+"})
        QVERIFY2(!host.run(line).refusal(2).isEmpty(), line);
    QVERIFY(host.run("keyboard -o @/no/a.svg").refusal().contains(s("cannot be written")));
    QVERIFY(host.run("keyboard -o @/a.svg --context Nowhere").refusal().contains(s("Nowhere")));
}

void HotkeyCtlShowTest::lints()
{
    const ToolHost host;
    const QString rest = s("; not checked: what the keyboard layout can type\n");
    QCOMPARE(host.run("lint").done(), s("0 errors, 0 warnings, 3 notes") + rest);
    const QByteArray catalogue = ToolHost::read(host.path("host/host.json"));
    host.write("host/host.json",
               QByteArray(catalogue).replace("\"Editing\"", "\"Editing\", \"everywhere\": true"));
    host.writeSet("shared.hsx",
                  step("Assign", "Ctrl+C", "2-copy") + step("Unassign", "Ctrl+X", "1-cut"));
    QCOMPARE(host.run("lint @/shared.hsx").everything(),
             s("exit status 1\n"
               "warning: shadowed Ctrl+C: In View this key runs Copy. Elsewhere it runs Copy.\n"
               "warning: hotkey-lost Ctrl+X: Cut (Editing) has lost Ctrl+X.\n"
               "0 errors, 2 warnings, 3 notes")
                     + rest);
    const QString json = host.run("--set @/shared.hsx lint --format json").out;
    const QJsonObject object = QJsonDocument::fromJson(json.toUtf8()).object();
    QCOMPARE(object[s("notChecked")].toArray(), QJsonArray{s("not-typeable")});
    const QJsonObject shadowed = object[s("findings")].toArray().at(0).toObject();
    QCOMPARE(shadowed[s("kind")].toString(), s("shadowed"));
    QCOMPARE(shadowed[s("actions")].toArray().at(1).toObject()[s("id")].toString(), s("2-copy"));
    QCOMPARE(shadowed[s("outcomes")].toArray().at(1).toObject()[s("runs")].toString(), s("1-copy"));
    QCOMPARE(host.run("lint @/shared.hsx --severity error").code, 0);
    QVERIFY(host.run("lint --severity all").refusal(2).contains(s("not 'all'")));
    QVERIFY(host.run("lint nothing").refusal().contains(s("nothing")));
}

void HotkeyCtlShowTest::validatesEveryFile()
{
    m_host.write("swapped.hsxb", ToolHost::read(m_host.path("host/presets/Default.hsx")));
    m_host.write("damaged.HSX", "<VelHotkeyTransformations>\n  <Oops/>\n"
                                "</VelHotkeyTransformations>\n");
    m_host.write("host.txt", "");
    QVERIFY(QDir().mkpath(m_host.path("folder.hsx")));

    const QString good = s("validate @/host/base/base.hsxb @/host/presets/Default.hsx ")
                         + s(CUI_TEST_DATA_DIR "/valid/legacy-user-artist.kbdx");
    QCOMPARE(m_host.run(good).done().count(s(": valid\n")), 3);
    QCOMPARE(m_host.run("validate @/host.txt").code, 1);

    // Without log lines, the result still tells the place.
    const Outcome mixed = m_host.run("--log-level 0 validate @/swapped.hsxb @/missing.hsx "
                                     "@/damaged.HSX @/host.txt @/folder.hsx @/host/base/base.hsxb");
    QCOMPARE(mixed.code, 1);
    QCOMPARE(mixed.err, QString());
    const QRegularExpression expected(m_host.text("^@/swapped.hsxb: not valid: .* Line: 2 .*\n"
                                                  "@/missing.hsx: cannot be opened: .*\n"
                                                  "@/damaged.HSX: not valid: .* Line: 2 .*\n"
                                                  "@/host.txt: unknown kind of file\n"
                                                  "@/folder.hsx: cannot be opened: .*\n"
                                                  "@/host/base/base.hsxb: valid\n$"));
    QVERIFY2(expected.match(mixed.out).hasMatch(), qPrintable(mixed.out));
}

QTEST_GUILESS_MAIN(HotkeyCtlShowTest)
#include "tst_HotkeyCtlShow.moc"
