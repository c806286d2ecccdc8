#pragma once

#include <UiCustomizations/IPathManager.h>

#include <QMap>
#include <QString>

namespace Host {

/// The paths of an application: what it ships is in its host directory, what the user makes in
/// the user directory.
///
///     HOST/base/      base files, loaded in the order of their names
///     HOST/presets/   shipped hotkey sets
///     HOST/legacy/    the legacy default keyboard file
///     USER/           the user's hotkey sets, current.json, hotkeys.log
///
/// current.json records the files in use. It is read once, by the constructor, and written by
/// setCurrentConfigurationFile() and chooseConfigurationFile(). Nothing else here writes, so that
/// looking at a host leaves no trace; createUserDirectory() is for hosts that want a log file.
class HostPathManager : public CUI::IPathManager
{
public:
    /// Whether a change of the current files outlives the object.
    enum class Record { OnDisk, InMemory };

    /// @p defaultSet is a file name in the directory of the shipped sets; empty for no set.
    HostPathManager(const QString &hostDirectory, const QString &userDirectory,
                    const QString &defaultSet, Record record = Record::OnDisk);

    /// Makes the user directory if it is not there; false when that fails.
    bool createUserDirectory() const;

    QString getLogFilePath() const override;
    QString getLegacyHotkeyDirectory() const override;
    QString getInstallDirectory() const override;
    QString getUserDirectory() const override;
    QString getDefaultPresetDirectory() const override;
    QString getUserPresetDirectory() const override;
    /// The recorded file, if it still exists; otherwise the default one. A recorded empty path
    /// stays empty.
    QString getCurrentConfigurationFile(CUI::ConfigType type) const override;
    QString getDefaultConfigurationFile(CUI::ConfigType type) const override;
    /// Does nothing when @p path is the current file already. A record that cannot be written is
    /// logged as a warning; the file is current all the same, until the program ends.
    void setCurrentConfigurationFile(CUI::ConfigType type, const QString &path) override;
    /// The same for a choice of the user's: recorded even when it is the current file, so that a
    /// default that was chosen stays when the host has another default one day.
    void chooseConfigurationFile(CUI::ConfigType type, const QString &path);
    QStringList getBaseHotkeyFiles() const override;

private:
    QString recordPath() const;
    void readRecord();
    void writeRecord() const;

    QString m_hostDirectory;
    QString m_userDirectory;
    QString m_defaultSet;
    Record m_record;
    QMap<CUI::ConfigType, QString> m_current; ///< absolute paths, or empty ones
};

} // namespace Host
