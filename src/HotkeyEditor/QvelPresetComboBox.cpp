#include "QvelPresetComboBox.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QEvent>
#include <QFontMetrics>
#include <QHelpEvent>
#include <QList>
#include <QSignalBlocker>
#include <QStandardItem>
#include <QStandardItemModel>
#include <QStyle>
#include <QStyleOptionComboBox>
#include <QStylePainter>
#include <QTextDocument>
#include <QToolTip>
#include <QWindow>
#include <QtMath>

namespace CUI {

namespace {

Preset presetOf(const QStandardItem &item)
{
    return item.data(Qt::UserRole).value<Preset>();
}

class QvelPresetItem : public QStandardItem
{
public:
    QvelPresetItem(const Preset &preset, const QIcon &lockIcon) : QStandardItem(preset.name())
    {
        setData(QVariant::fromValue(preset), Qt::UserRole);
        setData(preset.path(), Qt::ToolTipRole);
        if (!preset.isWritable())
            setIcon(lockIcon);
    }

    bool operator<(const QStandardItem &other) const override
    {
        const Preset mine = presetOf(*this);
        const Preset theirs = presetOf(other);
        if (mine.isDefaultHotkeySet() != theirs.isDefaultHotkeySet())
            return mine.isDefaultHotkeySet();
        return QString::localeAwareCompare(mine.name(), theirs.name()) < 0;
    }
};

/// Shows the tool tips of a list as plain text. By itself the toolkit takes a path with a tag in it
/// for markup.
class PlainToolTips : public QObject
{
public:
    explicit PlainToolTips(QAbstractItemView *list) : QObject(list), m_list(list)
    {
        list->viewport()->installEventFilter(this);
    }

    bool eventFilter(QObject *watched, QEvent *event) override
    {
        if (event->type() != QEvent::ToolTip)
            return QObject::eventFilter(watched, event);
        const auto *help = static_cast<QHelpEvent *>(event);
        const QModelIndex index = m_list->indexAt(help->pos());
        const QString text = index.data(Qt::ToolTipRole).toString();
        if (!Qt::mightBeRichText(text))
            return false;
        QToolTip::showText(help->globalPos(), Qt::convertFromPlainText(text, Qt::WhiteSpaceNormal),
                           m_list->viewport(), m_list->visualRect(index));
        return true;
    }

private:
    QAbstractItemView *m_list;
};

int widthOf(const QFontMetricsF &metrics, const QString &text)
{
    return qCeil(metrics.horizontalAdvance(text));
}

/// The contents of the edit field, with their places in a left-to-right layout.
struct Content {
    QRect icon;
    QRect name;
    QRect marker;
    QString shortenedName;
};

Content contentOf(const QStyleOptionComboBox &option, const QRect &field, const QString &marker)
{
    const QFontMetricsF metrics(option.fontMetrics);
    const int gap = option.fontMetrics.averageCharWidth();
    Content content;
    content.icon = content.name = content.marker = field;
    if (!option.currentIcon.isNull()) {
        content.icon.setWidth(option.iconSize.width());
        content.name.setLeft(content.name.left() + option.iconSize.width());
    }
    if (!marker.isEmpty())
        content.name.setRight(content.name.right() - widthOf(metrics, marker) - gap);
    content.name.setLeft(content.name.left() + gap);
    const int width = qBound(0, widthOf(metrics, option.currentText), content.name.width());
    content.name.setWidth(width);
    content.shortenedName = metrics.elidedText(option.currentText, Qt::ElideMiddle, width);
    content.marker.setLeft(content.name.left() + width + gap);
    return content;
}

} // namespace

class QvelPresetComboBox::Private
{
public:
    QColor userModifiedColor = QColor(255, 0, 0);
    bool modified = false;
    QIcon lockIcon = QApplication::style()->standardIcon(QStyle::SP_VistaShield);
    QList<Preset> notInPathPresets;

    /// The text after the name of the current set; empty without unsaved changes.
    QString marker() const
    {
        return modified ? QvelPresetComboBox::tr("[Unsaved Changes*]") : QString();
    }
    void addItem(const QvelPresetComboBox &box, const Preset &preset) const
    {
        if (auto *items = qobject_cast<QStandardItemModel *>(box.model()))
            items->appendRow(new QvelPresetItem(preset, lockIcon));
    }
};

QvelPresetComboBox::QvelPresetComboBox(QWidget *parent)
    : QComboBox(parent), d(std::make_unique<Private>())
{
    new PlainToolTips(view());
}

QvelPresetComboBox::~QvelPresetComboBox() = default;

void QvelPresetComboBox::updatePresets(ConfigType type, bool keepCurrent)
{
    const Preset kept = keepCurrent ? currentPreset() : Preset();
    QSignalBlocker blocker(this);
    clear();
    const QList<Preset> presets = Preset::getPresetList(type) + d->notInPathPresets;
    for (const Preset &preset : presets)
        d->addItem(*this, preset);
    if (kept.isValid() && !containsPreset(kept))
        d->addItem(*this, kept);
    blocker.unblock();

    model()->sort(0);
    if (kept.isValid())
        setCurrentPreset(kept);
}

void QvelPresetComboBox::addNotInPathPreset(const Preset &preset, bool select)
{
    if (!containsPreset(preset)) {
        d->notInPathPresets << preset;
        d->addItem(*this, preset);
        model()->sort(0);
    }
    if (select)
        setCurrentPreset(preset);
}

bool QvelPresetComboBox::containsPreset(const Preset &preset) const
{
    return findPreset(preset) != -1;
}

// Not findData(): variants of a type without registered comparison are equal only to themselves.
int QvelPresetComboBox::findPreset(const Preset &preset) const
{
    for (int index = 0; index < count(); ++index) {
        const QVariant stored = itemData(index);
        if (stored.userType() == qMetaTypeId<Preset>() && stored.value<Preset>() == preset)
            return index;
    }
    return -1;
}

Preset QvelPresetComboBox::currentPreset() const
{
    return presetFromIndex(currentIndex());
}

Preset QvelPresetComboBox::presetFromIndex(int index) const
{
    return itemData(index).value<Preset>();
}

int QvelPresetComboBox::setCurrentPreset(const Preset &preset)
{
    const int index = findPreset(preset);
    setCurrentIndex(index);
    return index;
}

void QvelPresetComboBox::modifyCurrentPreset(const Preset &preset)
{
    const int index = currentIndex();
    setItemData(index, QVariant()); // the next line is then a change even to an equal preset
    setItemData(index, QVariant::fromValue(preset));
    setItemText(index, preset.name());
}

void QvelPresetComboBox::removePreset(const Preset &preset)
{
    const int index = findPreset(preset);
    if (index != -1)
        removeItem(index);
}

void QvelPresetComboBox::setLockIcon(const QIcon &icon)
{
    d->lockIcon = icon;
}

void QvelPresetComboBox::setUserModifiedColor(const QColor &color)
{
    d->userModifiedColor = color;
}

void QvelPresetComboBox::setCurPresetModified(bool modified)
{
    d->modified = modified;
    setAccessibleDescription(d->marker()); // a screen reader does not see what is painted
    update();
}

void QvelPresetComboBox::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange && d->modified)
        setAccessibleDescription(d->marker());
    QComboBox::changeEvent(event);
}

void QvelPresetComboBox::paintEvent(QPaintEvent *)
{
    QStylePainter painter(this);
    painter.setPen(palette().color(QPalette::Text));
    QStyleOptionComboBox option;
    initStyleOption(&option);
    painter.drawComplexControl(QStyle::CC_ComboBox, option);
    if (isEditable() || (option.currentText.isEmpty() && !d->modified))
        return;

    const QString marker = d->marker();
    const QRect field = style()->subControlRect(QStyle::CC_ComboBox, &option,
                                                QStyle::SC_ComboBoxEditField, this)
                                .adjusted(1, 0, -1, 0);
    const Content content = contentOf(option, field, marker);
    const auto place = [&](const QRect &rect) {
        return QStyle::visualRect(option.direction, field, rect);
    };
    const int alignment =
            int(QStyle::visualAlignment(option.direction, Qt::AlignLeft | Qt::AlignVCenter))
            | Qt::TextSingleLine;

    if (!option.currentIcon.isNull()) {
        const QIcon::Mode mode = isEnabled() ? QIcon::Normal : QIcon::Disabled;
        painter.drawItemPixmap(
                place(content.icon), Qt::AlignCenter,
                option.currentIcon.pixmap(window()->windowHandle(), option.iconSize, mode));
    }
    painter.drawItemText(place(content.name), alignment, palette(), isEnabled(),
                         content.shortenedName);
    QPalette markerPalette = palette();
    markerPalette.setBrush(QPalette::All, QPalette::Text, d->userModifiedColor);
    painter.drawItemText(place(content.marker), alignment, markerPalette, isEnabled(), marker,
                         QPalette::Text);
}

} // namespace CUI
