#include "FuzzSupport.h"
#include "XmlErrorMessageHandler.h"
#include "XmlScreening.h"

#include <QBuffer>
#include <QCoreApplication>
#include <QNetworkAccessManager>
#include <QUrl>
#include <QXmlSchema>
#include <QXmlSchemaValidator>

#include <memory>
#include <set>

namespace {

using namespace CUI;

/// The processor fetches whatever it wants to read, local files too, through an access manager.
class NoAccess : public QNetworkAccessManager
{
protected:
    QNetworkReply *createRequest(Operation, const QNetworkRequest &, QIODevice *) override
    {
        Fuzz::require(false, "a screened document makes the processor read nothing else");
        return nullptr;
    }
};

/// Checks documents as the library does: with a schema that is compiled once, and again before the
/// names of all documents so far are more than it has room for.
class Checker
{
public:
    explicit Checker(const QString &fileName)
        : m_url(QUrl::fromLocalFile(QCoreApplication::applicationDirPath() + QLatin1Char('/')
                                    + fileName))
    {
        compile();
    }

    void check(const XmlScreening::Result &screened)
    {
        m_names.insert(screened.names.begin(), screened.names.end());
        if (m_names.size() > maximumNames) {
            compile();
            m_names = screened.names;
        }
        const bool isWholeValid = isValid(screened.document);
        const XmlPieces pieces = smallestPiecesOf(screened.document);
        if (!pieces.isEmpty())
            Fuzz::require(areAllValid(pieces) == isWholeValid,
                          "a document is valid exactly when all its pieces are");
    }

private:
    static constexpr std::size_t maximumNames = 2000;

    static XmlPieces smallestPiecesOf(const QByteArray &document)
    {
        const QString text = QString::fromLatin1(document);
        // UTF-16, in which alone a zero byte gets here, is not cut.
        return document.contains('\0')
                       ? XmlPieces()
                       : XmlPieces(document, XmlTagScan::scan(text, {200, 1000000, 100, 400}), 1);
    }

    bool areAllValid(const XmlPieces &pieces)
    {
        for (int i = 0; i < pieces.count(); ++i) {
            if (!isValid(pieces.at(i)))
                return false;
        }
        return true;
    }

    bool isValid(const QByteArray &document)
    {
        XmlErrorMessageHandler handler;
        QXmlSchemaValidator validator(*m_schema);
        validator.setMessageHandler(&handler);
        validator.setNetworkAccessManager(&m_noAccess);
        QBuffer buffer;
        buffer.setData(document);
        buffer.open(QIODevice::ReadOnly);
        return validator.validate(&buffer, QUrl(QStringLiteral("file:///document.xml")));
    }

    void compile()
    {
        XmlErrorMessageHandler handler;
        m_schema = std::make_unique<QXmlSchema>();
        m_schema->setMessageHandler(&handler);
        m_schema->load(m_url);
        m_schema->setMessageHandler(nullptr);
        Fuzz::require(m_schema->isValid(), "the schema can be compiled");
    }

    QUrl m_url;
    NoAccess m_noAccess;
    std::unique_ptr<QXmlSchema> m_schema;
    std::set<QString, std::less<>> m_names;
};

void checkAll(const XmlScreening::Result &screened)
{
    static Checker checkers[] = {Checker(QStringLiteral("HotkeyMappingSchema.xsd")),
                                 Checker(QStringLiteral("HotkeyTransformationSchema.xsd")),
                                 Checker(QStringLiteral("LegacyKbdxSchema.xsd"))};
    for (Checker &checker : checkers)
        checker.check(screened);
}

} // namespace

extern "C" int LLVMFuzzerInitialize(int *argc, char ***argv)
{
    static QCoreApplication application(*argc, *argv);
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    const XmlScreening::Result screened = XmlScreening::screen(Fuzz::bytesOf(data, size));
    Fuzz::require(XmlScreening::screen(screened.document).document == screened.document,
                  "a screened document passes a second screening as it is");
    if (!screened.refusal)
        checkAll(screened);
    return 0;
}
