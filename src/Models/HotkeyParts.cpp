#include "HotkeyParts.h"

namespace CUI::HotkeyParts {

namespace {

QStringList splitAtPlus(const QString &text)
{
    const QLatin1Char plus('+');
    if (!text.endsWith(plus))
        return text.split(plus);
    QString modifiers = text;
    modifiers.chop(2); // the key and the separator before it, if there is one
    return modifiers.split(plus) << QString(plus);
}

} // namespace

QStringList split(const QString &hotkey, QKeySequence::SequenceFormat inputFormat,
                  QKeySequence::SequenceFormat outputFormat, const QString &keypadName)
{
    const QString text = QKeySequence(hotkey, inputFormat).toString(outputFormat);
    if (text.isEmpty())
        return {};
    QStringList parts = splitAtPlus(text);
    if (parts.size() > 1 && parts.at(parts.size() - 2) == keypadName) {
        const QString key = parts.takeLast();
        parts.last() += QLatin1Char('+') + key;
    }
    return parts;
}

} // namespace CUI::HotkeyParts
