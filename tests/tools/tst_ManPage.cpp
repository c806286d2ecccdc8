#include "Commands.h"
#include "ToolHost.h"

#include <QProcess>
#include <QRegularExpression>
#include <QStandardPaths>
#include <QtTest>

/// The manual page says what the help says.
class TestManPage : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void describesEveryCommandAndOption();
    void isWellFormed();
};

namespace {

const QString pagePath = QStringLiteral(CUI_SOURCE_DIR "/man/hotkeyctl.1");

/// What stands behind the options of the program: the entry of each command, from its name on.
QMap<QString, QString> entriesOf(const QString &page)
{
    static const QRegularExpression head(QStringLiteral("^\\.It (?:Xo\\n\\.)?Cm (\\w+)"),
                                         QRegularExpression::MultilineOption);
    QMap<QString, QString> entries;
    const int end = page.indexOf(QLatin1String("\n.Sh ENVIRONMENT"));
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
    options.removeOne(QStringLiteral("help"));
    options.sort();
    return options;
}

} // namespace

void TestManPage::describesEveryCommandAndOption()
{
    const QString inHelp = QStringLiteral("--([a-z][a-z-]+)");
    const QString inPage = QStringLiteral("Fl \\\\-([a-z][a-z-]+)");
    const QString page = QString::fromUtf8(ToolHost::read(pagePath));
    const QMap<QString, QString> entries = entriesOf(page);
    QStringList names;
    for (const HotkeyCtl::Command &command : HotkeyCtl::commands()) {
        names << command.name;
        const Outcome help = ToolHost::runBare({command.name, QStringLiteral("--help")});
        const QString options = help.out.mid(help.out.indexOf(QLatin1String("\nOptions:")));
        QCOMPARE(optionsIn(entries.value(command.name), inPage), optionsIn(options, inHelp));
    }
    names.sort();
    QCOMPARE(QStringList(entries.keys()), names);

    const QString program = ToolHost::runBare({QStringLiteral("--help")}).out;
    const QString front = page.left(page.indexOf(QLatin1String("\n.Sh COMMANDS")));
    QCOMPARE(optionsIn(front, inPage), optionsIn(program, inHelp));
    QVERIFY(page.startsWith(QLatin1String(".Dd ")));
}

void TestManPage::isWellFormed()
{
    const QString mandoc = QStandardPaths::findExecutable(QStringLiteral("mandoc"));
    if (mandoc.isEmpty())
        QSKIP("mandoc is not installed");
    QProcess process;
    process.start(mandoc, {QStringLiteral("-T"), QStringLiteral("lint"), pagePath});
    QVERIFY(process.waitForFinished());
    QCOMPARE(QString::fromUtf8(process.readAll()), QString());
    QCOMPARE(process.exitCode(), 0);
}

QTEST_GUILESS_MAIN(TestManPage)
#include "tst_ManPage.moc"
