#include "HotkeySetCommands.h"

#include "EditorText.h"
#include "HotkeySetDialogs.h"
#include "IPathManager.h"
#include "QvelCustomizeDialogHelper.h"
#include "QvelMessageLog.h"
#include "QvelPresetComboBox.h"
#include "QvelShortcutManager.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QScopedValueRollback>
#include <QSignalBlocker>

namespace CUI {

namespace {

QString currentSetPath()
{
    const IPathManager *paths = IPathManager::get();
    return paths != nullptr ? paths->getCurrentConfigurationFile(ConfigType::HotkeySet) : QString();
}

void recordCurrentSet(const QString &path)
{
    if (IPathManager *paths = IPathManager::get())
        paths->setCurrentConfigurationFile(ConfigType::HotkeySet, path);
}

// A set that its file or the file system protects.
bool isLockedFile(const QString &path)
{
    if (!QFile::exists(path))
        return false;
    bool locked = false;
    QString name;
    return Preset::isFileReadOnly(path)
           || (QvelShortcutManager::peekPresetMetadata(path, locked, name) && locked);
}

/// Remembers the last line that is logged while it lives.
class LastLogLine
{
public:
    LastLogLine()
        : m_connection(QObject::connect(&QvelMessageLog::getInstance(),
                                        &QvelMessageLog::messageLogged,
                                        [this](const QString &line) { m_line = line; }))
    {
    }
    ~LastLogLine() { QObject::disconnect(m_connection); }
    LastLogLine(const LastLogLine &) = delete;
    LastLogLine &operator=(const LastLogLine &) = delete;
    QString text() const { return m_line; }

private:
    QString m_line;
    QMetaObject::Connection m_connection;
};

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
    return Preset(path, locked, name);
}

void HotkeySetCommands::setCurrentPreset(const Preset &preset)
{
    m_currentPreset = preset;
    const QSignalBlocker blocker(m_comboBox);
    if (preset.isValid())
        m_comboBox->addNotInPathPreset(preset, false);
    m_comboBox->setCurrentPreset(preset);
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
    // The questions below change the list and its selection themselves.
    const QScopedValueRollback<bool> guard(m_isChoosing, true);
    if (!maybeSaveChanges()) {
        selectSilently(m_currentPreset);
        return;
    }
    if (!QFile::exists(chosen.path())) {
        HotkeySetDialogs::popupFileNotFoundInfoDlg(m_editor, chosen.name());
        const QSignalBlocker blocker(m_comboBox);
        m_comboBox->removePreset(chosen);
        m_comboBox->setCurrentPreset(m_currentPreset);
        return;
    }
    const LastLogLine lastLine;
    bool locked = false;
    QString name;
    if (!QvelShortcutManager::peekPresetMetadata(chosen.path(), locked, name)) {
        HotkeySetDialogs::showLoadFailure(m_editor, chosen.path(), lastLine.text());
        selectSilently(m_currentPreset);
        return;
    }
    m_manager->loadShortcutConfiguration(chosen.path());
}

void HotkeySetCommands::followLoadedConfiguration(const QString &path)
{
    setCurrentPreset(path.isEmpty() ? Preset() : describe(path));
    Q_EMIT setReplaced();
    unmarkModified(true);
}

bool HotkeySetCommands::loadPresetTransformations(const QString &path, Preset &preset) const
{
    bool locked = false;
    QString name;
    if (!QvelShortcutManager::peekPresetMetadata(path, locked, name)
        || !m_manager->loadShortcutTransforms(path))
        return false;
    preset = Preset(path, locked, name);
    return true;
}

void HotkeySetCommands::loadFromFile()
{
    if (!maybeSaveChanges())
        return;
    const QString path = HotkeySetDialogs::askLoadSetPath(m_editor);
    if (path.isEmpty())
        return;
    const LastLogLine lastLine;
    Preset preset;
    if (!loadPresetTransformations(QDir::cleanPath(path), preset)) {
        HotkeySetDialogs::showLoadFailure(m_editor, path, lastLine.text());
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

// Asking before changes go

bool HotkeySetCommands::fileNotFoundDoUserPrompt(const Preset &preset, bool *result,
                                                 Preset *replacement)
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
            *replacement = saved;
        }
        break;
    }
    case QMessageBox::Discard:
        *replacement = resetToDefault(missing);
        *result = true;
        break;
    default:
        break;
    }
    return true;
}

Preset HotkeySetCommands::resetToDefault(const Preset &missing)
{
    unmarkModified(true);
    const IPathManager *paths = IPathManager::get();
    const QString path = paths != nullptr
                                 ? paths->getDefaultConfigurationFile(ConfigType::HotkeySet)
                                 : QString();
    const Preset preset = path.isEmpty() ? Preset() : describe(path);
    m_manager->loadShortcutConfiguration(path);
    const QSignalBlocker blocker(m_comboBox);
    m_comboBox->removePreset(missing);
    m_comboBox->setCurrentPreset(preset);
    return preset;
}

bool HotkeySetCommands::maybeSaveChanges()
{
    if (!m_modified)
        return true;
    bool result = false;
    Preset replacement;
    if (fileNotFoundDoUserPrompt(m_currentPreset, &result, &replacement))
        return result;
    switch (HotkeySetDialogs::popupSaveChangesDlg(m_editor)) {
    case QMessageBox::Save:
        return saveChanges(m_currentPreset);
    case QMessageBox::Cancel:
        return false;
    case QMessageBox::Discard:
        discardChanges();
        return true;
    default:
        return true;
    }
}

bool HotkeySetCommands::maybeDiscardChanges()
{
    bool result = false;
    Preset replacement;
    if (fileNotFoundDoUserPrompt(m_currentPreset, &result, &replacement))
        return result;
    if (HotkeySetDialogs::popupResetChangesDlg(m_editor) != QMessageBox::Discard)
        return false;
    discardChanges();
    return true;
}

void HotkeySetCommands::discardChanges()
{
    Preset preset = m_currentPreset;
    const LastLogLine lastLine;
    if (!preset.isValid()) {
        m_manager->clearTransforms(); // no file holds anything to return to
    } else if (!loadPresetTransformations(preset.path(), preset)) {
        // What is in memory may be all that is left of the user's set.
        HotkeySetDialogs::showLoadFailure(m_editor, preset.path(), lastLine.text());
        return;
    } else {
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
    const bool saved = saveChanges(m_currentPreset);
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
    if (!m_manager->saveShortcutTransforms(path)) {
        HotkeySetDialogs::showSaveFailure(m_editor, path);
        return false;
    }
    unmarkModified(true);
    bool locked = false;
    QString name;
    if (QvelShortcutManager::peekPresetMetadata(path, locked, name))
        preset = Preset(path, locked, name);
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

void HotkeySetCommands::openFileLocation() const
{
    QvelCustomizeDialogHelper::showFileInFolder(m_currentPreset.path());
}

// Importing

void HotkeySetCommands::selectFileForConversion()
{
    if (!maybeSaveChanges())
        return;
    const QString path = HotkeySetDialogs::askLegacyPath(m_editor);
    if (!path.isEmpty())
        convertLegacyShortcuts(path);
}

void HotkeySetCommands::convertLegacyShortcuts(const QString &path)
{
    const QFileInfo input(path);
    const IPathManager *paths = IPathManager::get();
    const QString directory = paths != nullptr ? paths->getUserPresetDirectory() : QString();
    const QString fileName = input.completeBaseName() + QLatin1String(".hsx");
    const QString target = directory + QLatin1Char('/') + fileName;
    if (isLockedFile(target)) {
        HotkeySetDialogs::showLockedWarning(m_editor);
        return;
    }
    if (QFile::exists(target) && !HotkeySetDialogs::confirmReplacement(m_editor, fileName))
        return;
    Preset preset;
    if (!QvelShortcutManager::convertLegacyShortcuts(path, target)
        || !loadPresetTransformations(target, preset)) {
        QvelMessageLog::getInstance().logErrorMessage(
                QStringLiteral("Conversion of '%1' failed.").arg(path));
        HotkeySetDialogs::showConversionFailure(m_editor, input.fileName());
        Q_EMIT legacyHotkeySetConverted(false);
        return;
    }
    adoptLoadedSet(preset);
    HotkeySetDialogs::showConverted(m_editor, input.fileName(), fileName);
    Q_EMIT legacyHotkeySetConverted(true);
}

// Single files

void HotkeySetCommands::validateShortcutFile()
{
    const QString path = HotkeySetDialogs::askOpenPath(
            m_editor,
            editorText(QT_TRANSLATE_NOOP("QvelShortcutsWidget", "Validate Shortcut File")),
            HotkeySetDialogs::shortcutFileFilter(), QCoreApplication::applicationDirPath());
    if (path.isEmpty())
        return;
    HotkeySetDialogs::showValidation(
            m_editor,
            editorText(QT_TRANSLATE_NOOP("QvelShortcutsWidget", "Shortcut File Validation")),
            QvelShortcutManager::validateShortcuts(path));
}

void HotkeySetCommands::validateShortcutTransformationFile()
{
    const QString path = HotkeySetDialogs::askOpenPath(
            m_editor,
            editorText(
                    QT_TRANSLATE_NOOP("QvelShortcutsWidget", "Validate Shortcut Transform File")),
            HotkeySetDialogs::hotkeySetFilter(), QCoreApplication::applicationDirPath());
    if (path.isEmpty())
        return;
    HotkeySetDialogs::showValidation(
            m_editor,
            editorText(
                    QT_TRANSLATE_NOOP("QvelShortcutsWidget", "Shortcut Transform File Validation")),
            QvelShortcutManager::validateShortcutsTransforms(path));
}

void HotkeySetCommands::saveShortcuts()
{
    const QString path = HotkeySetDialogs::askSavePath(
            m_editor, editorText(QT_TRANSLATE_NOOP("QvelShortcutsWidget", "Save Shortcuts")),
            HotkeySetDialogs::shortcutFileFilter(), QStringLiteral("hsxb"));
    if (!path.isEmpty())
        m_manager->saveShortcuts(path);
}

void HotkeySetCommands::loadShortcuts()
{
    if (!maybeSaveChanges())
        return;
    const QString path = HotkeySetDialogs::askOpenPath(
            m_editor, editorText(QT_TRANSLATE_NOOP("QvelShortcutsWidget", "Load Shortcuts")),
            HotkeySetDialogs::shortcutFileFilter(), QString());
    if (path.isEmpty())
        return;
    const LastLogLine lastLine;
    if (!m_manager->loadShortcuts(path))
        HotkeySetDialogs::showLoadFailure(m_editor, path, lastLine.text());
    Q_EMIT rowsInvalidated();
    Q_EMIT selectedActionInvalidated();
}

} // namespace CUI
