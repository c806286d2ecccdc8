#pragma once

#include "ICuiActionManager.h"

#include <QAction>
#include <QPointer>
#include <QStringList>

#include <unordered_map>

namespace CUI {

/// The registry of an application that has none of its own: the actions that binders have adopted,
/// with their default hotkeys.
class WindowActionRegistry : public ICuiActionManager
{
    Q_OBJECT

public:
    void registerActions() override { }
    /// Triggers the first action with that identifier that is enabled.
    bool triggerAction(const ActionIdentifier &identifier) override;
    void getDefaultAccelerators(
            QvelShortcutManager *shortcutManager,
            std::vector<std::pair<ActionIdentifier, QString>> &accelerators) override;

    /// Adds the default hotkeys of an action.
    void addDefaults(const ActionIdentifier &identifier, const QStringList &hotkeys);
    /// Adds an action of the application that stands for the identifier.
    void addSource(const ActionIdentifier &identifier, QAction *action);

private:
    std::vector<std::pair<ActionIdentifier, QString>> m_defaults;
    std::unordered_map<ActionIdentifier, std::vector<QPointer<QAction>>> m_sources;
};

} // namespace CUI
