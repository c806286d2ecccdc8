#pragma once

#include "ActionIdentifier.h"
#include "ShortcutTransformation.h"
#include "UiCustomizationsExport.h"

#include <cstddef>
#include <vector>

namespace CUI {

class QvelShortcutManager;

/// What each step of a hotkey set does on today's base configuration, which may be another one than
/// that the set was made on, and what the user wants done about it.
///
/// The steps are replayed on the base hotkeys of a store by the rules of loading a set. Nothing is
/// logged, no store is changed, and the report does not follow later changes.
class CUI_CORE_EXPORT HotkeySetReport
{
public:
    /// The steps of a set, in the order in which they are replayed.
    using Steps = std::vector<ShortcutTransformation>;

    /// What a step does. Where several are true of a step, the first one counts.
    enum class Effect {
        /// The installed registry does not know the action; nothing happens.
        NamesUnknownAction,
        /// An assignment of a hotkey that the action holds already, letter case ignored, or the
        /// removal of one that an earlier step of the set took from the action.
        HasNoEffect,
        /// The removal of a hotkey that the action does not hold, letter case included.
        RemovesNothing,
        /// An assignment to an action that holds six hotkeys.
        IsRefused,
        /// An assignment that takes the hotkey from an action of the same context that has it in
        /// the base configuration, probably unknown to the user. A set does not say on which base
        /// it was made: a base that has given the hotkey to that action since is assumed unless the
        /// set has a step, anywhere, for that action and hotkey (letter case ignored). HotkeyEdits
        /// records one whenever it takes a hotkey from an action; sets that were made otherwise may
        /// lack it.
        TakesNewBaseHotkey,
        /// The step does what it says.
        Applies,
    };

    /// What is to become of a step.
    enum class Remedy {
        Keep, ///< it stays as it is
        Remap, ///< it is for another action
        Drop, ///< it is left out
    };

    /// One step of the set.
    struct Entry {
        ShortcutTransformation step; ///< as the set has it
        Effect effect = Effect::Applies; ///< what it does
        /// For a step that names an unknown action, the known action whose identifier is most
        /// similar; for one that takes a new base hotkey, the action that loses it; otherwise, and
        /// when no identifier is similar enough, empty.
        ActionIdentifier other;
        Remedy remedy = Remedy::Keep; ///< what was chosen
        ActionIdentifier target; ///< the action that the step is remapped to; otherwise empty

        /// False when the step names an unknown action, removes nothing or is refused; true for all
        /// other effects, including HasNoEffect.
        bool applies() const;
    };

    /// Replays @p steps on the base hotkeys of @p store. Without an installed registry no action is
    /// unknown, and none loses a hotkey to another.
    HotkeySetReport(const QvelShortcutManager &store, const Steps &steps);
    /// The report on the set in @p store: its allTransforms().
    explicit HotkeySetReport(const QvelShortcutManager &store);

    /// The steps in the order of the set.
    const std::vector<Entry> &entries() const { return m_entries; }
    /// How many steps have that effect.
    int count(Effect effect) const;
    /// How many steps do not apply.
    int notApplyingCount() const;

    /// \name Remedies
    /// An index beyond the end changes nothing. A later remedy for a step replaces an earlier one.
    /// The effects stay those of the set as it is: a report on steps() says what remedies achieve.
    /// @{

    /// Leaves the step in the set as it is, which is the remedy of every step at first.
    void keep(std::size_t entry);
    /// Leaves the step out.
    void drop(std::size_t entry);
    /// Makes it a step for @p action, which gets the action's display text as its description if
    /// the registry knows one.
    void remap(std::size_t entry, const ActionIdentifier &action);
    /// True when a step is to be dropped or remapped.
    bool hasRemedies() const;
    /// The steps of the set once the remedies have been applied, for
    /// QvelShortcutManager::replaceTransforms() or QvelShortcutManager::writeTransforms().
    Steps steps() const;
    /// @}

    /// The action of the installed registry whose identifier has the smallest edit distance to
    /// @p action's: one insertion, removal or replacement of a character for every four characters
    /// begun is tolerated. An action of the same name in another table is most similar; among
    /// equally similar ones, those of the same table and then the first by identifier come first.
    /// Empty when there is none, or no registry.
    static ActionIdentifier mostSimilarAction(const ActionIdentifier &action);

private:
    void choose(std::size_t entry, Remedy remedy, const ActionIdentifier &target);

    std::vector<Entry> m_entries;
};

} // namespace CUI
