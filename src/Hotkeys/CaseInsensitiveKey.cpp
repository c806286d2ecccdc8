#include "CaseInsensitiveKey.h"

#include <cstdint>

namespace CUI {

namespace {

constexpr std::uint64_t fnvOffset = 0xcbf29ce484222325U;
constexpr std::uint64_t fnvPrime = 0x100000001b3U;

std::uint32_t fold(std::uint32_t codePoint)
{
    if (codePoint >= 0x80)
        return QChar::toCaseFolded(codePoint);
    return codePoint >= 'A' && codePoint <= 'Z' ? codePoint + ('a' - 'A') : codePoint;
}

} // namespace

std::size_t CaseInsensitiveKeyHash::operator()(const CaseInsensitiveKey &key) const
{
    std::uint64_t h = fnvOffset;
    QChar previous;
    for (const QChar c : key.text) {
        std::uint32_t codePoint = c.unicode();
        // The comparison folds the second half of a pair as the whole character.
        if (c.isLowSurrogate() && previous.isHighSurrogate())
            codePoint = QChar::surrogateToUcs4(previous, c);
        h = (h ^ fold(codePoint)) * fnvPrime;
        previous = c;
    }
    return static_cast<std::size_t>(h ^ (h >> 32U));
}

} // namespace CUI
