#pragma once

#include "ExitCode.h"
#include "HostCatalogue.h"
#include "HostPathManager.h"
#include "LogPrinter.h"

#include <UiCustomizations/QvelShortcutManager.h>

#include <memory>
#include <optional>

class QTextStream;

namespace Host {
class SampleHost;
}

namespace HotkeyCtl {

/// What the options before the command say.
struct SessionOptions {
    QString hostDirectory;
    QString userDirectory;
    /// The set to work on instead of the current one, by path or name; empty for none.
    std::optional<QString> set;
    /// 0 to 4: the least severe log line that is printed.
    int logLevel = 2;
    /// The command, for the hint that follows a complaint about its usage.
    QString command;
};

/// One run of a command: its streams, and the host and the hotkeys it works on. Unless it is opened
/// with a record on disk, nothing of it changes which set is current.
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
    LogPrinter &log() { return m_log; }

    /// Reports a problem with the data. Returns what the command has to return.
    ExitCode problem(const QString &text) const;
    /// Reports what is wrong with the command line. Returns what the command has to return.
    ExitCode wrongUsage(const QString &text) const;

    /// Opens the host and loads nothing; false, after reporting why, if it is not usable.
    bool open(Host::HostPathManager::Record record = Host::HostPathManager::Record::InMemory);
    /// Uninstalls what open() has installed.
    void close();
    /// Opens the host, loads its base and the set. Reports what went wrong. A set that the command
    /// line names must load; without the current one there is still the base.
    Loading load();
    /// Opens the host and loads its base alone; false, after reporting why, if any of it failed.
    bool loadBase();
    /// Puts the set @p path on top of the loaded base, in place of the loaded one. False,
    /// after reporting why, if it cannot be loaded.
    bool loadSet(const QString &path);
    /// \name After load(), loadBase() or open()
    /// @{
    const Host::HostCatalogue &catalogue() const;
    Host::HostPathManager &paths() const;
    /// The directory of the host's own sets.
    QString presetDirectory() const;
    CUI::QvelShortcutManager &store() { return m_store; }
    /// The action's hotkeys in effect.
    QStringList hotkeys(const CUI::ActionIdentifier &identifier) const;
    /// The action's hotkeys before the set was loaded.
    QStringList baseHotkeys(const CUI::ActionIdentifier &identifier) const;
    /// The action that @p text (1-undo) names; null when there is none.
    const Host::HostCatalogue::Action *findAction(const QString &text) const;
    /// "Undo (1-undo)"; the identifier alone when there is no such action.
    QString describe(const CUI::ActionIdentifier &identifier) const;
    QString contextName(unsigned long contextId) const;
    /// The contexts with that name, or all of them without one. Nothing when no context has it,
    /// after telling so.
    std::optional<std::vector<Host::HostCatalogue::Context>> contextsNamed(
            const std::optional<QString> &name) const;
    /// @}

private:
    bool loadBaseFiles();
    bool loadChosenSet();

    SessionOptions m_options;
    QTextStream &m_out;
    QTextStream &m_err;
    LogPrinter m_log;
    std::unique_ptr<Host::SampleHost> m_host;
    CUI::QvelShortcutManager m_store;
};

} // namespace HotkeyCtl
