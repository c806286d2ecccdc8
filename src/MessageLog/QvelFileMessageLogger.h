#pragma once

#include "UiCustomizationsExport.h"

#include <QObject>
#include <QString>

#include <memory>

class QFile;
class QTextStream;

namespace CUI {

/// Writes log lines to the log file that the installed IPathManager names.
///
/// The host connects QvelMessageLog::messageLogged to logMessage().
class CUI_CORE_EXPORT QvelFileMessageLogger : public QObject
{
    Q_OBJECT

public:
    /// Asks the installed IPathManager for the path; the file is not touched yet. Without a path
    /// manager every line is lost silently.
    explicit QvelFileMessageLogger(QObject *parent = nullptr);
    ~QvelFileMessageLogger() override;

public Q_SLOTS:
    /// Writes @p line and a line break; both are on disk on return. The first line in the life of
    /// the object replaces what the file held before. A line that cannot be written is lost
    /// silently; the next one is tried again.
    void logMessage(const QString &line);

private:
    // The stream is destroyed before the file it writes to.
    std::unique_ptr<QFile> m_file;
    std::unique_ptr<QTextStream> m_stream;
};

} // namespace CUI
