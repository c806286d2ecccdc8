#include "HostPathManager.h"

#include <UiCustomizations/QvelMessageLog.h>
#include <UiCustomizations/WholeFile.h>

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QJsonDocument>
#include <QJsonObject>

namespace Host {

namespace {

constexpr qint64 maximumRecordSize = 64 * 1024;

const QMap<CUI::ConfigType, QString> recordKeys = {
        {CUI::ConfigType::HotkeySet, QStringLiteral("hotkeySet")},
        {CUI::ConfigType::Menu, QStringLiteral("menu")},
};

QString absolute(const QString &path)
{
    return path.isEmpty() ? path : QDir::cleanPath(QFileInfo(path).absoluteFilePath());
}

QString below(const QString &directory, const QString &name)
{
    if (directory.isEmpty())
        return {};
    return directory.endsWith(QLatin1Char('/')) ? directory + name
                                                : directory + QLatin1Char('/') + name;
}

void warn(const QString &text)
{
    CUI::QvelMessageLog::getInstance().logWarningMessage(text);
}

} // namespace

HostPathManager::HostPathManager(const QString &hostDirectory, const QString &userDirectory,
                                 const QString &defaultSet, Record record)
    : m_hostDirectory(absolute(hostDirectory)),
      m_userDirectory(absolute(userDirectory)),
      m_defaultSet(defaultSet),
      m_record(record)
{
    readRecord();
}

bool HostPathManager::createUserDirectory() const
{
    return !m_userDirectory.isEmpty() && QDir().mkpath(m_userDirectory);
}

QString HostPathManager::getLogFilePath() const
{
    return below(m_userDirectory, QStringLiteral("hotkeys.log"));
}

QString HostPathManager::getLegacyHotkeyDirectory() const
{
    return below(m_hostDirectory, QStringLiteral("legacy"));
}

QString HostPathManager::getInstallDirectory() const
{
    return m_hostDirectory;
}

QString HostPathManager::getUserDirectory() const
{
    return m_userDirectory;
}

QString HostPathManager::getDefaultPresetDirectory() const
{
    return below(m_hostDirectory, QStringLiteral("presets"));
}

QString HostPathManager::getUserPresetDirectory() const
{
    return m_userDirectory;
}

QString HostPathManager::getCurrentConfigurationFile(CUI::ConfigType type) const
{
    const auto recorded = m_current.constFind(type);
    if (recorded != m_current.constEnd() && (recorded->isEmpty() || QFileInfo(*recorded).isFile()))
        return *recorded;
    return getDefaultConfigurationFile(type);
}

QString HostPathManager::getDefaultConfigurationFile(CUI::ConfigType type) const
{
    if (type != CUI::ConfigType::HotkeySet || m_defaultSet.isEmpty())
        return {};
    return below(getDefaultPresetDirectory(), m_defaultSet);
}

void HostPathManager::setCurrentConfigurationFile(CUI::ConfigType type, const QString &path)
{
    // Loading the current set sets its path again each time. That is not a choice of the user: a
    // default remains the default, and a file that is missing for a while is not forgotten.
    if (absolute(path) != getCurrentConfigurationFile(type))
        chooseConfigurationFile(type, path);
}

void HostPathManager::chooseConfigurationFile(CUI::ConfigType type, const QString &path)
{
    m_current.insert(type, absolute(path));
    if (m_record == Record::OnDisk)
        writeRecord();
}

QStringList HostPathManager::getBaseHotkeyFiles() const
{
    const QDir directory(below(m_hostDirectory, QStringLiteral("base")));
    QStringList files;
    for (const QString &name : directory.entryList(
                 {QStringLiteral("*.hsxb"), QStringLiteral("*.hsx")}, QDir::Files, QDir::Name))
        files.append(directory.absoluteFilePath(name));
    return files;
}

QString HostPathManager::recordPath() const
{
    return below(m_userDirectory, QStringLiteral("current.json"));
}

void HostPathManager::readRecord()
{
    QFile file(recordPath());
    if (!QFileInfo(file).isFile())
        return;
    if (!file.open(QIODevice::ReadOnly)) {
        warn(QStringLiteral("'%1' cannot be opened; the default set is used: %2")
                     .arg(file.fileName(), file.errorString()));
        return;
    }
    const QJsonDocument document = QJsonDocument::fromJson(file.read(maximumRecordSize));
    if (!document.isObject()) {
        warn(QStringLiteral("'%1' is no record of the current files; the default set is used.")
                     .arg(file.fileName()));
        return;
    }
    for (auto key = recordKeys.cbegin(); key != recordKeys.cend(); ++key) {
        const QJsonValue path = document.object().value(key.value());
        if (path.isString())
            m_current.insert(key.key(), absolute(path.toString()));
    }
}

void HostPathManager::writeRecord() const
{
    QJsonObject record;
    for (auto file = m_current.cbegin(); file != m_current.cend(); ++file)
        record.insert(recordKeys.value(file.key()), file.value());
    const QByteArray json = QJsonDocument(record).toJson();

    if (!createUserDirectory()) {
        warn(QStringLiteral("The current set is not recorded: the directory '%1' cannot be made.")
                     .arg(m_userDirectory));
        return;
    }
    const QString error = CUI::WholeFile::save(recordPath(), json);
    if (!error.isEmpty()) {
        warn(QStringLiteral("The current set is not recorded: '%1' cannot be written: %2")
                     .arg(recordPath(), error));
    }
}

} // namespace Host
