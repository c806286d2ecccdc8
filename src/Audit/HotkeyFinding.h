#pragma once

#include "ActionIdentifier.h"
#include "HotkeyReservation.h"
#include "UiCustomizationsExport.h"

#include <QString>

#include <optional>
#include <vector>

namespace CUI {

/// Something that HotkeyAudit found. A value: it names actions and contexts that were
/// registered when it was created, and may not be any more.
struct CUI_CORE_EXPORT HotkeyFinding {
    /// What was found, the worst first.
    enum class Kind {
        HeldTwice, ///< several actions of one context hold the key: one runs, the others never do
        Ambiguous, ///< contexts that count everywhere share the key: none of their actions runs
        NamesNoKey, ///< the text of the hotkey names no key
        NotTypeable, ///< the keyboard has no such key
        Shadowed, ///< an action gives way to one of another context that counts in the same place
        TakenByDesktop, ///< a desktop uses the key itself
        HotkeyLost, ///< the action has no hotkey, though the base gives it one
        TakenByTextFields, ///< text fields use the key while they have the focus
        DiffersByKeypad, ///< two hotkeys where only one is on the keypad: 5 and Num+5
        DiffersByShift, ///< two hotkeys that differ by Shift alone
        NearLimit ///< the action holds five or six hotkeys, and cannot hold more than six
    };

    /// How bad it is.
    enum class Severity {
        Note, ///< may be meant so
        Warning, ///< some key does not do what its owner expects
        Error ///< some action never runs by the key it holds
    };

    /// An action, its context, and the hotkey of it that the finding is about.
    struct Holder {
        ActionIdentifier action; ///< who holds the hotkey
        unsigned long contextId = 0; ///< the context of the action
        QString hotkey; ///< as the store has it; empty where the finding is about none
    };

    /// What the key does somewhere.
    struct Outcome {
        /// Where the keyboard focus is: in the part of this context, or, without a value, anywhere
        /// else.
        std::optional<unsigned long> contextId;
        /// The action that runs; the empty identifier when none does.
        ActionIdentifier action;
        /// The actions that hold the key and never run there: those of contexts that count together
        /// with this one or, without a value, that count everywhere. Empty for HeldTwice.
        std::vector<ActionIdentifier> others = {};
    };

    /// What was found.
    Kind kind = Kind::HeldTwice;
    /// severityOf() of the kind.
    Severity severity = Severity::Note;
    /// The key in portable form; a text that names none as it is. Of two hotkeys the first; for
    /// HotkeyLost those of the base, joined with ", "; empty for NearLimit.
    QString hotkey;
    /// Who is concerned. HeldTwice: the one that runs first. Shadowed: those that count everywhere
    /// first. HotkeyLost: the loser first, then who has its hotkeys in its context now.
    /// Else by context and identifier.
    std::vector<Holder> holders;
    /// What the key does today, for HeldTwice, Ambiguous and Shadowed.
    std::vector<Outcome> outcomes;
    /// Who takes the key, for TakenByDesktop and TakenByTextFields.
    std::vector<HotkeyReservation> reservations;
    /// What happens today, as a sentence in the language in which the audit was made.
    QString text;

    /// The severity that every finding of a kind has.
    static Severity severityOf(Kind kind);
    /// A name for files and pipelines, which never changes: "held-twice".
    static const char *keyOf(Kind kind);
    /// The same for a severity: "error".
    static const char *keyOf(Severity severity);
    /// What users read, in the current language: "Held twice".
    static QString nameOf(Kind kind);
    /// The same for a severity.
    static QString nameOf(Severity severity);
};

} // namespace CUI
