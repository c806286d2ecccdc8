#pragma once

#include "Text.h"

#include <UiCustomizations/ICuiActionManager.h>
#include <UiCustomizations/QvelShortcutManager.h>
#include <UiCustomizations/QvelSortFilterProxyModel.h>

#include <QKeySequence>
#include <QRegularExpression>
#include <QStringList>
#include <QVector>

#include <algorithm>

/// One row of the action table.
struct PlainRow {
    CUI::ActionIdentifier identifier;
    QString name;
    unsigned long contextId;
    QString category;
    QStringList texts; // of the four columns
};

/// The rules of the action table and of its search, evaluated from scratch at every question. No
/// index, no cache: slow, and short enough to be read beside the rules.
class PlainBrowsing
{
public:
    using Proxy = CUI::QvelSortFilterProxyModel;

    explicit PlainBrowsing(CUI::QvelShortcutManager &store) : m_store(store) { }

    void load(const CUI::ICuiActionManager &registry)
    {
        m_rows.clear();
        for (const auto &[identifier, action] : registry.actions()) {
            const CUI::VelActionContext *itsContext =
                    registry.getActionContext(action->contextId());
            if (itsContext == nullptr)
                continue;
            const QString group = itsContext->name();
            const QString itsCategory = action->category();
            m_rows.append({identifier,
                           action->name(),
                           action->contextId(),
                           itsCategory,
                           {action->name(), QString(), group,
                            itsCategory == group ? QString() : itsCategory}});
        }
    }

    /// The rows with the hotkeys that the store has now.
    QVector<PlainRow> rows() const
    {
        QVector<PlainRow> result = m_rows;
        for (PlainRow &row : result)
            row.texts[1] = m_store.getShortcutsFromActionId(row.identifier);
        return result;
    }

    /// The row of the first action of the context that lists the hotkey, or -1.
    int rowOfHotkey(const QString &hotkey, unsigned long contextId) const
    {
        const QVector<PlainRow> all = rows();
        for (int i = 0; i < all.size(); ++i) {
            if (!hotkey.isEmpty() && all[i].contextId == contextId && !all[i].texts[1].isEmpty()
                && split(all[i].texts[1]).contains(hotkey, Qt::CaseInsensitive))
                return i;
        }
        return -1;
    }

    void search(const QString &text)
    {
        m_pattern.clear();
        m_search = text.trimmed();
        if (m_search.isEmpty())
            return;
        if (keyColumn == 0) {
            QString escaped = QRegularExpression::escape(m_search);
            m_pattern = s("^(?=.*") + escaped.replace(s("\\ "), s(")(?=.*")) + s(").*$");
        } else if (keyColumn == 1) {
            const QStringList all = parts(m_search, QKeySequence::PortableText);
            m_pattern = s("(.*)");
            for (const QString &part : all) {
                const QString escaped = QRegularExpression::escape(part);
                m_pattern += part == all.last()
                                     ? s("[^\\s]*(?<=^|\\+|\\s)") + escaped + s("($|\\s|\\+)")
                                     : s("(?=.*\\b") + escaped + s("\\b)");
            }
            m_pattern += s("(.*)");
        }
    }

    bool isSearching() const { return !m_pattern.isEmpty(); }
    /// The numbers of the rows that are listed.
    QVector<int> accepted() const
    {
        const QVector<PlainRow> all = rows();
        QVector<int> result;
        for (int i = 0; i < all.size(); ++i) {
            if (accepts(all[i]))
                result.append(i);
        }
        return result;
    }

    /// The same in their order.
    QVector<int> sorted() const
    {
        const QVector<PlainRow> all = rows();
        QVector<int> result = accepted();
        if (sortColumn < 0)
            return result;
        std::stable_sort(result.begin(), result.end(), [&](int a, int b) {
            return sortOrder == Qt::AscendingOrder ? less(all[a], all[b], sortColumn)
                                                   : less(all[b], all[a], sortColumn);
        });
        return result;
    }

    static QStringList parts(const QString &hotkey, QKeySequence::SequenceFormat format)
    {
        QString text = QKeySequence(hotkey, QKeySequence::PortableText).toString(format);
        if (text.isEmpty())
            return {};
        QStringList list;
        if (text.endsWith(QLatin1Char('+'))) {
            text.chop(2);
            list = text.split(QLatin1Char('+'));
            list.append(s("+"));
        } else {
            list = text.split(QLatin1Char('+'));
        }
        const int last = list.size() - 1;
        if (last > 0 && list[last - 1] == CUI::QvelShortcutManager::getNumPadKeyName(format)) {
            list[last - 1] += QLatin1Char('+') + list[last];
            list.removeLast();
        }
        return list;
    }

    static int rank(const QString &search, const QString &name)
    {
        const auto ci = Qt::CaseInsensitive;
        const QLatin1Char blank(' ');
        if (name.startsWith(search, ci))
            return 0;
        if (name.contains(blank + search + blank, ci) || name.endsWith(blank + search, ci))
            return 1;
        if (name.contains(search, ci))
            return 2;
        int best = 5;
        for (const QString &word : search.split(blank, Qt::SkipEmptyParts)) {
            if (name.contains(blank + word + blank, ci) || name.endsWith(blank + word, ci)
                || name.startsWith(word + blank, ci))
                return 3;
            if (name.contains(word, ci))
                best = 4;
        }
        return best;
    }

    int keyColumn = 0;
    bool isRanking = false;
    Proxy::HotkeyFilter hotkeyFilter = Proxy::AllActions;
    bool hasContextFilter = false;
    unsigned long context = 0;
    QString category = s("All Subgroups/Categories");
    int sortColumn = -1;
    Qt::SortOrder sortOrder = Qt::AscendingOrder;
    Qt::CaseSensitivity sortCase = Qt::CaseSensitive;

private:
    static QStringList split(const QString &text) { return text.split(s(", ")); }

    bool matches(QString text) const
    {
        if (m_pattern.isEmpty() || text.isEmpty())
            return false;
        if (keyColumn == 1)
            text.replace(QRegularExpression(s(",\\s+")), s(" "));
        const QRegularExpression expression(m_pattern, QRegularExpression::CaseInsensitiveOption);
        return expression.match(text).hasMatch();
    }

    bool accepts(const PlainRow &row) const
    {
        if (hasContextFilter && row.contextId != context)
            return false;
        if (category != s("All Subgroups/Categories") && row.category != category)
            return false;
        if (isSearching() && !matches(keyColumn == 0 ? row.name : row.texts[1]))
            return false;
        if (hotkeyFilter == Proxy::AssignedHotkeysOnly)
            return !row.texts[1].isEmpty();
        if (hotkeyFilter == Proxy::UnsavedHotkeysOnly)
            return m_store.isUserModifiedAction(row.identifier);
        if (hotkeyFilter == Proxy::CustomizedHotkeysOnly) {
            const QStringList base = split(m_store.getBaseShortcutsFromActionId(row.identifier));
            for (const QString &hotkey : split(row.texts[1])) {
                if (!base.contains(hotkey, Qt::CaseInsensitive))
                    return true;
            }
            return false;
        }
        return true;
    }

    bool less(const PlainRow &left, const PlainRow &right, int column) const
    {
        if (left.texts[column] == right.texts[column]) {
            const QVector<int> ties[] = {{2, 3}, {0, 2, 3}, {3}, {2}};
            for (const int tie : ties[column]) {
                column = tie;
                if (left.texts[column] != right.texts[column])
                    break;
            }
        }
        const QString l = left.texts[column];
        const QString r = right.texts[column];
        if (l.isEmpty() && r.isEmpty())
            return false;
        if (l.isEmpty())
            return sortOrder == Qt::DescendingOrder;
        if (r.isEmpty())
            return sortOrder == Qt::AscendingOrder;
        if (column == 0 && isRanking && rank(m_search, l) != rank(m_search, r))
            return rank(m_search, l) < rank(m_search, r);
        return column == 1 ? lessHotkey(left, right) : lessText(l, r);
    }

    bool lessHotkey(const PlainRow &left, const PlainRow &right) const
    {
        const QStringList l = parts(searchedHotkey(left.texts[1]), QKeySequence::NativeText);
        const QStringList r = parts(searchedHotkey(right.texts[1]), QKeySequence::NativeText);
        if (l == r)
            return less(left, right, 0);
        const QString leftKey = l.value(l.size() - 1);
        const QString rightKey = r.value(r.size() - 1);
        if (leftKey == rightKey && l.size() == r.size()) {
            for (int i = 0; i < l.size(); ++i) {
                if (l[i] != r[i])
                    return l[i].localeAwareCompare(r[i]) < 0;
            }
            return lessText(left.texts[1], right.texts[1]);
        }
        if (leftKey == rightKey)
            return l.size() < r.size();
        const QRegularExpression digits(s("^\\d*$"));
        const bool isLeftNumber = digits.match(leftKey).hasMatch();
        if (isLeftNumber != digits.match(rightKey).hasMatch())
            return isLeftNumber;
        return leftKey.localeAwareCompare(rightKey) < 0;
    }

    bool lessText(const QString &left, const QString &right) const
    {
        return left.compare(right, sortCase) < 0;
    }

    QString searchedHotkey(const QString &text) const
    {
        const QStringList all = split(text);
        for (const QString &hotkey : all) {
            if (keyColumn == 1 && matches(hotkey))
                return hotkey;
        }
        return all.first();
    }

    CUI::QvelShortcutManager &m_store;
    QVector<PlainRow> m_rows;
    QString m_search;
    QString m_pattern;
};
