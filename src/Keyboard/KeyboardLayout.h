#pragma once

#include "UiCustomizationsExport.h"

#include <QStringList>

#include <functional>
#include <map>
#include <optional>

namespace CUI {

/// What the keys of a keyboard type, and its shape: a value. The keyboard in use is known to the
/// system, see QvelKeyboardWidget; some layouts are built in.
///
/// Keys are numbered as the Linux kernel numbers them (the A of a US keyboard is 30). Up to 88
/// these are the scan codes of PC keyboards, and those of X11 are 8 higher.
class CUI_CORE_EXPORT KeyboardLayout
{
public:
    /// Where keyboards differ: around Enter, beside the left Shift and beside the space bar.
    enum class Shape {
        Ansi, ///< as in the USA, China, Korea and Russia
        Iso, ///< as in Europe and Brazil: Enter has two rows, a key stands beside the left Shift
        Jis, ///< as in Japan
    };

    /// The characters of a key, 0 where it types none. For a dead key, those are the accents alone;
    /// for the point of the keypad, what it types while Num Lock is on.
    struct Characters {
        char32_t plain = 0; ///< without a modifier
        char32_t shifted = 0; ///< with Shift
    };

    /// The layout of the USA.
    KeyboardLayout();
    /// A layout by the characters of its keys. @p charactersOf is called once for each key that
    /// types a character on some keyboard.
    ///
    /// The shape follows from the keys that only one of the shapes has: a keyboard whose yen key
    /// types something is of shape Jis; one whose key beside the left Shift types what no other key
    /// does, of shape Iso; any other, of shape Ansi. (That the key exists says nothing: systems
    /// describe it even for keyboards without it, and then repeat another key.)
    explicit KeyboardLayout(const std::function<Characters(int code)> &charactersOf);

    /// The names of the built-in layouts, which are those of X11: us, gb, de, fr, br, jp, ru.
    static QStringList names();
    /// The built-in layout of that name; nothing when there is none.
    static std::optional<KeyboardLayout> named(const QString &name);

    /// The shape of the keyboard.
    Shape shape() const { return m_shape; }
    /// Sets the shape, whatever the characters say. Characters of keys that it lacks stay.
    void setShape(Shape shape) { m_shape = shape; }

    /// What the key of that code types; 0 and 0 for keys that type nothing and unknown codes.
    Characters characters(int code) const;

    /// The key of the hotkeys that a key makes, as a Qt::Key with Qt::KeypadModifier for keys of
    /// the keypad; 0 for keys that are not in any shape. Letter and digit keys make the same
    /// hotkeys in every script, and Shift changes none but those of the key beside the left Shift.
    int hotkeyKey(int code, bool shift = false) const;

private:
    bool isTyped(char32_t character, int exceptBy) const;
    Shape shapeOfKeys() const;

    std::map<int, Characters> m_characters;
    Shape m_shape = Shape::Ansi;
};

} // namespace CUI
