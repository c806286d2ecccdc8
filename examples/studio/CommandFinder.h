#pragma once

#include <UiCustomizations/ActionIdentifier.h>

#include <QDialog>

class QLineEdit;
class QTreeWidget;

namespace Studio {

class HotkeyActions;

/// Finds an action by its name, shows its hotkeys and performs it.
class CommandFinder : public QDialog
{
    Q_OBJECT

public:
    CommandFinder(const HotkeyActions &actions, QWidget *parent = nullptr);

Q_SIGNALS:
    void chosen(const CUI::ActionIdentifier &action);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void filter(const QString &text);
    void choose();

    QLineEdit *m_search;
    QTreeWidget *m_list;
};

} // namespace Studio
