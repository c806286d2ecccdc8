#include "TranslationCheck.h"

#include <QFile>
#include <QProcess>
#include <QRegularExpression>
#include <QXmlStreamReader>

namespace {

QString s(const char *text)
{
    return QString::fromUtf8(text);
}

/// What the pattern finds, sorted: a translation may put it into another order.
QStringList allMatches(const QString &text, const char *pattern)
{
    QStringList matches;
    QRegularExpressionMatchIterator next = QRegularExpression(s(pattern)).globalMatch(text);
    while (next.hasNext())
        matches << next.next().captured();
    matches.sort();
    return matches;
}

TranslatedText readMessage(QXmlStreamReader &xml, const QString &context)
{
    TranslatedText text;
    text.context = context;
    while (xml.readNextStartElement()) {
        if (xml.name() == QLatin1String("source")) {
            text.source = xml.readElementText();
        } else if (xml.name() == QLatin1String("translation")) {
            text.type = xml.attributes().value(s("type")).toString();
            text.translation = xml.readElementText();
        } else {
            xml.skipCurrentElement();
        }
    }
    return text;
}

} // namespace

QList<TranslatedText> readTranslations(const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        qFatal("cannot read %s", qPrintable(path));
    QXmlStreamReader xml(&file);
    QList<TranslatedText> texts;
    QString context;
    while (!xml.atEnd()) {
        if (xml.readNext() != QXmlStreamReader::StartElement)
            continue;
        if (xml.name() == QLatin1String("name"))
            context = xml.readElementText();
        else if (xml.name() == QLatin1String("message"))
            texts << readMessage(xml, context);
    }
    if (xml.hasError())
        qFatal("%s: %s", qPrintable(path), qPrintable(xml.errorString()));
    return texts;
}

QString updateTranslations(const QString &sourceFolder, const QStringList &files)
{
    QProcess tool;
    tool.setProcessChannelMode(QProcess::MergedChannels);
    tool.start(s(CUI_LUPDATE),
               QStringList({s("-silent"), s("-locations"), s("none"), sourceFolder, s("-ts")})
                       + files);
    if (!tool.waitForFinished())
        return tool.errorString();
    return tool.exitCode() == 0 ? QString() : QString::fromLocal8Bit(tool.readAll());
}

QString complaintAboutState(const TranslatedText &text)
{
    if (!text.type.isEmpty())
        return s("is ") + text.type;
    return text.translation.isEmpty() ? s("is not translated") : QString();
}

QString complaintAboutForm(const TranslatedText &text)
{
    const struct {
        const char *pattern;
        const char *what;
    } kept[] = {
            {"%L?\\d+|%n", "placeholders"},
            // A pair of ampersands is one that is shown.
            {"&(?=[^&\\s])(?<!&&)", "mnemonic"},
            {"\n", "line breaks"},
            {"\\(\\*\\.[^)]*\\)", "file pattern"},
            {"Velstudio|Zarvi", "product"},
    };
    for (const auto &row : kept) {
        if (allMatches(text.source, row.pattern) != allMatches(text.translation, row.pattern))
            return s("has other ") + s(row.what);
    }
    const bool endsOpen = text.source.endsWith(s("..."));
    return text.translation.contains(s("...")) && !endsOpen ? s("has an ellipsis") : QString();
}
