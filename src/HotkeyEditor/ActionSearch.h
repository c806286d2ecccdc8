#pragma once

#include "HotkeyRecorder.h"

#include <QObject>

class QKeyEvent;

namespace CUI {

class HotkeyEditorForm;
class QvelSortFilterProxyModel;

/// The search field of the hotkey editor: searches by names or by a hotkey that is pressed, and
/// brings back the sort order of before when the search ends.
class ActionSearch : public QObject
{
    Q_OBJECT

public:
    /// All arguments must outlive the object.
    ActionSearch(HotkeyEditorForm &form, QvelSortFilterProxyModel *proxy, QObject *parent);

    bool isByHotkeys() const;
    void searchByActions();
    void searchByHotkeys();
    /// A header was clicked: plain sorting by that column, even during a search.
    void returnToColumnSorting();
    void capture(const QKeyEvent &event);
    /// The field has been left: held modifiers no longer stand in it.
    void releaseKeys();
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
    HotkeyRecorder::Capture m_captured;
    // What to return to when the search ends; -1 while there is no search.
    int m_savedSortColumn = -1;
    Qt::SortOrder m_savedSortOrder = Qt::AscendingOrder;
};

} // namespace CUI
