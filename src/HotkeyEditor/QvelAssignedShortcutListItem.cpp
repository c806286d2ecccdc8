#include "QvelAssignedShortcutListItem.h"

#include <QEvent>
#include <QHBoxLayout>
#include <QKeySequence>
#include <QLabel>
#include <QPushButton>

namespace CUI {

QvelAssignedShortcutListItem::QvelAssignedShortcutListItem(const QString &shortcut, bool assigned,
                                                           QWidget *parent)
    : QWidget(parent),
      m_shortcut(shortcut),
      m_assigned(assigned),
      m_label(new QLabel(this)),
      m_button(new QPushButton(this))
{
    m_button->setObjectName(assigned ? QStringLiteral("HotkeyEditor_removeAssignedButton")
                                     : QStringLiteral("HotkeyEditor_undoAssignedButton"));
    m_button->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    m_button->setAutoDefault(false); // Return is for the buttons of the host's dialog
    m_label->setTextFormat(assigned ? Qt::PlainText : Qt::RichText);

    auto *layout = new QHBoxLayout(this);
    const int margin = assigned ? 2 : 1;
    layout->setContentsMargins(0, margin, 0, margin);
    layout->addWidget(m_label);
    layout->addWidget(m_button);
    retranslate();
}

void QvelAssignedShortcutListItem::setTextColor(const QColor &color)
{
    QPalette palette = m_label->palette();
    palette.setColor(m_label->foregroundRole(), color);
    m_label->setPalette(palette);
}

void QvelAssignedShortcutListItem::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange)
        retranslate();
    QWidget::changeEvent(event);
}

void QvelAssignedShortcutListItem::retranslate()
{
    const QString hotkey = QKeySequence::fromString(m_shortcut, QKeySequence::PortableText)
                                   .toString(QKeySequence::NativeText);
    m_button->setText(m_assigned ? tr("Remove") : tr("Undo"));
    m_label->setText(m_assigned ? hotkey
                                : QStringLiteral("<b>%1</b><br>%2")
                                          .arg(hotkey.toHtmlEscaped(),
                                               tr("Successfully removed").toHtmlEscaped()));
    // Every row has the same button; a screen reader needs the hotkey as well.
    m_button->setAccessibleName(m_button->text() + QLatin1Char(' ') + hotkey);
}

} // namespace CUI
