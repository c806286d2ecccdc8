#pragma once

#include "HotkeyFinding.h"
#include "UiCustomizationsExport.h"

#include <QString>
#include <QStringList>

#include <memory>
#include <optional>
#include <set>
#include <vector>

namespace CUI {

class QvelShortcutManager;

/// Finds what is wrong with the hotkeys of a store: keys that several actions share, keys that
/// never arrive, actions that have lost theirs.
///
/// The audit is made once, of what the store and the installed ICuiActionManager say at that time,
/// in the language of that time. It keeps neither of them. Actions that the registry does not know,
/// or whose context it does not know, are left out. Without a registry nothing is found.
/// User-interface thread only.
class CUI_CORE_EXPORT HotkeyAudit
{
public:
    /// What an audit cannot find out by itself.
    struct Options {
        /// The contexts whose hotkeys count wherever the focus is. They give way to the context of
        /// the part that has the focus, as they do in QvelActionBinder. Ids that are not
        /// registered have no effect.
        std::vector<unsigned long> everywhere;
        /// True where the application asks these contexts in their order. False where two of them
        /// that share a key make it ambiguous, as in QvelActionBinder.
        bool isEverywhereOrdered = false;
        /// Contexts that count at once in one part of the window, such as a mode and the view that
        /// the mode is in: each list holds those of one part, in the order in which the application
        /// asks them, the nearest to the focus first and of equally near ones as in
        /// QvelActionBinder::setContextOrder(). Modes that exclude one another are in lists of
        /// their own, each with the view. A context that is in no list counts alone.
        std::vector<std::vector<unsigned long>> together;
        /// The keys that the keyboard types by themselves or with Shift, as Qt key codes, letters
        /// in upper case; only characters count, keys like F5 or Home are taken to be there.
        /// Without a value the layout is not checked. QvelConflictsWidget::typeableKeys() answers
        /// it for the running system.
        std::optional<std::set<int>> typeableKeys;
        /// Whose reservations count.
        std::vector<HotkeyReservation::System> systems = {
                HotkeyReservation::System::Windows, HotkeyReservation::System::Kde,
                HotkeyReservation::System::Gnome, HotkeyReservation::System::MacOs,
                HotkeyReservation::System::TextFields};
    };

    /// Audits the hotkeys in effect, with options as they are at first.
    explicit HotkeyAudit(const QvelShortcutManager &manager);
    /// Audits the hotkeys in effect. The same contents give the same findings, in the same order.
    HotkeyAudit(const QvelShortcutManager &manager, const Options &options);
    ~HotkeyAudit();
    /// An audit can be moved; what was moved from can only be destroyed or assigned to.
    HotkeyAudit(HotkeyAudit &&other) noexcept;
    /// Takes over the findings of @p other, which can then only be destroyed or assigned to.
    HotkeyAudit &operator=(HotkeyAudit &&other) noexcept;

    /// By severity, the worst first, then by kind, key and identifier.
    const std::vector<HotkeyFinding> &findings() const;

    /// Up to @p count hotkeys that are free in that context, the most similar to @p hotkey first:
    /// a modifier more or less, or a neighbouring key of an English keyboard. Free is what
    /// no action holds where the context counts, no system of the options reserves, the keyboard
    /// can type and the hotkey editor can record. None for a text that names no key.
    QStringList nearestFree(const QString &hotkey, unsigned long contextId, int count) const;

private:
    class Private;
    std::unique_ptr<Private> d;
};

} // namespace CUI
