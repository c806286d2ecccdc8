#pragma once

#include "TestHost.h"
#include "Text.h"

#include <UiCustomizations/QvelActionItemModel.h>
#include <UiCustomizations/QvelShortcutManager.h>
#include <UiCustomizations/QvelShortcutsWidget.h>

#include <QComboBox>
#include <QDialog>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QTreeView>

#include <functional>
#include <memory>
#include <vector>

/// A hotkey editor over a small host: contexts "Viewport" (1) and "Mesh" (2), the actions box,
/// boxes and sphere of the one and bevel of the other, a shipped and two of the user's sets.
class EditorHarness
{
public:
    EditorHarness();
    ~EditorHarness() { close(); }

    /// Makes the editor and shows it, at the end of the layout of a dialog if there is one.
    void open(std::unique_ptr<QDialog> holder = nullptr);
    void close();

    /// The child of that object name; aborts the test when there is none.
    template <typename Widget = QWidget>
    Widget *child(const char *name) const
    {
        auto *found = editor->findChild<Widget *>(QLatin1String(name));
        if (found == nullptr)
            qFatal("no widget %s", name);
        return found;
    }
    QLineEdit *field() const { return child<QLineEdit>("HotkeyEditor_shortcutLineEdit"); }
    QLineEdit *search() const { return child<QLineEdit>("HotkeyEditor_searchLineEdit"); }
    QTreeView *tree() const { return child<QTreeView>("HotkeyEditor_keyActionsTreeView"); }
    QComboBox *sets() const { return child<QComboBox>("HotkeyEditor_hotkeySetComboBox"); }
    bool shows(const char *name) const { return child(name)->isVisible(); }
    QString label(const char *name) const { return child<QLabel>(name)->text(); }
    bool canAssign() const { return child("HotkeyEditor_assignShortcutBtn")->isEnabled(); }

    void click(const char *name) const;
    /// Presses a key in the field for a new hotkey.
    void press(int key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) const;
    /// The same, and clicks "Assign".
    void enter(int key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) const;
    /// Selects an action as a user does: clicks its row.
    void select(const CUI::ActionIdentifier &id) const;
    /// The visible rows of the tree, their names joined with ", ".
    QString rows() const { return textsOf(tree()->model()).join(s(", ")); }
    /// The assigned hotkeys as the list shows them from the top, removed ones in parentheses.
    QString assigned() const;
    /// Clicks the button in the row of that hotkey.
    void clickRow(const char *shortcut) const;
    /// Triggers an entry of the options menu.
    void triggerOption(const char *text) const;
    void chooseSet(const QString &name) const { sets()->setCurrentIndex(sets()->findText(name)); }
    void chooseSet(const char *name) const { chooseSet(s(name)); }
    QString chosenSet() const { return sets()->currentText(); }
    /// The texts of all sets that can be chosen.
    QStringList listedSets() const { return textsOf(sets()->model()); }
    /// Lets another set, "Zed", appear, so that the list is made anew.
    void refreshList() const;

    /// The texts in the first column.
    static QStringList textsOf(const QAbstractItemModel *model);

    // Past the editor
    void assign(const CUI::ActionIdentifier &id, const QString &shortcut);
    void assign(const CUI::ActionIdentifier &id, const char *text) { assign(id, s(text)); }
    void unassign(const CUI::ActionIdentifier &id, const char *shortcut);
    /// An edit that is not in any set: F9 for bevel.
    void edit();
    QString hotkeys(const CUI::ActionIdentifier &id) const;

    TestHost host;
    CUI::QvelShortcutManager manager;
    std::unique_ptr<CUI::QvelActionItemModel> model;
    std::unique_ptr<QDialog> dialog;
    std::unique_ptr<CUI::QvelShortcutsWidget> editor;

    QString shippedSet;
    QString userSet;
    QString otherSet;

private:
    QString nameOf(const CUI::ActionIdentifier &id) const;
    std::vector<QWidget *> hotkeyRows() const;

    bool m_hasSearched = false;
};

extern const CUI::ActionIdentifier box;
extern const CUI::ActionIdentifier boxes;
extern const CUI::ActionIdentifier sphere;
extern const CUI::ActionIdentifier bevel;

/// Answers modal dialogs in the order in which they appear, while it lives. A dialog that nobody
/// expects is closed and makes check() fail; so does an answer that was never needed.
class DialogDriver : public QObject
{
public:
    using Answer = std::function<void(QWidget *dialog)>;
    using Look = std::function<void(QMessageBox *box)>;

    DialogDriver() { lookAgain(); }
    /// Clicks a standard button of a message box, after a look at it.
    DialogDriver &expectBox(const char *title, int button, const Look &look = {});
    /// Types a path into a file dialog and accepts it; an empty path cancels.
    DialogDriver &expectFile(const char *title, const QString &path);
    /// The same with a file that is there, which the dialog may replace.
    DialogDriver &expectReplacement(const char *title, const QString &path);
    DialogDriver &expect(Answer answer);

    /// True when exactly the expected dialogs came.
    bool check();
    /// The texts of the message boxes.
    QStringList texts() const { return m_texts; }

private:
    /// The dialog if it is the one that is expected; or else complains and closes it.
    template <typename Dialog>
    Dialog *expected(QWidget *dialog, const char *title);
    void lookAgain();
    void answerNext();

    std::vector<Answer> m_answers;
    std::size_t m_next = 0;
    QStringList m_texts;
    QStringList m_complaints;
};

/// Each of its tests has an open editor, and fails on dialogs that it does not expect.
class EditorTest : public QObject
{
    Q_OBJECT

protected:
    std::unique_ptr<EditorHarness> m;
    std::unique_ptr<DialogDriver> dialogs;

private Q_SLOTS:
    void init();
    void cleanup();
};
