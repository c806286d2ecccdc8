#pragma once

#include <QObject>

class QDialogButtonBox;
class QPushButton;
class QUndoStack;
class QWidget;

namespace Studio {

/// The Undo and Redo buttons of a dialog, with the name of the command in their tool tips, and the
/// keys for them. A text keeps the keys while it has something to undo or redo itself, and a field
/// of a hotkey takes them as one.
class HistoryButtons : public QObject
{
    Q_OBJECT

public:
    /// Adds the buttons to @p box. The keys work in @p window, in the texts that it has now. Owns
    /// no argument; @p history must outlive the object.
    HistoryButtons(QUndoStack &history, QDialogButtonBox *box, QWidget *window);

    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void update();

    const QUndoStack &m_history;
    QPushButton *m_undo;
    QPushButton *m_redo;
};

} // namespace Studio
