#include "FullDisk.h"
#include "TestHost.h"
#include "Text.h"

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
    void fileLoggerReplacesOldFile();
    void fileLoggerWritesOnAfterFailure();

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
    m_log.logMessage(s("50% of %1"), messageType);
    if (lines.count() != int(expected))
        return s("isLogged() does not agree with logMessage()");
    return lines.isEmpty() ? QString() : lines.at(0).at(0).toString();
}

void TestMessageLog::filtersAndFormats_data()
{
    QTest::addColumn<int>("level");
    QTest::addColumn<QVector<int>>("caps");
    QTest::addColumn<int>("type");
    QTest::addColumn<QString>("line");

    using Caps = QVector<int>;
    const auto row = [](const char *name, int level, const Caps &caps, int type, const char *line) {
        QTest::newRow(name) << level << caps << type << s(line);
    };
    row("error", 2, {}, 1, "Error: 50% of %1");
    row("warning", 2, {}, 2, "Warning: 50% of %1");
    row("info", 3, {}, 3, "50% of %1");
    row("debug", 4, {}, 4, "Debug: 50% of %1");
    row("unknown type", 2, {}, 0, "50% of %1");
    row("unknown type above the level", 4, {}, 5, "");
    row("cap raises", 2, {2}, 4, "Warning: 50% of %1");
    row("cap never lowers", 4, {3}, 1, "Error: 50% of %1");
    row("inner cap cannot relax", 2, {2, 3}, 4, "Warning: 50% of %1");
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

void TestMessageLog::fileLoggerReplacesOldFile()
{
    TestHost host;
    host.paths()->logFile = host.write(s("log.txt"), "old line\nolder line\n");
    QvelFileMessageLogger logger;
    connect(&m_log, &QvelMessageLog::messageLogged, &logger, &QvelFileMessageLogger::logMessage);
    QCOMPARE(TestHost::read(host.paths()->logFile), QByteArray("old line\nolder line\n"));
    m_log.logWarningMessage(s("one"));
    QCOMPARE(TestHost::read(host.paths()->logFile), QByteArray("Warning: one\n"));
    m_log.logErrorMessage(s("two"));
    QCOMPARE(TestHost::read(host.paths()->logFile), QByteArray("Warning: one\nError: two\n"));
}

void TestMessageLog::fileLoggerWritesOnAfterFailure()
{
    const TestHost host;
    host.paths()->logFile = host.path(s("later/log.txt"));
    QvelFileMessageLogger logger;
    logger.logMessage(s("lost for want of a folder"));
    QVERIFY(QDir(host.path(QString())).mkdir(s("later")));
    logger.logMessage(s("one"));
    {
        const FullDisk disk(4);
        logger.logMessage(s("lost for want of room"));
    }
    logger.logMessage(s("two"));
    QCOMPARE(TestHost::read(host.paths()->logFile), QByteArray("one\ntwo\n"));
}

QTEST_GUILESS_MAIN(TestMessageLog)
#include "tst_MessageLog.moc"
