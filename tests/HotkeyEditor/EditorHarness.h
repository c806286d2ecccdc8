#pragma once

#include "TestHost.h"

#include <UiCustomizations/QvelActionItemModel.h>
#include <UiCustomizations/QvelShortcutManager.h>
#include <UiCustomizations/QvelShortcutsWidget.h>

#include <QTimer>
#include <QWidget>

#include <functional>
#include <memory>
#include <vector>

class QMessageBox;

/// A hotkey editor over a small host: contexts "Viewport" (1) and "Mesh" (2), the actions box,
/// boxes and sphere of the one and bevel of the other, a shipped and a user's set.
class EditorHarness
{
public:
    EditorHarness();
    ~EditorHarness();

    /// Makes the editor and shows it, at the end of the layout of @p dialog if there is one.
    void open(QWidget *dialog = nullptr);
    void close();

    /// The child of that object name; aborts the test when there is none.
    template <typename Widget>
    Widget *child(const char *name) const
    {
        auto *found = editor->findChild<Widget *>(QLatin1String(name));
        if (found == nullptr)
            qFatal("no widget %s", name);
        return found;
    }
    void click(const char *name) const;
    void press(int key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) const;
    /// Selects an action as a user does: clicks its row.
    void select(const CUI::ActionIdentifier &id) const;
    /// The visible rows of the tree, their names joined with ", ".
    QString rows() const;
    /// The assigned hotkeys as the list shows them from the top, removed ones in parentheses.
    QString assigned() const;
    /// Clicks the button in the row of that hotkey.
    void clickRow(const QString &shortcut) const;
    /// Triggers an entry of the options menu.
    void triggerOption(const QString &text) const;
    /// The text of the set that is chosen.
    QString chosenSet() const;
    void chooseSet(const QString &name) const;
    /// An edit that is not in any set.
    void edit();
    QString hotkeys(const CUI::ActionIdentifier &id) const;
    /// The texts of all sets that can be chosen.
    QStringList listedSets() const;
    /// Lets another set, "Zed", appear, so that the list is made anew.
    void refreshList() const;

    TestHost host;
    CUI::QvelShortcutManager manager;
    std::unique_ptr<CUI::QvelActionItemModel> model;
    std::unique_ptr<CUI::QvelShortcutsWidget> editor;

    QString shippedSet;
    QString userSet;
    QString otherSet;

private:
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

    DialogDriver();
    /// Clicks a standard button of a message box.
    DialogDriver &expectBox(const QString &title, int button);
    /// Types a path into a file dialog and accepts it; an empty path cancels.
    DialogDriver &expectFile(const QString &title, const QString &path);
    /// Lets a file dialog replace the file that was chosen.
    DialogDriver &expectReplacement();
    DialogDriver &expect(Answer answer);

    /// True when exactly the expected dialogs came.
    bool check();
    /// The texts of the message boxes.
    QStringList texts() const { return m_texts; }

private:
    void lookAgain();
    void answerNext();

    std::vector<Answer> m_answers;
    std::size_t m_next = 0;
    QStringList m_texts;
    QStringList m_complaints;
};
