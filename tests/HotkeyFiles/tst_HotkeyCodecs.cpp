#include "BaseHotkeyFile.h"
#include "FailDevice.h"
#include "HotkeySetFile.h"

#include <QBuffer>
#include <QtTest>

#include <algorithm>

using CUI::ActionIdentifier;
using CUI::ShortcutTransformation;
namespace BaseHotkeyFile = CUI::BaseHotkeyFile;
namespace HotkeySetFile = CUI::HotkeySetFile;

namespace {

QString s(const char *text)
{
    return QString::fromUtf8(text);
}

template <typename Read>
auto readBytes(Read read, const QByteArray &bytes)
{
    QBuffer buffer;
    buffer.setData(bytes);
    buffer.open(QIODevice::ReadOnly);
    return read(buffer);
}

// "1-undo: A|B; ..." and, after an error, its text and place.
QString text(const BaseHotkeyFile::Content &content)
{
    QString result;
    for (const BaseHotkeyFile::Entry &entry : content.entries)
        result += entry.actionId.toString() + s(": ") + entry.shortcuts.join(s("|")) + s("; ");
    if (content.error)
        result += s("%1 @%2").arg(content.error->text).arg(content.error->line);
    return result;
}

QString text(const HotkeySetFile::Content &content)
{
    QString result;
    for (const ShortcutTransformation &step : content.steps)
        result += step.actionId().toString() + QLatin1Char(' ') + step.toString() + s("; ");
    if (content.error)
        result += s("%1 @%2").arg(content.error->text).arg(content.error->line);
    return result;
}

/// Counts the bytes that are read from it, and gives at most so many at a time.
class CountingDevice : public QIODevice
{
public:
    CountingDevice(const QByteArray &bytes, int blockSize) : m_bytes(bytes), m_blockSize(blockSize)
    {
        open(ReadOnly | Unbuffered);
    }
    int bytesRead() const { return m_position; }

protected:
    qint64 readData(char *data, qint64 size) override
    {
        const qint64 length = std::min<qint64>({size, m_blockSize, m_bytes.size() - m_position});
        std::copy_n(m_bytes.constData() + m_position, length, data);
        m_position += static_cast<int>(length);
        return length;
    }
    qint64 writeData(const char *, qint64) override { return -1; }

private:
    QByteArray m_bytes;
    int m_blockSize;
    int m_position = 0;
};

const char *const bomb = "<!DOCTYPE r [<!ENTITY a \"aaaaaaaaaa\"><!ENTITY b \"&a;&a;&a;\">]>\n";

} // namespace

class TestHotkeyCodecs : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void readsBase_data();
    void readsBase();
    void writesBase();
    void readsSet_data();
    void readsSet();
    void readsMetadata_data();
    void readsMetadata();
    void readsNoStepForMetadata();
    void writesSet();
    void refusesCharactersThatXmlCannotHold_data();
    void refusesCharactersThatXmlCannotHold();
    void reportsFailingDevice();
};

void TestHotkeyCodecs::readsBase_data()
{
    QTest::addColumn<QByteArray>("document");
    QTest::addColumn<QString>("content");

    const auto row = [](const char *name, const QByteArray &document, const char *content) {
        QTest::newRow(name) << document << s(content);
    };
    const auto in = [](const char *inner) {
        return QByteArray("<VelHotkeys>\n") + inner + "\n</VelHotkeys>";
    };
    row("splits at comma and blank",
        in("<Hotkey Shortcut='Ctrl+,, F2' Id='1-undo'/><Hotkey Shortcut='A,B' Id='2-x'/>"),
        "1-undo: Ctrl+,|F2; 2-x: A,B; ");
    row("keeps empty pieces", in("<Hotkey Shortcut='A, ' Id='1-x'/>"), "1-x: A|; ");
    row("skips incomplete entries",
        in("<Hotkey Shortcut='' Id='1-x'/><Hotkey Id='1-x'/><Hotkey Shortcut='A'/>"
           "<Hotkey Shortcut='A' Id='x'/><Hotkey Shortcut='A' Id='1-'/>"),
        "");
    row("table that is no number", in("<Hotkey Shortcut='A' Id='abc-x'/>"), "0-x: A; ");
    row("skips other elements and nested content",
        in("<Other><Hotkey Shortcut='A' Id='1-x'/></Other>"
           "<Hotkey Shortcut='B' Id='1-y'><Hotkey Shortcut='C' Id='1-z'/></Hotkey>"),
        "1-y: B; ");
    row("ignores what follows the root", in("<Hotkey Shortcut='A' Id='1-x'/>") + "<<<", "1-x: A; ");
    row("wrong root", "<Other>\n</Other>", "This is not a valid hsxb file. @1");
    row("empty", "", "Premature end of document. @1");
    row("keeps entries before an error", in("<Hotkey Shortcut='A' Id='1-x'/>\n<Hotkey Shortcut="),
        "1-x: A; Expected '\"', '\\'', but got '<'. @4");
    row("cut off", "<VelHotkeys><Hotkey Shortcut='A' Id='1-x'/>",
        "1-x: A; Premature end of document. @1");
    row("document type", bomb + in("<Hotkey Shortcut='&b;' Id='1-x'/>"),
        "A document type declaration is not allowed. @1");
}

void TestHotkeyCodecs::readsBase()
{
    QFETCH(QByteArray, document);
    QString content = text(readBytes(BaseHotkeyFile::read, document));
    // The toolkit words this one differently from release to release.
    content.replace(QRegularExpression(s("Expected [^@]* @")),
                    s("Expected '\"', '\\'', but got '<'. @"));
    QTEST(content, "content");
}

void TestHotkeyCodecs::writesBase()
{
    const std::vector<BaseHotkeyFile::Entry> entries{
            {{1, s("undo")}, {s("Ctrl+Z"), s("Alt+Backspace")}, s("Undo \"<&>\"\n\x01")},
            {{7, s("toggleEdges")}, {s("F4")}, {}},
            {{8, s("empty")}, {}, s("")},
    };
    QBuffer buffer;
    buffer.open(QIODevice::ReadWrite);
    QVERIFY(BaseHotkeyFile::write(buffer, entries));
    QCOMPARE(buffer.data(),
             QByteArray("<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
                        "<VelHotkeys>\n"
                        "    <Hotkey Shortcut=\"Ctrl+Z, Alt+Backspace\" "
                        "Description=\"Undo &quot;&lt;&amp;&gt;&quot;&#10;\" Id=\"1-undo\"/>\n"
                        "    <Hotkey Shortcut=\"F4\" Id=\"7-toggleEdges\"/>\n"
                        "    <Hotkey Shortcut=\"\" Description=\"\" Id=\"8-empty\"/>\n"
                        "</VelHotkeys>\n"));
    QCOMPARE(text(readBytes(BaseHotkeyFile::read, buffer.data())),
             s("1-undo: Ctrl+Z|Alt+Backspace; 7-toggleEdges: F4; "));
}

void TestHotkeyCodecs::readsSet_data()
{
    QTest::addColumn<QByteArray>("document");
    QTest::addColumn<QString>("content");

    const auto row = [](const char *name, const QByteArray &document, const char *content) {
        QTest::newRow(name) << document << s(content);
    };
    const auto in = [](const char *inner) {
        return QByteArray("<VelHotkeyTransformations>\n") + inner + "</VelHotkeyTransformations>";
    };
    row("steps in their order",
        in("<Unassign_Hotkey Shortcut='A' Description='X' Id='1-x'/>"
           "<Assign_Hotkey Shortcut='A' Id='1-y'/>"),
        "1-x Remove 'A' from X.; 1-y Add 'A' to .; ");
    row("skips other and incomplete elements",
        in("<Hotkey Shortcut='A' Id='1-x'/><assign_hotkey Shortcut='A' Id='1-x'/>"
           "<Assign_Hotkey Id='1-x'/><Assign_Hotkey Shortcut='A' Id='x'/>"
           "<Unassign_Hotkey Shortcut='A' Id='1-y'><Assign_Hotkey Shortcut='B' Id='1-z'/>"
           "</Unassign_Hotkey>"),
        "1-y Remove 'A' from .; ");
    row("wrong root", "<VelHotkeys/>", "This is not a valid hsx file. @1");
    row("keeps steps before an error",
        in("<Assign_Hotkey Shortcut='A' Id='1-x'/>\n<Assign_Hotkey Shortcut='B' Id='1-x'/>\n"
           "<Assign_Hotkey Shortcut='C' Id='1-x'></Unassign_Hotkey>\n"),
        "1-x Add 'A' to .; 1-x Add 'B' to .; 1-x Add 'C' to .; "
        "Opening and ending tag mismatch. @4");
    row("document type", bomb + in(""), "A document type declaration is not allowed. @1");
}

void TestHotkeyCodecs::readsSet()
{
    QFETCH(QByteArray, document);
    QTEST(text(readBytes(HotkeySetFile::read, document)), "content");
}

void TestHotkeyCodecs::readsMetadata_data()
{
    QTest::addColumn<QByteArray>("document");
    QTest::addColumn<QString>("metadata"); // description/locked; empty for none

    QTest::newRow("true") << QByteArray("<VelHotkeyTransformations Locked='true'/>") << "/locked";
    QTest::newRow("1") << QByteArray("<VelHotkeyTransformations Locked='1' Description='D'/>")
                       << "D/locked";
    QTest::newRow("TRUE") << QByteArray("<VelHotkeyTransformations Locked='TRUE'/>") << "/open";
    QTest::newRow("none") << QByteArray("<VelHotkeyTransformations/>") << "/open";
    QTest::newRow("nothing after the root's tag is read")
            << QByteArray("<VelHotkeyTransformations Description='D'><<<") << "D/open";
    QTest::newRow("wrong root") << QByteArray("<Other Locked='true'/>") << "";
    QTest::newRow("no root") << QByteArray("") << "";
}

void TestHotkeyCodecs::readsMetadata()
{
    QFETCH(QByteArray, document);
    const auto metadata = readBytes(HotkeySetFile::readMetadata, document);
    const QString found =
            metadata ? metadata->description + (metadata->locked ? s("/locked") : s("/open"))
                     : QString();
    QTEST(found, "metadata");
}

void TestHotkeyCodecs::readsNoStepForMetadata()
{
    std::vector<ShortcutTransformation> steps;
    for (int i = 0; i < 10000; ++i)
        steps.emplace_back(ShortcutTransformation::Assign,
                           ActionIdentifier{1, s("action%1").arg(i)}, s("Ctrl+Z"), s("Action"));
    QBuffer buffer;
    buffer.open(QIODevice::ReadWrite);
    QVERIFY(HotkeySetFile::write(buffer, steps, HotkeySetFile::LockAttribute::WriteUnlocked));
    QByteArray document = buffer.data();
    document.replace("Locked=\"false\"", "Locked=\"true\" Description=\"Many\"");

    constexpr int blockSize = 64;
    CountingDevice device(document, blockSize);
    const auto metadata = HotkeySetFile::readMetadata(device);
    QVERIFY(metadata && metadata->locked);
    QCOMPARE(metadata->description, s("Many"));
    const int endOfRootTag = document.indexOf("\"Many\">") + 7;
    QVERIFY2(device.bytesRead() >= endOfRootTag && device.bytesRead() < endOfRootTag + blockSize,
             qPrintable(s("%1 of %2 bytes read").arg(device.bytesRead()).arg(document.size())));

    // A device that gives all it is asked for is asked for one block of the toolkit's reader.
    CountingDevice file(document, document.size());
    QVERIFY(HotkeySetFile::readMetadata(file));
    QVERIFY2(file.bytesRead() <= 4096, qPrintable(QString::number(file.bytesRead())));
    CountingDevice whole(document, document.size());
    QCOMPARE(HotkeySetFile::read(whole).steps.size(), steps.size());
    QCOMPARE(whole.bytesRead(), document.size());
}

void TestHotkeyCodecs::writesSet()
{
    const std::vector<ShortcutTransformation> steps{
            {ShortcutTransformation::Assign, {1, s("exportAll")}, s("Ctrl+Shift+E"), {}},
            {ShortcutTransformation::Unassign, {1, s("undo")}, s("Ctrl+Z"), s("Rückgängig")},
    };
    QBuffer buffer;
    buffer.open(QIODevice::ReadWrite);
    QVERIFY(HotkeySetFile::write(buffer, steps, HotkeySetFile::LockAttribute::WriteUnlocked));
    QCOMPARE(QString::fromUtf8(buffer.data()),
             s("<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
               "<VelHotkeyTransformations Locked=\"false\">\n"
               "    <Assign_Hotkey Shortcut=\"Ctrl+Shift+E\" Id=\"1-exportAll\"/>\n"
               "    <Unassign_Hotkey Shortcut=\"Ctrl+Z\" Description=\"Rückgängig\" "
               "Id=\"1-undo\"/>\n"
               "</VelHotkeyTransformations>\n"));

    QBuffer plain;
    plain.open(QIODevice::ReadWrite);
    QVERIFY(HotkeySetFile::write(plain, {}, HotkeySetFile::LockAttribute::Omit));
    QVERIFY(plain.data().contains("<VelHotkeyTransformations/>")
            || plain.data().contains("<VelHotkeyTransformations></VelHotkeyTransformations>"));
}

void TestHotkeyCodecs::refusesCharactersThatXmlCannotHold_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<bool>("writable");

    QTest::newRow("control character") << QString(QChar(0x1A)) << false;
    QTest::newRow("null") << QString(QChar(0)) << false;
    QTest::newRow("half a surrogate pair") << QString(QChar(0xD83D)) << false;
    QTest::newRow("second half alone") << QString(QChar(0xDE00)) << false;
    QTest::newRow("U+FFFF") << QString(QChar(0xFFFF)) << false;
    QTest::newRow("surrogate pair") << s("\xF0\x9F\x98\x80") << true;
    QTest::newRow("line break") << s("a\nb") << true;
    QTest::newRow("private use") << QString(QChar(0xE000)) << true;
}

void TestHotkeyCodecs::refusesCharactersThatXmlCannotHold()
{
    QFETCH(QString, text);
    QFETCH(bool, writable);
    const auto lock = HotkeySetFile::LockAttribute::Omit;
    QBuffer buffer;
    buffer.open(QIODevice::ReadWrite);
    QCOMPARE(BaseHotkeyFile::write(buffer, {{{1, s("x")}, {s("A"), text}, {}}}), writable);
    QCOMPARE(HotkeySetFile::write(buffer, {{ShortcutTransformation::Assign, {1, text}, s("A"), {}}},
                                  lock),
             writable);
    QCOMPARE(buffer.data().isEmpty(), !writable); // nothing half

    // What comes after such a text is no reason to lose a set: it is written without.
    buffer.buffer().clear();
    buffer.seek(0);
    QVERIFY(HotkeySetFile::write(
            buffer, {{ShortcutTransformation::Assign, {1, s("x")}, s("A"), s("D") + text}}, lock));
    const auto content = readBytes(HotkeySetFile::read, buffer.data());
    QVERIFY(!content.error);
    QCOMPARE(content.steps.at(0).description(), writable ? s("D") + text : s("D"));
}

void TestHotkeyCodecs::reportsFailingDevice()
{
    FailDevice device(40);
    QVERIFY(!BaseHotkeyFile::write(device, {{{1, s("x")}, {s("A")}, {}}}));
    FailDevice other(40);
    QVERIFY(!HotkeySetFile::write(other,
                                  {{ShortcutTransformation::Assign, {1, s("x")}, s("A"), {}}},
                                  HotkeySetFile::LockAttribute::Omit));
}

QTEST_GUILESS_MAIN(TestHotkeyCodecs)
#include "tst_HotkeyCodecs.moc"
