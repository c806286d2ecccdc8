#include "EditorHands.h"

#include "CustomizeDialog.h"
#include "Gestures.h"

#include <UiCustomizations/ICuiActionManager.h>
#include <UiCustomizations/QvelShortcutsWidget.h>

#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QRadioButton>
#include <QToolButton>
#include <QTreeView>

namespace Studio {

QWidget *EditorHands::editor() const
{
    return m_dialog->editor();
}

void EditorHands::click(const char *name) const
{
    Gestures::click(child<QWidget>(name));
}

void EditorHands::searchByName(const QString &text) const
{
    Gestures::click(child<QRadioButton>("HotkeyEditor_actionRadioButton"), QPoint(8, 8));
    auto *field = child<QLineEdit>("HotkeyEditor_searchLineEdit");
    field->setFocus();
    Gestures::type(field, text);
    Gestures::wait(350);
}

void EditorHands::searchByKey(int key, Qt::KeyboardModifiers modifiers) const
{
    Gestures::click(child<QRadioButton>("HotkeyEditor_hotkeyRadioButton"), QPoint(8, 8));
    auto *field = child<QLineEdit>("HotkeyEditor_searchLineEdit");
    field->setFocus();
    Gestures::tapKey(field, key, modifiers);
    Gestures::wait(350);
}

void EditorHands::clearSearch() const
{
    child<QLineEdit>("HotkeyEditor_searchLineEdit")->clear();
    Gestures::click(child<QRadioButton>("HotkeyEditor_actionRadioButton"), QPoint(8, 8));
    Gestures::wait(350);
}

bool EditorHands::select(const CUI::ActionIdentifier &action) const
{
    const CUI::ICuiActionManager *registry = CUI::ICuiActionManager::get();
    const CUI::VelAction *known = registry->getAction(action);
    if (known == nullptr)
        return false;
    const QString group = registry->getActionContext(known->contextId())->name();
    auto *tree = child<QTreeView>("HotkeyEditor_keyActionsTreeView");
    for (int row = 0; row < tree->model()->rowCount(); ++row) {
        const QModelIndex index = tree->model()->index(row, 0);
        if (index.data().toString() != known->name()
            || index.sibling(row, 2).data().toString() != group)
            continue;
        tree->scrollTo(index);
        Gestures::click(tree->viewport(), tree->visualRect(index).center());
        return true;
    }
    return false;
}

void EditorHands::press(int key, Qt::KeyboardModifiers modifiers) const
{
    auto *field = child<QLineEdit>("HotkeyEditor_shortcutLineEdit");
    field->setFocus();
    Gestures::tapKey(field, key, modifiers);
}

bool EditorHands::option(const QString &text) const
{
    const QMenu *menu = child<QToolButton>("HotkeyEditor_toolButtonPresetOptions")->menu();
    for (QAction *action : menu->actions()) {
        if (action->text() == text) {
            action->trigger();
            Gestures::wait();
            return true;
        }
    }
    return false;
}

QStringList EditorHands::rows() const
{
    const QAbstractItemModel *shown = child<QTreeView>("HotkeyEditor_keyActionsTreeView")->model();
    QStringList names;
    for (int row = 0; row < shown->rowCount(); ++row)
        names << shown->index(row, 0).data().toString();
    return names;
}

QString EditorHands::label(const char *name) const
{
    const auto *label = child<QLabel>(name);
    return label->isVisible() ? label->text() : QString();
}

} // namespace Studio
