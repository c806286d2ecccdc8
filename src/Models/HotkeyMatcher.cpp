#include "HotkeyMatcher.h"

#include <algorithm>

namespace CUI {

namespace {

const QLatin1Char blank(' ');

// A character of a word as regular expressions understand it, in folded texts.
bool isOfWord(QChar c)
{
    return (c >= QLatin1Char('a') && c <= QLatin1Char('z'))
           || (c >= QLatin1Char('0') && c <= QLatin1Char('9')) || c == QLatin1Char('_');
}

bool isWord(const QString &text)
{
    return !text.isEmpty() && std::all_of(text.begin(), text.end(), isOfWord);
}

bool isWordFrom(const QString &text, const QString &word, int place)
{
    for (int i = text.indexOf(word, place); i >= 0; i = text.indexOf(word, i + 1)) {
        const int end = i + word.size();
        if ((i == 0 || !isOfWord(text.at(i - 1)))
            && (end == text.size() || !isOfWord(text.at(end))))
            return true;
    }
    return false;
}

} // namespace

HotkeyMatcher::HotkeyMatcher(const QStringList &parts) : m_isSimple(true)
{
    for (const QString &part : parts) {
        const FoldedText folded(part);
        m_isSimple = m_isSimple && folded.isSimple;
        m_modifiers << folded.text;
    }
    if (m_modifiers.isEmpty())
        return;
    m_key = m_modifiers.takeLast();
    m_isSimple = m_isSimple && !m_key.isEmpty() && !m_modifiers.contains(m_key)
                 && std::all_of(m_modifiers.begin(), m_modifiers.end(), isWord);
}

bool HotkeyMatcher::matches(const FoldedText &hotkeys) const
{
    const QString &text = hotkeys.text;
    if (m_key.isEmpty())
        return true; // the search was no key combination
    for (int i = text.indexOf(m_key); i >= 0; i = text.indexOf(m_key, i + 1)) {
        // The modifiers may stand behind the key, and even in a later hotkey.
        const int start = i == 0 ? 0 : text.lastIndexOf(blank, i - 1) + 1;
        if (isKeyAt(text, i) && hasModifiersFrom(text, start))
            return true;
    }
    return false;
}

bool HotkeyMatcher::isKeyAt(const QString &text, int place) const
{
    const auto isBorder = [](QChar c) { return c == blank || c == QLatin1Char('+'); };
    const int end = place + m_key.size();
    return (place == 0 || isBorder(text.at(place - 1)))
           && (end == text.size() || isBorder(text.at(end)));
}

bool HotkeyMatcher::hasModifiersFrom(const QString &text, int place) const
{
    return std::all_of(m_modifiers.begin(), m_modifiers.end(),
                       [&](const QString &modifier) { return isWordFrom(text, modifier, place); });
}

} // namespace CUI
