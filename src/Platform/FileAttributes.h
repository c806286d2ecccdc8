#pragma once

#include <QString>
#include <QtGlobal>

#include <optional>

namespace CUI {

/// What systems record about files in ways of their own.
namespace FileAttributes {

/// True only when the file exists and carries the read-only attribute. Where the system has no such
/// attribute, the missing write permission of the owner plays its part, whoever runs the process.
bool isReadOnly(const QString &path);

/// Sets that attribute and keeps all others. False when the system refuses.
bool setReadOnly(const QString &path);

/// Identifies the state of a file's contents without reading them.
struct Stamp {
    quint64 volume = 0;
    quint64 file = 0;
    qint64 size = 0;
    qint64 written = 0; ///< time of the last write, in nanoseconds
    qint64 changed = 0; ///< time of the last change of contents or attributes, in nanoseconds
};

inline bool operator==(const Stamp &a, const Stamp &b)
{
    return a.volume == b.volume && a.file == b.file && a.size == b.size && a.written == b.written
           && a.changed == b.changed;
}

/// The stamp of the regular file at @p path, links followed; nothing when there is none.
std::optional<Stamp> stampOf(const QString &path);

} // namespace FileAttributes
} // namespace CUI
