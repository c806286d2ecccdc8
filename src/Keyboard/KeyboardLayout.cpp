#include "KeyboardLayout.h"

#include "KeyCodes.h"
#include "KeyNames.h"

#include <QChar>

#include <algorithm>
#include <array>
#include <string_view>

namespace CUI {

namespace {

using Shape = KeyboardLayout::Shape;

// The keys that type characters, in the order in which the built-in layouts list them.
constexpr std::array<int, 51> typingKeys{{
        41, 2,   3,  4,  5,  6,  7,  8,  9,  10, 11, 12, 13, // beginning with the digits
        16, 17,  18, 19, 20, 21, 22, 23, 24, 25, 26, 27, // with Q
        30, 31,  32, 33, 34, 35, 36, 37, 38, 39, 40, 43, // with A
        86, 44,  45, 46, 47, 48, 49, 50, 51, 52, 53, // with Z
        89, 124, 83, // the key beside the right Shift, yen, the point of the keypad
}};

struct BuiltIn {
    const char *name;
    std::u32string_view plain;
    std::u32string_view shifted;
};

// A blank stands for a key that types nothing.
constexpr std::array<BuiltIn, 7> builtIns{{
        {"us", U"`1234567890-=qwertyuiop[]asdfghjkl;'\\<zxcvbnm,./  .",
         U"~!@#$%^&*()_+QWERTYUIOP{}ASDFGHJKL:\"|>ZXCVBNM<>?  ."},
        {"gb", U"`1234567890-=qwertyuiop[]asdfghjkl;'#\\zxcvbnm,./  .",
         U"¬!\"£$%^&*()_+QWERTYUIOP{}ASDFGHJKL:@~|ZXCVBNM<>?  ."},
        {"de", U"^1234567890ß´qwertzuiopü+asdfghjklöä#<yxcvbnm,.-  ,",
         U"°!\"§$%&/()=?`QWERTZUIOPÜ*ASDFGHJKLÖÄ'>YXCVBNM;:_  ,"},
        {"fr", U"²&é\"'(-è_çà)=azertyuiop^$qsdfghjklmù*<wxcvbn,;:!  .",
         U"~1234567890°+AZERTYUIOP¨£QSDFGHJKLM%µ>WXCVBN?./§  ."},
        {"br", U"'1234567890-=qwertyuiop´[asdfghjklç~]\\zxcvbnm,.;/ ,",
         U"\"!@#$%¨&*()_+QWERTYUIOP`{ASDFGHJKLÇ^}|ZXCVBNM<>:? ,"},
        {"jp", U" 1234567890-^qwertyuiop@[asdfghjkl;:]<zxcvbnm,./\\\\.",
         U" !\"#$%&'()~=~QWERTYUIOP`{ASDFGHJKL+*}>ZXCVBNM<>?_|."},
        {"ru", U"ё1234567890-=йцукенгшщзхъфывапролджэ\\/ячсмитьбю.  ,",
         U"Ё!\"№;%:?*()_+ЙЦУКЕНГШЩЗХЪФЫВАПРОЛДЖЭ/|ЯЧСМИТЬБЮ,  ,"},
}};

struct NamedKey {
    int code;
    int key;
};

// What keys without a character of the layout's stand for.
constexpr int keypad = Qt::KeypadModifier;
constexpr std::array<NamedKey, 60> namedKeys{{
        {1, Qt::Key_Escape},
        {KeyCodes::backspace, Qt::Key_Backspace},
        {KeyCodes::tab, Qt::Key_Tab},
        {KeyCodes::enter, Qt::Key_Enter},
        {KeyCodes::leftControl, Qt::Key_Control},
        {KeyCodes::leftShift, Qt::Key_Shift},
        {KeyCodes::rightShift, Qt::Key_Shift},
        {55, Qt::Key_Asterisk | keypad},
        {KeyCodes::leftAlt, Qt::Key_Alt},
        {57, Qt::Key_Space},
        {58, Qt::Key_CapsLock},
        {59, Qt::Key_F1},
        {60, Qt::Key_F2},
        {61, Qt::Key_F3},
        {62, Qt::Key_F4},
        {63, Qt::Key_F5},
        {64, Qt::Key_F6},
        {65, Qt::Key_F7},
        {66, Qt::Key_F8},
        {67, Qt::Key_F9},
        {68, Qt::Key_F10},
        {69, Qt::Key_NumLock},
        {70, Qt::Key_ScrollLock},
        {71, Qt::Key_7 | keypad},
        {72, Qt::Key_8 | keypad},
        {73, Qt::Key_9 | keypad},
        {74, Qt::Key_Minus | keypad},
        {75, Qt::Key_4 | keypad},
        {76, Qt::Key_5 | keypad},
        {77, Qt::Key_6 | keypad},
        {78, Qt::Key_Plus | keypad},
        {79, Qt::Key_1 | keypad},
        {80, Qt::Key_2 | keypad},
        {81, Qt::Key_3 | keypad},
        {82, Qt::Key_0 | keypad},
        {87, Qt::Key_F11},
        {88, Qt::Key_F12},
        {92, Qt::Key_Henkan},
        {93, Qt::Key_Hiragana_Katakana},
        {94, Qt::Key_Muhenkan},
        {96, Qt::Key_Enter},
        {KeyCodes::rightControl, Qt::Key_Control},
        {98, Qt::Key_Slash | keypad},
        {99, Qt::Key_Print},
        {KeyCodes::rightAlt, Qt::Key_Alt},
        {102, Qt::Key_Home},
        {103, Qt::Key_Up},
        {104, Qt::Key_PageUp},
        {105, Qt::Key_Left},
        {106, Qt::Key_Right},
        {107, Qt::Key_End},
        {108, Qt::Key_Down},
        {109, Qt::Key_PageDown},
        {110, Qt::Key_Insert},
        {111, Qt::Key_Delete},
        {119, Qt::Key_Pause},
        {KeyCodes::leftMeta, Qt::Key_Meta},
        {KeyCodes::rightMeta, Qt::Key_Meta},
        {127, Qt::Key_Menu},
        {41, Qt::Key_Zenkaku_Hankaku}, // in Japan, where the accent is elsewhere
}};

char32_t upper(char32_t character)
{
    return QChar::toUpper(static_cast<uint>(character));
}

bool isLetter(char32_t character)
{
    return character >= U'A' && character <= U'Z';
}

bool isDigit(char32_t character)
{
    return character >= U'0' && character <= U'9';
}

std::size_t placeOf(int code)
{
    return static_cast<std::size_t>(std::find(typingKeys.begin(), typingKeys.end(), code)
                                    - typingKeys.begin());
}

char32_t characterIn(std::u32string_view characters, int code)
{
    const std::size_t place = placeOf(code);
    return place < characters.size() && characters[place] != U' ' ? characters[place] : 0;
}

KeyboardLayout layoutOf(const BuiltIn &builtIn)
{
    return KeyboardLayout([&builtIn](int code) {
        return KeyboardLayout::Characters{characterIn(builtIn.plain, code),
                                          characterIn(builtIn.shifted, code)};
    });
}

} // namespace

char32_t KeyCodes::usCharacterOf(int code)
{
    return code == besideLeftShift || code == keypadPoint
                   ? 0
                   : upper(characterIn(builtIns.front().plain, code));
}

KeyboardLayout::KeyboardLayout() : KeyboardLayout(layoutOf(builtIns.front())) { }

KeyboardLayout::KeyboardLayout(const std::function<Characters(int)> &charactersOf)
{
    for (const int code : typingKeys)
        m_characters.emplace(code, charactersOf(code));
    m_shape = shapeOfKeys();
}

QStringList KeyboardLayout::names()
{
    QStringList names;
    for (const BuiltIn &builtIn : builtIns)
        names.append(QLatin1String(builtIn.name));
    return names;
}

std::optional<KeyboardLayout> KeyboardLayout::named(const QString &name)
{
    const auto *const found =
            std::find_if(builtIns.begin(), builtIns.end(), [&name](const BuiltIn &builtIn) {
                return name == QLatin1String(builtIn.name);
            });
    if (found == builtIns.end())
        return {};
    return layoutOf(*found);
}

KeyboardLayout::Characters KeyboardLayout::characters(int code) const
{
    const auto found = m_characters.find(code);
    return found != m_characters.end() ? found->second : Characters();
}

int KeyboardLayout::hotkeyKey(int code, bool shift) const
{
    const Characters typed = characters(code);
    const char32_t character = upper(typed.plain);
    if (code == KeyCodes::keypadPoint)
        return static_cast<int>(character != 0 ? character : U'.') | keypad;
    const char32_t usCharacter = KeyCodes::usCharacterOf(code);
    // Many layouts need Shift for digits, and keyboards of other scripts carry the Latin letters in
    // their US places as well.
    if (isDigit(usCharacter)
        || (isLetter(usCharacter) && !isLetter(character) && !isTyped(usCharacter, code)))
        return static_cast<int>(usCharacter);
    if (character != 0) {
        const bool isNamedByShift = shift && code == KeyCodes::besideLeftShift
                                    && KeyNames::keyToOEM(static_cast<int>(character)) == 0;
        return static_cast<int>(isNamedByShift ? upper(typed.shifted) : character);
    }
    const auto *const named =
            std::find_if(namedKeys.begin(), namedKeys.end(),
                         [code](const NamedKey &key) { return key.code == code; });
    return named != namedKeys.end() ? named->key : 0;
}

bool KeyboardLayout::isTyped(char32_t character, int exceptBy) const
{
    return std::any_of(m_characters.begin(), m_characters.end(), [=](const auto &key) {
        return key.first != exceptBy
               && (upper(key.second.plain) == character || upper(key.second.shifted) == character);
    });
}

Shape KeyboardLayout::shapeOfKeys() const
{
    if (characters(KeyCodes::yen).plain != 0)
        return Shape::Jis;
    const char32_t character = upper(characters(KeyCodes::besideLeftShift).plain);
    return character != 0 && !isTyped(character, KeyCodes::besideLeftShift) ? Shape::Iso
                                                                            : Shape::Ansi;
}

} // namespace CUI
