#include "ActionNameRank.h"

#include <QStringList>

#include <algorithm>

namespace CUI {

ActionNameRank::Phrase::Phrase(const QString &phrase)
    : text(phrase),
      inside(QLatin1Char(' ') + phrase + QLatin1Char(' ')),
      atEnd(QLatin1Char(' ') + phrase),
      atStart(phrase + QLatin1Char(' '))
{
}

ActionNameRank::Search::Search(const QString &text) : whole(text)
{
    for (const QString &word : text.split(QLatin1Char(' '), Qt::SkipEmptyParts))
        words.emplace_back(word);
}

ActionNameRank::Rank ActionNameRank::Search::rank(const QString &name,
                                                  Qt::CaseSensitivity sensitivity) const
{
    using Proxy = QvelSortFilterProxyModel;
    const auto isBetweenBlanks = [&](const Phrase &phrase) {
        return name.contains(phrase.inside, sensitivity)
               || name.endsWith(phrase.atEnd, sensitivity);
    };
    const auto isWord = [&](const Phrase &word) {
        return isBetweenBlanks(word) || name.startsWith(word.atStart, sensitivity);
    };
    const auto isPart = [&](const Phrase &word) { return name.contains(word.text, sensitivity); };

    if (name.startsWith(whole.text, sensitivity))
        return Proxy::StartsWithSearch;
    if (isPart(whole))
        return isBetweenBlanks(whole) ? Proxy::ContainsSearchAsWord : Proxy::ContainsSearch;
    if (std::any_of(words.begin(), words.end(), isWord))
        return Proxy::ContainsWordAsWord;
    if (std::any_of(words.begin(), words.end(), isPart))
        return Proxy::ContainsWord;
    return Proxy::NoMatch;
}

ActionNameRank::ActionNameRank(const QString &search)
    : m_exact(search), m_folded(FoldedText(search).text), m_isSimple(FoldedText(search).isSimple)
{
}

ActionNameRank::Rank ActionNameRank::rank(const QString &name) const
{
    return m_exact.rank(name, Qt::CaseInsensitive);
}

ActionNameRank::Rank ActionNameRank::rank(const FoldedText &name) const
{
    return m_folded.rank(name.text, Qt::CaseSensitive);
}

bool ActionNameRank::holdsEveryWord(const FoldedText &name) const
{
    return std::all_of(m_folded.words.begin(), m_folded.words.end(),
                       [&name](const Phrase &word) { return name.text.contains(word.text); });
}

} // namespace CUI
