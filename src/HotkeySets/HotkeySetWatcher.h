#pragma once

#include "HotkeySetMerge.h"
#include "UiCustomizationsExport.h"

#include <QObject>
#include <QString>

#include <memory>

namespace CUI {

class QvelShortcutManager;

/// Watches the file of the hotkey set in a store (QvelShortcutManager::transformsFile()) and lets a
/// store without unsaved edits follow what other programs write to it.
///
/// A file is judged by its contents alone. Replacing it by another one, writing into it, doing so
/// behind a link, changing the link, deleting the file or its folder, and bringing it
/// back are noticed within a second, as far as the file system reports changes; that the store
/// saved it, or that something else wrote what is there already, is not. A file that cannot be
/// loaded, such as one that is only half written, changes nothing; it is looked at again when it
/// changes again.
///
/// The store is reloaded from the file by QvelShortcutManager::loadShortcutTransforms(), whose
/// signals the models and widgets follow; they keep their selection and scroll position. This also
/// drops an undo history. With unsaved edits the store is left alone: state() becomes Changed, and
/// the host asks the user for one of keepMine(), loadTheirs() and merge(). Once such edits have
/// been undone, the store follows.
///
/// Uses an event loop, and lives in the user-interface thread.
class CUI_CORE_EXPORT HotkeySetWatcher : public QObject
{
    Q_OBJECT

public:
    /// How the file compares to what the store loaded from it or saved to it.
    enum class State {
        NoFile, ///< the steps of the store come from no file
        Unchanged, ///< it holds the same
        Changed, ///< it holds another set, and the store has unsaved edits
        Unreadable, ///< it holds something else that is no hotkey set
        Missing, ///< it is not there
    };
    Q_ENUM(State)

    /// Watches the file of @p store, whichever it is, from now on. The store is not owned; once it
    /// is destroyed, nothing is watched. It should have no unsaved edits yet: a merge takes what it
    /// has now for what its file holds.
    explicit HotkeySetWatcher(QvelShortcutManager *store, QObject *parent = nullptr);
    ~HotkeySetWatcher() override;

    /// What is watched; empty when there is no file.
    QString path() const;
    /// How the file was when it was last looked at.
    State state() const;

    /// Looks at the file now instead of within a second, and acts on what it finds.
    void check();

    /// \name What to do with a changed file
    /// @{

    /// Keeps the edits: the file counts as known, and the next save replaces it. state() becomes
    /// Unchanged.
    void keepMine();
    /// Drops the edits and loads the file. False, with the store as it was and an error in the log,
    /// when the file cannot be loaded.
    bool loadTheirs();
    /// Merges the edited set of the store with the file, starting from the set that the store
    /// loaded or saved last. Nothing changes until applyMerge(). When the file cannot be loaded,
    /// which is logged as an error, it counts as unchanged.
    HotkeySetMerge merge();
    /// Loads the file and replaces its steps by the result of @p merge, with the choices made in
    /// it, as one unsaved edit; @p text names the command of a QvelHotkeyHistory. False, with the
    /// store as it was, when the file cannot be loaded or has changed since merge(), whose result
    /// would then lack something.
    bool applyMerge(const HotkeySetMerge &merge, const QString &text = QString());
    /// @}

Q_SIGNALS:
    /// state() has changed.
    void stateChanged(CUI::HotkeySetWatcher::State state);
    /// The store followed its file, without having been asked to. Comes after stateChanged() if the
    /// file was not Unchanged before.
    void setReloaded(const QString &path);

private:
    class Private;

    const std::unique_ptr<Private> d;
};

} // namespace CUI
