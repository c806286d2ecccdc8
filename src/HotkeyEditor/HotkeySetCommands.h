#pragma once

#include "Preset.h"

#include <QObject>
#include <QString>

class QWidget;

namespace CUI {

class CurrentSet;
class QvelShortcutManager;
struct LoadResult;

/// The commands of the hotkey editor that load, save and convert whole sets, with their questions.
/// May be deleted, with the editor, while one of its dialogs is open: the command ends then, and
/// one that asks a question returns false.
class HotkeySetCommands : public QObject
{
    Q_OBJECT

public:
    /// @p editor is the parent of every dialog. All arguments must outlive the object.
    HotkeySetCommands(QWidget *editor, CurrentSet *current, QvelShortcutManager *manager);

    /// The user has chosen another set in the list. Asks before unsaved changes are lost; selects
    /// the current set again when the user cancels or the chosen one cannot be loaded.
    void choosePreset(const Preset &chosen);
    /// True while choosePreset() runs, also while one of its questions is open.
    bool isChoosing() const { return m_isChoosing; }

    bool maybeSaveChanges();
    bool maybeDiscardChanges();
    void discardChanges();
    bool saveCurrent();
    bool saveAs();
    void loadFromFile();
    void selectFileForConversion();
    void openFileLocation() const;
    void validateShortcutFile();
    void validateShortcutTransformationFile();
    void saveShortcuts();
    void loadShortcuts();

Q_SIGNALS:
    void modificationsSaved();
    void legacyHotkeySetConverted(bool success);

private:
    LoadResult loadPresetTransformations(const QString &path, Preset &preset) const;
    bool fileNotFoundDoUserPrompt(const Preset &preset, bool *result);
    void resetToDefault(const Preset &missing);
    bool saveChanges();
    bool saveAsChanges();
    void convertLegacyShortcuts(const QString &path);
    void failConversion(const QString &path);
    void loadConverted(const QString &path);
    void loadChosen(const Preset &chosen);
    static bool isLockedFile(const QString &path);

    QWidget *m_editor;
    CurrentSet *m_current;
    QvelShortcutManager *m_manager;
    bool m_isChoosing = false;
};

} // namespace CUI
