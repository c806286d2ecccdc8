#pragma once

#include "HotkeyDefaults.h"

#include <QObject>
#include <QStringList>

#include <functional>

class QMenu;
class QModelIndex;
class QPoint;
class QSortFilterProxyModel;
class QTreeView;

namespace CUI {

class ActionSearch;
class QvelActionItemModel;
class QvelShortcutManager;
class VelAction;

/// The context menu of the editor's table, for the action of a row. The mouse opens it for the row
/// that is clicked, the Menu key and Shift+F10 for the current one.
class ActionRowMenu : public QObject
{
    Q_OBJECT

public:
    /// All arguments must outlive the object.
    ActionRowMenu(QTreeView *tree, const QvelActionItemModel *model,
                  const QSortFilterProxyModel *proxy, QvelShortcutManager *manager,
                  ActionSearch *search, QObject *parent);

    bool eventFilter(QObject *watched, QEvent *event) override;

Q_SIGNALS:
    /// Actions have got their base hotkeys back.
    void resetDone();

private:
    /// Plans a reset for what the store has now.
    using Planner = std::function<HotkeyDefaults::Plan()>;

    // False when there is no action to open it for.
    bool openForCurrentRow();
    bool open(const QModelIndex &index, const QPoint &globalPosition);
    void addHotkeyEntries(QMenu *menu, const QStringList &hotkeys);
    void addResets(QMenu *menu, const VelAction &action, const QString &group);
    void addReset(QMenu *menu, const QString &text, const QString &command, const Planner &planner);
    void reset(const QString &command, const Planner &planner);

    QTreeView *m_tree;
    const QvelActionItemModel *m_model;
    const QSortFilterProxyModel *m_proxy;
    QvelShortcutManager *m_manager;
    ActionSearch *m_search;
};

} // namespace CUI
