#pragma once

#include "ActionIdentifier.h"
#include "UiCustomizationsExport.h"

#include <QFrame>

#include <functional>
#include <memory>
#include <vector>

namespace CUI {

class QvelActionBinder;
class QvelActionItemModel;
class QvelShortcutManager;

/// A window in which an action is found by typing, and run by Enter.
///
/// It opens over the active window, a modal dialog included, and lists the actions of a model with
/// their groups and hotkeys: while nothing is typed, the recently used ones first, else those that
/// hold all typed words, ranked as QvelSortFilterProxyModel ranks them. What was typed is marked in
/// the names.
///
/// - Enter, or a double-click, closes the palette, gives the focus back to the widget that had it,
///   and runs the action there: the bound QAction is triggered, and for an action without one
///   triggered() is emitted.
/// - An action that cannot run is listed as not available. The line below the list says why, and
///   Enter leaves the palette open.
/// - Tab turns the search field into one in which a new hotkey is pressed, in place of the action's
///   first one. When the key is released, Enter assigns it, also where another action of the group
///   has it, which the line below names, and Escape returns to the search. It is one command of a
///   QvelHotkeyHistory.
/// - Escape closes the palette and gives the focus back. So does another window that becomes
///   active, without the focus.
///
/// The application opens it with an action of its own. It is made once and kept, since making it
/// sorts the actions. Texts follow a change of the language. User-interface thread only.
class CUI_EXPORT QvelCommandPalette : public QFrame
{
    Q_OBJECT

public:
    /// Returns why an action cannot run; an empty text for one that can.
    using Reason = std::function<QString(const ActionIdentifier &action)>;

    /// A hidden palette. It owns neither @p model nor @p manager, which must not be null and must
    /// outlive it, nor @p binder, which may be null and may be destroyed first.
    QvelCommandPalette(QvelActionItemModel *model, QvelShortcutManager *manager,
                       QvelActionBinder *binder = nullptr, QWidget *parent = nullptr);
    ~QvelCommandPalette() override;

    /// Asked for each action that is shown, in addition to what the palette knows itself: that a
    /// momentary action needs its key held, that a QAction is disabled, and that an action has
    /// neither a QAction nor a receiver of triggered().
    void setReason(const Reason &reason);

    /// The actions that were run from here, the last one first, at most 20. For the application to
    /// keep between its runs.
    std::vector<ActionIdentifier> recentlyUsed() const;
    /// Replaces them. Actions that the model lacks are kept and not shown.
    void setRecentlyUsed(const std::vector<ActionIdentifier> &actions);

public Q_SLOTS:
    /// Opens the palette over the active window, with nothing typed. Does nothing while it is open.
    void open();

Q_SIGNALS:
    /// The user runs an action that no QAction is bound to. The palette is closed by then, and the
    /// focus is back.
    void triggered(const CUI::ActionIdentifier &action);

protected:
    /// Reads the keys of the search field.
    bool eventFilter(QObject *watched, QEvent *event) override;
    /// Closes the palette when another window becomes active.
    bool event(QEvent *event) override;
    /// Takes over the texts of another language.
    void changeEvent(QEvent *event) override;
    /// Escape closes the palette or returns to the search.
    void keyPressEvent(QKeyEvent *event) override;

private:
    class Private;
    std::unique_ptr<Private> d;
};

} // namespace CUI
