#include "XmlScreening.h"

#include "XmlReading.h"

#include <QRegularExpression>
#include <QTextCodec>
#include <QXmlStreamReader>

namespace CUI::XmlScreening {

namespace {

using Names = std::set<QString, std::less<>>;

const QLatin1String schemaInstanceNamespace("http://www.w3.org/2001/XMLSchema-instance");

// The codec that a byte order mark names, or the one that maps every byte to the character of the
// same number: all other encodings that are let through agree with ASCII on the characters that
// the scans below look for.
QTextCodec *scanCodec(const QByteArray &document)
{
    constexpr int latin1Mib = 4;
    QTextCodec *latin1 = QTextCodec::codecForMib(latin1Mib);
    QTextCodec *marked = QTextCodec::codecForUtfText(document, latin1);
    return marked->name() == "UTF-8" ? latin1 : marked;
}

bool isReadableEncoding(const QString &encoding)
{
    static const QRegularExpression readable(
            QStringLiteral("\\A(utf-?(8|16)|us-ascii|iso-8859-\\d+|windows-125\\d)\\z"),
            QRegularExpression::CaseInsensitiveOption);
    return encoding.isEmpty() || readable.match(encoding).hasMatch();
}

// A tag ends before the next '<', since an attribute's value cannot hold one. So counting '='
// between two '<' finds every tag that is too long before the reader sees it.
bool hasOverlongTag(const QString &text)
{
    int attributes = 0;
    for (const QChar c : text) {
        if (c == QLatin1Char('<'))
            attributes = 0;
        else if (c == QLatin1Char('=') && ++attributes > maximumAttributes)
            return true;
    }
    return false;
}

// Overwrites schema hints with blanks; true when there was one.
bool blankSchemaHints(QString &text)
{
    static const QRegularExpression hint(
            QStringLiteral("(?<=\\s)[^\\s=<>\"'/]+:(?:noNamespaceSchemaLocation|schemaLocation)"
                           "\\s*=\\s*(?:\"[^\"<]*\"|'[^'<]*')"));
    static const QRegularExpression notLineBreak(QStringLiteral("[^\\r\\n]"));
    bool found = false;
    for (auto matches = hint.globalMatch(QString(text)); matches.hasNext();) {
        const auto match = matches.next();
        text.replace(match.capturedStart(), match.capturedLength(),
                     match.captured().replace(notLineBreak, QStringLiteral(" ")));
        found = true;
    }
    return found;
}

class Screener
{
public:
    explicit Screener(const QByteArray &document) : m_reader(document) { }

    std::optional<XmlError> run()
    {
        while (!m_reader.atEnd()) {
            switch (m_reader.readNext()) {
            case QXmlStreamReader::StartDocument:
                if (!isReadableEncoding(m_reader.documentEncoding().toString()))
                    return refuse(QStringLiteral("The encoding is not supported."));
                break;
            case QXmlStreamReader::DTD:
                return refuse(QStringLiteral("A document type declaration is not allowed."));
            case QXmlStreamReader::StartElement:
                if (const char *reason = refuseElement())
                    return refuse(QString::fromLatin1(reason));
                break;
            case QXmlStreamReader::EndElement:
                --m_depth;
                break;
            default:
                break;
            }
        }
        return {};
    }

    Names takeNames() { return std::move(m_names); }

private:
    const char *refuseElement()
    {
        if (++m_depth > maximumDepth)
            return "Elements are nested too deeply.";
        const QXmlStreamAttributes attributes = m_reader.attributes();
        m_nodes += 1 + attributes.size();
        if (m_nodes > maximumNodes)
            return "The document has too many elements.";
        note(m_reader.name(), m_reader.prefix(), m_reader.namespaceUri());
        for (const QXmlStreamAttribute &attribute : attributes) {
            if (attribute.namespaceUri() == schemaInstanceNamespace
                && attribute.name().endsWith(QLatin1String("chemaLocation")))
                return "A schema location is not allowed.";
            note(attribute.name(), attribute.prefix(), attribute.namespaceUri());
        }
        for (const QXmlStreamNamespaceDeclaration &declaration : m_reader.namespaceDeclarations())
            note(declaration.prefix(), declaration.namespaceUri(), {});
        return m_names.size() > maximumNames ? "The document has too many different names."
                                             : nullptr;
    }

    void note(const QStringRef &a, const QStringRef &b, const QStringRef &c)
    {
        for (const QStringRef *name : {&a, &b, &c}) {
            if (!name->isEmpty() && m_names.find(*name) == m_names.end())
                m_names.insert(name->toString());
        }
    }

    XmlError refuse(const QString &reason) const
    {
        return {reason, m_reader.lineNumber(), m_reader.columnNumber(), m_reader.characterOffset()};
    }

    QXmlStreamReader m_reader;
    Names m_names;
    int m_depth = 0;
    int m_nodes = 0;
};

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
    // A byte order mark stays in the text, so that it is there again in the blanked document.
    QTextCodec::ConverterState decoding(QTextCodec::IgnoreHeader);
    QString text = codec->toUnicode(document.constData(), document.size(), &decoding);
    if (hasOverlongTag(text)) {
        result.refusal = XmlError{QStringLiteral("A tag has too many attributes."), 0, 0, 0};
        return result;
    }
    if (text.contains(QLatin1String("chemaLocation")) && blankSchemaHints(text)) {
        QTextCodec::ConverterState encoding(QTextCodec::IgnoreHeader);
        result.document = codec->fromUnicode(text.constData(), text.size(), &encoding);
    }

    Screener screener(result.document);
    result.refusal = screener.run();
    result.names = screener.takeNames();
    return result;
}

} // namespace CUI::XmlScreening
