#pragma once

#include "ShortcutTransformation.h"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <vector>

namespace CUI {

/// Remembers for pairs of action and hotkey the position of one step in a list, which is where it
/// finds the pair again: the list must hold that step for as long as it is remembered.
///
/// One flat array with linear probing. A map of nodes costs several cache misses a step, and more
/// the longer the list is.
class OpenSteps
{
public:
    using Steps = std::vector<ShortcutTransformation>;

    /// Where the step of this action and hotkey is, or nothing.
    std::optional<std::size_t> find(const Steps &steps, const ActionIdentifier &actionId,
                                    const QString &shortcut) const;

    /// What find() says for the action and hotkey of the step at @p position, which it remembers
    /// where there is none yet.
    std::optional<std::size_t> findOrInsert(const Steps &steps, std::size_t position);

    /// Forgets the action and hotkey of the step at @p position.
    void remove(const Steps &steps, std::size_t position);

    /// Tells each position its new one: @p newPositions counts from the position @p first.
    void move(std::size_t first, const std::vector<std::uint32_t> &newPositions);

    /// Makes room for as many steps.
    void reserve(std::size_t count);

    void clear();

private:
    // 32 bits do for positions: a step takes more than 16 bytes.
    struct Slot {
        std::uint32_t hash = 0;
        std::uint32_t positionPlusOne = 0; // 0 for an empty slot
    };

    static std::uint32_t hashOf(const ActionIdentifier &actionId, const QString &shortcut);
    std::size_t homeOf(std::uint32_t hash) const;
    std::size_t slotOf(const Steps &steps, std::uint32_t hash, const ActionIdentifier &actionId,
                       const QString &shortcut) const;
    void resize(std::size_t slotCount);

    std::vector<Slot> m_slots; // a power of two of them, at most half of them taken
    std::size_t m_count = 0;
};

} // namespace CUI
