#include "RegularFile.h"

#include <QFile>
#include <QFileInfo>

#include <algorithm>

namespace CUI::RegularFile {

std::optional<QByteArray> read(const QString &path, qint64 maximumSize)
{
    QFile file(path);
    // Opening a pipe would wait for somebody to write to it.
    if (!QFileInfo(path).isFile() || !file.open(QIODevice::ReadOnly))
        return {};
    // Asked for more, the device would make room for all of it.
    return file.read(std::min(file.size(), maximumSize) + 1);
}

} // namespace CUI::RegularFile
