#include "NoNetworkAccess.h"

#include <QNetworkReply>
#include <QNetworkRequest>

namespace CUI {

namespace {

class RefusedReply : public QNetworkReply
{
public:
    RefusedReply(const QNetworkRequest &request, QNetworkAccessManager::Operation operation)
    {
        setRequest(request);
        setUrl(request.url());
        setOperation(operation);
        setError(ContentAccessDenied, QStringLiteral("Nothing may be fetched."));
        setFinished(true);
        open(ReadOnly);
    }
    void abort() override { }

protected:
    qint64 readData(char *, qint64) override { return -1; }
};

} // namespace

QNetworkReply *NoNetworkAccess::createRequest(Operation operation, const QNetworkRequest &request,
                                              QIODevice *)
{
    return new RefusedReply(request, operation);
}

} // namespace CUI
