#pragma once

#include <QByteArray>
#include <QString>

#include <optional>

namespace CUI {

/// What a file held at some moment. Two of them are equal when the path and the contents are:
/// times, sizes and the kind of link say nothing.
class KnownFile
{
public:
    /// No file at all.
    KnownFile() = default;
    /// Reads the file. Everything that is no regular file, or cannot be read, counts as missing.
    explicit KnownFile(const QString &path);
    /// The file with these contents, or a missing one.
    KnownFile(const QString &path, const std::optional<QByteArray> &contents);

    const QString &path() const { return m_path; }
    bool isMissing() const { return m_digest.isNull(); }

    friend bool operator==(const KnownFile &a, const KnownFile &b)
    {
        return a.m_path == b.m_path && a.m_digest == b.m_digest;
    }
    friend bool operator!=(const KnownFile &a, const KnownFile &b) { return !(a == b); }

private:
    QString m_path;
    QByteArray m_digest;
};

} // namespace CUI
