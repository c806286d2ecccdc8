#include "FullDisk.h"
#include "TestHost.h"
#include "Text.h"

#include <UiCustomizations/QvelMessageLog.h>
#include <UiCustomizations/QvelShortcutManager.h>

#include <QSignalSpy>
#include <QtTest>

#include <sys/stat.h>

using CUI::QvelShortcutManager;

namespace {

QByteArray keyboard(const QByteArray &content)
{
    return "<VLSK_KBD>\n" + content + "</VLSK_KBD>\n";
}

QByteArray shortcut(int flags, int key, const char *action, const char *table = "1")
{
    return s("<shortcut fVirt=\"%1\" accleleratorKey=\"%2\" actionID=\"%3\" "
             "actionTableID=\"%4\"/>\n")
            .arg(QString::number(flags), QString::number(key), s(action), s(table))
            .toUtf8();
}

} // namespace

class TestLegacyConversion : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup() { m_host.reset(); }
    void converts_data();
    void converts();
    void readsFilesOfTheField();
    void leavesOutControlCharacters();
    void fails_data();
    void fails();
    void keepsTheOldSetWhenTheDiskIsFull();

private:
    QString path(const char *name) const { return m_host->path(s(name)); }
    void writeDefaults(const QByteArray &document) const
    {
        m_host->write(s("LegacyDefaultUI-2019.kbdx"), document);
    }
    /// The steps that a file is converted to: "+Ctrl+Z 1-undo" assigns, "-..." removes.
    QStringList converted(const QByteArray &document) const;

    std::unique_ptr<TestHost> m_host;
};

void TestLegacyConversion::init()
{
    m_host = std::make_unique<TestHost>();
    m_host->paths()->legacyDirectory = QDir(m_host->path(QString())).absolutePath();
}

QStringList TestLegacyConversion::converted(const QByteArray &document) const
{
    const QString out = path("out.hsx");
    if (!QvelShortcutManager::convertLegacyShortcuts(m_host->write(s("in.kbdx"), document), out))
        return {s("not converted")};
    QStringList result;
    QvelShortcutManager store; // without known actions nothing is applied, but all is recorded
    if (!store.loadShortcutTransforms(out))
        return {s("not a set")};
    for (const CUI::ShortcutTransformation &step : store.currentTransformations())
        result << s(step.kind() == CUI::ShortcutTransformation::Assign ? "+" : "-")
                          + step.shortcut() + QLatin1Char(' ') + step.actionId().toString();
    return result;
}

void TestLegacyConversion::converts_data()
{
    QTest::addColumn<QByteArray>("user");
    QTest::addColumn<QByteArray>("defaults");
    QTest::addColumn<QString>("expected");

    const QByteArray undo = shortcut(11, 0x5A, "undo");
    const QByteArray save = shortcut(11, 0x53, "save");
    const QByteArray none;
    QTest::newRow("identical") << undo + save << save + undo << "";
    QTest::newRow("additions, then removals")
            << shortcut(3, 0x71, "undo") + save + shortcut(3, 0x65, "view")
            << undo + save + shortcut(3, 0x35, "view")
            << "+F2 1-undo|+Num+5 1-view|-Ctrl+Z 1-undo|-5 1-view";
    QTest::newRow("character codes") << shortcut(2, '+', "zoom") + shortcut(10, 'A', "all") << none
                                     << "++ 1-zoom|+Ctrl+A 1-all";
    QTest::newRow("table missing or no number")
            << shortcut(3, 0x41, "a", "") + shortcut(3, 0x42, "b", "x") << none << "+A 0-a|+B 0-b";
    QTest::newRow("incomplete elements are ignored")
            << shortcut(3, 0x41, "")
                       + "<shortcut fVirt=\"\" accleleratorKey=\"65\" actionID=\"a\"/>"
                       + "<shortcut fVirt=\"3\" actionID=\"a\"/><shortcut/>"
            << undo << "-Ctrl+Z 1-undo";
    QTest::newRow("a key without name is dropped") // and the default for the action goes
            << shortcut(3, 0, "undo") << undo << "-Ctrl+Z 1-undo";
    QTest::newRow("Enter for Return") << shortcut(3, 0x0D, "ok") << none << "+Enter 1-ok";
}

void TestLegacyConversion::converts()
{
    QFETCH(QByteArray, user);
    QFETCH(QByteArray, defaults);
    QFETCH(QString, expected);
    writeDefaults(keyboard(defaults));
    QCOMPARE(converted(keyboard(user)), list(expected.toUtf8()));
    QVERIFY(!TestHost::read(path("out.hsx")).contains("Locked"));
}

void TestLegacyConversion::readsFilesOfTheField()
{
    writeDefaults(keyboard({}));
    QCOMPARE(converted("<?xml version=\"1.0\" encoding=\"windows-1252\"?>\r\n"
                       "<!-- saved by an old release -->\r\n"
                       "<VLSK_KBD version=\"3\" xmlns:x=\"urn:x\" "
                       "xmlns:xsi=\"http://www.w3.org/2001/XMLSchema-instance\" "
                       "xsi:noNamespaceSchemaLocation=\"kbd.xsd\">\r\n"
                       "  <application name=\"\xE9\"><shortcut fVirt=\"3\" accleleratorKey=\"66\" "
                       "actionID=\"nested\" actionTableID=\"1\"/></application>\r\n"
                       "  <shortcut actionTableID=\" 7 \" x:note=\"\" actionID=\"caf\xE9\" "
                       "comment=\"c\" accleleratorKey=\" 65 \" fVirt=\"11\">text"
                       "<help lang=\"en\">more</help></shortcut>\r\n"
                       "</VLSK_KBD>\r\n"),
             QStringList(s("+Ctrl+A 7-café")));
}

void TestLegacyConversion::leavesOutControlCharacters()
{
    writeDefaults(keyboard({}));
    QSignalSpy lines(&CUI::QvelMessageLog::getInstance(), &CUI::QvelMessageLog::messageLogged);
    QCOMPARE(converted(keyboard(shortcut(10, 26, "undo") + shortcut(3, 0x41, "all"))),
             QStringList(s("+A 1-all")));
    QVERIFY(lines.value(0).value(0).toString().startsWith(s("Warning: A hotkey of '1-undo'")));
}

void TestLegacyConversion::fails_data()
{
    QTest::addColumn<QByteArray>("user"); // null for a pipe
    QTest::addColumn<QByteArray>("defaults"); // null for a missing file
    QTest::addColumn<QString>("out");
    QTest::addColumn<QString>("line"); // the last one; %1 is the temporary folder

    const QByteArray good = keyboard({});
    QTest::newRow("pipe") << QByteArray() << good << "out.hsx"
                          << "Could not open the legacy hotkey configuration '%1/in.kbdx'.";
    QTest::newRow("no default")
            << good << QByteArray() << "out.hsx"
            << "Could not open the legacy hotkey configuration '%1/LegacyDefaultUI-2019.kbdx'.";
    QTest::newRow("not valid") << QByteArray("<VLSK_KBD") << good << "out.hsx"
                               << "'%1/in.kbdx' is not a valid kbdx file.";
    QTest::newRow("other root") << QByteArray("<shortcut/>") << good << "out.hsx"
                                << "Could not parse legacy hotkey configuration '%1/in.kbdx'.";
    QTest::newRow("output")
            << good << good << "nowhere/out.hsx"
            << "Could not open '%1/nowhere/out.hsx' to store the results of conversion.";
}

void TestLegacyConversion::fails()
{
    QFETCH(QByteArray, user);
    QFETCH(QByteArray, defaults);
    QFETCH(QString, out);
    QFETCH(QString, line);
    // Reading a pipe that nobody writes to would wait forever.
    if (user.isNull())
        QCOMPARE(mkfifo(QFile::encodeName(path("in.kbdx")).constData(), 0600), 0);
    else
        m_host->write(s("in.kbdx"), user);
    if (!defaults.isNull())
        writeDefaults(defaults);
    m_host->write(s("out.hsx"), "old");
    out = m_host->path(out);
    QSignalSpy lines(&CUI::QvelMessageLog::getInstance(), &CUI::QvelMessageLog::messageLogged);
    QVERIFY(!QvelShortcutManager::convertLegacyShortcuts(path("in.kbdx"), out));
    QVERIFY(!lines.isEmpty());
    QCOMPARE(lines.last().at(0).toString(),
             s("Error: ") + line.arg(m_host->paths()->legacyDirectory));
    QCOMPARE(TestHost::read(path("out.hsx")), QByteArray("old"));
    QVERIFY(!QvelShortcutManager::convertLegacyShortcuts(QString(), out));
    QVERIFY(!QvelShortcutManager::convertLegacyShortcuts(out, QString()));
}

void TestLegacyConversion::keepsTheOldSetWhenTheDiskIsFull()
{
    writeDefaults(keyboard({}));
    const QString in = m_host->write(s("in.kbdx"), keyboard(shortcut(3, 0x41, "all")));
    const QString out = m_host->write(s("out.hsx"), "old");
    QSignalSpy lines(&CUI::QvelMessageLog::getInstance(), &CUI::QvelMessageLog::messageLogged);
    const FullDisk disk(50);
    QVERIFY(!QvelShortcutManager::convertLegacyShortcuts(in, out));
    QCOMPARE(lines.size(), 1);
    QCOMPARE(lines.last().at(0).toString(),
             s("Error: Could not open '%1' to store the results of conversion.").arg(out));
    QCOMPARE(TestHost::read(out), QByteArray("old"));
}

QTEST_GUILESS_MAIN(TestLegacyConversion)
#include "tst_LegacyConversion.moc"
