#pragma once

#include "ActionIdentifier.h"

#include <QColor>
#include <QStringList>
#include <QStyledItemDelegate>

class QTreeView;

namespace CUI {

class QvelShortcutManager;
class VelAction;

/// Paints the table of actions: each hotkey in the colour of its origin, and actions that are
/// active while their hotkey is held in demi-bold.
class ActionListTreeItemDelegate : public QStyledItemDelegate
{
    Q_OBJECT

public:
    /// @p tree owns the delegate; @p manager must outlive it.
    ActionListTreeItemDelegate(QTreeView *tree, QvelShortcutManager *manager);

    /// The colour of hotkeys that an unsaved edit concerns.
    void setUserModifiedColor(const QColor &color);
    /// The colour of other hotkeys that the base does not have.
    void setTransformColor(const QColor &color);

    /// The colour of an action's hotkey; an invalid one for a hotkey of the base.
    QColor hotkeyColor(const ActionIdentifier &action, const QString &shortcut,
                       const QStringList &baseShortcuts) const;

    void paint(QPainter *painter, const QStyleOptionViewItem &option,
               const QModelIndex &index) const override;

protected:
    void initStyleOption(QStyleOptionViewItem *option, const QModelIndex &index) const override;

private:
    void paintHotkeys(QPainter *painter, const QStyleOptionViewItem &option,
                      const VelAction &action) const;

    QTreeView *m_tree;
    QvelShortcutManager *m_manager;
    QColor m_userModifiedColor{255, 0, 0, 255};
    QColor m_transformColor{0, 130, 0, 255};
};

} // namespace CUI
