#include "KnownFile.h"

#include "RegularFile.h"
#include "XmlDocument.h"

#include <QCryptographicHash>

namespace CUI {

KnownFile::KnownFile(const QString &path)
    : KnownFile(path, RegularFile::read(path, XmlDocument::maximumSize))
{
}

KnownFile::KnownFile(const QString &path, const std::optional<QByteArray> &contents) : m_path(path)
{
    if (contents)
        m_digest = QCryptographicHash::hash(*contents, QCryptographicHash::Sha256);
}

} // namespace CUI
