#pragma once

#include <QDialog>

class QStandardItemModel;

namespace CUI {

class QvelShortcutManager;
class ShortcutTransformation;

/// A small window that lists the recorded steps, oldest first.
class TransformationListDialog : public QDialog
{
    Q_OBJECT

public:
    /// Shows the steps that are recorded now. @p manager must outlive the dialog.
    TransformationListDialog(const QvelShortcutManager *manager, QWidget *parent);

    /// The store has recorded a step.
    void followAdded(const ShortcutTransformation &step);
    /// Lists the recorded steps again.
    void refill();

protected:
    void changeEvent(QEvent *event) override;

private:
    void append(const ShortcutTransformation &step);

    const QvelShortcutManager *m_manager;
    QStandardItemModel *m_model;
};

} // namespace CUI
