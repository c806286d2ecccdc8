#include "KeyRouter.h"

#include "KeyText.h"

#include <UiCustomizations/ICuiActionManager.h>
#include <UiCustomizations/QvelShortcutManager.h>

#include <QAbstractSpinBox>
#include <QApplication>
#include <QLineEdit>
#include <QTextEdit>
#include <QWidget>

namespace Studio {

namespace {

bool isMomentary(const CUI::ActionIdentifier &identifier)
{
    const CUI::ICuiActionManager *registry = CUI::ICuiActionManager::get();
    const CUI::VelAction *action = registry != nullptr ? registry->getAction(identifier) : nullptr;
    return action != nullptr && action->momentary();
}

bool isTextInput(const QWidget *widget)
{
    return qobject_cast<const QLineEdit *>(widget) != nullptr
           || qobject_cast<const QAbstractSpinBox *>(widget) != nullptr
           || qobject_cast<const QTextEdit *>(widget) != nullptr;
}

} // namespace

KeyRouter::KeyRouter(CUI::QvelShortcutManager *manager, QWidget *window)
    : QObject(window), m_manager(manager), m_window(window)
{
    qApp->installEventFilter(this);
    connect(qApp, &QApplication::focusChanged, this, [this](QWidget *, QWidget *now) {
        releaseAll();
        if (QWidget *area = areaOf(now))
            setCurrentArea(area);
    });
    connect(qApp, &QGuiApplication::applicationStateChanged, this, [this] { releaseAll(); });
    connect(manager, &CUI::QvelShortcutManager::shortcutConfigurationAboutToLoad, this,
            [this] { releaseAll(); });
}

KeyRouter::~KeyRouter() = default;

void KeyRouter::addArea(QWidget *area, const std::function<Contexts()> &contexts)
{
    m_areas.push_back(area);
    m_contexts.insert(area, contexts);
}

QWidget *KeyRouter::currentArea() const
{
    if (m_current != nullptr)
        return m_current;
    return m_areas.empty() ? nullptr : m_areas.front();
}

void KeyRouter::setCurrentArea(QWidget *area)
{
    if (area == m_current)
        return;
    m_current = area;
    Q_EMIT currentAreaChanged(area);
}

QWidget *KeyRouter::areaOf(const QWidget *widget) const
{
    for (; widget != nullptr; widget = widget->parentWidget()) {
        if (m_contexts.contains(widget))
            return const_cast<QWidget *>(widget);
        if (widget->windowType() == Qt::Dialog)
            return nullptr;
    }
    return nullptr;
}

QWidget *KeyRouter::areaForKeysOf(const QWidget *widget) const
{
    if (QApplication::activePopupWidget() != nullptr
        || QApplication::activeModalWidget() != nullptr)
        return nullptr;
    if (QWidget *area = areaOf(widget))
        return area;
    return widget->window() == m_window ? currentArea() : nullptr;
}

CUI::ActionIdentifier KeyRouter::actionFor(const QKeyEvent &event, const QWidget *area) const
{
    const auto contexts = m_contexts.constFind(area);
    if (contexts == m_contexts.constEnd())
        return {};
    const QStringList texts = KeyText::candidates(event);
    for (unsigned long context : (*contexts)()) {
        for (const QString &text : texts) {
            const CUI::ActionIdentifier action = m_manager->getActionIdFromShortcut(text, context);
            if (!action.isEmpty())
                return action;
        }
    }
    return {};
}

void KeyRouter::releaseAll()
{
    const QHash<int, CUI::ActionIdentifier> held = std::exchange(m_held, {});
    for (const CUI::ActionIdentifier &action : held)
        Q_EMIT deactivated(action);
}

// A text is asked what it does before a shortcut of the application: the same keys are its own.
bool KeyRouter::isTyped(QWidget *widget, const QKeyEvent &event) const
{
    if (!isTextInput(widget))
        return false;
    QKeyEvent question(QEvent::ShortcutOverride, event.key(), event.modifiers(), event.text(),
                       event.isAutoRepeat());
    question.ignore();
    static_cast<QObject *>(widget)->event(&question);
    const bool confirms = event.key() == Qt::Key_Return || event.key() == Qt::Key_Enter
                          || event.key() == Qt::Key_Escape || event.key() == Qt::Key_Tab
                          || event.key() == Qt::Key_Backtab;
    return question.isAccepted() || confirms;
}

bool KeyRouter::press(QWidget *widget, const QKeyEvent &event)
{
    const CUI::ActionIdentifier action = actionFor(event, areaForKeysOf(widget));
    if (action.isEmpty())
        return false;
    if (!isMomentary(action)) {
        Q_EMIT activated(action, event.isAutoRepeat());
        return true;
    }
    if (!event.isAutoRepeat() && !m_held.contains(event.key())) {
        m_held.insert(event.key(), action);
        Q_EMIT activated(action, false);
    }
    return true;
}

bool KeyRouter::release(const QKeyEvent &event)
{
    // A keyboard that repeats releases the key each time as well.
    if (event.isAutoRepeat() || !m_held.contains(event.key()))
        return false;
    Q_EMIT deactivated(m_held.take(event.key()));
    return true;
}

void KeyRouter::followClick(QWidget *widget)
{
    QWidget *area = areaOf(widget);
    if (area == nullptr)
        return;
    setCurrentArea(area);
    if (!area->isAncestorOf(QApplication::focusWidget()))
        area->setFocus(Qt::MouseFocusReason);
}

bool KeyRouter::eventFilter(QObject *watched, QEvent *event)
{
    auto *widget = qobject_cast<QWidget *>(watched);
    if (widget == nullptr)
        return false;
    switch (event->type()) {
    case QEvent::ShortcutOverride: {
        // Otherwise the mnemonics of the menu bar would take the key.
        const auto &key = *static_cast<QKeyEvent *>(event);
        if (areaForKeysOf(widget) == nullptr || isTextInput(widget)
            || actionFor(key, areaForKeysOf(widget)).isEmpty())
            return false;
        event->accept();
        return true;
    }
    case QEvent::KeyPress: {
        const auto &key = *static_cast<QKeyEvent *>(event);
        if (areaForKeysOf(widget) == nullptr || isTyped(widget, key) || !press(widget, key))
            return false;
        event->accept(); // or the parents would get it, too
        return true;
    }
    case QEvent::KeyRelease:
        if (!release(*static_cast<QKeyEvent *>(event)))
            return false;
        event->accept();
        return true;
    case QEvent::MouseButtonPress:
        followClick(widget);
        return false;
    default:
        return false;
    }
}

} // namespace Studio
