#include "Text.h"

#include <QProcess>
#include <QSet>
#include <QTemporaryDir>
#include <QXmlStreamReader>
#include <QtTest>

namespace {

/// A text of a translation source (*.ts).
struct TranslatedText {
    QString context;
    QString source;
    QString translation;
    QString type; ///< "unfinished", "vanished", "obsolete", or empty when it is in use

    QString key() const { return context + s(": ") + source; }
};

TranslatedText readMessage(QXmlStreamReader &xml, const QString &context)
{
    TranslatedText text;
    text.context = context;
    while (xml.readNextStartElement()) {
        if (xml.name() == QLatin1String("source")) {
            text.source = xml.readElementText();
        } else if (xml.name() == QLatin1String("translation")) {
            text.type = xml.attributes().value(s("type")).toString();
            text.translation = xml.readElementText();
        } else {
            xml.skipCurrentElement();
        }
    }
    return text;
}

/// All texts of a file; aborts the test when it cannot be read.
QList<TranslatedText> readTranslations(const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        qFatal("cannot read %s", qPrintable(path));
    QXmlStreamReader xml(&file);
    QList<TranslatedText> texts;
    QString context;
    while (!xml.atEnd()) {
        if (xml.readNext() != QXmlStreamReader::StartElement)
            continue;
        if (xml.name() == QLatin1String("name"))
            context = xml.readElementText();
        else if (xml.name() == QLatin1String("message"))
            texts << readMessage(xml, context);
    }
    if (xml.hasError())
        qFatal("%s: %s", qPrintable(path), qPrintable(xml.errorString()));
    return texts;
}

/// Updates translation sources from the C++ sources in a folder, as ./dev translations does, but
/// keeps what has vanished. Returns what the tool says when it fails, else nothing.
QString updateTranslations(const QString &sourceFolder, const QStringList &files)
{
    QProcess tool;
    tool.setProcessChannelMode(QProcess::MergedChannels);
    tool.start(s(CUI_LUPDATE),
               list("-silent|-locations|none") + QStringList{sourceFolder, s("-ts")} + files);
    if (!tool.waitForFinished())
        return tool.errorString();
    return tool.exitCode() == 0 ? QString() : QString::fromLocal8Bit(tool.readAll());
}

/// What the pattern finds, sorted: a translation may put it into another order.
QStringList allMatches(const QString &text, const char *pattern)
{
    QStringList matches;
    QRegularExpressionMatchIterator next = QRegularExpression(s(pattern)).globalMatch(text);
    while (next.hasNext())
        matches << next.next().captured();
    matches.sort();
    return matches;
}

/// What keeps a text from being shown, or what it has lost or gained that must be as in the source:
/// placeholders, the mnemonic, line breaks, a file pattern, the name of a product, an ellipsis that
/// announces a dialog.
QString complaintAbout(const TranslatedText &text)
{
    if (!text.type.isEmpty())
        return s("is ") + text.type;
    if (text.translation.isEmpty())
        return s("is not translated");
    const struct {
        const char *pattern;
        const char *what;
    } kept[] = {
            {"%L?\\d+|%n", "placeholders"},
            // A pair of ampersands is one that is shown.
            {"&(?=[^&\\s])(?<!&&)", "mnemonic"},
            {"\n", "line breaks"},
            {"\\(\\*\\.[^)]*\\)", "file pattern"},
            {"Velstudio|Zarvi", "product"},
    };
    for (const auto &row : kept) {
        if (allMatches(text.source, row.pattern) != allMatches(text.translation, row.pattern))
            return s("has other ") + s(row.what);
    }
    const bool endsOpen = text.source.endsWith(s("..."));
    return text.translation.contains(s("...")) && !endsOpen ? s("has an ellipsis") : QString();
}

const QString sources = s(CUI_SOURCE_DIR) + s("/src");
const QString englishFile =
        s(CUI_SOURCE_DIR) + s("/examples/host/translations/UiCustomizations_en.ts");

const struct {
    const char *locale;
    const char *hotkey; ///< the one word for it, as far as it is the same in every form
} languages[] = {
        {"de-DE", "tastenkürzel"}, {"fr-FR", "raccourci"}, {"ja-JP", "ホットキー"},
        {"ko-KR", "단축키"},       {"pt-BR", "atalho"},    {"zh-CN", "快捷键"},
};

QString fileName(const QString &locale)
{
    return s("UiCustomizations_%1.ts").arg(locale);
}

} // namespace

/// The translations fit the texts that the sources have now.
class TestTranslations : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void fitTheSources_data() { addLanguages(); }
    void fitTheSources();
    void callHotkeysOneName_data() { addLanguages(); }
    void callHotkeysOneName();
    void includeEnglishForTextsThatAreThere();

private:
    static void addLanguages();
    /// The texts of the language, after an update from the sources.
    QList<TranslatedText> texts() const;

    QTemporaryDir m_folder;
};

void TestTranslations::initTestCase()
{
    QStringList copies;
    for (const auto &language : languages) {
        const QString name = fileName(s(language.locale));
        copies << m_folder.filePath(name);
        QVERIFY(QFile::copy(sources + s("/resources/translations/") + name, copies.last()));
    }
    QCOMPARE(updateTranslations(sources, copies), QString());
}

void TestTranslations::addLanguages()
{
    QTest::addColumn<QString>("locale");
    QTest::addColumn<QString>("hotkey");
    for (const auto &language : languages)
        QTest::newRow(language.locale) << s(language.locale) << s(language.hotkey);
}

QList<TranslatedText> TestTranslations::texts() const
{
    QFETCH(QString, locale);
    return readTranslations(m_folder.filePath(fileName(locale)));
}

void TestTranslations::fitTheSources()
{
    QSet<QString> abbreviated; // in the sources, but not in the English that is shown
    for (const TranslatedText &english : readTranslations(englishFile))
        abbreviated << english.key();
    for (const TranslatedText &text : texts()) {
        const QString complaint = complaintAbout(text);
        QVERIFY2(complaint.isEmpty(), qPrintable(text.key() + s(" -> ") + complaint));
        if (abbreviated.contains(text.key()))
            QVERIFY2(!text.translation.contains(s("...")), qPrintable(text.key()));
    }
}

void TestTranslations::callHotkeysOneName()
{
    QFETCH(QString, hotkey);
    const QRegularExpression word(s("hotkey|shortcut"), QRegularExpression::CaseInsensitiveOption);
    int found = 0;
    for (const TranslatedText &text : texts()) {
        // Menus of other systems have the names that these gave them.
        if (!text.source.contains(word) || text.context == s("CUI::HotkeyReservation"))
            continue;
        ++found;
        QVERIFY2(text.translation.contains(hotkey, Qt::CaseInsensitive),
                 qPrintable(text.key() + s(" -> ") + text.translation));
    }
    QVERIFY(found > 30);
}

void TestTranslations::includeEnglishForTextsThatAreThere()
{
    QSet<QString> used;
    const QString anyLanguage = m_folder.filePath(fileName(s(languages[0].locale)));
    for (const TranslatedText &text : readTranslations(anyLanguage)) {
        if (text.type.isEmpty())
            used << text.key();
    }
    const QList<TranslatedText> english = readTranslations(englishFile);
    QVERIFY(!english.isEmpty());
    for (const TranslatedText &text : english) {
        QVERIFY2(used.contains(text.key()), qPrintable(text.key()));
        QVERIFY2(complaintAbout(text).isEmpty(), qPrintable(text.key()));
        QVERIFY2(!text.translation.contains(s("...")), qPrintable(text.key()));
    }
}

QTEST_GUILESS_MAIN(TestTranslations)
#include "tst_Translations.moc"
