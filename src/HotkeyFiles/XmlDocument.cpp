#include "XmlDocument.h"

#include "XmlDecoding.h"

#include <QXmlStreamReader>

#include <utility>
#include <vector>

namespace CUI {

namespace {

const QLatin1String schemaInstanceNamespace("http://www.w3.org/2001/XMLSchema-instance");

// Looks for what is not even safe for the toolkit's reader: a tag with so many attributes that
// comparing them takes long, and a document type. What it takes for a tag may be none where the
// text is not well-formed, but no reader gets beyond that place.
class TagScreener
{
public:
    explicit TagScreener(const QString &text) : m_text(text) { }

    std::optional<XmlError> run()
    {
        while (!m_refusal && (m_position = m_text.indexOf(QLatin1Char('<'), m_position)) >= 0) {
            const QStringRef markup = m_text.midRef(m_position, 9);
            if (markup.startsWith(QLatin1String("<!--")))
                skipTo("-->", m_position + 4); // the dashes of the start are not those of the end
            else if (markup == QLatin1String("<![CDATA["))
                skipTo("]]>", m_position);
            else if (markup.startsWith(QLatin1String("<?")))
                skipTo("?>", m_position);
            else if (markup == QLatin1String("<!DOCTYPE"))
                refuse("A document type declaration is not allowed.", m_position);
            else
                skipTag();
        }
        return m_refusal;
    }

private:
    void refuse(const char *reason, int position)
    {
        m_refusal = XmlDecoding::errorAt(QString::fromLatin1(reason), m_text, position);
    }

    void skipTo(const char *end, int from)
    {
        const int found = m_text.indexOf(QLatin1String(end), from);
        m_position = found < 0 ? m_text.size() : found;
    }

    void skipTag()
    {
        const int start = m_position;
        int attributes = 0;
        QChar quote;
        for (++m_position; m_position < m_text.size(); ++m_position) {
            const QChar c = m_text.at(m_position);
            if (c == QLatin1Char('<') || (quote.isNull() && c == QLatin1Char('>')))
                return;
            if (c == quote) {
                quote = QChar();
            } else if (quote.isNull() && (c == QLatin1Char('"') || c == QLatin1Char('\''))) {
                quote = c;
                if (++attributes > XmlDocument::maximumAttributes)
                    return refuse("A tag has too many attributes.", start);
            }
        }
    }

    const QString &m_text;
    int m_position = 0;
    std::optional<XmlError> m_refusal;
};

// Looks at what the toolkit's reader makes of the document, as the schema processor does.
class Screener
{
public:
    explicit Screener(const QByteArray &utf8) : m_reader(utf8) { }

    std::optional<XmlError> run()
    {
        while (!m_reader.atEnd()) {
            const char *reason = reasonAgainst(m_reader.readNext());
            if (reason == nullptr && m_hasLongName)
                reason = "A name is too long.";
            if (reason == nullptr && m_names.size() > XmlDocument::maximumNames)
                reason = "The document has too many different names.";
            if (reason == nullptr && m_nodes > XmlDocument::maximumNodes)
                reason = "The document has too many elements.";
            if (reason != nullptr)
                return XmlError{QString::fromLatin1(reason), m_reader.lineNumber(),
                                m_reader.columnNumber(), m_reader.characterOffset()};
        }
        return {};
    }

    XmlDocument::Names takeNames() { return std::move(m_names); }

private:
    const char *reasonAgainst(QXmlStreamReader::TokenType token)
    {
        ++m_nodes;
        switch (token) {
        case QXmlStreamReader::StartDocument:
            return m_reader.documentEncoding().isEmpty() ? nullptr
                                                         : "The encoding is not supported.";
        case QXmlStreamReader::DTD:
            return "A document type declaration is not allowed.";
        case QXmlStreamReader::ProcessingInstruction:
            note(m_reader.processingInstructionTarget());
            return nullptr;
        case QXmlStreamReader::StartElement:
            return reasonAgainstElement();
        case QXmlStreamReader::EndElement:
            m_namespaces.pop_back();
            return nullptr;
        default:
            return nullptr;
        }
    }

    const char *reasonAgainstElement()
    {
        const QXmlStreamAttributes attributes = m_reader.attributes();
        const QXmlStreamNamespaceDeclarations declarations = m_reader.namespaceDeclarations();
        m_nodes += attributes.size();
        m_namespaces.push_back((m_namespaces.empty() ? 0 : m_namespaces.back())
                               + declarations.size());
        if (m_namespaces.size() > std::size_t{XmlDocument::maximumDepth})
            return "Elements are nested too deeply.";
        if (m_namespaces.back() > XmlDocument::maximumNamespaces)
            return "Too many namespaces are declared.";
        note(m_reader.name(), m_reader.prefix(), m_reader.namespaceUri());
        for (const QXmlStreamNamespaceDeclaration &declared : declarations)
            note(declared.prefix(), declared.namespaceUri());
        for (const QXmlStreamAttribute &attribute : attributes) {
            note(attribute.name(), attribute.prefix(), attribute.namespaceUri());
            if (attribute.namespaceUri() == schemaInstanceNamespace && !isSchemaHint(attribute))
                return "An attribute of the schema instance namespace is not allowed.";
        }
        return nullptr;
    }

    // The processor asks for the schema that such an attribute names, and is refused.
    static bool isSchemaHint(const QXmlStreamAttribute &attribute)
    {
        return attribute.name() == QLatin1String("schemaLocation")
               || attribute.name() == QLatin1String("noNamespaceSchemaLocation");
    }

    template <typename... Texts>
    void note(const Texts &...texts)
    {
        for (const QStringRef &name : {texts...}) {
            m_hasLongName = m_hasLongName || name.size() > XmlDocument::maximumNameLength;
            if (!m_hasLongName && !name.isEmpty() && m_names.find(name) == m_names.end())
                m_names.insert(name.toString());
        }
    }

    QXmlStreamReader m_reader;
    XmlDocument::Names m_names;
    bool m_hasLongName = false;
    int m_nodes = 0;
    std::vector<int> m_namespaces; ///< in scope, for each open element
};

} // namespace

XmlDocument::XmlDocument(const QByteArray &bytes)
{
    if (bytes.size() > maximumSize) {
        m_refusal = XmlError{QStringLiteral("The file is too large."), 0, 0, 0};
        return;
    }
    const XmlDecoding::Result decoded = XmlDecoding::decode(bytes);
    m_refusal = decoded.error ? decoded.error : TagScreener(decoded.text).run();
    if (m_refusal)
        return;
    // The byte order mark rules out that a reader guesses another encoding.
    const QByteArray utf8 = "\xef\xbb\xbf" + decoded.text.toUtf8();
    Screener screener(utf8);
    m_refusal = screener.run();
    m_names = screener.takeNames();
    if (!m_refusal)
        m_utf8 = utf8;
}

} // namespace CUI
