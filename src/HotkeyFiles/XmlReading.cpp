#include "XmlReading.h"

#include <QString>
#include <QXmlStreamReader>

namespace CUI::XmlReading {

namespace {

// How many code units at position i form a character that XML allows; 0 when they do not.
int xmlCharacterLength(const QString &text, int i)
{
    const QChar c = text.at(i);
    if (c.isHighSurrogate())
        return i + 1 < text.size() && text.at(i + 1).isLowSurrogate() ? 2 : 0;
    const ushort code = c.unicode();
    const bool isAllowed = code >= 0x20 ? !c.isLowSurrogate() && code < 0xfffe
                                        : code == '\t' || code == '\n' || code == '\r';
    return isAllowed ? 1 : 0;
}

} // namespace

QString wrongRootText(const QString &suffix)
{
    return QLatin1String("This is not a valid ") + suffix + QLatin1String(" file.");
}

std::optional<XmlError> errorOf(const QXmlStreamReader &reader)
{
    if (!reader.hasError())
        return {};
    return XmlError{reader.errorString(), reader.lineNumber(), reader.columnNumber(),
                    reader.characterOffset()};
}

bool isXmlText(const QString &text)
{
    for (int i = 0; i < text.size();) {
        const int length = xmlCharacterLength(text, i);
        if (length == 0)
            return false;
        i += length;
    }
    return true;
}

QString xmlText(const QString &text)
{
    QString result;
    result.reserve(text.size());
    for (int i = 0; i < text.size();) {
        const int length = xmlCharacterLength(text, i);
        result += text.midRef(i, length);
        i += length == 0 ? 1 : length;
    }
    return result;
}

} // namespace CUI::XmlReading
