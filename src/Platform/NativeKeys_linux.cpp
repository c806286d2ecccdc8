#include "NativeKeys.h"

#include "KeyCodes.h"
#include "KeyNames.h"
#include "VirtualKeys.h"

#include <QChar>
#include <QGuiApplication>
#include <QKeyEvent>

#include <xcb/xcb.h>
#include <xkbcommon/xkbcommon-x11.h>

#include <algorithm>
#include <array>
#include <memory>

namespace CUI::NativeKeys {

namespace {

struct Release {
    void operator()(xcb_connection_t *connection) const { xcb_disconnect(connection); }
    void operator()(xkb_context *context) const { xkb_context_unref(context); }
    void operator()(xkb_keymap *keymap) const { xkb_keymap_unref(keymap); }
    void operator()(xkb_state *state) const { xkb_state_unref(state); }
};

template <typename T>
using Owned = std::unique_ptr<T, Release>;

/// A connection of its own to the X server, for what Qt does not tell about the keyboard.
class XServer
{
    Q_DISABLE_COPY(XServer)

public:
    XServer() = default;

    /// The map of the keyboard as it is now; null without a server that knows the extension. Read
    /// at each call: people press keys slowly, and a cached map would have to be kept up to date.
    Owned<xkb_keymap> keymap()
    {
        const std::int32_t device = keyboard();
        if (device < 0)
            return nullptr;
        return Owned<xkb_keymap>(xkb_x11_keymap_new_from_device(
                m_context.get(), m_connection.get(), device, XKB_KEYMAP_COMPILE_NO_FLAGS));
    }

    /// The state of the keyboard as it is now, with the layout that is active; null likewise.
    Owned<xkb_state> state()
    {
        const Owned<xkb_keymap> map = keymap();
        return Owned<xkb_state>(
                map ? xkb_x11_state_new_from_device(map.get(), m_connection.get(), keyboard())
                    : nullptr);
    }

private:
    /// Negative when there is none.
    std::int32_t keyboard()
    {
        return isConnected() || connect() ? xkb_x11_get_core_keyboard_device_id(m_connection.get())
                                          : -1;
    }

    bool isConnected() const
    {
        return m_connection && xcb_connection_has_error(m_connection.get()) == 0;
    }

    bool connect()
    {
        if (!m_context) {
            m_context.reset(xkb_context_new(static_cast<xkb_context_flags>(
                    XKB_CONTEXT_NO_DEFAULT_INCLUDES | XKB_CONTEXT_NO_ENVIRONMENT_NAMES)));
        }
        m_connection.reset(xcb_connect(nullptr, nullptr));
        return m_context && isConnected()
               && xkb_x11_setup_xkb_extension(m_connection.get(), XKB_X11_MIN_MAJOR_XKB_VERSION,
                                              XKB_X11_MIN_MINOR_XKB_VERSION,
                                              XKB_X11_SETUP_XKB_EXTENSION_NO_FLAGS, nullptr,
                                              nullptr, nullptr, nullptr)
                          != 0;
    }

    Owned<xcb_connection_t> m_connection;
    Owned<xkb_context> m_context;
};

constexpr quint32 leftAltKey = KeyCodes::leftAlt + KeyCodes::firstOfX11;
constexpr quint32 rightAltKey = KeyCodes::rightAlt + KeyCodes::firstOfX11;
constexpr quint32 keypadDecimalKey = KeyCodes::keypadPoint + KeyCodes::firstOfX11;
constexpr quint32 keyBesideLeftShift = KeyCodes::besideLeftShift + KeyCodes::firstOfX11;

struct DeadKey {
    xkb_keysym_t symbol;
    quint32 character;
};

constexpr std::array<DeadKey, 13> deadKeys{{
        {XKB_KEY_dead_grave, '`'},
        {XKB_KEY_dead_acute, 0xB4},
        {XKB_KEY_dead_circumflex, '^'},
        {XKB_KEY_dead_tilde, '~'},
        {XKB_KEY_dead_macron, 0xAF},
        {XKB_KEY_dead_breve, 0x2D8},
        {XKB_KEY_dead_abovedot, 0x2D9},
        {XKB_KEY_dead_diaeresis, 0xA8},
        {XKB_KEY_dead_abovering, 0xB0},
        {XKB_KEY_dead_doubleacute, 0x2DD},
        {XKB_KEY_dead_caron, 0x2C7},
        {XKB_KEY_dead_cedilla, 0xB8},
        {XKB_KEY_dead_ogonek, 0x2DB},
}};

bool isBetween(quint32 code, quint32 first, quint32 last)
{
    return code >= first && code <= last;
}

bool isLetter(quint32 character)
{
    return isBetween(character, 'A', 'Z');
}

bool isDigit(quint32 character)
{
    return isBetween(character, '0', '9');
}

quint32 usCharacterOn(quint32 keyCode)
{
    return KeyCodes::usCharacterOf(static_cast<int>(keyCode) - KeyCodes::firstOfX11);
}

/// The visible character that the symbol stands for; 0 for other symbols.
quint32 typedBy(xkb_keysym_t symbol)
{
    const auto *const dead =
            std::find_if(deadKeys.begin(), deadKeys.end(),
                         [symbol](const DeadKey &key) { return key.symbol == symbol; });
    if (dead != deadKeys.end())
        return dead->character;
    const quint32 character = xkb_keysym_to_utf32(symbol);
    const bool isVisible = QChar::isPrint(character) && !QChar::isSpace(character);
    return isVisible ? character : 0;
}

/// The same with letters in upper case.
quint32 characterOf(xkb_keysym_t symbol)
{
    return QChar::toUpper(typedBy(symbol));
}

bool deliversKeySymbols()
{
    const QString platform = QGuiApplication::platformName();
    return platform == QLatin1String("xcb") || platform.startsWith(QLatin1String("wayland"));
}

XServer &xServer()
{
    static XServer server;
    return server;
}

/// The layout that was active when the key was pressed; null without an X server.
Owned<xkb_state> layoutAt(const QKeyEvent &event)
{
    if (QGuiApplication::platformName() != QLatin1String("xcb"))
        return nullptr;
    const Owned<xkb_keymap> keymap = xServer().keymap();
    Owned<xkb_state> layout(keymap ? xkb_state_new(keymap.get()) : nullptr);
    if (layout) {
        constexpr unsigned firstLayoutBit = 13; // in the state that each key event of X11 carries
        constexpr quint32 layoutMask = 3;
        const xkb_layout_index_t active = event.nativeModifiers() >> firstLayoutBit & layoutMask;
        xkb_state_update_mask(layout.get(), 0, 0, 0, 0, 0, active);
    }
    return layout;
}

/// What the key types in the layout while no modifier is held, or at another level.
xkb_keysym_t symbolOn(quint32 keyCode, xkb_state *layout, xkb_level_index_t level = 0)
{
    const xkb_keysym_t *symbols = nullptr;
    const int count = xkb_keymap_key_get_syms_by_level(xkb_state_get_keymap(layout), keyCode,
                                                       xkb_state_key_get_layout(layout, keyCode),
                                                       level, &symbols);
    return count == 1 ? *symbols : XKB_KEY_NoSymbol;
}

bool isTypedSomewhere(quint32 character, xkb_state *layout)
{
    xkb_keymap *const keymap = xkb_state_get_keymap(layout);
    const xkb_keycode_t last = xkb_keymap_max_keycode(keymap);
    for (xkb_keycode_t keyCode = xkb_keymap_min_keycode(keymap); keyCode <= last; ++keyCode) {
        if (characterOf(symbolOn(keyCode, layout)) == character)
            return true;
    }
    return false;
}

/// Without a layout it is what the press typed, which is right unless modifiers changed it.
quint32 unshiftedCharacter(const QKeyEvent &event, xkb_state *layout)
{
    const quint32 character = layout ? characterOf(symbolOn(event.nativeScanCode(), layout)) : 0;
    return character != 0 ? character : characterOf(event.nativeVirtualKey());
}

/// While Shift is held, Alt is delivered as Meta.
bool isAlt(const QKeyEvent &event)
{
    const quint32 keyCode = event.nativeScanCode();
    const xkb_keysym_t symbol = event.nativeVirtualKey();
    return isBetween(symbol, XKB_KEY_Alt_L, XKB_KEY_Alt_R)
           || (isBetween(symbol, XKB_KEY_Meta_L, XKB_KEY_Meta_R)
               && (keyCode == leftAltKey || keyCode == rightAltKey));
}

int keypadKeyOf(const QKeyEvent &event)
{
    const xkb_keysym_t symbol = event.nativeVirtualKey();
    // Its symbol is a point or a comma, the way the country writes numbers.
    if (event.nativeScanCode() == keypadDecimalKey
        && (symbol == XKB_KEY_KP_Decimal || symbol == XKB_KEY_KP_Separator))
        return VirtualKeys::keypadDecimal;
    if (isBetween(symbol, XKB_KEY_KP_0, XKB_KEY_KP_9))
        return VirtualKeys::keypad0 + static_cast<int>(symbol - XKB_KEY_KP_0);
    if (isBetween(symbol, XKB_KEY_KP_Multiply, XKB_KEY_KP_Divide))
        return VirtualKeys::keypadMultiply + static_cast<int>(symbol - XKB_KEY_KP_Multiply);
    return 0;
}

/// The virtual key of a punctuation key: that of its character, else that of its place.
int punctuationKeyOf(quint32 character, quint32 keyCode)
{
    if (const int virtualKey = KeyNames::keyToOEM(static_cast<int>(character)); virtualKey != 0)
        return virtualKey;
    if (keyCode == keyBesideLeftShift)
        return VirtualKeys::besideLeftShift;
    const int virtualKey = KeyNames::keyToOEM(static_cast<int>(usCharacterOn(keyCode)));
    return virtualKey != 0 ? virtualKey : VirtualKeys::lastPunctuation;
}

/// The virtual key of a key that types a character.
int typingKeyOf(const QKeyEvent &event, xkb_state *layout)
{
    const quint32 character = unshiftedCharacter(event, layout);
    if (isLetter(character) || isDigit(character))
        return static_cast<int>(character);
    // Keyboards of other scripts carry the Latin letters in their US places as well.
    const quint32 usCharacter = usCharacterOn(event.nativeScanCode());
    if (isLetter(usCharacter)
        && (layout ? !isTypedSomewhere(usCharacter, layout) : QChar::isLetter(character)))
        return static_cast<int>(usCharacter);
    return character != 0 ? punctuationKeyOf(character, event.nativeScanCode()) : 0;
}

} // namespace

int virtualKeyOf(const QKeyEvent &event)
{
    if (!deliversKeySymbols())
        return static_cast<int>(event.nativeVirtualKey());
    const quint32 usCharacter = usCharacterOn(event.nativeScanCode());
    if (isDigit(usCharacter)) // many layouts need Shift for digits
        return static_cast<int>(usCharacter);
    if (isAlt(event))
        return VirtualKeys::alt;
    if (const int virtualKey = keypadKeyOf(event); virtualKey != 0)
        return virtualKey;
    return typingKeyOf(event, layoutAt(event).get());
}

int unshiftedCharacterOf(int virtualKey, const QKeyEvent &event)
{
    if (!deliversKeySymbols())
        return KeyNames::oemToKey(virtualKey);
    return static_cast<int>(unshiftedCharacter(event, layoutAt(event).get()));
}

std::optional<KeyboardLayout> knownLayout()
{
    // Beside a Wayland compositor, an X server has the compositor's layout.
    const Owned<xkb_state> state = deliversKeySymbols() ? xServer().state() : nullptr;
    if (!state)
        return {};
    return KeyboardLayout([&state](int code) {
        const auto keyCode = static_cast<quint32>(code + KeyCodes::firstOfX11);
        const char32_t shifted = typedBy(symbolOn(keyCode, state.get(), 1));
        // With Num Lock, the keypad types what is on the second level.
        const char32_t plain =
                code == KeyCodes::keypadPoint ? shifted : typedBy(symbolOn(keyCode, state.get()));
        return KeyboardLayout::Characters{plain, shifted};
    });
}

} // namespace CUI::NativeKeys
