#pragma once

#include "ConfigType.h"
#include "UiCustomizationsExport.h"

#include <QList>
#include <QMetaType>
#include <QString>

namespace CUI {

/// A hotkey set file that the user can choose: one that is shipped with the host, or one of the
/// user's own.
///
/// Presets are equal, and ordered, by their paths alone; letter case counts.
class CUI_CORE_EXPORT Preset
{
public:
    /// An invalid preset: empty path and name, no flag set.
    Preset() = default;

    /// A preset for the file at @p path. Without @p name it is named by its file name up to the
    /// first "." and isCustomName() is false. (The sets in a list are named by what the file says,
    /// or by its name up to the last ".".)
    Preset(const QString &path, bool locked, const QString &name);

    /// True unless the path is empty.
    bool isValid() const { return !m_path.isEmpty(); }
    /// The full path of the file.
    QString path() const { return m_path; }
    /// The display text, translated when the preset came from getPresetList().
    QString name() const { return m_name; }
    /// Names the preset; isCustomName() is true from then on. The file stays as it is.
    void setName(const QString &name);

    /// True when the name was given, false when it comes from the file name.
    bool isCustomName() const { return m_customName; }
    /// True when the file says that the set must not be changed.
    bool isLocked() const { return m_locked; }
    /// True when the path has the directory of the shipped sets in it, as a plain part of the text:
    /// a directory beside it whose name merely starts like it counts as well. False when the host
    /// has no such directory.
    bool isDefaultHotkeySet() const { return m_defaultHotkeySet; }
    /// True when a set may be saved there: it is not locked, and the file is not there or not
    /// read-only.
    bool isWritable() const;

    /// True only when the file exists and is marked read-only: by its attribute on Windows, by the
    /// missing write permission of its owner elsewhere, whoever asks.
    static bool isFileReadOnly(const QString &path);

    /// The sets in the host's default directory, which are marked read-only by this, then those in
    /// the user's directory, each in the order of the file names. Files that cannot be read or do
    /// not follow the schema are left out (the latter are logged as errors), and so is a path that
    /// is already listed. Only hotkey sets are listed: other types give an empty list.
    static QList<Preset> getPresetList(ConfigType type);

    /// Marks each file of the list that exists read-only, keeping its other attributes. Nothing is
    /// reported when that fails.
    static void setPresetFilesToReadOnly(const QList<Preset> &presets);

private:
    QString m_path;
    QString m_name;
    bool m_customName = false;
    bool m_locked = false;
    bool m_defaultHotkeySet = false;
};

inline bool operator==(const Preset &a, const Preset &b)
{
    return a.path() == b.path();
}

inline bool operator!=(const Preset &a, const Preset &b)
{
    return !(a == b);
}

inline bool operator<(const Preset &a, const Preset &b)
{
    return a.path() < b.path();
}

} // namespace CUI

Q_DECLARE_METATYPE(CUI::Preset)
