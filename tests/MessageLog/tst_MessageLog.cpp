#include "FullDisk.h"
#include "TestHost.h"

#include <UiCustomizations/QvelFileMessageLogger.h>
#include <UiCustomizations/QvelMessageLog.h>

#include <QSignalSpy>
#include <QtTest>

using CUI::QvelFileMessageLogger;
using CUI::QvelMessageLog;
using CUI::ScopedMessageTypeCap;

Q_DECLARE_METATYPE(QVector<int>)

class TestMessageLog : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void filtersAndFormats_data();
    void filtersAndFormats();
    void capsNest();
    void ignoresCapOfNullLog();
    void fileLoggerReplacesOldFile();
    void fileLoggerOpensLate();
    void fileLoggerWithoutFolderKeepsTrying();
    void fileLoggerWritesOnAfterFailure();
    void fileLoggerWithoutPathIsSilent();

private:
    QString logged(int type);
    QvelMessageLog &m_log = QvelMessageLog::getInstance();
};

void TestMessageLog::init()
{
    m_log.setMessageLogLevel(QvelMessageLog::Warning);
}

// The line of the message "50% of %1", or null when there was none.
QString TestMessageLog::logged(int type)
{
    QSignalSpy lines(&m_log, &QvelMessageLog::messageLogged);
    const auto messageType = static_cast<QvelMessageLog::MessageType>(type);
    const bool expected = m_log.isLogged(messageType);
    m_log.logMessage(QStringLiteral("50% of %1"), messageType);
    if (lines.count() != int(expected))
        return QStringLiteral("isLogged() does not agree with logMessage()");
    return lines.isEmpty() ? QString() : lines.at(0).at(0).toString();
}

void TestMessageLog::filtersAndFormats_data()
{
    QTest::addColumn<int>("level");
    QTest::addColumn<QVector<int>>("caps");
    QTest::addColumn<int>("type");
    QTest::addColumn<QString>("line");

    const QString none;
    const QString bare = QStringLiteral("50% of %1");
    const QString warning = QStringLiteral("Warning: 50% of %1");
    QTest::newRow("error") << 2 << QVector<int>() << 1 << "Error: 50% of %1";
    QTest::newRow("warning") << 2 << QVector<int>() << 2 << warning;
    QTest::newRow("info is above warning") << 2 << QVector<int>() << 3 << none;
    QTest::newRow("info") << 3 << QVector<int>() << 3 << bare;
    QTest::newRow("debug is above info") << 3 << QVector<int>() << 4 << none;
    QTest::newRow("debug") << 4 << QVector<int>() << 4 << "Debug: 50% of %1";
    QTest::newRow("errors only") << 1 << QVector<int>() << 2 << none;
    QTest::newRow("silent") << 0 << QVector<int>() << 1 << none;
    QTest::newRow("unknown type") << 2 << QVector<int>() << 0 << bare;
    QTest::newRow("unknown type above the level") << 4 << QVector<int>() << 5 << none;
    QTest::newRow("cap raises") << 2 << QVector<int>{2} << 4 << warning;
    QTest::newRow("cap above the level") << 2 << QVector<int>{3} << 4 << none;
    QTest::newRow("cap at the level") << 3 << QVector<int>{3} << 4 << bare;
    QTest::newRow("cap never lowers") << 4 << QVector<int>{3} << 1 << "Error: 50% of %1";
    QTest::newRow("inner cap cannot relax") << 2 << QVector<int>{2, 3} << 4 << warning;
    QTest::newRow("inner cap can tighten") << 2 << QVector<int>{3, 2} << 4 << warning;
}

void TestMessageLog::filtersAndFormats()
{
    QFETCH(int, level);
    QFETCH(QVector<int>, caps);
    QFETCH(int, type);
    m_log.setMessageLogLevel(static_cast<QvelMessageLog::MessageType>(level));
    std::vector<std::unique_ptr<ScopedMessageTypeCap>> scopes;
    for (const int cap : caps)
        scopes.push_back(std::make_unique<ScopedMessageTypeCap>(
                &m_log, static_cast<QvelMessageLog::MessageType>(cap)));
    QTEST(logged(type), "line");
    while (!scopes.empty())
        scopes.pop_back();
}

void TestMessageLog::capsNest()
{
    {
        const ScopedMessageTypeCap outer(&m_log, QvelMessageLog::Warning);
        {
            const ScopedMessageTypeCap inner(&m_log, QvelMessageLog::Error);
            QVERIFY(logged(QvelMessageLog::Debug).startsWith(QLatin1String("Error")));
        }
        QVERIFY(logged(QvelMessageLog::Debug).startsWith(QLatin1String("Warning")));
    }
    QVERIFY(logged(QvelMessageLog::Debug).isNull());
}

void TestMessageLog::ignoresCapOfNullLog()
{
    const ScopedMessageTypeCap cap(nullptr, QvelMessageLog::Error);
    QVERIFY(logged(QvelMessageLog::Debug).isNull());
}

void TestMessageLog::fileLoggerReplacesOldFile()
{
    TestHost host;
    host.paths()->logFile = host.write(QStringLiteral("log.txt"), "old line\nolder line\n");
    QvelFileMessageLogger logger;
    connect(&m_log, &QvelMessageLog::messageLogged, &logger, &QvelFileMessageLogger::logMessage);
    QCOMPARE(TestHost::read(host.paths()->logFile), QByteArray("old line\nolder line\n"));
    m_log.logWarningMessage(QStringLiteral("one"));
    QCOMPARE(TestHost::read(host.paths()->logFile), QByteArray("Warning: one\n"));
    m_log.logErrorMessage(QStringLiteral("two"));
    QCOMPARE(TestHost::read(host.paths()->logFile), QByteArray("Warning: one\nError: two\n"));
}

void TestMessageLog::fileLoggerOpensLate()
{
    TestHost host;
    host.paths()->logFile = host.path(QStringLiteral("log.txt"));
    {
        QvelFileMessageLogger logger;
    }
    QVERIFY(!QFile::exists(host.paths()->logFile));
}

void TestMessageLog::fileLoggerWithoutFolderKeepsTrying()
{
    TestHost host;
    host.paths()->logFile = host.path(QStringLiteral("later/log.txt"));
    QvelFileMessageLogger logger;
    logger.logMessage(QStringLiteral("lost"));
    QVERIFY(QDir(host.path(QString())).mkdir(QStringLiteral("later")));
    logger.logMessage(QStringLiteral("kept"));
    QCOMPARE(TestHost::read(host.paths()->logFile), QByteArray("kept\n"));
}

void TestMessageLog::fileLoggerWritesOnAfterFailure()
{
    TestHost host;
    host.paths()->logFile = host.path(QStringLiteral("log.txt"));
    QvelFileMessageLogger logger;
    logger.logMessage(QStringLiteral("one"));
    {
        const FullDisk disk(4);
        logger.logMessage(QStringLiteral("lost"));
    }
    logger.logMessage(QStringLiteral("two"));
    QCOMPARE(TestHost::read(host.paths()->logFile), QByteArray("one\ntwo\n"));
}

void TestMessageLog::fileLoggerWithoutPathIsSilent()
{
    static int warnings = 0;
    const QtMessageHandler before = qInstallMessageHandler(
            [](QtMsgType, const QMessageLogContext &, const QString &) { ++warnings; });
    QvelFileMessageLogger logger;
    logger.logMessage(QStringLiteral("nowhere to go"));
    qInstallMessageHandler(before);
    QCOMPARE(warnings, 0);
}

QTEST_GUILESS_MAIN(TestMessageLog)
#include "tst_MessageLog.moc"
