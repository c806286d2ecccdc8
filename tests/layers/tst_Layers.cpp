#include "Text.h"

#include <QDirIterator>
#include <QFile>
#include <QRegularExpression>
#include <QtTest>

/// What neither the include folders of the rooms nor the link line prove.
class LayersTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void onlyPlatformSourcesAskForTheSystem();
};

void LayersTest::onlyPlatformSourcesAskForTheSystem()
{
    static const QRegularExpression condition(s(R"(^\s*#\s*(if|ifdef|ifndef|elif)\b)"),
                                              QRegularExpression::MultilineOption);
    int count = 0;
    for (const char *folder : {"src", "examples", "tools"}) {
        QDirIterator files(s(CUI_SOURCE_DIR "/") + s(folder), {s("*.h"), s("*.cpp")}, QDir::Files,
                           QDirIterator::Subdirectories);
        while (files.hasNext()) {
            QFile file(files.next());
            if (file.fileName().contains(s("/Platform/"))
                || file.fileName().endsWith(s("UiCustomizationsExport.h")))
                continue;
            QVERIFY(file.open(QIODevice::ReadOnly));
            QVERIFY2(!condition.match(QString::fromUtf8(file.readAll())).hasMatch(),
                     qPrintable(file.fileName()));
            ++count;
        }
    }
    QVERIFY(count > 100);
}

QTEST_GUILESS_MAIN(LayersTest)

#include "tst_Layers.moc"
