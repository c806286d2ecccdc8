#pragma once

#include "UiCustomizationsExport.h"

#include <QWidget>

#include <memory>

namespace CUI {

class QvelActionItemModel;

/// A list of all actions with their groups and categories, without their hotkeys.
///
/// The user sorts it by a click on a column's header. That sorts the rows of the model itself, for
/// every view of it, and so does the construction, by action name in descending order.
/// User-interface thread only.
class CUI_EXPORT QvelMenusWidget : public QWidget
{
    Q_OBJECT

public:
    /// Shows @p model, which it does not own and which may be destroyed first. @p parent owns the
    /// widget.
    explicit QvelMenusWidget(QvelActionItemModel *model, QWidget *parent = nullptr);
    ~QvelMenusWidget() override;

private:
    class Form;
    std::unique_ptr<Form> m_form;
};

} // namespace CUI
