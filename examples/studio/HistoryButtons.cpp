#include "HistoryButtons.h"

#include <QDialogButtonBox>
#include <QPushButton>
#include <QShortcut>
#include <QUndoStack>

namespace Studio {

namespace {

QPushButton *addButton(QDialogButtonBox *box, const QString &text)
{
    QPushButton *button = box->addButton(text, QDialogButtonBox::ResetRole);
    button->setAutoDefault(false);
    return button;
}

QString tipOf(const QString &command, const QString &key)
{
    return command.isEmpty() ? key : QStringLiteral("%1 (%2)").arg(command, key);
}

} // namespace

HistoryButtons::HistoryButtons(QUndoStack &history, QDialogButtonBox *box, QWidget *window)
    : QObject(window),
      m_history(history),
      m_undo(addButton(box, tr("&Undo"))),
      m_redo(addButton(box, tr("&Redo")))
{
    connect(m_undo, &QPushButton::clicked, &history, &QUndoStack::undo);
    connect(m_redo, &QPushButton::clicked, &history, &QUndoStack::redo);
    const auto *undoKey = new QShortcut(QKeySequence(QStringLiteral("Ctrl+Z")), window);
    connect(undoKey, &QShortcut::activated, &history, &QUndoStack::undo);
    const auto *redoKey = new QShortcut(QKeySequence(QStringLiteral("Ctrl+Shift+Z")), window);
    connect(redoKey, &QShortcut::activated, &history, &QUndoStack::redo);
    connect(&history, &QUndoStack::indexChanged, this, &HistoryButtons::update);
    connect(&history, &QUndoStack::undoTextChanged, this, &HistoryButtons::update);
    connect(&history, &QUndoStack::redoTextChanged, this, &HistoryButtons::update);
    update();
}

void HistoryButtons::update()
{
    m_undo->setEnabled(m_history.canUndo());
    m_redo->setEnabled(m_history.canRedo());
    m_undo->setToolTip(tipOf(m_history.undoText(), QStringLiteral("Ctrl+Z")));
    m_redo->setToolTip(tipOf(m_history.redoText(), QStringLiteral("Ctrl+Shift+Z")));
}

} // namespace Studio
