#include "ActionSearch.h"

#include "EditorText.h"
#include "HotkeyEditorForm.h"
#include "HotkeyField.h"
#include "QvelActionItemModel.h"
#include "QvelSortFilterProxyModel.h"

#include <QHeaderView>
#include <QKeyEvent>
#include <QLineEdit>
#include <QRadioButton>
#include <QTreeView>

namespace CUI {

ActionSearch::ActionSearch(HotkeyEditorForm &form, QvelSortFilterProxyModel *proxy, QObject *parent)
    : QObject(parent),
      m_form(form),
      m_proxy(proxy),
      m_hotkey(new HotkeyField(form.searchLineEdit, HotkeyField::Modifiers::UntilLeft))
{
    m_hotkey->setActive(isByHotkeys());
}

bool ActionSearch::isByHotkeys() const
{
    return m_proxy->filterKeyColumn() != QvelActionItemModel::ActionColumn;
}

void ActionSearch::searchByActions()
{
    setKeyColumn(QvelActionItemModel::ActionColumn);
}

void ActionSearch::searchByHotkeys()
{
    setKeyColumn(QvelActionItemModel::HotkeyColumn);
}

void ActionSearch::searchForHotkey(const QString &hotkey)
{
    m_form.hotkeyRadioButton->setChecked(true);
    searchByHotkeys();
    m_hotkey->setHotkey(hotkey);
}

void ActionSearch::setKeyColumn(int column)
{
    m_proxy->setFilterKeyColumn(column);
    m_hotkey->setActive(isByHotkeys());
    retranslate();
    m_form.searchLineEdit->clear();
}

void ActionSearch::retranslate()
{
    const QString placeholder =
            isByHotkeys() ? editorText(
                    QT_TRANSLATE_NOOP("QvelShortcutsWidget", "Type to search by Hotkeys..."))
                          : editorText(QT_TRANSLATE_NOOP("QvelShortcutsWidget",
                                                         "Type to search by Actions..."));
    m_form.searchLineEdit->setPlaceholderText(placeholder);
    m_form.searchLineEdit->setAccessibleName(placeholder);
}

void ActionSearch::returnToColumnSorting()
{
    m_proxy->setActionSearchSorting(false);
    m_form.keyActionsTreeView->header()->setSortIndicatorShown(true);
}

bool ActionSearch::handleKey(const QKeyEvent &press)
{
    if (isByHotkeys() || press.key() != Qt::Key_Escape)
        return false;
    m_form.searchLineEdit->clear();
    return true;
}

void ActionSearch::followText(const QString &text)
{
    if (isByHotkeys())
        updateHotkeySearch(text);
    else
        updateActionSearch(text);
}

void ActionSearch::updateHotkeySearch(const QString &text)
{
    if (text.isEmpty() || !m_hotkey->hasHotkey()) {
        m_form.keyActionsTreeView->header()->setSortIndicatorShown(true);
        restoreSort();
    } else if (m_savedSortColumn < 0) {
        saveSort();
        m_form.keyActionsTreeView->header()->setSortIndicatorShown(true);
        m_form.keyActionsTreeView->sortByColumn(QvelActionItemModel::HotkeyColumn,
                                                Qt::AscendingOrder);
    }
    m_proxy->updateFilterString(m_hotkey->hotkey());
}

void ActionSearch::updateActionSearch(const QString &text)
{
    QHeaderView *header = m_form.keyActionsTreeView->header();
    if (text.isEmpty()) {
        restoreSort();
        m_proxy->setActionSearchSorting(false);
        header->setSortIndicatorShown(true);
    } else if (m_savedSortColumn < 0) {
        saveSort();
        m_proxy->setActionSearchSorting(true);
        header->setSortIndicatorShown(false);
        m_proxy->sort(m_proxy->sortColumn(), m_proxy->sortOrder());
    }
    m_proxy->updateFilterString(text);
}

void ActionSearch::saveSort()
{
    m_savedSortColumn = m_proxy->sortColumn();
    m_savedSortOrder = m_proxy->sortOrder();
}

void ActionSearch::restoreSort()
{
    if (m_savedSortColumn < 0)
        return;
    m_form.keyActionsTreeView->sortByColumn(m_savedSortColumn, m_savedSortOrder);
    m_savedSortColumn = -1;
}

} // namespace CUI
