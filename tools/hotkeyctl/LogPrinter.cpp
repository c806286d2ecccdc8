#include "LogPrinter.h"

#include "TextOutput.h"

#include <UiCustomizations/QvelMessageLog.h>

#include <QTextStream>

#include <algorithm>

namespace HotkeyCtl {

LogPrinter::LogPrinter(QTextStream &stream, int level) : m_stream(stream), m_level(level)
{
    dropAllButErrors(false);
    m_connection = QObject::connect(&CUI::QvelMessageLog::getInstance(),
                                    &CUI::QvelMessageLog::messageLogged,
                                    [this](const QString &line) { takeLine(line); });
}

LogPrinter::~LogPrinter()
{
    QObject::disconnect(m_connection);
    CUI::QvelMessageLog::getInstance().setMessageLogLevel(CUI::QvelMessageLog::Warning);
}

void LogPrinter::dropAllButErrors(bool drop)
{
    const int level =
            drop ? CUI::QvelMessageLog::Error : std::max<int>(m_level, CUI::QvelMessageLog::Error);
    CUI::QvelMessageLog::getInstance().setMessageLogLevel(
            static_cast<CUI::QvelMessageLog::MessageType>(level));
}

void LogPrinter::takeLine(const QString &line)
{
    const QLatin1String error("Error: ");
    if (line.startsWith(error)) {
        ++m_errorCount;
        m_lastError = line.mid(error.size());
    }
    if (m_level == 0)
        return;
    // Some messages have several lines, but they also name files in whatever way these are called.
    for (const QString &part : line.split(QLatin1Char('\n')))
        m_stream << printable(part) << '\n';
}

} // namespace HotkeyCtl
