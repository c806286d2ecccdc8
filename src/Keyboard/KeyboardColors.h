#pragma once

#include "HotkeyKeyboard.h"

#include <QColor>

namespace CUI {

/// The colours of the picture of a keyboard, mixed from two of a palette. Users who are red-green
/// colour-blind can distinguish the hues (the set of Okabe and Ito). No state is shown by its hue
/// alone: hatching and a symbol show it as well.
class KeyboardColors
{
public:
    KeyboardColors(const QColor &base, const QColor &text);

    QColor text() const { return m_text; }
    /// Of the less important labels.
    QColor dimText() const { return mixed(m_text, 0.85); }
    QColor edge() const { return mixed(m_text, 0.45); }
    QColor face(HotkeyKeyboard::State state) const;
    QColor heldFace() const { return mixed(m_text, 0.25); }
    QColor hatching(HotkeyKeyboard::State state) const;

private:
    QColor mixed(const QColor &hue, double share) const;

    QColor m_base;
    QColor m_text;
};

} // namespace CUI
