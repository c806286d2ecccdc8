#pragma once

#include "ActionIdentifier.h"
#include "HotkeyAudit.h"
#include "UiCustomizationsExport.h"

#include <QWidget>

#include <memory>
#include <optional>
#include <set>
#include <vector>

namespace CUI {

class QvelShortcutManager;

/// Lists what is wrong with the hotkeys of a store, and settles it.
///
/// A table of the findings of a HotkeyAudit, to be searched and filtered by severity and kind; at
/// first it lists errors and warnings. Below it stands what the selected finding means today, and
/// for each action that it concerns what can be done: give the key to it alone, remove it, give a
/// lost one back, or choose another from the nearest free ones. Each choice is one edit of the
/// user.
///
/// It follows every edit and every load of the store, once events are processed, and a change of
/// the language. While it is hidden it makes no audit. User-interface thread only.
class CUI_EXPORT QvelConflictsWidget : public QWidget
{
    Q_OBJECT

public:
    /// Does not own @p manager, which must not be null; when that is destroyed, the table is empty.
    explicit QvelConflictsWidget(QvelShortcutManager *manager, QWidget *parent = nullptr);
    ~QvelConflictsWidget() override;

    /// The options of the audit: which contexts count everywhere, and whose reservations count.
    /// Initially those of HotkeyAudit::Options, with the keys that typeableKeys() answers and the
    /// systems of HotkeyReservation::systemsHere().
    void setAuditOptions(const HotkeyAudit::Options &options);
    /// The options that were last set.
    HotkeyAudit::Options auditOptions() const;

    /// Lists findings of that severity and above; the choice shows it.
    void setLeastSeverity(HotkeyFinding::Severity severity);

    /// All findings of the last audit, listed or not. Empty before the widget is first shown. The
    /// reference is valid until events are processed.
    const std::vector<HotkeyFinding> &findings() const;

    /// The keys that the keyboard in use types by themselves or with Shift, for
    /// HotkeyAudit::Options::typeableKeys; nothing where the system does not tell. Costs some
    /// milliseconds. The widget asks once, when it is made.
    static std::optional<std::set<int>> typeableKeys();

public Q_SLOTS:
    /// Makes the audit now, or when the widget is shown. For an application that has registered,
    /// moved or renamed actions.
    void refresh();

Q_SIGNALS:
    /// The user has selected a finding, or chosen one of the actions that it concerns. For a
    /// selected finding it is the first action. Not emitted for the finding that becomes current
    /// because another has been settled.
    void actionSelected(const CUI::ActionIdentifier &action);
    /// The user has pressed Enter on a finding or double-clicked it: the application may show the
    /// action. Comes after actionSelected().
    void actionActivated(const CUI::ActionIdentifier &action);
    /// Another audit has been made.
    void findingsChanged();

protected:
    /// Makes the audit that is due.
    void showEvent(QShowEvent *event) override;
    /// Takes over the texts of another language.
    void changeEvent(QEvent *event) override;

private:
    class Private;
    std::unique_ptr<Private> d;
};

} // namespace CUI
