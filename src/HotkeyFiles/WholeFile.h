#pragma once

#include "UiCustomizationsExport.h"

#include <QString>

#include <memory>

class QSaveFile;

namespace CUI {

/// Replaces a file atomically: it has either all of the new contents or the old ones.
///
/// Where the directory does not let the file be replaced, though the file itself can be written (a
/// directory without write permission, a file that is a mount point), it is written in place as a
/// last resort. The log then has a warning, since a crash in between would leave it half written.
class CUI_CORE_EXPORT WholeFile
{
    Q_DISABLE_COPY(WholeFile)

public:
    /// Nothing is opened or written yet. @p path is a local file path.
    explicit WholeFile(const QString &path);
    ~WholeFile();

    /// Opens and writes the file @p path. Returns why that has failed, or an empty text.
    static QString save(const QString &path, const QByteArray &contents);

    /// False when the file can be neither replaced nor written in place.
    bool open();

    /// Replaces what the file holds; needs an open(), and can be called once. False, with the old
    /// contents kept, when not all of it could be written.
    bool write(const QByteArray &contents);

    /// Why open() or write() has failed.
    QString errorString() const { return m_error; }

private:
    bool writeInPlace(const QByteArray &contents);

    QString m_path;
    std::unique_ptr<QSaveFile> m_replacement;
    QString m_error;
};

} // namespace CUI
