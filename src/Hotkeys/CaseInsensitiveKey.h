#pragma once

#include "UiCustomizationsExport.h"

#include <QString>

#include <cstddef>

namespace CUI {

/// A text as the key of a hash map that ignores letter case in exactly the way that
/// QString::compare(Qt::CaseInsensitive) does. QString::toCaseFolded() would not do: it folds some
/// letters to several, so that texts which the comparison distinguishes would be equal.
struct CaseInsensitiveKey {
    QString text;
};

inline bool operator==(const CaseInsensitiveKey &a, const CaseInsensitiveKey &b)
{
    return a.text.size() == b.text.size() && a.text.compare(b.text, Qt::CaseInsensitive) == 0;
}

/// Not declared noexcept: the standard library of GCC then keeps the hash of each key, and does not
/// work it out again for every neighbour that a look-up passes.
struct CaseInsensitiveKeyHash {
    CUI_CORE_EXPORT std::size_t operator()(const CaseInsensitiveKey &key) const;
};

} // namespace CUI
