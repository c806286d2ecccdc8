#include "QvelMessageLog.h"

#include <algorithm>
#include <deque>

namespace CUI {

class QvelMessageLogPrivate
{
public:
    int level = QvelMessageLog::Warning;
    std::deque<int> caps;

    int effectiveType(int type) const { return caps.empty() ? type : std::min(caps.back(), type); }
};

namespace {

QString prefixOf(int type)
{
    switch (type) {
    case QvelMessageLog::Error:
        return QStringLiteral("Error");
    case QvelMessageLog::Warning:
        return QStringLiteral("Warning");
    case QvelMessageLog::Debug:
        return QStringLiteral("Debug");
    default:
        return {};
    }
}

} // namespace

QvelMessageLog::QvelMessageLog() : d_ptr(std::make_unique<QvelMessageLogPrivate>()) { }

QvelMessageLog::~QvelMessageLog() = default;

QvelMessageLog &QvelMessageLog::getInstance()
{
    static QvelMessageLog instance;
    return instance;
}

void QvelMessageLog::logMessage(const QString &text, MessageType type)
{
    Q_D(const QvelMessageLog);
    if (!isLogged(type))
        return;
    const QString prefix = prefixOf(d->effectiveType(type));
    Q_EMIT messageLogged(prefix.isEmpty() ? text : prefix + QLatin1String(": ") + text);
}

void QvelMessageLog::logErrorMessage(const QString &text)
{
    logMessage(text, Error);
}

void QvelMessageLog::logWarningMessage(const QString &text)
{
    logMessage(text, Warning);
}

bool QvelMessageLog::isLogged(MessageType type) const
{
    Q_D(const QvelMessageLog);
    return d->effectiveType(type) <= d->level;
}

void QvelMessageLog::setMessageLogLevel(MessageType level)
{
    Q_D(QvelMessageLog);
    d->level = level;
}

ScopedMessageTypeCap::ScopedMessageTypeCap(QvelMessageLog *log, QvelMessageLog::MessageType cap)
    : m_log(log)
{
    if (m_log == nullptr)
        return;
    QvelMessageLogPrivate *d = m_log->d_func();
    d->caps.push_back(d->effectiveType(cap));
}

ScopedMessageTypeCap::~ScopedMessageTypeCap()
{
    if (m_log != nullptr)
        m_log->d_func()->caps.pop_back();
}

} // namespace CUI
