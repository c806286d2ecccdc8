#include "Commands.h"
#include "ToolHost.h"

#include <UiCustomizations/QvelMessageLog.h>

#include <QFile>
#include <QProcess>
#include <QRegularExpression>
#include <QStandardPaths>
#include <QtTest>

/// The program as a whole: its command line, the host it works on, what it leaves alone.
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
    void tellsOfABrokenBaseFile();
    void logLevelDecidesWhatIsPrinted();
    void runsAsAProcess();
    void saysWhenTheSchemasAreMissing();

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

/// What stands behind the options of the program: the entry of each command, from its name on.
QMap<QString, QString> entriesOf(const QString &page)
{
    static const QRegularExpression head(s("^\\.It (?:Xo\\n\\.)?Cm (\\w+)"),
                                         QRegularExpression::MultilineOption);
    QMap<QString, QString> entries;
    const int end = page.indexOf(s("\n.Sh ENVIRONMENT"));
    QRegularExpressionMatchIterator matches = head.globalMatch(page.left(end));
    while (matches.hasNext()) {
        const QRegularExpressionMatch match = matches.next();
        const int next = matches.hasNext() ? matches.peekNext().capturedStart() : end;
        entries.insert(match.captured(1),
                       page.mid(match.capturedStart(), next - match.capturedStart()));
    }
    return entries;
}

/// The long options that the text names, each once.
QStringList optionsIn(const QString &text, const QString &pattern)
{
    QStringList options;
    QRegularExpressionMatchIterator matches = QRegularExpression(pattern).globalMatch(text);
    while (matches.hasNext())
        options << matches.next().captured(1);
    options.removeDuplicates();
    options.removeOne(s("help"));
    options.sort();
    return options;
}

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
    const QString inHelp = s("--([a-z][a-z-]+)");
    const QString inPage = s("Fl \\\\-([a-z][a-z-]+)");
    const QString page = QString::fromUtf8(ToolHost::read(pagePath));
    const QMap<QString, QString> entries = entriesOf(page);
    const QString program = ToolHost::runBare({s("--help")}).done();
    for (const HotkeyCtl::Command &command : HotkeyCtl::commands()) {
        QVERIFY2(program.contains(s("\n  %1 ").arg(command.name)), qPrintable(command.name));
        const QString help = ToolHost::runBare({command.name, s("--help")}).done();
        QVERIFY2(help.contains(s("\nExample")), qPrintable(help));
        for (const QCommandLineOption &option : command.options)
            QVERIFY2(help.count(s("--") + option.names().constFirst()) >= 2, qPrintable(help));
        QVERIFY2(entries.contains(command.name), qPrintable(command.name));
        const QString options = help.mid(help.indexOf(s("\nOptions:")));
        QCOMPARE(optionsIn(entries.value(command.name), inPage), optionsIn(options, inHelp));
    }
    QCOMPARE(std::size_t(entries.size()), HotkeyCtl::commands().size());
    const QString front = page.left(page.indexOf(s("\n.Sh COMMANDS")));
    QCOMPARE(optionsIn(front, inPage), optionsIn(program, inHelp));
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

    const auto usage = [](const QString &line, const QString &error) {
        QTest::newRow(qPrintable(line)) << 2 << line << error;
    };
    usage(QString(), s("a command is missing"));
    usage(s("frobnicate"), s("there is no command 'frobnicate'"));
    usage(s("--colour list"), s("Unknown option 'colour'"));
    usage(s("list --colour"), s("Unknown option 'colour'"));
    for (const QString &level : list("5|x"))
        usage(s("--log-level ") + level + s(" list"),
              s("--log-level takes a number from 0 to 4, not '%1'").arg(level));
    usage(s("--host= list"), s("--host needs a directory"));
    usage(s("--user= list"), s("--user needs a directory"));
    for (const QString &name : list("owner|assign|unassign|base|validate|use|diff|show|convert"))
        usage(name, name + s(" takes "));
    for (const QString &line : list("list 1|sets 1|base 1 2"))
        usage(line, line.section(QLatin1Char(' '), 0, 0) + s(" takes "));
    usage(s("steps 1"), s("steps takes no argument\nTry 'hotkeyctl steps --help'.\n"));
    usage(s("convert 1 2 3"), s("convert takes IN.kbdx [OUT.hsx] [--force]\n"));
    usage(s("list --format xml"), s("--format takes text, csv or json, not 'xml'"));
    for (const QString &line : list("sets|diff base base"))
        usage(line + s(" --format csv"), s("--format takes text or json, not 'csv'"));
    usage(s("owner Ctrl"), s("'Ctrl' names a key that does not exist"));
    usage(s("owner A,B"), s("'A,B' is more than one key combination"));
    for (const QString &name : list("assign|unassign"))
        usage(name + s(" 1-cut Ctrl+Foo"), s("'Ctrl+Foo' names a key that does not exist"));
    usage(s("assign 1-cut Ctrl+K --save="), s("--save needs the name of a file"));
    usage(s("use ''"), s("SET is empty"));
    usage(s("show ''"), s("FILE is empty"));
    usage(s("base ''"), s("FILE is empty"));
    usage(s("diff base ''"), s("the name of a set is empty"));
    usage(s("convert a.kbdx ''"), s("the name of a file is empty"));

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

void HotkeyCtlTest::tellsOfABrokenBaseFile()
{
    const QString late = m_host->writeSet("host/base/late.hsx", "<Oops/>");

    const Outcome listed = m_host->run("--log-level 0 list");
    QCOMPARE(listed.code, 1);
    QVERIFY2(listed.err.startsWith(s("hotkeyctl: a base file cannot be loaded: "))
                     && listed.err.contains(late),
             qPrintable(listed.err));
    QVERIFY2(listed.out.contains(s("1-copy   Ctrl+C, Ctrl+Ins")), qPrintable(listed.out));
    QCOMPARE(m_host->run("assign 1-plain F9").code, 1);
    QCOMPARE(m_host->run("base @/a.hsxb").code, 1);
    QVERIFY(!m_host->exists("a.hsxb"));
}

void HotkeyCtlTest::logLevelDecidesWhatIsPrinted()
{
    const auto linesAt = [this](const char *option) {
        return m_host->run(s(option) + s(" assign 1-plain F12")).err.count(QLatin1Char('\n'));
    };
    QCOMPARE(linesAt("--log-level 0"), 0);
    QCOMPARE(linesAt("--log-level 1"), 0);
    const int warnings = linesAt("--log-level 2");
    QVERIFY(warnings > 0);
    QCOMPARE(linesAt(""), warnings);
    const int information = linesAt("--log-level 3");
    QVERIFY(information > warnings);
    QVERIFY(linesAt("--log-level 4") > information);
    QVERIFY(!CUI::QvelMessageLog::getInstance().isLogged(CUI::QvelMessageLog::Info));
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

QTEST_GUILESS_MAIN(HotkeyCtlTest)
#include "tst_HotkeyCtl.moc"
