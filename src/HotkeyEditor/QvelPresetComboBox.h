#pragma once

#include "ConfigType.h"
#include "Preset.h"
#include "UiCustomizationsExport.h"

#include <QColor>
#include <QComboBox>
#include <QIcon>

#include <memory>

namespace CUI {

/// The chooser of hotkey sets.
///
/// Each entry shows the name of a Preset and carries the preset in Qt::UserRole, its path in
/// Qt::ToolTipRole and, when it cannot be written, the lock icon. Shipped sets come before the
/// others; within each kind the names are in the order of the user's language. Names and paths are
/// always shown as plain text. While the current set has unsaved changes, a marker follows its
/// name.
///
/// Presets are looked up by their paths; letter case counts. Signals are those of QComboBox.
/// Sorting moves entries without a signal: the current entry stays current, at another index. The
/// entries live in the box's own QStandardItemModel, which must not be replaced. User-interface
/// thread only.
class CUI_EXPORT QvelPresetComboBox : public QComboBox
{
    Q_OBJECT

public:
    /// An empty box; @p parent owns it. The marker is red, and the lock icon is the application
    /// style's QStyle::SP_VistaShield, which styles outside Windows leave empty.
    explicit QvelPresetComboBox(QWidget *parent = nullptr);
    ~QvelPresetComboBox() override;

    /// Lists the presets of that type again, as Preset::getPresetList() finds them, and those that
    /// addNotInPathPreset() has added, even one that is listed already.
    ///
    /// With @p keepCurrent the current preset stays in the list and selected, whether or not it is
    /// still found. Without it, or when nothing was selected, the set that was listed first is
    /// current afterwards. Nothing is emitted while the list is refilled; the selection of the kept
    /// preset at the end then emits currentIndexChanged() and the like if it was not the one listed
    /// first.
    void updatePresets(ConfigType type, bool keepCurrent);

    /// Adds a preset from another directory, unless it is listed, and keeps it over
    /// updatePresets(). With @p select it is selected, listed before or not. Selecting emits as
    /// setCurrentIndex() does; so does the first entry of an empty box, which becomes current by
    /// itself.
    void addNotInPathPreset(const Preset &preset, bool select);

    /// True when an entry carries the preset.
    bool containsPreset(const Preset &preset) const;
    /// The index of the first entry that carries the preset, or -1.
    int findPreset(const Preset &preset) const;
    /// The preset of the current entry; an invalid one when nothing is selected.
    Preset currentPreset() const;
    /// The preset of the entry at @p index; an invalid one for an index outside the list.
    Preset presetFromIndex(int index) const;

    /// Selects the entry that carries the preset, or nothing when there is none. Returns its index,
    /// or -1.
    int setCurrentPreset(const Preset &preset);

    /// Gives the current entry another preset and its name. Tool tip, icon and place of the entry
    /// stay as they are. Without a current entry nothing happens.
    ///
    /// Takes the old preset out, puts the new one in, then sets the text; each of them, the last
    /// only where the names differ, makes the model emit dataChanged() and the box
    /// currentTextChanged(), even when the presets are equal. At the first of these signals the
    /// entry carries no preset.
    void modifyCurrentPreset(const Preset &preset);

    /// Removes the first entry that carries the preset, if there is one. When addNotInPathPreset()
    /// has added it, the next updatePresets() lists it again.
    void removePreset(const Preset &preset);

    /// The mark of entries that cannot be written, for entries added from now on.
    void setLockIcon(const QIcon &icon);
    /// The colour of the marker, from the next painting on.
    void setUserModifiedColor(const QColor &color);

public Q_SLOTS:
    /// Shows or hides the marker of unsaved changes, and makes it the accessible description or
    /// empties that. No signal.
    void setCurPresetModified(bool modified);

protected:
    /// Paints the box; unless it is editable, also the icon, the name, shortened in its middle
    /// where it does not fit, and the marker.
    void paintEvent(QPaintEvent *event) override;
    /// Takes over the marker of another language.
    void changeEvent(QEvent *event) override;

private:
    class Private;
    std::unique_ptr<Private> d;
};

} // namespace CUI
