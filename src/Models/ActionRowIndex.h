#pragma once

#include "ActionIdentifier.h"
#include "CaseFoldedText.h"

#include <QString>

#include <cstddef>
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
        VelAction *action; ///< never looked into
        ActionIdentifier identifier;
        unsigned long contextId;
        QString hotkeys; ///< as the cell shows them
    };

    void clear();
    /// Adds the next row.
    void append(VelAction *action, const QString &hotkeys);
    void setHotkeys(int row, const QString &hotkeys);

    int rowCount() const { return static_cast<int>(m_rows.size()); }
    const Row &row(int number) const { return m_rows[static_cast<std::size_t>(number)]; }

    /// The first row of the action, or -1.
    int rowOfAction(const ActionIdentifier &identifier) const;
    /// The first row of the context whose hotkeys contain @p hotkey, letter case ignored, or -1.
    int rowOfHotkey(const QString &hotkey, unsigned long contextId) const;

private:
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

    void addHotkeys(int row);
    void removeHotkeys(int row);

    std::vector<Row> m_rows;
    std::unordered_map<ActionIdentifier, int> m_rowsOfActions;
    std::unordered_map<Key, std::vector<int>, KeyHash> m_rowsOfHotkeys; // in ascending order
};

} // namespace CUI
