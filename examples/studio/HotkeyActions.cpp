#include "HotkeyActions.h"

#include <UiCustomizations/ICuiActionManager.h>
#include <UiCustomizations/QvelActionBinder.h>
#include <UiCustomizations/QvelShortcutManager.h>

#include <QKeySequence>
#include <QWidget>

namespace Studio {

namespace {

const CUI::VelAction *registered(const CUI::ActionIdentifier &identifier)
{
    const CUI::ICuiActionManager *registry = CUI::ICuiActionManager::get();
    return registry != nullptr ? registry->getAction(identifier) : nullptr;
}

/// What an entry shows as that text: no mnemonic, and no second column.
QString escaped(QString text)
{
    return text.replace(QLatin1Char('&'), QLatin1String("&&"))
            .replace(QLatin1Char('\t'), QLatin1Char(' '));
}

/// A tool tip that shows the text and takes nothing in it for markup.
QString plainToolTip(const QString &text)
{
    return QStringLiteral("<span>%1</span>").arg(text.toHtmlEscaped());
}

} // namespace

HotkeyActions::HotkeyActions(CUI::QvelActionBinder &binder, const CUI::QvelShortcutManager &manager,
                             QWidget *window)
    : QObject(window), m_binder(binder), m_manager(manager), m_window(window)
{
}

QAction *HotkeyActions::entry(const CUI::ActionIdentifier &identifier)
{
    const CUI::VelAction *action = registered(identifier);
    if (action == nullptr)
        return nullptr;
    QAction *&entry = m_entries[identifier];
    if (entry == nullptr)
        entry = make(*action);
    return entry;
}

QAction *HotkeyActions::make(const CUI::VelAction &action)
{
    const CUI::ActionIdentifier identifier = action.identifier();
    auto *entry = new QAction(escaped(action.name()), this);
    entry->setObjectName(identifier.toString());
    entry->setToolTip(plainToolTip(action.name()));
    entry->setAutoRepeat(false);
    connect(entry, &QAction::triggered, this, [identifier] {
        if (CUI::ICuiActionManager *registry = CUI::ICuiActionManager::get())
            registry->triggerAction(identifier);
    });
    m_binder.bind(identifier, entry);
    if (action.momentary()) {
        entry->setEnabled(false);
        auto *key = new QAction(this); // a disabled action has no hotkeys
        m_window->addAction(key);
        m_binder.bind(identifier, key);
    }
    return entry;
}

QString HotkeyActions::hotkeys(const CUI::ActionIdentifier &identifier) const
{
    QStringList texts;
    const auto held = m_manager.getShortcuts().find(identifier);
    if (held == m_manager.getShortcuts().end())
        return {};
    for (const QString &shortcut : held->second) {
        texts.append(QKeySequence::fromString(shortcut, QKeySequence::PortableText)
                             .toString(QKeySequence::NativeText));
    }
    return texts.join(QStringLiteral(", "));
}

} // namespace Studio
