#include "PaletteRows.h"

#include "QvelActionItem.h"
#include "VelAction.h"

#include <limits>

namespace CUI {

namespace {

constexpr int notRecent = std::numeric_limits<int>::max();

} // namespace

PaletteRows::PaletteRows(QvelShortcutManager *manager, QvelActionItemModel *model, QObject *parent)
    : QvelSortFilterProxyModel(manager, parent), m_model(model)
{
    setDynamicSortFilter(false);
    setFilterCaseSensitivity(Qt::CaseInsensitive);
    setSortCaseSensitivity(Qt::CaseInsensitive);
    setFilterKeyColumn(QvelActionItemModel::ActionColumn);
    // Before the base sorts the new rows.
    connect(model, &QAbstractItemModel::modelReset, this, [this] { placeRecent(); });
    setSourceModel(model);
    sort(QvelActionItemModel::ActionColumn);
}

void PaletteRows::search(const QString &text)
{
    m_isSearching = !text.trimmed().isEmpty();
    setActionSearchSorting(m_isSearching);
    updateFilterString(text);
}

void PaletteRows::setRecent(const std::vector<ActionIdentifier> &actions)
{
    m_recent = actions;
    placeRecent();
}

void PaletteRows::placeRecent()
{
    m_places.assign(static_cast<std::size_t>(m_model->rowCount()), notRecent);
    int place = 0;
    for (const ActionIdentifier &action : m_recent) {
        const QvelActionItem *item =
                m_model->itemFromVelAction(QvelActionItemModel::ActionColumn, action);
        if (item != nullptr)
            m_places.at(static_cast<std::size_t>(item->row())) = place++;
    }
}

int PaletteRows::placeOf(int row) const
{
    const auto index = static_cast<std::size_t>(row);
    return index < m_places.size() ? m_places[index] : notRecent;
}

ActionIdentifier PaletteRows::actionAt(const QModelIndex &index) const
{
    const VelAction *action = m_model->velActionFromModelIdx(mapToSource(index));
    return action != nullptr ? action->identifier() : ActionIdentifier();
}

bool PaletteRows::lessThan(const QModelIndex &left, const QModelIndex &right) const
{
    if (!m_isSearching) {
        const int a = placeOf(left.row());
        const int b = placeOf(right.row());
        if (a != b)
            return a < b;
    }
    return QvelSortFilterProxyModel::lessThan(left, right);
}

} // namespace CUI
