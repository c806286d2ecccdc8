#pragma once

#include <QAbstractMessageHandler>
#include <QSourceLocation>
#include <QString>

namespace CUI {

/// Keeps the last message of the schema processor, as plain text, and the place it points to.
class XmlErrorMessageHandler : public QAbstractMessageHandler
{
public:
    QString description() const { return m_description; }
    QSourceLocation sourceLocation() const { return m_sourceLocation; }

protected:
    void handleMessage(QtMsgType type, const QString &description, const QUrl &identifier,
                       const QSourceLocation &sourceLocation) override;

private:
    QString m_description;
    QSourceLocation m_sourceLocation;
};

} // namespace CUI
