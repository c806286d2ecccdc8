#include "QvelFileMessageLogger.h"

#include "InstalledPaths.h"

#include <QFile>
#include <QTextStream>

namespace CUI {

QvelFileMessageLogger::QvelFileMessageLogger(QObject *parent)
    : QObject(parent),
      m_file(std::make_unique<QFile>(installedPaths().getLogFilePath())),
      m_stream(std::make_unique<QTextStream>(m_file.get()))
{
}

QvelFileMessageLogger::~QvelFileMessageLogger() = default;

void QvelFileMessageLogger::logMessage(const QString &line)
{
    // Without a file, writing would only make the toolkit complain on the debug output.
    if (m_file->fileName().isEmpty())
        return;
    if (!m_file->isOpen() && !m_file->open(QIODevice::WriteOnly | QIODevice::Unbuffered))
        return;
    *m_stream << line << Qt::endl;
    m_stream->flush();
    // After a failure a stream writes nothing more and keeps every line; start afresh.
    if (m_stream->status() != QTextStream::Ok)
        m_stream = std::make_unique<QTextStream>(m_file.get());
}

} // namespace CUI
