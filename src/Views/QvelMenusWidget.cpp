#include "QvelMenusWidget.h"

#include "QvelActionItemModel.h"

#include <QCoreApplication>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QMetaObject>
#include <QTreeView>

namespace CUI {

class QvelMenusWidget::Form
{
public:
    explicit Form(QWidget &widget)
        : horizontalLayout(new QHBoxLayout(&widget)), menuActionsTreeView(new QTreeView(&widget))
    {
        if (widget.objectName().isEmpty())
            widget.setObjectName(QStringLiteral("QvelMenusWidget"));
        widget.resize(676, 313);
        widget.setWindowTitle(QCoreApplication::translate("QvelMenusWidget", "QvelMenusWidget"));

        horizontalLayout->setObjectName(QStringLiteral("horizontalLayout"));
        horizontalLayout->setSpacing(6);
        horizontalLayout->setContentsMargins(11, 11, 11, 11);
        horizontalLayout->addWidget(menuActionsTreeView);

        menuActionsTreeView->setObjectName(QStringLiteral("menuActionsTreeView"));
        menuActionsTreeView->setIndentation(0);
        menuActionsTreeView->setRootIsDecorated(false);
        menuActionsTreeView->header()->setMinimumSectionSize(10);
        menuActionsTreeView->header()->setDefaultSectionSize(70);

        QMetaObject::connectSlotsByName(&widget);
    }

    QHBoxLayout *horizontalLayout;
    QTreeView *menuActionsTreeView;
};

QvelMenusWidget::QvelMenusWidget(QvelActionItemModel *model, QWidget *parent)
    : QWidget(parent), m_form(std::make_unique<Form>(*this))
{
    QTreeView *view = m_form->menuActionsTreeView;
    view->setModel(model);
    view->hideColumn(QvelActionItemModel::HotkeyColumn);
    view->setSortingEnabled(true);
    view->setSelectionBehavior(QAbstractItemView::SelectRows);
}

QvelMenusWidget::~QvelMenusWidget() = default;

} // namespace CUI
