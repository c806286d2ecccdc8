#include "MessageBar.h"

#include <QAccessible>
#include <QHBoxLayout>
#include <QLabel>
#include <QPainter>
#include <QPushButton>
#include <QStyle>

namespace Studio {

namespace {

/// The colour of a notice, mixed into the window's, so that the window's text stays readable on it.
QColor tint(const QColor &window)
{
    const QColor notice(0xf0, 0xa8, 0x20);
    constexpr int share = 22; // of a hundred
    const auto mix = [](int a, int b) { return (a * (100 - share) + b * share) / 100; };
    return QColor(mix(window.red(), notice.red()), mix(window.green(), notice.green()),
                  mix(window.blue(), notice.blue()));
}

} // namespace

MessageBar::MessageBar(QWidget *parent)
    : QFrame(parent), m_icon(new QLabel(this)), m_text(new QLabel(this))
{
    const int iconSize = style()->pixelMetric(QStyle::PM_SmallIconSize);
    m_icon->setPixmap(style()->standardIcon(QStyle::SP_MessageBoxWarning).pixmap(iconSize));
    m_text->setTextFormat(Qt::PlainText);
    m_text->setWordWrap(true);
    auto *layout = new QHBoxLayout(this);
    layout->addWidget(m_icon);
    layout->addWidget(m_text, 1);
    hide();
}

void MessageBar::setText(const QString &text)
{
    m_text->setText(text);
    setAccessibleName(text);
    setVisible(!text.isEmpty());
    if (!text.isEmpty()) {
        QAccessibleEvent alert(this, QAccessible::Alert);
        QAccessible::updateAccessibility(&alert);
    }
}

QString MessageBar::text() const
{
    return m_text->text();
}

QPushButton *MessageBar::addButton(const QString &text)
{
    auto *button = new QPushButton(text, this);
    button->setAutoDefault(false);
    layout()->addWidget(button);
    return button;
}

void MessageBar::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setPen(palette().color(QPalette::Mid));
    painter.setBrush(tint(palette().color(QPalette::Window)));
    painter.drawRect(rect().adjusted(0, 0, -1, -1));
}

} // namespace Studio
