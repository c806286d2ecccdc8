#include "SchemaCheck.h"

#include "XmlErrorMessageHandler.h"
#include "XmlScreening.h"

#include <QBuffer>
#include <QCoreApplication>
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

namespace CUI::SchemaCheck {

namespace {

// The schema keeps every name that a document checked against it has used, and has room for 4095.
constexpr std::size_t maximumNamesOfSchema = 2000;

XmlError errorOf(const XmlErrorMessageHandler &handler)
{
    return {handler.description(), handler.sourceLocation().line(),
            handler.sourceLocation().column(), 0};
}

class CompiledSchema
{
public:
    CompiledSchema(const QByteArray &source, const QUrl &url) : m_source(source), m_url(url)
    {
        compile();
    }

    bool isCompiledFrom(const QByteArray &source) const { return source == m_source; }

    std::optional<XmlError> validate(const XmlScreening::Result &screened, const QUrl &documentUrl)
    {
        rememberNames(screened.names);
        if (!m_schema->isValid())
            return m_error;
        XmlErrorMessageHandler handler;
        QXmlSchemaValidator validator(*m_schema);
        validator.setMessageHandler(&handler);
        QBuffer buffer;
        buffer.setData(screened.document);
        buffer.open(QIODevice::ReadOnly);
        if (validator.validate(&buffer, documentUrl))
            return {};
        return errorOf(handler);
    }

    static int compilations;

private:
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
