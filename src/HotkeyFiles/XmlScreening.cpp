#include "XmlScreening.h"

#include "XmlTagScan.h"

#include <QRegularExpression>
#include <QTextCodec>
#include <QXmlStreamReader>

namespace CUI::XmlScreening {

namespace {

using Names = std::set<QString, std::less<>>;

const QLatin1String schemaInstanceNamespace("http://www.w3.org/2001/XMLSchema-instance");
constexpr const char *unsupportedEncoding = "The encoding is not supported.";
constexpr const char *documentTypeNotAllowed = "A document type declaration is not allowed.";

// The codec under which the tags can be found: that of a byte order mark, or the one that maps
// every byte to the character of the same number, since all other encodings that are let through
// agree with ASCII on markup. Null when the document is neither.
QTextCodec *scanCodec(const QByteArray &document)
{
    constexpr int latin1Mib = 4;
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

class Screener
{
public:
    Screener(const QByteArray &document, bool isUtf16) : m_reader(document), m_isUtf16(isUtf16) { }

    std::optional<XmlError> run()
    {
        while (!m_reader.atEnd()) {
            const char *reason = reasonAgainst(m_reader.readNext());
            if (reason == nullptr && ++m_nodes > maximumNodes)
                reason = "The document has too many elements.";
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
        case QXmlStreamReader::StartDocument:
            return isReadableEncoding(m_reader.documentEncoding().toString(), m_isUtf16)
                           ? nullptr
                           : unsupportedEncoding;
        case QXmlStreamReader::DTD:
            return documentTypeNotAllowed;
        case QXmlStreamReader::ProcessingInstruction:
            note(m_reader.processingInstructionTarget());
            return nullptr;
        case QXmlStreamReader::StartElement:
            return reasonAgainstElement();
        case QXmlStreamReader::EndElement:
            --m_depth;
            return nullptr;
        default:
            return nullptr;
        }
    }

    const char *reasonAgainstElement()
    {
        if (++m_depth > maximumDepth)
            return "Elements are nested too deeply.";
        note(m_reader.name());
        note(m_reader.prefix());
        note(m_reader.namespaceUri());
        const QXmlStreamAttributes attributes = m_reader.attributes();
        m_nodes += attributes.size();
        for (const QXmlStreamAttribute &attribute : attributes) {
            if (attribute.namespaceUri() == schemaInstanceNamespace
                && attribute.name().endsWith(QLatin1String("chemaLocation")))
                return "A schema location is not allowed.";
            note(attribute.name());
            note(attribute.prefix());
            note(attribute.namespaceUri());
        }
        const QXmlStreamNamespaceDeclarations declarations = m_reader.namespaceDeclarations();
        m_nodes += declarations.size();
        for (const QXmlStreamNamespaceDeclaration &declaration : declarations) {
            note(declaration.prefix());
            note(declaration.namespaceUri());
        }
        return nullptr;
    }

    void note(const QStringRef &name)
    {
        if (!name.isEmpty() && m_names.find(name) == m_names.end())
            m_names.insert(name.toString());
    }

    QXmlStreamReader m_reader;
    const bool m_isUtf16;
    Names m_names;
    int m_depth = 0;
    int m_nodes = 0;
};

// Looks at the tags, and takes the schema hints out.
std::optional<XmlError> scanTags(QByteArray &document, QTextCodec &codec)
{
    // A byte order mark stays in the text, so that it is there again in the blanked document.
    QTextCodec::ConverterState decoding(QTextCodec::IgnoreHeader);
    QString text = codec.toUnicode(document.constData(), document.size(), &decoding);
    const XmlTagScan::Result tags = XmlTagScan::scan(text, maximumAttributes);
    if (tags.documentType)
        return errorAt(QString::fromLatin1(documentTypeNotAllowed), text, *tags.documentType);
    if (tags.overlongTag)
        return errorAt(QStringLiteral("A tag has too many attributes."), text, *tags.overlongTag);
    if (tags.schemaHints.empty())
        return {};
    for (const XmlTagScan::Range &hint : tags.schemaHints)
        blank(text, hint);
    QTextCodec::ConverterState encoding(QTextCodec::IgnoreHeader);
    document = codec.fromUnicode(text.constData(), text.size(), &encoding);
    return {};
}

} // namespace

Result screen(const QByteArray &document)
{
    Result result;
    result.document = document;
    if (document.size() > maximumSize) {
        result.refusal = XmlError{QStringLiteral("The file is too large."), 0, 0, 0};
        return result;
    }
    QTextCodec *codec = scanCodec(document);
    if (codec == nullptr) {
        result.refusal = XmlError{QString::fromLatin1(unsupportedEncoding), 0, 0, 0};
        return result;
    }
    result.refusal = scanTags(result.document, *codec);
    if (result.refusal)
        return result;
    Screener screener(result.document, codec->name().startsWith("UTF-16"));
    result.refusal = screener.run();
    result.names = screener.takeNames();
    return result;
}

} // namespace CUI::XmlScreening
