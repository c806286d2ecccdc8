#pragma once

#include "ActionIdentifier.h"
#include "CaseFoldedText.h"

#include <QString>

#include <cstddef>
#include <cstdint>
#include <unordered_map>
#include <vector>

namespace CUI {

class VelAction;

/// Finds the rows of an action table by their action and by their hotkeys.
///
/// It keeps what it needs of each action, so that it can tell the actions apart even when the
/// registry no longer has them.
class ActionRowIndex
{
public:
    struct Row {
        VelAction *action; ///< not looked into again
        ActionIdentifier identifier;
        unsigned long contextId;
        QString hotkeys; ///< as the cell shows them
    };

    void clear();
    void reserve(std::size_t rows);
    /// Adds the next row, without hotkeys.
    void append(VelAction *action);
    void setHotkeys(int row, const QString &hotkeys);

    int rowCount() const { return static_cast<int>(m_rows.size()); }
    const Row &row(int number) const { return m_rows[static_cast<std::size_t>(number)]; }

    /// The first row of the action, or -1.
    int rowOfAction(const ActionIdentifier &identifier) const;
    /// The same for many actions, in their order.
    std::vector<int> rowsOfActions(const std::vector<const ActionIdentifier *> &identifiers) const;
    /// The row of that record of an action, which need not exist any longer, or -1.
    int rowOfRecord(const VelAction *action) const;
    /// The first row of the context whose hotkeys contain @p hotkey, letter case ignored, or -1.
    int rowOfHotkey(const QString &hotkey, unsigned long contextId) const;

private:
    /// A place of an open hash table. There are always more places than rows.
    struct Place {
        std::uint32_t hash = 0;
        int row = -1;
    };
    struct Key {
        CaseFoldedText hotkey;
        unsigned long contextId;

        friend bool operator==(const Key &a, const Key &b)
        {
            return a.contextId == b.contextId && a.hotkey == b.hotkey;
        }
    };
    struct KeyHash {
        std::size_t operator()(const Key &key) const noexcept
        {
            return CaseFoldedTextHash()(key.hotkey) * 31 + key.contextId;
        }
    };

    static std::uint32_t hashOf(const ActionIdentifier &identifier);
    std::size_t placeOf(const ActionIdentifier &identifier, std::uint32_t hash) const;
    std::size_t placeOfHash(std::uint32_t hash, std::size_t start) const;
    void enlarge(std::size_t places);
    void readHotkeys() const;
    void addHotkeys(int row) const;
    void removeHotkeys(int row) const;

    std::vector<Row> m_rows;
    std::vector<Place> m_places; // a power of two of them

    // Filled at the first question: a table can be shown and edited without one.
    mutable std::unordered_map<Key, std::vector<int>, KeyHash> m_rowsOfHotkeys; // ascending rows
    mutable bool m_areHotkeysRead = false;
    // Filled at the first question, too: only a table whose rows have been moved has any.
    mutable std::unordered_map<const VelAction *, int> m_rowsOfRecords;
};

} // namespace CUI
