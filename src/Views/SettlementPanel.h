#pragma once

#include "ActionIdentifier.h"
#include "HotkeyCommand.h"
#include "Settlements.h"

#include <QScrollArea>

#include <memory>

class QGridLayout;
class QToolButton;

namespace CUI {

class HotkeyAudit;
class QvelShortcutManager;

/// Says in full what one finding is, and offers what settles it: a row of buttons for each hotkey
/// that it is about.
class SettlementPanel : public QScrollArea
{
    Q_OBJECT

public:
    explicit SettlementPanel(QWidget *parent);

    /// Shows a finding of the audit; with null, that none is selected.
    void setFinding(const HotkeyFinding *finding, const HotkeyAudit &audit,
                    const QvelShortcutManager &manager);

Q_SIGNALS:
    void chosen(const CUI::HotkeyCommand &edits);
    void actionChosen(const CUI::ActionIdentifier &action);

private:
    void addRow(QGridLayout *grid, const Settlements::Row &row, const HotkeyAudit &audit);
    QWidget *makeName(const Settlements::Row &row);
    QWidget *makeButton(const QString &text, const HotkeyCommand &edits);
    QToolButton *makeReplacements(const Settlements::Row &row, const HotkeyAudit &audit);
};

} // namespace CUI
