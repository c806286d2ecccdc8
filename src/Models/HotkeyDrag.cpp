#include "HotkeyDrag.h"

#include <QMimeData>

namespace CUI::HotkeyDrag {

namespace {

QString hotkeyType()
{
    return QStringLiteral("application/x-uicustomizations-hotkey");
}

QMimeData *make(const QString &type, const QString &text)
{
    auto *data = new QMimeData;
    data->setData(type, text.toUtf8());
    return data;
}

QString textIn(const QMimeData *data, const QString &type)
{
    return data != nullptr ? QString::fromUtf8(data->data(type)) : QString();
}

} // namespace

QString actionType()
{
    return QStringLiteral("application/x-uicustomizations-action");
}

QMimeData *ofAction(const ActionIdentifier &action)
{
    return make(actionType(), action.toString());
}

QMimeData *ofHotkey(const QString &hotkey)
{
    return make(hotkeyType(), hotkey);
}

ActionIdentifier actionIn(const QMimeData *data)
{
    return ActionIdentifier::fromString(textIn(data, actionType()));
}

QString hotkeyIn(const QMimeData *data)
{
    return textIn(data, hotkeyType());
}

} // namespace CUI::HotkeyDrag
