#pragma once

#include <QObject>
#include <QTimer>

class QKeyEvent;
class QStatusBar;

namespace CUI {
class QvelActionBinder;
class QvelShortcutManager;
} // namespace CUI

namespace Studio {

/// Lists in the status bar what the hotkeys with one modifier do where the focus is, once that
/// modifier has been held alone for a second, and until it is released or another key is pressed.
class ModifierHints : public QObject
{
    Q_OBJECT
    /// Shift, Control or Alt; Qt::NoModifier, which it is at first, lists nothing.
    Q_PROPERTY(Qt::KeyboardModifier modifier READ modifier WRITE setModifier)

public:
    /// All arguments must outlive it.
    ModifierHints(const CUI::QvelActionBinder &binder, const CUI::QvelShortcutManager &store,
                  QStatusBar *bar);

    Qt::KeyboardModifier modifier() const { return m_modifier; }
    void setModifier(Qt::KeyboardModifier modifier);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    bool isModifierAlone(const QKeyEvent &event) const;
    void list();
    void end();

    const CUI::QvelActionBinder &m_binder;
    const CUI::QvelShortcutManager &m_store;
    QStatusBar *m_bar;
    Qt::KeyboardModifier m_modifier = Qt::NoModifier;
    QTimer m_held;
    QString m_listed; ///< while it is shown
    QString m_before; ///< what the bar showed before
};

} // namespace Studio
