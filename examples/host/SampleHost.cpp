#include "SampleHost.h"

#include "HostActionRegistry.h"
#include "HostTranslations.h"

#include <UiCustomizations/QvelMessageLog.h>

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QStandardPaths>

namespace Host {

SampleHost::SampleHost(const QString &hostDirectory, const QString &userDirectory,
                       HostPathManager::Record record)
    : m_hostDirectory(hostDirectory), m_userDirectory(userDirectory), m_record(record)
{
}

SampleHost::~SampleHost()
{
    if (m_registry != nullptr && CUI::ICuiActionManager::get() == m_registry) {
        std::unique_ptr<CUI::ICuiActionManager> none;
        CUI::ICuiActionManager::set(none);
    }
    if (m_paths != nullptr && CUI::IPathManager::get() == m_paths) {
        std::unique_ptr<CUI::IPathManager> none;
        CUI::IPathManager::set(none);
    }
}

bool SampleHost::load()
{
    if (!QFileInfo(m_hostDirectory).isDir()) {
        m_errorText = QStringLiteral("%1: is not a directory").arg(m_hostDirectory);
        return false;
    }
    const QString file = QDir(m_hostDirectory).filePath(QStringLiteral("host.json"));
    const std::optional<HostCatalogue> catalogue = HostCatalogue::load(file, m_errorText);
    if (!catalogue)
        return false;
    for (const QString &warning : catalogue->warnings)
        CUI::QvelMessageLog::getInstance().logWarningMessage(warning);
    auto ownedPaths = std::make_unique<HostPathManager>(m_hostDirectory, m_userDirectory,
                                                        catalogue->defaultSet, m_record);
    const QString defaultSet = ownedPaths->getDefaultConfigurationFile(CUI::ConfigType::HotkeySet);
    if (!defaultSet.isEmpty() && !QFileInfo(defaultSet).isFile()) {
        m_errorText = QStringLiteral("%1: defaultSet: there is no file %2").arg(file, defaultSet);
        return false;
    }

    installTranslations();
    m_catalogue = *catalogue;
    auto ownedRegistry = std::make_unique<HostActionRegistry>(m_catalogue);
    ownedRegistry->registerActions();
    m_registry = ownedRegistry.get();
    m_paths = ownedPaths.get();
    std::unique_ptr<CUI::ICuiActionManager> registry = std::move(ownedRegistry);
    CUI::ICuiActionManager::set(registry);
    std::unique_ptr<CUI::IPathManager> paths = std::move(ownedPaths);
    CUI::IPathManager::set(paths);
    return true;
}

QString SampleHost::applicationName()
{
    return QStringLiteral("UiCustomizationsHost");
}

QString SampleHost::shippedDirectory()
{
    return QDir::cleanPath(QCoreApplication::applicationDirPath()
                           + QStringLiteral("/../share/UiCustomizations/host"));
}

QString SampleHost::defaultUserDirectory()
{
    return QStandardPaths::writableLocation(QStandardPaths::AppDataLocation);
}

} // namespace Host
