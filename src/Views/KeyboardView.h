#pragma once

#include "HotkeyKeyboard.h"

#include <QWidget>

namespace CUI {

/// The picture of a keyboard whose keys are chosen, clicked, dragged and dropped on. It knows what
/// the keys are good for, and leaves to others what happens to hotkeys.
class KeyboardView : public QWidget
{
    Q_OBJECT

public:
    /// @p keyboard must outlive the view. Call keyboardChanged() after each change of it.
    explicit KeyboardView(HotkeyKeyboard &keyboard, QWidget *parent = nullptr);
    ~KeyboardView() override;

    const HotkeyKeyboard &keyboard() const { return m_keyboard; }
    void keyboardChanged();

    /// The key that the arrows move, as an index of the keyboard's keys.
    int currentKey() const { return m_current; }
    void setCurrentKey(int index);
    /// The key under the mouse or, without one, the current one.
    int shownKey() const { return m_hovered >= 0 ? m_hovered : m_current; }
    /// What a click on the key does.
    void activateKey(int index);
    /// The key at a position of the widget; -1 where there is none.
    int keyAt(const QPoint &position) const;
    /// Where a key is in the widget.
    QRect rectOf(int index) const;

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

Q_SIGNALS:
    /// Another key is shown, by the mouse or the keyboard, or the shown one has changed.
    void shownKeyChanged();
    /// A key was clicked, or Return pressed on it.
    void hotkeyActivated(const QString &hotkey);
    void modifierToggled(Qt::KeyboardModifier modifier);
    /// The context menu of the current key is asked for.
    void menuRequested(const QPoint &globalPosition);
    /// Modifiers are held during a drag, when no key press arrives.
    void modifiersHeld(Qt::KeyboardModifiers modifiers);
    void actionDropped(const CUI::ActionIdentifier &action, const QString &hotkey);
    void hotkeyDropped(const QString &from, const QString &to);

protected:
    bool event(QEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void leaveEvent(QEvent *event) override;
    void contextMenuEvent(QContextMenuEvent *event) override;
    void focusInEvent(QFocusEvent *event) override;
    void focusOutEvent(QFocusEvent *event) override;
    void dragEnterEvent(QDragEnterEvent *event) override;
    void dragMoveEvent(QDragMoveEvent *event) override;
    void dragLeaveEvent(QDragLeaveEvent *event) override;
    void dropEvent(QDropEvent *event) override;

private:
    const HotkeyKeyboard::Key &key(int index) const;
    QRectF target() const;
    QTransform toPicture() const;
    void outlineKey(QPainter &painter, int index, const QPen &pen) const;
    void showToolTip(const QPoint &position, const QPoint &globalPosition);
    void hover(int index);
    void moveCurrent(const QPointF &direction);
    void startDrag();
    bool canDrop(const QDropEvent &event) const;

    HotkeyKeyboard &m_keyboard;
    int m_current = 0;
    int m_hovered = -1;
    int m_dropTarget = -1;
    int m_pressed = -1;
    QPoint m_pressPosition;
};

} // namespace CUI
