#pragma once

#include <QHash>
#include <QString>

#include <cstddef>
#include <vector>

namespace CUI {

/// How the base sort-filter proxy compares two texts.
struct TextOrder {
    Qt::CaseSensitivity caseSensitivity = Qt::CaseSensitive;
    bool isLocaleAware = false;

    bool less(const QString &a, const QString &b) const
    {
        return (isLocaleAware ? a.localeAwareCompare(b) : a.compare(b, caseSensitivity)) < 0;
    }

    friend bool operator==(const TextOrder &a, const TextOrder &b)
    {
        return a.caseSensitivity == b.caseSensitivity && a.isLocaleAware == b.isLocaleAware;
    }
};

/// Texts kept once each and known by a number, so that comparing two costs next to nothing.
///
/// Equal numbers mean equal texts. For an order the texts are sorted once and then compared by
/// their rank. Texts added since are compared as texts until that has been done as often as there
/// are texts: sorting all of them for the sake of a few would be a waste.
class RankedTexts
{
public:
    /// The number of the text, 0 for the first one added.
    int add(const QString &text);
    void clear();

    int size() const { return static_cast<int>(m_texts.size()); }
    const QString &text(int number) const { return m_texts[static_cast<std::size_t>(number)]; }
    bool isEmpty(int number) const { return number == m_empty; }

    bool less(int a, int b, const TextOrder &order)
    {
        return isRanked(a, b, order) ? rank(a) < rank(b) : lessByText(a, b, order);
    }

    /// True when less() compares ranks.
    bool isRanked(int a, int b, const TextOrder &order) const
    {
        const int count = static_cast<int>(m_ranks.size());
        return a < count && b < count && order == m_order;
    }
    /// True when the next less() that finds no ranks sorts the texts.
    bool isRankingDue() const { return m_comparisons >= size(); }

private:
    int rank(int number) const { return m_ranks[static_cast<std::size_t>(number)]; }
    bool lessByText(int a, int b, const TextOrder &order);
    void rankAll();

    QHash<QString, int> m_numbers;
    std::vector<QString> m_texts;
    int m_empty = -1; // the number of the empty text, if there is one
    std::vector<int> m_ranks; // of the first of the texts; equal for texts the order holds equal
    TextOrder m_order;
    int m_comparisons = 0; // as texts, since the last ranking
};

} // namespace CUI
