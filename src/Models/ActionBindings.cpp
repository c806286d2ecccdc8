#include "ActionBindings.h"

#include "ActionReach.h"
#include "HotkeyRecorder.h"
#include "ICuiActionManager.h"
#include "KeyNames.h"
#include "NearestHolder.h"
#include "QvelShortcutManager.h"

#include <QCoreApplication>
#include <QSignalBlocker>
#include <QTextDocument>

#include <algorithm>

namespace CUI {

namespace {

/// What Qt shows for an action without a tool tip of its own.
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

/// One change of the action, whatever changes of it. A null @p toolTip stands for its text.
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

/// What the application wants after it has set shortcuts on an action that had @p keys from here.
/// QAction::setShortcut() leaves the alternative ones as they are.
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

/// How the files of an application may name the key that was pressed: with what it types by itself
/// (Ctrl+Shift+=), or with what Shift makes of it (Ctrl++).
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
    : m_owner(owner), m_manager(manager)
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
    // What a key press is about to do is seen nowhere else.
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
    for (const auto &entry : m_widgets)
        QObject::disconnect(entry.second.death);
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

ActionBindings::Binding *ActionBindings::find(const QAction *action)
{
    const auto found = m_bindings.find(action);
    return found == m_bindings.end() ? nullptr : &found->second;
}

/// Returns the actions that have won a key. The forgotten one may be dead.
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
        return; // nobody presses keys any more
    const QPointer<QAction> alive(action);
    if (!binding.home.isNull())
        binding.home->removeAction(action);
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
    // All claims first: what an action may use then changes once.
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
    const QPointer<QWidget> widget(widgetOf(binding.identifier));
    const Qt::ShortcutContext context =
            widget.isNull() ? Qt::WindowShortcut : Qt::WidgetWithChildrenShortcut;
    if (binding.home != widget) {
        const QPointer<QWidget> old = binding.home;
        const bool adds = !widget.isNull() && !action->associatedWidgets().contains(widget);
        binding.home = adds ? widget : nullptr;
        if (!old.isNull())
            old->removeAction(action);
        if (adds && !widget.isNull() && !alive.isNull())
            widget->addAction(action);
    }
    if (!alive.isNull())
        action->setShortcutContext(context);
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
    const QList<QKeySequence> keys = binding.keys; // the binding may go while they are being set
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
    // Whoever answers each change with another one has the last word, or it would never end.
    if (m_changing.count(action) == 0)
        apply(action, *binding);
}

// Contexts

void ActionBindings::setContextWidget(unsigned long contextId, QWidget *widget)
{
    ContextWidget &place = m_widgets[contextId];
    if (place.widget == widget)
        return;
    QObject::disconnect(place.death);
    place.widget = widget;
    if (widget != nullptr) {
        place.death = QObject::connect(widget, &QObject::destroyed, &m_owner, [this, contextId] {
            m_widgets.erase(contextId);
            refresh();
        });
    }
    refresh();
}

QWidget *ActionBindings::widgetOf(const ActionIdentifier &identifier) const
{
    const HotkeyClaims::Context context = contextOf(identifier);
    const auto found = context ? m_widgets.find(*context) : m_widgets.end();
    return found == m_widgets.end() ? nullptr : found->second.widget;
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

void ActionBindings::notePress(const QKeyEvent &press)
{
    m_press.emplace(press);
}

ActionBindings::Answer ActionBindings::answer(const QAction *action, const QKeySequence &key,
                                              bool isAmbiguous) const
{
    const ActionIdentifier identifier = identifierOf(action);
    if (identifier.isEmpty())
        return {};
    if (!isAmbiguous) {
        const QWidget *scope = widgetOf(identifier);
        const bool isStray = scope != nullptr && action->associatedGraphicsWidgets().isEmpty()
                             && ActionReach::distance(*action, scope) == ActionReach::outOfReach;
        return {isStray, nullptr};
    }
    Holders holders = holdersOf({key});
    // With one holder, the key goes by another name too, or the other one is not bound.
    if (holders.count < 2 && m_press)
        holders = holdersOf(namesOf(*m_press) << key);
    const bool isOurs = holders.count > 1 && !holders.isUnclear;
    return {isOurs, isOurs ? holders.chosen : nullptr};
}

/// Those that Qt may have found, and the one among them that the key is meant for, if that can be
/// told.
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
            const int steps = ActionReach::distance(*action, widgetOf(identifier));
            if (steps != ActionReach::outOfReach || ActionReach::isInActiveWindow(*action))
                ++holders.count;
            if (nearest.offer(steps, contextOf(identifier), identifier))
                holders.chosen = action;
        }
    }
    holders.isUnclear = nearest.isUnclear();
    return holders;
}

} // namespace CUI
