#pragma once

#include "HotkeyAudit.h"

#include <QAbstractTableModel>
#include <QIcon>

#include <array>
#include <memory>

namespace CUI {

/// Findings as rows of a table.
class FindingsModel : public QAbstractTableModel
{
    Q_OBJECT

public:
    enum Column { SeverityColumn, KindColumn, HotkeyColumn, ActionsColumn, TextColumn };
    static constexpr int columnCountOfTable = 5;

    using QAbstractTableModel::QAbstractTableModel;

    /// Replaces the rows by the findings of an audit; null for none.
    void setAudit(const std::shared_ptr<const HotkeyAudit> &audit);
    const HotkeyAudit *audit() const { return m_audit.get(); }
    /// The icons of the severities, in their order.
    void setIcons(const std::array<QIcon, 3> &icons);

    /// Null for an invalid index.
    const HotkeyFinding *finding(const QModelIndex &index) const;

    int rowCount(const QModelIndex &parent = QModelIndex()) const override;
    int columnCount(const QModelIndex &parent = QModelIndex()) const override;
    QVariant data(const QModelIndex &index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

private:
    std::shared_ptr<const HotkeyAudit> m_audit;
    std::array<QIcon, 3> m_icons;
};

} // namespace CUI
