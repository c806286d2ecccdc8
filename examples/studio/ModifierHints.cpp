#include "ModifierHints.h"

#include <UiCustomizations/ICuiActionManager.h>
#include <UiCustomizations/QvelActionBinder.h>
#include <UiCustomizations/QvelShortcutManager.h>

#include <QAction>
#include <QCoreApplication>
#include <QKeyEvent>
#include <QKeySequence>
#include <QMap>
#include <QStatusBar>

namespace Studio {

namespace {

constexpr int second = 1000;

int keyOf(Qt::KeyboardModifier modifier)
{
    switch (modifier) {
    case Qt::ShiftModifier:
        return Qt::Key_Shift;
    case Qt::ControlModifier:
        return Qt::Key_Control;
    case Qt::AltModifier:
        return Qt::Key_Alt;
    default:
        return 0;
    }
}

} // namespace

ModifierHints::ModifierHints(const CUI::QvelActionBinder &binder,
                             const CUI::QvelShortcutManager &store, QStatusBar *bar)
    : QObject(bar), m_binder(binder), m_store(store), m_bar(bar)
{
    m_held.setSingleShot(true);
    m_held.setInterval(second);
    connect(&m_held, &QTimer::timeout, this, &ModifierHints::list);
}

void ModifierHints::setModifier(Qt::KeyboardModifier modifier)
{
    end();
    m_modifier = modifier;
    // Every event of the application passes a filter, so there is none without need.
    QCoreApplication::instance()->removeEventFilter(this);
    if (keyOf(modifier) != 0)
        QCoreApplication::instance()->installEventFilter(this);
}

bool ModifierHints::isModifierAlone(const QKeyEvent &event) const
{
    return event.key() == keyOf(m_modifier)
           && (event.modifiers() & ~Qt::KeyboardModifiers(m_modifier)) == 0;
}

bool ModifierHints::eventFilter(QObject *watched, QEvent *event)
{
    switch (event->type()) {
    case QEvent::KeyPress: {
        const auto &press = *static_cast<QKeyEvent *>(event);
        if (press.isAutoRepeat() && press.key() == keyOf(m_modifier))
            break;
        // The same press is sent to the parents of the widget as well.
        if (!isModifierAlone(press))
            end();
        else if (!m_held.isActive() && m_listed.isEmpty())
            m_held.start();
        break;
    }
    case QEvent::KeyRelease:
        if (!static_cast<QKeyEvent *>(event)->isAutoRepeat())
            end();
        break;
    case QEvent::MouseButtonPress:
    case QEvent::WindowDeactivate:
        end();
        break;
    default:
        break;
    }
    return QObject::eventFilter(watched, event);
}

void ModifierHints::list()
{
    const CUI::ICuiActionManager *registry = CUI::ICuiActionManager::get();
    QMap<QString, QString> names; // by hotkey
    for (const auto &entry : m_store.getShortcuts()) {
        for (const QString &hotkey : entry.second) {
            const auto key = QKeySequence::fromString(hotkey, QKeySequence::PortableText);
            const int modifiers =
                    key.count() == 1 ? key[0] & static_cast<int>(Qt::KeyboardModifierMask) : 0;
            if (modifiers != static_cast<int>(m_modifier))
                continue;
            const QString text = key.toString(QKeySequence::NativeText);
            const QAction *action = names.contains(text) ? nullptr : m_binder.actionOf(key);
            const CUI::VelAction *known =
                    action != nullptr ? registry->getAction(m_binder.identifierOf(action))
                                      : nullptr;
            if (known != nullptr)
                names.insert(text, known->name());
        }
    }
    QStringList lines;
    for (auto name = names.cbegin(); name != names.cend(); ++name)
        lines << QStringLiteral("%1 %2").arg(name.key(), name.value());
    m_before = m_bar->currentMessage();
    m_listed = lines.join(QStringLiteral("   "));
    m_bar->showMessage(m_listed);
}

void ModifierHints::end()
{
    m_held.stop();
    if (!m_listed.isEmpty() && m_bar->currentMessage() == m_listed)
        m_bar->showMessage(m_before);
    m_listed.clear();
}

} // namespace Studio
