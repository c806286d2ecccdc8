#include "HistoryButtons.h"

#include <QDialogButtonBox>
#include <QKeyEvent>
#include <QLineEdit>
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
    const QString tip = command.isEmpty() ? key : QStringLiteral("%1 (%2)").arg(command, key);
    // A name that looks like markup stays a name.
    return QStringLiteral("<span>%1</span>").arg(tip.toHtmlEscaped());
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
    for (QLineEdit *edit : window->findChildren<QLineEdit *>())
        edit->installEventFilter(this);
    connect(&history, &QUndoStack::indexChanged, this, &HistoryButtons::update);
    connect(&history, &QUndoStack::undoTextChanged, this, &HistoryButtons::update);
    connect(&history, &QUndoStack::redoTextChanged, this, &HistoryButtons::update);
    update();
}

// A line edit claims the keys whether or not it has anything to undo.
bool HistoryButtons::eventFilter(QObject *watched, QEvent *event)
{
    const auto *edit = qobject_cast<QLineEdit *>(watched);
    if (edit == nullptr || event->type() != QEvent::ShortcutOverride)
        return QObject::eventFilter(watched, event);
    const auto *key = static_cast<QKeyEvent *>(event);
    const bool isIdle = (key->matches(QKeySequence::Undo) && !edit->isUndoAvailable())
                        || (key->matches(QKeySequence::Redo) && !edit->isRedoAvailable());
    // A field in which keys are pressed instead of typed has no input method.
    const bool takesHotkeys = !edit->testAttribute(Qt::WA_InputMethodEnabled);
    if (!isIdle || takesHotkeys)
        return false;
    event->ignore();
    return true;
}

void HistoryButtons::update()
{
    m_undo->setEnabled(m_history.canUndo());
    m_redo->setEnabled(m_history.canRedo());
    m_undo->setToolTip(tipOf(m_history.undoText(), QStringLiteral("Ctrl+Z")));
    m_redo->setToolTip(tipOf(m_history.redoText(), QStringLiteral("Ctrl+Shift+Z")));
}

} // namespace Studio
