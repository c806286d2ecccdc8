#pragma once

#include <QStringList>
#include <QStyledItemDelegate>

#include <functional>

namespace CUI {

/// Paints the rows of a command palette: names with what was typed marked in them, and hotkeys in
/// the user's language. An action that cannot run is dimmed and said to be not available.
class PaletteDelegate : public QStyledItemDelegate
{
    Q_OBJECT

public:
    using IsAvailable = std::function<bool(const QModelIndex &index)>;

    PaletteDelegate(IsAvailable isAvailable, QObject *parent);

    void setSearch(const QString &text);

    void paint(QPainter *painter, const QStyleOptionViewItem &option,
               const QModelIndex &index) const override;

protected:
    void initStyleOption(QStyleOptionViewItem *option, const QModelIndex &index) const override;

private:
    IsAvailable m_isAvailable;
    QStringList m_words;
};

} // namespace CUI
