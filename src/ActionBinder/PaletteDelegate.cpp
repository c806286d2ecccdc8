#include "PaletteDelegate.h"

#include "JoinedHotkeys.h"
#include "QvelActionItemModel.h"
#include "ShownNames.h"

#include <QApplication>
#include <QPainter>
#include <QTextLayout>

namespace CUI {

namespace {

class Words
{
    Q_DECLARE_TR_FUNCTIONS(CUI::QvelCommandPalette)
};

/// Bold and underlined wherever one of the words stands.
QVector<QTextLayout::FormatRange> marks(const QString &text, const QStringList &words)
{
    QVector<QTextLayout::FormatRange> ranges;
    for (const QString &word : words) {
        for (int at = text.indexOf(word, 0, Qt::CaseInsensitive); at >= 0;
             at = text.indexOf(word, at + word.size(), Qt::CaseInsensitive)) {
            QTextCharFormat format;
            format.setFontWeight(QFont::Bold);
            format.setFontUnderline(true);
            ranges.append({at, word.size(), format});
        }
    }
    return ranges;
}

QColor textColor(const QStyleOptionViewItem &option)
{
    QPalette::ColorGroup group = QPalette::Active;
    if ((option.state & QStyle::State_Enabled) == 0)
        group = QPalette::Disabled;
    const bool isSelected = (option.state & QStyle::State_Selected) != 0;
    return option.palette.color(group, isSelected ? QPalette::HighlightedText : QPalette::Text);
}

} // namespace

PaletteDelegate::PaletteDelegate(IsAvailable isAvailable, QObject *parent)
    : QStyledItemDelegate(parent), m_isAvailable(std::move(isAvailable))
{
}

void PaletteDelegate::setSearch(const QString &text)
{
    m_words = text.split(QLatin1Char(' '), Qt::SkipEmptyParts);
}

void PaletteDelegate::initStyleOption(QStyleOptionViewItem *option, const QModelIndex &index) const
{
    QStyledItemDelegate::initStyleOption(option, index);
    option->state &= ~QStyle::State_HasFocus; // the row is the unit, and it is selected
    if (index.column() == QvelActionItemModel::HotkeyColumn) {
        QStringList hotkeys;
        for (const QString &hotkey : JoinedHotkeys::split(option->text))
            hotkeys << ShownNames::ofHotkey(hotkey);
        option->text = JoinedHotkeys::join(hotkeys);
    }
    if (m_isAvailable(index.sibling(index.row(), QvelActionItemModel::ActionColumn)))
        return;
    option->state &= ~QStyle::State_Enabled;
    if (index.column() == QvelActionItemModel::ActionColumn)
        option->text = Words::tr("%1 (not available)").arg(option->text);
}

void PaletteDelegate::paint(QPainter *painter, const QStyleOptionViewItem &option,
                            const QModelIndex &index) const
{
    if (index.column() != QvelActionItemModel::ActionColumn || m_words.isEmpty()) {
        QStyledItemDelegate::paint(painter, option, index);
        return;
    }
    QStyleOptionViewItem full = option;
    initStyleOption(&full, index);
    const QStyle *style = full.widget != nullptr ? full.widget->style() : QApplication::style();
    const int margin = style->pixelMetric(QStyle::PM_FocusFrameHMargin, &full, full.widget) + 1;
    const QRect rect = full.rect.adjusted(margin, 0, -margin, 0);
    const QString shown = full.fontMetrics.elidedText(full.text, Qt::ElideRight, rect.width());
    full.text.clear();
    style->drawControl(QStyle::CE_ItemViewItem, &full, painter, full.widget);

    QTextLayout layout(shown, full.font);
    layout.setFormats(marks(shown, m_words));
    layout.beginLayout();
    QTextLine line = layout.createLine();
    layout.endLayout();
    painter->save();
    painter->setClipRect(rect);
    painter->setPen(textColor(full));
    layout.draw(painter, QPointF(rect.left(), rect.top() + (rect.height() - line.height()) / 2));
    painter->restore();
}

} // namespace CUI
