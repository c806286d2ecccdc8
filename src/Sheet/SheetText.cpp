#include "SheetText.h"

#include "HotkeySheet.h"
#include "KeyNames.h"

#include <QCoreApplication>

#include <algorithm>

namespace CUI::SheetText {

namespace {

// The names of the columns are those of the table of actions.
QString columnName(const char *name)
{
    return QCoreApplication::translate("CUI::QvelActionItemModel", name);
}

/// @p text as GitHub's Markdown shows it.
QString escaped(const QString &text)
{
    static const QString special = QStringLiteral("\\`*_[]<>&|~#$:");
    QString result;
    for (const QChar c : oneLine(text)) {
        if (special.contains(c))
            result += QLatin1Char('\\');
        result += c;
    }
    // Links are made of addresses without a scheme, too.
    return result.replace(QLatin1String("www."), QLatin1String("www\\."), Qt::CaseInsensitive);
}

QString codeSpan(const QString &text)
{
    // Within a table, a span cannot hold every combination of bars and backslashes.
    if (text.contains(QLatin1Char('|')))
        return escaped(text);
    QString fence(QLatin1Char('`'));
    while (text.contains(fence))
        fence += QLatin1Char('`');
    const bool isOfBackquotes = fence.size() > 1;
    const QString padding = isOfBackquotes ? QStringLiteral(" ") : QString();
    return fence + padding + text + padding + fence;
}

QString tableRow(const QString &action, const QString &hotkeys)
{
    return QStringLiteral("| %1 | %2 |\n").arg(action, hotkeys);
}

QString table(const HotkeySheet::Category &category)
{
    QString text = tableRow(escaped(columnName("Action")), escaped(columnName("Hotkey")))
                   + QLatin1String("| --- | --- |\n");
    for (const HotkeySheet::Entry &entry : category.entries) {
        QStringList hotkeys;
        for (const QString &hotkey : entry.hotkeys)
            hotkeys << codeSpan(shownHotkey(hotkey));
        text += tableRow(escaped(entry.action), hotkeys.join(QLatin1String(", ")));
    }
    return text;
}

/// Whether a spreadsheet would calculate what stands in the field. The wide forms count as the
/// narrow ones do in the spreadsheets of East Asia.
bool isFormula(const QString &field)
{
    static const QString marks = QStringLiteral("=+-@\t\r\uFF1D\uFF0B\uFF0D\uFF20");
    return field.size() > 1 && marks.contains(field.at(0));
}

QByteArray csvRecord(const QStringList &fields)
{
    QStringList quoted;
    for (QString field : fields) {
        if (isFormula(field))
            field.prepend(QLatin1Char('\''));
        field.replace(QLatin1Char('"'), QLatin1String("\"\""));
        quoted << QLatin1Char('"') + field + QLatin1Char('"');
    }
    return quoted.join(QLatin1Char(',')).toUtf8() + "\r\n";
}

} // namespace

QString oneLine(const QString &text)
{
    QString result;
    result.reserve(text.size());
    for (int i = 0; i < text.size(); ++i) {
        const QChar c = text.at(i);
        const bool isPair =
                c.isHighSurrogate() && i + 1 < text.size() && text.at(i + 1).isLowSurrogate();
        if (isPair) {
            result += text.midRef(i++, 2);
        } else if (c.category() == QChar::Other_Control || c == QChar::LineSeparator
                   || c == QChar::ParagraphSeparator) {
            result += QLatin1Char(' ');
        } else {
            const bool isCharacter = !c.isSurrogate() && c.unicode() < 0xFFFE;
            result += isCharacter ? c : QChar(QChar::ReplacementCharacter);
        }
    }
    return result;
}

QString shownHotkey(const QString &hotkey)
{
    const QString shown = KeyNames::keyOf(hotkey).toString(QKeySequence::NativeText);
    return oneLine(shown.isEmpty() ? hotkey : shown);
}

QString keyboardHeading()
{
    return QCoreApplication::translate("CUI::QvelKeyboardWidget", "Keyboard");
}

QByteArray markdown(const HotkeySheet &sheet)
{
    QString text = QStringLiteral("# %1\n").arg(escaped(sheet.title()));
    for (const HotkeySheet::Context &context : sheet.contexts()) {
        text += QStringLiteral("\n## %1\n").arg(escaped(context.name));
        for (const HotkeySheet::Category &category : context.categories) {
            if (!category.name.isEmpty())
                text += QStringLiteral("\n### %1\n").arg(escaped(category.name));
            text += QLatin1Char('\n') + table(category);
        }
    }
    return text.toUtf8();
}

QByteArray csv(const HotkeySheet &sheet)
{
    QByteArray text =
            "\xEF\xBB\xBF"
            + csvRecord({columnName("Group"), columnName("Category"), columnName("Action"),
                         columnName("Hotkey"), QStringLiteral("Id")});
    for (const HotkeySheet::Context &context : sheet.contexts()) {
        for (const HotkeySheet::Category &category : context.categories) {
            for (const HotkeySheet::Entry &entry : category.entries) {
                text += csvRecord({context.name, category.name, entry.action,
                                   entry.hotkeys.join(QLatin1String(", ")),
                                   entry.identifier.toString()});
            }
        }
    }
    return text;
}

} // namespace CUI::SheetText
