#pragma once

#include "ConfigType.h"
#include "UiCustomizationsExport.h"

#include <QString>
#include <QStringList>

#include <memory>

namespace CUI {

/// Where the host keeps its files, and which of them are in use.
///
/// The host implements it and installs one instance with set(). The library asks it at each
/// use and keeps no pointer; a QvelFileMessageLogger keeps the path of its file. Paths are
/// absolute; directories carry no trailing separator. An empty text means that the host has no such
/// file or directory.
class CUI_CORE_EXPORT IPathManager
{
public:
    IPathManager();
    virtual ~IPathManager();
    IPathManager(const IPathManager &) = delete;
    IPathManager &operator=(const IPathManager &) = delete;

    /// The installed instance, or null before the first set() and after an empty one.
    static IPathManager *get();

    /// Deletes the installed instance, then takes over @p manager and leaves it empty. The library
    /// owns it from here until the next call, or until the library is unloaded.
    static void set(std::unique_ptr<IPathManager> &manager);

    /// The file that QvelFileMessageLogger writes.
    virtual QString getLogFilePath() const = 0;
    /// The directory that holds the legacy default keyboard file.
    virtual QString getLegacyHotkeyDirectory() const = 0;

    // The library calls none of the next four; they are there for the host's own code.
    /// The directory of the host's read-only data. Empty unless overridden.
    virtual QString getInstallDirectory() const;
    /// The directory of the user's own data. Empty unless overridden.
    virtual QString getUserDirectory() const;
    /// The directory of the shipped menu files. Empty unless overridden.
    virtual QString getDefaultMenuDirectory() const;
    /// The directory of the user's menu files. Empty unless overridden.
    virtual QString getUserMenuDirectory() const;

    /// The directory of the shipped hotkey sets.
    virtual QString getDefaultPresetDirectory() const = 0;
    /// The directory of the user's hotkey sets.
    virtual QString getUserPresetDirectory() const = 0;
    /// The file of that kind that is in use; empty when there is none.
    virtual QString getCurrentConfigurationFile(ConfigType type) const = 0;
    /// The shipped default file of that kind.
    virtual QString getDefaultConfigurationFile(ConfigType type) const = 0;
    /// Records the file of that kind that is now in use; @p path may be empty.
    virtual void setCurrentConfigurationFile(ConfigType type, const QString &path) = 0;
    /// The files that form the base of every configuration, in loading order (*.hsxb, *.hsx).
    virtual QStringList getBaseHotkeyFiles() const = 0;

private:
    static std::unique_ptr<IPathManager> thePathManager;
};

} // namespace CUI
