#include "ActionRowIndex.h"

#include "VelAction.h"

#include <QStringList>

#include <algorithm>

namespace CUI {

namespace {

QStringList listOf(const QString &hotkeys)
{
    return hotkeys.isEmpty() ? QStringList() : hotkeys.split(QLatin1String(", "));
}

} // namespace

void ActionRowIndex::clear()
{
    m_rows.clear();
    m_rowsOfActions.clear();
    m_rowsOfHotkeys.clear();
}

void ActionRowIndex::append(VelAction *action, const QString &hotkeys)
{
    const int number = rowCount();
    m_rows.push_back({action, action->identifier(), action->contextId(), hotkeys});
    m_rowsOfActions.emplace(m_rows.back().identifier, number);
    addHotkeys(number);
}

void ActionRowIndex::setHotkeys(int row, const QString &hotkeys)
{
    QString &current = m_rows[static_cast<std::size_t>(row)].hotkeys;
    if (current == hotkeys)
        return;
    removeHotkeys(row);
    current = hotkeys;
    addHotkeys(row);
}

int ActionRowIndex::rowOfAction(const ActionIdentifier &identifier) const
{
    const auto found = m_rowsOfActions.find(identifier);
    return found == m_rowsOfActions.end() ? -1 : found->second;
}

int ActionRowIndex::rowOfHotkey(const QString &hotkey, unsigned long contextId) const
{
    const auto found = m_rowsOfHotkeys.find({{hotkey}, contextId});
    return found == m_rowsOfHotkeys.end() ? -1 : found->second.front();
}

void ActionRowIndex::addHotkeys(int row)
{
    const Row &data = this->row(row);
    for (const QString &hotkey : listOf(data.hotkeys)) {
        std::vector<int> &rows = m_rowsOfHotkeys[{{hotkey}, data.contextId}];
        const auto place = std::lower_bound(rows.begin(), rows.end(), row);
        if (place == rows.end() || *place != row)
            rows.insert(place, row);
    }
}

void ActionRowIndex::removeHotkeys(int row)
{
    const Row &data = this->row(row);
    for (const QString &hotkey : listOf(data.hotkeys)) {
        const auto found = m_rowsOfHotkeys.find({{hotkey}, data.contextId});
        if (found == m_rowsOfHotkeys.end())
            continue;
        std::vector<int> &rows = found->second;
        rows.erase(std::remove(rows.begin(), rows.end(), row), rows.end());
        if (rows.empty())
            m_rowsOfHotkeys.erase(found);
    }
}

} // namespace CUI
