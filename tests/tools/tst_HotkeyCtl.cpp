#include "Commands.h"
#include "ToolHost.h"

#include <QFile>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QRegularExpression>
#include <QStandardPaths>
#include <QtTest>

/// The program as a whole, and the commands that show something and write nothing.
class HotkeyCtlTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { m_host = std::make_unique<ToolHost>(); }
    void helpAndManPageTellAboutEveryCommandAndOption();
    void manPageIsWellFormed();
    void refuses_data();
    void refuses();
    void worksOnTheRecordedSetAndLeavesTheRecordAlone();
    void showsTheBaseWhenTheCurrentSetIsBroken();
    void runsAsAProcess();
    void saysWhenTheSchemasAreMissing();
    void prints_data();
    void prints();
    void listsNamesThatNeedCare();
    void lints();
    void drawsKeyboards();
    void validatesEveryFile();

private:
    /// Runs a copy of the program as a process without display.
    Outcome runProcess(const QString &program, const char *line) const;

    std::unique_ptr<ToolHost> m_host;
};

namespace {

QString programPath()
{
    return QCoreApplication::applicationDirPath() + s("/hotkeyctl");
}

const QString pagePath = s(CUI_SOURCE_DIR "/man/hotkeyctl.1");

} // namespace

Outcome HotkeyCtlTest::runProcess(const QString &program, const char *line) const
{
    QProcess process;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.remove(s("DISPLAY"));
    environment.remove(s("QT_QPA_PLATFORM"));
    environment.insert(s("XDG_DATA_HOME"), m_host->path("data"));
    process.setProcessEnvironment(environment);
    process.start(program, m_host->arguments(s(line)));
    if (!process.waitForFinished() || process.exitStatus() != QProcess::NormalExit)
        return {};
    return {process.exitCode(), QString::fromUtf8(process.readAllStandardOutput()),
            QString::fromUtf8(process.readAllStandardError())};
}

void HotkeyCtlTest::helpAndManPageTellAboutEveryCommandAndOption()
{
    const QString page = QString::fromUtf8(ToolHost::read(pagePath));
    const QString program = ToolHost::runBare({s("--help")}).done();
    for (const HotkeyCtl::Command &command : HotkeyCtl::commands()) {
        QVERIFY2(program.contains(s("\n  %1 ").arg(command.name)), qPrintable(command.name));
        const QString help = ToolHost::runBare({command.name, s("--help")}).done();
        QVERIFY2(help.contains(s("\nExample")), qPrintable(help));
        const int entry = page.indexOf(s("Cm ") + command.name);
        QVERIFY2(entry >= 0, qPrintable(command.name));
        for (const QCommandLineOption &option : command.options) {
            const QString name = option.names().constFirst();
            QVERIFY2(help.count(s("--") + name) >= 2, qPrintable(help));
            QVERIFY2(page.indexOf(s("Fl \\-") + name, entry) > 0, qPrintable(name));
        }
    }
    QVERIFY(ToolHost::runBare({s("-v")}).done().startsWith(s("hotkeyctl 0.")));
}

void HotkeyCtlTest::manPageIsWellFormed()
{
    const QString mandoc = QStandardPaths::findExecutable(s("mandoc"));
    if (mandoc.isEmpty())
        QSKIP("mandoc is not installed");
    QProcess process;
    process.start(mandoc, {s("-T"), s("lint"), pagePath});
    QVERIFY(process.waitForFinished());
    QCOMPARE(QString::fromUtf8(process.readAll()), QString());
    QCOMPARE(process.exitCode(), 0);
}

void HotkeyCtlTest::refuses_data()
{
    QTest::addColumn<int>("status");
    QTest::addColumn<QString>("line");
    QTest::addColumn<QString>("error");

    const auto usage = [](const char *line, const char *error) {
        QTest::newRow(line) << 2 << line << error;
    };
    usage("", "a command is missing");
    usage("frobnicate", "there is no command 'frobnicate'");
    usage("list --colour", "Unknown option 'colour'");
    usage("--log-level 5 list", "--log-level takes a number from 0 to 4, not '5'");
    usage("--host= list", "--host needs a directory");
    usage("convert 1 2 3", "convert takes IN.kbdx [OUT.hsx] [--force]\n");
    usage("list --format xml", "--format takes text, csv or json, not 'xml'");
    usage("owner A,B", "'A,B' is more than one key combination");
    usage("assign 1-cut Ctrl+Foo", "'Ctrl+Foo' names a key that does not exist");
    usage("assign 1-cut Ctrl+K --save=", "--save needs the name of a file");
    usage("use ''", "SET is empty");

    const auto problem = [](const char *line, const char *error) {
        QTest::newRow(line) << 1 << line << error;
    };
    problem("--host @/nowhere list", "@/nowhere: is not a directory");
    problem("--host @/typo steps", "@/typo/host.json: actions[0].table: is missing");
    problem("--set @/broken.hsx list", "@/broken.hsx: the hotkey set cannot be loaded");
    problem("list --context Nowhere", "there is no context 'Nowhere'; there are: View, Editing");
    problem("owner F1 --context view", "there is no context 'view'; there are: View, Editing");
}

void HotkeyCtlTest::refuses()
{
    QFETCH(int, status);
    QFETCH(QString, line);
    QFETCH(QString, error);

    m_host->write("typo/host.json",
                  R"({"defaultSet": "", "contexts": [], "actions": [{"id": "x"}]})");
    m_host->writeSet("broken.hsx", "<Assign_Hotkey/>");
    error = s("hotkeyctl: ") + m_host->text(error.toUtf8());
    const QString refusal = m_host->run(line).refusal(status);
    QCOMPARE(refusal.left(error.size()), error);
    QCOMPARE(refusal.endsWith(s("--help'.\n")), status == 2);
}

void HotkeyCtlTest::worksOnTheRecordedSetAndLeavesTheRecordAlone()
{
    const QString mine = m_host->writeSet("mine.hsx", step("Assign", "F9", "1-plain"));
    m_host->writeSet("other.hsx", step("Assign", "F10", "1-plain"));

    // Without a record nothing is written either, not even the user's directory.
    QCOMPARE(m_host->run("owner F12").done(), s("Editing: Cut (1-cut)\n"));
    QVERIFY(!m_host->exists("user"));

    m_host->record("user/current.json", mine);
    const QStringList before = m_host->snapshot("user");
    QCOMPARE(before.size(), 1);
    const QString plain = s("Editing: Plain (1-plain)\n");
    QCOMPARE(m_host->run("--set @/other.hsx owner F10").done(), plain);
    for (const char *line : {"--set @/other.hsx list", "base @/a.hsxb",
                             "--set @/other.hsx assign 1-plain F11 --save @/saved.hsx"})
        QVERIFY2(m_host->run(line).code == 0, line);
    QCOMPARE(m_host->snapshot("user"), before);
    QCOMPARE(m_host->run("owner F9").done(), plain);
}

void HotkeyCtlTest::showsTheBaseWhenTheCurrentSetIsBroken()
{
    const QString set = m_host->writeSet("broken.hsx", "<Oops/>");
    m_host->record("user/current.json", set);

    const Outcome listed = m_host->run("--log-level 0 list");
    QCOMPARE(listed.code, 1);
    QCOMPARE(listed.err, s("hotkeyctl: %1: the hotkey set cannot be loaded\n").arg(set));
    QVERIFY2(listed.out.contains(s("1-cut    Ctrl+X")), qPrintable(listed.out));
    const Outcome owner = m_host->run("owner Ctrl+X");
    QCOMPARE(owner.code, 1);
    QCOMPARE(owner.out, s("Editing: Cut (1-cut)\n"));
    QCOMPARE(m_host->run("steps").code, 1);
    const QString refusal = m_host->run("assign 1-plain F9 --save @/saved.hsx").refusal();
    QVERIFY2(refusal.endsWith(s("nothing was changed\n")), qPrintable(refusal));
    QVERIFY(!m_host->exists("saved.hsx"));
    QCOMPARE(m_host->run("base @/a.hsxb").code, 0); // does not depend on the set
}

void HotkeyCtlTest::runsAsAProcess()
{
    const Outcome help = runProcess(programPath(), "--help");
    QCOMPARE(help.done(), ToolHost::runBare({s("--help")}).out);
    QCOMPARE(help.err, QString());
    QVERIFY(runProcess(programPath(), "owner Foo+1").refusal(2).contains(s("'Foo+1'")));

    // Neither --host nor --user: the shipped host, and the data location of the application.
    m_host->record("data/UiCustomizationsHost/current.json",
                   m_host->writeSet("mine.hsx", step("Assign", "Ctrl+Alt+F9", "1-undo")));
    const Outcome owner = runProcess(programPath(), "owner Ctrl+Alt+F9");
    QCOMPARE(owner.done(), s("File and Edit: Undo (1-undo)\n"));
    QCOMPARE(owner.err, QString());
    QCOMPARE(runProcess(programPath(), "--set nowhere.hsx list").refusal(),
             s("hotkeyctl: there is neither a file nor a hotkey set 'nowhere.hsx'; "
               "the sets are: Velstudio Default Keyset, Zarvi Default Keyset\n"));
}

void HotkeyCtlTest::saysWhenTheSchemasAreMissing()
{
    const QString program = m_host->path("hotkeyctl");
    QVERIFY(QFile::copy(programPath(), program));
    const char *const line = "validate @/host/base/base.hsxb";
    const QString refusal = runProcess(program, line).refusal();
    for (const char *schema :
         {"HotkeyMappingSchema.xsd", "LegacyKbdxSchema.xsd", "HotkeyTransformationSchema.xsd"}) {
        QVERIFY2(refusal.contains(m_host->path(schema)), qPrintable(refusal));
        QVERIFY(QFile::copy(QFileInfo(programPath()).dir().filePath(s(schema)),
                            m_host->path(schema)));
    }
    QCOMPARE(runProcess(program, line).code, 0);
}

void HotkeyCtlTest::prints_data()
{
    QTest::addColumn<QString>("out");

    const auto row = [](const char *line, const char *out) { QTest::newRow(line) << out; };
    row("list", "CONTEXT  ACTION  ID       HOTKEYS                 CHANGED FROM\n"
                "Editing  Copy    1-copy   Ctrl+C, Ctrl+Ins\n"
                "Editing  Cut     1-cut    F12                     Ctrl+X\n"
                "Editing  Full    1-full   F1, F2, F3, F4, F5, F6\n"
                "Editing  Plain   1-plain\n"
                "View     Copy    2-copy   Ctrl+C\n");
    row("list --context View", "CONTEXT  ACTION  ID      HOTKEYS  CHANGED FROM\n"
                               "View     Copy    2-copy  Ctrl+C\n");
    row("list --changed --format csv",
        "contextId,context,category,action,id,hotkeys,baseHotkeys,changed\r\n"
        "1,Editing,Edit,Cut,1-cut,F12,Ctrl+X,true\r\n");
    row("owner cTRL+c", "View: Copy (2-copy)\nEditing: Copy (1-copy)\n");
    row("owner F12 --context View", "F12 is free in View.\n");
    row("--set= owner ctrl+x", "Editing: Cut (1-cut)\n");
    row("owner num+5", "Num+5 is free.\n");
    row("steps", "Remove 'Ctrl+X' from Cut.\nAdd 'F12' to Cut.\n");
}

void HotkeyCtlTest::prints()
{
    const Outcome outcome = m_host->run(QTest::currentDataTag());
    QTEST(outcome.done(), "out");
    QCOMPARE(outcome.err, QString());
}

void HotkeyCtlTest::listsNamesThatNeedCare()
{
    m_host->write("odd/host.json",
                  R"({"defaultSet": "", "contexts": [{"id": 1, "name": "\u8996\u91ce"}],
                     "actions": [{"table": 1, "id": "a", "name": "e\u0301 \"q\"\\\n\u001b", "context": 1,
                                  "category": "x,y", "accelerators": [",", "\""]},
                                 {"table": 1, "id": "b", "name": "\ud83d\ude00", "context": 1,
                                  "category": ""}]})");

    const QJsonArray array = m_host->run("--host @/odd list --format json").json();
    QCOMPARE(array.size(), 2);
    const QJsonObject first = array.at(0).toObject();
    QCOMPARE(first[s("action")].toString(), s("e\u0301 \"q\"\\\n\u001b"));
    QCOMPARE(first[s("context")].toString(), s("\u8996\u91ce"));
    QCOMPARE(first[s("hotkeys")].toArray(), QJsonArray({s(","), s("\"")}));
    QVERIFY(m_host->run("--host @/odd list --format csv")
                    .out.contains(
                            s("\r\n1,\u8996\u91ce,\"x,y\",\"e\u0301 \"\"q\"\"\\\n\u001b\",1-a,"
                              "\",, \"\"\",")));
    QCOMPARE(m_host->run("--host @/odd list").done(),
             s("CONTEXT  ACTION          ID   HOTKEYS  CHANGED FROM\n"
               "\u8996\u91ce     e\u0301 \"q\"\\\\n\\u001b  1-a  ,, \"\n"
               "\u8996\u91ce     \U0001f600              1-b\n"));
}

void HotkeyCtlTest::drawsKeyboards()
{
    const auto drawn = [this](const char *options) {
        const QString line = s("keyboard -o @/keys.svg ") + s(options);
        const QString out = m_host->run(line).done();
        return out + QString::fromUtf8(ToolHost::read(m_host->path("keys.svg")));
    };
    const QString both = s("<title>Ctrl+C\nTaken in several groups\n"
                           "Copy (Editing)\nCopy (View)\n");
    QVERIFY(drawn("--modifiers Ctrl").contains(both));
    QVERIFY(drawn("--modifiers Ctrl --context View")
                    .contains(s("<title>Ctrl+C\nTaken\nCopy (View)\n")));
    QVERIFY(drawn("--layout de").contains(s(">Ü<")));

    QVERIFY(m_host->run("keyboard -o @/no/a.svg").refusal().contains(s("cannot be written")));
}

void HotkeyCtlTest::lints()
{
    const QString rest = s("; not checked: what the keyboard layout can type\n");
    QCOMPARE(m_host->run("lint").done(), s("0 errors, 0 warnings, 3 notes") + rest);
    const QByteArray catalogue = ToolHost::read(m_host->path("host/host.json"));
    m_host->write("host/host.json", QByteArray(catalogue).replace(
                                            "\"Editing\"", "\"Editing\", \"everywhere\": true"));
    m_host->writeSet("shared.hsx",
                     step("Assign", "Ctrl+C", "2-copy") + step("Unassign", "Ctrl+X", "1-cut"));
    QCOMPARE(m_host->run("lint @/shared.hsx").everything(),
             s("exit status 1\n"
               "warning: shadowed Ctrl+C: In View this key runs Copy. Elsewhere it runs Copy.\n"
               "warning: hotkey-lost Ctrl+X: Cut (Editing) has lost Ctrl+X.\n"
               "0 errors, 2 warnings, 3 notes")
                     + rest);
    const QString json = m_host->run("--set @/shared.hsx lint --format json").out;
    const QJsonObject object = QJsonDocument::fromJson(json.toUtf8()).object();
    QCOMPARE(object[s("notChecked")].toArray(), QJsonArray{s("not-typeable")});
    const QJsonObject shadowed = object[s("findings")].toArray().at(0).toObject();
    QCOMPARE(shadowed[s("kind")].toString(), s("shadowed"));
    QCOMPARE(m_host->run("lint @/shared.hsx --severity error").code, 0);
}

void HotkeyCtlTest::validatesEveryFile()
{
    m_host->write("swapped.hsxb", ToolHost::read(m_host->path("host/presets/Default.hsx")));
    m_host->write("damaged.HSX", "<VelHotkeyTransformations>\n  <Oops/>\n"
                                 "</VelHotkeyTransformations>\n");
    m_host->write("host.txt", "");
    QVERIFY(QDir().mkpath(m_host->path("folder.hsx")));

    const QString good = s("validate @/host/base/base.hsxb @/host/presets/Default.hsx ")
                         + s(CUI_TEST_DATA_DIR "/valid/legacy-user-artist.kbdx");
    QCOMPARE(m_host->run(good).done().count(s(": valid\n")), 3);

    // Without log lines, the result still tells the place.
    const Outcome mixed =
            m_host->run("--log-level 0 validate @/swapped.hsxb @/missing.hsx "
                        "@/damaged.HSX @/host.txt @/folder.hsx @/host/base/base.hsxb");
    QCOMPARE(mixed.code, 1);
    QCOMPARE(mixed.err, QString());
    const QRegularExpression expected(m_host->text("^@/swapped.hsxb: not valid: .* Line: 2 .*\n"
                                                   "@/missing.hsx: cannot be opened: .*\n"
                                                   "@/damaged.HSX: not valid: .* Line: 2 .*\n"
                                                   "@/host.txt: unknown kind of file\n"
                                                   "@/folder.hsx: cannot be opened: .*\n"
                                                   "@/host/base/base.hsxb: valid\n$"));
    QVERIFY2(expected.match(mixed.out).hasMatch(), qPrintable(mixed.out));
}

QTEST_GUILESS_MAIN(HotkeyCtlTest)
#include "tst_HotkeyCtl.moc"
