#pragma once

#include <UiCustomizations/ActionIdentifier.h>

#include <QString>
#include <QStringList>
#include <QWidget>

namespace Studio {

class CustomizeDialog;

/// Works the hotkey editor of a dialog as a person does.
class EditorHands
{
public:
    explicit EditorHands(CustomizeDialog *dialog) : m_dialog(dialog) { }

    /// The child of the editor of that object name; ends the program when there is none.
    template <typename Widget>
    Widget *child(const char *name) const
    {
        auto *found = editor()->findChild<Widget *>(QLatin1String(name));
        if (found == nullptr)
            qFatal("the editor has no %s", name);
        return found;
    }

    void click(const char *name) const;
    void searchByName(const QString &text) const;
    void searchByKey(int key, Qt::KeyboardModifiers modifiers) const;
    void clearSearch() const;
    /// Clicks the row of an action; false when no row shows it.
    bool select(const CUI::ActionIdentifier &action) const;
    /// Presses keys in the field of the new hotkey.
    void press(int key, Qt::KeyboardModifiers modifiers) const;
    /// Triggers an entry of the menu of sets; false when there is none of that text.
    bool option(const QString &text) const;
    /// The names in the rows.
    QStringList rows() const;
    /// The text of a label, or empty when it is not to be seen.
    QString label(const char *name) const;

private:
    QWidget *editor() const;

    CustomizeDialog *m_dialog;
};

} // namespace Studio
