#include "HotkeySetCommands.h"

#include "HotkeyFileInput.h"
#include "HotkeySetDialogs.h"
#include "HotkeySetFile.h"
#include "InstalledPaths.h"
#include "LoadResult.h"
#include "PresetMetadata.h"
#include "QvelPresetComboBox.h"
#include "QvelShortcutManager.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QPointer>
#include <QSignalBlocker>

namespace CUI {

namespace {

QString currentSetPath()
{
    return installedPaths().getCurrentConfigurationFile(ConfigType::HotkeySet);
}

void recordCurrentSet(const QString &path)
{
    installedPaths().setCurrentConfigurationFile(ConfigType::HotkeySet, path);
}

// Named as the list names it: shipped sets by the translations of the text in their files.
Preset presetOf(const QString &path, bool locked, const QString &name)
{
    return Preset(path, locked,
                  name.isEmpty() ? name
                                 : QCoreApplication::translate("CUI", name.toUtf8().constData()));
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

HotkeySetCommands::HotkeySetCommands(QWidget *editor, QvelPresetComboBox *comboBox,
                                     QvelShortcutManager *manager)
    : QObject(editor), m_editor(editor), m_comboBox(comboBox), m_manager(manager)
{
}

// State

void HotkeySetCommands::showStoreState()
{
    const QString path = currentSetPath();
    if (!path.isEmpty())
        setCurrentPreset(describe(path));
    selectSilently(m_currentPreset);
    if (m_manager->isUserModified())
        markModified();
}

Preset HotkeySetCommands::describe(const QString &filePath) const
{
    const QString path = QDir::cleanPath(filePath); // as the combo box lists it
    const int index = m_comboBox->findPreset(Preset(path, false, QString()));
    if (index >= 0)
        return m_comboBox->presetFromIndex(index);
    bool locked = false;
    QString name;
    QvelShortcutManager::peekPresetMetadata(path, locked, name);
    return presetOf(path, locked, name);
}

void HotkeySetCommands::setCurrentPreset(const Preset &preset)
{
    m_currentPreset = preset;
    const QSignalBlocker blocker(m_comboBox);
    if (preset.isValid())
        enlist(preset);
    m_comboBox->setCurrentPreset(preset);
    m_comboBox->update();
}

void HotkeySetCommands::enlist(const Preset &preset)
{
    if (m_comboBox->containsPreset(preset))
        return;
    m_comboBox->updatePresets(ConfigType::HotkeySet, false); // its file may have come meanwhile
    if (m_comboBox->containsPreset(preset))
        return;
    if (!isPlaceOfSets(preset.path())) {
        m_comboBox->addNotInPathPreset(preset, false);
        return;
    }
    // Remembered, it would be listed twice once its file is found. So it only stays while it is the
    // current one.
    m_comboBox->addItem(preset.name(), QVariant::fromValue(preset));
    m_comboBox->setCurrentPreset(preset);
    m_comboBox->updatePresets(ConfigType::HotkeySet, true);
}

void HotkeySetCommands::refreshList()
{
    const QSignalBlocker blocker(m_comboBox);
    m_comboBox->setCurrentPreset(m_currentPreset);
    m_comboBox->updatePresets(ConfigType::HotkeySet, true);
    const int index = m_comboBox->setCurrentPreset(m_currentPreset); // none, if there was none
    if (index >= 0)
        m_currentPreset = m_comboBox->presetFromIndex(index);
    m_comboBox->update();
}

void HotkeySetCommands::selectSilently(const Preset &preset)
{
    const QSignalBlocker blocker(m_comboBox);
    m_comboBox->setCurrentPreset(preset);
    m_comboBox->update();
}

void HotkeySetCommands::markModified()
{
    if (m_modified)
        return;
    m_modified = true;
    Q_EMIT presetModified(true);
}

void HotkeySetCommands::unmarkModified(bool invalidate)
{
    if (invalidate)
        Q_EMIT rowsInvalidated();
    followUnmodified();
}

void HotkeySetCommands::followUnmodified()
{
    if (!m_modified)
        return;
    m_modified = false;
    Q_EMIT selectedActionInvalidated();
    Q_EMIT presetModified(false);
}

// Choosing and loading

void HotkeySetCommands::choosePreset(int index)
{
    const Preset chosen = m_comboBox->presetFromIndex(index);
    if (m_isChoosing || !chosen.isValid() || chosen == m_currentPreset)
        return;
    // The questions change the list and its selection themselves.
    m_isChoosing = true;
    const QPointer<HotkeySetCommands> self(this);
    loadChosen(chosen);
    if (!self.isNull())
        m_isChoosing = false;
}

void HotkeySetCommands::loadChosen(const Preset &chosen)
{
    const QPointer<HotkeySetCommands> self(this);
    if (!maybeSaveChanges()) {
        if (!self.isNull())
            selectSilently(m_currentPreset);
        return;
    }
    if (!QFile::exists(chosen.path())) {
        HotkeySetDialogs::popupFileNotFoundInfoDlg(m_editor, chosen.name());
        if (self.isNull())
            return;
        const QSignalBlocker blocker(m_comboBox);
        m_comboBox->removePreset(chosen);
        m_comboBox->setCurrentPreset(m_currentPreset);
        return;
    }
    HotkeyFileInput file(chosen.path());
    if (!file.validate(HotkeyFileInput::Kind::Set)) {
        selectSilently(m_currentPreset);
        HotkeySetDialogs::showLoadFailure(m_editor, chosen.path(), file.fault());
        return;
    }
    m_manager->loadConfiguration(chosen.path(), &file);
}

void HotkeySetCommands::leaveComboBox()
{
    if (!m_isChoosing)
        return;
    m_comboBox->setParent(nullptr);
    m_comboBox->deleteLater();
}

void HotkeySetCommands::followLoadedConfiguration(const QString &path)
{
    setCurrentPreset(path.isEmpty() ? Preset() : describe(path));
    Q_EMIT setReplaced();
    unmarkModified(true);
}

LoadResult HotkeySetCommands::loadPresetTransformations(const QString &path, Preset &preset) const
{
    HotkeyFileInput file(path);
    bool locked = false;
    QString name;
    if (!PresetMetadata::peek(file, locked, name))
        return {LoadResult::Extent::Nothing, file.fault()};
    const LoadResult loaded = m_manager->loadSet(file);
    if (loaded.isComplete())
        preset = presetOf(path, locked, name);
    return loaded;
}

void HotkeySetCommands::loadFromFile()
{
    const QString path = HotkeySetDialogs::askLoadSetPath(m_editor);
    if (path.isEmpty() || !maybeSaveChanges())
        return;
    Preset preset;
    const LoadResult loaded = loadPresetTransformations(QDir::cleanPath(path), preset);
    if (!loaded.isComplete()) {
        HotkeySetDialogs::showLoadFailure(m_editor, path, loaded.fault);
        return;
    }
    adoptLoadedSet(preset);
}

// The steps of the set are loaded; makes it the current one everywhere.
void HotkeySetCommands::adoptLoadedSet(const Preset &preset)
{
    setCurrentPreset(preset);
    recordCurrentSet(preset.path());
    Q_EMIT setReplaced();
    unmarkModified(true);
}

// What the store has now belongs to no set.
void HotkeySetCommands::leaveSet()
{
    setCurrentPreset(Preset());
    recordCurrentSet(QString());
}

// Asking before changes go

bool HotkeySetCommands::fileNotFoundDoUserPrompt(const Preset &preset, bool *result)
{
    if (!preset.isValid() || QFile::exists(preset.path()))
        return false;
    const Preset missing = preset; // the argument may be the current set, which changes below
    *result = false;
    switch (HotkeySetDialogs::popupFileNotFoundSaveDlg(m_editor, missing.name())) {
    case QMessageBox::Save: {
        Preset saved;
        *result = saveAsChanges(saved);
        if (*result && !saved.name().isEmpty() && saved.name() != missing.name()) {
            const QSignalBlocker blocker(m_comboBox);
            m_comboBox->removePreset(missing);
            m_comboBox->setCurrentPreset(saved);
        }
        break;
    }
    case QMessageBox::Discard:
        resetToDefault(missing);
        *result = true;
        break;
    default:
        break;
    }
    return true;
}

void HotkeySetCommands::resetToDefault(const Preset &missing)
{
    unmarkModified(true);
    const QString path = installedPaths().getDefaultConfigurationFile(ConfigType::HotkeySet);
    const Preset preset = path.isEmpty() ? Preset() : describe(path);
    m_manager->loadShortcutConfiguration(path);
    const QSignalBlocker blocker(m_comboBox);
    m_comboBox->removePreset(missing);
    m_comboBox->setCurrentPreset(preset);
}

bool HotkeySetCommands::maybeSaveChanges()
{
    if (!m_modified)
        return true;
    const QPointer<HotkeySetCommands> self(this);
    bool result = false;
    if (fileNotFoundDoUserPrompt(m_currentPreset, &result))
        return result;
    switch (HotkeySetDialogs::popupSaveChangesDlg(m_editor)) {
    case QMessageBox::Save:
        return saveChanges(m_currentPreset);
    case QMessageBox::Cancel:
        return false;
    case QMessageBox::Discard:
        discardChanges();
        break;
    default:
        break;
    }
    return !self.isNull();
}

bool HotkeySetCommands::maybeDiscardChanges()
{
    bool result = false;
    if (fileNotFoundDoUserPrompt(m_currentPreset, &result))
        return result;
    if (HotkeySetDialogs::popupResetChangesDlg(m_editor) != QMessageBox::Discard)
        return false;
    const QPointer<HotkeySetCommands> self(this);
    discardChanges();
    return !self.isNull();
}

void HotkeySetCommands::discardChanges()
{
    Preset preset = m_currentPreset;
    if (!preset.isValid()) {
        m_manager->clearTransforms(); // no file holds anything to return to
    } else {
        const LoadResult loaded = loadPresetTransformations(preset.path(), preset);
        if (!loaded.isComplete()) {
            // What is in memory may be all that is left of the user's set.
            HotkeySetDialogs::showLoadFailure(m_editor, preset.path(), loaded.fault);
            return;
        }
        m_currentPreset = preset;
        selectSilently(preset);
        const QSignalBlocker blocker(m_comboBox);
        m_comboBox->modifyCurrentPreset(preset);
    }
    unmarkModified(true);
}

// Saving

bool HotkeySetCommands::saveCurrent()
{
    const QPointer<HotkeySetCommands> self(this);
    const bool saved = saveChanges(m_currentPreset);
    if (!self.isNull())
        selectSilently(m_currentPreset);
    return saved;
}

bool HotkeySetCommands::saveAs()
{
    const bool saved = saveAsChanges(m_currentPreset);
    if (saved)
        selectSilently(m_currentPreset);
    return saved;
}

bool HotkeySetCommands::saveChanges(Preset &preset)
{
    const QString path = preset.path();
    // A locked set stays as it is, and one that has vanished gets the place that the user chooses.
    if (!preset.isValid() || !QFile::exists(path) || isLockedFile(path))
        return saveAsChanges(preset);
    if (path == QDir::cleanPath(m_manager->transformsFile())
        && m_manager->hasTransformsFileChanged()) {
        const QPointer<HotkeySetCommands> self(this);
        const auto answer = HotkeySetDialogs::popupChangedFileDlg(m_editor, preset.name());
        if (self.isNull())
            return false;
        if (answer == QMessageBox::SaveAll)
            return saveAsChanges(preset);
        if (answer != QMessageBox::Save)
            return false;
    }
    if (!m_manager->saveShortcutTransforms(path)) {
        HotkeySetDialogs::showSaveFailure(m_editor, path);
        return false;
    }
    unmarkModified(true);
    // The store writes neither a lock nor a name.
    preset = presetOf(path, false, QFileInfo(path).completeBaseName());
    selectSilently(preset);
    {
        const QSignalBlocker blocker(m_comboBox);
        m_comboBox->modifyCurrentPreset(preset);
    }
    Q_EMIT modificationsSaved();
    return true;
}

bool HotkeySetCommands::saveAsChanges(Preset &preset)
{
    const QString path = HotkeySetDialogs::askSaveSetPath(m_editor);
    if (path.isEmpty())
        return false;
    if (isLockedFile(path)) {
        HotkeySetDialogs::showLockedWarning(m_editor);
        return false;
    }
    if (!m_manager->saveShortcutTransforms(path)) {
        HotkeySetDialogs::showSaveFailure(m_editor, path);
        return false;
    }
    const Preset saved(path, false, QString());
    unmarkModified(true);
    {
        const QSignalBlocker blocker(m_comboBox);
        m_comboBox->updatePresets(ConfigType::HotkeySet, false);
    }
    setCurrentPreset(saved);
    preset = saved;
    recordCurrentSet(path);
    Q_EMIT modificationsSaved();
    return true;
}

// A set that its file or the file system protects.
bool HotkeySetCommands::isLockedFile(const QString &path)
{
    if (Preset::isFileReadOnly(path))
        return true;
    // Also of a file that follows no schema, which is then replaced without a message in the log.
    const auto metadata = HotkeySetFile::readMetadata(HotkeyFileInput(path).document());
    return metadata && metadata->locked;
}

} // namespace CUI
