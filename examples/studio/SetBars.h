#pragma once

#include <QObject>

class QVBoxLayout;
class QWidget;

namespace CUI {
class HotkeySetWatcher;
}

namespace Studio {

class MessageBar;

/// The bars about the current hotkey set: that its file was changed by another program.
class SetBars : public QObject
{
    Q_OBJECT

public:
    /// Adds the bars to @p layout of @p dialog, which owns it. Follows @p watcher, which it does
    /// not own.
    SetBars(CUI::HotkeySetWatcher &watcher, QVBoxLayout *layout, QWidget *dialog);

private:
    void followFile();
    void loadTheirs();
    void merge();
    void report(const QString &problem);

    QWidget *m_dialog;
    CUI::HotkeySetWatcher &m_watcher;
    MessageBar *m_changed;
};

} // namespace Studio
