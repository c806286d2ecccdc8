#pragma once

#include <QObject>

class QKeyEvent;

namespace CUI {

class HotkeyEditorForm;
class HotkeyField;
class QvelSortFilterProxyModel;

/// The search field of the hotkey editor: searches by names or by a hotkey that is pressed. When
/// the search ends, it restores the sort order.
class ActionSearch : public QObject
{
    Q_OBJECT

public:
    /// All arguments must outlive the object.
    ActionSearch(HotkeyEditorForm &form, QvelSortFilterProxyModel *proxy, QObject *parent);

    bool isByHotkeys() const;
    void searchByActions();
    void searchByHotkeys();
    /// Searches for a hotkey in portable form as if its keys had been pressed.
    void searchForHotkey(const QString &hotkey);
    /// A header was clicked: plain sorting by that column, even during a search.
    void returnToColumnSorting();
    /// A key press in the field. True when it is handled: Escape ends a search by names.
    bool handleKey(const QKeyEvent &press);
    void followText(const QString &text);
    /// Sets the placeholder in the current language.
    void retranslate();

private:
    void setKeyColumn(int column);
    void updateHotkeySearch(const QString &text);
    void updateActionSearch(const QString &text);
    void saveSort();
    void restoreSort();

    HotkeyEditorForm &m_form;
    QvelSortFilterProxyModel *m_proxy;
    HotkeyField *m_hotkey; // active while the search is by hotkeys
    // The sort order to restore when the search ends; -1 while there is no search.
    int m_savedSortColumn = -1;
    Qt::SortOrder m_savedSortOrder = Qt::AscendingOrder;
};

} // namespace CUI
