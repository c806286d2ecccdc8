#pragma once

#include <QNetworkAccessManager>

namespace CUI {

/// Refuses every request, also for local files, at once: nobody has to wait for the reply in an
/// event loop.
class NoNetworkAccess : public QNetworkAccessManager
{
protected:
    QNetworkReply *createRequest(Operation operation, const QNetworkRequest &request,
                                 QIODevice *data) override;
};

} // namespace CUI
