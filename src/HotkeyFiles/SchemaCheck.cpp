#include "SchemaCheck.h"

#include "XmlErrorMessageHandler.h"
#include "XmlScreening.h"

#include <QBuffer>
#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QUrl>
#include <QXmlSchema>
#include <QXmlSchemaValidator>

#include <algorithm>
#include <map>
#include <memory>
#include <optional>
#include <utility>

// Outside of any namespace, since the name of the resource is declared where it is used.
static QString shippedSchemaDirectory()
{
    Q_INIT_RESOURCE(UiCustomizationsSchemas);
    return QStringLiteral(":/UiCustomizations/schemas");
}

namespace CUI::SchemaCheck {

namespace {

// The schema keeps every name that a document checked against it has used, and has room for 4095.
constexpr std::size_t maximumNamesOfSchema = 2000;

XmlError errorOf(const XmlErrorMessageHandler &handler)
{
    return {handler.description(), handler.sourceLocation().line(),
            handler.sourceLocation().column(), 0};
}

// In the schemas of this library any number of elements stand under the root, and whether one is
// valid depends on no other. The host may put schemas of its own beside its executable, of which
// nothing is known.
bool isShipped(const QByteArray &source)
{
    const QFileInfoList files = QDir(shippedSchemaDirectory()).entryInfoList();
    return std::any_of(files.begin(), files.end(), [&](const QFileInfo &info) {
        QFile file(info.filePath());
        return file.open(QIODevice::ReadOnly) && file.readAll() == source;
    });
}

class CompiledSchema
{
public:
    CompiledSchema(const QByteArray &source, const QUrl &url)
        : m_source(source), m_url(url), m_judgesChildrenAlone(isShipped(source))
    {
        compile();
    }

    bool isCompiledFrom(const QByteArray &source) const { return source == m_source; }

    std::optional<XmlError> validate(const XmlScreening::Result &screened, const QUrl &documentUrl)
    {
        rememberNames(screened.names);
        if (!m_schema->isValid())
            return m_error;
        // What is wrong, and where, only the whole document tells.
        if (m_judgesChildrenAlone && arePiecesValid(screened.pieces, documentUrl))
            return {};
        XmlErrorMessageHandler handler;
        if (isValid(screened.document, documentUrl, handler))
            return {};
        return errorOf(handler);
    }

    static int compilations;

private:
    bool isValid(const QByteArray &document, const QUrl &url, XmlErrorMessageHandler &handler) const
    {
        QXmlSchemaValidator validator(*m_schema);
        validator.setMessageHandler(&handler);
        QBuffer buffer;
        buffer.setData(document);
        buffer.open(QIODevice::ReadOnly);
        return validator.validate(&buffer, url);
    }

    // The processor builds a tree of what it validates and gets slower as the tree outgrows the
    // processor's caches, so that a large document takes less time in pieces.
    bool arePiecesValid(const XmlPieces &pieces, const QUrl &url) const
    {
        for (int i = 0; i < pieces.count(); ++i) {
            XmlErrorMessageHandler handler;
            if (!isValid(pieces.at(i), url, handler))
                return false;
        }
        return !pieces.isEmpty();
    }

    void compile()
    {
        ++compilations;
        XmlErrorMessageHandler handler;
        m_schema = std::make_unique<QXmlSchema>();
        m_schema->setMessageHandler(&handler);
        m_schema->load(m_source, m_url);
        m_schema->setMessageHandler(nullptr);
        m_error = errorOf(handler);
    }

    void rememberNames(const std::set<QString, std::less<>> &names)
    {
        m_names.insert(names.begin(), names.end());
        if (m_names.size() <= maximumNamesOfSchema)
            return;
        compile();
        m_names = names;
    }

    QByteArray m_source;
    QUrl m_url;
    bool m_judgesChildrenAlone = false;
    std::unique_ptr<QXmlSchema> m_schema;
    XmlError m_error;
    std::set<QString, std::less<>> m_names;
};

int CompiledSchema::compilations = 0;

using Schemas = std::map<QString, CompiledSchema>;

// Emptied with the application object: the processor's own statics may not outlive it.
Schemas &schemas()
{
    static Schemas cache;
    static const bool registered = (qAddPostRoutine([] { cache.clear(); }), true);
    Q_UNUSED(registered)
    return cache;
}

CompiledSchema &schemaFor(const QString &path, const QByteArray &source)
{
    const auto known = schemas().find(path);
    if (known != schemas().end() && known->second.isCompiledFrom(source))
        return known->second;
    // Comparing the source costs little beside a check, and never misses a change.
    const auto added =
            schemas().insert_or_assign(path, CompiledSchema(source, QUrl::fromLocalFile(path)));
    return added.first->second;
}

// Whole regular files only: reading a pipe or a device might never end. One byte more than is
// processed tells the screening that there was more.
std::optional<QByteArray> contentsOf(const QString &path)
{
    QFile file(path);
    if (!QFileInfo(path).isFile() || !file.open(QIODevice::ReadOnly))
        return {};
    return file.read(std::min<qint64>(file.size(), XmlScreening::maximumSize) + 1);
}

} // namespace

Result check(const QString &path, const QString &schemaPath)
{
    const std::optional<QByteArray> document = contentsOf(path);
    if (!document)
        return {};
    const std::optional<QByteArray> source = contentsOf(schemaPath);
    if (!source)
        return {};
    const XmlScreening::Result screened = XmlScreening::screen(*document);
    CompiledSchema &schema = schemaFor(schemaPath, *source);
    const std::optional<XmlError> error =
            screened.refusal ? screened.refusal
                             : schema.validate(screened, QUrl::fromLocalFile(path));
    if (error)
        return {Verdict::Invalid, *error};
    return {Verdict::Valid, {}};
}

int compilationCount()
{
    return CompiledSchema::compilations;
}

} // namespace CUI::SchemaCheck
