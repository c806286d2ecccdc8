#include "SearchPattern.h"

#include <QRegularExpression>

namespace CUI::SearchPattern {

QString ofWords(const QString &search)
{
    QString words = QRegularExpression::escape(search);
    words.replace(QLatin1String("\\ "), QLatin1String(")(?=.*"));
    return QStringLiteral("^(?=.*%1).*$").arg(words);
}

QString ofHotkey(const QStringList &parts)
{
    const QString modifier = QStringLiteral("(?=.*\\b%1\\b)");
    const QString key = QStringLiteral("[^\\s]*(?<=^|\\+|\\s)%1($|\\s|\\+)");
    QString pattern = QStringLiteral("(.*)");
    for (const QString &part : parts)
        pattern += (part == parts.last() ? key : modifier).arg(QRegularExpression::escape(part));
    return pattern + QLatin1String("(.*)");
}

QString withoutSeparators(const QString &hotkeys)
{
    static const QRegularExpression separator(QStringLiteral(",\\s+"));
    if (!hotkeys.contains(QLatin1Char(',')))
        return hotkeys;
    QString result = hotkeys;
    return result.replace(separator, QStringLiteral(" "));
}

} // namespace CUI::SearchPattern
