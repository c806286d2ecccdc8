#include "SchemaCheck.h"

#include "NoNetworkAccess.h"
#include "RegularFile.h"
#include "XmlDocument.h"
#include "XmlErrorMessageHandler.h"

#include <QBuffer>
#include <QCoreApplication>
#include <QUrl>
#include <QXmlSchema>
#include <QXmlSchemaValidator>

#include <map>
#include <memory>

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

    std::optional<XmlError> validate(const XmlDocument &document, const QUrl &documentUrl)
    {
        rememberNames(document.names());
        if (!m_schema->isValid())
            return m_error;
        XmlErrorMessageHandler handler;
        QXmlSchemaValidator validator(*m_schema);
        validator.setMessageHandler(&handler);
        validator.setNetworkAccessManager(m_network.get());
        QBuffer buffer;
        buffer.setData(document.utf8());
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

    void rememberNames(const XmlDocument::Names &names)
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
    XmlDocument::Names m_names;
    std::unique_ptr<NoNetworkAccess> m_network = std::make_unique<NoNetworkAccess>();
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

} // namespace

Result check(const XmlDocument &document, const QUrl &url, const QString &schemaPath)
{
    const auto source = RegularFile::read(schemaPath, XmlDocument::maximumSize);
    if (!source)
        return {};
    const std::optional<XmlError> error =
            document.refusal() ? document.refusal()
                               : schemaFor(schemaPath, *source).validate(document, url);
    return {!error, error};
}

int compilationCount()
{
    return CompiledSchema::compilations;
}

} // namespace CUI::SchemaCheck
