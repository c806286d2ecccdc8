#pragma once

#include "HostCatalogue.h"
#include "HostPathManager.h"

#include <QString>

namespace Host {

class HostActionRegistry;

/// An application that is made of a host directory: reads its catalogue and installs a registry
/// and a path manager for it, as long as the object lives.
class SampleHost
{
public:
    SampleHost(const QString &hostDirectory, const QString &userDirectory,
               HostPathManager::Record record = HostPathManager::Record::OnDisk);
    /// Uninstalls what load() installed, unless something else has taken its place.
    ~SampleHost();
    SampleHost(const SampleHost &) = delete;
    SampleHost &operator=(const SampleHost &) = delete;

    /// Reads HOST/host.json and installs the registry, with its actions, and the path manager.
    /// False when the host directory is not usable; errorText() then says why, and nothing is
    /// installed. To be called once.
    bool load();
    /// One line: the file, the place in it and the reason.
    QString errorText() const { return m_errorText; }

    /// What load() read.
    const HostCatalogue &catalogue() const { return m_catalogue; }
    /// What load() installed; null before, and after a load() that failed.
    HostActionRegistry *registry() const { return m_registry; }
    HostPathManager *paths() const { return m_paths; }

    /// The name under which the programs of this host share the user's data. They set it with
    /// QCoreApplication::setApplicationName().
    static QString applicationName();
    /// The host directory that is installed with the program: ../share/UiCustomizations/host,
    /// seen from the directory of the executable.
    static QString shippedDirectory();
    /// The data location of the application.
    static QString defaultUserDirectory();

private:
    QString m_hostDirectory;
    QString m_userDirectory;
    HostPathManager::Record m_record;
    QString m_errorText;
    HostCatalogue m_catalogue;
    // Owned by the library while they are installed.
    HostActionRegistry *m_registry = nullptr;
    HostPathManager *m_paths = nullptr;
};

} // namespace Host
