#include "RankedTexts.h"

#include <algorithm>
#include <numeric>

namespace CUI {

int RankedTexts::add(const QString &text)
{
    const auto known = m_numbers.constFind(text);
    if (known != m_numbers.constEnd())
        return *known;
    const int number = size();
    m_texts.push_back(text);
    m_numbers.insert(text, number);
    if (text.isEmpty())
        m_empty = number;
    return number;
}

void RankedTexts::clear()
{
    m_numbers.clear();
    m_texts.clear();
    m_ranks.clear();
    m_empty = -1;
    m_comparisons = 0;
}

bool RankedTexts::lessByText(int a, int b, const TextOrder &order)
{
    if (!(order == m_order)) {
        m_order = order;
        m_ranks.clear();
        m_comparisons = 0;
    }
    if (isRankingDue()) {
        rankAll();
        return rank(a) < rank(b);
    }
    ++m_comparisons;
    return order.less(text(a), text(b));
}

void RankedTexts::rankAll()
{
    std::vector<int> sorted(m_texts.size());
    std::iota(sorted.begin(), sorted.end(), 0);
    std::sort(sorted.begin(), sorted.end(),
              [this](int a, int b) { return m_order.less(text(a), text(b)); });
    m_ranks.resize(m_texts.size());
    int current = 0;
    for (std::size_t i = 0; i < sorted.size(); ++i) {
        if (i > 0 && m_order.less(text(sorted[i - 1]), text(sorted[i])))
            ++current;
        m_ranks[static_cast<std::size_t>(sorted[i])] = current;
    }
    m_comparisons = 0;
}

} // namespace CUI
