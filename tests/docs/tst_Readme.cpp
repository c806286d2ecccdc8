#include "TestHost.h"

#include <QtTest>

/// The README shows code that is built and run.
class TestReadme : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void showsTheMinimalHost();
};

void TestReadme::showsTheMinimalHost()
{
    const QString source = QStringLiteral(CUI_SOURCE_DIR);
    const QByteArray readme = TestHost::read(source + QStringLiteral("/README.md"));
    const QByteArray example =
            TestHost::read(source + QStringLiteral("/examples/minimal/main.cpp"));
    const QByteArray fence("```cpp\n");
    const int start = readme.indexOf(fence) + fence.size();
    const QByteArray code = readme.mid(start, readme.indexOf("```", start) - start);
    QVERIFY(code.startsWith("int main("));
    QVERIFY2(example.endsWith(code), "README.md and examples/minimal/main.cpp differ");
}

QTEST_GUILESS_MAIN(TestReadme)
#include "tst_Readme.moc"
