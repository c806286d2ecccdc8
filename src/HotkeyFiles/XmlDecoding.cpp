#include "XmlDecoding.h"

#include "XmlReading.h"

#include <QByteArray>
#include <QTextCodec>
#include <QXmlStreamReader>

#include <algorithm>

namespace CUI::XmlDecoding {

namespace {

enum Mib { Utf8 = 106, Utf7 = 1012, Utf16Be = 1013, Utf16Le = 1014, Utf32 = 1017, Utf32Le = 1019 };

const QLatin1String notSupported("The encoding is not supported.");
const QLatin1String contradiction("The declared encoding is not that of the file.");
const QLatin1String incorrectlyEncoded("Encountered incorrectly encoded content.");

/// How a document starts that says by its first bytes how it is encoded.
struct Start {
    QByteArray bytes;
    int mib;
    int markSize; ///< how many of the bytes are a byte order mark
};

const Start *startOf(const QByteArray &bytes)
{
    static const Start starts[] = {
            {QByteArray("\xff\xfe\0\0", 4), Utf32, 4}, {QByteArray("\0\0\xfe\xff", 4), Utf32, 4},
            {QByteArray("<\0\0\0", 4), Utf32, 0},      {QByteArray("\0\0\0<", 4), Utf32, 0},
            {QByteArray("\xef\xbb\xbf"), Utf8, 3},     {QByteArray("\xff\xfe"), Utf16Le, 2},
            {QByteArray("\xfe\xff"), Utf16Be, 2},      {QByteArray("<\0", 2), Utf16Le, 0},
            {QByteArray("\0<", 2), Utf16Be, 0},
    };
    const auto *const found =
            std::find_if(std::begin(starts), std::end(starts),
                         [&](const Start &s) { return bytes.startsWith(s.bytes); });
    return found == std::end(starts) ? nullptr : found;
}

bool isUtf16(const QTextCodec &codec)
{
    return codec.mibEnum() == Utf16Le || codec.mibEnum() == Utf16Be;
}

bool isUnsafe(const QTextCodec &codec)
{
    return codec.mibEnum() == Utf7 || (codec.mibEnum() >= Utf32 && codec.mibEnum() <= Utf32Le);
}

/// The XML declaration of a document.
struct Declaration {
    QString text; ///< all of it; empty when there is none
    QByteArray encoding; ///< the name that it gives; empty when it gives none
    std::optional<XmlError> error;
};

// The toolkit's own reader judges it. Given a text, that reader does not act on the encoding.
Declaration declarationOf(const QString &start)
{
    Declaration declaration;
    if (!start.startsWith(QLatin1String("<?xml")))
        return declaration;
    const QLatin1String end("?>");
    const int length = start.indexOf(end) + end.size();
    QXmlStreamReader reader(start.left(length) + QLatin1String("<a/>"));
    reader.readNext();
    declaration.error = XmlReading::errorOf(reader);
    declaration.encoding = reader.documentEncoding().toLatin1();
    if (!reader.documentVersion().isEmpty()) // else a processing instruction of a longer name
        declaration.text = start.left(length);
    return declaration;
}

// What is wrong with a text that @p codec has made of @p bytes.
std::optional<XmlError> faultOf(const QString &text, const QByteArray &bytes,
                                const QTextCodec &codec)
{
    static const QByteArray replacement = QString(QChar(QChar::ReplacementCharacter)).toUtf8();
    const bool isUtf8 = codec.mibEnum() == Utf8;
    int offset = 0; // in UTF-8
    for (int i = 0; i < text.size(); ++i) {
        const QChar c = text.at(i);
        const QChar next = i + 1 < text.size() ? text.at(i + 1) : QChar();
        if (c.isNull())
            return errorAt(QStringLiteral("A zero character is not allowed."), text, i);
        bool isDecoded = !c.isLowSurrogate() && (!c.isHighSurrogate() || next.isLowSurrogate());
        if (c == QChar::ReplacementCharacter) // stands for bytes that say nothing, or for itself
            isDecoded =
                    isUtf8 ? bytes.mid(offset, replacement.size()) == replacement : isUtf16(codec);
        if (!isDecoded)
            return errorAt(incorrectlyEncoded, text, i);
        offset += c < QChar(0x80) ? 1 : c < QChar(0x800) ? 2 : c.isHighSurrogate() ? 4 : 3;
        i += c.isHighSurrogate() ? 1 : 0;
    }
    return {};
}

void blankStart(QString &text, int length)
{
    for (int i = 0; i < length; ++i) {
        if (text.at(i) != QLatin1Char('\n') && text.at(i) != QLatin1Char('\r'))
            text[i] = QLatin1Char(' ');
    }
}

Result refused(const QString &reason, const Declaration &declaration)
{
    return {QString(), errorAt(reason, declaration.text, declaration.text.size())};
}

Result decodeWith(const QTextCodec &codec, const QByteArray &bytes)
{
    QTextCodec::ConverterState state(QTextCodec::IgnoreHeader);
    Result result{codec.toUnicode(bytes.constData(), bytes.size(), &state), {}};
    result.error = faultOf(result.text, bytes, codec);
    // A character that is cut off shows in what follows it.
    const bool isComplete =
            state.remainingChars == 0
            && (isUtf16(codec) || codec.toUnicode("\n", 1, &state) == QLatin1String("\n"));
    if (!result.error && !isComplete)
        result.error = errorAt(incorrectlyEncoded, result.text, result.text.size());
    return result;
}

} // namespace

Result decode(const QByteArray &bytes)
{
    const Start *start = startOf(bytes);
    const QTextCodec *codec = QTextCodec::codecForMib(start != nullptr ? start->mib : int(Utf8));
    if (isUnsafe(*codec))
        return refused(notSupported, {});
    const int markSize = start != nullptr ? start->markSize : 0;
    const QByteArray body = bytes.mid(markSize);

    // Encodings other than UTF-16 that are read at all agree with ASCII on the declaration.
    Result result;
    const bool isWide = isUtf16(*codec);
    if (isWide)
        result = decodeWith(*codec, body);
    const Declaration declaration = declarationOf(
            isWide ? result.text : QString::fromLatin1(body.left(body.indexOf("?>") + 2)));
    if (declaration.error)
        return {QString(), declaration.error};
    if (!declaration.encoding.isEmpty()) {
        codec = QTextCodec::codecForName(declaration.encoding);
        if (codec == nullptr || isUnsafe(*codec))
            return refused(notSupported, declaration);
        const int size = markSize + declaration.text.size() * (isWide ? 2 : 1);
        if (codec->toUnicode(bytes.left(size)) != declaration.text)
            return refused(contradiction, declaration);
    }
    if (!isWide)
        result = decodeWith(*codec, body);
    blankStart(result.text, declaration.text.size());
    return result;
}

XmlError errorAt(const QString &reason, const QString &text, int position)
{
    const QStringRef before = text.leftRef(position);
    const int lineStart = before.lastIndexOf(QLatin1Char('\n')) + 1;
    return {reason, before.count(QLatin1Char('\n')) + 1, position - lineStart, position};
}

} // namespace CUI::XmlDecoding
