#include "XmlScreening.h"

#include "XmlTagScan.h"

#include <QRegularExpression>
#include <QTextCodec>
#include <QXmlStreamReader>

namespace CUI::XmlScreening {

namespace {

using Names = std::set<QString, std::less<>>;

const QLatin1String schemaInstanceNamespace("http://www.w3.org/2001/XMLSchema-instance");

constexpr int latin1Mib = 4;

// The codec under which the tags can be found: that of a byte order mark, or the one that maps
// every byte to the character of the same number, since all other encodings that are let through
// agree with ASCII on markup. Null when the document is neither.
QTextCodec *scanCodec(const QByteArray &document)
{
    QTextCodec *latin1 = QTextCodec::codecForMib(latin1Mib);
    const QTextCodec *marked = QTextCodec::codecForUtfText(document, latin1);
    if (marked->name().startsWith("UTF-16"))
        return const_cast<QTextCodec *>(marked);
    // Zero bytes speak of an encoding that a reader might guess without a mark.
    return document.contains('\0') ? nullptr : latin1;
}

bool isReadableEncoding(const QString &encoding, bool isUtf16)
{
    static const QRegularExpression readable(
            QStringLiteral("\\A(utf-?8|us-ascii|iso-8859-\\d+|windows-125\\d)\\z"),
            QRegularExpression::CaseInsensitiveOption);
    if (isUtf16)
        return encoding.isEmpty()
               || encoding.startsWith(QLatin1String("utf-16"), Qt::CaseInsensitive);
    return encoding.isEmpty() || readable.match(encoding).hasMatch();
}

XmlError errorAt(const QString &reason, const QString &text, int position)
{
    const QStringRef before = text.leftRef(position);
    const int lineStart = before.lastIndexOf(QLatin1Char('\n')) + 1;
    return {reason, before.count(QLatin1Char('\n')) + 1, position - lineStart, position};
}

void blank(QString &text, XmlTagScan::Range range)
{
    for (int i = range.start; i < range.start + range.length; ++i) {
        if (text.at(i) != QLatin1Char('\n') && text.at(i) != QLatin1Char('\r'))
            text[i] = QLatin1Char(' ');
    }
}

// Counts the names as the processor does, with their namespaces resolved.
class NamespaceScreener
{
public:
    explicit NamespaceScreener(const QByteArray &document) : m_reader(document) { }

    std::optional<XmlError> run()
    {
        while (!m_reader.atEnd()) {
            const char *reason = reasonAgainst(m_reader.readNext());
            if (reason == nullptr && m_names.size() > maximumNames)
                reason = "The document has too many different names.";
            if (reason != nullptr)
                return XmlError{QString::fromLatin1(reason), m_reader.lineNumber(),
                                m_reader.columnNumber(), m_reader.characterOffset()};
        }
        return {};
    }

    Names takeNames() { return std::move(m_names); }

private:
    const char *reasonAgainst(QXmlStreamReader::TokenType token)
    {
        switch (token) {
        case QXmlStreamReader::DTD:
            return "A document type declaration is not allowed.";
        case QXmlStreamReader::ProcessingInstruction:
            note(m_reader.processingInstructionTarget());
            return nullptr;
        case QXmlStreamReader::StartElement:
            return reasonAgainstElement();
        default:
            return nullptr;
        }
    }

    const char *reasonAgainstElement()
    {
        note(m_reader.name());
        note(m_reader.prefix());
        note(m_reader.namespaceUri());
        for (const QXmlStreamAttribute &attribute : m_reader.attributes()) {
            if (attribute.namespaceUri() == schemaInstanceNamespace
                && attribute.name().endsWith(QLatin1String("chemaLocation")))
                return "A schema location is not allowed.";
            note(attribute.name());
            note(attribute.prefix());
            note(attribute.namespaceUri());
        }
        for (const QXmlStreamNamespaceDeclaration &declared : m_reader.namespaceDeclarations()) {
            note(declared.prefix());
            note(declared.namespaceUri());
        }
        return nullptr;
    }

    void note(const QStringRef &name)
    {
        if (!name.isEmpty() && m_names.find(name) == m_names.end())
            m_names.insert(name.toString());
    }

    QXmlStreamReader m_reader;
    Names m_names;
};

bool declaresReadableEncoding(const QByteArray &document, bool isUtf16)
{
    QXmlStreamReader reader(document);
    return reader.readNext() != QXmlStreamReader::StartDocument
           || isReadableEncoding(reader.documentEncoding().toString(), isUtf16);
}

// Looks at the tags, and takes the schema hints out of the document.
XmlTagScan::Result scanTags(Result &result, QTextCodec &codec)
{
    // A byte order mark stays in the text, so that it is there again in the blanked document.
    QTextCodec::ConverterState decoding(QTextCodec::IgnoreHeader);
    QString text = codec.toUnicode(result.document.constData(), result.document.size(), &decoding);
    XmlTagScan::Result tags =
            XmlTagScan::scan(text, {maximumAttributes, maximumNodes, maximumDepth, maximumNames});
    if (tags.refusal)
        result.refusal =
                errorAt(QString::fromLatin1(tags.refusal->reason), text, tags.refusal->position);
    if (tags.refusal || tags.schemaHints.empty())
        return tags;
    for (const XmlTagScan::Range &hint : tags.schemaHints)
        blank(text, hint);
    QTextCodec::ConverterState encoding(QTextCodec::IgnoreHeader);
    result.document = codec.fromUnicode(text.constData(), text.size(), &encoding);
    return tags;
}

Result refused(const char *reason)
{
    Result result;
    result.refusal = XmlError{QString::fromLatin1(reason), 0, 0, 0};
    return result;
}

} // namespace

Result screen(const QByteArray &document)
{
    if (document.size() > maximumSize)
        return refused("The file is too large.");
    QTextCodec *codec = scanCodec(document);
    if (codec == nullptr || !declaresReadableEncoding(document, codec->name().startsWith("UTF-16")))
        return refused("The encoding is not supported.");

    Result result;
    result.document = document;
    XmlTagScan::Result tags = scanTags(result, *codec);
    result.names = std::move(tags.names);
    // The places in the text are those in the document where a byte is a character.
    if (!result.refusal && codec->mibEnum() == latin1Mib)
        result.pieces = XmlPieces(result.document, tags);
    if (!result.refusal && tags.hasNamespaces) {
        NamespaceScreener screener(result.document);
        result.refusal = screener.run();
        result.names = screener.takeNames();
    }
    return result;
}

} // namespace CUI::XmlScreening
