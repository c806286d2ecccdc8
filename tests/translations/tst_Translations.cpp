#include "TranslationCheck.h"

#include "TestHost.h"

#include <QSet>
#include <QTemporaryDir>
#include <QtTest>

namespace {

QString s(const char *text)
{
    return QString::fromUtf8(text);
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

QString keyOf(const TranslatedText &text)
{
    return text.context + s(": ") + text.source;
}

} // namespace

/// The translations fit the texts that the sources have now.
class TestTranslations : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void areComplete_data() { addLanguages(); }
    void areComplete();
    void keepTheForm_data() { addLanguages(); }
    void keepTheForm();
    void callHotkeysOneName_data() { addLanguages(); }
    void callHotkeysOneName();
    void sayInFullWhatTheSourceAbbreviates_data() { addLanguages(); }
    void sayInFullWhatTheSourceAbbreviates();
    void includeEnglishForTextsThatAreThere();

    // The checks themselves
    void formFaultsAreFound_data();
    void formFaultsAreFound();
    void newAndVanishedTextsAreFound();

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

void TestTranslations::areComplete()
{
    for (const TranslatedText &text : texts()) {
        const QString complaint = complaintAboutState(text);
        QVERIFY2(complaint.isEmpty(), qPrintable(keyOf(text) + s(" -> ") + complaint));
    }
}

void TestTranslations::keepTheForm()
{
    for (const TranslatedText &text : texts()) {
        const QString complaint = complaintAboutForm(text);
        QVERIFY2(complaint.isEmpty(), qPrintable(keyOf(text) + s(" -> ") + complaint));
    }
}

void TestTranslations::callHotkeysOneName()
{
    QFETCH(QString, hotkey);
    const QRegularExpression word(s("hotkey|shortcut"), QRegularExpression::CaseInsensitiveOption);
    int found = 0;
    for (const TranslatedText &text : texts()) {
        if (!text.source.contains(word))
            continue;
        ++found;
        QVERIFY2(text.translation.contains(hotkey, Qt::CaseInsensitive),
                 qPrintable(keyOf(text) + s(" -> ") + text.translation));
    }
    QVERIFY(found > 30);
}

void TestTranslations::sayInFullWhatTheSourceAbbreviates()
{
    QSet<QString> abbreviated;
    for (const TranslatedText &english : readTranslations(englishFile))
        abbreviated << keyOf(english);
    for (const TranslatedText &text : texts()) {
        if (abbreviated.contains(keyOf(text)))
            QVERIFY2(!text.translation.contains(s("...")), qPrintable(keyOf(text)));
    }
}

void TestTranslations::includeEnglishForTextsThatAreThere()
{
    QSet<QString> used;
    const QString anyLanguage = m_folder.filePath(fileName(s(languages[0].locale)));
    for (const TranslatedText &text : readTranslations(anyLanguage)) {
        if (text.type.isEmpty())
            used << keyOf(text);
    }
    const QList<TranslatedText> english = readTranslations(englishFile);
    QVERIFY(!english.isEmpty());
    for (const TranslatedText &text : english) {
        QVERIFY2(used.contains(keyOf(text)), qPrintable(keyOf(text)));
        QVERIFY2(complaintAboutState(text).isEmpty(), qPrintable(keyOf(text)));
        QVERIFY2(!text.translation.contains(s("...")), qPrintable(keyOf(text)));
    }
}

void TestTranslations::formFaultsAreFound_data()
{
    QTest::addColumn<QString>("source");
    QTest::addColumn<QString>("translation");
    QTest::addColumn<QString>("complaint");
    const auto row = [](const char *source, const char *translation, const char *complaint) {
        QTest::addRow("%s -> %s", source, translation)
                << s(source) << s(translation) << s(complaint);
    };
    row("%1 in %2", "%2 hat %1", "");
    row("%1 in %2", "%1 hat %1", "has other placeholders");
    row("%1 in %2", "hat %1", "has other placeholders");
    row("Plain", "100 %1", "has other placeholders");
    row("&Save", "Sp&eichern", "");
    row("&Save", "Speichern", "has other mnemonic");
    row("Save", "&Speichern", "has other mnemonic");
    row("Save && close", "Speichern && beenden", "");
    row("&Save", "Speichern && beenden", "has other mnemonic");
    row("One.\n\nTwo.\n", "Eins.\n\nZwei.\n", "");
    row("One.\n\nTwo.\n", "Eins.\nZwei.\n", "has other line breaks");
    row("Set (*.%1)", "Satz (.%1)", "has other file pattern");
    row("Zarvi Set", "Sarvi-Satz", "has other product");
    row("Save As...", "Speichern unter...", "");
    row("Search... action", "Suche... Aktion", "has an ellipsis");
}

void TestTranslations::formFaultsAreFound()
{
    QFETCH(QString, source);
    QFETCH(QString, translation);
    QTEST(complaintAboutForm({QString(), source, translation, QString()}), "complaint");
}

void TestTranslations::newAndVanishedTextsAreFound()
{
    const QByteArray call("const char *text = QT_TRANSLATE_NOOP(\"Box\", \"New\");\n");
    const QByteArray ts("<!DOCTYPE TS><TS version='2.1' language='de'><context><name>Box</name>"
                        "<message><source>Gone</source><translation>Weg</translation></message>"
                        "</context></TS>");
    TestHost host;
    host.write(s("box.cpp"), call);
    const QString file = host.write(s("box.ts"), ts);
    QCOMPARE(updateTranslations(host.path(s(".")), {file}), QString());
    QStringList found;
    for (const TranslatedText &text : readTranslations(file))
        found << text.source + QLatin1Char(' ') + complaintAboutState(text);
    found.sort();
    QCOMPARE(found, QStringList({s("Gone is vanished"), s("New is unfinished")}));
}

QTEST_GUILESS_MAIN(TestTranslations)
#include "tst_Translations.moc"
