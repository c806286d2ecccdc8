#pragma once

#include "FoldedText.h"

#include <QString>
#include <QStringList>

namespace CUI {

/// Decides what the regular expression of SearchPattern::ofHotkey() decides, many times faster, as
/// long as the texts and the parts are simple.
class HotkeyMatcher
{
public:
    explicit HotkeyMatcher(const QStringList &parts = QStringList());

    /// False when the regular expression has to be asked.
    bool isSimple() const { return m_isSimple; }
    /// Whether the hotkeys match. They stand between blanks, and they are simple.
    bool matches(const FoldedText &hotkeys) const;

private:
    bool isKeyAt(const QString &text, int place) const;
    bool hasModifiersFrom(const QString &text, int place) const;

    QStringList m_modifiers;
    QString m_key;
    bool m_isSimple = false;
};

} // namespace CUI
