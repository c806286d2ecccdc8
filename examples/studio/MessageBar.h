#pragma once

#include <QFrame>

class QLabel;
class QPushButton;

namespace Studio {

/// A message with buttons, to be placed above what it is about. Hidden until it has a text.
class MessageBar : public QFrame
{
    Q_OBJECT

public:
    explicit MessageBar(QWidget *parent = nullptr);

    /// Shows the plain text and reports it to screen readers; an empty text hides the bar.
    void setText(const QString &text);
    QString text() const;
    /// Adds a button at the end. Return is left to the dialog's own buttons.
    QPushButton *addButton(const QString &text);

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    QLabel *m_icon;
    QLabel *m_text;
};

} // namespace Studio
