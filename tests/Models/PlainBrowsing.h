#pragma once

#include <UiCustomizations/ICuiActionManager.h>
#include <UiCustomizations/QvelShortcutManager.h>
#include <UiCustomizations/QvelSortFilterProxyModel.h>

#include <QRegularExpression>
#include <QStringList>
#include <QVector>

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

    void load(const CUI::ICuiActionManager &registry);
    /// The rows with the hotkeys that the store has now.
    QVector<PlainRow> rows() const;
    /// The row of the first action of the context that lists the hotkey, or -1.
    int rowOfHotkey(const QString &hotkey, unsigned long contextId) const;

    void search(const QString &text);
    bool isSearching() const { return !m_pattern.isEmpty(); }
    /// The numbers of the rows that are listed.
    QVector<int> accepted() const;
    /// The same in their order.
    QVector<int> sorted() const;

    static QStringList parts(const QString &hotkey, QKeySequence::SequenceFormat format);
    static int rank(const QString &search, const QString &name);

    int keyColumn = 0;
    bool isRanking = false;
    Proxy::HotkeyFilter hotkeyFilter = Proxy::AllActions;
    bool hasContextFilter = false;
    unsigned long context = 0;
    QString category = QStringLiteral("All Subgroups/Categories");
    int sortColumn = -1;
    Qt::SortOrder sortOrder = Qt::AscendingOrder;
    Qt::CaseSensitivity sortCase = Qt::CaseSensitive;

private:
    bool matches(QString text) const;
    bool accepts(const PlainRow &row) const;
    bool less(const PlainRow &left, const PlainRow &right, int column) const;
    bool lessHotkey(const PlainRow &left, const PlainRow &right) const;
    bool lessText(const QString &left, const QString &right) const;
    QString searchedHotkey(const QString &text) const;

    CUI::QvelShortcutManager &m_store;
    QVector<PlainRow> m_rows;
    QString m_search;
    QString m_pattern;
};
