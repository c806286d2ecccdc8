#pragma once

#include "ActionIdentifier.h"
#include "UiCustomizationsExport.h"
#include "VelAction.h"
#include "VelActionContext.h"

#include <QObject>
#include <QString>

#include <memory>
#include <unordered_map>
#include <utility>
#include <vector>

namespace CUI {

class QvelShortcutManager;

/// The registry of the host's actions and of the contexts they belong to.
///
/// The host derives from it, fills it at start-up and installs it with set(). The library only
/// reads it, through the virtual functions, so a subclass may answer from a source of its own.
/// Every use is on the user-interface thread. The registry owns its actions and contexts: a pointer
/// it returns is valid until the next call that adds, renames, removes or clears.
///
/// No operation reports an error: an unknown id gives null, false or nothing at all, and adding
/// under a key that is taken replaces what was there.
class CUI_CORE_EXPORT ICuiActionManager : public QObject
{
    Q_OBJECT

public:
    /// Actions by their identifiers.
    using ActionMap = std::unordered_map<ActionIdentifier, std::unique_ptr<VelAction>>;
    /// Contexts by their ids.
    using ContextMap = std::unordered_map<unsigned long, std::unique_ptr<VelActionContext>>;

    /// A registry without actions and contexts.
    explicit ICuiActionManager(QObject *parent = nullptr);
    ~ICuiActionManager() override;

    /// The installed registry, or null before the first set() and after an empty one.
    static ICuiActionManager *get();

    /// Deletes the installed registry, then takes over @p manager and leaves it empty. The library
    /// owns it from here until the next call, or until the library is unloaded. An empty
    /// @p manager uninstalls the registry.
    static void set(std::unique_ptr<ICuiActionManager> &manager);

    /// Registers the host's contexts and actions. Called by the host only.
    virtual void registerActions() = 0;
    /// Performs an action of the host; false when it cannot. Called by the host only.
    virtual bool triggerAction(const ActionIdentifier &identifier) = 0;

    /// All contexts by id, in no particular order.
    virtual const ContextMap &actionContexts() const;
    /// All actions by identifier, in no particular order.
    virtual const ActionMap &actions() const;
    /// The context with that id, or null.
    virtual VelActionContext *getActionContext(unsigned long id) const;
    /// The action with that identifier, or null.
    virtual VelAction *getAction(const ActionIdentifier &identifier) const;
    /// Appends the host's default hotkeys to @p accelerators: one pair of action and hotkey text
    /// (portable form, one key combination) for each. Called once for every configuration that
    /// @p shortcutManager loads; the pairs are assigned in order, on top of the base files. The
    /// base implementation appends nothing.
    virtual void getDefaultAccelerators(
            QvelShortcutManager *shortcutManager,
            std::vector<std::pair<ActionIdentifier, QString>> &accelerators);

    /// Registers a context, replacing the one with that id. No signal.
    void addActionContext(unsigned long id, const QString &name);

    /// Registers an action, replacing the one with that identifier. @p contextId is not checked:
    /// the context may be registered later, or never. No signal.
    void addAction(const ActionIdentifier &identifier, const QString &name, unsigned long contextId,
                   const QString &category, bool momentary);
    /// The same with the identifier in its two fields.
    void addAction(unsigned long tableId, const QString &actionId, const QString &name,
                   unsigned long contextId, const QString &category, bool momentary);

    /// Registers the action @p oldId under @p newId with the display text @p name, keeping context,
    /// category and the momentary flag, then removes @p oldId and emits actionsModified(). Does
    /// nothing when @p oldId is unknown. With equal identifiers the action ends up removed. Hotkeys
    /// stay with @p oldId in the shortcut store.
    void renameAction(const ActionIdentifier &oldId, const ActionIdentifier &newId,
                      const QString &name);

    /// Deletes all actions, then all contexts. No signal.
    void clearActionManager();

Q_SIGNALS:
    /// An action was renamed. Adding, removing and clearing do not emit it: a host that registers
    /// in bulk reloads its models itself.
    void actionsModified();

protected:
    /// Deletes an action; false when there was none. No signal.
    bool removeAction(const ActionIdentifier &identifier);

private:
    ActionMap m_actions;
    ContextMap m_actionContexts;

    static std::unique_ptr<ICuiActionManager> theCuiActionManager;
};

} // namespace CUI
