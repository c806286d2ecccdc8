#pragma once

#include "HotkeyKeyboard.h"

#include <QColor>

namespace CUI {

/// The colours of the picture of a keyboard, made of two of a palette. Hues are told apart by those
/// who do not see red or green as others do (the set of Okabe and Ito), and never tell anything
/// that hatching and symbol do not tell.
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
