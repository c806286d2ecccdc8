#include "SearchQuery.h"

#include <algorithm>

namespace CUI {

namespace {

const QLatin1Char blank(' ');

// The regular expressions

QString patternOfWords(const QString &search)
{
    QString words = QRegularExpression::escape(search);
    words.replace(QLatin1String("\\ "), QLatin1String(")(?=.*"));
    return QStringLiteral("^(?=.*%1).*$").arg(words);
}

QString patternOfHotkey(const QStringList &parts)
{
    const QString modifier = QStringLiteral("(?=.*\\b%1\\b)");
    const QString key = QStringLiteral("[^\\s]*(?<=^|\\+|\\s)%1($|\\s|\\+)");
    QString pattern = QStringLiteral("(.*)");
    for (const QString &part : parts)
        pattern += (part == parts.last() ? key : modifier).arg(QRegularExpression::escape(part));
    return pattern + QLatin1String("(.*)");
}

// Hotkeys in folded texts

// A character of a word as regular expressions understand it.
bool isOfWord(QChar c)
{
    return (c >= QLatin1Char('a') && c <= QLatin1Char('z'))
           || (c >= QLatin1Char('0') && c <= QLatin1Char('9')) || c == QLatin1Char('_');
}

bool isWord(const QString &text)
{
    return !text.isEmpty() && std::all_of(text.begin(), text.end(), isOfWord);
}

bool isWordFrom(const QString &text, const QString &word, int place)
{
    for (int i = text.indexOf(word, place); i >= 0; i = text.indexOf(word, i + 1)) {
        const int end = i + word.size();
        if ((i == 0 || !isOfWord(text.at(i - 1)))
            && (end == text.size() || !isOfWord(text.at(end))))
            return true;
    }
    return false;
}

bool isKeyAt(const QString &text, const QString &key, int place)
{
    const auto isBorder = [](QChar c) { return c == blank || c == QLatin1Char('+'); };
    const int end = place + key.size();
    return (place == 0 || isBorder(text.at(place - 1)))
           && (end == text.size() || isBorder(text.at(end)));
}

// Ranks

/// Whether a name holds @p phrase between blanks, or at the end behind a blank. A phrase that
/// counts at the start has to stand before a blank there.
bool holdsBetweenBlanks(const QString &name, const QString &phrase, Qt::CaseSensitivity sensitivity,
                        bool countsAtStart)
{
    for (int i = name.indexOf(phrase, 0, sensitivity); i >= 0;
         i = name.indexOf(phrase, i + 1, sensitivity)) {
        const int end = i + phrase.size();
        const bool isBeforeBlank = end < name.size() && name.at(end) == blank;
        if (i == 0 ? countsAtStart && isBeforeBlank
                   : name.at(i - 1) == blank && (isBeforeBlank || end == name.size()))
            return true;
    }
    return false;
}

} // namespace

SearchQuery::SearchQuery(const QString &text) : m_text(text)
{
    for (const QString &word : text.split(blank, Qt::SkipEmptyParts))
        m_words.emplace_back(word);
}

SearchQuery SearchQuery::ofWords(const QString &text)
{
    SearchQuery query(text);
    query.m_kind = Kind::Words;
    query.m_isSimple = query.m_text.isSimple;
    query.m_expression.setPattern(patternOfWords(text));
    return query;
}

SearchQuery SearchQuery::ofHotkey(const QString &text, const QStringList &parts)
{
    SearchQuery query(text);
    query.m_kind = Kind::Hotkey;
    query.m_expression.setPattern(patternOfHotkey(parts));
    QStringList &modifiers = query.m_modifiers;
    bool isSimple = true;
    for (const QString &part : parts) {
        const SearchText searched(part);
        isSimple = isSimple && searched.isSimple;
        modifiers << searched.folded;
    }
    if (!modifiers.isEmpty()) {
        query.m_key = modifiers.takeLast();
        isSimple = isSimple && !query.m_key.isEmpty() && !modifiers.contains(query.m_key)
                   && std::all_of(modifiers.begin(), modifiers.end(), isWord);
    }
    query.m_isSimple = isSimple;
    return query;
}

QString SearchQuery::withoutSeparators(const QString &hotkeys)
{
    static const QRegularExpression separator(QStringLiteral(",\\s+"));
    if (!hotkeys.contains(QLatin1Char(',')))
        return hotkeys;
    QString result = hotkeys;
    return result.replace(separator, QStringLiteral(" "));
}

bool SearchQuery::matches(const SearchText &text) const
{
    if (!isActive() || text.text.isEmpty())
        return false;
    if (m_isSimple && text.isSimple)
        return m_kind == Kind::Words ? holdsEveryWord(text.folded) : holdsHotkey(text.folded);
    // Half a surrogate pair in the search makes an expression that is not valid.
    return m_expression.isValid() && m_expression.match(text.text).hasMatch();
}

bool SearchQuery::holdsEveryWord(const QString &folded) const
{
    return std::all_of(m_words.begin(), m_words.end(),
                       [&folded](const SearchText &word) { return folded.contains(word.folded); });
}

bool SearchQuery::holdsHotkey(const QString &folded) const
{
    if (m_key.isEmpty())
        return true; // the search is no key combination
    for (int i = folded.indexOf(m_key); i >= 0; i = folded.indexOf(m_key, i + 1)) {
        // The modifiers may stand behind the key, and even in a later hotkey.
        const int start = i == 0 ? 0 : folded.lastIndexOf(blank, i - 1) + 1;
        if (isKeyAt(folded, m_key, i) && hasModifiersFrom(folded, start))
            return true;
    }
    return false;
}

bool SearchQuery::hasModifiersFrom(const QString &folded, int place) const
{
    return std::all_of(m_modifiers.begin(), m_modifiers.end(), [&](const QString &modifier) {
        return isWordFrom(folded, modifier, place);
    });
}

SearchQuery::Rank SearchQuery::rank(const SearchText &name) const
{
    const bool isSimple = m_text.isSimple && name.isSimple;
    const auto sensitivity = isSimple ? Qt::CaseSensitive : Qt::CaseInsensitive;
    const auto form = [isSimple](const SearchText &text) -> const QString & {
        return isSimple ? text.folded : text.text;
    };
    const QString &searched = form(name);
    const auto isPart = [&](const SearchText &word) {
        return searched.contains(form(word), sensitivity);
    };
    const auto isBetweenBlanks = [&](const SearchText &word) {
        return holdsBetweenBlanks(searched, form(word), sensitivity, true);
    };

    if (searched.startsWith(form(m_text), sensitivity))
        return StartsWithSearch;
    if (isPart(m_text)) {
        return holdsBetweenBlanks(searched, form(m_text), sensitivity, false) ? ContainsSearchAsWord
                                                                              : ContainsSearch;
    }
    if (std::any_of(m_words.begin(), m_words.end(), isBetweenBlanks))
        return ContainsWordAsWord;
    return std::any_of(m_words.begin(), m_words.end(), isPart) ? ContainsWord : NoMatch;
}

} // namespace CUI
