#pragma once

#include "UiCustomizationsExport.h"

#include <QString>

namespace CUI {

/// A text that is searched and compared without regard to letter case, with its folded form.
///
/// Comparing folded forms by code unit is many times faster than ignoring case in each comparison.
/// It gives the same answers only for simple texts: those in scripts where a letter has one capital
/// and one small form, or none, and without line breaks. For other texts use the general functions
/// on text.
struct CUI_CORE_EXPORT SearchText {
    SearchText() = default;
    explicit SearchText(const QString &original);

    /// Whether @p a comes before @p b, in the order of QString::compare().
    static bool isLess(const SearchText &a, const SearchText &b, Qt::CaseSensitivity sensitivity);

    QString text;
    QString folded;
    bool isSimple = true;
};

} // namespace CUI
