#pragma once

#include <QObject>

class QDialogButtonBox;
class QPushButton;
class QUndoStack;
class QWidget;

namespace Studio {

/// The Undo and Redo buttons of a dialog, with the name of the command in their tool tips, and the
/// keys for them. A field that takes these keys itself keeps them.
class HistoryButtons : public QObject
{
    Q_OBJECT

public:
    /// Adds the buttons to @p box. The keys work in the window of @p box. Owns neither argument;
    /// @p history must outlive the object.
    HistoryButtons(QUndoStack &history, QDialogButtonBox *box, QWidget *window);

private:
    void update();

    const QUndoStack &m_history;
    QPushButton *m_undo;
    QPushButton *m_redo;
};

} // namespace Studio
