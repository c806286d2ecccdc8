#include "CurrentSet.h"

#include "InstalledPaths.h"
#include "QvelPresetComboBox.h"
#include "QvelShortcutManager.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QSignalBlocker>

namespace CUI {

namespace {

// For the next start.
void recordCurrentSet(const QString &path)
{
    installedPaths().setCurrentConfigurationFile(ConfigType::HotkeySet, path);
}

// True for a file that the list of sets has, or will have once it is there and valid.
bool isPlaceOfSets(const QString &path)
{
    const IPathManager &paths = installedPaths();
    const QFileInfo file(path);
    if (file.suffix().compare(QLatin1String("hsx"), Qt::CaseInsensitive) != 0)
        return false;
    for (const QString &directory :
         {paths.getDefaultPresetDirectory(), paths.getUserPresetDirectory()}) {
        if (!directory.isEmpty() && file.dir() == QDir(directory))
            return true;
    }
    return false;
}

} // namespace

CurrentSet::CurrentSet(QvelPresetComboBox *comboBox, QvelShortcutManager *manager, QObject *parent)
    : QObject(parent), m_comboBox(comboBox), m_manager(manager)
{
}

void CurrentSet::showStoreState()
{
    const QString path = installedPaths().getCurrentConfigurationFile(ConfigType::HotkeySet);
    if (!path.isEmpty())
        show(presetOfFile(path));
    select();
    if (m_manager->isUserModified())
        markModified();
}

// Modified or not

void CurrentSet::markModified()
{
    if (m_modified)
        return;
    m_modified = true;
    Q_EMIT presetModified(true);
}

void CurrentSet::unmarkModified(bool invalidate)
{
    if (invalidate)
        Q_EMIT rowsInvalidated();
    clearModified();
}

void CurrentSet::clearModified()
{
    if (!m_modified)
        return;
    m_modified = false;
    Q_EMIT selectedActionInvalidated();
    Q_EMIT presetModified(false);
}

// Which set

void CurrentSet::followLoadedConfiguration(const QString &path)
{
    show(path.isEmpty() ? Preset() : presetOfFile(path));
    Q_EMIT setReplaced();
    unmarkModified(true);
}

void CurrentSet::adopt(const Preset &preset)
{
    show(preset);
    recordCurrentSet(preset.path());
    Q_EMIT setReplaced();
    unmarkModified(true);
}

void CurrentSet::adoptSaved(const Preset &preset)
{
    {
        const QSignalBlocker blocker(m_comboBox);
        m_comboBox->updatePresets(ConfigType::HotkeySet, false); // the file may be new
    }
    show(preset);
    recordCurrentSet(preset.path());
}

void CurrentSet::leave()
{
    show(Preset());
    recordCurrentSet(QString());
}

void CurrentSet::update(const Preset &preset)
{
    m_preset = preset;
    select();
    const QSignalBlocker blocker(m_comboBox);
    m_comboBox->modifyCurrentPreset(preset);
}

// The list

void CurrentSet::show(const Preset &preset)
{
    m_preset = preset;
    if (m_preset.isValid())
        enlist(m_preset);
    select();
}

void CurrentSet::enlist(const Preset &preset)
{
    const QSignalBlocker blocker(m_comboBox);
    if (m_comboBox->containsPreset(preset))
        return;
    m_comboBox->updatePresets(ConfigType::HotkeySet, false); // its file may be new
    if (m_comboBox->containsPreset(preset))
        return;
    if (!isPlaceOfSets(preset.path())) {
        m_comboBox->addNotInPathPreset(preset, false);
        return;
    }
    // Added for good, it would be listed twice once its file is found. So it only stays while it is
    // the current one.
    m_comboBox->addItem(preset.name(), QVariant::fromValue(preset));
    m_comboBox->setCurrentPreset(preset);
    m_comboBox->updatePresets(ConfigType::HotkeySet, true);
}

void CurrentSet::select()
{
    const QSignalBlocker blocker(m_comboBox);
    m_comboBox->setCurrentPreset(m_preset);
    m_comboBox->update();
}

void CurrentSet::refreshList()
{
    const QSignalBlocker blocker(m_comboBox);
    m_comboBox->setCurrentPreset(m_preset);
    m_comboBox->updatePresets(ConfigType::HotkeySet, true);
    const int index = m_comboBox->setCurrentPreset(m_preset); // none, if there was none
    if (index >= 0)
        m_preset = m_comboBox->presetFromIndex(index);
    m_comboBox->update();
}

void CurrentSet::removeFromList(const Preset &preset, const Preset &selected)
{
    const QSignalBlocker blocker(m_comboBox);
    m_comboBox->removePreset(preset);
    m_comboBox->setCurrentPreset(selected);
}

Preset CurrentSet::presetOfFile(const QString &filePath) const
{
    const QString path = QDir::cleanPath(filePath); // as the combo box lists it
    const int index = m_comboBox->findPreset(Preset(path, false, QString()));
    if (index >= 0)
        return m_comboBox->presetFromIndex(index);
    bool locked = false;
    QString name;
    QvelShortcutManager::peekPresetMetadata(path, locked, name);
    return namedPreset(path, locked, name);
}

Preset CurrentSet::namedPreset(const QString &path, bool locked, const QString &name)
{
    return Preset(path, locked,
                  name.isEmpty() ? name
                                 : QCoreApplication::translate("CUI", name.toUtf8().constData()));
}

} // namespace CUI
