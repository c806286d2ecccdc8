#pragma once

#include "SearchText.h"
#include "UiCustomizationsExport.h"

#include <QRegularExpression>
#include <QString>
#include <QStringList>

#include <vector>

namespace CUI {

/// A typed search: which texts it matches, and how well a name matches it.
///
/// A regular expression decides whether a text matches. For simple texts (SearchText) the same
/// answer is found without it, many times faster.
class CUI_CORE_EXPORT SearchQuery
{
public:
    /// The values of QvelSortFilterProxyModel::ActionSearchingSortOrder, which documents them.
    enum Rank {
        StartsWithSearch,
        ContainsSearchAsWord,
        ContainsSearch,
        ContainsWordAsWord,
        ContainsWord,
        NoMatch,
    };

    /// Matches nothing; names are ranked by @p text.
    explicit SearchQuery(const QString &text = QString());
    /// Matches texts that hold every word of @p text, in any order.
    static SearchQuery ofWords(const QString &text);
    /// Matches texts that hold each of @p parts, the parts of the hotkey @p text: the modifiers as
    /// words anywhere, the key, which is the last part, as a whole. Without parts, matches all
    /// texts that are not empty.
    static SearchQuery ofHotkey(const QString &text, const QStringList &parts);

    /// The hotkeys of a joined text as ofHotkey() expects them: with blanks between them.
    static QString withoutSeparators(const QString &hotkeys);

    const QString &text() const { return m_text.text; }
    /// False when it matches nothing, whatever the text.
    bool isActive() const { return m_kind != Kind::None; }
    /// False for an empty text.
    bool matches(const SearchText &text) const;
    Rank rank(const SearchText &name) const;

private:
    enum class Kind { None, Words, Hotkey };

    bool holdsEveryWord(const QString &folded) const;
    bool holdsHotkey(const QString &folded) const;
    bool hasModifiersFrom(const QString &folded, int place) const;

    Kind m_kind = Kind::None;
    SearchText m_text;
    std::vector<SearchText> m_words;
    QStringList m_modifiers; // folded, and so is the key
    QString m_key;
    bool m_isSimple = false; // simple texts need no regular expression
    QRegularExpression m_expression{QString(), QRegularExpression::CaseInsensitiveOption};
};

} // namespace CUI
