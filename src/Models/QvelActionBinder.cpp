#include "QvelActionBinder.h"

#include "ActionBindings.h"
#include "AdoptedActions.h"
#include "LazyLog.h"
#include "QvelShortcutManager.h"
#include "WindowActions.h"

#include <QAction>
#include <QSet>
#include <QShortcutEvent>
#include <QWidget>

namespace CUI {

namespace {

ICuiActionManager &installedRegistry()
{
    if (ICuiActionManager::get() == nullptr) {
        std::unique_ptr<ICuiActionManager> registry = std::make_unique<AdoptedActions>();
        ICuiActionManager::set(registry);
    }
    return *ICuiActionManager::get();
}

QString nameOf(const QWidget &window)
{
    QString title = window.windowTitle();
    title.remove(QLatin1String("[*]"));
    title = title.trimmed();
    if (!title.isEmpty())
        return title;
    return window.objectName().isEmpty() ? QString::fromLatin1(window.metaObject()->className())
                                         : window.objectName();
}

unsigned long idOfContext(const ICuiActionManager &registry, const QString &name)
{
    std::optional<unsigned long> found;
    for (const auto &[id, context] : registry.actionContexts()) {
        if (context->name() == name && (!found || id < *found))
            found = id;
    }
    if (found)
        return *found;
    unsigned long id = 1;
    while (registry.getActionContext(id) != nullptr)
        ++id;
    return id;
}

/// Shortcuts as the store has them.
QStringList hotkeysOf(const QList<QKeySequence> &shortcuts)
{
    QStringList hotkeys;
    for (const QKeySequence &key : shortcuts) {
        if (key.count() == 1)
            hotkeys << key.toString(QKeySequence::PortableText);
    }
    return hotkeys;
}

void warnOfSequences(const QList<QKeySequence> &shortcuts, const ActionIdentifier &identifier)
{
    for (const QKeySequence &key : shortcuts) {
        if (key.count() < 2)
            continue;
        logLazily(QvelMessageLog::Warning, [&] {
            return QStringLiteral("Shortcut '%1' for Action '%2' is more than one key combination "
                                  "and is left out.")
                    .arg(key.toString(QKeySequence::PortableText), identifier.toString());
        });
    }
}

/// Gives the actions of one window their identifiers.
class Names
{
public:
    Names(const ICuiActionManager &registry, unsigned long tableId, unsigned long contextId)
        : m_registry(registry), m_tableId(tableId), m_contextId(contextId)
    {
    }

    void take(const ActionIdentifier &identifier)
    {
        if (identifier.tableId == m_tableId)
            m_taken.insert(identifier.actionId);
    }

    ActionIdentifier unique(const QString &name)
    {
        QString candidate = name;
        for (int number = 2; isTaken(candidate); ++number)
            candidate = name + QString::number(number);
        m_taken.insert(candidate);
        return {m_tableId, candidate};
    }

private:
    bool isTaken(const QString &name) const
    {
        const VelAction *action = m_registry.getAction({m_tableId, name});
        return m_taken.contains(name) || (action != nullptr && action->contextId() != m_contextId);
    }

    const ICuiActionManager &m_registry;
    unsigned long m_tableId;
    unsigned long m_contextId;
    QSet<QString> m_taken;
};

} // namespace

class QvelActionBinder::Private
{
public:
    Private(QvelActionBinder &binder, QvelShortcutManager *manager) : bindings(binder, manager) { }

    void registerAction(ICuiActionManager &registry, const ActionIdentifier &identifier,
                        const WindowActions::Found &found, unsigned long contextId);

    ActionBindings bindings;
    std::vector<std::pair<ActionIdentifier, QString>> defaults;
};

void QvelActionBinder::Private::registerAction(ICuiActionManager &registry,
                                               const ActionIdentifier &identifier,
                                               const WindowActions::Found &found,
                                               unsigned long contextId)
{
    auto *adopted = qobject_cast<AdoptedActions *>(&registry);
    if (adopted != nullptr)
        adopted->addSource(identifier, found.action);
    if (registry.getAction(identifier) != nullptr)
        return;
    const QString text = WindowActions::plainText(found.action->text());
    registry.addAction(identifier, text.isEmpty() ? identifier.actionId : text, contextId,
                       found.category, false);
    const QList<QKeySequence> shortcuts = found.action->shortcuts();
    const QStringList hotkeys = hotkeysOf(shortcuts);
    if (adopted != nullptr)
        adopted->addDefaults(identifier, hotkeys);
    for (const QString &hotkey : hotkeys)
        defaults.emplace_back(identifier, hotkey);
    warnOfSequences(shortcuts, identifier); // last, for those who read it may destroy the binder
}

QvelActionBinder::QvelActionBinder(QvelShortcutManager *manager, QObject *parent)
    : QObject(parent), d(std::make_unique<Private>(*this, manager))
{
}

QvelActionBinder::~QvelActionBinder()
{
    d->bindings.clear();
}

void QvelActionBinder::bind(const ActionIdentifier &identifier, QAction *action)
{
    if (action == nullptr)
        return;
    if (identifier.isEmpty())
        d->bindings.remove(action);
    else
        d->bindings.add(identifier, action);
}

void QvelActionBinder::unbind(QAction *action)
{
    d->bindings.remove(action);
}

ActionIdentifier QvelActionBinder::identifierOf(const QAction *action) const
{
    return d->bindings.identifierOf(action);
}

void QvelActionBinder::setContextWidget(unsigned long contextId, QWidget *widget)
{
    d->bindings.setContextWidget(contextId, widget);
}

unsigned long QvelActionBinder::adopt(QWidget *window, unsigned long tableId,
                                      std::optional<unsigned long> contextId,
                                      const QString &contextName)
{
    if (window == nullptr)
        return 0;
    ICuiActionManager &registry = installedRegistry();
    const QString name = contextName.isEmpty() ? nameOf(*window) : contextName;
    const unsigned long context = contextId ? *contextId : idOfContext(registry, name);
    if (registry.getActionContext(context) == nullptr)
        registry.addActionContext(context, name);

    const std::vector<WindowActions::Found> found = WindowActions::collect(*window);
    std::vector<ActionIdentifier> identifiers(found.size()); // empty for what is bound already
    Names names(registry, tableId, context);
    for (const WindowActions::Found &one : found)
        names.take(identifierOf(one.action));
    for (const bool derived : {false, true}) {
        for (std::size_t i = 0; i < found.size(); ++i) {
            const QAction *action = found[i].action;
            if (action->objectName().isEmpty() != derived || !identifierOf(action).isEmpty())
                continue;
            identifiers[i] = names.unique(
                    derived ? WindowActions::nameFrom(found[i].category,
                                                      WindowActions::plainText(action->text()))
                            : action->objectName());
        }
    }
    // From here on the application hears of things, and may destroy actions and the binder.
    const QPointer<QvelActionBinder> alive(this);
    for (std::size_t i = 0; i < found.size() && !alive.isNull(); ++i) {
        if (!identifiers[i].isEmpty() && !found[i].action.isNull())
            d->registerAction(registry, identifiers[i], found[i], context);
    }
    for (std::size_t i = 0; i < found.size() && !alive.isNull(); ++i) {
        if (!identifiers[i].isEmpty())
            bind(identifiers[i], found[i].action); // none, if it is gone
    }
    return context;
}

void QvelActionBinder::defaultAccelerators(
        std::vector<std::pair<ActionIdentifier, QString>> &accelerators) const
{
    accelerators.insert(accelerators.end(), d->defaults.begin(), d->defaults.end());
}

void QvelActionBinder::refresh()
{
    d->bindings.refresh();
}

bool QvelActionBinder::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::ShortcutOverride) {
        d->bindings.notePress(*static_cast<const QKeyEvent *>(event));
    } else if (event->type() == QEvent::Shortcut) {
        const auto *shortcut = static_cast<const QShortcutEvent *>(event);
        const auto answer = d->bindings.answer(qobject_cast<const QAction *>(watched),
                                               shortcut->key(), shortcut->isAmbiguous());
        if (answer.action != nullptr)
            answer.action->trigger();
        if (answer.isFinal)
            return true;
    }
    return QObject::eventFilter(watched, event);
}

} // namespace CUI
