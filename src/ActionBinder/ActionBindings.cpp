#include "ActionBindings.h"

#include "FocusDistance.h"
#include "HotkeyRecorder.h"
#include "ICuiActionManager.h"
#include "KeyNames.h"
#include "NearestHolder.h"
#include "QvelShortcutManager.h"

#include <QApplication>
#include <QMenuBar>
#include <QSignalBlocker>
#include <QTextDocument>

#include <algorithm>

namespace CUI {

namespace {

/// The tool tip that Qt derives from the text.
QString textToolTip(const QAction &action)
{
    return QAction(action.text()).toolTip();
}

QString withHotkey(const QString &toolTip, const QKeySequence &key)
{
    if (toolTip.isEmpty())
        return toolTip;
    QString hotkey = key.toString(QKeySequence::NativeText);
    if (Qt::mightBeRichText(toolTip))
        hotkey = hotkey.toHtmlEscaped();
    return toolTip + QLatin1String(" (") + hotkey + QLatin1Char(')');
}

/// Emits QAction::changed() once at most. A null @p toolTip stands for the action's text.
void setOn(QAction *action, const QList<QKeySequence> &keys, const QString &toolTip)
{
    const QPointer<QAction> alive(action);
    const QString shown = toolTip.isNull() ? textToolTip(*action) : toolTip;
    const bool toolTipChanges = action->toolTip() != shown;
    if (action->shortcuts() != keys) {
        const QSignalBlocker blocker(toolTipChanges ? action : nullptr);
        action->setShortcuts(keys);
    }
    if (toolTipChanges && !alive.isNull())
        action->setToolTip(toolTip);
}

/// The shortcuts of the application after it has changed an action that had @p keys from the
/// binder. QAction::setShortcut() replaces only the first one.
QList<QKeySequence> withChange(const QList<QKeySequence> &own, const QList<QKeySequence> &keys,
                               const QAction &action)
{
    QList<QKeySequence> changed = action.shortcuts();
    const QKeySequence primary = action.shortcut();
    if (!primary.isEmpty())
        changed.removeFirst();
    if (changed == keys.mid(1))
        changed = own.mid(1);
    if (!primary.isEmpty())
        changed.prepend(primary);
    return changed;
}

/// The context that the registry knows for the action.
HotkeyClaims::Context contextOf(const ActionIdentifier &identifier)
{
    const ICuiActionManager *registry = ICuiActionManager::get();
    const VelAction *action = registry != nullptr ? registry->getAction(identifier) : nullptr;
    return action != nullptr ? HotkeyClaims::Context(action->contextId()) : std::nullopt;
}

/// True when the key opens a menu of the active window.
bool isMenuMnemonic(const QKeySequence &key)
{
    const QWidget *window = QApplication::activeWindow();
    const auto bars = window != nullptr ? window->findChildren<QMenuBar *>() : QList<QMenuBar *>();
    for (const QMenuBar *bar : bars) {
        for (const QAction *menu : bar->actions()) {
            if (menu->isEnabled() && QKeySequence::mnemonic(menu->text()) == key)
                return true;
        }
    }
    return false;
}

/// The two names that the pressed key can have: by its character without Shift (Ctrl+Shift+=) and
/// by its character with Shift (Ctrl++).
QList<QKeySequence> namesOf(const QKeyEvent &press)
{
    QList<QKeySequence> names;
    const int recorded = HotkeyRecorder::capture(press).combination;
    if (recorded == 0)
        return names;
    names.append(QKeySequence(recorded));
    const int modifiers = static_cast<int>(press.modifiers());
    if ((recorded & ~static_cast<int>(Qt::KeyboardModifierMask)) != press.key())
        names.append(QKeySequence(press.key() | (modifiers & ~int{Qt::ShiftModifier})));
    return names;
}

} // namespace

ActionBindings::ActionBindings(QObject &owner, QvelShortcutManager *manager)
    : m_owner(owner),
      m_manager(manager),
      m_places(owner, [this](unsigned long contextId) { showContext(contextId); })
{
    followManager();
}

void ActionBindings::followManager()
{
    if (m_manager.isNull())
        return;
    const QvelShortcutManager *manager = m_manager;
    const auto updateOne = [this](const ActionIdentifier &identifier) { update(identifier); };
    const auto updateAll = [this] {
        if (m_loads == 0)
            refresh();
    };
    QObject::connect(manager, &QvelShortcutManager::shortcutAssigned, &m_owner, updateOne);
    QObject::connect(manager, &QvelShortcutManager::shortcutUnassigned, &m_owner, updateOne);
    QObject::connect(manager, &QvelShortcutManager::shortcutsCleared, &m_owner, updateAll);
    QObject::connect(manager, &QvelShortcutManager::shortcutTransformsCleared, &m_owner, updateAll);
    QObject::connect(manager, &QvelShortcutManager::shortcutConfigurationAboutToLoad, &m_owner,
                     [this] { ++m_loads; });
    QObject::connect(manager, &QvelShortcutManager::shortcutConfigurationLoaded, &m_owner,
                     [this, updateAll] {
                         m_loads = std::max(m_loads - 1, 0);
                         updateAll();
                     });
}

// The bindings

void ActionBindings::add(const ActionIdentifier &identifier, QAction *action)
{
    Binding binding;
    Actions changed;
    if (const Binding *old = find(action)) {
        binding = *old;
        changed = forget(action);
    } else {
        binding.ownKeys = action->shortcuts();
        binding.ownToolTip = action->toolTip();
        binding.followsText = binding.ownToolTip == textToolTip(*action);
        binding.ownContext = action->shortcutContext();
        binding.keys = binding.ownKeys;
        binding.toolTip = binding.ownToolTip;
        follow(action);
    }
    binding.identifier = identifier;
    m_bindings[action] = binding;
    m_actions[identifier].push_back(action);
    const Actions others =
            actionsOf(m_claims.set(identifier, contextOf(identifier), keysInStore(identifier)));
    changed.insert(changed.end(), others.begin(), others.end());
    changed.emplace_back(action);
    show(changed);
}

void ActionBindings::follow(QAction *action)
{
    if (m_bindings.empty() && QCoreApplication::instance() != nullptr)
        QCoreApplication::instance()->installEventFilter(&m_owner);
    QObject::connect(action, &QAction::changed, &m_owner, [this, action] { noteChange(action); });
    QObject::connect(action, &QObject::destroyed, &m_owner,
                     [this, action] { show(forget(action)); });
}

void ActionBindings::remove(QAction *action)
{
    const Binding *found = find(action);
    if (found == nullptr)
        return;
    const Binding binding = *found;
    const QPointer<QObject> owner(&m_owner);
    const Actions changed = forget(action);
    restore(action, binding);
    if (!owner.isNull())
        show(changed);
}

void ActionBindings::clear()
{
    if (!m_manager.isNull())
        m_manager->disconnect(&m_owner);
    std::vector<std::pair<QPointer<QAction>, Binding>> all;
    for (const auto &entry : m_actions) {
        for (QAction *action : entry.second)
            all.emplace_back(action, *find(action));
    }
    m_bindings.clear();
    m_actions.clear();
    for (const auto &[action, binding] : all) {
        if (!action.isNull())
            restore(action, binding);
    }
}

ActionIdentifier ActionBindings::identifierOf(const QAction *action) const
{
    const auto found = m_bindings.find(action);
    return found == m_bindings.end() ? ActionIdentifier() : found->second.identifier;
}

QAction *ActionBindings::actionOf(const ActionIdentifier &identifier) const
{
    const auto found = m_actions.find(identifier);
    if (found == m_actions.end() || found->second.empty())
        return nullptr;
    QAction *best = nullptr;
    for (QAction *action : found->second) {
        if (!action->isEnabled())
            continue;
        if (distanceOf(*action, identifier) != FocusDistance::outOfReach)
            return action;
        if (best == nullptr)
            best = action;
    }
    return best != nullptr ? best : found->second.front();
}

QAction *ActionBindings::actionOf(const QKeySequence &key) const
{
    const Holders holders = holdersOf({key});
    return holders.isUnclear ? nullptr : holders.chosen;
}

ActionBindings::Binding *ActionBindings::find(const QAction *action)
{
    const auto found = m_bindings.find(action);
    return found == m_bindings.end() ? nullptr : &found->second;
}

/// Returns the actions that have got a key. The forgotten one may be in its destructor.
ActionBindings::Actions ActionBindings::forget(const QAction *action)
{
    const auto binding = m_bindings.find(action);
    if (binding == m_bindings.end())
        return {};
    const ActionIdentifier identifier = binding->second.identifier;
    m_bindings.erase(binding);
    std::vector<QAction *> &actions = m_actions[identifier];
    actions.erase(std::remove(actions.begin(), actions.end(), action), actions.end());
    if (!actions.empty())
        return {};
    m_actions.erase(identifier);
    return actionsOf(m_claims.remove(identifier));
}

void ActionBindings::restore(QAction *action, const Binding &binding)
{
    QObject::disconnect(action, nullptr, &m_owner, nullptr);
    if (QCoreApplication::instance() == nullptr)
        return; // the application is ending
    const QPointer<QAction> alive(action);
    for (const QPointer<QWidget> &home : binding.homes) {
        if (!home.isNull() && !alive.isNull())
            home->removeAction(action);
    }
    if (!alive.isNull())
        action->setShortcutContext(binding.ownContext);
    if (!alive.isNull())
        setOn(action, binding.ownKeys, binding.followsText ? QString() : binding.ownToolTip);
}

// What they show

void ActionBindings::update(const ActionIdentifier &identifier)
{
    if (m_loads > 0 || m_actions.count(identifier) == 0)
        return;
    std::vector<ActionIdentifier> changed =
            m_claims.set(identifier, contextOf(identifier), keysInStore(identifier));
    changed.push_back(identifier);
    show(actionsOf(changed));
}

void ActionBindings::refresh()
{
    // With all claims set first, the keys of an action change once.
    std::vector<ActionIdentifier> all;
    for (const auto &entry : m_actions) {
        m_claims.set(entry.first, contextOf(entry.first), keysInStore(entry.first));
        all.push_back(entry.first);
    }
    show(actionsOf(all));
}

ActionBindings::Actions ActionBindings::actionsOf(
        const std::vector<ActionIdentifier> &identifiers) const
{
    Actions actions;
    for (const ActionIdentifier &identifier : identifiers) {
        const auto found = m_actions.find(identifier);
        if (found != m_actions.end())
            actions.insert(actions.end(), found->second.begin(), found->second.end());
    }
    return actions;
}

void ActionBindings::show(const Actions &actions)
{
    const QPointer<QObject> owner(&m_owner);
    for (const QPointer<QAction> &action : actions) {
        if (Binding *binding = find(action))
            place(action, *binding);
        if (owner.isNull())
            return;
        if (Binding *binding = find(action))
            apply(action, *binding);
        if (owner.isNull())
            return;
    }
}

void ActionBindings::place(QAction *action, Binding &binding)
{
    const QPointer<QAction> alive(action);
    using Widgets = ContextPlaces::Widgets;
    const Widgets *widgets = m_places.widgetsOf(contextOf(binding.identifier));
    const bool isEverywhere = widgets == nullptr;
    const Widgets wanted = isEverywhere ? Widgets() : *widgets;
    const Widgets old = std::exchange(binding.homes, Widgets());
    const QList<QWidget *> associated = action->associatedWidgets();
    Widgets added;
    for (const QPointer<QWidget> &widget : wanted) {
        const bool isHome = std::find(old.begin(), old.end(), widget) != old.end();
        if (!isHome && associated.contains(widget))
            continue; // the application has added it
        binding.homes.push_back(widget);
        if (!isHome)
            added.push_back(widget);
    }
    // The binding may be removed from here on.
    for (const QPointer<QWidget> &home : old) {
        const bool stays = std::find(wanted.begin(), wanted.end(), home) != wanted.end();
        if (!stays && !home.isNull() && !alive.isNull())
            home->removeAction(action);
    }
    for (const QPointer<QWidget> &widget : added) {
        if (!widget.isNull() && !alive.isNull())
            widget->addAction(action);
    }
    if (!alive.isNull())
        action->setShortcutContext(isEverywhere ? Qt::WindowShortcut
                                                : Qt::WidgetWithChildrenShortcut);
}

void ActionBindings::apply(QAction *action, Binding &binding)
{
    if (m_manager.isNull())
        return;
    const QString base = binding.followsText ? textToolTip(*action) : binding.ownToolTip;
    binding.keys = m_claims.keysOf(binding.identifier);
    binding.toolTip = binding.keys.isEmpty() ? base : withHotkey(base, binding.keys.constFirst());
    const bool isText = binding.followsText && binding.keys.isEmpty();
    const QPointer<QObject> owner(&m_owner);
    m_changing.insert(action);
    const QList<QKeySequence> keys = binding.keys; // the binding may be removed meanwhile
    setOn(action, keys, isText ? QString() : binding.toolTip);
    if (!owner.isNull())
        m_changing.erase(action);
}

void ActionBindings::noteChange(QAction *action)
{
    Binding *binding = find(action);
    if (binding == nullptr)
        return;
    if (action->toolTip() != binding->toolTip) {
        binding->ownToolTip = action->toolTip();
        binding->followsText = binding->ownToolTip == textToolTip(*action);
    }
    if (action->shortcuts() != binding->keys)
        binding->ownKeys = withChange(binding->ownKeys, binding->keys, *action);
    // A slot of the application that changes the action again must not cause endless changes.
    if (m_changing.count(action) == 0)
        apply(action, *binding);
}

// Contexts

void ActionBindings::setContextWidgets(unsigned long contextId,
                                       const std::optional<std::vector<QWidget *>> &widgets)
{
    const bool changes =
            widgets ? m_places.setWidgets(contextId, *widgets) : m_places.removeWidgets(contextId);
    if (changes)
        showContext(contextId);
}

void ActionBindings::setContextOrder(const std::vector<unsigned long> &contextIds)
{
    m_places.setOrder(contextIds);
}

void ActionBindings::showContext(unsigned long contextId)
{
    std::vector<ActionIdentifier> identifiers;
    for (const auto &entry : m_actions) {
        if (contextOf(entry.first) == contextId)
            identifiers.push_back(entry.first);
    }
    show(actionsOf(identifiers));
}

QList<QKeySequence> ActionBindings::keysInStore(const ActionIdentifier &identifier) const
{
    QList<QKeySequence> keys;
    if (m_manager.isNull())
        return keys;
    const auto found = m_manager->getShortcuts().find(identifier);
    if (found == m_manager->getShortcuts().end())
        return keys;
    for (const QString &hotkey : found->second) {
        const QKeySequence key = KeyNames::keyOf(hotkey);
        if (!key.isEmpty())
            keys.append(key);
    }
    return keys;
}

// Keys

ActionBindings::Answer ActionBindings::answer(const QAction *action, const QKeySequence &key,
                                              bool isAmbiguous,
                                              const std::optional<QKeyEvent> &press) const
{
    const ActionIdentifier identifier = identifierOf(action);
    if (action != nullptr && identifier.isEmpty())
        return {};
    if (!isAmbiguous) {
        const bool isStray = action != nullptr
                             && m_places.widgetsOf(contextOf(identifier)) != nullptr
                             && action->associatedGraphicsWidgets().isEmpty()
                             && distanceOf(*action, identifier) == FocusDistance::outOfReach;
        return {isStray, nullptr};
    }
    Holders holders = holdersOf({key});
    // With one holder, the key has another name as well, or the other holder is not bound.
    if (holders.count < 2 && press)
        holders = holdersOf(namesOf(*press) << key);
    if (holders.isUnclear)
        return {};
    const bool isMnemonic = action == nullptr || (holders.count < 2 && isMenuMnemonic(key));
    const bool isOurs = isMnemonic ? holders.chosen != nullptr : holders.count > 1;
    return {isOurs, isOurs ? holders.chosen : nullptr};
}

bool ActionBindings::hasHolder(const QKeyEvent &press) const
{
    QList<QKeySequence> keys = namesOf(press);
    keys << QKeySequence(press.key() | static_cast<int>(press.modifiers()));
    return holdersOf(keys).chosen != nullptr;
}

int ActionBindings::distanceOf(const QAction &action, const ActionIdentifier &identifier) const
{
    return FocusDistance::of(action, m_places.widgetsOf(contextOf(identifier)));
}

/// The actions that Qt may have found, and the nearest of them.
ActionBindings::Holders ActionBindings::holdersOf(const QList<QKeySequence> &keys) const
{
    Holders holders;
    NearestHolder nearest;
    for (const auto &[identifier, actions] : m_actions) {
        for (QAction *action : actions) {
            const QList<QKeySequence> held = action->shortcuts();
            const bool holds =
                    std::any_of(keys.begin(), keys.end(),
                                [&held](const QKeySequence &key) { return held.contains(key); });
            if (!holds || !action->isEnabled())
                continue;
            const int distance = distanceOf(*action, identifier);
            if (distance != FocusDistance::outOfReach || FocusDistance::isInActiveWindow(*action))
                ++holders.count;
            const HotkeyClaims::Context context = contextOf(identifier);
            if (nearest.offer(distance, context, identifier, m_places.rankOf(context)))
                holders.chosen = action;
        }
    }
    holders.isUnclear = nearest.isUnclear();
    return holders;
}

} // namespace CUI
