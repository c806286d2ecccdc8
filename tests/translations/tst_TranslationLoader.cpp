#include "Text.h"

#include <VelUtil.h>

#include <QCoreApplication>
#include <QProcess>
#include <QTranslator>
#include <QtTest>

#include <iostream>

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
};

void TestTranslationLoader::takesTheBestFile_data()
{
    QTest::addColumn<QString>("locale");
    QTest::addColumn<QString>("file");
    const auto row = [](const char *locale, const char *file) {
        QTest::newRow(locale) << s(locale) << s(file);
    };
    row("de-DE", "de-DE");
    row("de", "de-DE");
    row("pt-PT", "pt-BR");
    row("zh", "zh-CN");
    row("zh-Hans", "zh-CN");
    row("zh-TW", "");
    row("zh-Hant", "");
    row("en", "");
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

// A library that has English only does not speak up while another shows German.
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
