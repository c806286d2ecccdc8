#include "OpenSteps.h"

#include <QHash>

#include <algorithm>

namespace CUI {

namespace {

constexpr std::size_t fewestSlots = 16;

} // namespace

std::uint32_t OpenSteps::hashOf(const ActionIdentifier &actionId, const QString &shortcut)
{
    const std::uint64_t hash = std::hash<ActionIdentifier>()(actionId) * 31U + qHash(shortcut, 0U);
    // Fibonacci hashing: the high bits depend on all others.
    return static_cast<std::uint32_t>((hash * 0x9e3779b97f4a7c15U) >> 32U);
}

std::size_t OpenSteps::homeOf(std::uint32_t hash) const
{
    return hash & (m_slots.size() - 1);
}

std::size_t OpenSteps::slotOf(const Steps &steps, std::uint32_t hash,
                              const ActionIdentifier &actionId, const QString &shortcut) const
{
    const std::size_t mask = m_slots.size() - 1;
    for (std::size_t i = homeOf(hash);; i = (i + 1) & mask) {
        const Slot &slot = m_slots[i];
        if (slot.positionPlusOne == 0)
            return i;
        if (slot.hash != hash)
            continue;
        const ShortcutTransformation &step = steps[slot.positionPlusOne - 1];
        if (step.actionId() == actionId && step.shortcut() == shortcut)
            return i;
    }
}

std::optional<std::size_t> OpenSteps::find(const Steps &steps, const ActionIdentifier &actionId,
                                           const QString &shortcut) const
{
    if (m_count == 0)
        return std::nullopt;
    const Slot &slot = m_slots[slotOf(steps, hashOf(actionId, shortcut), actionId, shortcut)];
    if (slot.positionPlusOne == 0)
        return std::nullopt;
    return slot.positionPlusOne - 1;
}

std::optional<std::size_t> OpenSteps::findOrInsert(const Steps &steps, std::size_t position)
{
    if (2 * (m_count + 1) > m_slots.size())
        resize(std::max(fewestSlots, 2 * m_slots.size()));
    const ShortcutTransformation &step = steps[position];
    const std::uint32_t hash = hashOf(step.actionId(), step.shortcut());
    Slot &slot = m_slots[slotOf(steps, hash, step.actionId(), step.shortcut())];
    if (slot.positionPlusOne != 0)
        return slot.positionPlusOne - 1;
    slot = {hash, static_cast<std::uint32_t>(position + 1)};
    ++m_count;
    return std::nullopt;
}

void OpenSteps::remove(const Steps &steps, std::size_t position)
{
    if (m_count == 0)
        return;
    const ShortcutTransformation &step = steps[position];
    const std::size_t mask = m_slots.size() - 1;
    std::size_t hole = slotOf(steps, hashOf(step.actionId(), step.shortcut()), step.actionId(),
                              step.shortcut());
    if (m_slots[hole].positionPlusOne == 0)
        return;
    // Whatever follows in the run moves up, unless that took it in front of its home.
    for (std::size_t i = (hole + 1) & mask; m_slots[i].positionPlusOne != 0; i = (i + 1) & mask) {
        const std::size_t home = homeOf(m_slots[i].hash);
        if (((i - home) & mask) < ((i - hole) & mask))
            continue;
        m_slots[hole] = m_slots[i];
        hole = i;
    }
    m_slots[hole] = {};
    --m_count;
}

void OpenSteps::move(std::size_t first, const std::vector<std::uint32_t> &newPositions)
{
    for (Slot &slot : m_slots) {
        if (slot.positionPlusOne != 0)
            slot.positionPlusOne = newPositions[slot.positionPlusOne - 1 - first] + 1;
    }
}

void OpenSteps::reserve(std::size_t count)
{
    std::size_t slotCount = fewestSlots;
    while (slotCount < 2 * count)
        slotCount *= 2;
    if (slotCount > m_slots.size())
        resize(slotCount);
}

void OpenSteps::resize(std::size_t slotCount)
{
    const std::vector<Slot> old = std::move(m_slots);
    m_slots.assign(slotCount, {});
    const std::size_t mask = slotCount - 1;
    for (const Slot &slot : old) {
        if (slot.positionPlusOne == 0)
            continue;
        std::size_t i = homeOf(slot.hash);
        while (m_slots[i].positionPlusOne != 0)
            i = (i + 1) & mask;
        m_slots[i] = slot;
    }
}

void OpenSteps::clear()
{
    m_slots.clear();
    m_count = 0;
}

} // namespace CUI
