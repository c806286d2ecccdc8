#include "ActionIdentifier.h"

#include <QHash>

#include <cstdint>

namespace CUI {

QString ActionIdentifier::toString() const
{
    return QString::number(tableId) + QLatin1Char('-') + actionId;
}

ActionIdentifier ActionIdentifier::fromString(const QString &text)
{
    const int hyphen = text.indexOf(QLatin1Char('-'));
    if (hyphen < 0)
        return {};
    // toUInt() gives 0 for what is not a number and for what exceeds 32 bits.
    return {text.leftRef(hyphen).toUInt(), text.mid(hyphen + 1)};
}

} // namespace CUI

std::size_t std::hash<CUI::ActionIdentifier>::operator()(
        const CUI::ActionIdentifier &identifier) const
{
    std::uint64_t h = 0xcbf29ce484222325U;
    for (unsigned shift = 0; shift < 32; shift += 8)
        h = (h ^ ((identifier.tableId >> shift) & 0xffU)) * 0x100000001b3U;
    const std::uint64_t q = qHash(identifier.actionId, 0U);
    return static_cast<std::size_t>(h ^ (0x9e3779b9U + (h >> 2U) + (h << 6U) + q));
}
