#include "Text.h"

#include <VelUtil.h>

#include <QCoreApplication>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>
#include <QTranslator>
#include <QtTest>

#include <iostream>
#include <memory>

using VelSDK::QvelTranslationLoader;

namespace {

QString libraryFile(const QString &locale)
{
    return s(":/__qvel_translations/UiCustomizations_%1.qm").arg(locale);
}

/// A text that no two languages share.
QString shownText()
{
    return QCoreApplication::translate("QvelCustomizeUiDialog", "All Actions");
}

/// The same text in a file of the library, or in the source when the locale is empty.
QString textIn(const QString &locale)
{
    if (locale.isEmpty())
        return s("All Actions");
    QTranslator translator;
    if (!translator.load(libraryFile(locale)))
        qFatal("the library has no %s", qPrintable(locale));
    return translator.translate("QvelCustomizeUiDialog", "All Actions");
}

/// Another library, with files for locales: "pt-AO:ko-KR" is one for Angola that holds Korean,
/// since the library's own loader works as well.
class Sample
{
public:
    explicit Sample(const char *files)
    {
        for (const QString &file : list(files)) {
            const QStringList names = file.split(QLatin1Char(':'));
            QFile::copy(libraryFile(names.at(1)),
                        m_folder.filePath(s("Sample_%1.qm").arg(names.at(0))));
        }
        m_loader = std::make_unique<QvelTranslationLoader>(m_folder.path(), s("Sample"));
    }

private:
    QTemporaryDir m_folder;
    std::unique_ptr<QvelTranslationLoader> m_loader;
};

} // namespace

/// Which of the files that a library has is shown. The library's own files are at hand for it.
class TestTranslationLoader : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup() { QvelTranslationLoader::setLocale(s("en")); }
    void takesTheBestFile_data();
    void takesTheBestFile();
    void followsTheUser_data();
    void followsTheUser();
    void prefersTheCountry_data();
    void prefersTheCountry();
    void showsOneLanguage();
    void endsWithItsLibrary();
};

void TestTranslationLoader::takesTheBestFile_data()
{
    QTest::addColumn<QString>("locale");
    QTest::addColumn<QString>("file");
    const auto row = [](const char *locale, const char *file) {
        QTest::newRow(locale) << s(locale) << s(file);
    };
    row("de-DE", "de-DE");
    row("de_DE.UTF-8", "de-DE");
    row("de", "de-DE");
    row("de-AT", "de-DE");
    row("pt-PT", "pt-BR");
    row("ja", "ja-JP");
    row("ko-KP", "ko-KR");
    row("zh", "zh-CN");
    row("zh-Hans", "zh-CN");
    row("zh-SG", "zh-CN");
    row("zh-TW", "");
    row("zh-HK", "");
    row("zh-Hant", "");
    row("en", "");
    row("en-DE", "");
    row("it", "");
    row("C", "");
}

void TestTranslationLoader::takesTheBestFile()
{
    QFETCH(QString, locale);
    QFETCH(QString, file);
    QvelTranslationLoader::setLocale(s("ko-KR")); // must be gone afterwards
    QCOMPARE(QvelTranslationLoader::setLocale(locale), !file.isEmpty());
    QCOMPARE(shownText(), textIn(file));
}

void TestTranslationLoader::followsTheUser_data()
{
    QTest::addColumn<QString>("locale");
    QTest::addColumn<QString>("languages");
    QTest::addColumn<QString>("file");
    const auto row = [](const char *locale, const char *languages, const char *file) {
        QTest::addRow("%s %s", locale, languages) << s(locale) << s(languages) << s(file);
    };
    row("de_AT.UTF-8", "", "de-DE");
    row("zh_TW.UTF-8", "", "");
    row("C.UTF-8", "", "");
    row("en_US.UTF-8", "ja", "ja-JP");
    row("it_IT.UTF-8", "it:fr:de", "fr-FR");
    row("de_DE.UTF-8", "en_GB:de", "");
}

void TestTranslationLoader::followsTheUser()
{
    QFETCH(QString, locale);
    QFETCH(QString, languages);
    QFETCH(QString, file);
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(s("LC_ALL"), locale);
    environment.insert(s("LANGUAGE"), languages);
    QProcess program;
    program.setProcessEnvironment(environment);
    program.start(QCoreApplication::applicationFilePath(), {s("--show")});
    QVERIFY(program.waitForFinished());
    QCOMPARE(QString::fromUtf8(program.readAllStandardOutput()), textIn(file));
}

void TestTranslationLoader::prefersTheCountry_data()
{
    QTest::addColumn<QString>("locale");
    QTest::addColumn<QString>("contents");
    QTest::newRow("one that is there") << s("pt-PT") << s("fr-FR");
    QTest::newRow("one that is not") << s("pt-MZ") << s("ja-JP");
    QTest::newRow("none") << s("pt") << s("ja-JP");
    QTest::newRow("script of the country") << s("zh-HK") << s("de-DE");
    QTest::newRow("script") << s("zh-Hans-HK") << s("ko-KR");
    QTest::newRow("a language without files") << s("it") << s("pt-BR");
}

void TestTranslationLoader::prefersTheCountry()
{
    const Sample sample("pt-AO:ko-KR|pt-BR:ja-JP|pt-PT:fr-FR|zh-CN:ko-KR|zh-TW:de-DE|en:pt-BR|"
                        "notes:ko-KR");
    QFETCH(QString, locale);
    QFETCH(QString, contents);
    QvelTranslationLoader::setLocale(locale);
    QCOMPARE(shownText(), textIn(contents));
}

// A library that has English only does not speak up while another shows German.
void TestTranslationLoader::showsOneLanguage()
{
    QvelTranslationLoader::setLocale(s("de-DE"));
    const Sample sample("en:ja-JP");
    QCOMPARE(shownText(), textIn(s("de-DE")));
    QVERIFY(QvelTranslationLoader::setLocale(s("en-GB")));
    QCOMPARE(shownText(), textIn(s("ja-JP")));
    QVERIFY(!QvelTranslationLoader::setLocale(s("it")));
    QCOMPARE(shownText(), textIn(s("ja-JP")));
}

void TestTranslationLoader::endsWithItsLibrary()
{
    {
        const Sample sample("it:ja-JP");
        QVERIFY(QvelTranslationLoader::setLocale(s("it")));
        QCOMPARE(shownText(), textIn(s("ja-JP")));
    }
    QCOMPARE(shownText(), textIn(QString()));
    QVERIFY(!QvelTranslationLoader::setLocale(s("it")));
}

int main(int argc, char **argv)
{
    QCoreApplication application(argc, argv);
    if (application.arguments().contains(s("--show"))) {
        std::cout << shownText().toStdString();
        return 0;
    }
    TestTranslationLoader test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_TranslationLoader.moc"
