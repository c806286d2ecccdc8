#include "HotkeyOrder.h"

#include "HotkeyParts.h"
#include "KeyNames.h"

#include <QRegularExpression>

#include <cstddef>

namespace CUI {

int HotkeyOrder::add(const QString &hotkey)
{
    const auto known = m_numbers.constFind(hotkey);
    if (known != m_numbers.constEnd())
        return *known;
    const int number = static_cast<int>(m_combinations.size());
    m_combinations.push_back(parse(hotkey));
    m_numbers.insert(hotkey, number);
    return number;
}

HotkeyOrder::Combination HotkeyOrder::parse(const QString &hotkey)
{
    static const QRegularExpression number(QStringLiteral("^\\d*$"));
    if (m_keypadName.isNull())
        m_keypadName = KeyNames::getNumPadKeyName(QKeySequence::NativeText);
    const QStringList parts = HotkeyParts::split(hotkey, QKeySequence::PortableText,
                                                 QKeySequence::NativeText, m_keypadName);
    const QString key = parts.isEmpty() ? QString() : parts.last();
    Combination combination{{}, m_parts.add(key), number.match(key).hasMatch()};
    for (const QString &part : parts)
        combination.parts.push_back(m_parts.add(part));
    return combination;
}

HotkeyOrder::Result HotkeyOrder::compare(int left, int right)
{
    const Combination &a = m_combinations[static_cast<std::size_t>(left)];
    const Combination &b = m_combinations[static_cast<std::size_t>(right)];
    if (a.parts == b.parts)
        return Result::SameParts;
    if (a.key != b.key) {
        if (a.isNumber != b.isNumber)
            return a.isNumber ? Result::Less : Result::NotLess;
        return compareTexts(a.key, b.key);
    }
    if (a.parts.size() != b.parts.size())
        return a.parts.size() < b.parts.size() ? Result::Less : Result::NotLess;
    return compareModifiers(a.parts, b.parts);
}

HotkeyOrder::Result HotkeyOrder::compareModifiers(const std::vector<int> &left,
                                                  const std::vector<int> &right)
{
    std::size_t i = 0;
    while (left[i] == right[i]) // the lists differ
        ++i;
    return compareTexts(left[i], right[i]);
}

HotkeyOrder::Result HotkeyOrder::compareTexts(int left, int right)
{
    const TextOrder order{Qt::CaseSensitive, true};
    return m_parts.less(left, right, order) ? Result::Less : Result::NotLess;
}

} // namespace CUI
