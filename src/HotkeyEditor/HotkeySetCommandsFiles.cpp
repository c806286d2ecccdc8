#include "CurrentSet.h"
#include "EditorText.h"
#include "HotkeySetCommands.h"
#include "HotkeySetDialogs.h"
#include "InstalledPaths.h"
#include "LoadResult.h"
#include "QvelCustomizeDialogHelper.h"
#include "QvelMessageLog.h"
#include "QvelShortcutManager.h"

#include <QCoreApplication>
#include <QDesktopServices>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QPointer>
#include <QUrl>

namespace CUI {

void HotkeySetCommands::openFileLocation() const
{
    const QString path = m_current->preset().path();
    if (QFile::exists(path)) {
        QvelCustomizeDialogHelper::showFileInFolder(path);
        return;
    }
    QString directory = QFileInfo(path).path();
    if (path.isEmpty() || !QFileInfo(directory).isDir())
        directory = installedPaths().getUserPresetDirectory();
    if (QFileInfo(directory).isDir())
        QDesktopServices::openUrl(QUrl::fromLocalFile(directory));
}

// Importing

void HotkeySetCommands::selectFileForConversion()
{
    const QString path = HotkeySetDialogs::askLegacyPath(m_editor);
    if (!path.isEmpty() && maybeSaveChanges())
        convertLegacyShortcuts(path);
}

void HotkeySetCommands::convertLegacyShortcuts(const QString &path)
{
    const QString directory = installedPaths().getUserPresetDirectory();
    if (directory.isEmpty()) { // would be taken for the root directory
        failConversion(path);
        return;
    }
    const QFileInfo input(path);
    const QString fileName = input.completeBaseName() + QLatin1String(".hsx");
    const QString target = directory + QLatin1Char('/') + fileName;
    if (isLockedFile(target)) {
        HotkeySetDialogs::showLockedWarning(m_editor);
        return;
    }
    if (QFile::exists(target) && !HotkeySetDialogs::confirmReplacement(m_editor, fileName))
        return;
    if (!QvelShortcutManager::convertLegacyShortcuts(path, target)) {
        failConversion(path);
        return;
    }
    const QPointer<HotkeySetCommands> self(this);
    HotkeySetDialogs::showConverted(m_editor, input.fileName(), fileName);
    if (!self.isNull())
        loadConverted(target);
    if (!self.isNull())
        Q_EMIT legacyHotkeySetConverted(true);
}

void HotkeySetCommands::failConversion(const QString &path)
{
    QvelMessageLog::getInstance().logErrorMessage(
            QStringLiteral("Conversion of '%1' failed.").arg(path));
    const QPointer<HotkeySetCommands> self(this);
    HotkeySetDialogs::showConversionFailure(m_editor, QFileInfo(path).fileName());
    if (!self.isNull())
        Q_EMIT legacyHotkeySetConverted(false);
}

// The converted set becomes the current one: its steps are in the store, and the next save must not
// write them into the file of another set.
void HotkeySetCommands::loadConverted(const QString &path)
{
    Preset preset;
    const LoadResult loaded = loadPresetTransformations(QDir::cleanPath(path), preset);
    if (loaded.isComplete()) {
        m_current->adopt(preset);
        return;
    }
    m_current->refreshList();
    HotkeySetDialogs::showLoadFailure(m_editor, path, loaded.fault);
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
            m_editor, QT_TRANSLATE_NOOP("QvelShortcutsWidget", "Shortcut File Validation"),
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
            QT_TRANSLATE_NOOP("QvelShortcutsWidget", "Shortcut Transform File Validation"),
            QvelShortcutManager::validateShortcutsTransforms(path));
}

void HotkeySetCommands::saveShortcuts()
{
    const QString path = HotkeySetDialogs::askSavePath(
            m_editor, editorText(QT_TRANSLATE_NOOP("QvelShortcutsWidget", "Save Shortcuts")),
            HotkeySetDialogs::shortcutFileFilter(), QStringLiteral("hsxb"));
    if (path.isEmpty())
        return;
    if (isLockedFile(path)) {
        HotkeySetDialogs::showLockedWarning(m_editor);
        return;
    }
    if (!m_manager->saveBase(path))
        HotkeySetDialogs::showSaveFailure(m_editor, path);
}

void HotkeySetCommands::loadShortcuts()
{
    const QString path = HotkeySetDialogs::askOpenPath(
            m_editor, editorText(QT_TRANSLATE_NOOP("QvelShortcutsWidget", "Load Shortcuts")),
            HotkeySetDialogs::shortcutFileFilter(), QString());
    if (path.isEmpty() || !maybeSaveChanges())
        return;
    const LoadResult loaded = m_manager->loadBase(path);
    if (loaded.isReplaced()) // the next save must not remove the steps from the set's file
        m_current->leave();
    Q_EMIT m_current->rowsInvalidated();
    Q_EMIT m_current->selectedActionInvalidated();
    if (!loaded.isComplete())
        HotkeySetDialogs::showLoadFailure(m_editor, path, loaded.fault);
}

} // namespace CUI
