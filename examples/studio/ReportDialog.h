#pragma once

#include <UiCustomizations/HotkeySetReport.h>

#include <QDialog>

class QComboBox;
class QTreeWidget;

namespace Studio {

/// Shows the changes of a hotkey set that no longer apply, and asks for each of them whether it is
/// kept, dropped, or used for another action.
class ReportDialog : public QDialog
{
    Q_OBJECT

public:
    ReportDialog(const CUI::HotkeySetReport &report, QWidget *parent);

    /// The report with the remedies that were chosen.
    const CUI::HotkeySetReport &report() const { return m_report; }

private:
    void addRow(std::size_t entry);
    void choose(std::size_t entry, QComboBox *box);
    CUI::ActionIdentifier askForAction();

    CUI::HotkeySetReport m_report;
    QTreeWidget *m_list;
};

} // namespace Studio
