#include "ActionRowIndex.h"

#include "VelAction.h"

#include <QStringList>

#include <algorithm>
#include <functional>

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
    m_places.clear();
    m_rowsOfHotkeys.clear();
    m_areHotkeysRead = false;
    m_rowsOfRecords.clear();
}

void ActionRowIndex::reserve(std::size_t rows)
{
    m_rows.reserve(rows);
    std::size_t places = 16;
    while (places < 2 * rows)
        places *= 2;
    enlarge(places);
}

void ActionRowIndex::append(VelAction *action)
{
    const int number = rowCount();
    m_rows.push_back({action, action->identifier(), action->contextId(), QString()});
    if (m_places.size() < 2 * m_rows.size())
        reserve(2 * m_rows.size());
    const std::uint32_t hash = hashOf(m_rows.back().identifier);
    Place &place = m_places[placeOf(m_rows.back().identifier, hash)];
    if (place.row < 0)
        place = {hash, number};
}

void ActionRowIndex::setHotkeys(int row, const QString &hotkeys)
{
    QString &current = m_rows[static_cast<std::size_t>(row)].hotkeys;
    if (current == hotkeys)
        return;
    if (m_areHotkeysRead)
        removeHotkeys(row);
    current = hotkeys;
    if (m_areHotkeysRead)
        addHotkeys(row);
}

int ActionRowIndex::rowOfAction(const ActionIdentifier &identifier) const
{
    return m_places.empty() ? -1 : m_places[placeOf(identifier, hashOf(identifier))].row;
}

std::vector<int> ActionRowIndex::rowsOfActions(
        const std::vector<const ActionIdentifier *> &identifiers) const
{
    std::vector<int> rows(identifiers.size(), -1);
    if (m_places.empty())
        return rows;
    // Step by step, for in a large table every step has to wait for memory, and the processor waits
    // for several at once only when they do not depend on each other.
    std::vector<std::uint32_t> hashes(identifiers.size());
    for (std::size_t i = 0; i < identifiers.size(); ++i)
        hashes[i] = hashOf(*identifiers[i]);
    for (std::size_t i = 0; i < identifiers.size(); ++i)
        rows[i] = m_places[placeOfHash(hashes[i], hashes[i])].row;
    for (std::size_t i = 0; i < identifiers.size(); ++i) {
        if (rows[i] >= 0 && row(rows[i]).identifier != *identifiers[i])
            rows[i] = m_places[placeOf(*identifiers[i], hashes[i])].row;
    }
    return rows;
}

int ActionRowIndex::rowOfRecord(const VelAction *action) const
{
    if (m_rowsOfRecords.size() != m_rows.size()) {
        for (int row = 0; row < rowCount(); ++row)
            m_rowsOfRecords[this->row(row).action] = row;
    }
    const auto found = m_rowsOfRecords.find(action);
    return found == m_rowsOfRecords.end() ? -1 : found->second;
}

int ActionRowIndex::rowOfHotkey(const QString &hotkey, unsigned long contextId) const
{
    if (!m_areHotkeysRead)
        readHotkeys();
    const auto found = m_rowsOfHotkeys.find({{hotkey}, contextId});
    return found == m_rowsOfHotkeys.end() ? -1 : found->second.front();
}

std::uint32_t ActionRowIndex::hashOf(const ActionIdentifier &identifier)
{
    const std::uint64_t hash = std::hash<ActionIdentifier>()(identifier);
    return static_cast<std::uint32_t>(hash ^ (hash >> 32U));
}

/// The place of the action, or the free one where it belongs.
std::size_t ActionRowIndex::placeOf(const ActionIdentifier &identifier, std::uint32_t hash) const
{
    std::size_t place = placeOfHash(hash, hash);
    while (m_places[place].row >= 0 && row(m_places[place].row).identifier != identifier)
        place = placeOfHash(hash, place + 1);
    return place;
}

/// The first place from @p start on that has the hash or is free.
std::size_t ActionRowIndex::placeOfHash(std::uint32_t hash, std::size_t start) const
{
    const std::size_t mask = m_places.size() - 1;
    std::size_t place = start & mask;
    while (m_places[place].row >= 0 && m_places[place].hash != hash)
        place = (place + 1) & mask;
    return place;
}

void ActionRowIndex::enlarge(std::size_t places)
{
    std::vector<Place> old(places);
    old.swap(m_places);
    for (const Place &place : old) {
        if (place.row >= 0)
            m_places[placeOf(row(place.row).identifier, place.hash)] = place;
    }
}

void ActionRowIndex::readHotkeys() const
{
    m_areHotkeysRead = true;
    for (int row = 0; row < rowCount(); ++row)
        addHotkeys(row);
}

void ActionRowIndex::addHotkeys(int row) const
{
    const Row &data = this->row(row);
    for (const QString &hotkey : listOf(data.hotkeys)) {
        std::vector<int> &rows = m_rowsOfHotkeys[{{hotkey}, data.contextId}];
        const auto place = std::lower_bound(rows.begin(), rows.end(), row);
        if (place == rows.end() || *place != row)
            rows.insert(place, row);
    }
}

void ActionRowIndex::removeHotkeys(int row) const
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
