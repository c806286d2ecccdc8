#include "FindingsFilter.h"

#include "FindingsModel.h"

#include <algorithm>

namespace CUI {

void FindingsFilter::setLeastSeverity(HotkeyFinding::Severity severity)
{
    m_leastSeverity = severity;
    invalidateFilter();
}

void FindingsFilter::setKind(std::optional<HotkeyFinding::Kind> kind)
{
    m_kind = kind;
    invalidateFilter();
}

void FindingsFilter::setSearch(const QString &text)
{
    m_words = text.split(QLatin1Char(' '), Qt::SkipEmptyParts);
    invalidateFilter();
}

bool FindingsFilter::filterAcceptsRow(int sourceRow, const QModelIndex &sourceParent) const
{
    const auto *model = static_cast<const FindingsModel *>(sourceModel());
    const HotkeyFinding &finding = *model->finding(model->index(sourceRow, 0, sourceParent));
    if (finding.severity < m_leastSeverity || (m_kind && finding.kind != *m_kind))
        return false;
    if (m_words.isEmpty())
        return true;
    QString text;
    for (int column = 0; column < FindingsModel::columnCountOfTable; ++column)
        text += model->index(sourceRow, column).data().toString() + QLatin1Char('\n');
    return std::all_of(m_words.begin(), m_words.end(), [&text](const QString &word) {
        return text.contains(word, Qt::CaseInsensitive);
    });
}

bool FindingsFilter::lessThan(const QModelIndex &left, const QModelIndex &right) const
{
    // The findings come by severity; their names would be in the order of the alphabet.
    if (left.column() == FindingsModel::SeverityColumn)
        return left.row() < right.row();
    return left.data().toString().localeAwareCompare(right.data().toString()) < 0;
}

} // namespace CUI
