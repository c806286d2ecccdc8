#include "HotkeySetCommands.h"

#include "CurrentSet.h"
#include "HotkeyFileInput.h"
#include "HotkeySetDialogs.h"
#include "HotkeySetFile.h"
#include "InstalledPaths.h"
#include "LoadResult.h"
#include "PresetMetadata.h"
#include "QvelShortcutManager.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QPointer>

namespace CUI {

HotkeySetCommands::HotkeySetCommands(QWidget *editor, CurrentSet *current,
                                     QvelShortcutManager *manager)
    : QObject(editor), m_editor(editor), m_current(current), m_manager(manager)
{
}

// Choosing and loading

void HotkeySetCommands::choosePreset(const Preset &chosen)
{
    if (m_isChoosing || !chosen.isValid() || chosen == m_current->preset())
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
            m_current->select();
        return;
    }
    if (!QFile::exists(chosen.path())) {
        HotkeySetDialogs::popupFileNotFoundInfoDlg(m_editor, chosen.name());
        if (!self.isNull())
            m_current->removeFromList(chosen, m_current->preset());
        return;
    }
    HotkeyFileInput file(chosen.path());
    if (!file.validate(HotkeyFileInput::Kind::Set)) {
        m_current->select();
        HotkeySetDialogs::showLoadFailure(m_editor, chosen.path(), file.fault());
        return;
    }
    m_manager->loadConfiguration(chosen.path(), &file);
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
        preset = CurrentSet::namedPreset(path, locked, name);
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
    m_current->adopt(preset);
}

// Asking before changes are lost

bool HotkeySetCommands::fileNotFoundDoUserPrompt(const Preset &preset, bool *result)
{
    if (!preset.isValid() || QFile::exists(preset.path()))
        return false;
    const Preset missing = preset; // the argument may be the current set, which changes below
    *result = false;
    switch (HotkeySetDialogs::popupFileNotFoundSaveDlg(m_editor, missing.name())) {
    case QMessageBox::Save: {
        *result = saveAsChanges();
        if (!*result)
            break;
        const Preset &saved = m_current->preset();
        if (!saved.name().isEmpty() && saved.name() != missing.name())
            m_current->removeFromList(missing, saved);
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
    m_current->unmarkModified(true);
    const QString path = installedPaths().getDefaultConfigurationFile(ConfigType::HotkeySet);
    const Preset preset = path.isEmpty() ? Preset() : m_current->presetOfFile(path);
    m_manager->loadShortcutConfiguration(path);
    m_current->removeFromList(missing, preset);
}

bool HotkeySetCommands::maybeSaveChanges()
{
    if (!m_current->isModified())
        return true;
    const QPointer<HotkeySetCommands> self(this);
    bool result = false;
    if (fileNotFoundDoUserPrompt(m_current->preset(), &result))
        return result;
    switch (HotkeySetDialogs::popupSaveChangesDlg(m_editor)) {
    case QMessageBox::Save:
        return saveChanges();
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
    if (fileNotFoundDoUserPrompt(m_current->preset(), &result))
        return result;
    if (HotkeySetDialogs::popupResetChangesDlg(m_editor) != QMessageBox::Discard)
        return false;
    const QPointer<HotkeySetCommands> self(this);
    discardChanges();
    return !self.isNull();
}

void HotkeySetCommands::discardChanges()
{
    Preset preset = m_current->preset();
    if (!preset.isValid()) {
        m_manager->clearTransforms(); // no file holds anything to return to
    } else {
        const LoadResult loaded = loadPresetTransformations(preset.path(), preset);
        if (!loaded.isComplete()) {
            // What is in memory may be all that is left of the user's set.
            HotkeySetDialogs::showLoadFailure(m_editor, preset.path(), loaded.fault);
            return;
        }
        m_current->update(preset);
    }
    m_current->unmarkModified(true);
}

// Saving

bool HotkeySetCommands::saveCurrent()
{
    const QPointer<HotkeySetCommands> self(this);
    const bool saved = saveChanges();
    if (!self.isNull())
        m_current->select();
    return saved;
}

bool HotkeySetCommands::saveAs()
{
    const bool saved = saveAsChanges();
    if (saved)
        m_current->select();
    return saved;
}

bool HotkeySetCommands::saveChanges()
{
    const Preset preset = m_current->preset();
    const QString path = preset.path();
    // A locked set stays as it is, and one that has vanished gets the place that the user chooses.
    if (!preset.isValid() || !QFile::exists(path) || isLockedFile(path))
        return saveAsChanges();
    if (path == QDir::cleanPath(m_manager->transformsFile())
        && m_manager->hasTransformsFileChanged()) {
        const QPointer<HotkeySetCommands> self(this);
        const auto answer = HotkeySetDialogs::popupChangedFileDlg(m_editor, preset.name());
        if (self.isNull())
            return false;
        if (answer == QMessageBox::SaveAll)
            return saveAsChanges();
        if (answer != QMessageBox::Save)
            return false;
    }
    if (!m_manager->saveShortcutTransforms(path)) {
        HotkeySetDialogs::showSaveFailure(m_editor, path);
        return false;
    }
    m_current->unmarkModified(true);
    // The store writes neither a lock nor a name.
    m_current->update(CurrentSet::namedPreset(path, false, QFileInfo(path).completeBaseName()));
    Q_EMIT modificationsSaved();
    return true;
}

bool HotkeySetCommands::saveAsChanges()
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
    m_current->unmarkModified(true);
    m_current->adoptSaved(Preset(path, false, QString()));
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
