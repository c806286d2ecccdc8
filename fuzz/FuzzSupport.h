#pragma once

#include <QByteArray>

#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>

namespace CUI::Fuzz {

/// Ends the process, which the fuzzer reports as a crash, unless @p holds.
inline void require(bool holds, const char *expectation)
{
    if (holds)
        return;
    std::fprintf(stderr, "Not so: %s\n", expectation);
    std::abort();
}

/// A copy, so that reading past its end is noticed.
inline QByteArray bytesOf(const std::uint8_t *data, std::size_t size)
{
    return {reinterpret_cast<const char *>(data), static_cast<int>(size)};
}

} // namespace CUI::Fuzz
