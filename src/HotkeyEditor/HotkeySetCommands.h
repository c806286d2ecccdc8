#pragma once

#include "Preset.h"

#include <QObject>
#include <QString>

class QWidget;

namespace CUI {

class QvelPresetComboBox;
class QvelShortcutManager;
struct LoadResult;

/// The commands of the hotkey editor that act on whole sets, with their questions. Keeps which set
/// is loaded and whether it has unsaved changes. May be deleted, with the editor, while one of its
/// dialogs is open: the command ends then, and one that asks a question answers false.
class HotkeySetCommands : public QObject
{
    Q_OBJECT

public:
    /// @p editor is the parent of every dialog. All arguments must outlive the object.
    HotkeySetCommands(QWidget *editor, QvelPresetComboBox *comboBox, QvelShortcutManager *manager);

    const Preset &currentPreset() const { return m_currentPreset; }
    bool isModified() const { return m_modified; }

    /// Takes over the set and the modified state that the store has when the editor is opened.
    void showStoreState();

    void markModified();
    void unmarkModified(bool invalidate);
    /// The store says that no unsaved edit is left.
    void followUnmodified();

    /// The user has chosen another entry of the combo box. Asks before unsaved changes go; puts the
    /// selection back when the user cancels or the set cannot be loaded.
    void choosePreset(int index);
    /// The store has loaded a configuration.
    void followLoadedConfiguration(const QString &path);
    /// Lists the sets anew; what is loaded stays selected, or nothing if no set is.
    void refreshList();
    /// The editor is going. A combo box whose signal has led to a question that is still open is
    /// needed by the toolkit until the question has returned: it then goes later than the editor.
    void leaveComboBox();

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
    /// The colours of all rows of the table may have changed.
    void rowsInvalidated();
    /// The assigned hotkeys of the selected action may have changed.
    void selectedActionInvalidated();
    /// Another set is loaded; nothing is selected any more.
    void setReplaced();
    void presetModified(bool modified);
    void modificationsSaved();
    void legacyHotkeySetConverted(bool success);

private:
    LoadResult loadPresetTransformations(const QString &path, Preset &preset) const;
    bool fileNotFoundDoUserPrompt(const Preset &preset, bool *result);
    void resetToDefault(const Preset &missing);
    bool saveChanges(Preset &preset);
    bool saveAsChanges(Preset &preset);
    void convertLegacyShortcuts(const QString &path);
    void failConversion(const QString &path);
    void loadConverted(const QString &path);
    void loadChosen(const Preset &chosen);
    void adoptLoadedSet(const Preset &preset);
    void leaveSet();
    void setCurrentPreset(const Preset &preset);
    void selectSilently(const Preset &preset);
    void enlist(const Preset &preset);
    Preset describe(const QString &path) const;
    static bool isLockedFile(const QString &path);

    QWidget *m_editor;
    QvelPresetComboBox *m_comboBox;
    QvelShortcutManager *m_manager;
    Preset m_currentPreset;
    bool m_modified = false;
    bool m_isChoosing = false;
};

} // namespace CUI
