#pragma once

#include "QvelSortFilterProxyModel.h"

#include <QString>
#include <QStringList>

namespace CUI {

/// Ranks names by how well they match one search, letter case ignored.
class ActionNameRank
{
public:
    explicit ActionNameRank(const QString &search = QString());

    const QString &search() const { return m_search; }
    QvelSortFilterProxyModel::ActionSearchingSortOrder rank(const QString &name) const;

private:
    QString m_search;
    QStringList m_words;
};

} // namespace CUI
