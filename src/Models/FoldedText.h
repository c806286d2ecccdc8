#pragma once

#include <QString>

namespace CUI {

/// A text with its letter case folded away, so that it can be searched without regard to case as
/// fast as any other.
///
/// That gives the right answer only where every way to ignore case agrees: between texts in scripts
/// whose letters have one capital and one small form, or none, and without line breaks. Such texts
/// are simple; for others the general functions have to be asked.
struct FoldedText {
    FoldedText() = default;
    explicit FoldedText(const QString &original);

    QString text;
    bool isSimple = true;
};

} // namespace CUI
