#pragma once

#include "ActionIdentifier.h"
#include "UiCustomizationsExport.h"

#include <QModelIndex>
#include <QStandardItemModel>
#include <QString>
#include <QVariant>

#include <memory>

namespace CUI {

class QvelActionItem;
class QvelShortcutManager;
class VelAction;

/// The table of all registered actions: a row for each, with its name, hotkeys, group and category.
///
/// It is flat and unsorted; rows stand in the order of ICuiActionManager::actions(). Put a
/// QvelSortFilterProxyModel on it to search, filter and sort. The hotkey cells follow the store
/// through its signals; names, groups and categories are read once, in loadActionsToModel(), which
/// the host calls again when it has registered, renamed or removed actions. User-interface thread
/// only. Nothing reports an error: what is not found is null.
///
/// Its cells are QvelActionItem objects, selectable and enabled, never editable. The model owns
/// them, the registry owns their actions. Until the next load, rows of actions that the registry
/// has dropped still answer to their identifiers. Look-ups search row by row, which takes less than
/// a millisecond for 10,000 rows.
class CUI_EXPORT QvelActionItemModel : public QStandardItemModel
{
    Q_OBJECT

public:
    /// The columns, from left to right. The header texts are translated.
    enum ActionTreeColumns {
        ActionColumn = 0, ///< "Action": the action's display text
        HotkeyColumn = 1, ///< "Hotkey": its hotkeys in effect, joined with ", "
        GroupColumn = 2, ///< "Group": the name of its context
        CategoryColumn = 3 ///< "Category": its category; empty when equal to the context's name
    };
    Q_ENUM(ActionTreeColumns)

    /// Loads the actions that are registered now. Follows @p shortcutManager, which it does not
    /// own and which may be destroyed first; with null the hotkey cells stay empty.
    explicit QvelActionItemModel(QvelShortcutManager *shortcutManager, QObject *parent = nullptr);
    ~QvelActionItemModel() override;

    /// Replaces all rows by those of the installed registry; without a registry it does nothing.
    /// An action gets no row when its context is not registered. The registry's signals are
    /// blocked meanwhile.
    ///
    /// Emits modelAboutToBeReset() and modelReset(), once each, and nothing in between.
    void loadActionsToModel();

    /// Reports to views that every cell may have changed, and changes none.
    ///
    /// Emits one dataChanged() without roles from row 0, column 0 to column 3 of the row *after*
    /// the last one. That index is valid and of this model, but there is no cell behind it: data()
    /// of it is an invalid variant. Receivers that walk the range stop at rowCount().
    void invalidateAllRows();

    /// The cell in that column of the first row that shows the action, or null.
    QvelActionItem *itemFromVelAction(int column, const ActionIdentifier &identifier) const;

    /// The action of the cell at @p index, or null: for an invalid index, one of another model (of
    /// a proxy), one without an item or with an item that is no QvelActionItem.
    VelAction *velActionFromModelIdx(const QModelIndex &index) const;

    /// The action in the first row of that context whose hotkey cell lists @p hotkey, letter case
    /// ignored; null when there is none and for an empty text. @p hotkey is one portable key
    /// combination. Reads the cells: while a configuration is loading they are not up to date.
    VelAction *velActionFromShortcut(const QString &hotkey, unsigned long contextId) const;

    /// What QStandardItemModel answers, for every role.
    QVariant data(const QModelIndex &index, int role = Qt::DisplayRole) const override;
    /// What QStandardItemModel answers, without Qt::ItemIsEditable.
    Qt::ItemFlags flags(const QModelIndex &index) const override;

    /// \name Drag and drop
    /// A view in which dragging is enabled lets the user drag an action onto a key of a
    /// QvelKeyboardWidget of the same application. Nothing can be dropped on the table.
    /// @{

    /// A type of the library's own.
    QStringList mimeTypes() const override;
    /// The action of the first index; null when there is none.
    QMimeData *mimeData(const QModelIndexList &indexes) const override;
    /// Qt::CopyAction.
    Qt::DropActions supportedDragActions() const override;
    /// @}

public Q_SLOTS:
    /// Reads the hotkeys of one action again. Does nothing when no row shows it and between the two
    /// signals of a configuration that is loading.
    ///
    /// Emits dataChanged() for the cell if its text has changed, then dataChanged() without roles
    /// for columns 0 to 3 of the row in any case.
    void updateShortcut(const CUI::ActionIdentifier &identifier);

    /// Reads the hotkeys of all rows again. Does nothing while a configuration is loading.
    ///
    /// Emits dataChanged() for each cell whose text has changed, from the first row to the last.
    void updateShortcuts();

private Q_SLOTS:
    void shortcutFileAboutToLoad();
    void shortcutFileLoaded();

private:
    class Private;

    const std::unique_ptr<Private> d;
};

} // namespace CUI
