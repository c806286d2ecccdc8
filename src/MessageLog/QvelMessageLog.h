#pragma once

#include "UiCustomizationsExport.h"

#include <QObject>
#include <QString>

#include <memory>

namespace CUI {

class QvelMessageLogPrivate;

/// The one channel through which the library reports to the user.
///
/// The log keeps nothing: a message that passes the level becomes one line and one messageLogged()
/// signal; whoever wants the lines connects to it. User-interface thread only.
class CUI_CORE_EXPORT QvelMessageLog : public QObject
{
    Q_OBJECT
    Q_DECLARE_PRIVATE(QvelMessageLog)
    Q_DISABLE_COPY(QvelMessageLog)

public:
    /// The kinds of message; a lower value is more severe.
    enum MessageType : int {
        Error = 1, ///< logged as "Error: text"
        Warning = 2, ///< logged as "Warning: text"
        Info = 3, ///< logged as the bare text
        Debug = 4, ///< logged as "Debug: text"
    };
    Q_ENUM(MessageType)

    /// The process-wide log, created at the first call and destroyed at process exit.
    static QvelMessageLog &getInstance();

    /// Logs @p text, or drops it silently. The effective type is the more severe of @p type and the
    /// innermost ScopedMessageTypeCap; when it is above the level, nothing happens. Emits
    /// messageLogged() once otherwise. A type outside 1 to 4 that passes is logged without prefix.
    void logMessage(const QString &text, MessageType type);
    /// logMessage() with Error.
    void logErrorMessage(const QString &text);
    /// logMessage() with Warning.
    void logWarningMessage(const QString &text);

    /// True when logMessage() with @p type would emit a line now. Lets a caller skip the
    /// formatting of a text that nobody is going to read.
    bool isLogged(MessageType type) const;

    /// Sets the least severe type that is still logged, from the next message on. Warning at
    /// start; 0 silences the log, Debug lets everything through.
    void setMessageLogLevel(MessageType level);

Q_SIGNALS:
    /// One formatted line, without time stamp and without line break at its end. Emitted once for
    /// each message that passes the level, never for one that does not.
    void messageLogged(const QString &line);

private:
    friend class ScopedMessageTypeCap;

    QvelMessageLog();
    ~QvelMessageLog() override;

    std::unique_ptr<QvelMessageLogPrivate> d_ptr;
};

/// While it lives, nothing is logged as less severe than the cap. A cap inside another one never
/// relaxes the outer. Scopes end in the reverse order of their creation.
class CUI_CORE_EXPORT ScopedMessageTypeCap
{
    Q_DISABLE_COPY(ScopedMessageTypeCap)

public:
    /// A null @p log makes the object do nothing. @p log must outlive it.
    ScopedMessageTypeCap(QvelMessageLog *log, QvelMessageLog::MessageType cap);
    ~ScopedMessageTypeCap();

private:
    QvelMessageLog *m_log;
};

} // namespace CUI
