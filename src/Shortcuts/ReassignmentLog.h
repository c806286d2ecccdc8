#pragma once

#include "ActionIdentifier.h"
#include "LazyLog.h"

namespace CUI {

/// Warns that @p shortcut moves from one action to another of its context.
inline void logReassignment(const QString &shortcut, const ActionIdentifier &from,
                            const ActionIdentifier &to)
{
    logLazily(QvelMessageLog::Warning, [&] {
        return QStringLiteral("Removing existing shortcut '%1' from '%2' and assigning it to '%3'.")
                .arg(shortcut, from.toString(), to.toString());
    });
}

} // namespace CUI
