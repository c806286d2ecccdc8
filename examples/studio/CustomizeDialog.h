#pragma once

#include <UiCustomizations/HotkeyAudit.h>

#include <QDialog>

class QDialogButtonBox;
class QTabWidget;

namespace CUI {
class HotkeySetWatcher;
class QvelActionItemModel;
class QvelConflictsWidget;
class QvelHotkeyHistory;
class QvelKeyboardWidget;
class QvelMessageLogWidget;
class QvelShortcutManager;
class QvelShortcutsWidget;
} // namespace CUI

namespace Studio {

/// The dialog with the library's views: hotkeys, actions and the log. It asks before it closes with
/// unsaved edits.
class CustomizeDialog : public QDialog
{
    Q_OBJECT

public:
    /// Owns neither @p manager nor @p watcher and @p history, which are those of the manager; all
    /// must outlive it.
    CustomizeDialog(CUI::QvelShortcutManager &manager, CUI::HotkeySetWatcher &watcher,
                    CUI::QvelHotkeyHistory &history, QWidget *parent);

    CUI::QvelShortcutsWidget *editor() const { return m_editor; }
    QTabWidget *tabs() const { return m_tabs; }
    CUI::QvelConflictsWidget *conflicts() const { return m_conflicts; }
    CUI::QvelMessageLogWidget *log() const { return m_log; }
    /// Where contexts count; the systems and the keys that can be typed are those of this computer.
    void setAuditOptions(CUI::HotkeyAudit::Options options);
    /// Fills the log with what was logged before the dialog was opened.
    void setLoggedText(const QString &lines);

    /// False, and the dialog stays open, when the user cancels.
    bool askToClose();

    void reject() override;

protected:
    void closeEvent(QCloseEvent *event) override;

private:
    /// To be called when the tabs are in the dialog.
    QDialogButtonBox *makeButtons(CUI::QvelHotkeyHistory &history);
    void addKeyboard();
    void addConflicts();
    void showTitle();

    CUI::QvelShortcutManager &m_manager;
    CUI::QvelActionItemModel *m_model;
    CUI::QvelActionItemModel *m_menuModel;
    CUI::QvelShortcutsWidget *m_editor;
    CUI::QvelKeyboardWidget *m_keyboard;
    CUI::QvelConflictsWidget *m_conflicts;
    CUI::QvelMessageLogWidget *m_log;
    QTabWidget *m_tabs;
};

} // namespace Studio
