#pragma once

#include "RankedTexts.h"

#include <QHash>
#include <QString>
#include <QStringList>

#include <vector>

namespace CUI {

/// Compares key combinations by their modifiers and keys, as they are named in the user's language
/// when they are added.
class HotkeyOrder
{
public:
    enum class Result { Less, NotLess, SameParts };

    /// The number of the combination; @p hotkey is its portable text.
    int add(const QString &hotkey);
    /// Compares two by number: by key, numbers first, then by how many modifiers they have, then
    /// by these.
    Result compare(int left, int right);

private:
    /// Parts are known by their number; a combination without parts counts as one of an empty key.
    struct Combination {
        std::vector<int> parts;
        int key;
        bool isNumber;
    };

    Combination parse(const QString &hotkey);
    Result compareModifiers(const std::vector<int> &left, const std::vector<int> &right);
    Result compareTexts(int left, int right);

    QString m_keypadName;
    QHash<QString, int> m_numbers;
    std::vector<Combination> m_combinations;
    RankedTexts m_parts;
};

} // namespace CUI
