#include "HotkeyActions.h"

#include <UiCustomizations/ICuiActionManager.h>
#include <UiCustomizations/QvelShortcutManager.h>

#include <QKeySequence>

namespace Studio {

namespace {

using Store = CUI::QvelShortcutManager;

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

HotkeyActions::HotkeyActions(Store *manager, QObject *parent) : QObject(parent), m_manager(manager)
{
    connect(manager, &Store::shortcutAssigned, this,
            [this](const CUI::ActionIdentifier &id) { refresh(id); });
    connect(manager, &Store::shortcutUnassigned, this,
            [this](const CUI::ActionIdentifier &id) { refresh(id); });
    connect(manager, &Store::shortcutTransformsCleared, this, [this] { refresh(); });
    connect(manager, &Store::shortcutsCleared, this, [this] { refresh(); });
    connect(manager, &Store::shortcutConfigurationAboutToLoad, this,
            [this] { m_isLoading = true; });
    connect(manager, &Store::shortcutConfigurationLoaded, this, [this] {
        m_isLoading = false;
        refresh();
    });
}

QAction *HotkeyActions::entry(const CUI::ActionIdentifier &identifier)
{
    const CUI::VelAction *action = registered(identifier);
    if (action == nullptr)
        return nullptr;
    QAction *&entry = m_entries[identifier];
    if (entry == nullptr) {
        entry = new QAction(this);
        entry->setObjectName(identifier.toString());
        entry->setEnabled(!action->momentary()); // its key has to be held
        connect(entry, &QAction::triggered, this, [identifier] {
            if (CUI::ICuiActionManager *registry = CUI::ICuiActionManager::get())
                registry->triggerAction(identifier);
        });
        write(*action, entry);
    }
    return entry;
}

QStringList HotkeyActions::hotkeyList(const CUI::ActionIdentifier &identifier) const
{
    QStringList texts;
    const auto held = m_manager->getShortcuts().find(identifier);
    if (held == m_manager->getShortcuts().end())
        return texts;
    for (const QString &shortcut : held->second) {
        texts.append(QKeySequence::fromString(shortcut, QKeySequence::PortableText)
                             .toString(QKeySequence::NativeText));
    }
    return texts;
}

QString HotkeyActions::hotkeys(const CUI::ActionIdentifier &identifier) const
{
    return hotkeyList(identifier).join(QStringLiteral(", "));
}

void HotkeyActions::refresh()
{
    for (const auto &entry : m_entries)
        refresh(entry.first);
}

void HotkeyActions::refresh(const CUI::ActionIdentifier &identifier)
{
    const auto entry = m_entries.find(identifier);
    const CUI::VelAction *action = registered(identifier);
    if (!m_isLoading && entry != m_entries.end() && action != nullptr)
        write(*action, entry->second);
}

void HotkeyActions::write(const CUI::VelAction &action, QAction *entry) const
{
    const QStringList hotkeys = hotkeyList(action.identifier());
    QString text = escaped(action.name());
    QString toolTip = action.name();
    if (!hotkeys.isEmpty()) {
        text += QLatin1Char('\t') + escaped(hotkeys.first());
        toolTip += QStringLiteral(" (%1)").arg(hotkeys.join(QStringLiteral(", ")));
    }
    entry->setText(text);
    entry->setIconText(escaped(action.name()));
    entry->setToolTip(plainToolTip(toolTip));
}

} // namespace Studio
