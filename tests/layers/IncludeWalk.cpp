#include "IncludeWalk.h"

#include "Text.h"

#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QFileInfo>
#include <QHash>
#include <QRegularExpression>

namespace CUI {

namespace {

const QString libraryPrefix = s("UiCustomizations/");

/// One preprocessor directive, continuation lines joined, comments gone.
struct Directive {
    int line = 0;
    /// From the character after '#', trimmed.
    QString text;
};

/// A source without its comments and raw strings, keeping every line break, so that line numbers
/// stay true.
QString stripped(const QString &source)
{
    // Comments and raw strings are the first group. The other literals are there to be stepped
    // over; a quote after a digit separates digits, and an R after a letter ends a name.
    static const QRegularExpression literal(
            QStringLiteral(R"re((//[^\n]*|/\*.*?(?:\*/|\z)|(?<!\w)R"([^(]*)\(.*?(?:\)\2"|\z)))re"
                           R"re(|"(?:\\.|[^"\\\n])*+"?|(?<!\w)'(?:\\.|[^'\\\n])*+'?)re"),
            QRegularExpression::DotMatchesEverythingOption);
    QString result;
    int end = 0;
    for (auto matches = literal.globalMatch(source); matches.hasNext();) {
        const QRegularExpressionMatch match = matches.next();
        result += source.midRef(end, match.capturedStart() - end);
        const QString hidden = match.captured(1);
        result += hidden.isEmpty()
                          ? match.captured()
                          : QLatin1Char(' ')
                                    + QString(hidden.count(QLatin1Char('\n')), QLatin1Char('\n'));
        end = match.capturedEnd();
    }
    return result + source.midRef(end);
}

QVector<Directive> directivesOf(const QString &source)
{
    const QStringList lines = stripped(source).split(QLatin1Char('\n'));
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

/// An include line of one walked file that leads to another walked file.
struct Arrow {
    int line;
    QString target;
};

class Walk
{
public:
    Walk(const QString &root, const QStringList &folders, const LayerRules &rules)
        : m_root(root), m_rules(rules)
    {
        for (const QString &folder : folders)
            collect(folder);
        m_result.files.sort();
    }

    WalkResult run()
    {
        for (const QString &file : qAsConst(m_result.files)) {
            if (layerOf(file) == 0)
                report(file, 0, s("has no place in the table of layers"));
            for (const Directive &directive : directivesOf(read(file)))
                check(file, directive);
        }
        for (const QString &file : qAsConst(m_result.files))
            searchCircle(file);
        return m_result;
    }

private:
    void collect(const QString &folder)
    {
        QDirIterator files(m_root.filePath(folder), {s("*.h"), s("*.cpp")}, QDir::Files,
                           QDirIterator::Subdirectories);
        while (files.hasNext()) {
            const QString file = m_root.relativeFilePath(files.next());
            m_result.files.append(file);
            m_byName.insert(QFileInfo(file).fileName(), file);
        }
    }

    QString read(const QString &file)
    {
        QFile device(m_root.filePath(file));
        if (!device.open(QIODevice::ReadOnly))
            report(file, 0, s("cannot be read"));
        return QString::fromUtf8(device.readAll());
    }

    int layerOf(const QString &file) const
    {
        for (const LayerRule &rule : m_rules.layers) {
            const QRegularExpression pattern(
                    QRegularExpression::wildcardToRegularExpression(rule.pattern));
            if (pattern.match(file).hasMatch())
                return rule.layer;
        }
        return 0;
    }

    void check(const QString &file, const Directive &directive)
    {
        static const QRegularExpression include(s("^include\\s*(?:\"([^\"]+)\"|<([^>]+)>)"));
        static const QRegularExpression platform(
                s("^(?:if|ifdef|ifndef|elif)\\b.*?\\b("
                  "Q_OS_\\w+|_?WIN(?:32|64)|_WIN(?:32|64)|_MSC_VER|__MINGW\\w+"
                  "|__linux(?:__)?|__unix(?:__)?|__APPLE__|__ANDROID__)\\b"));

        const QRegularExpressionMatch included = include.match(directive.text);
        if (!included.captured(1).isEmpty())
            checkQuoted(file, directive.line, included.captured(1));
        else if (!included.captured(2).isEmpty())
            checkAngled(file, directive.line, included.captured(2));

        const QRegularExpressionMatch asked = platform.match(directive.text);
        if (asked.hasMatch() && !file.startsWith(m_rules.platformFolder)) {
            report(file, directive.line,
                   s("asks for %1 outside %2").arg(asked.captured(1), m_rules.platformFolder));
        }
    }

    void checkQuoted(const QString &file, int line, const QString &name)
    {
        const QString target = resolve(file, name);
        const bool isHost = layerOf(file) == m_rules.hostLayer;
        if (target.isEmpty()) {
            if (isHost || !m_rules.outsideHeaders.contains(name))
                report(file, line, s("includes \"%1\", which is not here").arg(name));
        } else if (isHost && layerOf(target) != m_rules.hostLayer) {
            report(file, line, s("includes %1 past the public headers").arg(target));
        } else {
            checkArrow(file, line, target);
        }
    }

    void checkAngled(const QString &file, int line, const QString &name)
    {
        // Qt's headers carry its Q; those of the standard library have no extension.
        static const QRegularExpression qtOrStandard(
                s("^(?:Qt?[A-Z]\\w*(?:/\\w+(?:\\.h)?)?|[a-z_]+)$"));

        const int layer = layerOf(file);
        if (name.startsWith(libraryPrefix)) {
            const QString target = resolve(file, name.mid(libraryPrefix.size()));
            if (target.isEmpty())
                report(file, line, s("includes <%1>, which is not here").arg(name));
            else
                checkArrow(file, line, target);
        } else if (layer < m_rules.firstWidgetLayer && isWidgetHeader(name)) {
            report(file, line,
                   s("includes the widget header <%1> in layer %2")
                           .arg(name, QString::number(layer)));
        } else if (layer == m_rules.hostLayer && !m_rules.outsideHeaders.contains(name)
                   && !qtOrStandard.match(name).hasMatch()) {
            report(file, line,
                   s("includes <%1>, which is neither public, Qt nor standard").arg(name));
        }
    }

    bool isWidgetHeader(const QString &name) const
    {
        const QString last = name.section(QLatin1Char('/'), -1);
        return name.startsWith(QLatin1String("QtWidgets")) || m_rules.widgetHeaders.contains(last);
    }

    void checkArrow(const QString &file, int line, const QString &target)
    {
        m_arrows[file].append({line, target});
        const int from = layerOf(file);
        const int to = layerOf(target);
        if (from != 0 && to > from) {
            report(file, line,
                   s("layer %1 includes %2 of layer %3")
                           .arg(QString::number(from), target, QString::number(to)));
        }
    }

    /// The walked file that the name leads to: beside the including one, else anywhere.
    QString resolve(const QString &file, const QString &name) const
    {
        const QString beside = QDir::cleanPath(QFileInfo(file).path() + QLatin1Char('/') + name);
        return m_result.files.contains(beside) ? beside : m_byName.value(name);
    }

    /// Depth first; a file met again while it is still on the path closes a circle.
    void searchCircle(const QString &file)
    {
        if (m_done.contains(file))
            return;
        m_path.append(file);
        for (const Arrow &arrow : m_arrows.value(file)) {
            const int start = m_path.indexOf(arrow.target);
            if (start >= 0) {
                const QStringList circle = m_path.mid(start) << arrow.target;
                report(file, arrow.line, s("closes the circle ") + circle.join(s(" > ")));
            } else {
                searchCircle(arrow.target);
            }
        }
        m_path.removeLast();
        m_done.insert(file);
    }

    void report(const QString &file, int line, const QString &what)
    {
        m_result.findings.append(s("%1:%2: %3").arg(file, QString::number(line), what));
    }

    QDir m_root;
    const LayerRules &m_rules;
    WalkResult m_result;
    QHash<QString, QString> m_byName;
    QHash<QString, QVector<Arrow>> m_arrows;
    QStringList m_path;
    QSet<QString> m_done;
};

} // namespace

WalkResult walkIncludes(const QString &root, const QStringList &folders, const LayerRules &rules)
{
    return Walk(root, folders, rules).run();
}

} // namespace CUI
