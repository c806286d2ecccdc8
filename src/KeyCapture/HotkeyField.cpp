#include "HotkeyField.h"

#include "KeyNames.h"

#include <QKeyEvent>
#include <QKeySequence>
#include <QLineEdit>
#include <QMouseEvent>

namespace CUI {

namespace {

/// Moves the focus as Tab does; the toolkit's function for it is protected.
class FocusChain : public QWidget
{
public:
    static void move(QWidget *from, bool next) { (from->*&FocusChain::focusNextPrevChild)(next); }
};

} // namespace

HotkeyField::HotkeyField(QLineEdit *edit, Modifiers shown)
    : QObject(edit), m_edit(edit), m_shown(shown)
{
    edit->installEventFilter(this);
    connect(edit, &QLineEdit::textChanged, this, [this](const QString &text) {
        if (text.isEmpty())
            m_captured = {};
    });
    setActive(true);
}

void HotkeyField::setActive(bool active)
{
    m_isActive = active;
    m_edit->setContextMenuPolicy(active ? Qt::NoContextMenu : Qt::DefaultContextMenu);
    m_edit->setAcceptDrops(!active);
    m_edit->setAttribute(Qt::WA_InputMethodEnabled, !active);
}

QString HotkeyField::hotkey() const
{
    if (!hasHotkey())
        return {};
    return QKeySequence(m_captured.combination).toString(QKeySequence::PortableText);
}

void HotkeyField::setHotkey(const QString &hotkey)
{
    const QKeySequence keys = KeyNames::keyOf(hotkey);
    m_captured = {};
    if (!keys.isEmpty())
        m_captured.combination = keys[0];
    m_edit->setText(HotkeyRecorder::displayText(m_captured));
}

void HotkeyField::clear()
{
    m_captured = {}; // the signals of the edit may be blocked
    m_edit->clear();
}

bool HotkeyField::eventFilter(QObject *watched, QEvent *event)
{
    if (watched != m_edit || !m_isActive)
        return QObject::eventFilter(watched, event);
    switch (event->type()) {
    case QEvent::ShortcutOverride:
        event->accept(); // or a shortcut of the application would take the key
        return true;
    case QEvent::KeyPress:
        press(*static_cast<QKeyEvent *>(event));
        return true;
    case QEvent::KeyRelease:
        if (m_shown != Modifiers::UntilReleased)
            return false;
        releaseModifiers();
        return true;
    case QEvent::MouseButtonRelease: // pastes the selection
        return static_cast<QMouseEvent *>(event)->button() == Qt::MiddleButton;
    default:
        return false;
    }
}

void HotkeyField::press(const QKeyEvent &event)
{
    if (event.isAutoRepeat())
        return;
    m_captured = HotkeyRecorder::capture(event);
    const HotkeyRecorder::WayOut way = HotkeyRecorder::wayOut(event);
    m_edit->setText(HotkeyRecorder::displayText(m_captured));
    Q_EMIT pressed();
    if (way != HotkeyRecorder::WayOut::None && m_edit->hasFocus())
        leave(way);
}

void HotkeyField::leave(HotkeyRecorder::WayOut way)
{
    FocusChain::move(m_edit, way == HotkeyRecorder::WayOut::Next);
    // The keys will be released in another widget.
    QMetaObject::invokeMethod(this, &HotkeyField::releaseModifiers, Qt::QueuedConnection);
}

void HotkeyField::releaseModifiers()
{
    if (!hasHotkey())
        m_edit->clear();
}

} // namespace CUI
