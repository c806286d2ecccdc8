#include "KeyboardView.h"

#include "HotkeyDrag.h"
#include "HotkeyRecorder.h"
#include "KeyNames.h"
#include "KeyboardDrawing.h"
#include "KeyboardViewAccessible.h"

#include <QAccessible>
#include <QApplication>
#include <QContextMenuEvent>
#include <QDrag>
#include <QDragEnterEvent>
#include <QHelpEvent>
#include <QKeyEvent>
#include <QMimeData>
#include <QPainter>
#include <QToolTip>

#include <algorithm>
#include <cmath>

namespace CUI {

namespace {

using Key = HotkeyKeyboard::Key;

QRectF boundsOf(const Key &key)
{
    QRectF bounds;
    for (const QRectF &part : key.parts)
        bounds |= part;
    return bounds;
}

/// The direction of an arrow key; null for other keys.
QPointF directionOf(int key)
{
    switch (key) {
    case Qt::Key_Left:
        return {-1, 0};
    case Qt::Key_Right:
        return {1, 0};
    case Qt::Key_Up:
        return {0, -1};
    case Qt::Key_Down:
        return {0, 1};
    default:
        return {};
    }
}

bool leadsElsewhere(const QKeyEvent &event)
{
    return event.key() == Qt::Key_Tab || event.key() == Qt::Key_Backtab
           || event.key() == Qt::Key_Escape;
}

} // namespace

KeyboardView::KeyboardView(HotkeyKeyboard &keyboard, QWidget *parent)
    : QWidget(parent), m_keyboard(keyboard)
{
    KeyboardViewAccessible::install();
    setFocusPolicy(Qt::StrongFocus);
    setMouseTracking(true);
    setAcceptDrops(true);
    setAttribute(Qt::WA_InputMethodEnabled, false);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
}

KeyboardView::~KeyboardView() = default;

void KeyboardView::keyboardChanged()
{
    const int count = static_cast<int>(m_keyboard.keys().size());
    m_current = std::min(m_current, count - 1);
    m_hovered = std::min(m_hovered, count - 1);
    m_dropTarget = std::min(m_dropTarget, count - 1);
    m_pressed = std::min(m_pressed, count - 1);
    update();
    Q_EMIT shownKeyChanged();
    if (hasFocus()) {
        QAccessibleEvent changed(this, QAccessible::NameChanged);
        changed.setChild(m_current);
        QAccessible::updateAccessibility(&changed);
    }
}

const Key &KeyboardView::key(int index) const
{
    return m_keyboard.keys().at(static_cast<std::size_t>(index));
}

// Where keys are

QRectF KeyboardView::target() const
{
    const QRectF inside = QRectF(rect()).adjusted(2, 2, -2, -2);
    QRectF picture(inside.topLeft(),
                   HotkeyKeyboard::size().scaled(inside.size(), Qt::KeepAspectRatio));
    picture.moveLeft(inside.center().x() - picture.width() / 2);
    return picture;
}

QTransform KeyboardView::toPicture() const
{
    const QRectF picture = target();
    const double scale = HotkeyKeyboard::size().width() / std::max(picture.width(), 1.0);
    return QTransform::fromScale(scale, scale).translate(-picture.x(), -picture.y());
}

int KeyboardView::keyAt(const QPoint &position) const
{
    const QPointF place = toPicture().map(QPointF(position));
    const auto &keys = m_keyboard.keys();
    const auto found = std::find_if(keys.begin(), keys.end(), [&place](const Key &key) {
        return std::any_of(key.parts.begin(), key.parts.end(),
                           [&place](const QRectF &part) { return part.contains(place); });
    });
    return found != keys.end() ? static_cast<int>(found - keys.begin()) : -1;
}

QRect KeyboardView::rectOf(int index) const
{
    return toPicture().inverted().mapRect(boundsOf(key(index))).toAlignedRect();
}

QSize KeyboardView::sizeHint() const
{
    return (HotkeyKeyboard::size() * (fontMetrics().height() / 40.0)).toSize();
}

QSize KeyboardView::minimumSizeHint() const
{
    return sizeHint() / 2;
}

// What is shown

void KeyboardView::setCurrentKey(int index)
{
    if (index < 0 || index == m_current)
        return;
    m_current = index;
    update();
    Q_EMIT shownKeyChanged();
    if (!hasFocus())
        return;
    QAccessibleEvent moved(this, QAccessible::Focus);
    moved.setChild(index);
    QAccessible::updateAccessibility(&moved);
}

void KeyboardView::activateKey(int index)
{
    const Key &activated = key(index);
    if (!activated.hotkey.isEmpty())
        Q_EMIT hotkeyActivated(activated.hotkey);
    else if (activated.modifier != Qt::NoModifier)
        Q_EMIT modifierToggled(activated.modifier);
}

void KeyboardView::hover(int index)
{
    if (index == m_hovered)
        return;
    m_hovered = index;
    Q_EMIT shownKeyChanged();
}

void KeyboardView::paintEvent(QPaintEvent * /*event*/)
{
    QPainter painter(this);
    m_keyboard.paint(painter, target(), palette());
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setTransform(toPicture().inverted(), true);
    if (hasFocus())
        outlineKey(painter, m_current, QPen(palette().color(QPalette::Highlight), 10));
    if (m_dropTarget >= 0)
        outlineKey(painter, m_dropTarget,
                   QPen(palette().color(QPalette::Highlight), 10, Qt::DotLine));
}

void KeyboardView::outlineKey(QPainter &painter, int index, const QPen &pen) const
{
    painter.strokePath(KeyboardDrawing::outlineOf(key(index).parts), pen);
}

void KeyboardView::showToolTip(const QPoint &position, const QPoint &globalPosition)
{
    const int index = keyAt(position);
    if (index < 0)
        QToolTip::hideText();
    else
        QToolTip::showText(globalPosition,
                           key(index).name + QLatin1Char('\n') + m_keyboard.describe(key(index)),
                           this, rectOf(index));
}

bool KeyboardView::event(QEvent *event)
{
    switch (event->type()) {
    case QEvent::ToolTip: {
        const auto *help = static_cast<QHelpEvent *>(event);
        showToolTip(help->pos(), help->globalPos());
        return true;
    }
    case QEvent::ShortcutOverride:
        // Keys find keys here, where they would fire a shortcut of the application.
        if (!leadsElsewhere(*static_cast<QKeyEvent *>(event)))
            event->accept();
        return event->isAccepted();
    default:
        return QWidget::event(event);
    }
}

void KeyboardView::focusInEvent(QFocusEvent *event)
{
    QWidget::focusInEvent(event);
    update();
}

void KeyboardView::focusOutEvent(QFocusEvent *event)
{
    QWidget::focusOutEvent(event);
    update();
}

// Keys

void KeyboardView::keyPressEvent(QKeyEvent *event)
{
    const QPointF direction = directionOf(event->key());
    const bool isOnKeypad = (event->modifiers() & Qt::KeypadModifier) != 0;
    switch (event->key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
    case Qt::Key_Space:
        activateKey(m_current);
        return;
    default:
        break;
    }
    if (!direction.isNull() && !isOnKeypad) {
        moveCurrent(direction);
        return;
    }
    const HotkeyRecorder::Capture capture = HotkeyRecorder::capture(*event);
    if (capture.combination == 0 || leadsElsewhere(*event)) {
        QWidget::keyPressEvent(event);
        return;
    }
    const auto &keys = m_keyboard.keys();
    const Key *found = m_keyboard.keyOf(
            QKeySequence(capture.combination).toString(QKeySequence::PortableText));
    if (found != nullptr)
        setCurrentKey(static_cast<int>(found - keys.data()));
}

/// Moves to the nearest key in that direction, rather straight on than aside.
void KeyboardView::moveCurrent(const QPointF &direction)
{
    const QPointF from = boundsOf(key(m_current)).center();
    int nearest = -1;
    double least = 0;
    for (int i = 0; i < static_cast<int>(m_keyboard.keys().size()); ++i) {
        const QRectF bounds = boundsOf(key(i));
        const QPointF step = bounds.center() - from;
        const double ahead = QPointF::dotProduct(step, direction);
        // A wide key is straight on from anything beside it.
        const double width = direction.x() != 0 ? bounds.height() : bounds.width();
        const double aside =
                std::abs(step.x() * direction.y()) + std::abs(step.y() * direction.x());
        constexpr double aboutHalfAKey = 45;
        // Of two that are equally near, the one that the same finger reaches: rows are staggered.
        const double otherFinger = -0.01 * step.x() * direction.y();
        const double cost = ahead + 4 * std::max(0.0, aside - width / 2) + otherFinger;
        if (ahead > aboutHalfAKey && (nearest < 0 || cost < least)) {
            nearest = i;
            least = cost;
        }
    }
    setCurrentKey(nearest);
}

// Mouse

void KeyboardView::mousePressEvent(QMouseEvent *event)
{
    m_pressed = event->button() == Qt::LeftButton ? keyAt(event->pos()) : -1;
    m_pressPosition = event->pos();
    setCurrentKey(keyAt(event->pos()));
}

void KeyboardView::mouseMoveEvent(QMouseEvent *event)
{
    hover(keyAt(event->pos()));
    const int distance = (event->pos() - m_pressPosition).manhattanLength();
    if (m_pressed >= 0 && distance >= QApplication::startDragDistance()
        && !key(m_pressed).holders.empty())
        startDrag();
}

void KeyboardView::mouseReleaseEvent(QMouseEvent *event)
{
    const int pressed = m_pressed;
    m_pressed = -1;
    if (pressed >= 0 && pressed == keyAt(event->pos()))
        activateKey(pressed);
}

void KeyboardView::leaveEvent(QEvent *event)
{
    QWidget::leaveEvent(event);
    hover(-1);
}

void KeyboardView::contextMenuEvent(QContextMenuEvent *event)
{
    if (event->reason() != QContextMenuEvent::Mouse) {
        Q_EMIT menuRequested(mapToGlobal(rectOf(m_current).center()));
        return;
    }
    const int index = keyAt(event->pos());
    if (index < 0)
        return;
    setCurrentKey(index);
    Q_EMIT menuRequested(event->globalPos());
}

// Drag and drop

void KeyboardView::startDrag()
{
    const Key &dragged = key(m_pressed);
    const QRect rect = rectOf(m_pressed);
    auto *drag = new QDrag(this);
    drag->setMimeData(HotkeyDrag::ofHotkey(dragged.hotkey));
    drag->setPixmap(grab(rect));
    drag->setHotSpot(m_pressPosition - rect.topLeft());
    m_pressed = -1;
    drag->exec(Qt::CopyAction);
}

bool KeyboardView::canDrop(const QDropEvent &event) const
{
    const int index = keyAt(event.pos());
    return index >= 0 && !key(index).hotkey.isEmpty()
           && HotkeyDrag::hotkeyIn(event.mimeData()) != key(index).hotkey;
}

void KeyboardView::dragEnterEvent(QDragEnterEvent *event)
{
    if (!HotkeyDrag::actionIn(event->mimeData()).isEmpty()
        || !HotkeyDrag::hotkeyIn(event->mimeData()).isEmpty())
        event->acceptProposedAction();
}

void KeyboardView::dragMoveEvent(QDragMoveEvent *event)
{
    Q_EMIT modifiersHeld(event->keyboardModifiers());
    const int index = keyAt(event->pos());
    hover(index);
    m_dropTarget = canDrop(*event) ? index : -1;
    update();
    event->setDropAction(Qt::CopyAction); // with Ctrl and Shift, other actions are proposed
    event->setAccepted(m_dropTarget >= 0);
}

void KeyboardView::dragLeaveEvent(QDragLeaveEvent * /*event*/)
{
    m_dropTarget = -1;
    hover(-1);
    update();
}

void KeyboardView::dropEvent(QDropEvent *event)
{
    m_dropTarget = -1;
    update();
    if (!canDrop(*event))
        return;
    const QString hotkey = key(keyAt(event->pos())).hotkey;
    setCurrentKey(keyAt(event->pos()));
    event->setDropAction(Qt::CopyAction);
    event->accept();
    const ActionIdentifier action = HotkeyDrag::actionIn(event->mimeData());
    const QString dragged = HotkeyDrag::hotkeyIn(event->mimeData());
    if (!action.isEmpty())
        Q_EMIT actionDropped(action, hotkey);
    else if (!dragged.isEmpty())
        Q_EMIT hotkeyDropped(dragged, hotkey);
}

} // namespace CUI
