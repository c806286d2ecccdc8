#pragma once

#include <UiCustomizations/ICuiActionManager.h>
#include <UiCustomizations/IPathManager.h>

#include <QTemporaryDir>

#include <utility>
#include <vector>

/// A registry that a test fills itself.
class TestRegistry : public CUI::ICuiActionManager
{
public:
    void registerActions() override { }
    bool triggerAction(const CUI::ActionIdentifier &) override { return false; }
    void getDefaultAccelerators(
            CUI::QvelShortcutManager *,
            std::vector<std::pair<CUI::ActionIdentifier, QString>> &list) override
    {
        ++acceleratorCalls;
        list.insert(list.end(), accelerators.begin(), accelerators.end());
    }
    using ICuiActionManager::removeAction;

    std::vector<std::pair<CUI::ActionIdentifier, QString>> accelerators;
    int acceleratorCalls = 0;
};

/// A path manager whose answers a test sets.
class TestPaths : public CUI::IPathManager
{
public:
    QString getLogFilePath() const override { return logFile; }
    QString getLegacyHotkeyDirectory() const override { return legacyDirectory; }
    QString getDefaultPresetDirectory() const override { return defaultPresets; }
    QString getUserPresetDirectory() const override { return userPresets; }
    QString getCurrentConfigurationFile(CUI::ConfigType) const override { return currentSet; }
    QString getDefaultConfigurationFile(CUI::ConfigType) const override { return defaultSet; }
    void setCurrentConfigurationFile(CUI::ConfigType, const QString &path) override
    {
        currentSet = path;
        recorded << path;
    }
    QStringList getBaseHotkeyFiles() const override { return baseFiles; }

    QString logFile;
    QString legacyDirectory;
    QString defaultPresets;
    QString userPresets;
    QString currentSet;
    QString defaultSet;
    QStringList baseFiles;
    QStringList recorded; ///< what setCurrentConfigurationFile() was given
};

/// Installs a registry and a path manager over an empty temporary folder for its lifetime.
class TestHost
{
public:
    TestHost();
    ~TestHost();

    TestRegistry *registry() const { return m_registry; }
    TestPaths *paths() const { return m_paths; }

    /// The path of a file of that name in the temporary folder.
    QString path(const QString &fileName) const { return m_folder.filePath(fileName); }
    /// Writes a file into the temporary folder and returns its path.
    QString write(const QString &fileName, const QByteArray &contents) const;
    /// What a file holds; null when it cannot be read.
    static QByteArray read(const QString &path);

private:
    QTemporaryDir m_folder;
    TestRegistry *m_registry;
    TestPaths *m_paths;
};
