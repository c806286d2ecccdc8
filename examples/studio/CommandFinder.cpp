#include "CommandFinder.h"

#include "HotkeyActions.h"

#include <UiCustomizations/ICuiActionManager.h>

#include <QCoreApplication>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLineEdit>
#include <QTreeWidget>
#include <QVBoxLayout>

namespace Studio {

CommandFinder::CommandFinder(const HotkeyActions &actions, QWidget *parent)
    : QDialog(parent), m_search(new QLineEdit(this)), m_list(new QTreeWidget(this))
{
    setWindowTitle(tr("Find Command"));
    setObjectName(QStringLiteral("commandFinder"));
    setAttribute(Qt::WA_DeleteOnClose);
    resize(640, 440);
    auto *layout = new QVBoxLayout(this);
    layout->addWidget(m_search);
    layout->addWidget(m_list);
    m_search->setPlaceholderText(tr("Type the name of a command"));
    m_search->installEventFilter(this);
    m_list->setRootIsDecorated(false);
    m_list->setHeaderLabels({tr("Command"), tr("Group"), tr("Hotkey")});
    m_list->header()->setStretchLastSection(false);
    m_list->header()->setSectionResizeMode(QHeaderView::ResizeToContents);
    m_list->header()->setSectionResizeMode(0, QHeaderView::Stretch);
    const CUI::ICuiActionManager *registry = CUI::ICuiActionManager::get();
    for (const auto &entry : registry->actions()) {
        const CUI::VelActionContext *group = registry->getActionContext(entry.second->contextId());
        if (group == nullptr || entry.second->momentary())
            continue;
        auto *item = new QTreeWidgetItem(
                m_list, {entry.second->name(), group->name(), actions.hotkeys(entry.first)});
        item->setData(0, Qt::UserRole, QVariant::fromValue(entry.first));
    }
    m_list->sortItems(0, Qt::AscendingOrder);
    m_list->setCurrentItem(m_list->topLevelItem(0));
    connect(m_search, &QLineEdit::textChanged, this, &CommandFinder::filter);
    connect(m_search, &QLineEdit::returnPressed, this, &CommandFinder::choose);
    connect(m_list, &QTreeWidget::itemDoubleClicked, this, &CommandFinder::choose);
}

void CommandFinder::filter(const QString &text)
{
    QTreeWidgetItem *first = nullptr;
    for (int i = 0; i < m_list->topLevelItemCount(); ++i) {
        QTreeWidgetItem *item = m_list->topLevelItem(i);
        item->setHidden(!item->text(0).contains(text, Qt::CaseInsensitive));
        if (first == nullptr && !item->isHidden())
            first = item;
    }
    m_list->setCurrentItem(first);
}

void CommandFinder::choose()
{
    const QTreeWidgetItem *item = m_list->currentItem();
    if (item == nullptr)
        return;
    const auto action = item->data(0, Qt::UserRole).value<CUI::ActionIdentifier>();
    close();
    Q_EMIT chosen(action);
}

// The list follows the arrow keys while the text is being typed.
bool CommandFinder::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == m_search && event->type() == QEvent::KeyPress) {
        const int key = static_cast<QKeyEvent *>(event)->key();
        if (key == Qt::Key_Up || key == Qt::Key_Down) {
            QCoreApplication::sendEvent(m_list, event);
            return true;
        }
    }
    return QDialog::eventFilter(watched, event);
}

} // namespace Studio
