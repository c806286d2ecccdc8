#include "BaseHotkeyFile.h"
#include "FailDevice.h"
#include "HotkeySetFile.h"
#include "Text.h"

#include <QBuffer>
#include <QtTest>

#include <algorithm>

using CUI::ShortcutTransformation;
namespace BaseHotkeyFile = CUI::BaseHotkeyFile;
namespace HotkeySetFile = CUI::HotkeySetFile;

namespace {

template <typename Read>
auto readBytes(Read read, const QByteArray &bytes)
{
    QBuffer buffer;
    buffer.setData(bytes);
    buffer.open(QIODevice::ReadOnly);
    return read(buffer);
}

QString text(const BaseHotkeyFile::Entry &entry)
{
    return entry.actionId.toString() + s(": ") + entry.shortcuts.join(s("|")) + s("; ");
}

QString text(const ShortcutTransformation &step)
{
    return step.actionId().toString() + QLatin1Char(' ') + step.toString() + s("; ");
}

// The entries or steps and, after an error, its text and line.
template <typename Values>
QString text(const Values &values, const std::optional<CUI::XmlError> &error)
{
    QString result;
    for (const auto &value : values)
        result += text(value);
    return error ? result + s("%1 @%2").arg(error->text, QString::number(error->line)) : result;
}

ShortcutTransformation assign(const QString &id, const QString &description = QString())
{
    return {ShortcutTransformation::Assign, {1, id}, s("A"), description};
}

bool writeSet(QIODevice &device, const std::vector<ShortcutTransformation> &steps)
{
    return HotkeySetFile::write(device, steps, HotkeySetFile::LockAttribute::Omit);
}

/// Counts the bytes that are read from it, and gives at most so many at a time.
class CountingDevice : public QBuffer
{
public:
    CountingDevice(QByteArray &bytes, qint64 blockSize) : QBuffer(&bytes), m_blockSize(blockSize)
    {
        open(ReadOnly | Unbuffered);
    }
    qint64 bytesRead() const { return m_bytesRead; }

protected:
    qint64 readData(char *data, qint64 size) override
    {
        const qint64 length = QBuffer::readData(data, std::min(size, m_blockSize));
        m_bytesRead += length;
        return length;
    }

private:
    qint64 m_blockSize;
    qint64 m_bytesRead = 0;
};

} // namespace

class TestHotkeyCodecs : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void reads_data();
    void reads();
    void readsNoStepForMetadata();
    void refusesCharactersThatXmlCannotHold_data();
    void refusesCharactersThatXmlCannotHold();
    void reportsFailingDevice();
};

void TestHotkeyCodecs::reads_data()
{
    QTest::addColumn<bool>("isBase");
    QTest::addColumn<QByteArray>("document");
    QTest::addColumn<QString>("content");

    bool isBase = true;
    const auto row = [&isBase](const char *name, const QByteArray &document, const char *content) {
        QTest::addRow("%s: %s", isBase ? "base" : "set", name) << isBase << document << content;
    };
    const auto in = [&isBase](const char *inner) {
        const QByteArray root = isBase ? "VelHotkeys>" : "VelHotkeyTransformations>";
        return "<" + root + "\n" + inner + "\n</" + root;
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
    row("cut off", "<VelHotkeys><Hotkey Shortcut='A' Id='1-x'/>\n",
        "1-x: A; Premature end of document. @2");
    row("document type",
        "<!DOCTYPE r [<!ENTITY a \"aaaaaaaaaa\"><!ENTITY b \"&a;&a;&a;\">]>\n"
                + in("<Hotkey Shortcut='&b;' Id='1-x'/>"),
        "A document type declaration is not allowed. @1");

    isBase = false;
    row("skips other and incomplete elements",
        in("<Hotkey Shortcut='A' Id='1-x'/><assign_hotkey Shortcut='A' Id='1-x'/>"
           "<Assign_Hotkey Id='1-x'/><Assign_Hotkey Shortcut='A' Id='x'/>"
           "<Unassign_Hotkey Shortcut='A' Id='1-y'><Assign_Hotkey Shortcut='B' Id='1-z'/>"
           "</Unassign_Hotkey>"),
        "1-y Remove 'A' from .; ");
    row("wrong root", "<VelHotkeys/>", "This is not a valid hsx file. @1");
    row("keeps steps before an error",
        in("<Assign_Hotkey Shortcut='A' Description='X' Id='1-x'/>\n"
           "<Assign_Hotkey Shortcut='C' Id='1-x'></Unassign_Hotkey>\n"),
        "1-x Add 'A' to X.; 1-x Add 'C' to .; Opening and ending tag mismatch. @3");
}

void TestHotkeyCodecs::reads()
{
    QFETCH(bool, isBase);
    QFETCH(QByteArray, document);
    if (isBase) {
        const auto content = readBytes(BaseHotkeyFile::read, document);
        QTEST(text(content.entries, content.error), "content");
    } else {
        const auto content = readBytes(HotkeySetFile::read, document);
        QTEST(text(content.steps, content.error), "content");
    }
}

void TestHotkeyCodecs::readsNoStepForMetadata()
{
    std::vector<ShortcutTransformation> steps;
    for (int i = 0; i < 10000; ++i)
        steps.push_back(assign(s("action%1").arg(i)));
    QBuffer buffer;
    buffer.open(QIODevice::ReadWrite);
    QVERIFY(writeSet(buffer, steps));
    QByteArray document = buffer.data();
    const QByteArray rootTag = "<VelHotkeyTransformations Locked='true' Description='Many'>";
    document.replace("<VelHotkeyTransformations>", rootTag);

    constexpr int blockSize = 64;
    CountingDevice device(document, blockSize);
    const auto metadata = HotkeySetFile::readMetadata(device);
    QVERIFY(metadata && metadata->locked);
    QCOMPARE(metadata->description, s("Many"));
    const int endOfRootTag = document.indexOf(rootTag) + rootTag.size();
    QVERIFY2(device.bytesRead() >= endOfRootTag && device.bytesRead() < endOfRootTag + blockSize,
             qPrintable(s("%1 of %2 bytes read").arg(device.bytesRead()).arg(document.size())));

    // A device that gives all it is asked for is asked for one block of the toolkit's reader.
    CountingDevice file(document, document.size());
    QVERIFY(HotkeySetFile::readMetadata(file));
    QVERIFY2(file.bytesRead() <= 4096, qPrintable(QString::number(file.bytesRead())));
    QCOMPARE(readBytes(HotkeySetFile::read, document).steps.size(), steps.size());

    QVERIFY(!readBytes(HotkeySetFile::readMetadata, "<Other Locked='true'/>"));
    QVERIFY(!readBytes(HotkeySetFile::readMetadata, ""));
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
    QBuffer buffer;
    buffer.open(QIODevice::ReadWrite);
    QCOMPARE(BaseHotkeyFile::write(buffer, {{{1, s("x")}, {s("A"), text}, {}}}), writable);
    QCOMPARE(writeSet(buffer, {assign(text)}), writable);
    QCOMPARE(buffer.data().isEmpty(), !writable); // nothing half

    // What comes after such a text is no reason to lose a set: it is written without.
    QBuffer described;
    described.open(QIODevice::ReadWrite);
    QVERIFY(writeSet(described, {assign(s("x"), s("D") + text)}));
    const auto content = readBytes(HotkeySetFile::read, described.data());
    QVERIFY(!content.error);
    QCOMPARE(content.steps.at(0).description(), writable ? s("D") + text : s("D"));
}

void TestHotkeyCodecs::reportsFailingDevice()
{
    FailDevice device(40);
    QVERIFY(!BaseHotkeyFile::write(device, {{{1, s("x")}, {s("A")}, {}}}));
    FailDevice other(40);
    QVERIFY(!writeSet(other, {assign(s("x"))}));
}

QTEST_GUILESS_MAIN(TestHotkeyCodecs)
#include "tst_HotkeyCodecs.moc"
