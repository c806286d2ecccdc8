#pragma once

#include "HotkeyRecorder.h"

#include <QObject>
#include <QString>

class QKeyEvent;
class QLineEdit;

namespace CUI {

/// Makes a line edit a field in which a hotkey is pressed instead of typed.
///
/// While it is active, every key press in the edit becomes the hotkey, which the edit shows in the
/// user's language; no shortcut of the application fires, and nothing is pasted, dropped or
/// composed. Ctrl+Tab and Ctrl+Shift+Tab move the focus to the next and to the previous widget.
/// The field has no hotkey while the edit is empty.
class HotkeyField : public QObject
{
    Q_OBJECT

public:
    /// When modifiers that were pressed without another key are removed from the edit.
    enum class Modifiers { UntilReleased, UntilLeft };

    /// An active field. @p edit owns it.
    HotkeyField(QLineEdit *edit, Modifiers shown);

    /// While it is not active, the edit is an ordinary one.
    void setActive(bool active);
    bool isActive() const { return m_isActive; }

    /// The hotkey as the store has it; empty without one.
    QString hotkey() const;
    /// Shows a hotkey in portable form as if its keys had been pressed.
    void setHotkey(const QString &hotkey);
    bool hasHotkey() const { return m_captured.combination != 0; }
    /// Forgets the hotkey and empties the edit.
    void clear();

    bool eventFilter(QObject *watched, QEvent *event) override;

Q_SIGNALS:
    /// A key was pressed. Comes after the signals of the edit, which has none when it shows the
    /// same text as before.
    void pressed();

private:
    void press(const QKeyEvent &event);
    void leave(HotkeyRecorder::WayOut way);
    void releaseModifiers();

    QLineEdit *m_edit;
    Modifiers m_shown;
    bool m_isActive = false;
    HotkeyRecorder::Capture m_captured;
};

} // namespace CUI
