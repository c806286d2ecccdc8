#pragma once

#include "ActionIdentifier.h"
#include "HotkeyChange.h"
#include "QShortcutsList.h"
#include "ShortcutTransformation.h"
#include "UiCustomizationsExport.h"

#include <QKeySequence>
#include <QObject>
#include <QString>

#include <cstddef>
#include <memory>
#include <unordered_map>
#include <vector>

namespace CUI {

class HotkeyFileInput;
class KnownFile;
struct LoadResult;
class RecordedSteps;
class ShortcutOwnerIndex;

/// Knows which hotkeys each action has: those of the base configuration, those in effect, and the
/// recorded steps (transformations) that lead from the one to the other.
///
/// The host creates it and hands it to models and widgets. It asks the installed ICuiActionManager
/// which actions exist and the installed IPathManager where files are; it works without either,
/// skipping what needs them. User-interface thread only; every signal is emitted directly, after
/// the state has changed. Nothing throws: problems are written to the QvelMessageLog.
///
/// A hotkey is the portable text of one key combination (Ctrl+Shift+Z, Num+5). Within one action
/// context one action has it, letter case ignored. Where an assignment conflicts with that, the new
/// action gets the hotkey and the old one loses it. Actions of different contexts may share it.
/// Texts are compared, not keys: HotkeyClaims finds two texts that mean one key.
class CUI_CORE_EXPORT QvelShortcutManager : public QObject
{
    Q_OBJECT

public:
    /// An empty store.
    explicit QvelShortcutManager(QObject *parent = nullptr);
    ~QvelShortcutManager() override;

    /// \name Queries
    /// They answer unknown actions with an empty text, the empty identifier or false.
    /// @{

    /// The hotkeys in effect. Only actions that hold at least one have an entry. The reference
    /// stays valid; what it leads to changes with every edit.
    const std::unordered_map<ActionIdentifier, QShortcutsList> &getShortcuts() const;
    /// The hotkeys of the base configuration, likewise.
    const std::unordered_map<ActionIdentifier, QShortcutsList> &getBaseShortcuts() const;
    /// The recorded steps, oldest first. The reference is valid until the next edit.
    const std::vector<ShortcutTransformation> &currentTransformations() const;
    /// The action's hotkeys in effect, joined with ", "; null when it has none.
    QString getShortcutsFromActionId(const ActionIdentifier &identifier) const;
    /// The action's hotkeys of the base configuration, likewise.
    QString getBaseShortcutsFromActionId(const ActionIdentifier &identifier) const;
    /// The action of that context that holds @p shortcut, letter case ignored; the empty identifier
    /// when there is none. Actions that the registry does not know are never found. When several
    /// hold it, the one with the smallest identifier is returned. Costs what the number of actions
    /// that hold the hotkey in any context costs, however many the store has.
    ActionIdentifier getActionIdFromShortcut(const QString &shortcut,
                                             unsigned long contextId) const;
    /// True while unsaved edits remain after cancelling opposite ones.
    bool isUserModified() const;
    /// True when an unsaved edit concerns the action.
    bool isUserModifiedAction(const ActionIdentifier &identifier);
    /// True when an unsaved edit concerns exactly that hotkey of the action; letter case counts.
    bool isUserModifiedShortcut(const ActionIdentifier &identifier, const QString &shortcut);
    /// @}

    /// \name Edits
    /// @{

    /// Gives @p shortcut to the action as a user's edit and records the step. Does nothing,
    /// silently, when the text is empty or the action already holds six hotkeys. @p description is
    /// the action's display text, kept in the step.
    ///
    /// Emits, in this order: shortcutUnassigned() for an action of the same context that loses the
    /// hotkey, shortcutAssigned(), shortcutTransformsCollapsed(), a change of the modified state,
    /// shortcutTransformAdded(). An action that the registry does not know is logged as a warning
    /// and assigned nothing; the step is recorded, and its signals emitted, all the same.
    void assignShortcut(const ActionIdentifier &identifier, const QString &shortcut,
                        const QString &description);

    /// Takes @p shortcut (compared exactly) from the action as a user's edit and records the step,
    /// whether or not the action holds it. Does nothing when the text is empty.
    ///
    /// Emits, in this order: shortcutUnassigned() when the action holds any hotkey,
    /// shortcutTransformsCollapsed(), a change of the modified state, shortcutTransformAdded().
    void unassignShortcut(const ActionIdentifier &identifier, const QString &shortcut,
                          const QString &description);

    /// Makes the hotkeys in effect the new base hotkeys and removes the recorded steps. Emits what
    /// clearTransforms() does.
    void applyTransforms();

    /// Drops the steps and returns to the base hotkeys. Emits shortcutsUnModified() if there were
    /// unsaved edits, then shortcutTransformsCleared(). Without steps it does nothing at all,
    /// except after a failed save that has cancelled saved steps.
    void clearTransforms();

    /// Cancels opposite steps among those from index @p start on: an assignment and a later removal
    /// of the same hotkey of the same action, or the reverse, and repetitions in between. Emits
    /// shortcutTransformsCollapsed() in any case. A start beyond the end changes nothing.
    void collapseTransforms(std::size_t start);

    /// Replaces the recorded steps by @p steps as one unsaved edit: returns to the base hotkeys and
    /// replays them. Those that the saved steps begin with still count as saved. An assignment to
    /// an action that already holds six hotkeys is refused, as in loading a set.
    ///
    /// Emits shortcutTransformsCleared(), then for each step the signals of
    /// loadShortcutTransforms(), then shortcutTransformsCollapsed() if there are unsaved steps, and
    /// a change of the modified state.
    void replaceTransforms(const std::vector<ShortcutTransformation> &steps);

    /// Returns to what was before @p change: the hotkeys of the actions with the order of each
    /// list, the recorded steps and the modified state. A save since then stays in force: the store
    /// is unmodified exactly where its steps are those that were saved last. The store must be as
    /// @p change has left it. Does nothing for a Reset.
    ///
    /// Emits a change of the modified state, shortcutTransformsCleared(), and
    /// shortcutTransformsCollapsed() if there are steps.
    void undoChange(const HotkeyChange &change);
    /// Does @p change again after undoChange(). Emits the same signals.
    void redoChange(const HotkeyChange &change);

    /// Empties the store. Emits shortcutsUnModified() if there were unsaved edits, then
    /// shortcutsCleared(). When no action has a hotkey, it does nothing at all.
    void clearShortcuts();
    /// @}

    /// \name Files
    /// Paths are local file paths; with an empty one, saving, loading one file and peeking do
    /// nothing. Files are written as a whole or not at all: when writing fails, the old file stays.
    /// Lines end with a line feed on every system; any line end is read. A description loses the
    /// characters that XML cannot hold; a hotkey or an identifier with such a character makes the
    /// save fail, with an error in the log.
    /// @{

    /// Writes the base hotkeys as a base hotkey file, ordered by action. Returns
    /// without a message in the log when the file cannot be opened or written. A result that does
    /// not follow the schema is reported on the process's debug output.
    void saveShortcuts(const QString &path) const;

    /// Replaces the store's contents by a base hotkey file. Returns true when all of it was read.
    /// A file that does not follow its schema is logged as an error and leaves the store as it is;
    /// what stands before an error inside a file is kept. Emits what clearShortcuts() does, then
    /// shortcutAssigned() for each hotkey.
    bool loadShortcuts(const QString &path);

    /// Writes the recorded steps as a hotkey set file and makes them the unmodified state. The
    /// steps are cancelled first, even when the file can then not be written. Emits
    /// shortcutTransformsCollapsed(), then shortcutsUnModified() if there were unsaved edits, then
    /// shortcutTransformsSaved(). Returns false, with the old file untouched and the store as
    /// modified as before, when it cannot be written. If saved steps
    /// were cancelled by unsaved ones and saving fails, the store remains modified, even after
    /// further edits, until it is saved, cleared or loaded.
    bool saveShortcutTransforms(const QString &path);

    /// Replaces the recorded steps by those of a hotkey set file and applies them, as unmodified
    /// state. Returns true when all of it was read. A file that does not follow its schema is
    /// logged as an error and changes nothing; steps before an error inside a file are kept. An
    /// assignment to an action that already holds six hotkeys is not recorded, but stays among
    /// refusedTransforms().
    ///
    /// Emits what clearTransforms() does, then for each step shortcutUnassigned() and
    /// shortcutAssigned() as an edit would, and shortcutTransformAdded(); in the end
    /// shortcutTransformsLoaded().
    bool loadShortcutTransforms(const QString &path);

    /// The file that the recorded steps were last loaded from or saved to, whatever edits and saves
    /// under other names came before; empty when there is none. After loadShortcutConfiguration()
    /// it is the path of the set, even if the file could not be loaded.
    QString transformsFile() const;
    /// True when transformsFile() exists and no longer holds what it held when it was loaded or
    /// saved, or when there was no such file then. Reads the file, and judges by its contents.
    bool hasTransformsFileChanged() const;
    /// Takes the contents that transformsFile() has now as known and keeps the store as it is, so
    /// that the next save replaces them. The store is modified from now on, until it is saved,
    /// cleared or loaded. Emits shortcutsModified() if it was not.
    void keepOverTransformsFile();

    /// The assignments of the loaded set that were refused because their actions held six hotkeys,
    /// in the order of the file. They are no recorded steps and not in effect.
    std::vector<ShortcutTransformation> refusedTransforms() const;
    /// The recorded steps with the refused ones at their places in the file.
    std::vector<ShortcutTransformation> allTransforms() const;
    /// Whether saveShortcutTransforms() writes allTransforms(), so that nothing of a set is lost
    /// that was made with other actions or another base; a refused step takes effect once the set
    /// is loaded where its action has room. If not, which is the default, it writes the recorded
    /// steps alone.
    void setKeepsRefusedTransforms(bool keeps);
    /// What was set; false at first.
    bool keepsRefusedTransforms() const;

    /// Reads the steps of a hotkey set file, without a store: all of them, whatever actions there
    /// are and however many hotkeys they can hold. False when the file cannot be opened or does not
    /// follow its schema (logged as an error); @p steps is then unchanged. False as well when the
    /// file is damaged behind some steps, which @p steps then has.
    static bool readTransforms(const QString &path, std::vector<ShortcutTransformation> &steps);
    /// The same, with what peekPresetMetadata() says of the file; opens it once.
    static bool readTransforms(const QString &path, std::vector<ShortcutTransformation> &steps,
                               bool &locked, QString &name);
    /// Reads all hotkeys of a legacy keyboard file as assignments: what convertLegacyShortcuts()
    /// would write if the legacy default file had none. False when the file cannot be opened or
    /// does not follow its schema (logged as an error); @p steps is then unchanged.
    static bool readLegacyShortcuts(const QString &path,
                                    std::vector<ShortcutTransformation> &steps);
    /// Writes @p steps as they are as a hotkey set file that is not locked. False, with the old
    /// file untouched, when it cannot be written.
    static bool writeTransforms(const QString &path,
                                const std::vector<ShortcutTransformation> &steps);

    /// Reads what a hotkey set file says about itself. False when it cannot be opened or does not
    /// follow its schema (logged as an error); @p locked and @p name are then unchanged. A set
    /// without description is named by its file name without the last suffix.
    static bool peekPresetMetadata(const QString &path, bool &locked, QString &name);

    /// Writes to @p out the hotkey set that expresses the legacy keyboard file @p in as changes
    /// against the host's legacy default file: what the user added, then what the user had removed.
    /// False when a file cannot be read or written or does not follow its schema; the log says why,
    /// and an existing @p out stays. No store is touched.
    static bool convertLegacyShortcuts(const QString &in, const QString &out);

    /// Builds the whole configuration: the host's base files in their order, the registry's default
    /// accelerators, and the hotkey set @p path (may be empty) on top, and makes @p path the
    /// current set of the path manager. A base file of suffix hsxb replaces what came before it,
    /// one of suffix hsx is added to it; others are ignored. A file that fails contributes what it
    /// would contribute to the single load.
    ///
    /// Emits shortcutConfigurationAboutToLoad(), the signals of each of these steps, and
    /// shortcutConfigurationLoaded().
    void loadShortcutConfiguration(const QString &path);

    /// loadShortcutConfiguration() with the hotkey set that the path manager names as current.
    void loadCurrentShortcutConfiguration();
    /// @}

    /// \name Validation
    /// @{

    /// True when @p file follows the XML schema @p schemaFile. A file that does not is logged as an
    /// error with its place; one that cannot be opened is not. No file makes the check read another
    /// one or open a connection; document types, nesting beyond 100 levels, more than 64 MiB and
    /// the like are refused.
    static bool validateXml(const QString &file, const QString &schemaFile);
    /// validateXml() of a base hotkey file with HotkeyMappingSchema.xsd beside the executable.
    static bool validateShortcuts(const QString &path);
    /// validateXml() of a hotkey set file with HotkeyTransformationSchema.xsd beside the
    /// executable.
    static bool validateShortcutsTransforms(const QString &path);
    /// validateXml() of a legacy keyboard file with LegacyKbdxSchema.xsd beside the executable.
    static bool validateLegacyKbdx(const QString &path);
    /// @}

    /// \name Key names
    /// @{

    /// Converts the first key combination of @p shortcut to an accelerator of the Windows
    /// accelerator table. @p fVirt gets the sum of 1 (virtual key), 2 (always), 4 (Shift),
    /// 8 (Ctrl) and 16 (Alt); Meta is ignored. False for an empty text (fVirt 2, virtualKey 0) and
    /// for a key that has no virtual key (F1 among them).
    static bool keySequenceToVirtualKey(const QString &shortcut, int &virtualKey, int &fVirt);
    /// The hotkey text of an accelerator. A code that is no known virtual key, or that @p fVirt
    /// does not mark as one, is taken as a character.
    static QString virtualKeyToStr(int virtualKey, int fVirt);
    /// The virtual key of a punctuation character of the US layout or of the section sign; 0 for
    /// others.
    static int keyToOEM(int key);
    /// The punctuation character of a virtual key; 0 for others.
    static int oemToKey(int virtualKey);
    /// The name of the keypad qualifier, as it stands before the first "+" of a hotkey text.
    static const QString getNumPadKeyName(QKeySequence::SequenceFormat format);
    /// @}

Q_SIGNALS:
    /// A hotkey was given to an action, in an edit or while loading; also when the action held it
    /// already.
    void shortcutAssigned(const CUI::ActionIdentifier &identifier, const QString &shortcut);
    /// A hotkey was taken from an action that held any; also when it was not the one.
    void shortcutUnassigned(const CUI::ActionIdentifier &identifier, const QString &shortcut);
    /// A step was recorded, in an edit or while loading a hotkey set. The last signal of an edit.
    void shortcutTransformAdded(const CUI::ShortcutTransformation &transformation);
    /// The steps were dropped, or replaced by other ones, also in undoing and redoing; listeners
    /// read the store again. Not emitted when there were none to drop.
    void shortcutTransformsCleared();
    /// The steps have been cancelled against each other; emitted even when none was.
    void shortcutTransformsCollapsed();
    /// The store was emptied. Not emitted when it was empty.
    void shortcutsCleared();
    /// The recorded steps are those of the file @p path, as far as it could be read: the last
    /// signal of loadShortcutTransforms(), also within loadShortcutConfiguration(). Not emitted for
    /// sets that are part of the base.
    void shortcutTransformsLoaded(const QString &path);
    /// The recorded steps have been saved to the file @p path: the last signal of
    /// saveShortcutTransforms().
    void shortcutTransformsSaved(const QString &path);
    /// A call of this class, or a HotkeyEditGroup, has ended that changed or recorded something;
    /// emitted after all its other signals. Not emitted by undoChange() and redoChange(). What
    /// slots edit meanwhile belongs to the same change.
    void hotkeysChanged(const CUI::HotkeyChange &change);
    /// The first unsaved edit was made. Never emitted twice in a row.
    void shortcutsModified();
    /// No unsaved edit is left. Never emitted twice in a row.
    void shortcutsUnModified();
    /// A configuration is about to be loaded; the store still holds the old one.
    void shortcutConfigurationAboutToLoad(const QString &path);
    /// The configuration has been loaded, as far as its files could be read.
    void shortcutConfigurationLoaded(const QString &path);

private:
    friend class HotkeyEditGroup;
    friend class HotkeyEdits;
    struct ChangeRecord;
    class ChangeScope;
    using ShortcutMap = std::unordered_map<ActionIdentifier, QShortcutsList>;
    friend class HotkeySetCommands; // shows the user what became of a file

    /// Decides the conflict when another action of the context holds the hotkey: that one loses it.
    bool assignShortcutInternal(const ActionIdentifier &identifier, const QString &shortcut,
                                bool userModification, bool checkRoom);
    void unassignShortcutInternal(const ActionIdentifier &identifier, const QString &shortcut,
                                  bool userModification);
    bool hasRoomForShortcuts(const ActionIdentifier &identifier) const;
    void restate(const ShortcutTransformation &step);
    void markStepsSaved();
    void checkModifiedAndEmit();
    void announceModified(bool isModified);
    void dropTransforms();
    bool saveBase(const QString &path) const;
    LoadResult loadBase(const QString &path);
    LoadResult loadSet(HotkeyFileInput &file);
    LoadResult loadTransforms(HotkeyFileInput &file);
    void loadConfiguration(const QString &path, HotkeyFileInput *set);
    bool recordStep(const ShortcutTransformation &step);
    void applyStep(const ShortcutTransformation &step);
    void loadBaseFiles();
    void assignDefaultAccelerators();

    void beginGroup(const QString &text);
    void beginChange(HotkeyChange::Kind kind);
    void endChange();
    void noteStep(const ShortcutTransformation &step);
    void rememberHotkeys(const ActionIdentifier &identifier);
    void rememberAllHotkeys();
    void restore(const HotkeyChange &change, bool forward);
    void setHotkeys(const ActionIdentifier &identifier, const QShortcutsList &hotkeys);

    bool modified = false;
    ShortcutMap currentShortcuts;
    ShortcutMap baseShortcuts;
    bool keepsRefused = false;
    std::unique_ptr<RecordedSteps> transformations;
    std::unique_ptr<KnownFile> setFile;
    std::unique_ptr<ShortcutOwnerIndex> ownerIndex;
    std::unique_ptr<ChangeRecord> change;
};

} // namespace CUI
