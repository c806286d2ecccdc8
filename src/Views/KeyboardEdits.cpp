#include "KeyboardEdits.h"

#include "ConflictDialogs.h"
#include "HotkeyEditGroup.h"
#include "HotkeyEdits.h"
#include "ICuiActionManager.h"
#include "JoinedHotkeys.h"
#include "KeyNames.h"
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
    const QPointer<QWidget> window = m_window;
    if (confirm(takenFrom({{identifier, action->contextId(), hotkey}}, hotkey), hotkey)
        && window != nullptr)
        HotkeyEdits::give(*m_manager, identifier, hotkey, nameOf(identifier));
}

void KeyboardEdits::move(const QString &from, const Holders &holders, const QString &to)
{
    const QPointer<QWidget> window = m_window;
    if (!confirm(takenFrom(holders, to), to) || window == nullptr)
        return;
    const auto native = [](const QString &hotkey) {
        return KeyNames::keyOf(hotkey).toString(QKeySequence::NativeText);
    };
    const HotkeyEditGroup group(m_manager, tr("Move %1 to %2").arg(native(from), native(to)));
    for (const Holder &holder : holders)
        HotkeyEdits::take(*m_manager, holder.action, holder.hotkey, nameOf(holder.action));
    for (const Holder &holder : holders) {
        const ActionIdentifier owner = m_manager->getActionIdFromShortcut(to, holder.contextId);
        // Of actions that share a key within one context, the first has it.
        const bool isMoved =
                std::any_of(holders.begin(), holders.end(),
                            [&owner](const Holder &other) { return other.action == owner; });
        if (!isMoved)
            HotkeyEdits::give(*m_manager, holder.action, to, nameOf(holder.action));
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

} // namespace CUI
