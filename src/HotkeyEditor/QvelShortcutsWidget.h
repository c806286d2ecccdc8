#pragma once

#include "ActionIdentifier.h"
#include "QvelActionItemModel.h"
#include "UiCustomizationsExport.h"

#include <QColor>
#include <QIcon>
#include <QWidget>

#include <memory>

class QLabel;

namespace CUI {

class QvelShortcutManager;
class VelAction;

/// The hotkey editor.
///
/// On the left the actions, to be searched, filtered and sorted; on the right the selected action
/// with its hotkeys, the field in which a new one is typed, and its conflict; on top the hotkey set
/// with the commands that save, load, reset and import sets. Every edit is made in the store, and
/// the widget follows the signals of the store. While a hotkey is being typed, no shortcut of the
/// host fires; Ctrl+Tab and Ctrl+Shift+Tab move the focus out of the field, which takes all other
/// keys. In a dialog, Return activates the host's default button.
///
/// The menu of a row (right button, Menu key, Shift+F10) copies its hotkeys, searches for one, and
/// resets the action, its group or all to the base, as one command of a QvelHotkeyHistory. The tool
/// tip of a row whose hotkeys differ from the base names those of the base.
///
/// The host places it in a dialog, and calls maybeSaveChanges() before it closes that. The widget
/// may be deleted while one of its dialogs is open, except while a file dialog asks whether to
/// replace a file: the function that opened the dialog then returns, with false if it has a result.
/// The list of sets follows the directory of the user's sets, which the installed IPathManager
/// names when the widget is created and which may be created later. The texts follow a change of
/// the language.
class CUI_EXPORT QvelShortcutsWidget : public QWidget
{
    Q_OBJECT

public:
    /// Shows the set and the unsaved edits that the store has. Owns neither @p model nor
    /// @p manager, which must not be null and must outlive it.
    QvelShortcutsWidget(QvelActionItemModel *model, QvelShortcutManager *manager,
                        QWidget *parent = nullptr);
    ~QvelShortcutsWidget() override;

    /// \name Looks
    /// @{

    /// The colour of hotkeys that unsaved edits concern, and of the marker of unsaved changes; red
    /// at first.
    void setUserModifiedColor(const QColor &color);
    /// The colour of other hotkeys that the base configuration does not have; dark green at first.
    void setTransformShortcutsColor(const QColor &color);
    /// The mark of sets that cannot be written.
    void setPresetComboBoxItemIcon(const QIcon &icon);
    /// The icon of the button that opens the menu of commands for sets.
    void setToolButtonPresetOptionsIcon(const QIcon &icon);
    /// The icon of the button that saves the set.
    void setToolButtonSavePresetIcon(const QIcon &icon);
    /// @}

    /// \name The list of actions
    /// @{

    /// Lists only actions of that context. Nothing happens when the list of contexts lacks it.
    void setCurrentContext(unsigned long contextId);
    /// Chooses an entry of the hotkey filter: a QvelSortFilterProxyModel::HotkeyFilter.
    void setHotkeyFilter(int index);
    /// Searches the list for @p hotkey, in portable form, as if its keys had been pressed in the
    /// search field. An empty text ends the search.
    void searchForHotkey(const QString &hotkey);
    /// Sorts the list by that column, in ascending order.
    void sortActionTreeByColumn(QvelActionItemModel::ActionTreeColumns column);
    /// Reads the actions of the registry again. Column widths stay, and so does the selected
    /// action; when it is no longer registered, none is selected.
    void reloadActionsList();
    /// @}

    /// \name The selected action
    /// @{

    /// Selects an action, unless the list of actions lacks it. With @p focus it ends a search and
    /// puts the keyboard focus on the field of the new hotkey.
    void setCurrentAction(const ActionIdentifier &id, bool focus);
    /// The selected action, or null. Valid until the registry changes.
    VelAction *currentAction() const;
    /// Leaves no action selected.
    void clearSelection();
    /// Forgets the hotkey that is being typed, and reads the assigned ones again.
    void resetSelectedActionFields();
    /// @}

    /// True while unsaved edits exist.
    bool isModified() const;

public Q_SLOTS:
    /// \name Hotkey sets
    /// Each asks the user where it says so; a cancelled dialog changes nothing. Failures are shown
    /// in a message box. Locked sets are never overwritten.
    /// @{

    /// Asks whether unsaved edits are to be saved or dropped. False when the user cancels or the
    /// set cannot be saved: the caller must stop then. True at once without unsaved edits.
    bool maybeSaveChanges();
    /// Asks whether unsaved edits are to be dropped, whether or not there are any. False when the
    /// user cancels.
    ///
    /// When the file of the current set no longer exists, this and, with unsaved edits,
    /// maybeSaveChanges() ask instead whether the hotkeys are to be saved elsewhere or the default
    /// set is to be loaded. False when the user cancels or they cannot be saved.
    bool maybeDiscardChanges();
    /// Loads the current set from its file, without asking.
    void discardChanges();
    /// Asks for a keyboard file of an older release, then about unsaved edits and before a set of
    /// the same name is replaced; converts the file to a set of the user, loads that and makes it
    /// the current one. Emits legacyHotkeySetConverted() unless the user cancels or the set of that
    /// name is locked.
    void selectFileForConversion();
    /// Asks for a file and reports whether it is a valid base hotkey file.
    void validateShortcutFile();
    /// Asks for a file and reports whether it is a valid hotkey set.
    void validateShortcutTransformationFile();
    /// Asks for a place, saves the edits there as a new set and makes it the current one.
    void saveShortcutsTransformation();
    /// Asks for a hotkey set, then about unsaved edits, and loads it.
    void loadShortcutsTransformation();
    /// Asks for a place and writes the base hotkeys there. The current set stays what it is, and so
    /// do unsaved edits.
    void saveShortcuts();
    /// Asks for a base hotkey file, then about unsaved edits, and replaces all hotkeys by it. They
    /// belong to no set then: none is the current one, and the next save asks for a place.
    void loadShortcuts();
    /// @}

    /// \name Recorded steps
    /// @{

    /// Shows the window that lists the recorded steps, or hides it.
    void transformationListWidget();
    /// Makes the current hotkeys the base and forgets the steps.
    void applyCurrentTransformation();
    /// @}

    /// Shows the current set as modified. Emits presetModified() if it was not.
    void markModified();
    /// Shows the current set as unmodified. Emits presetModified() if it was not. With
    /// @p invalidate all rows are repainted.
    void unmarkModified(bool invalidate);

Q_SIGNALS:
    /// The first unsaved edit was made, or none is left. Never emitted twice in a row with the same
    /// value.
    void presetModified(bool modified);
    /// The edits have been saved to a set.
    void modificationsSaved();
    /// An import has ended. @p success is true when the file was converted.
    void legacyHotkeySetConverted(bool success);

protected:
    /// Escape in the search field ends a search by names.
    bool eventFilter(QObject *watched, QEvent *event) override;
    /// Takes over the texts of another language.
    void changeEvent(QEvent *event) override;

private:
    class Private;
    std::unique_ptr<Private> d;
};

} // namespace CUI
