#include "Preset.h"

#include "FileAttributes.h"
#include "InstalledPaths.h"
#include "PresetMetadata.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QSet>

namespace CUI {

namespace {

void scan(const QString &directory, QSet<QString> &listedPaths, QList<Preset> &presets)
{
    if (directory.isEmpty())
        return; // would be taken for the root directory
    const QStringList entries = QDir(directory).entryList(
            {QStringLiteral("*.hsx")}, QDir::AllEntries | QDir::NoDotAndDotDot, QDir::Name);
    for (const QString &entry : entries) {
        const QString path = QDir::cleanPath(directory + QLatin1Char('/') + entry);
        if (listedPaths.contains(path))
            continue;
        bool locked = false;
        QString name;
        if (!PresetMetadata::peekCached(path, locked, name))
            continue;
        // Shipped sets are named in the translations by the text in their files.
        name = QCoreApplication::translate("CUI", name.toUtf8().constData());
        listedPaths.insert(path);
        presets << Preset(path, locked, name);
    }
}

} // namespace

Preset::Preset(const QString &path, bool locked, const QString &name)
    : m_path(path),
      m_name(name.isEmpty() ? QFileInfo(path).baseName() : name),
      m_customName(!name.isEmpty()),
      m_locked(locked)
{
    const QString shipped = installedPaths().getDefaultPresetDirectory();
    m_defaultHotkeySet =
            !shipped.isEmpty() && QDir::cleanPath(path).contains(QDir::cleanPath(shipped));
}

void Preset::setName(const QString &name)
{
    m_name = name;
    m_customName = true;
}

bool Preset::isWritable() const
{
    return !m_locked && !isFileReadOnly(m_path);
}

bool Preset::isFileReadOnly(const QString &path)
{
    return FileAttributes::isReadOnly(path);
}

QList<Preset> Preset::getPresetList(ConfigType type)
{
    QList<Preset> presets;
    // Menu files are known by name only; there is nothing to list of them.
    if (type != ConfigType::HotkeySet)
        return presets;
    QSet<QString> listedPaths;
    scan(installedPaths().getDefaultPresetDirectory(), listedPaths, presets);
    setPresetFilesToReadOnly(presets);
    scan(installedPaths().getUserPresetDirectory(), listedPaths, presets);
    return presets;
}

void Preset::setPresetFilesToReadOnly(const QList<Preset> &presets)
{
    for (const Preset &preset : presets) {
        if (QFileInfo::exists(preset.path()) && !isFileReadOnly(preset.path()))
            FileAttributes::setReadOnly(preset.path());
    }
}

} // namespace CUI
