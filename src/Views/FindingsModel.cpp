#include "FindingsModel.h"

#include "JoinedHotkeys.h"
#include "ShownNames.h"

#include <QCoreApplication>

namespace CUI {

namespace {

class Words
{
    Q_DECLARE_TR_FUNCTIONS(CUI::QvelConflictsWidget)
};

QString hotkeysOf(const HotkeyFinding &finding)
{
    QStringList hotkeys;
    const bool isPair = finding.kind == HotkeyFinding::Kind::DiffersByKeypad
                        || finding.kind == HotkeyFinding::Kind::DiffersByShift;
    if (isPair) {
        for (const HotkeyFinding::Holder &holder : finding.holders)
            hotkeys << ShownNames::ofHotkey(holder.hotkey);
    } else {
        for (const QString &hotkey : JoinedHotkeys::split(finding.hotkey))
            hotkeys << ShownNames::ofHotkey(hotkey);
    }
    return JoinedHotkeys::join(hotkeys);
}

QString actionsOf(const HotkeyFinding &finding)
{
    QStringList names;
    for (const HotkeyFinding::Holder &holder : finding.holders)
        names << ShownNames::ofActionIn(holder.action, holder.contextId);
    names.removeDuplicates();
    return names.join(QLatin1String(", "));
}

QString textOf(const HotkeyFinding &finding, int column)
{
    switch (column) {
    case FindingsModel::SeverityColumn:
        return HotkeyFinding::nameOf(finding.severity);
    case FindingsModel::KindColumn:
        return HotkeyFinding::nameOf(finding.kind);
    case FindingsModel::HotkeyColumn:
        return hotkeysOf(finding);
    case FindingsModel::ActionsColumn:
        return actionsOf(finding);
    default:
        return finding.text;
    }
}

/// Who takes the key and where that can be seen, one a line.
QString sourcesOf(const HotkeyFinding &finding)
{
    QStringList lines;
    for (const HotkeyReservation &reservation : finding.reservations)
        lines << QStringLiteral("%1: %2").arg(reservation.source, reservation.use);
    return lines.join(QLatin1Char('\n'));
}

} // namespace

void FindingsModel::setAudit(const std::shared_ptr<const HotkeyAudit> &audit)
{
    beginResetModel();
    m_audit = audit;
    endResetModel();
}

void FindingsModel::setIcons(const std::array<QIcon, 3> &icons)
{
    m_icons = icons;
}

const HotkeyFinding *FindingsModel::finding(const QModelIndex &index) const
{
    return index.isValid() ? &m_audit->findings().at(static_cast<std::size_t>(index.row()))
                           : nullptr;
}

int FindingsModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() || !m_audit ? 0 : static_cast<int>(m_audit->findings().size());
}

int FindingsModel::columnCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : columnCountOfTable;
}

QVariant FindingsModel::data(const QModelIndex &index, int role) const
{
    const HotkeyFinding *shown = finding(index);
    if (shown == nullptr)
        return {};
    if (role == Qt::DisplayRole)
        return textOf(*shown, index.column());
    if (role == Qt::DecorationRole && index.column() == SeverityColumn)
        return m_icons.at(static_cast<std::size_t>(shown->severity));
    if (role == Qt::ToolTipRole) {
        const QString sources = sourcesOf(*shown);
        const QString text = textOf(*shown, index.column());
        return index.column() == TextColumn && !sources.isEmpty()
                       ? text + QLatin1Char('\n') + sources
                       : text;
    }
    return {};
}

QVariant FindingsModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole)
        return {};
    switch (section) {
    case SeverityColumn:
        return Words::tr("Severity");
    case KindColumn:
        return Words::tr("Finding");
    case HotkeyColumn:
        return Words::tr("Hotkey");
    case ActionsColumn:
        return Words::tr("Actions");
    default:
        return Words::tr("What happens today");
    }
}

} // namespace CUI
