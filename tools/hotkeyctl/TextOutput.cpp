#include "TextOutput.h"

#include <QVector>

#include <algorithm>
#include <iterator>

namespace HotkeyCtl {

namespace {

bool isWide(uint codePoint)
{
    static const struct {
        uint first;
        uint last;
    } ranges[] = {
            {0x1100, 0x115F},   {0x2E80, 0x303E},   {0x3041, 0xA4CF},   {0xA960, 0xA97C},
            {0xAC00, 0xD7A3},   {0xF900, 0xFAFF},   {0xFE30, 0xFE6F},   {0xFF00, 0xFF60},
            {0xFFE0, 0xFFE6},   {0x1F300, 0x1F64F}, {0x1F680, 0x1F6FF}, {0x1F900, 0x1F9FF},
            {0x20000, 0x3FFFD},
    };
    return std::any_of(std::begin(ranges), std::end(ranges), [codePoint](const auto &range) {
        return codePoint >= range.first && codePoint <= range.last;
    });
}

bool steersTheTerminal(QChar c)
{
    return c.category() == QChar::Other_Control || c == QChar::LineSeparator
           || c == QChar::ParagraphSeparator;
}

QString escaped(QChar c)
{
    switch (c.unicode()) {
    case '\n':
        return QStringLiteral("\\n");
    case '\r':
        return QStringLiteral("\\r");
    case '\t':
        return QStringLiteral("\\t");
    default:
        return QStringLiteral("\\u%1").arg(ushort(c.unicode()), 4, 16, QLatin1Char('0'));
    }
}

bool isInvisible(uint codePoint)
{
    switch (QChar::category(codePoint)) {
    case QChar::Mark_NonSpacing:
    case QChar::Mark_Enclosing:
    case QChar::Other_Format:
        return true;
    default:
        return false;
    }
}

} // namespace

QString printable(const QString &text)
{
    QString result;
    for (const QChar c : text) {
        if (steersTheTerminal(c))
            result += escaped(c);
        else
            result += c;
    }
    return result;
}

int displayWidth(const QString &text)
{
    int width = 0;
    for (const uint codePoint : text.toUcs4()) {
        if (!isInvisible(codePoint))
            width += isWide(codePoint) ? 2 : 1;
    }
    return width;
}

QString alignedTable(const QList<QStringList> &rows)
{
    QVector<int> widths;
    for (const QStringList &row : rows) {
        for (int i = 0; i < row.size(); ++i) {
            if (i == widths.size())
                widths.append(0);
            widths[i] = std::max(widths[i], displayWidth(row.at(i)));
        }
    }
    QString text;
    for (const QStringList &row : rows) {
        QString line;
        for (int i = 0; i < row.size(); ++i) {
            const int blanks = widths.at(i) - displayWidth(row.at(i)) + 2;
            line += row.at(i) + QString(blanks, QLatin1Char(' '));
        }
        while (line.endsWith(QLatin1Char(' ')))
            line.chop(1);
        text += line + QLatin1Char('\n');
    }
    return text;
}

QString jsonString(const QString &text)
{
    QString result(QLatin1Char('"'));
    for (int i = 0; i < text.size(); ++i) {
        const QChar c = text.at(i);
        const bool pair =
                c.isHighSurrogate() && i + 1 < text.size() && text.at(i + 1).isLowSurrogate();
        if (pair) {
            result += text.midRef(i++, 2);
        } else if (c == QLatin1Char('"') || c == QLatin1Char('\\')) {
            result += QLatin1Char('\\');
            result += c;
        } else if (c.unicode() < 0x20 || c.isSurrogate()) {
            result += escaped(c);
        } else {
            result += c;
        }
    }
    return result + QLatin1Char('"');
}

QString jsonArray(const QStringList &texts)
{
    QStringList quoted;
    for (const QString &text : texts)
        quoted << jsonString(text);
    return QLatin1Char('[') + quoted.join(QLatin1String(", ")) + QLatin1Char(']');
}

QString jsonLines(const QStringList &objects)
{
    if (objects.isEmpty())
        return QStringLiteral("[]\n");
    return QLatin1String("[\n  ") + objects.join(QLatin1String(",\n  ")) + QLatin1String("\n]\n");
}

QString boolText(bool value)
{
    return value ? QStringLiteral("true") : QStringLiteral("false");
}

QString csvRecord(const QStringList &fields)
{
    QStringList escaped;
    for (QString field : fields) {
        const bool special = std::any_of(field.cbegin(), field.cend(), [](QChar c) {
            return c == QLatin1Char(',') || c == QLatin1Char('"') || c == QLatin1Char('\n')
                   || c == QLatin1Char('\r');
        });
        if (special) {
            field.replace(QLatin1Char('"'), QLatin1String("\"\""));
            field = QLatin1Char('"') + field + QLatin1Char('"');
        }
        escaped << field;
    }
    return escaped.join(QLatin1Char(',')) + QLatin1String("\r\n");
}

} // namespace HotkeyCtl
