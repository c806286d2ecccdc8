#include "XmlTagScan.h"

#include <QSet>

namespace CUI::XmlTagScan {

namespace {

const QLatin1String schemaInstanceNamespace("http://www.w3.org/2001/XMLSchema-instance");
const QLatin1String declarationPrefix("xmlns:");

bool isSpace(QChar c)
{
    return c == QLatin1Char(' ') || c == QLatin1Char('\n') || c == QLatin1Char('\t')
           || c == QLatin1Char('\r');
}

bool endsName(QChar c)
{
    return isSpace(c) || c == QLatin1Char('=') || c == QLatin1Char('>') || c == QLatin1Char('/')
           || c == QLatin1Char('<') || c == QLatin1Char('"') || c == QLatin1Char('\'');
}

class Scanner
{
public:
    Scanner(const QString &text, int maximumAttributes)
        : m_text(text), m_maximumAttributes(maximumAttributes)
    {
    }

    Result run()
    {
        while (findNext(QLatin1Char('<')) && skipMarkup()) { }
        // A prefix may be declared by a later attribute of the same tag.
        for (const Hint &hint : m_hints) {
            if (m_schemaPrefixes.contains(hint.prefix))
                m_result.schemaHints.push_back(hint.range);
        }
        return m_result;
    }

private:
    struct Hint {
        QStringRef prefix;
        Range range;
    };

    bool findNext(QChar c)
    {
        const int found = m_text.indexOf(c, m_position);
        m_position = found < 0 ? m_text.size() : found;
        return found >= 0;
    }

    bool skipPast(const char *end)
    {
        const QLatin1String ending(end);
        const int found = m_text.indexOf(ending, m_position);
        m_position = found + ending.size();
        return found >= 0;
    }

    bool startsWith(const char *text) const
    {
        return m_text.midRef(m_position).startsWith(QLatin1String(text));
    }

    bool isAt(QChar c) const { return m_position < m_text.size() && m_text.at(m_position) == c; }

    void skipSpaces()
    {
        while (m_position < m_text.size() && isSpace(m_text.at(m_position)))
            ++m_position;
    }

    QStringRef takeName()
    {
        const int start = m_position;
        while (m_position < m_text.size() && !endsName(m_text.at(m_position)))
            ++m_position;
        return m_text.midRef(start, m_position - start);
    }

    // From a '<' past the end of its comment, instruction, section or tag.
    bool skipMarkup()
    {
        if (startsWith("<!--")) {
            m_position += 4; // the dashes of the start are not those of the end
            return skipPast("-->");
        }
        if (startsWith("<![CDATA["))
            return skipPast("]]>");
        if (startsWith("<?"))
            return skipPast("?>");
        if (!startsWith("<!"))
            return skipTag();
        m_result.documentType = m_position;
        return false;
    }

    bool skipTag()
    {
        const int start = m_position++;
        if (isAt(QLatin1Char('/')))
            ++m_position;
        takeName();
        for (int attributes = 0;; ++attributes) {
            skipSpaces();
            if (isAt(QLatin1Char('/')))
                ++m_position;
            if (isAt(QLatin1Char('>')))
                return true;
            if (attributes == m_maximumAttributes) {
                m_result.overlongTag = start;
                return false;
            }
            if (!skipAttribute())
                return false;
        }
    }

    bool skipAttribute()
    {
        const int start = m_position;
        const QStringRef name = takeName();
        skipSpaces();
        if (name.isEmpty() || !isAt(QLatin1Char('=')))
            return false;
        ++m_position;
        skipSpaces();
        if (!isAt(QLatin1Char('"')) && !isAt(QLatin1Char('\'')))
            return false;
        const QChar quote = m_text.at(m_position++);
        const int valueStart = m_position;
        if (!findNext(quote))
            return false;
        const QStringRef value = m_text.midRef(valueStart, m_position - valueStart);
        ++m_position;
        note(name, value, {start, m_position - start});
        return !value.contains(QLatin1Char('<'));
    }

    void note(const QStringRef &name, const QStringRef &value, Range range)
    {
        const int colon = name.indexOf(QLatin1Char(':'));
        if (colon < 0)
            return;
        const QStringRef localName = name.mid(colon + 1);
        if (name.startsWith(declarationPrefix)) {
            if (value == schemaInstanceNamespace)
                m_schemaPrefixes.insert(localName);
        } else if (localName == QLatin1String("schemaLocation")
                   || localName == QLatin1String("noNamespaceSchemaLocation")) {
            m_hints.push_back({name.left(colon), range});
        }
    }

    const QString &m_text;
    const int m_maximumAttributes;
    int m_position = 0;
    QSet<QStringRef> m_schemaPrefixes;
    std::vector<Hint> m_hints;
    Result m_result;
};

} // namespace

Result scan(const QString &text, int maximumAttributes)
{
    return Scanner(text, maximumAttributes).run();
}

} // namespace CUI::XmlTagScan
