#include "WholeFile.h"

#include "LazyLog.h"

#include <QFileInfo>
#include <QSaveFile>
#include <QStorageInfo>

namespace CUI {

namespace {

// The file has no buffer: what cannot be written must not be in the way of what follows.
bool overwrite(QFile &file, const QByteArray &contents)
{
    return file.seek(0) && file.write(contents) == contents.size() && file.resize(contents.size());
}

} // namespace

WholeFile::WholeFile(const QString &path)
    : m_path(path), m_replacement(std::make_unique<QSaveFile>(path))
{
}

WholeFile::~WholeFile() = default;

QString WholeFile::save(const QString &path, const QByteArray &contents)
{
    WholeFile file(path);
    return file.open() && file.write(contents) ? QString() : file.errorString();
}

bool WholeFile::open()
{
    if (m_replacement->open(QIODevice::WriteOnly))
        return true;
    m_error = m_replacement->errorString();
    const QFileInfo file(m_path);
    return file.isFile() && file.isWritable() && !QFileInfo(file.path()).isWritable();
}

bool WholeFile::write(const QByteArray &contents)
{
    if (!m_replacement->isOpen())
        return writeInPlace(contents);
    // commit() alone does not notice that the last buffered bytes could not be written, and would
    // put a cut-off file in the place of the old one.
    if (m_replacement->write(contents) == contents.size() && m_replacement->flush()
        && m_replacement->commit())
        return true;
    m_error = m_replacement->errorString();
    // All bytes were written, but the directory does not let the old file go.
    return m_replacement->error() == QFileDevice::RenameError && writeInPlace(contents);
}

bool WholeFile::writeInPlace(const QByteArray &contents)
{
    QFile file(m_path);
    // Not truncated: the old bytes make room for the new ones, and for themselves once more.
    if (!QFileInfo(m_path).isFile() || !file.open(QIODevice::ReadWrite | QIODevice::Unbuffered)) {
        m_error = file.errorString();
        return false;
    }
    const QByteArray old = file.readAll();
    if (old.size() != file.size()
        || QStorageInfo(m_path).bytesAvailable() < contents.size() - old.size()) {
        m_error = QStringLiteral("There is not enough room.");
        return false;
    }
    if (!overwrite(file, contents)) {
        m_error = file.errorString();
        file.unsetError();
        overwrite(file, old);
        return false;
    }
    logLazily(QvelMessageLog::Warning, [this] {
        return QStringLiteral("'%1' could not be replaced and was written in place; the save was "
                              "not atomic.")
                .arg(m_path);
    });
    return true;
}

} // namespace CUI
