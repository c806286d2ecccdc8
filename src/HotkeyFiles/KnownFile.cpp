#include "KnownFile.h"

#include <QCryptographicHash>
#include <QFile>
#include <QFileInfo>

namespace CUI {

namespace {

/// No hotkey file is larger, and reading more would take long.
constexpr qint64 maximumSize = 64 * 1024 * 1024;

QByteArray digestOf(const QByteArray &contents)
{
    return QCryptographicHash::hash(contents, QCryptographicHash::Sha256);
}

} // namespace

KnownFile::KnownFile(const QString &path) : m_path(path)
{
    QFile file(path);
    // Opening a pipe would wait for somebody to write to it.
    if (QFileInfo(path).isFile() && file.open(QIODevice::ReadOnly))
        m_digest = digestOf(file.read(maximumSize + 1));
}

KnownFile::KnownFile(const QString &path, const QByteArray &contents)
    : m_path(path), m_digest(digestOf(contents))
{
}

} // namespace CUI
