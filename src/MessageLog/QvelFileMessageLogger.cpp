#include "QvelFileMessageLogger.h"

#include "IPathManager.h"

#include <QFile>
#include <QTextStream>

namespace CUI {

namespace {

QString logFilePath()
{
    const IPathManager *paths = IPathManager::get();
    return paths == nullptr ? QString() : paths->getLogFilePath();
}

} // namespace

QvelFileMessageLogger::QvelFileMessageLogger(QObject *parent)
    : QObject(parent),
      m_file(std::make_unique<QFile>(logFilePath())),
      m_stream(std::make_unique<QTextStream>(m_file.get()))
{
}

QvelFileMessageLogger::~QvelFileMessageLogger() = default;

void QvelFileMessageLogger::logMessage(const QString &line)
{
    if (!m_file->isOpen())
        m_file->open(QIODevice::WriteOnly);
    if (!m_file->isOpen())
        return; // writing would only make the stream complain that it has no device
    *m_stream << line << Qt::endl;
    m_stream->flush();
}

} // namespace CUI
