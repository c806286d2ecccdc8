#pragma once

#include <QString>
#include <QWidget>

class QColor;
class QLabel;
class QPushButton;

namespace CUI {

/// One row of the assigned hotkeys: a hotkey with a button that removes it, or one that was just
/// removed with a button that gives it back.
class QvelAssignedShortcutListItem : public QWidget
{
    Q_OBJECT

public:
    /// @p shortcut is the hotkey as the store keeps it; the row shows its native text.
    QvelAssignedShortcutListItem(const QString &shortcut, bool assigned, QWidget *parent);

    QString shortcut() const { return m_shortcut; }
    /// False for a hotkey that was just removed.
    bool isAssigned() const { return m_assigned; }
    QPushButton *button() const { return m_button; }
    void setTextColor(const QColor &color);

protected:
    void changeEvent(QEvent *event) override;

private:
    void retranslate();

    QString m_shortcut;
    bool m_assigned;
    QLabel *m_label;
    QPushButton *m_button;
};

} // namespace CUI
