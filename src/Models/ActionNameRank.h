#pragma once

#include "FoldedText.h"
#include "QvelSortFilterProxyModel.h"

#include <QString>

#include <vector>

namespace CUI {

/// Ranks names by how well they match one search, letter case ignored.
class ActionNameRank
{
public:
    using Rank = QvelSortFilterProxyModel::ActionSearchingSortOrder;

    explicit ActionNameRank(const QString &search = QString());

    const QString &search() const { return m_exact.whole.text; }
    Rank rank(const QString &name) const;

    /// \name The same by the folded form of a name
    /// The name must be simple, and so must the search.
    /// @{
    bool isSimple() const { return m_isSimple; }
    Rank rank(const FoldedText &name) const;
    bool holdsEveryWord(const FoldedText &name) const;
    /// @}

private:
    /// A text and how it looks as a word of its own.
    struct Phrase {
        explicit Phrase(const QString &phrase);

        QString text;
        QString inside;
        QString atEnd;
        QString atStart;
    };
    struct Search {
        explicit Search(const QString &text);
        Rank rank(const QString &name, Qt::CaseSensitivity sensitivity) const;

        Phrase whole;
        std::vector<Phrase> words;
    };

    Search m_exact;
    Search m_folded;
    bool m_isSimple;
};

} // namespace CUI
