#pragma once

#include "QvelActionItemModel.h"
#include "UiCustomizationsExport.h"

#include <QKeySequence>
#include <QList>
#include <QModelIndex>
#include <QSortFilterProxyModel>
#include <QString>
#include <QStringList>

#include <memory>

namespace CUI {

class QvelShortcutManager;

/// Searches, filters and sorts a QvelActionItemModel.
///
/// A row is listed when it passes all of: the context filter, the category filter, the search and
/// the hotkey filter. At first nothing is filtered. The standard filter key column chooses what a
/// search looks at: QvelActionItemModel::ActionColumn the names, HotkeyColumn the hotkeys. The
/// filters of the base class (regular expression, fixed string, wildcard) have no effect.
///
/// Rows of a source model whose hotkey column holds no QvelActionItem with an action are never
/// listed. What is read from a row is kept until the source model announces a change of it; what is
/// read from an action, for as long as the row shows it, even if the registry drops it. Hotkeys are
/// sorted by the names that their keys have in the current language; after a change of it the order
/// follows at the next sort or invalidate(). User-interface thread only.
class CUI_EXPORT QvelSortFilterProxyModel : public QSortFilterProxyModel
{
    Q_OBJECT

public:
    /// Which hotkey state a row must have, in the order of the editor's list.
    enum HotkeyFilter : unsigned int {
        AllActions = 0, ///< any
        AssignedHotkeysOnly = 1, ///< the action has a hotkey
        CustomizedHotkeysOnly = 2, ///< it has one that its base hotkeys lack, or has lost them all
        UnsavedHotkeysOnly = 3 ///< an unsaved edit concerns the action
    };
    Q_ENUM(HotkeyFilter)

    /// How well a name matches a search; less is better. Letter case is ignored. A word of its own
    /// stands between blanks, or at the end behind a blank; for ContainsWordAsWord also at the
    /// start before a blank. See evaluateStringSearch().
    enum ActionSearchingSortOrder {
        StartsWithSearch = 0, ///< the name starts with the whole search
        ContainsSearchAsWord = 1, ///< it holds the whole search as a word of its own
        ContainsSearch = 2, ///< it holds the whole search anywhere
        ContainsWordAsWord = 3, ///< it holds one of the search's words as a word of its own
        ContainsWord = 4, ///< it holds one of the search's words anywhere
        NoMatch = 5 ///< none of these
    };
    Q_ENUM(ActionSearchingSortOrder)

    /// @p shortcutManager answers which hotkeys are the base's and which edits are unsaved. It is
    /// not owned and may be destroyed first; with null no hotkey is a base hotkey or unsaved.
    explicit QvelSortFilterProxyModel(QvelShortcutManager *shortcutManager,
                                      QObject *parent = nullptr);
    ~QvelSortFilterProxyModel() override;

    /// Searches for @p text, blanks at its ends ignored, and returns whether a search is active
    /// now; an empty text ends the search.
    ///
    /// With filter key column ActionColumn, a name matches when it holds every word of the text
    /// (they are separated by blanks), in whatever order. With HotkeyColumn the text is the
    /// portable text of one key combination: the hotkeys of a row match when one of them has its
    /// key, and each of its modifiers stands in that hotkey or in a later one; a text that is no
    /// key combination matches every row that has a hotkey. With any other column the search is not
    /// active.
    ///
    /// Emits layoutAboutToBeChanged(), layoutChanged() and, unless a search by hotkey was started,
    /// filterInvalidated().
    bool updateFilterString(const QString &text);

    /// Whether rows that are compared by their names are ordered by how well these match the
    /// search, and by the name only after that. Stores the choice; the order follows at the next
    /// sort or invalidate().
    void setActionSearchSorting(bool enabled);

    /// \name Filters
    /// Each stores its value, then emits layoutAboutToBeChanged(), layoutChanged() and
    /// filterInvalidated(), also when nothing has changed.
    /// @{

    /// Lists only actions of exactly that category. "All Subgroups/Categories" ends this filter.
    void setFilterSelectedCategory(const QString &category);
    /// Lists only actions of that context, registered or not.
    void setFilterSelectedContext(unsigned long contextId);
    /// Lists the actions of all contexts.
    void disableContextFilter();
    /// Lists only actions of that hotkey state. A value that is none of them is ignored, and
    /// nothing is emitted.
    void setSelectedHotkeyFilter(HotkeyFilter filter);
    /// @}

Q_SIGNALS:
    /// Other rows may be listed now; emitted after layoutChanged().
    void filterInvalidated();

protected:
    /// True when the action of the row passes the search and all filters.
    bool filterAcceptsRow(int sourceRow, const QModelIndex &sourceParent) const override;

    /// The order of two source indexes. Equal texts are decided by the texts of other columns;
    /// empty texts stand last, whichever the sort order.
    bool lessThan(const QModelIndex &left, const QModelIndex &right) const override;

    /// How well @p name matches the text of the last updateFilterString().
    ActionSearchingSortOrder evaluateStringSearch(const QString &name) const;

    /// The modifiers of a key combination in their order, then its key; empty for a text that is
    /// no key combination. The plus key is "+", a key of the keypad one part with its qualifier
    /// (Num+5).
    QStringList getModifierAndKey(const QString &hotkey, QKeySequence::SequenceFormat inputFormat,
                                  QKeySequence::SequenceFormat outputFormat) const;

    /// Whether the search matches @p text, a name or the text of a hotkey cell; false without a
    /// search or a text.
    bool getRegularExpressionResult(const QString &text) const;

    /// That of the hotkeys by which their row is sorted: the first that a search by hotkey
    /// matches, else the first. Empty for an empty list.
    QString getSearchedHotkey(const QStringList &hotkeys) const;

    /// Moves both indexes through @p columns of their rows as far as the first column where their
    /// texts differ, or else to the last; not beyond a column that the source does not have.
    void switchIndexOnEqualString(
            QModelIndex &left, QModelIndex &right,
            const QList<QvelActionItemModel::ActionTreeColumns> &columns) const;

private:
    class Private;

    const std::unique_ptr<Private> d;
};

} // namespace CUI
