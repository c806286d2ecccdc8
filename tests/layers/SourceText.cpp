#include "SourceText.h"

#include <QStringList>

namespace CUI {

namespace {

/// Copies a source without its comments and without the insides of its raw strings, keeping every
/// line break, so that line numbers stay true.
class Stripper
{
public:
    explicit Stripper(const QString &source) : m_source(source) { }

    QString run()
    {
        while (m_at < m_source.size())
            step();
        return m_result;
    }

private:
    void step()
    {
        if (startsWith("//"))
            skip(endOfLineComment());
        else if (startsWith("/*"))
            skip(endOf(QStringLiteral("*/"), m_at + 2));
        else if (startsWith("R\"") && !continuesWord())
            skip(endOfRawString());
        else if (m_source.at(m_at) == QLatin1Char('"'))
            copyQuoted();
        else if (m_source.at(m_at) == QLatin1Char('\'') && !continuesWord())
            copyQuoted();
        else
            m_result += m_source.at(m_at++);
    }

    bool startsWith(const char *text) const
    {
        return m_source.midRef(m_at).startsWith(QLatin1String(text));
    }

    // A quote after a digit separates digits; an R after a letter ends a name.
    bool continuesWord() const
    {
        return m_at > 0
               && (m_source.at(m_at - 1).isLetterOrNumber()
                   || m_source.at(m_at - 1) == QLatin1Char('_'));
    }

    int endOf(const QString &mark, int from) const
    {
        const int found = m_source.indexOf(mark, from);
        return found < 0 ? m_source.size() : found + mark.size();
    }

    int endOfLineComment() const
    {
        const int found = m_source.indexOf(QLatin1Char('\n'), m_at);
        return found < 0 ? m_source.size() : found;
    }

    int endOfRawString() const
    {
        const int open = m_source.indexOf(QLatin1Char('('), m_at);
        if (open < 0)
            return m_source.size();
        const QString delimiter = m_source.mid(m_at + 2, open - m_at - 2);
        return endOf(QLatin1Char(')') + delimiter + QLatin1Char('"'), open);
    }

    void skip(int end)
    {
        m_result += QLatin1Char(' ');
        for (; m_at < end; ++m_at) {
            if (m_source.at(m_at) == QLatin1Char('\n'))
                m_result += QLatin1Char('\n');
        }
    }

    void copyQuoted()
    {
        const QChar quote = m_source.at(m_at);
        do {
            if (m_source.at(m_at) == QLatin1Char('\\') && m_at + 1 < m_source.size())
                m_result += m_source.at(m_at++);
            m_result += m_source.at(m_at++);
        } while (m_at < m_source.size() && m_source.at(m_at) != quote
                 && m_source.at(m_at) != QLatin1Char('\n'));
        if (m_at < m_source.size())
            m_result += m_source.at(m_at++);
    }

    const QString &m_source;
    QString m_result;
    int m_at = 0;
};

} // namespace

QVector<Directive> directivesOf(const QString &source)
{
    const QStringList lines = Stripper(source).run().split(QLatin1Char('\n'));
    QVector<Directive> directives;
    for (int i = 0; i < lines.size(); ++i) {
        QString text = lines.at(i).trimmed();
        if (!text.startsWith(QLatin1Char('#')))
            continue;
        const int line = i + 1;
        while (text.endsWith(QLatin1Char('\\')) && i + 1 < lines.size()) {
            text.chop(1);
            text += lines.at(++i).trimmed();
        }
        directives.append({line, text.mid(1).trimmed()});
    }
    return directives;
}

} // namespace CUI
