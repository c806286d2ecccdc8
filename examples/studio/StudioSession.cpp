#include "StudioSession.h"

#include "MainWindow.h"

#include <UiCustomizations/QvelMessageLog.h>
#include <UiCustomizations/QvelMessageLogWidget.h>

namespace Studio {

StudioSession::StudioSession(const QString &hostDirectory, const QString &userDirectory)
    : m_host(hostDirectory, userDirectory)
{
}

StudioSession::~StudioSession() = default;

bool StudioSession::start()
{
    if (!m_host.load())
        return false;
    CUI::QvelMessageLog &log = CUI::QvelMessageLog::getInstance();
    m_host.paths()->createUserDirectory();
    m_logFile = std::make_unique<CUI::QvelFileMessageLogger>();
    QObject::connect(&log, &CUI::QvelMessageLog::messageLogged, m_logFile.get(),
                     &CUI::QvelFileMessageLogger::logMessage);
    m_window = std::make_unique<MainWindow>(m_host, m_store);
    QObject::connect(&log, &CUI::QvelMessageLog::messageLogged, &m_window->console(),
                     &CUI::QvelMessageLogWidget::append);
    m_store.setKeepsRefusedTransforms(true); // a set of another version loses nothing
    m_store.loadCurrentShortcutConfiguration();
    return true;
}

} // namespace Studio
