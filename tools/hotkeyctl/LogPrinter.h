#pragma once

#include <QObject>
#include <QString>

class QTextStream;

namespace HotkeyCtl {

/// Prints the lines of the library's log while it lives, and counts the errors among them. The
/// log's level is Warning again afterwards.
class LogPrinter
{
public:
    /// @p level is the least severe type that is printed, 0 for none. Errors are counted at any.
    LogPrinter(QTextStream &stream, int level);
    ~LogPrinter();
    LogPrinter(const LogPrinter &) = delete;
    LogPrinter &operator=(const LogPrinter &) = delete;

    /// Drops everything but errors until the next call with false.
    void dropAllButErrors(bool drop);

    int errorCount() const { return m_errorCount; }
    /// The last error, without the word in front.
    QString lastError() const { return m_lastError; }

private:
    void takeLine(const QString &line);

    QTextStream &m_stream;
    int m_level;
    int m_errorCount = 0;
    QString m_lastError;
    QMetaObject::Connection m_connection;
};

} // namespace HotkeyCtl
