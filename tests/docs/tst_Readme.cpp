#include "TestHost.h"

#include <QtTest>

/// The README shows code that is built and run.
class TestReadme : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void showsCodeOfTheExamples();
};

void TestReadme::showsCodeOfTheExamples()
{
    const QString source = QStringLiteral(CUI_SOURCE_DIR);
    const QByteArray readme = TestHost::read(source + QStringLiteral("/README.md"));
    const QByteArray fence("```cpp\n");
    int end = 0;
    for (const QString &name : {QStringLiteral("binder"), QStringLiteral("minimal")}) {
        const QByteArray example =
                TestHost::read(source + QStringLiteral("/examples/%1/main.cpp").arg(name));
        const int fenceStart = readme.indexOf(fence, end);
        QVERIFY(fenceStart >= 0);
        const int start = fenceStart + fence.size();
        end = readme.indexOf("```", start);
        const QByteArray code = readme.mid(start, end - start);
        QVERIFY(code.startsWith("int main("));
        QVERIFY2(example.endsWith(code),
                 qPrintable(QStringLiteral("README.md and examples/%1 differ").arg(name)));
        end += 3;
    }
    QCOMPARE(readme.indexOf(fence, end), -1);
}

QTEST_GUILESS_MAIN(TestReadme)
#include "tst_Readme.moc"
