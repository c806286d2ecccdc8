#include "RegularFile.h"

#include <QFile>
#include <QFileInfo>

namespace CUI::RegularFile {

std::optional<QByteArray> read(const QString &path, qint64 maximumSize)
{
    QFile file(path);
    // Opening a pipe would wait for somebody to write to it.
    if (!QFileInfo(path).isFile() || !file.open(QIODevice::ReadOnly))
        return {};
    return file.read(maximumSize + 1);
}

} // namespace CUI::RegularFile
