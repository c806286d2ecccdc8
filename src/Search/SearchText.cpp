#include "SearchText.h"

#include <algorithm>

namespace CUI {

namespace {

struct Range {
    ushort first;
    ushort last;
};

constexpr Range simpleRanges[] = {
        {0x0020, 0x007e}, // ASCII without the control characters
        {0x00a1, 0x00b4}, // Latin-1 without the micro sign, which has a twin among the Greek
                          // letters
        {0x00b6, 0x012f}, // Latin up to the dotted and the dotless I of Turkish
        {0x0132, 0x0148}, // Latin without the n after an apostrophe, which is two letters
        {0x014a, 0x017e}, // Latin up to the long s, another form of s
        {0x2010, 0x2027}, // punctuation without the separators of lines and paragraphs
        {0x2030, 0x205e},
        {0x2e80, 0xa4cf}, // Chinese, Japanese and their neighbours
        {0xac00, 0xd7a3}, // Korean
};

bool isSimple(QChar c)
{
    return std::any_of(std::begin(simpleRanges), std::end(simpleRanges), [c](const Range &range) {
        return c.unicode() >= range.first && c.unicode() <= range.last;
    });
}

} // namespace

SearchText::SearchText(const QString &original)
    : text(original),
      folded(original),
      isSimple(std::all_of(original.begin(), original.end(), CUI::isSimple))
{
    // Not QString::toCaseFolded(), which turns some letters into two.
    for (QChar &c : folded)
        c = c.toCaseFolded();
}

bool SearchText::isLess(const SearchText &a, const SearchText &b, Qt::CaseSensitivity sensitivity)
{
    if (sensitivity == Qt::CaseInsensitive && a.isSimple && b.isSimple)
        return a.folded < b.folded;
    return a.text.compare(b.text, sensitivity) < 0;
}

} // namespace CUI
