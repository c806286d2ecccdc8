#pragma once

#include "ExitCode.h"
#include "HostCatalogue.h"
#include "LogPrinter.h"

#include <UiCustomizations/QvelShortcutManager.h>

#include <memory>
#include <optional>
#include <unordered_map>

class QTextStream;

namespace Host {
class SampleHost;
}

namespace HotkeyCtl {

/// What the options before the command say.
struct SessionOptions {
    QString hostDirectory;
    QString userDirectory;
    /// The set to work on instead of the current one; empty for none.
    std::optional<QString> set;
    /// 0 to 4: the least severe log line that is printed.
    int logLevel = 2;
    /// The command, for the hint that follows a complaint about its usage.
    QString command;
};

/// One run of a command: its streams, and the host and the hotkeys it works on. Nothing of it
/// changes which set is current, or anything else on disk.
class Session
{
public:
    /// How much of the configuration is in the store.
    enum class Loading {
        Failed, ///< nothing that could be shown
        Incomplete, ///< a base file or the current set is missing
        Complete,
    };

    Session(const SessionOptions &options, QTextStream &out, QTextStream &err);
    ~Session();
    Session(const Session &) = delete;
    Session &operator=(const Session &) = delete;

    QTextStream &out() const { return m_out; }
    const LogPrinter &log() const { return m_log; }

    /// Tells about a problem with the data, for the command to return.
    ExitCode problem(const QString &text) const;
    /// Tells what is wrong with the command line, for the command to return.
    ExitCode wrongUsage(const QString &text) const;

    /// Opens the host, loads its base and the set. Tells what went wrong. A set that the command
    /// line names must load; without the current one there is still the base.
    Loading load();
    /// Opens the host and loads its base alone; false, after telling why, when any of it failed.
    bool loadBase();

    /// \name After load() or loadBase()
    /// @{
    const Host::HostCatalogue &catalogue() const;
    /// Where the host's own sets lie.
    QString presetDirectory() const;
    CUI::QvelShortcutManager &store() { return m_store; }
    /// The action's hotkeys in effect.
    QStringList hotkeys(const CUI::ActionIdentifier &identifier) const;
    /// The action's hotkeys before the set was loaded.
    QStringList baseHotkeys(const CUI::ActionIdentifier &identifier) const;
    /// The action that @p text (1-undo) names; null when there is none.
    const Host::HostCatalogue::Action *findAction(const QString &text) const;
    /// "Undo (1-undo)".
    QString describe(const CUI::ActionIdentifier &identifier) const;
    QString contextName(unsigned long contextId) const;
    /// The contexts with that name, or all of them without one. Nothing when no context has it,
    /// after telling so.
    std::optional<std::vector<Host::HostCatalogue::Context>> contextsNamed(
            const std::optional<QString> &name) const;
    /// @}

private:
    bool openHost();
    bool loadBaseFiles();
    bool loadSet();

    SessionOptions m_options;
    QTextStream &m_out;
    QTextStream &m_err;
    LogPrinter m_log;
    std::unique_ptr<Host::SampleHost> m_host;
    CUI::QvelShortcutManager m_store;
    std::unordered_map<CUI::ActionIdentifier, CUI::QShortcutsList> m_base;
};

} // namespace HotkeyCtl
