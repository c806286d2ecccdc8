#include "InstalledPaths.h"

namespace CUI {

namespace {

class NoPaths : public IPathManager
{
public:
    QString getLogFilePath() const override { return {}; }
    QString getLegacyHotkeyDirectory() const override { return {}; }
    QString getDefaultPresetDirectory() const override { return {}; }
    QString getUserPresetDirectory() const override { return {}; }
    QString getCurrentConfigurationFile(ConfigType) const override { return {}; }
    QString getDefaultConfigurationFile(ConfigType) const override { return {}; }
    void setCurrentConfigurationFile(ConfigType, const QString &) override { }
    QStringList getBaseHotkeyFiles() const override { return {}; }
};

} // namespace

IPathManager &installedPaths()
{
    if (IPathManager *paths = IPathManager::get())
        return *paths;
    static NoPaths none;
    return none;
}

} // namespace CUI
