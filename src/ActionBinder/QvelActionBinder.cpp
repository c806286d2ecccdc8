#include "QvelActionBinder.h"

#include "ActionBindings.h"
#include "HeldActions.h"
#include "LazyLog.h"
#include "QvelShortcutManager.h"
#include "WindowActionRegistry.h"
#include "WindowActions.h"

#include <QAbstractSpinBox>
#include <QAction>
#include <QApplication>
#include <QLineEdit>
#include <QMenuBar>
#include <QPointer>
#include <QSet>
#include <QShortcutEvent>

#include <algorithm>

namespace CUI {

namespace {

ICuiActionManager &installedRegistry()
{
    if (ICuiActionManager::get() == nullptr) {
        std::unique_ptr<ICuiActionManager> registry = std::make_unique<WindowActionRegistry>();
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

bool isMomentary(const ActionIdentifier &identifier)
{
    const ICuiActionManager *registry = ICuiActionManager::get();
    const VelAction *action = registry != nullptr ? registry->getAction(identifier) : nullptr;
    return action != nullptr && action->momentary();
}

bool isEditedText(const QObject *receiver)
{
    if (const auto *line = qobject_cast<const QLineEdit *>(receiver))
        return !line->isReadOnly();
    return qobject_cast<const QAbstractSpinBox *>(receiver) != nullptr;
}

/// True for the keys that end or leave a line of text. In a text of several lines, the toolkit
/// itself leaves them to the text.
bool endsText(const QKeyEvent &press)
{
    if ((press.modifiers() & ~(Qt::ShiftModifier | Qt::KeypadModifier)) != 0)
        return false;
    switch (press.key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
    case Qt::Key_Escape:
    case Qt::Key_Tab:
    case Qt::Key_Backtab:
        return true;
    default:
        return false;
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
    Private(QvelActionBinder &binder, QvelShortcutManager *manager)
        : bindings(binder, manager), q(binder)
    {
    }

    void followApplication(const QvelShortcutManager *manager);
    void notePress(const QKeyEvent &press) { m_press.emplace(press); }
    void registerAction(ICuiActionManager &registry, const ActionIdentifier &identifier,
                        const WindowActions::Found &found, unsigned long contextId);

    bool isKeptByText(const QObject *receiver, const QKeyEvent &key) const;
    bool handleShortcut(QObject *receiver, const QShortcutEvent &event);
    void trigger(QAction *action);
    void release(const QKeyEvent &key);
    void releaseAll();

    ActionBindings bindings;
    std::vector<std::pair<ActionIdentifier, QString>> defaults;

private:
    QvelActionBinder &q;
    HeldActions m_held;
    std::optional<QKeyEvent> m_press; // the last one
};

void QvelActionBinder::Private::registerAction(ICuiActionManager &registry,
                                               const ActionIdentifier &identifier,
                                               const WindowActions::Found &found,
                                               unsigned long contextId)
{
    auto *adopted = qobject_cast<WindowActionRegistry *>(&registry);
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
    warnOfSequences(shortcuts, identifier); // last: a slot may destroy the binder
}

QvelActionBinder::QvelActionBinder(QvelShortcutManager *manager, QObject *parent)
    : QObject(parent), d(std::make_unique<Private>(*this, manager))
{
    d->followApplication(manager);
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

QAction *QvelActionBinder::actionOf(const ActionIdentifier &identifier) const
{
    return d->bindings.actionOf(identifier);
}

QAction *QvelActionBinder::actionOf(const QKeySequence &key) const
{
    return d->bindings.actionOf(key);
}

void QvelActionBinder::setContextWidget(unsigned long contextId, QWidget *widget)
{
    if (widget != nullptr)
        setContextWidgets(contextId, {widget});
    else
        d->bindings.setContextWidgets(contextId, std::nullopt);
}

void QvelActionBinder::setContextWidgets(unsigned long contextId,
                                         const std::vector<QWidget *> &widgets)
{
    std::vector<QWidget *> places = widgets;
    places.erase(std::remove(places.begin(), places.end(), nullptr), places.end());
    d->bindings.setContextWidgets(contextId, places);
}

void QvelActionBinder::setContextOrder(const std::vector<unsigned long> &contextIds)
{
    d->bindings.setContextOrder(contextIds);
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
    // From here on slots of the application may destroy actions and the binder.
    const QPointer<QvelActionBinder> alive(this);
    for (std::size_t i = 0; i < found.size() && !alive.isNull(); ++i) {
        if (!identifiers[i].isEmpty() && !found[i].action.isNull())
            d->registerAction(registry, identifiers[i], found[i], context);
    }
    for (std::size_t i = 0; i < found.size() && !alive.isNull(); ++i) {
        if (!identifiers[i].isEmpty())
            bind(identifiers[i], found[i].action); // null when it was destroyed
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

// Keys

bool QvelActionBinder::eventFilter(QObject *watched, QEvent *event)
{
    switch (event->type()) {
    case QEvent::ShortcutOverride: {
        const auto &key = *static_cast<QKeyEvent *>(event);
        d->notePress(key);
        if (!d->isKeptByText(watched, key))
            return false;
        event->accept();
        return true;
    }
    case QEvent::Shortcut:
        return d->handleShortcut(watched, *static_cast<QShortcutEvent *>(event));
    case QEvent::KeyRelease:
        d->release(*static_cast<QKeyEvent *>(event));
        return false;
    default:
        return false;
    }
}

void QvelActionBinder::Private::followApplication(const QvelShortcutManager *manager)
{
    const auto end = [this] { releaseAll(); };
    if (manager != nullptr)
        connect(manager, &QvelShortcutManager::shortcutConfigurationAboutToLoad, &q, end);
    if (qApp == nullptr)
        return;
    connect(qApp, &QApplication::focusChanged, &q, end);
    connect(qApp, &QGuiApplication::applicationStateChanged, &q, end);
}

bool QvelActionBinder::Private::isKeptByText(const QObject *receiver, const QKeyEvent &key) const
{
    return isEditedText(receiver) && endsText(key) && bindings.hasHolder(key);
}

bool QvelActionBinder::Private::handleShortcut(QObject *receiver, const QShortcutEvent &event)
{
    auto *action = qobject_cast<QAction *>(receiver);
    if (action == nullptr && qobject_cast<QMenuBar *>(receiver) == nullptr)
        return false;
    auto answer = bindings.answer(action, event.key(), event.isAmbiguous(), m_press);
    if (!answer.isFinal && !event.isAmbiguous() && isMomentary(bindings.identifierOf(action)))
        answer = {true, action};
    if (answer.action != nullptr)
        trigger(answer.action);
    return answer.isFinal;
}

void QvelActionBinder::Private::trigger(QAction *action)
{
    const ActionIdentifier identifier = bindings.identifierOf(action);
    const bool repeats = m_press && m_press->isAutoRepeat();
    if (!isMomentary(identifier)) {
        if (!repeats || action->autoRepeat())
            action->trigger();
    } else if (m_press && !repeats && m_held.press(*m_press, identifier)) {
        Q_EMIT q.pressed(identifier);
    }
}

void QvelActionBinder::Private::release(const QKeyEvent &key)
{
    // While a key repeats, it is also released each time.
    const ActionIdentifier ended = key.isAutoRepeat() ? ActionIdentifier() : m_held.release(key);
    if (!ended.isEmpty())
        Q_EMIT q.released(ended);
}

void QvelActionBinder::Private::releaseAll()
{
    const QPointer<QvelActionBinder> alive(&q);
    for (ActionIdentifier held = m_held.first(); !held.isEmpty(); held = m_held.first()) {
        m_held.remove(held);
        Q_EMIT q.released(held);
        if (alive.isNull())
            return;
    }
}

} // namespace CUI
