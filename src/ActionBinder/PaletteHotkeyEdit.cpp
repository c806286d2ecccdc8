#include "PaletteHotkeyEdit.h"

#include "HotkeyField.h"
#include "ICuiActionManager.h"
#include "QvelShortcutManager.h"
#include "ShownNames.h"

#include <QCoreApplication>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

namespace CUI {

namespace {

class Words
{
    Q_DECLARE_TR_FUNCTIONS(CUI::QvelCommandPalette)
};

} // namespace

PaletteHotkeyEdit::PaletteHotkeyEdit(QvelShortcutManager *manager, QWidget *parent)
    : QWidget(parent),
      m_manager(manager),
      m_label(new QLabel),
      m_edit(new QLineEdit),
      m_field(new HotkeyField(m_edit, HotkeyField::Modifiers::UntilReleased)),
      m_assign(new QPushButton)
{
    m_edit->setObjectName(QStringLiteral("paletteHotkey"));
    m_assign->setObjectName(QStringLiteral("paletteAssign"));
    m_label->setTextFormat(Qt::PlainText);
    m_label->setBuddy(m_edit);
    auto *layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_label);
    layout->addWidget(m_edit, 1);
    layout->addWidget(m_assign);
    // The field takes all keys; these are read before.
    m_edit->installEventFilter(this);
    m_assign->installEventFilter(this);
    connect(m_field, &HotkeyField::pressed, this, &PaletteHotkeyEdit::showHotkey);
    connect(m_assign, &QPushButton::clicked, this, &PaletteHotkeyEdit::assign);
}

void PaletteHotkeyEdit::retranslate()
{
    m_edit->setPlaceholderText(Words::tr("Press keys..."));
    m_assign->setText(Words::tr("Assign"));
}

QString PaletteHotkeyEdit::firstHotkey() const
{
    const auto hotkeys = m_manager->getShortcuts().find(m_action);
    return hotkeys == m_manager->getShortcuts().end() ? QString() : hotkeys->second.first();
}

unsigned long PaletteHotkeyEdit::contextId() const
{
    const ICuiActionManager *registry = ICuiActionManager::get();
    const VelAction *action = registry != nullptr ? registry->getAction(m_action) : nullptr;
    return action != nullptr ? action->contextId() : 0;
}

void PaletteHotkeyEdit::begin(const ActionIdentifier &action)
{
    m_action = action;
    const QString old = firstHotkey();
    const QString name = ShownNames::ofAction(action);
    m_label->setText(old.isEmpty() ? Words::tr("New hotkey for %1:").arg(name)
                                   : Words::tr("New hotkey for %1 instead of %2:")
                                             .arg(name, ShownNames::ofHotkey(old)));
    m_edit->setAccessibleName(m_label->text());
    m_field->clear();
    showHotkey();
    m_edit->setFocus(Qt::OtherFocusReason);
}

void PaletteHotkeyEdit::showHotkey()
{
    m_assign->setEnabled(m_field->hasHotkey());
    const ActionIdentifier holder =
            m_field->hasHotkey()
                    ? m_manager->getActionIdFromShortcut(m_field->hotkey(), contextId())
                    : ActionIdentifier();
    if (!m_field->hasHotkey())
        Q_EMIT messageChanged(Words::tr("Press the new hotkey, or Escape to leave it."));
    else if (holder.isEmpty() || holder == m_action)
        Q_EMIT messageChanged(Words::tr("Enter assigns it."));
    else
        Q_EMIT messageChanged(Words::tr("Conflicts with: %1. Enter takes it from there.")
                                      .arg(ShownNames::ofActionIn(holder, contextId())));
}

void PaletteHotkeyEdit::assign()
{
    const QString hotkey = m_field->hotkey();
    const QString old = firstHotkey();
    HotkeyCommand command;
    command.text = Words::tr("Assign %1 to %2")
                           .arg(ShownNames::ofHotkey(hotkey), ShownNames::ofAction(m_action));
    const QString name = ShownNames::ofAction(m_action);
    if (!old.isEmpty())
        command.steps.emplace_back(ShortcutTransformation::Unassign, m_action, old, name);
    command.steps.emplace_back(ShortcutTransformation::Assign, m_action, hotkey, name);
    if (hotkey != old)
        command.apply(*m_manager);
    Q_EMIT ended();
}

bool PaletteHotkeyEdit::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::KeyPress) {
        const int key = static_cast<QKeyEvent *>(event)->key();
        if (key == Qt::Key_Escape) {
            Q_EMIT ended();
            return true;
        }
        const bool confirms = key == Qt::Key_Return || key == Qt::Key_Enter;
        if (watched == m_assign && confirms && m_assign->isEnabled()) {
            m_assign->click();
            return true;
        }
    } else if (event->type() == QEvent::KeyRelease && watched == m_edit) {
        // Not before: a key that is held would go on to press the button.
        if (m_field->hasHotkey() && !static_cast<QKeyEvent *>(event)->isAutoRepeat())
            m_assign->setFocus(Qt::OtherFocusReason);
    }
    return QWidget::eventFilter(watched, event);
}

} // namespace CUI
