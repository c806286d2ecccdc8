#include "HotkeyFileInput.h"
#include "SchemaCheck.h"
#include "TestHost.h"
#include "Text.h"

#include <UiCustomizations/QvelMessageLog.h>
#include <UiCustomizations/QvelShortcutManager.h>

#include <QSignalSpy>
#include <QTcpServer>
#include <QTextCodec>
#include <QTimer>
#include <QtTest>

#include <functional>
#include <memory>

using CUI::QvelMessageLog;
using CUI::QvelShortcutManager;
namespace SchemaCheck = CUI::SchemaCheck;

namespace {

QByteArray repeated(const char *text, int count)
{
    return QByteArray(text).repeated(count);
}

// A literal with all its zero bytes.
QByteArray operator""_zeros(const char *text, std::size_t size)
{
    return {text, static_cast<int>(size)};
}

const char *const schemaInstance = " xmlns:xsi='http://www.w3.org/2001/XMLSchema-instance'";

} // namespace

class TestSchemaCheck : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { m_host = std::make_unique<TestHost>(); }
    void cleanup() { m_host.reset(); }
    void judgesByShippedSchemas_data();
    void judgesByShippedSchemas();
    void reportsLastMessageWithoutMarkup();
    void reportsBrokenSchema();
    void saysNothingOfUnreadableFiles();
    void compilesEachSchemaOnce();
    void outlivesDocumentsWithManyNames();
    void refusesHostileDocuments_data();
    void refusesHostileDocuments();
    void fetchesNothing_data();
    void fetchesNothing();

private:
    QStringList linesOf(const std::function<bool()> &check, bool expected);
    std::unique_ptr<TestHost> m_host;
};

// What the log says during the check; a single complaint when the result is not as expected.
QStringList TestSchemaCheck::linesOf(const std::function<bool()> &check, bool expected)
{
    QSignalSpy spy(&QvelMessageLog::getInstance(), &QvelMessageLog::messageLogged);
    if (check() != expected)
        return {s("the check did not return what it should")};
    QStringList lines;
    for (const QList<QVariant> &line : spy)
        lines << line.at(0).toString();
    return lines;
}

void TestSchemaCheck::judgesByShippedSchemas_data()
{
    QTest::addColumn<QString>("suffix");
    QTest::addColumn<QByteArray>("document");
    QTest::addColumn<bool>("valid");

    const auto row = [](const char *suffix, const QByteArray &document, bool valid) {
        QTest::newRow(document.left(120).constData()) << s(suffix) << document << valid;
    };
    row("hsxb", "<VelHotkeys/>", true);
    const QByteArray banner(300, '=');
    row("hsxb",
        "<!-- " + banner + " '<' --><VelHotkeys><?x " + banner
                + "?><Hotkey Shortcut='=' Description='" + banner + "' Id='1-a'/></VelHotkeys>",
        true);
    row("hsxb",
        "<VelHotkeys xmlns:y='http://www.w3.org/2001/XMLSchema-instance'><Hotkey Shortcut=\"A "
        "y:schemaLocation='\" Bad=\"'\" Id='1-a'/></VelHotkeys>",
        false);
    row("hsxb", "<VelHotkeys xmlns:y='urn:y' y:schemaLocation='x'/>", false);
    row("hsxb", "<VelHotkeys><Hotkey Shortcut='A' Id='x-a'/></VelHotkeys>", false);
    row("hsxb", "<VelHotkeys><Hotkey Shortcut='A' Id='1-a' New=''/></VelHotkeys>", false);
    row("hsxb", "<VelHotkeys>text</VelHotkeys>", false);
    row("hsxb", "<VelHotkeyTransformations/>", false);
    row("hsxb", "", false);
    row("hsx", "<VelHotkeyTransformations Locked='1' Description='D'/>", true);
    row("hsx", "<VelHotkeyTransformations Locked='TRUE'/>", true);
    row("hsx",
        "<VelHotkeyTransformations><Assign_Hotkey Shortcut='A' Id='1-a'/><Unassign_Hotkey "
        "Shortcut='A' Description='D' Id='1-a'/><Assign_Hotkey Shortcut='A' "
        "Id='1-a'/></VelHotkeyTransformations>",
        true);
    row("hsx", "<VelHotkeyTransformations><Hotkey/></VelHotkeyTransformations>", false);
    row("kbdx",
        "<VLSK_KBD version='3' xmlns:v='urn:v'><v:info a='b'/><!-- c --><shortcut "
        "actionID='undo' fVirt='11' v:note='' accleleratorKey='90' actionTableID=''>text<help "
        "lang='en'>more</help></shortcut><other>text</other><shortcut fVirt=''/></VLSK_KBD>",
        true);
    row("kbdx", "<VLSK_KBD><shortcut fVirt='Ctrl'/></VLSK_KBD>", false);
}

void TestSchemaCheck::judgesByShippedSchemas()
{
    QFETCH(QString, suffix);
    QFETCH(QByteArray, document);
    QFETCH(bool, valid);
    const QString path = m_host->write(s("file.") + suffix, document);
    const auto validate = suffix == s("hsxb")  ? QvelShortcutManager::validateShortcuts
                          : suffix == s("hsx") ? QvelShortcutManager::validateShortcutsTransforms
                                               : QvelShortcutManager::validateLegacyKbdx;
    const QStringList lines = linesOf([&] { return validate(path); }, valid);
    QCOMPARE(lines.size(), valid ? 0 : 1);
    if (!valid)
        QVERIFY2(lines.at(0).startsWith(
                         s("Error: Validation of '%1' \nagainst schema definition '").arg(path)),
                 qPrintable(lines.at(0)));
}

void TestSchemaCheck::reportsLastMessageWithoutMarkup()
{
    const QString path = m_host->write(
            s("a.hsxb"), "<VelHotkeys>\n  <Hotkey Shortcut='A' Id='1-a'/>\n  <Odd/></VelHotkeys>");
    const QString schema = QCoreApplication::applicationDirPath() + s("/HotkeyMappingSchema.xsd");
    const QStringList lines =
            linesOf([&] { return QvelShortcutManager::validateXml(path, schema); }, false);
    QCOMPARE(lines.size(), 1);
    const QString start = s("Error: Validation of '%1' \nagainst schema definition '%2' failed!\n")
                                  .arg(path, schema);
    QVERIFY(lines.at(0).startsWith(start));
    const QString message = lines.at(0).mid(start.size());
    QVERIFY2(QRegularExpression(s("\\A[^<>]*Odd[^<>]* Line: 3 Column: \\d+\\z"))
                     .match(message)
                     .hasMatch(),
             qPrintable(message));
}

void TestSchemaCheck::reportsBrokenSchema()
{
    const QString file = m_host->write(s("a.hsxb"), "<VelHotkeys/>");
    const QString schema = m_host->write(s("broken.xsd"), "<schema");
    for (int round = 0; round < 2; ++round) { // compiled or remembered, the message is the same
        const QStringList lines =
                linesOf([&] { return QvelShortcutManager::validateXml(file, schema); }, false);
        QCOMPARE(lines.size(), 1);
        QVERIFY2(lines.at(0).contains(QRegularExpression(s("failed!\n.+ Line: 1 Column: \\d+"))),
                 qPrintable(lines.at(0)));
    }
}

void TestSchemaCheck::saysNothingOfUnreadableFiles()
{
    const QString file = m_host->write(s("a.hsxb"), "<VelHotkeys/>");
    const QString missing = m_host->path(s("missing"));
    const QString folder = m_host->path(QString());
    for (const auto &[document, schema] :
         {std::pair(missing, file), std::pair(file, missing), std::pair(folder, file),
          std::pair(QString(), file), std::pair(file, QString())}) {
        const QStringList lines = linesOf(
                [&, d = document, x = schema] { return QvelShortcutManager::validateXml(d, x); },
                false);
        QCOMPARE(lines, QStringList());
    }
}

void TestSchemaCheck::compilesEachSchemaOnce()
{
    const QByteArray anyRoot = "<xs:schema xmlns:xs='http://www.w3.org/2001/XMLSchema'>"
                               "<xs:element name='a'/></xs:schema>";
    const QString schema = m_host->write(s("s.xsd"), anyRoot);
    const QString file = m_host->write(s("f.xml"), "<a/>");
    const int before = SchemaCheck::compilationCount();
    for (int round = 0; round < 5; ++round)
        QVERIFY(CUI::HotkeyFileInput(file).validate(schema));
    QCOMPARE(SchemaCheck::compilationCount(), before + 1);

    m_host->write(s("s.xsd"), QByteArray(anyRoot).replace("'a'", "'b'")); // of the same size
    QVERIFY(!CUI::HotkeyFileInput(file).validate(schema));
    QCOMPARE(SchemaCheck::compilationCount(), before + 2);
}

// The schema processor numbers all names it has seen in twelve bits.
void TestSchemaCheck::outlivesDocumentsWithManyNames()
{
    for (int file = 0; file < 40; ++file) {
        QByteArray document = "<VLSK_KBD>";
        for (int name = 0; name < 300; ++name)
            document += "<n" + QByteArray::number(file * 300 + name) + "/>";
        const QString path = m_host->write(s("a.kbdx"), document + "</VLSK_KBD>");
        QVERIFY(QvelShortcutManager::validateLegacyKbdx(path));
    }
    const QString good = m_host->write(s("b.kbdx"), "<VLSK_KBD><shortcut fVirt='1'/></VLSK_KBD>");
    QVERIFY(QvelShortcutManager::validateLegacyKbdx(good));
    const QString bad = m_host->write(s("c.kbdx"), "<VLSK_KBD><shortcut fVirt='A'/></VLSK_KBD>");
    QVERIFY(!QvelShortcutManager::validateLegacyKbdx(bad));
}

void TestSchemaCheck::refusesHostileDocuments_data()
{
    QTest::addColumn<QByteArray>("document");
    QTest::addColumn<QString>("reason");

    const auto row = [](const char *name, const QByteArray &document, const char *reason) {
        QTest::newRow(name) << document << s(reason);
    };
    row("entities", "<!DOCTYPE VLSK_KBD [<!ENTITY a \"aaaa\">]><VLSK_KBD a='&a;'/>",
        "A document type declaration is not allowed.");
    row("external entity",
        "<!DOCTYPE VLSK_KBD [<!ENTITY a SYSTEM \"file:///etc/hostname\">]><VLSK_KBD>&a;</VLSK_KBD>",
        "A document type declaration is not allowed.");
    row("deep", "<VLSK_KBD>" + repeated("<a>", 200000) + repeated("</a>", 200000) + "</VLSK_KBD>",
        "Elements are nested too deeply.");
    QByteArray attributes;
    QByteArray names;
    QByteArray prefixes;
    for (int i = 0; i < 500000; ++i)
        attributes += " a" + QByteArray::number(i) + "='>'";
    for (int i = 0; i < 5000; ++i) {
        names += "<n" + QByteArray::number(i) + "/>";
        prefixes += "<a xmlns:p" + QByteArray::number(i) + "='urn:" + QByteArray::number(i) + "'/>";
    }
    row("attributes", "<VLSK_KBD" + attributes + "/>", "A tag has too many attributes.");
    row("names", "<VLSK_KBD>" + names + "</VLSK_KBD>",
        "The document has too many different names.");
    row("prefixes", "<VLSK_KBD>" + prefixes + "</VLSK_KBD>",
        "The document has too many different names.");
    row("elements", "<VLSK_KBD>" + repeated("<a/>", 1100000) + "</VLSK_KBD>",
        "The document has too many elements.");
    row("comments", "<VLSK_KBD>" + repeated("<!---->", 1100000) + "</VLSK_KBD>",
        "The document has too many elements.");
    QByteArray instructions;
    for (int i = 0; i < 40000; ++i)
        instructions += "<?p" + QByteArray::number(i) + "?>";
    row("instructions", instructions + "<VLSK_KBD/>", "The document has too many different names.");
    QByteArray hidden;
    for (int i = 0; i < 40000; ++i) // U+3C41 has the byte of '<' in it
        hidden += " a" + QByteArray::number(i) + "='\xe3\xb1\x81'";
    hidden = "<VLSK_KBD" + hidden + "/>";
    const QByteArray marked =
            QTextCodec::codecForName("UTF-16")->fromUnicode(QString::fromUtf8(hidden));
    row("attributes in UTF-16", marked, "A tag has too many attributes.");
    row("attributes in UTF-16 without mark", marked.mid(2), "A tag has too many attributes.");
    row("size", "<VLSK_KBD>" + QByteArray(int(CUI::XmlDocument::maximumSize), ' ') + "</VLSK_KBD>",
        "The file is too large.");
    // The processor looks a type up whose prefix nobody has declared, and crashes.
    const char *const noType =
            "An attribute of the schema instance namespace is not allowed. Line: 1";
    row("type", "<VLSK_KBD" + QByteArray(schemaInstance) + " xsi:type='a:b'/>", noType);
    row("type below", "<VLSK_KBD><a" + QByteArray(schemaInstance) + " xsi:type='a:b'/></VLSK_KBD>",
        noType);
    row("type, other spelling",
        "<VLSK_KBD xmlns:x='http://www.w3.org/2001/XMLSchema&#45;instance' x:type='a:b'/>", noType);
    QByteArray scopes;
    for (int i = 0; i < 97; ++i) {
        scopes += "<a";
        for (int prefix = 0; prefix < 199; ++prefix)
            scopes += " xmlns:p" + QByteArray::number(prefix) + "='u'";
        scopes += '>';
    }
    row("namespaces in scope", "<VLSK_KBD>" + scopes + repeated("<b/>", 100000),
        "Too many namespaces are declared. Line: 1");
    row("long namespace", "<VLSK_KBD xmlns:p='" + QByteArray(30000000, 'a') + "'><p:a/></VLSK_KBD>",
        "A name is too long. Line: 1");
    row("UTF-7", "<?xml version='1.0' encoding='UTF-7'?>\n<VLSK_KBD/>",
        "The encoding is not supported. Line: 1 Column: 38");
    row("UTF-32", QTextCodec::codecForName("UTF-32")->fromUnicode(s("<VLSK_KBD/>")),
        "The encoding is not supported.");
    row("unknown encoding", "<?xml version='1.0'\n encoding='nope'?><VLSK_KBD/>",
        "Encoding nope is unsupported Line: 2 Column: 18");
    row("encoding without ASCII", "<?xml version='1.0' encoding='IBM037'?><VLSK_KBD/>",
        "The declared encoding is not that of the file. Line: 1 Column: 39");
    row("encoding against the mark",
        "\xef\xbb\xbf<?xml version='1.0' encoding='ISO-8859-1'?><VLSK_KBD/>",
        "The declared encoding is not that of the file. Line: 1 Column: 43");
    row("no UTF-8", "<VLSK_KBD>\n\xef\xbf\xbd\xff</VLSK_KBD>",
        "Encountered incorrectly encoded content. Line: 2 Column: 1");
    row("half a surrogate pair", "\xff\xfe<\0a\0>\0\n\0\0\xd8"_zeros,
        "Encountered incorrectly encoded content. Line: 2 Column: 0");
    row("cut off in a character", "<?xml version='1.0' encoding='EUC-JP'?><VLSK_KBD/>\n\xa4",
        "Encountered incorrectly encoded content. Line: 2 Column: 0");
    row("zero byte", "<VLSK_KBD>\n<a\0/></VLSK_KBD>"_zeros,
        "A zero character is not allowed. Line: 2 Column: 2");
    row("cut off in the start of a comment", "<VLSK_KBD>\n<!-",
        "Premature end of document. Line: 2 Column: 3");
}

void TestSchemaCheck::refusesHostileDocuments()
{
    QFETCH(QByteArray, document);
    QFETCH(QString, reason);
    const QString path = m_host->write(s("a.kbdx"), document);
    const QStringList lines =
            linesOf([&] { return QvelShortcutManager::validateLegacyKbdx(path); }, false);
    QCOMPARE(lines.size(), 1);
    QVERIFY2(lines.at(0).contains(s("failed!\n") + reason), qPrintable(lines.at(0).left(500)));
}

void TestSchemaCheck::fetchesNothing_data()
{
    QTest::addColumn<QByteArray>("document");
    QTest::addColumn<bool>("valid");

    const QByteArray hints = QByteArray(schemaInstance) + " xsi:noNamespaceSchemaLocation='";
    QTest::newRow("connection") << "<VelHotkeys" + hints + "http://127.0.0.1:PORT/a.xsd'/>" << true;
    QTest::newRow("file") << "<VelHotkeys" + hints + "canary.xsd'/>" << true;
    QTest::newRow("file for a namespace") << "<VelHotkeys" + QByteArray(schemaInstance)
                                                     + " xsi:schemaLocation='urn:x canary.xsd'/>"
                                          << true;
    QTest::newRow("foreign root") << "<canary" + hints + "canary.xsd'/>" << false;
    // A reader that follows the declaration would read the body, one that follows the mark cannot.
    const QString padding(4100, QLatin1Char(' '));
    const QString declaration = s("<?xml version='1.0'") + padding + s("encoding='UTF-16BE'?>");
    QTest::newRow("two byte orders")
            << QTextCodec::codecForName("UTF-16LE")->fromUnicode(QChar(0xfeff) + declaration)
                       + QTextCodec::codecForName("UTF-16BE")
                                 ->fromUnicode(s(("<canary" + hints + "canary.xsd'/>").data()))
            << false;
}

void TestSchemaCheck::fetchesNothing()
{
    QFETCH(QByteArray, document);
    QFETCH(bool, valid);
    QTcpServer server;
    QVERIFY(server.listen(QHostAddress::LocalHost));
    m_host->write(s("canary.xsd"), "<xs:schema xmlns:xs='http://www.w3.org/2001/XMLSchema'>"
                                   "<xs:element name='canary'/></xs:schema>");
    document.replace("PORT", QByteArray::number(server.serverPort()));
    bool ran = false; // waiting for a reply, in an event loop, would call it
    QTimer::singleShot(0, this, [&ran] { ran = true; });
    const QString path = m_host->write(s("a.hsxb"), document);
    linesOf([&] { return QvelShortcutManager::validateShortcuts(path); }, valid);
    QVERIFY(!ran);
    QVERIFY(!server.waitForNewConnection(20));
}

QTEST_GUILESS_MAIN(TestSchemaCheck)
#include "tst_SchemaCheck.moc"
