#pragma once

#include <QByteArray>
#include <QString>

#include <optional>

namespace CUI::RegularFile {

/// The contents of the regular file at @p path, links followed; nothing when there is none or it
/// cannot be opened. Pipes and devices, of which reading might never end, are not files. Of a file
/// of more than @p maximumSize bytes, only one byte more than that is read.
std::optional<QByteArray> read(const QString &path, qint64 maximumSize);

} // namespace CUI::RegularFile
