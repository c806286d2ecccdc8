#pragma once

#include "QvelMessageLog.h"

namespace CUI {

/// Logs what @p makeText returns, and calls it only when the message passes the log's level.
template <typename MakeText>
void logLazily(QvelMessageLog::MessageType type, MakeText makeText)
{
    QvelMessageLog &log = QvelMessageLog::getInstance();
    if (log.isLogged(type))
        log.logMessage(makeText(), type);
}

} // namespace CUI
