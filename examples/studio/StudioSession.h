#pragma once

#include "SampleHost.h"

#include <UiCustomizations/QvelFileMessageLogger.h>
#include <UiCustomizations/QvelShortcutManager.h>

#include <QString>

#include <memory>

namespace Studio {

class MainWindow;

/// The parts of the application in the order of their creation: the host, the log, the store
/// and the window. Ends in the reverse order.
class StudioSession
{
public:
    StudioSession(const QString &hostDirectory, const QString &userDirectory);
    ~StudioSession();
    StudioSession(const StudioSession &) = delete;
    StudioSession &operator=(const StudioSession &) = delete;

    /// Loads the host and its hotkeys and makes the window, which is not shown yet. False when the
    /// host is not usable; errorText() then says why.
    bool start();
    QString errorText() const { return m_host.errorText(); }
    /// After a start() that has returned true.
    MainWindow &window() const { return *m_window; }
    CUI::QvelShortcutManager &store() { return m_store; }

private:
    Host::SampleHost m_host;
    std::unique_ptr<CUI::QvelFileMessageLogger> m_logFile;
    CUI::QvelShortcutManager m_store;
    std::unique_ptr<MainWindow> m_window;
};

} // namespace Studio
