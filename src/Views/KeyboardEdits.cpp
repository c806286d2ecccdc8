#include "KeyboardEdits.h"

#include "ConflictDialogs.h"
#include "ICuiActionManager.h"
#include "JoinedHotkeys.h"
#include "QShortcutsList.h"
#include "QvelShortcutManager.h"
#include "VelAction.h"

#include <QPointer>
#include <QWidget>

#include <algorithm>

namespace CUI {

namespace {

using Holder = HotkeyKeyboard::Holder;

const VelAction *actionOf(const ActionIdentifier &identifier)
{
    const ICuiActionManager *registry = ICuiActionManager::get();
    return registry != nullptr ? registry->getAction(identifier) : nullptr;
}

QString nameOf(const ActionIdentifier &identifier)
{
    const VelAction *action = actionOf(identifier);
    return action != nullptr ? action->name() : QString();
}

} // namespace

KeyboardEdits::KeyboardEdits(QvelShortcutManager *manager, QWidget *window)
    : m_manager(manager), m_window(window)
{
}

void KeyboardEdits::assign(const ActionIdentifier &identifier, const QString &hotkey)
{
    const VelAction *action = actionOf(identifier);
    if (action == nullptr)
        return;
    const QStringList held = JoinedHotkeys::split(m_manager->getShortcutsFromActionId(identifier));
    if (held.contains(hotkey, Qt::CaseInsensitive))
        return;
    if (held.size() >= QShortcutsList::ShortcutLimitPerAction) {
        ConflictDialogs::reportFullList(m_window->window());
        return;
    }
    const Holders losers = takenFrom({{identifier, action->contextId(), hotkey}}, hotkey);
    const QPointer<QWidget> window = m_window;
    if (!confirm(losers, hotkey) || window == nullptr)
        return;
    for (const Holder &loser : losers)
        unassign(loser);
    m_manager->assignShortcut(identifier, hotkey, nameOf(identifier));
}

void KeyboardEdits::move(const Holders &holders, const QString &hotkey)
{
    const Holders losers = takenFrom(holders, hotkey);
    const QPointer<QWidget> window = m_window;
    if (!confirm(losers, hotkey) || window == nullptr)
        return;
    for (const Holder &loser : losers)
        unassign(loser);
    for (const Holder &holder : holders) {
        unassign(holder);
        m_manager->assignShortcut(holder.action, hotkey, nameOf(holder.action));
    }
}

/// The other actions that have the hotkey in one of the contexts.
KeyboardEdits::Holders KeyboardEdits::takenFrom(const Holders &holders, const QString &hotkey) const
{
    Holders losers;
    for (const Holder &holder : holders) {
        const ActionIdentifier loser = m_manager->getActionIdFromShortcut(hotkey, holder.contextId);
        const auto isLoser = [&loser](const Holder &other) { return other.action == loser; };
        if (!loser.isEmpty() && std::none_of(holders.begin(), holders.end(), isLoser)
            && std::none_of(losers.begin(), losers.end(), isLoser))
            losers.push_back({loser, holder.contextId, hotkey});
    }
    return losers;
}

bool KeyboardEdits::confirm(const Holders &losers, const QString &hotkey) const
{
    QStringList names;
    for (const Holder &loser : losers)
        names.append(nameOf(loser.action));
    return names.isEmpty()
           || ConflictDialogs::confirmReassignment(m_window->window(), hotkey, names);
}

void KeyboardEdits::unassign(const Holder &holder)
{
    m_manager->unassignShortcut(holder.action, holder.hotkey, nameOf(holder.action));
}

} // namespace CUI
