#pragma once

#include "UiCustomizationsExport.h"

#include <QString>
#include <QStringList>

#include <vector>

namespace CUI {

/// Selects actions by the same rules as QvelSortFilterProxyModel, but can have several contexts and
/// categories. An action is selected when it passes all of: the contexts, the categories, the
/// search and the state. By default all actions are selected.
struct CUI_CORE_EXPORT ActionFilter {
    /// Which hotkeys an action must have.
    enum class State {
        All, ///< any or none
        Assigned, ///< at least one
        Customized, ///< one that is not among its base hotkeys, or none where the base has some
        Unsaved, ///< an unsaved edit concerns the action
    };

    /// What a search looks at.
    enum class SearchIn {
        Actions, ///< the names: all words of the text occur, in any order
        Hotkeys, ///< the hotkeys: the text, one key combination in portable form, is among them
    };

    /// Ids of the contexts; empty for all.
    std::vector<unsigned long> contexts;
    /// Categories as they are registered, letter case counts; empty for all.
    QStringList categories;
    /// Which hotkeys are asked for.
    State state = State::All;
    /// Blanks around it do not count; empty for no search. Letter case does not count.
    QString search;
    /// What is searched.
    SearchIn searchIn = SearchIn::Actions;
};

} // namespace CUI
