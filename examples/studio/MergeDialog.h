#pragma once

#include <UiCustomizations/HotkeySetMerge.h>

#include <QDialog>

class QDialogButtonBox;
class QTreeWidget;

namespace Studio {

/// Asks, for each clash of a merge, which side is to be taken.
class MergeDialog : public QDialog
{
    Q_OBJECT

public:
    MergeDialog(const CUI::HotkeySetMerge &merge, QWidget *parent);

    /// The merge with the choices that were made.
    const CUI::HotkeySetMerge &merge() const { return m_merge; }

private:
    void addRow(std::size_t clash);
    void showChoices();

    CUI::HotkeySetMerge m_merge;
    QTreeWidget *m_list;
    QDialogButtonBox *m_buttons;
};

} // namespace Studio
