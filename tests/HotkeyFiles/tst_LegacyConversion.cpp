#include "TestHost.h"

#include <UiCustomizations/QvelMessageLog.h>
#include <UiCustomizations/QvelShortcutManager.h>

#include <QSignalSpy>
#include <QtTest>

using CUI::QvelShortcutManager;

namespace {

QString s(const char *text)
{
    return QString::fromUtf8(text);
}

QByteArray keyboard(const QByteArray &content)
{
    return "<VLSK_KBD>\n" + content + "</VLSK_KBD>\n";
}

QByteArray shortcut(int flags, int key, const char *action, const char *table = "1")
{
    return QStringLiteral("<shortcut fVirt=\"%1\" accleleratorKey=\"%2\" actionID=\"%3\" "
                          "actionTableID=\"%4\"/>\n")
            .arg(flags)
            .arg(key)
            .arg(s(action), s(table))
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
    void writesNoLock();
    void readsFilesOfTheField();
    void leavesOutControlCharacters();
    void fails_data();
    void fails();
    void convertsTheShippedUsers_data();
    void convertsTheShippedUsers();

private:
    QString defaultFile() const { return s("LegacyDefaultUI-2019.kbdx"); }
    QStringList steps(const QString &set) const;
    std::unique_ptr<TestHost> m_host;
};

void TestLegacyConversion::init()
{
    m_host = std::make_unique<TestHost>();
    m_host->paths()->legacyDirectory = QDir(m_host->path(QString())).absolutePath();
}

// The steps of a set: "+Ctrl+Z 1-undo" for an assignment, "-..." for a removal.
QStringList TestLegacyConversion::steps(const QString &set) const
{
    QStringList result;
    QvelShortcutManager store; // without known actions nothing is applied, but all is recorded
    if (!store.loadShortcutTransforms(set))
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
    QTest::addColumn<QStringList>("expected");

    const QByteArray undo = shortcut(11, 0x5A, "undo");
    const QByteArray save = shortcut(11, 0x53, "save");
    QTest::newRow("identical") << undo + save << save + undo << QStringList();
    QTest::newRow("additions, then removals")
            << shortcut(3, 0x71, "undo") + save + shortcut(3, 0x65, "view")
            << undo + save + shortcut(3, 0x35, "view")
            << QStringList{s("+F2 1-undo"), s("+Num+5 1-view"), s("-Ctrl+Z 1-undo"),
                           s("-5 1-view")};
    QTest::newRow("character codes")
            << shortcut(2, '+', "zoom") + shortcut(10, 'A', "all") << QByteArray()
            << QStringList{s("++ 1-zoom"), s("+Ctrl+A 1-all")};
    QTest::newRow("table missing or no number")
            << shortcut(3, 0x41, "a", "") + shortcut(3, 0x42, "b", "x") << QByteArray()
            << QStringList{s("+A 0-a"), s("+B 0-b")};
    QTest::newRow("incomplete elements are ignored")
            << shortcut(3, 0x41, "")
                       + "<shortcut fVirt=\"\" accleleratorKey=\"65\" actionID=\"a\"/>"
                       + "<shortcut fVirt=\"3\" actionID=\"a\"/><shortcut/>"
            << undo << QStringList{s("-Ctrl+Z 1-undo")};
    QTest::newRow("a key without name is dropped") // and the default for the action goes
            << shortcut(3, 0, "undo") << undo << QStringList{s("-Ctrl+Z 1-undo")};
    QTest::newRow("Enter for Return")
            << shortcut(3, 0x0D, "ok") << QByteArray() << QStringList{s("+Enter 1-ok")};
}

void TestLegacyConversion::converts()
{
    QFETCH(QByteArray, user);
    QFETCH(QByteArray, defaults);
    m_host->write(defaultFile(), keyboard(defaults));
    const QString out = m_host->path(s("out.hsx"));
    QVERIFY(QvelShortcutManager::convertLegacyShortcuts(m_host->write(s("in.kbdx"), keyboard(user)),
                                                        out));
    QTEST(steps(out), "expected");
}

void TestLegacyConversion::writesNoLock()
{
    const QString in = m_host->write(defaultFile(), keyboard(shortcut(11, 0x5A, "undo")));
    const QString out = m_host->path(s("My.Old Keys.hsx"));
    QVERIFY(QvelShortcutManager::convertLegacyShortcuts(in, out));
    QVERIFY(!TestHost::read(out).contains("Locked"));
    bool locked = true;
    QString name;
    QVERIFY(QvelShortcutManager::peekPresetMetadata(out, locked, name));
    QVERIFY(!locked);
    QCOMPARE(name, s("My.Old Keys"));
}

void TestLegacyConversion::readsFilesOfTheField()
{
    m_host->write(defaultFile(), keyboard({}));
    const QByteArray document =
            "<?xml version=\"1.0\" encoding=\"windows-1252\"?>\r\n"
            "<!-- saved by an old release -->\r\n"
            "<VLSK_KBD version=\"3\" xmlns:x=\"urn:x\" "
            "xmlns:xsi=\"http://www.w3.org/2001/XMLSchema-instance\" "
            "xsi:noNamespaceSchemaLocation=\"kbd.xsd\">\r\n"
            "  <application name=\"\xE9\"><shortcut fVirt=\"3\" accleleratorKey=\"66\" "
            "actionID=\"nested\" actionTableID=\"1\"/></application>\r\n"
            "  <shortcut actionTableID=\" 7 \" x:note=\"\" actionID=\"caf\xE9\" comment=\"c\" "
            "accleleratorKey=\" 65 \" fVirt=\"11\">text<help lang=\"en\">more</help></shortcut>\r\n"
            "</VLSK_KBD>\r\n";
    const QString out = m_host->path(s("out.hsx"));
    QVERIFY(QvelShortcutManager::convertLegacyShortcuts(m_host->write(s("in.kbdx"), document),
                                                        out));
    QCOMPARE(steps(out), QStringList(s("+Ctrl+A 7-café")));
}

void TestLegacyConversion::leavesOutControlCharacters()
{
    m_host->write(defaultFile(), keyboard({}));
    const QString in = m_host->write(s("in.kbdx"),
                                     keyboard(shortcut(10, 26, "undo") + shortcut(3, 0x41, "all")));
    const QString out = m_host->path(s("out.hsx"));
    QSignalSpy lines(&CUI::QvelMessageLog::getInstance(), &CUI::QvelMessageLog::messageLogged);
    QVERIFY(QvelShortcutManager::convertLegacyShortcuts(in, out));
    QCOMPARE(steps(out), QStringList(s("+A 1-all")));
    QVERIFY(lines.value(0).value(0).toString().startsWith(s("Warning: A hotkey of '1-undo'")));
}

void TestLegacyConversion::fails_data()
{
    QTest::addColumn<QByteArray>("user"); // null for a missing file
    QTest::addColumn<QByteArray>("defaults");
    QTest::addColumn<QString>("outName");
    QTest::addColumn<QString>("line"); // the last one; %1 is the temporary folder

    const QByteArray good = keyboard({});
    QTest::newRow("no input") << QByteArray() << good << "out.hsx"
                              << "Error: Could not open the legacy hotkey configuration "
                                 "'%1/in.kbdx'.";
    QTest::newRow("no default") << good << QByteArray() << "out.hsx"
                                << "Error: Could not open the legacy hotkey configuration "
                                   "'%1/LegacyDefaultUI-2019.kbdx'.";
    QTest::newRow("not valid") << QByteArray("<VLSK_KBD") << good << "out.hsx"
                               << "Error: '%1/in.kbdx' is not a valid kbdx file.";
    QTest::newRow("other root") << QByteArray("<shortcut/>") << good << "out.hsx"
                                << "Error: Could not parse legacy hotkey configuration "
                                   "'%1/in.kbdx'.";
    QTest::newRow("output") << good << good << "nowhere/out.hsx"
                            << "Error: Could not open '%1/nowhere/out.hsx' to store the results of "
                               "conversion.";
}

void TestLegacyConversion::fails()
{
    QFETCH(QByteArray, user);
    QFETCH(QByteArray, defaults);
    QFETCH(QString, outName);
    QFETCH(QString, line);
    if (!user.isNull())
        m_host->write(s("in.kbdx"), user);
    if (!defaults.isNull())
        m_host->write(defaultFile(), defaults);
    m_host->write(s("out.hsx"), "old");
    QSignalSpy lines(&CUI::QvelMessageLog::getInstance(), &CUI::QvelMessageLog::messageLogged);
    QVERIFY(!QvelShortcutManager::convertLegacyShortcuts(m_host->path(s("in.kbdx")),
                                                         m_host->path(outName)));
    QVERIFY(!lines.isEmpty());
    QCOMPARE(lines.last().at(0).toString(), line.arg(m_host->paths()->legacyDirectory));
    QCOMPARE(TestHost::read(m_host->path(s("out.hsx"))), QByteArray("old"));
    QVERIFY(!QvelShortcutManager::convertLegacyShortcuts(QString(), m_host->path(outName)));
    QVERIFY(!QvelShortcutManager::convertLegacyShortcuts(m_host->path(outName), QString()));
}

void TestLegacyConversion::convertsTheShippedUsers_data()
{
    QTest::addColumn<QString>("fileName");
    QTest::newRow("artist") << "legacy-user-artist.kbdx";
    QTest::newRow("animator") << "legacy-user-animator.kbdx";
}

// The steps are the difference of the two files as sets of lines.
void TestLegacyConversion::convertsTheShippedUsers()
{
    QFETCH(QString, fileName);
    const QString legacy = s(CUI_SOURCE_DIR "/examples/host/data/legacy");
    m_host->paths()->legacyDirectory = legacy;
    const QString in = s(CUI_TEST_DATA_DIR "/valid/") + fileName;
    const QString out = m_host->path(s("out.hsx"));
    QVERIFY(QvelShortcutManager::convertLegacyShortcuts(in, out));

    const auto accelerators = [](const QString &path) {
        QSet<QString> result;
        const QString document = QString::fromUtf8(TestHost::read(path));
        const QRegularExpression element(s("<shortcut [^>]*>"));
        const auto value = [](const QString &text, const char *name) {
            return QRegularExpression(QLatin1Char(' ') + s(name) + s("=\"([^\"]*)\""))
                    .match(text)
                    .captured(1);
        };
        for (auto it = element.globalMatch(document); it.hasNext();) {
            const QString text = it.next().captured();
            result << QvelShortcutManager::virtualKeyToStr(value(text, "accleleratorKey").toInt(),
                                                           value(text, "fVirt").toInt())
                              + QLatin1Char(' ') + value(text, "actionTableID") + QLatin1Char('-')
                              + value(text, "actionID");
        }
        return result;
    };
    const QSet<QString> user = accelerators(in);
    const QSet<QString> defaults = accelerators(legacy + QLatin1Char('/') + defaultFile());
    QVERIFY(defaults.size() >= 150);
    QSet<QString> expected;
    for (const QString &added : user - defaults)
        expected << QLatin1Char('+') + added;
    for (const QString &removed : defaults - user)
        expected << QLatin1Char('-') + removed;
    const QStringList found = steps(out);
    QVERIFY(found.size() >= 12);
    QCOMPARE(QSet<QString>(found.begin(), found.end()), expected);
}

QTEST_GUILESS_MAIN(TestLegacyConversion)
#include "tst_LegacyConversion.moc"
