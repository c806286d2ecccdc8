#include "DialogAnswers.h"

#include "Gestures.h"

#include <QAbstractButton>
#include <QApplication>
#include <QFileDialog>
#include <QLineEdit>
#include <QMessageBox>
#include <QScopedValueRollback>
#include <QTimer>

namespace Studio {

DialogAnswers::DialogAnswers(QObject *parent) : QObject(parent)
{
    lookAgain();
}

// A shot for each look: a timer does not fire inside of its own call, and answering a dialog
// handles events, in which another one may appear.
void DialogAnswers::lookAgain()
{
    QTimer::singleShot(15, this, [this] { answer(); });
}

DialogAnswers &DialogAnswers::button(int standardButton)
{
    m_answers.push_back([this, standardButton](QWidget *dialog) {
        auto *box = qobject_cast<QMessageBox *>(dialog);
        if (box == nullptr)
            return false;
        m_texts << box->text();
        QAbstractButton *wanted =
                box->button(static_cast<QMessageBox::StandardButton>(standardButton));
        if (wanted == nullptr)
            return false;
        Gestures::click(wanted);
        return true;
    });
    return *this;
}

DialogAnswers &DialogAnswers::file(const QString &path)
{
    m_answers.push_back([path](QWidget *dialog) {
        auto *fileDialog = qobject_cast<QFileDialog *>(dialog);
        if (fileDialog == nullptr)
            return false;
        auto *name = fileDialog->findChild<QLineEdit *>(QStringLiteral("fileNameEdit"));
        if (name == nullptr)
            return false;
        name->setText(path);
        Gestures::tapKey(name, Qt::Key_Return);
        return true;
    });
    return *this;
}

void DialogAnswers::answer()
{
    lookAgain();
    QWidget *dialog = QApplication::activeModalWidget();
    if (dialog == nullptr || !dialog->isVisible() || dialog == m_answered)
        return;
    const QScopedValueRollback<QWidget *> guard(m_answered, dialog);
    answer(dialog);
}

void DialogAnswers::answer(QWidget *dialog)
{
    const QString title = dialog->windowTitle();
    if (m_next == m_answers.size()) {
        m_faults << QStringLiteral("nobody expects the dialog '%1'").arg(title);
        dialog->close();
        return;
    }
    const Answer next = m_answers[m_next++];
    Q_EMIT shown(dialog);
    if (!next(dialog)) {
        m_faults << QStringLiteral("the dialog '%1' came instead of another one").arg(title);
        dialog->close();
    }
}

QString DialogAnswers::faults() const
{
    QStringList all = m_faults;
    if (m_next < m_answers.size())
        all << QStringLiteral("%1 dialogs did not come").arg(m_answers.size() - m_next);
    return all.join(QStringLiteral("; "));
}

} // namespace Studio
