#include "FullDisk.h"
#include "ToolHost.h"

#include <QProcess>
#include <QtTest>

/// The command that writes sheets.
class HotkeyCtlSheetTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void chooses_data();
    void chooses();
    void refuses_data();
    void refuses();
    void keepsTheOldFileOnAFullDisk();
    void writesEveryFormat();
    void drawsTheKeyboard();

private:
    ToolHost m_host;
};

void HotkeyCtlSheetTest::chooses_data()
{
    QTest::addColumn<QString>("ids");
    const auto row = [](const char *line, const char *ids) { QTest::newRow(line) << s(ids); };
    row("", "1-copy|1-cut|1-full|2-copy");
    row("--context Editing --all", "1-copy|1-cut|1-full|1-plain");
    row("--context View --context Editing", "1-copy|1-cut|1-full|2-copy");
    row("--category Views", "2-copy");
    row("--changed", "1-cut");
    row("--search \" COP\"", "1-copy|2-copy");
    row("--search-hotkey ctrl+c --context View", "2-copy");
}

void HotkeyCtlSheetTest::chooses()
{
    m_host.run(s("sheet -o @/keys.csv ") + s(QTest::currentDataTag())).done();
    QStringList ids;
    for (const QByteArray &record : ToolHost::read(m_host.path("keys.csv")).split('\n').mid(1))
        ids << QString::fromUtf8(record.split('"').value(9));
    ids.removeAll(QString());
    QTEST(ids.join(QLatin1Char('|')), "ids");
}

void HotkeyCtlSheetTest::refuses_data()
{
    QTest::addColumn<int>("status");
    QTest::addColumn<QString>("part");
    const auto row = [](const char *line, int status, const char *part) {
        QTest::newRow(line) << status << s(part);
    };
    row("", 2, "sheet needs -o FILE");
    row("-o @/new.txt", 2, "has to end in .html");
    row("-o @/new.pdf --paper a3", 2, "a4 or letter");
    row("-o @/new.md --changed --all", 2, "exclude each other");
    row("-o @/new.md --search a --search-hotkey A", 2, "exclude each other");
    row("-o @/new.md --keyboard", 2, "--keyboard needs a FILE that ends in .html or .pdf");
    row("-o @/new.pdf --layout de", 2, "need --keyboard");
    row("-o @/new.pdf --keyboard --layout xx", 2, "--layout takes us, gb");
    row("-o @/new.md --context Nowhere", 1, "no context 'Nowhere'");
    row("-o @/host/presets/new.md", 1, "are shipped with the host");
    row("-o @/none/new.md", 1, "its folder does not exist");
}

void HotkeyCtlSheetTest::refuses()
{
    QFETCH(int, status);
    QFETCH(QString, part);
    const QStringList before = m_host.snapshot("");
    const Outcome outcome = m_host.run(s("sheet ") + s(QTest::currentDataTag()));
    QVERIFY2(outcome.refusal(status).contains(part), qPrintable(outcome.everything()));
    QCOMPARE(m_host.snapshot(""), before);
}

void HotkeyCtlSheetTest::keepsTheOldFileOnAFullDisk()
{
    m_host.write("old.html", "old");
    const FullDisk disk(1000);
    QCOMPARE(m_host.run("sheet -o @/old.html").code, 1);
    QCOMPARE(ToolHost::read(m_host.path("old.html")), QByteArray("old"));
}

/// As a process, since only its own main() has the fonts for a PDF.
void HotkeyCtlSheetTest::writesEveryFormat()
{
    const QMap<QString, QByteArray> beginnings = {{s("pdf"), "%PDF-"},
                                                  {s("HTML"), "<!DOCTYPE html>"},
                                                  {s("md"), "# Hotkeys\n"},
                                                  {s("csv"), "\xEF\xBB\xBF\"Group\""}};
    for (auto format = beginnings.begin(); format != beginnings.end(); ++format) {
        const QString line = s("--host @/host --user @/user sheet -o @/keys.") + format.key();
        QCOMPARE(QProcess::execute(QCoreApplication::applicationDirPath() + s("/hotkeyctl"),
                                   m_host.arguments(line)),
                 0);
        const QByteArray written = ToolHost::read(m_host.path(s("keys.") + format.key()));
        QVERIFY2(written.startsWith(format.value()), written.left(100));
    }
}

void HotkeyCtlSheetTest::drawsTheKeyboard()
{
    m_host.run(s("sheet -o @/keys.html --keyboard --layout de")).done();
    const QByteArray page = ToolHost::read(m_host.path("keys.html"));
    QVERIFY(page.contains("<svg") && page.contains(">\xC3\x9C</text>"));
}

QTEST_GUILESS_MAIN(HotkeyCtlSheetTest)

#include "tst_HotkeyCtlSheet.moc"
