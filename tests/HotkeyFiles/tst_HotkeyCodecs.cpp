#include "BaseHotkeyFile.h"
#include "HotkeySetFile.h"
#include "Text.h"
#include "XmlDocument.h"

#include <QBuffer>
#include <QTextCodec>
#include <QtTest>

using CUI::ShortcutTransformation;
namespace BaseHotkeyFile = CUI::BaseHotkeyFile;
namespace HotkeySetFile = CUI::HotkeySetFile;

namespace {

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

} // namespace

class TestHotkeyCodecs : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void reads_data();
    void reads();
    void readsMetadata_data();
    void readsMetadata();
    void refusesCharactersThatXmlCannotHold_data();
    void refusesCharactersThatXmlCannotHold();
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
        const auto content = BaseHotkeyFile::read(CUI::XmlDocument(document));
        QTEST(text(content.entries, content.error), "content");
    } else {
        const auto content = HotkeySetFile::read(CUI::XmlDocument(document));
        QTEST(text(content.steps, content.error), "content");
    }
}

void TestHotkeyCodecs::readsMetadata_data()
{
    QTest::addColumn<QByteArray>("document");
    QTest::addColumn<QString>("description"); // null when there is no metadata

    const auto row = [](const char *encoding, const QByteArray &bytes, const char *text) {
        const QByteArray declaration =
                "<?xml version='1.0' encoding='" + QByteArray(encoding) + "'?>\n";
        QTest::newRow(encoding) << declaration
                                           + "<VelHotkeyTransformations Locked='1' Description='"
                                           + bytes + "'>"
                                << s(text);
    };
    row("Shift_JIS", "\x83\x4c\x81\x5b", "キー");
    row("gb18030", "\xa8\xa2", "á");
    row("cp1252", "\x80", "€");
    // Half of the character is the byte of a carriage return.
    const QString wide = s("<?xml version='1.0' encoding='UTF-16'?>\r\n"
                           "<VelHotkeyTransformations\r\nLocked='true' Description='\u010d'/>");
    QTest::newRow("UTF-16") << QTextCodec::codecForName("UTF-16")->fromUnicode(wide) << s("\u010d");
    QTest::newRow("other root") << QByteArray("<Other Locked='true'/>") << QString();
    QByteArray attributes;
    for (int i = 0; i < 60000; ++i)
        attributes += " a" + QByteArray::number(i) + "=''";
    QTest::newRow("refused") << "<VelHotkeyTransformations Locked='1'" + attributes + "/>"
                             << QString();
}

void TestHotkeyCodecs::readsMetadata()
{
    QFETCH(QByteArray, document);
    QFETCH(QString, description);
    const auto metadata = HotkeySetFile::readMetadata(CUI::XmlDocument(document));
    QCOMPARE(metadata.has_value(), !description.isNull());
    if (metadata) {
        QCOMPARE(metadata->description, description);
        QVERIFY(metadata->locked);
    }
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
    const auto content = HotkeySetFile::read(CUI::XmlDocument(described.data()));
    QVERIFY(!content.error);
    QCOMPARE(content.steps.at(0).description(), writable ? s("D") + text : s("D"));
}

QTEST_GUILESS_MAIN(TestHotkeyCodecs)
#include "tst_HotkeyCodecs.moc"
