#pragma once

#include "ContextPlaces.h"
#include "HotkeyClaims.h"

#include <QAction>
#include <QKeyEvent>
#include <QPointer>
#include <QWidget>

#include <set>

namespace CUI {

class QvelShortcutManager;

/// The bound actions of a QvelActionBinder, and the shortcuts and tool tips that they have from it.
///
/// Changing an action emits signals, and the slots of the application may bind, unbind and destroy
/// any action: after each change everything is looked up again.
class ActionBindings
{
public:
    /// @p owner filters the events of the application, and receives the signals. It owns this
    /// object.
    ActionBindings(QObject &owner, QvelShortcutManager *manager);

    void add(const ActionIdentifier &identifier, QAction *action);
    void remove(QAction *action);
    /// Removes all; the last call.
    void clear();
    ActionIdentifier identifierOf(const QAction *action) const;
    QAction *actionOf(const ActionIdentifier &identifier) const;
    QAction *actionOf(const QKeySequence &key) const;

    /// The context acts only in these widgets; in the whole window without a value.
    void setContextWidgets(unsigned long contextId,
                           const std::optional<std::vector<QWidget *>> &widgets);
    void setContextOrder(const std::vector<unsigned long> &contextIds);

    /// Reads the contexts and hotkeys of all actions again.
    void refresh();

    struct Answer {
        bool isFinal = false; ///< what Qt has found must not be triggered
        QAction *action = nullptr; ///< what must be triggered; null for nothing
    };
    /// What a key does for which Qt has found @p action, and others too if it is ambiguous. The
    /// action is null for the mnemonic of a menu bar. @p press is the last key press.
    Answer answer(const QAction *action, const QKeySequence &key, bool isAmbiguous,
                  const std::optional<QKeyEvent> &press) const;
    /// True when the key press would trigger a bound action.
    bool hasHolder(const QKeyEvent &press) const;

private:
    using Actions = std::vector<QPointer<QAction>>;

    struct Binding {
        ActionIdentifier identifier;
        // What the application has set, to be restored at the end.
        QList<QKeySequence> ownKeys;
        QString ownToolTip;
        bool followsText = false; // without a tool tip of its own, an action shows its text
        Qt::ShortcutContext ownContext = Qt::WindowShortcut;
        // What the binder has set. Any other value was set by the application.
        QList<QKeySequence> keys;
        QString toolTip;
        ContextPlaces::Widgets homes; // the widgets that it was added to
    };

    struct Holders {
        int count = 0; ///< of those that Qt may have found
        QAction *chosen = nullptr; ///< the nearest; null when none is in reach
        bool isUnclear = false; ///< actions of several contexts are equally near
    };

    void followManager();
    void follow(QAction *action);
    Binding *find(const QAction *action);
    Actions forget(const QAction *action);
    void restore(QAction *action, const Binding &binding);

    void update(const ActionIdentifier &identifier);
    Actions actionsOf(const std::vector<ActionIdentifier> &identifiers) const;
    void show(const Actions &actions);
    void place(QAction *action, Binding &binding);
    void apply(QAction *action, Binding &binding);
    void noteChange(QAction *action);

    QList<QKeySequence> keysInStore(const ActionIdentifier &identifier) const;
    void showContext(unsigned long contextId);
    int distanceOf(const QAction &action, const ActionIdentifier &identifier) const;
    Holders holdersOf(const QList<QKeySequence> &keys) const;

    QObject &m_owner;
    QPointer<QvelShortcutManager> m_manager;
    int m_loads = 0; // loads that have begun and not ended
    std::unordered_map<const QAction *, Binding> m_bindings;
    std::unordered_map<ActionIdentifier, std::vector<QAction *>> m_actions; // in binding order
    HotkeyClaims m_claims;
    ContextPlaces m_places;
    std::set<const QAction *> m_changing; // whose shortcuts and tool tips are being set
};

} // namespace CUI
