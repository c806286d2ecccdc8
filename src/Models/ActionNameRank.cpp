#include "ActionNameRank.h"

#include <algorithm>

namespace CUI {

namespace {

const QLatin1Char blank(' ');

bool startsWith(const QString &name, const QString &text)
{
    return name.startsWith(text, Qt::CaseInsensitive);
}

bool contains(const QString &name, const QString &text)
{
    return name.contains(text, Qt::CaseInsensitive);
}

bool containsBetweenBlanks(const QString &name, const QString &text)
{
    return contains(name, blank + text + blank) || name.endsWith(blank + text, Qt::CaseInsensitive);
}

} // namespace

ActionNameRank::ActionNameRank(const QString &search)
    : m_search(search), m_words(search.split(blank, Qt::SkipEmptyParts))
{
}

QvelSortFilterProxyModel::ActionSearchingSortOrder ActionNameRank::rank(const QString &name) const
{
    if (startsWith(name, m_search))
        return QvelSortFilterProxyModel::StartsWithSearch;
    if (containsBetweenBlanks(name, m_search))
        return QvelSortFilterProxyModel::ContainsSearchAsWord;
    if (contains(name, m_search))
        return QvelSortFilterProxyModel::ContainsSearch;
    const auto isWord = [&name](const QString &word) {
        return containsBetweenBlanks(name, word) || startsWith(name, word + blank);
    };
    if (std::any_of(m_words.begin(), m_words.end(), isWord))
        return QvelSortFilterProxyModel::ContainsWordAsWord;
    const auto isPart = [&name](const QString &word) { return contains(name, word); };
    if (std::any_of(m_words.begin(), m_words.end(), isPart))
        return QvelSortFilterProxyModel::ContainsWord;
    return QvelSortFilterProxyModel::NoMatch;
}

} // namespace CUI
