#pragma once

#include <QObject>
#include <QString>

class QVBoxLayout;
class QWidget;

namespace CUI {
class HotkeySetWatcher;
class QvelShortcutManager;
} // namespace CUI

namespace Studio {

class MessageBar;

/// The bars about the current hotkey set: that its file was changed by another program, and that
/// some of its changes no longer apply.
class SetBars : public QObject
{
    Q_OBJECT

public:
    /// Adds the bars to @p layout of @p dialog, which owns it. Follows @p store and @p watcher,
    /// which it does not own.
    SetBars(CUI::QvelShortcutManager &store, CUI::HotkeySetWatcher &watcher, QVBoxLayout *layout,
            QWidget *dialog);

Q_SIGNALS:
    /// The steps of the set were replaced as the user chose.
    void stepsReplaced();

private:
    void followFile();
    void loadTheirs();
    void merge();
    void report(const QString &problem);
    void followLoads();
    void followSteps();
    void showDetails();

    QWidget *m_dialog;
    CUI::QvelShortcutManager &m_store;
    CUI::HotkeySetWatcher &m_watcher;
    MessageBar *m_changed;
    MessageBar *m_stale;
    QString m_dismissed; // a text of that bar that is not to come again
    bool m_isLoaded = false; // since the steps were last looked at
};

} // namespace Studio
