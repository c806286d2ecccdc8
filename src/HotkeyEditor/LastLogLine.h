#pragma once

#include "QvelMessageLog.h"

#include <QObject>
#include <QString>

namespace CUI {

/// Remembers the last line that is logged while it lives.
class LastLogLine
{
public:
    LastLogLine()
        : m_connection(QObject::connect(&QvelMessageLog::getInstance(),
                                        &QvelMessageLog::messageLogged,
                                        [this](const QString &line) { m_line = line; }))
    {
    }
    ~LastLogLine() { QObject::disconnect(m_connection); }
    LastLogLine(const LastLogLine &) = delete;
    LastLogLine &operator=(const LastLogLine &) = delete;
    QString text() const { return m_line; }

private:
    QString m_line;
    QMetaObject::Connection m_connection;
};

} // namespace CUI
