#include "XmlTagScan.h"

#include <QSet>

#include <utility>

namespace CUI::XmlTagScan {

namespace {

const QLatin1String schemaInstanceNamespace("http://www.w3.org/2001/XMLSchema-instance");
const QLatin1String declaration("xmlns");
const QLatin1String declarationPrefix("xmlns:");

bool isSpace(QChar c)
{
    return c == QLatin1Char(' ') || c == QLatin1Char('\n') || c == QLatin1Char('\t')
           || c == QLatin1Char('\r');
}

bool endsName(QChar c)
{
    return isSpace(c) || c == QLatin1Char('=') || c == QLatin1Char('>') || c == QLatin1Char('/')
           || c == QLatin1Char('?') || c == QLatin1Char('<') || c == QLatin1Char('"')
           || c == QLatin1Char('\'');
}

class Scanner
{
public:
    Scanner(const QString &text, const Limits &limits) : m_text(text), m_limits(limits) { }

    Result run()
    {
        int end = 0;
        while (findNext(QLatin1Char('<'))) {
            const bool hasText = m_position > end;
            if (!count(hasText ? 2 : 1, m_position) || !skipMarkup())
                break;
            end = m_position;
        }
        // A prefix may be declared by a later attribute of the same tag.
        for (const Hint &hint : m_hints) {
            if (m_schemaPrefixes.contains(hint.prefix))
                m_result.schemaHints.push_back(hint.range);
        }
        return std::move(m_result);
    }

private:
    struct Hint {
        QStringRef prefix;
        Range range;
    };

    bool refuse(const char *reason, int position)
    {
        m_result.refusal = Refusal{reason, position};
        return false;
    }

    bool count(int nodes, int position)
    {
        m_nodes += nodes;
        return m_nodes <= m_limits.nodes || refuse("The document has too many elements.", position);
    }

    bool remember(const QStringRef &name, int position)
    {
        if (m_result.names.find(name) == m_result.names.end()) {
            m_result.names.insert(name.toString());
            m_result.hasNamespaces = m_result.hasNamespaces || name.contains(QLatin1Char(':'))
                                     || name == declaration;
        }
        return m_result.names.size() <= m_limits.names
               || refuse("The document has too many different names.", position);
    }

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

    bool isAt(char c) const
    {
        return m_position < m_text.size() && m_text.at(m_position) == QLatin1Char(c);
    }

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
        const int start = m_position;
        if (startsWith("<!--")) {
            m_position += 4; // the dashes of the start are not those of the end
            return skipPast("-->");
        }
        if (startsWith("<![CDATA["))
            return skipPast("]]>");
        if (startsWith("<!"))
            return refuse("A document type declaration is not allowed.", start);
        if (!startsWith("<?"))
            return skipTag();
        m_position += 2;
        return remember(takeName(), start) && skipPast("?>");
    }

    bool skipTag()
    {
        const int start = m_position++;
        const bool isEnd = isAt('/');
        if (isEnd)
            ++m_position;
        else if (++m_depth > m_limits.depth)
            return refuse("Elements are nested too deeply.", start);
        if (!remember(takeName(), start))
            return false;
        const bool isRoot = !isEnd && m_depth == 1 && m_result.rootTag.length == 0;
        if (isRoot)
            m_result.rootName = {start + 1, m_position - start - 1};
        else if (!isEnd && m_depth == 2)
            m_result.rootChildren.push_back(start);
        if (!skipAttributes(start, isEnd))
            return false;
        if (isRoot)
            m_result.rootTag = {start, m_position - start};
        return true;
    }

    // Up to the end of the tag that starts at tagStart.
    bool skipAttributes(int tagStart, bool isEnd)
    {
        for (int attributes = 0;; ++attributes) {
            skipSpaces();
            const bool isEmpty = isAt('/');
            if (isEmpty)
                ++m_position;
            if (isAt('>')) {
                if (isEnd || isEmpty)
                    --m_depth;
                ++m_position;
                return true;
            }
            if (attributes == m_limits.attributes)
                return refuse("A tag has too many attributes.", tagStart);
            if (!skipAttribute())
                return false;
        }
    }

    bool skipAttribute()
    {
        const int start = m_position;
        const QStringRef name = takeName();
        skipSpaces();
        if (name.isEmpty() || !isAt('='))
            return false;
        ++m_position;
        skipSpaces();
        if (!isAt('"') && !isAt('\''))
            return false;
        const QChar quote = m_text.at(m_position++);
        const int valueStart = m_position;
        if (!findNext(quote))
            return false;
        const QStringRef value = m_text.midRef(valueStart, m_position - valueStart);
        ++m_position;
        // Nothing may be noted of a place where readers stop: blanking it would let them go on.
        if (value.contains(QLatin1Char('<')) || !count(1, start) || !remember(name, start))
            return false;
        note(name, value, {start, m_position - start});
        return true;
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
    const Limits &m_limits;
    int m_position = 0;
    int m_depth = 0;
    int m_nodes = 0;
    QSet<QStringRef> m_schemaPrefixes;
    std::vector<Hint> m_hints;
    Result m_result;
};

} // namespace

Result scan(const QString &text, const Limits &limits)
{
    return Scanner(text, limits).run();
}

} // namespace CUI::XmlTagScan
