#include "SchemaCheck.h"
#include "TestHost.h"
#include "XmlErrorMessageHandler.h"
#include "XmlScreening.h"

#include <UiCustomizations/QvelMessageLog.h>
#include <UiCustomizations/QvelShortcutManager.h>

#include <QSignalSpy>
#include <QTextCodec>
#include <QXmlSchema>
#include <QXmlSchemaValidator>
#include <QtTest>

#include <functional>
#include <memory>

using CUI::QvelMessageLog;
using CUI::QvelShortcutManager;
namespace SchemaCheck = CUI::SchemaCheck;
namespace XmlScreening = CUI::XmlScreening;

namespace {

QString s(const char *text)
{
    return QString::fromUtf8(text);
}

QByteArray repeated(const char *text, int count)
{
    return QByteArray(text).repeated(count);
}

const char *const prolog = "<?xml version='1.0' encoding='UTF-8'?>";

// 2500 hotkeys with something before the one of that number; with all of them, it is cut twice.
QByteArray largeDocument(const QByteArray &root, int number, const QByteArray &inserted)
{
    QByteArray document = root;
    for (int i = 0; i < 2500; ++i)
        document += (i == number ? inserted : QByteArray()) + "<Hotkey Shortcut='A' Id='1-"
                    + QByteArray::number(i) + "'/>\n";
    return document;
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
    void keepsTheLastMessage();
    void reportsBrokenSchema();
    void saysNothingOfUnreadableFiles();
    void compilesEachSchemaOnce();
    void outlivesDocumentsWithManyNames();
    void refusesHostileDocuments_data();
    void refusesHostileDocuments();
    void neverFollowsSchemaHints_data();
    void neverFollowsSchemaHints();
    void judgesLargeDocumentsAsAWhole_data();
    void judgesLargeDocumentsAsAWhole();
    void leavesLargeDocumentsWholeForOtherSchemas();

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
    row("hsxb", "<VelHotkeys> <Hotkey Shortcut='' Id='1-'/><!-- c --></VelHotkeys>", true);
    row("hsxb", "<VelHotkeys><Hotkey Shortcut='A, B' Description='' Id='1-a-b'/></VelHotkeys>",
        true);
    row("hsxb", "<VelHotkeys><Hotkey Shortcut='A' Id='1-a&#10;b'/></VelHotkeys>", true);
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
    row("hsxb", "<VelHotkeys><Hotkey Shortcut='A' Id='1'/></VelHotkeys>", false);
    row("hsxb", "<VelHotkeys><Hotkey Shortcut='A' Id='-1-a'/></VelHotkeys>", false);
    row("hsxb", "<VelHotkeys><Hotkey Id='1-a'/></VelHotkeys>", false);
    row("hsxb", "<VelHotkeys><Hotkey Shortcut='A'/></VelHotkeys>", false);
    row("hsxb", "<VelHotkeys><Hotkey Shortcut='A' Id='1-a' New=''/></VelHotkeys>", false);
    row("hsxb", "<VelHotkeys Locked='true'/>", false);
    row("hsxb", "<VelHotkeys><Other/></VelHotkeys>", false);
    row("hsxb", "<VelHotkeys>text</VelHotkeys>", false);
    row("hsxb", "<VelHotkeyTransformations/>", false);
    row("hsxb", "<VelHotkeys>", false);
    row("hsxb", "", false);
    row("hsx", "<VelHotkeyTransformations/>", true);
    row("hsx", "<VelHotkeyTransformations Locked='1' Description='D'/>", true);
    row("hsx", "<VelHotkeyTransformations Locked='TRUE'/>", true);
    row("hsx",
        "<VelHotkeyTransformations><Assign_Hotkey Shortcut='A' Id='1-a'/><Unassign_Hotkey "
        "Shortcut='A' Description='D' Id='1-a'/><Assign_Hotkey Shortcut='A' "
        "Id='1-a'/></VelHotkeyTransformations>",
        true);
    row("hsx", "<VelHotkeyTransformations><Hotkey/></VelHotkeyTransformations>", false);
    row("hsx", "<VelHotkeyTransformations Other=''/>", false);
    row("kbdx", "<VLSK_KBD/>", true);
    row("kbdx",
        "<VLSK_KBD version='3' xmlns:v='urn:v'><v:info a='b'/><!-- c --><shortcut "
        "actionID='undo' fVirt='11' v:note='' accleleratorKey='90' actionTableID=''>text<help "
        "lang='en'>more</help></shortcut><other>text</other><shortcut fVirt=''/></VLSK_KBD>",
        true);
    row("kbdx", "<VLSK_KBD><shortcut fVirt='Ctrl'/></VLSK_KBD>", false);
    row("kbdx", "<VLSK_KBD><shortcut accleleratorKey='0x41'/></VLSK_KBD>", false);
    row("kbdx", "<VelHotkeys/>", false);
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

void TestSchemaCheck::keepsTheLastMessage()
{
    CUI::XmlErrorMessageHandler handler;
    handler.message(QtWarningMsg, s("first"), QUrl(), QSourceLocation(QUrl(), 1, 2));
    handler.message(QtWarningMsg, s("<p>Element <em class='x'>Odd</em> is &lt;odd&gt;.</p>"),
                    QUrl(), QSourceLocation(QUrl(), 3, 4));
    QCOMPARE(handler.description(), s("Element Odd is &lt;odd&gt;."));
    QCOMPARE(handler.sourceLocation().line(), qint64(3));
    QCOMPARE(handler.sourceLocation().column(), qint64(4));
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
        QVERIFY(SchemaCheck::check(file, schema).verdict == SchemaCheck::Verdict::Valid);
    QCOMPARE(SchemaCheck::compilationCount(), before + 1);

    m_host->write(s("s.xsd"), QByteArray(anyRoot).replace("'a'", "'b'")); // of the same size
    QVERIFY(SchemaCheck::check(file, schema).verdict == SchemaCheck::Verdict::Invalid);
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
    // Blanking a hint that is not well-formed would let the reader go on to tags nobody looked at.
    row("markup in a hint",
        "<VLSK_KBD" + QByteArray(schemaInstance) + " xsi:schemaLocation='a <'><a" + attributes
                + "/></VLSK_KBD>",
        "");
    QByteArray hidden;
    for (int i = 0; i < 40000; ++i) // U+3C41 has the byte of '<' in it
        hidden += " a" + QByteArray::number(i) + "='\xe3\xb1\x81'";
    hidden = "<VLSK_KBD" + hidden + "/>";
    const QByteArray marked =
            QTextCodec::codecForName("UTF-16")->fromUnicode(QString::fromUtf8(hidden));
    row("attributes in UTF-16", marked, "A tag has too many attributes.");
    row("UTF-16 without mark", marked.mid(2), "The encoding is not supported.");
    row("size", "<VLSK_KBD>" + QByteArray(int(XmlScreening::maximumSize), ' ') + "</VLSK_KBD>",
        "The file is too large.");
    row("encoding", "<?xml version='1.0' encoding='IBM037'?><VLSK_KBD/>",
        "The encoding is not supported.");
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

void TestSchemaCheck::neverFollowsSchemaHints_data()
{
    QTest::addColumn<QByteArray>("attributes");
    QTest::addColumn<bool>("utf16");

    const QByteArray hint = QByteArray(schemaInstance) + " xsi:noNamespaceSchemaLocation=";
    QTest::newRow("no namespace") << hint + "'other.xsd'" << false;
    QTest::newRow("double quotes, line break") << hint + "\n \"other.xsd\"" << false;
    QTest::newRow("UTF-16") << hint + "'other.xsd'" << true;
    QTest::newRow("declared by a later attribute")
            << QByteArray(" xsi:noNamespaceSchemaLocation='other.xsd'") + schemaInstance << false;
    QTest::newRow("namespace") << QByteArray(schemaInstance)
                                          + " xsi:schemaLocation='urn:x other.xsd'"
                               << false;
    QTest::newRow("other prefix, '>' in the value")
            << QByteArray(" xmlns:x.é='http://www.w3.org/2001/XMLSchema-instance'"
                          " x.é:noNamespaceSchemaLocation='>other.xsd'")
            << false;
}

// A followed hint would make the check fail, since the schema it names is none.
void TestSchemaCheck::neverFollowsSchemaHints()
{
    QFETCH(QByteArray, attributes);
    QFETCH(bool, utf16);
    m_host->write(s("other.xsd"), "<nonsense");
    QByteArray document = "<VelHotkeys" + attributes + ">\n<Hotkey Shortcut='A' Id='1-a'/>\n";
    const auto encoded = [utf16](const QByteArray &text) {
        return utf16 ? QTextCodec::codecForName("UTF-16")->fromUnicode(QString::fromUtf8(text))
                     : text;
    };
    const QString good = m_host->write(s("a.hsxb"), encoded(document + "</VelHotkeys>"));
    QCOMPARE(linesOf([&] { return QvelShortcutManager::validateShortcuts(good); }, true),
             QStringList());
    // Blanking the hint out moves nothing.
    const int line = 3 + attributes.count('\n');
    const QString bad = m_host->write(s("b.hsxb"), encoded(document + "<Odd/></VelHotkeys>"));
    const QStringList lines =
            linesOf([&] { return QvelShortcutManager::validateShortcuts(bad); }, false);
    QVERIFY2(lines.value(0).contains(s("Line: %1 ").arg(line)), qPrintable(lines.value(0)));
}

void TestSchemaCheck::judgesLargeDocumentsAsAWhole_data()
{
    QTest::addColumn<QByteArray>("document");
    const auto row = [](const QByteArray &inserted, int number = 1000,
                        const QByteArray &root = QByteArray(prolog) + "\n<VelHotkeys>",
                        const QByteArray &end = "</VelHotkeys>") {
        QTest::addRow("%s before %d, %s ... %s", inserted.constData(), number,
                      root.right(60).simplified().constData(), end.constData())
                << largeDocument(root, number, inserted) + end;
    };
    for (const int number : {1, 999, 1000, 1001, 2499}) {
        row("<!-- <Hotkey/> -->", number);
        row("<![CDATA[ ]]>", number);
        row("text", number);
        row("<Odd/>", number);
        row("<Hotkey Shortcut='A' Id='1-a'>", number);
        row("<Hotkey Shortcut='A' Id='1-a'></Hotkey>", number);
        row("</VelHotkeys>", number);
        row("</VelHotkeys><VelHotkeys>", number);
        row("<VelHotkeys>", number);
        row("<!--", number);
        row("&lt;", number);
        row("&none;", number);
        row("\xff", number);
    }
    row("", 0, prolog + QByteArray("<!--") + QByteArray(5000, '=') + "--><VelHotkeys>");
    row("", 0, "\xef\xbb\xbf<VelHotkeys>");
    row("", 0, "<VelHotkeys Odd=''>");
    row("", 0, "<VelHotkeys Odd='' Odd=''>");
    row("", 0, "<VelHotkeys xmlns='urn:x'>");
    row("", 0, "<y:VelHotkeys xmlns:y='urn:x'>", "</y:VelHotkeys>");
    row("<Hotkey y:Odd='' Shortcut='A' Id='1-a'/>", 1500, "<VelHotkeys xmlns:y='urn:x'>");
    row("<Hotkey Shortcut='\xe9' Id='1-a'/>", 1500,
        "<?xml version='1.0' encoding='ISO-8859-1'?><VelHotkeys>");
    row("<Hotkey Shortcut='\xe9' Id='1-a'/>", 1500);
    row("", 0, "<VelHotkeys>", "");
    row("", 0, "<VelHotkeys>", "</Other>");
    row("", 0, "<VelHotkeys>", "</VelHotkeys><!-- c --><Other/>");
}

// Pieces of a large document are validated one by one; of that, nothing may be seen.
void TestSchemaCheck::judgesLargeDocumentsAsAWhole()
{
    QFETCH(QByteArray, document);
    const QString schemaPath =
            QCoreApplication::applicationDirPath() + s("/HotkeyMappingSchema.xsd");
    const QString path = m_host->write(s("a.hsxb"), document);
    CUI::XmlErrorMessageHandler handler;
    QXmlSchema schema;
    QVERIFY(schema.load(QUrl::fromLocalFile(schemaPath)));
    QXmlSchemaValidator validator(schema);
    validator.setMessageHandler(&handler);
    const bool isValid = validator.validate(document, QUrl::fromLocalFile(path));

    const SchemaCheck::Result result = SchemaCheck::check(path, schemaPath);
    QCOMPARE(result.verdict == SchemaCheck::Verdict::Valid, isValid);
    if (isValid)
        return;
    QCOMPARE(result.error.text, handler.description());
    QCOMPARE(result.error.line, handler.sourceLocation().line());
    QCOMPARE(result.error.column, handler.sourceLocation().column());
}

void TestSchemaCheck::leavesLargeDocumentsWholeForOtherSchemas()
{
    QByteArray source =
            TestHost::read(QCoreApplication::applicationDirPath() + s("/HotkeyMappingSchema.xsd"));
    const QString schema = m_host->write(s("s.xsd"), source.replace("unbounded", "2400"));
    const QString path = m_host->write(s("a.hsxb"), largeDocument("<VelHotkeys>", 0, QByteArray())
                                                            + "</VelHotkeys>");
    QVERIFY(SchemaCheck::check(path, schema).verdict == SchemaCheck::Verdict::Invalid);
}

QTEST_GUILESS_MAIN(TestSchemaCheck)
#include "tst_SchemaCheck.moc"
