#include "OneTextTranslator.h"
#include "TestHost.h"
#include "Text.h"

#include <UiCustomizations/HotkeySheet.h>
#include <UiCustomizations/QvelActionItemModel.h>
#include <UiCustomizations/QvelMessageLog.h>
#include <UiCustomizations/QvelShortcutManager.h>
#include <UiCustomizations/QvelSortFilterProxyModel.h>

#include <QBuffer>
#include <QCryptographicHash>
#include <QPdfWriter>
#include <QXmlStreamReader>
#include <QtTest>

#include <random>
#include <set>

using CUI::ActionFilter;
using CUI::HotkeySheet;
using Proxy = CUI::QvelSortFilterProxyModel;

/// What is written is read back by plain readers of each format.
class TestHotkeySheet : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void namesStayText_data();
    void namesStayText();
    void namesKeysInTheUsersLanguage();
    void listsWhatTheTableLists();
    void pdfHasBookmarks();
    void showsTheKeyboard();
    void longNamesFillPages();
};

namespace {

std::set<QString> identifiers(const HotkeySheet &sheet)
{
    std::set<QString> found;
    for (const HotkeySheet::Context &context : sheet.contexts()) {
        for (const HotkeySheet::Category &category : context.categories) {
            for (const HotkeySheet::Entry &entry : category.entries)
                found.insert(entry.identifier.toString());
        }
    }
    return found;
}

/// The texts of the elements; fails when the file is no XML or its policy not that of its script.
QStringList textsOfHtml(const QByteArray &html, const QStringList &elements)
{
    QXmlStreamReader xml(html);
    QString policy;
    QStringList texts;
    while (!xml.atEnd()) {
        if (xml.readNext() != QXmlStreamReader::StartElement)
            continue;
        if (xml.attributes().hasAttribute(s("http-equiv")))
            policy = xml.attributes().value(s("content")).toString();
        if (xml.name() == s("script") || xml.name() == s("style")) {
            const QByteArray contents = xml.readElementText().toUtf8();
            const auto hash = QCryptographicHash::hash(contents, QCryptographicHash::Sha256);
            if (contents.isEmpty() || !policy.contains(QString::fromLatin1(hash.toBase64())))
                return {s("the policy forbids the script")};
        } else if (elements.contains(xml.name().toString())) {
            texts << xml.readElementText();
        }
    }
    return xml.hasError() ? QStringList(xml.errorString()) : texts;
}

/// The fields of the last record.
QStringList lastRecord(const QByteArray &csv)
{
    QString text = QString::fromUtf8(csv);
    QStringList fields;
    QString field;
    bool isQuoted = false;
    for (int i = 0; i < text.size(); ++i) {
        if (text[i] == QLatin1Char('"') && isQuoted && text.mid(i + 1, 1) == s("\""))
            field += text[i++];
        else if (text[i] == QLatin1Char('"'))
            isQuoted = !isQuoted;
        else if (!isQuoted && (text[i] == QLatin1Char(',') || text[i] == QLatin1Char('\r')))
            fields << std::exchange(field, QString());
        else if (!isQuoted && text[i] == QLatin1Char('\n') && i + 1 < text.size())
            fields.clear();
        else if (isQuoted)
            field += text[i];
    }
    return fields;
}

/// What GitHub's Markdown shows of the text: pairs of a backslash and a sign are that sign, and
/// a sign that is not escaped but means something ends it.
QString shownOfMarkdown(QString text)
{
    QString shown;
    for (int i = 0; i < text.size() && !s("*_`[]<>&|~#$").contains(text[i]); ++i)
        shown += text[i] == QLatin1Char('\\') ? text[++i] : text[i];
    return shown;
}

} // namespace

void TestHotkeySheet::namesStayText_data()
{
    QTest::addColumn<QString>("shown"); // as HTML and Markdown have it
    QTest::addColumn<QString>("field"); // as CSV has it
    const auto row = [](const char *name, const char *shown = nullptr,
                        const char *field = nullptr) {
        QTest::newRow(name) << s(shown == nullptr ? name : shown)
                            << s(field == nullptr ? name : field);
    };
    row("<script>alert('x')</script> & &lt; ]]>");
    row("\"a\", 'b' \\| | `c` *d* _e_ ~f~ $g$");
    row("![picture](https://example.com/x.png) #");
    row("two\r\nlines", "two  lines", "two\r\nlines");
    row("=HYPERLINK(1)", nullptr, "'=HYPERLINK(1)");
    row("\xEF\xBC\x9D"
        "1+1",
        nullptr,
        "'\xEF\xBC\x9D"
        "1+1");
    row("@");
    row("\x01\x1B[31m red", "  [31m red");
    row("日本語 – Straße");
}

void TestHotkeySheet::namesStayText()
{
    QFETCH(QString, shown);
    QFETCH(QString, field);
    const QString name = s(QTest::currentDataTag());
    const TestHost host;
    host.registry()->addActionContext(1, name);
    host.registry()->addAction({1, name}, name, 1, s("Of ") + name, false);
    CUI::QvelShortcutManager store;
    store.assignShortcut({1, name}, s("Ctrl+,"), name);
    HotkeySheet sheet(store, ActionFilter());
    sheet.setTitle(name);

    const QStringList elements = {s("title"), s("h1"), s("h2"), s("h3"), s("dt"), s("kbd")};
    QCOMPARE(textsOfHtml(sheet.toHtml(), elements),
             QStringList({shown, shown, shown, s("Of ") + shown, shown, s("Ctrl+,")}));
    QCOMPARE(lastRecord(sheet.toCsv()).mid(0, 4),
             QStringList({field, s("Of ") + name, field, s("Ctrl+,")}));
    const QStringList lines = QString::fromUtf8(sheet.toMarkdown()).split(QLatin1Char('\n'));
    QCOMPARE(lines.size(), 10);
    QCOMPARE(shownOfMarkdown(lines[2].mid(3)), shown);
    QVERIFY(lines[8].startsWith(s("| ")) && lines[8].endsWith(s(" | `Ctrl+,` |")));
    QCOMPARE(shownOfMarkdown(lines[8].mid(2, lines[8].size() - 15)), shown);
}

void TestHotkeySheet::namesKeysInTheUsersLanguage()
{
    OneTextTranslator translator("QShortcut", "Ctrl", "Strg");
    QCoreApplication::installTranslator(&translator);
    const TestHost host;
    host.registry()->addActionContext(1, s("Edit"));
    host.registry()->addAction({1, s("cut")}, s("Cut"), 1, QString(), false);
    CUI::QvelShortcutManager store;
    store.assignShortcut({1, s("cut")}, s("Ctrl+X"), QString());
    const HotkeySheet sheet(store, ActionFilter());
    QVERIFY(sheet.toHtml().contains("<kbd title=\"Ctrl+X\">Strg+X</kbd>"));
    QVERIFY(sheet.toMarkdown().contains("`Strg+X`"));
    QCOMPARE(lastRecord(sheet.toCsv()).value(3), s("Ctrl+X"));
}

void TestHotkeySheet::listsWhatTheTableLists()
{
    CUI::QvelMessageLog::getInstance().setMessageLogLevel(CUI::QvelMessageLog::MessageType(0));
    const QStringList words = list("Box|box|Move|Über|移動|a|+|(x");
    const QStringList hotkeys =
            list("Ctrl+A|ctrl+a|Ctrl+Shift+A|A|Num+5|Num++|+|Ctrl+,|,|nonsense");
    const QStringList categories = list("Edit|edit|View|");
    std::mt19937 random;
    const auto below = [&random](int limit) { return int(random() % unsigned(limit)); };
    const auto any = [&below](const QStringList &texts) { return texts[below(texts.size())]; };
    const TestHost host;
    for (unsigned long context = 0; context < 3; ++context)
        host.registry()->addActionContext(context, any(categories));
    CUI::QvelShortcutManager store;
    for (int i = 0; i < 60; ++i) {
        const CUI::ActionIdentifier identifier = {1, QString::number(i)};
        host.registry()->addAction(identifier, any(words) + s(" ") + any(words),
                                   static_cast<unsigned long>(below(4)), any(categories), false);
        store.assignShortcut(identifier, any(hotkeys), QString());
        if (i == 30)
            store.applyTransforms();
        store.unassignShortcut({1, QString::number(below(60))}, any(hotkeys), QString());
    }
    CUI::QvelActionItemModel model(&store);
    int listed = 0;
    for (int round = 0; round < 2000; ++round) {
        ActionFilter filter;
        Proxy proxy(&store);
        proxy.setSourceModel(&model);
        if (below(2) == 0) {
            filter.contexts = {static_cast<unsigned long>(below(3))};
            proxy.setFilterSelectedContext(filter.contexts.front());
        }
        if (below(2) == 0) {
            filter.categories << any(categories);
            proxy.setFilterSelectedCategory(filter.categories.first());
        }
        filter.state = static_cast<ActionFilter::State>(below(4));
        proxy.setSelectedHotkeyFilter(static_cast<Proxy::HotkeyFilter>(filter.state));
        filter.searchIn = static_cast<ActionFilter::SearchIn>(below(2));
        proxy.setFilterKeyColumn(static_cast<int>(filter.searchIn));
        filter.search = below(2) == 0 ? any(words + hotkeys) + s(" ") : QString();
        proxy.updateFilterString(filter.search);

        std::vector<CUI::ActionIdentifier> expected;
        for (int row = 0; row < proxy.rowCount(); ++row) {
            const auto index = proxy.mapToSource(proxy.index(row, 0));
            expected.push_back(model.velActionFromModelIdx(index)->identifier());
        }
        listed += proxy.rowCount();
        QCOMPARE(identifiers(HotkeySheet(store, filter)),
                 identifiers(HotkeySheet(store, expected)));
        QCOMPARE(HotkeySheet(store, filter).size(), proxy.rowCount());
    }
    QVERIFY(listed > 2000);
}

namespace {

/// The objects of a PDF file by number, as its cross-reference tables list them; those of an update
/// in place of older ones.
QMap<int, QString> objectsOf(const QByteArray &pdf)
{
    QMap<int, QString> objects;
    int table = pdf.mid(pdf.lastIndexOf("startxref") + 10).split('\n').first().toInt();
    while (table > 0) {
        const int trailer = pdf.indexOf("trailer", table);
        QList<QByteArray> lines = pdf.mid(table, trailer - table).split('\n');
        for (int i = 1; i + 1 < lines.size();) {
            const int first = lines[i].split(' ')[0].toInt();
            const int count = lines[i++].split(' ')[1].toInt();
            for (int number = first; number < first + count; ++number, ++i) {
                const int start = lines[i].left(10).toInt();
                const QByteArray head = QByteArray::number(number) + " 0 obj\n";
                if (number > 0 && !objects.contains(number) && pdf.mid(start).startsWith(head))
                    objects[number] = QString::fromLatin1(
                            pdf.mid(start, pdf.indexOf("endobj", start) - start));
            }
        }
        const int previous = pdf.mid(trailer, 200).indexOf("/Prev ");
        table = previous < 0 ? 0 : pdf.mid(trailer + previous + 6).split('\n').first().toInt();
    }
    return objects;
}

QString captured(const QString &text, const char *pattern)
{
    return QRegularExpression(s(pattern)).match(text).captured(1);
}

QStringList outlineBelow(const QMap<int, QString> &objects, const QString &parent)
{
    QStringList titles;
    for (int item = captured(parent, "/First (\\d+) 0 R").toInt(); item > 0;
         item = captured(objects[item], "/Next (\\d+) 0 R").toInt()) {
        const QByteArray utf16 =
                QByteArray::fromHex(captured(objects[item], "/Title <feff([0-9a-f]*)>").toLatin1());
        QString title;
        for (int i = 0; i + 1 < utf16.size(); i += 2)
            title += QChar(uchar(utf16[i + 1]), uchar(utf16[i]));
        const int page = captured(objects[item], "/Dest \\[(\\d+) 0 R /XYZ").toInt();
        const bool hasPage = objects[page].contains(QRegularExpression(s("/Type /Page\\b")));
        titles << (hasPage ? title : s("a bookmark without a page"))
               << outlineBelow(objects, objects[item]);
    }
    return titles;
}

QStringList outlineOf(const QByteArray &pdf)
{
    const QMap<int, QString> objects = objectsOf(pdf);
    for (const QString &object : objects) {
        if (object.contains(s("/Type /Catalog")))
            return outlineBelow(objects, objects[captured(object, "/Outlines (\\d+) 0 R").toInt()]);
    }
    return {};
}

} // namespace

void TestHotkeySheet::pdfHasBookmarks()
{
    const TestHost host;
    CUI::QvelShortcutManager store;
    QStringList expected;
    for (unsigned long context = 0; context < 3; ++context) {
        host.registry()->addActionContext(context, s("Context %1 時").arg(context));
        expected << s("Context %1 時").arg(context) << s("A") << s("B");
        for (int i = 0; i < 100; ++i)
            host.registry()->addAction({context, QString::number(i)}, s("Action"), context,
                                       i % 2 == 0 ? s("A") : s("B"), false);
    }
    const QByteArray pdf = HotkeySheet(store, ActionFilter()).toPdf(QPageSize(QPageSize::A5));
    QCOMPARE(outlineOf(pdf), expected);
    QVERIFY(pdf.count("/Type /Page\n") > 3);

    const QString reader = QStandardPaths::findExecutable(s("pdftotext"));
    if (reader.isEmpty())
        return;
    QProcess process;
    process.start(reader, {s("-"), s("-")});
    process.write(pdf);
    process.closeWriteChannel();
    QVERIFY(process.waitForFinished());
    const QString text = QString::fromUtf8(process.readAllStandardOutput());
    QCOMPARE(text.count(s("Action")), 300);
    QVERIFY2(text.contains(s("Page 1 of ")) && text.contains(s("Context 2")), qPrintable(text));
}

void TestHotkeySheet::showsTheKeyboard()
{
    const QString name = s("<script>alert('x')</script> & ]]>");
    const TestHost host;
    CUI::QvelShortcutManager store;
    for (unsigned long context = 1; context < 3; ++context) {
        host.registry()->addActionContext(context, s("Context %1").arg(context));
        host.registry()->addAction({1, QString::number(context)}, name, context, QString(), false);
    }
    for (const char *hotkey : {"Ctrl+Shift+X", "Alt+F3", "Ctrl+B", "F2"})
        store.assignShortcut({1, s("1")}, s(hotkey), name);
    store.assignShortcut({1, s("2")}, s("Shift+F2"), name); // of a context that is not listed
    ActionFilter filter;
    filter.contexts = {1};
    HotkeySheet sheet(store, filter);
    QVERIFY(!sheet.toHtml().contains("<svg"));
    CUI::HotkeyKeyboard keyboard;
    keyboard.readHotkeys(store);
    sheet.setKeyboard(keyboard);

    const QStringList pictures = list("Without modifiers|Ctrl|Alt|Ctrl+Shift");
    const QByteArray html = sheet.toHtml();
    QCOMPARE(textsOfHtml(html, {s("figcaption")}), pictures);
    const QStringList titles = textsOfHtml(html, {s("title")});
    QVERIFY(titles.contains(s("Ctrl+Shift+X\nTaken\n") + name + s(" (Context 1)")));
    QCOMPARE(html.count("<script"), 1);
    QCOMPARE(html.count("<style"), 1); // the policy knows no other
    QCOMPARE(outlineOf(sheet.toPdf()), QStringList(s("Context 1")) + list("Keyboard") + pictures);
}

void TestHotkeySheet::longNamesFillPages()
{
    const TestHost host;
    host.registry()->addActionContext(1, QString(100000, QLatin1Char('c')));
    for (int i = 0; i < 3; ++i)
        host.registry()->addAction({1, QString::number(i)}, QString(100000, QLatin1Char('W')), 1,
                                   QString(), false);
    CUI::QvelShortcutManager store;
    store.assignShortcut({1, s("1")}, s("Ctrl+X"), QString());
    HotkeySheet sheet(store, ActionFilter());
    CUI::HotkeyKeyboard keyboard;
    keyboard.readHotkeys(store);
    sheet.setKeyboard(keyboard);
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    QPdfWriter tiny(&buffer);
    tiny.setPageSize(QPageSize(QPageSize::A10));
    QVERIFY(sheet.print(tiny));
    QVERIFY(buffer.size() < 200000);
}

QTEST_MAIN(TestHotkeySheet)

#include "tst_HotkeySheet.moc"
