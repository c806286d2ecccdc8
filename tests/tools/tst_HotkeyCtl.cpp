#include "Commands.h"
#include "ToolHost.h"

#include <UiCustomizations/QvelMessageLog.h>

#include <QFile>
#include <QProcess>
#include <QtTest>

/// The program as a whole: its command line, the host it works on, what it leaves alone.
class HotkeyCtlTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { m_host = std::make_unique<ToolHost>(); }
    void helpTellsAboutEveryCommandAndOption();
    void refusesWrongUsage_data();
    void refusesWrongUsage();
    void tellsProblemsWithTheData_data();
    void tellsProblemsWithTheData();
    void worksOnTheRecordedSetAndLeavesTheRecordAlone();
    void showsTheBaseWhenTheCurrentSetIsBroken();
    void tellsOfABrokenBaseFile();
    void logLevelDecidesWhatIsPrinted();
    void runsAsAProcess();
    void saysWhenTheSchemasAreMissing();

private:
    std::unique_ptr<ToolHost> m_host;
};

namespace {

QString programPath()
{
    return QCoreApplication::applicationDirPath() + QStringLiteral("/hotkeyctl");
}

Outcome runProcess(const QString &program, const QStringList &arguments,
                   const QString &dataHome = QString())
{
    QProcess process;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.remove(QStringLiteral("DISPLAY"));
    environment.remove(QStringLiteral("QT_QPA_PLATFORM"));
    if (!dataHome.isNull())
        environment.insert(QStringLiteral("XDG_DATA_HOME"), dataHome);
    process.setProcessEnvironment(environment);
    process.start(program, arguments);
    if (!process.waitForFinished() || process.exitStatus() != QProcess::NormalExit)
        return {};
    return {process.exitCode(), QString::fromUtf8(process.readAllStandardOutput()),
            QString::fromUtf8(process.readAllStandardError())};
}

} // namespace

void HotkeyCtlTest::helpTellsAboutEveryCommandAndOption()
{
    const Outcome program = ToolHost::runBare({QStringLiteral("--help")});
    QCOMPARE(program.code, 0);
    for (const HotkeyCtl::Command &command : HotkeyCtl::commands()) {
        QVERIFY2(program.out.contains(QStringLiteral("\n  %1 ").arg(command.name)),
                 qPrintable(command.name));
        const Outcome help = ToolHost::runBare({command.name, QStringLiteral("--help")});
        QCOMPARE(help.code, 0);
        QVERIFY2(help.out.contains(QLatin1String("\nExample")), qPrintable(help.out));
        for (const QCommandLineOption &option : command.options) {
            QVERIFY2(help.out.count(QStringLiteral("--") + option.names().constFirst()) >= 2,
                     qPrintable(help.out));
        }
    }
    const Outcome version = ToolHost::runBare({QStringLiteral("-v")});
    QCOMPARE(version.code, 0);
    QVERIFY(version.out.startsWith(QLatin1String("hotkeyctl 0.")));
}

void HotkeyCtlTest::refusesWrongUsage_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<QString>("error");

    const auto row = [](const char *arguments, const char *error) {
        QTest::newRow(arguments) << words(arguments) << QString::fromUtf8(error);
    };
    row("", "a command is missing");
    row("frobnicate", "there is no command 'frobnicate'");
    row("--colour list", "Unknown option 'colour'");
    row("list --colour", "Unknown option 'colour'");
    row("--log-level 5 list", "--log-level takes a number from 0 to 4, not '5'");
    row("--log-level x list", "--log-level takes a number from 0 to 4, not 'x'");
    row("--host= list", "--host needs a directory");
    row("--user= list", "--user needs a directory");
    row("list 1-cut", "list takes [--format");
    row("list --format xml", "--format takes text, csv or json, not 'xml'");
    row("owner", "owner takes SHORTCUT");
    row("owner Foo+1", "'Foo+1' names a key that does not exist");
    row("owner Ctrl", "'Ctrl' names a key that does not exist");
    row("owner A,B", "'A,B' is more than one key combination");
    row("assign 1-cut", "assign takes ID SHORTCUT");
    row("assign 1-cut Ctrl+Foo", "'Ctrl+Foo' names a key that does not exist");
    row("assign 1-cut Ctrl+K --save=", "--save needs the name of a file");
    row("unassign 1-cut Ctrl+Foo", "'Ctrl+Foo' names a key that does not exist");
    row("steps 1-cut", "steps takes no argument");
    row("base", "base takes FILE");
    row("validate", "validate takes FILE...");
    row("sets Mine", "sets takes [--format FORMAT]");
    row("sets --format csv", "--format takes text or json, not 'csv'");
    row("use", "use takes SET");
    row("diff base", "diff takes A B");
    row("diff base base --format csv", "--format takes text or json, not 'csv'");
    row("show", "show takes FILE");
    const auto emptyRow = [](const char *arguments, const char *error) {
        QTest::newRow(arguments) << (words(arguments) << QString()) << QString::fromUtf8(error);
    };
    emptyRow("use ", "SET is empty");
    emptyRow("show ", "FILE is empty");
    emptyRow("diff base", "the name of a set is empty");
    emptyRow("convert a.kbdx", "the name of a file is empty");
    row("convert", "convert takes IN.kbdx [OUT.hsx] [--force]");
    row("convert a.kbdx b.hsx c.hsx", "convert takes IN.kbdx [OUT.hsx] [--force]");
}

void HotkeyCtlTest::refusesWrongUsage()
{
    QFETCH(QStringList, arguments);
    QFETCH(QString, error);

    const Outcome outcome = m_host->run(arguments);
    QCOMPARE(outcome.code, 2);
    QCOMPARE(outcome.out, QString());
    QVERIFY2(outcome.err.contains(QStringLiteral("hotkeyctl: ") + error), qPrintable(outcome.err));
    QVERIFY2(outcome.err.contains(QLatin1String("--help'")), qPrintable(outcome.err));
}

void HotkeyCtlTest::tellsProblemsWithTheData_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<QString>("error");

    const auto row = [](const char *arguments, const char *error) {
        QTest::newRow(arguments) << words(arguments) << QString::fromUtf8(error);
    };
    // @ stands for the folder.
    row("--host @/nowhere list", "/nowhere: is not a directory");
    row("--host @/typo steps", "/typo/host.json: actions[0].table: is missing");
    row("--set nowhere.hsx list", "there is neither a file nor a hotkey set 'nowhere.hsx'; ");
    row("--set @/broken.hsx list", "/broken.hsx: the hotkey set cannot be loaded");
    row("list --context Nowhere", "there is no context 'Nowhere'; there are: View, Editing");
    row("owner F1 --context view", "there is no context 'view'; there are: View, Editing");
}

void HotkeyCtlTest::tellsProblemsWithTheData()
{
    QFETCH(QStringList, arguments);
    QFETCH(QString, error);

    m_host->write(QStringLiteral("typo/host.json"),
                  R"({"defaultSet": "", "contexts": [], "actions": [{"id": "x"}]})");
    m_host->writeSet(QStringLiteral("broken.hsx"), "<Assign_Hotkey/>");
    arguments.replaceInStrings(QStringLiteral("@"), m_host->path(QString()));
    const Outcome outcome = m_host->run(arguments);
    QCOMPARE(outcome.code, 1);
    QCOMPARE(outcome.out, QString());
    QVERIFY2(outcome.err.contains(QLatin1String("hotkeyctl: ")) && outcome.err.contains(error),
             qPrintable(outcome.err));
}

void HotkeyCtlTest::worksOnTheRecordedSetAndLeavesTheRecordAlone()
{
    const QString mine =
            m_host->writeSet(QStringLiteral("mine.hsx"),
                             R"(<Assign_Hotkey Shortcut="F9" Description="Plain" Id="1-plain"/>)");
    const QString other =
            m_host->writeSet(QStringLiteral("other.hsx"),
                             R"(<Assign_Hotkey Shortcut="F10" Description="Plain" Id="1-plain"/>)");

    // Without a record nothing is written either, not even the user's directory.
    QCOMPARE(m_host->run(words("owner F12")).out, QStringLiteral("Editing: Cut (1-cut)\n"));
    QVERIFY(!QFile::exists(m_host->path(QStringLiteral("user"))));

    m_host->write(QStringLiteral("user/current.json"),
                  "{\"hotkeySet\": \"" + mine.toUtf8() + "\"}");
    const QStringList before = m_host->snapshot(QStringLiteral("user"));
    QCOMPARE(before.size(), 1);
    const QString saved = m_host->path(QStringLiteral("saved.hsx"));
    const QStringList otherSet = {QStringLiteral("--set"), other};
    QCOMPARE(m_host->run(otherSet + words("owner F10")).out,
             QStringLiteral("Editing: Plain (1-plain)\n"));
    QCOMPARE(m_host->run(otherSet + words("list")).code, 0);
    QCOMPARE(m_host->run(otherSet + words("assign 1-plain F11 --save") + QStringList(saved)).code,
             0);
    QCOMPARE(m_host->run({QStringLiteral("base"), m_host->path(QStringLiteral("a.hsxb"))}).code, 0);
    QCOMPARE(m_host->snapshot(QStringLiteral("user")), before);
    QCOMPARE(m_host->run(words("owner F9")).out, QStringLiteral("Editing: Plain (1-plain)\n"));
}

void HotkeyCtlTest::showsTheBaseWhenTheCurrentSetIsBroken()
{
    const QString set = m_host->writeSet(QStringLiteral("broken.hsx"), "<Oops/>");
    m_host->write(QStringLiteral("user/current.json"), "{\"hotkeySet\": \"" + set.toUtf8() + "\"}");

    const Outcome list = m_host->run(words("--log-level 0 list"));
    QCOMPARE(list.code, 1);
    QCOMPARE(list.err, QStringLiteral("hotkeyctl: %1: the hotkey set cannot be loaded\n").arg(set));
    QVERIFY2(list.out.contains(QLatin1String("1-cut    Ctrl+X")), qPrintable(list.out));
    const Outcome owner = m_host->run(words("owner Ctrl+X"));
    QCOMPARE(owner.code, 1);
    QCOMPARE(owner.out, QStringLiteral("Editing: Cut (1-cut)\n"));
    QCOMPARE(m_host->run(words("steps")).code, 1);

    const QString saved = m_host->path(QStringLiteral("saved.hsx"));
    const Outcome assign = m_host->run(words("assign 1-plain F9 --save") + QStringList(saved));
    QCOMPARE(assign.code, 1);
    QVERIFY2(assign.err.contains(QLatin1String("nothing was changed")), qPrintable(assign.err));
    QVERIFY(!QFile::exists(saved));
    // The base file does not depend on the set.
    QCOMPARE(m_host->run({QStringLiteral("base"), m_host->path(QStringLiteral("a.hsxb"))}).code, 0);
}

void HotkeyCtlTest::tellsOfABrokenBaseFile()
{
    m_host->writeSet(QStringLiteral("host/base/late.hsx"), "<Oops/>");

    const Outcome list = m_host->run(words("--log-level 0 list"));
    QCOMPARE(list.code, 1);
    QVERIFY2(list.err.startsWith(QLatin1String("hotkeyctl: a base file cannot be loaded: "))
                     && list.err.contains(m_host->path(QStringLiteral("host/base/late.hsx"))),
             qPrintable(list.err));
    QVERIFY2(list.out.contains(QLatin1String("1-copy   Ctrl+C, Ctrl+Ins")), qPrintable(list.out));
    QCOMPARE(m_host->run(words("assign 1-plain F9")).code, 1);
    const QString base = m_host->path(QStringLiteral("a.hsxb"));
    QCOMPARE(m_host->run({QStringLiteral("base"), base}).code, 1);
    QVERIFY(!QFile::exists(base));
}

void HotkeyCtlTest::logLevelDecidesWhatIsPrinted()
{
    const auto linesAt = [this](const char *level) {
        return m_host->run(words(level) + words("assign 1-plain F12")).err.count(QLatin1Char('\n'));
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
    const Outcome help = runProcess(programPath(), {QStringLiteral("--help")});
    QCOMPARE(help.code, 0);
    QCOMPARE(help.out, ToolHost::runBare({QStringLiteral("--help")}).out);
    QCOMPARE(help.err, QString());

    const Outcome usage = runProcess(programPath(), words("owner Foo+1"));
    QCOMPARE(usage.code, 2);
    QCOMPARE(usage.out, QString());
    QVERIFY2(usage.err.contains(QLatin1String("'Foo+1'")), qPrintable(usage.err));

    // Neither --host nor --user: the shipped host, and the data location of the application.
    const QString mine = m_host->writeSet(
            QStringLiteral("mine.hsx"),
            R"(<Assign_Hotkey Shortcut="Ctrl+Alt+F9" Description="Undo" Id="1-undo"/>)");
    m_host->write(QStringLiteral("data/UiCustomizationsHost/current.json"),
                  "{\"hotkeySet\": \"" + mine.toUtf8() + "\"}");
    const Outcome owner = runProcess(programPath(), words("owner Ctrl+Alt+F9"),
                                     m_host->path(QStringLiteral("data")));
    QCOMPARE(owner.out, QStringLiteral("File and Edit: Undo (1-undo)\n"));
    QCOMPARE(owner.err, QString());
    QCOMPARE(owner.code, 0);

    const Outcome missing = runProcess(programPath(), words("--set nowhere.hsx list"),
                                       m_host->path(QStringLiteral("data")));
    QCOMPARE(missing.code, 1);
    QCOMPARE(missing.out, QString());
    QCOMPARE(missing.err,
             QStringLiteral("hotkeyctl: there is neither a file nor a hotkey set 'nowhere.hsx'; "
                            "the sets are: Velstudio Default Keyset, Zarvi Default Keyset\n"));
}

void HotkeyCtlTest::saysWhenTheSchemasAreMissing()
{
    const QString folder = QCoreApplication::applicationDirPath();
    const QString program = m_host->path(QStringLiteral("hotkeyctl"));
    QVERIFY(QFile::copy(programPath(), program));
    const QStringList arguments = {QStringLiteral("validate"),
                                   m_host->path(QStringLiteral("host/base/base.hsxb"))};
    const Outcome without = runProcess(program, arguments);
    QCOMPARE(without.code, 1);
    QCOMPARE(without.out, QString());
    for (const QString &schema :
         {QStringLiteral("/HotkeyMappingSchema.xsd"), QStringLiteral("/LegacyKbdxSchema.xsd"),
          QStringLiteral("/HotkeyTransformationSchema.xsd")}) {
        QVERIFY2(without.err.contains(schema), qPrintable(without.err));
        QVERIFY(QFile::copy(folder + schema, QFileInfo(program).path() + schema));
    }
    QCOMPARE(runProcess(program, arguments).code, 0);
}

QTEST_GUILESS_MAIN(HotkeyCtlTest)
#include "tst_HotkeyCtl.moc"
