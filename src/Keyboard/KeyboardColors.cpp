#include "KeyboardColors.h"

namespace CUI {

namespace {

using State = HotkeyKeyboard::State;

QColor hueOf(State state)
{
    switch (state) {
    case State::Taken:
        return {0x00, 0x72, 0xB2};
    case State::TakenInSeveralContexts:
        return {0xE6, 0x9F, 0x00};
    case State::Shadowed:
        return {0xCC, 0x79, 0xA7};
    case State::Reserved:
        return {0xD5, 0x5E, 0x00};
    case State::NoHotkey:
    case State::Free:
        break;
    }
    return {};
}

} // namespace

KeyboardColors::KeyboardColors(const QColor &base, const QColor &text) : m_base(base), m_text(text)
{
}

QColor KeyboardColors::mixed(const QColor &hue, double share) const
{
    const auto mix = [share](qreal base, qreal other) { return base + (other - base) * share; };
    return QColor::fromRgbF(mix(m_base.redF(), hue.redF()), mix(m_base.greenF(), hue.greenF()),
                            mix(m_base.blueF(), hue.blueF()));
}

QColor KeyboardColors::face(State state) const
{
    if (state == State::NoHotkey)
        return mixed(m_text, 0.08);
    return state == State::Free ? m_base : mixed(hueOf(state), 0.25);
}

QColor KeyboardColors::hatching(State state) const
{
    return mixed(hueOf(state), 0.45);
}

} // namespace CUI
