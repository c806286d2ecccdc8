#pragma once

#include "HotkeyFinding.h"

#include <QSortFilterProxyModel>
#include <QStringList>

#include <optional>

namespace CUI {

/// Lists the findings that are severe enough, of one kind or all, and hold all words of a search,
/// each in any column. It keeps the order of a FindingsModel until a column is sorted.
class FindingsFilter : public QSortFilterProxyModel
{
    Q_OBJECT

public:
    using QSortFilterProxyModel::QSortFilterProxyModel;

    void setLeastSeverity(HotkeyFinding::Severity severity);
    void setKind(std::optional<HotkeyFinding::Kind> kind);
    void setSearch(const QString &text);

protected:
    bool filterAcceptsRow(int sourceRow, const QModelIndex &sourceParent) const override;
    bool lessThan(const QModelIndex &left, const QModelIndex &right) const override;

private:
    HotkeyFinding::Severity m_leastSeverity = HotkeyFinding::Severity::Warning;
    std::optional<HotkeyFinding::Kind> m_kind;
    QStringList m_words;
};

} // namespace CUI
