#pragma once

#include "Preset.h"

#include <QObject>
#include <QString>

namespace CUI {

class QvelPresetComboBox;
class QvelShortcutManager;

/// The hotkey set that the editor shows: which one it is, whether it has unsaved changes, and its
/// entry in the list of sets. The editor keeps these nowhere else. The list is changed without
/// signals of the combo box.
class CurrentSet : public QObject
{
    Q_OBJECT

public:
    /// @p comboBox and @p manager must outlive the object; @p parent owns it.
    CurrentSet(QvelPresetComboBox *comboBox, QvelShortcutManager *manager, QObject *parent);

    /// The set; invalid when what the store holds belongs to no set.
    const Preset &preset() const { return m_preset; }
    bool isModified() const { return m_modified; }

    /// Shows the set and the modified state that the store has when the editor is opened.
    void showStoreState();

    /// Emits presetModified() unless the set is modified already.
    void markModified();
    /// With @p invalidate emits rowsInvalidated() first, then does what clearModified() does.
    void unmarkModified(bool invalidate);
    /// Emits selectedActionInvalidated(), then presetModified(), if the set was modified.
    void clearModified();

    /// The store has loaded a configuration: its set is current now, or none for an empty path.
    /// Emits setReplaced(), then what unmarkModified() emits.
    void followLoadedConfiguration(const QString &path);
    /// The steps of @p preset have been loaded from its file: it is current now, also at the next
    /// start. Emits as followLoadedConfiguration() does.
    void adopt(const Preset &preset);
    /// Makes @p preset the current one, also at the next start, after it was saved to a new file.
    void adoptSaved(const Preset &preset);
    /// What the store has now belongs to no set.
    void leave();
    /// The file of the current set has been written or read again; @p preset is what it says now.
    void update(const Preset &preset);

    /// Lists the sets again; the current one stays selected, or nothing if there is none.
    void refreshList();
    /// Selects the current set, after the user has chosen another one that is not to be loaded.
    void select();
    /// Takes @p preset out of the list and selects @p selected.
    void removeFromList(const Preset &preset, const Preset &selected);
    /// The set in a file, as it is listed or, if it is not, as its file describes it.
    Preset presetOfFile(const QString &path) const;
    /// A set of that name. The names of shipped sets are translated.
    static Preset namedPreset(const QString &path, bool locked, const QString &name);

Q_SIGNALS:
    /// The colours of all rows of the table may have changed.
    void rowsInvalidated();
    /// The assigned hotkeys of the selected action may have changed.
    void selectedActionInvalidated();
    /// Another set is loaded; nothing is selected any more.
    void setReplaced();
    void presetModified(bool modified);

private:
    void show(const Preset &preset);
    void enlist(const Preset &preset);

    QvelPresetComboBox *m_comboBox;
    QvelShortcutManager *m_manager;
    Preset m_preset;
    bool m_modified = false;
};

} // namespace CUI
