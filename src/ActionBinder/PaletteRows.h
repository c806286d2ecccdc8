#pragma once

#include "ActionIdentifier.h"
#include "QvelSortFilterProxyModel.h"

#include <vector>

namespace CUI {

/// The rows of a command palette: those that match what is typed, the best first, or all, those
/// that were used recently first.
class PaletteRows : public QvelSortFilterProxyModel
{
    Q_OBJECT

public:
    PaletteRows(QvelShortcutManager *manager, QvelActionItemModel *model, QObject *parent);

    void search(const QString &text);
    /// The last one first.
    void setRecent(const std::vector<ActionIdentifier> &actions);

    /// The empty identifier for an invalid index.
    ActionIdentifier actionAt(const QModelIndex &index) const;

protected:
    bool lessThan(const QModelIndex &left, const QModelIndex &right) const override;

private:
    void placeRecent();
    int placeOf(int row) const;

    QvelActionItemModel *m_model;
    std::vector<ActionIdentifier> m_recent;
    std::vector<int> m_places; // of the source rows among the recent ones; looking up takes long
    bool m_isSearching = false;
};

} // namespace CUI
