#pragma once

#include "UiCustomizationsExport.h"

#include <QMetaType>
#include <QString>

#include <cstddef>
#include <functional>

namespace CUI {

/// The key of an action: the number of the action table it comes from, and its name in that table.
///
/// Two identifiers are equal when both fields are; letter case counts. The empty identifier
/// (table 0, null actionId) stands for "no action" wherever one is looked up; callers test
/// isEmpty().
struct CUI_CORE_EXPORT ActionIdentifier {
    /// Number of the action table, 0 to 4294967295 on every system.
    unsigned long tableId = 0;
    /// The action's identifier inside its table.
    QString actionId;

    /// True when actionId is empty, whatever the table.
    bool isEmpty() const { return actionId.isEmpty(); }

    /// The text form used in files and log lines: the table in decimal, a hyphen, the actionId
    /// (1-undo).
    QString toString() const;

    /// Reads the text form, splitting at the first hyphen. A table part that is not an unsigned
    /// decimal number of 32 bits gives table 0; a text without a hyphen gives the empty identifier.
    static ActionIdentifier fromString(const QString &text);
};

inline bool operator==(const ActionIdentifier &a, const ActionIdentifier &b)
{
    return a.tableId == b.tableId && a.actionId == b.actionId;
}

inline bool operator!=(const ActionIdentifier &a, const ActionIdentifier &b)
{
    return !(a == b);
}

/// Orders by table number, then by the code units of actionId: the order of written files.
inline bool operator<(const ActionIdentifier &a, const ActionIdentifier &b)
{
    return a.tableId != b.tableId ? a.tableId < b.tableId : a.actionId < b.actionId;
}

} // namespace CUI

namespace std {

/// 64-bit FNV-1a over the low four bytes of tableId, combined with Qt's unseeded string hash. Never
/// throws, but is not declared so: the standard library of GCC then keeps the hash of each key.
template <>
struct CUI_CORE_EXPORT hash<CUI::ActionIdentifier> {
    /// The hash of @p identifier.
    size_t operator()(const CUI::ActionIdentifier &identifier) const;
};

} // namespace std

Q_DECLARE_METATYPE(CUI::ActionIdentifier)
