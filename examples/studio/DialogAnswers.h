#pragma once

#include <QObject>
#include <QString>
#include <QStringList>

#include <functional>
#include <vector>

class QWidget;

namespace Studio {

/// Answers the modal dialogs that appear while it lives, in the order in which the answers were
/// given. A dialog without an answer is closed and counts as a fault.
class DialogAnswers : public QObject
{
    Q_OBJECT

public:
    explicit DialogAnswers(QObject *parent = nullptr);

    /// A message box: clicks a standard button.
    DialogAnswers &button(int standardButton);
    /// A file dialog: types the path and accepts.
    DialogAnswers &file(const QString &path);

    /// What was wrong; empty when exactly the expected dialogs came.
    QString faults() const;
    /// The texts of the message boxes, oldest first.
    QStringList texts() const { return m_texts; }

Q_SIGNALS:
    /// A dialog is about to be answered.
    void shown(QWidget *dialog);

private:
    using Answer = std::function<bool(QWidget *)>;

    void lookAgain();
    void answer();
    void answer(QWidget *dialog);

    std::vector<Answer> m_answers;
    std::size_t m_next = 0;
    QWidget *m_answered = nullptr; ///< the dialog that is being answered
    QStringList m_texts;
    QStringList m_faults;
};

} // namespace Studio
