#include "HotkeyClaims.h"

namespace CUI {

std::vector<ActionIdentifier> HotkeyClaims::set(const ActionIdentifier &identifier,
                                                const Context &context,
                                                const QList<QKeySequence> &keys)
{
    std::vector<ActionIdentifier> affected = remove(identifier);
    Claim claim{context, {}};
    for (const QKeySequence &key : keys)
        claim.keys.emplace_back(false, key);
    for (const QKeySequence &key : keys) {
        const QKeySequence other = withReturn(key);
        if (!other.isEmpty())
            claim.keys.emplace_back(true, other);
    }
    for (const auto &[isOther, key] : claim.keys) {
        std::set<Claimant> &claimants = m_claimants[{context, key}];
        const ActionIdentifier before = claimants.empty() ? identifier : claimants.begin()->second;
        claimants.emplace(isOther, identifier);
        if (claimants.begin()->second != before)
            affected.push_back(before);
    }
    m_claims[identifier] = std::move(claim);
    return affected;
}

std::vector<ActionIdentifier> HotkeyClaims::remove(const ActionIdentifier &identifier)
{
    std::vector<ActionIdentifier> affected;
    const auto claim = m_claims.find(identifier);
    if (claim == m_claims.end())
        return affected;
    const ActionIdentifier removed = identifier; // may be the key that is about to go
    for (const auto &[isOther, key] : claim->second.keys) {
        const auto place = m_claimants.find({claim->second.context, key});
        if (place == m_claimants.end())
            continue; // named twice, and removed with the first
        std::set<Claimant> &claimants = place->second;
        const bool held = claimants.begin()->second == removed;
        claimants.erase({isOther, removed});
        if (claimants.empty())
            m_claimants.erase(place);
        else if (held && claimants.begin()->second != removed)
            affected.push_back(claimants.begin()->second);
    }
    m_claims.erase(claim);
    return affected;
}

QList<QKeySequence> HotkeyClaims::keysOf(const ActionIdentifier &identifier) const
{
    QList<QKeySequence> keys;
    const auto claim = m_claims.find(identifier);
    if (claim == m_claims.end())
        return keys;
    for (const auto &[isOther, key] : claim->second.keys) {
        const auto place = m_claimants.find({claim->second.context, key});
        if (place->second.begin()->second == identifier && !keys.contains(key))
            keys.append(key);
    }
    return keys;
}

ActionIdentifier HotkeyClaims::holderOf(const Context &context, const QKeySequence &key) const
{
    const auto place = m_claimants.find({context, key});
    return place == m_claimants.end() ? ActionIdentifier() : place->second.begin()->second;
}

QKeySequence HotkeyClaims::withReturn(const QKeySequence &key)
{
    constexpr auto modifiers = static_cast<unsigned>(Qt::KeyboardModifierMask);
    const auto combination = key.isEmpty() ? 0U : static_cast<unsigned>(key[0]);
    if (key.count() != 1 || (combination & ~modifiers) != Qt::Key_Enter
        || (combination & Qt::KeypadModifier) != 0)
        return {};
    return QKeySequence(static_cast<int>(Qt::Key_Return | (combination & modifiers)));
}

} // namespace CUI
