#include "XmlErrorMessageHandler.h"

#include <QRegularExpression>

namespace CUI {

void XmlErrorMessageHandler::handleMessage(QtMsgType, const QString &description, const QUrl &,
                                           const QSourceLocation &sourceLocation)
{
    // The processor marks its messages up as XHTML.
    static const QRegularExpression tags(QStringLiteral("<[^>]*>"));
    m_description = description;
    m_description.remove(tags);
    m_sourceLocation = sourceLocation;
}

} // namespace CUI
