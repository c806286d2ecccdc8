#include "LogPrinter.h"

#include <UiCustomizations/QvelMessageLog.h>

#include <QTextStream>

#include <algorithm>

namespace HotkeyCtl {

LogPrinter::LogPrinter(QTextStream &stream, int level) : m_stream(stream), m_silent(level == 0)
{
    CUI::QvelMessageLog &log = CUI::QvelMessageLog::getInstance();
    log.setMessageLogLevel(static_cast<CUI::QvelMessageLog::MessageType>(
            std::max<int>(level, CUI::QvelMessageLog::Error)));
    m_connection = QObject::connect(&log, &CUI::QvelMessageLog::messageLogged,
                                    [this](const QString &line) { takeLine(line); });
}

LogPrinter::~LogPrinter()
{
    QObject::disconnect(m_connection);
    CUI::QvelMessageLog::getInstance().setMessageLogLevel(CUI::QvelMessageLog::Warning);
}

void LogPrinter::takeLine(const QString &line)
{
    const QLatin1String error("Error: ");
    if (line.startsWith(error)) {
        ++m_errorCount;
        m_lastError = line.mid(error.size());
    }
    if (!m_silent)
        m_stream << line << '\n';
}

} // namespace HotkeyCtl
