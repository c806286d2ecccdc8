#include "QvelMessageLogWidget.h"

#include <QAction>
#include <QContextMenuEvent>
#include <QKeyEvent>
#include <QMenu>
#include <QPointer>
#include <QRegularExpression>
#include <QScrollBar>
#include <QTextCursor>
#include <QTextDocument>

namespace CUI {

namespace {

bool isClearKey(const QKeyEvent &event)
{
    return event.key() == Qt::Key_D && event.modifiers().testFlag(Qt::ControlModifier);
}

/// The line without what QTextCursor::insertText() would begin a new paragraph or frame at.
QString asOneParagraph(QString line)
{
    static const QRegularExpression breaks(
            QStringLiteral("\\r\\n|[\\r\\n\\x{2029}\\x{fdd0}\\x{fdd1}]"));
    return line.replace(breaks, QString(QChar(QChar::LineSeparator)));
}

} // namespace

QvelMessageLogWidget::QvelMessageLogWidget(QWidget *parent) : QTextEdit(parent)
{
    setReadOnly(true);
}

QvelMessageLogWidget::~QvelMessageLogWidget() = default;

bool QvelMessageLogWidget::event(QEvent *event)
{
    // Accepted at this stage, the keys never become a shortcut of the application.
    if (event->type() == QEvent::ShortcutOverride && isClearKey(*static_cast<QKeyEvent *>(event))) {
        clear();
        event->accept();
        return true;
    }
    return QTextEdit::event(event);
}

void QvelMessageLogWidget::append(const QString &line)
{
    const QScrollBar *scrollBar = verticalScrollBar();
    const bool wasAtEnd = scrollBar->value() >= scrollBar->maximum();

    // The format that the host has set, as QTextEdit::append() keeps it.
    const QTextCursor user = textCursor();
    const QTextCharFormat format = user.charFormat();
    QTextCursor end(document());
    end.movePosition(QTextCursor::End);
    end.beginEditBlock();
    if (!document()->isEmpty())
        end.insertBlock(user.blockFormat(), format);
    end.insertText(asOneParagraph(line), format);
    end.endEditBlock();
    if (!user.hasSelection())
        setCurrentCharFormat(format);

    if (wasAtEnd)
        verticalScrollBar()->setValue(verticalScrollBar()->maximum());
}

void QvelMessageLogWidget::contextMenuEvent(QContextMenuEvent *event)
{
    // The widget deletes the menu if it is itself deleted while the menu is open.
    const QPointer<QMenu> menu = new QMenu(this);
    QAction *copyAction =
            menu->addAction(tr("Copy"), this, &QTextEdit::copy, QKeySequence(QKeySequence::Copy));
    QAction *selectAllAction = menu->addAction(tr("Select All"), this, &QTextEdit::selectAll,
                                               QKeySequence(QKeySequence::SelectAll));
    menu->addSeparator();
    QAction *clearAction = menu->addAction(tr("Clear Log"), this, &QTextEdit::clear,
                                           QKeySequence(int{Qt::CTRL} | Qt::Key_D));

    const bool isEmpty = document()->isEmpty();
    copyAction->setEnabled(textCursor().hasSelection());
    selectAllAction->setEnabled(!isEmpty);
    clearAction->setEnabled(!isEmpty);
    const QList<QAction *> actions = menu->actions();
    for (QAction *action : actions)
        action->setShortcutVisibleInContextMenu(true);

    menu->exec(event->globalPos());
    delete menu.data();
}

} // namespace CUI
