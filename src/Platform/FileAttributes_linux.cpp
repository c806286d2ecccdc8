#include "FileAttributes.h"

#include <QFile>

#include <sys/stat.h>

namespace CUI::FileAttributes {

namespace {

constexpr qint64 nanosecondsPerSecond = 1000000000;

bool readStatus(const QString &path, struct stat &status)
{
    return ::stat(QFile::encodeName(path).constData(), &status) == 0;
}

qint64 nanoseconds(const timespec &time)
{
    return qint64{time.tv_sec} * nanosecondsPerSecond + time.tv_nsec;
}

} // namespace

bool isReadOnly(const QString &path)
{
    struct stat status {
    };
    return readStatus(path, status) && (status.st_mode & S_IWUSR) == 0;
}

bool setReadOnly(const QString &path)
{
    struct stat status {
    };
    constexpr mode_t permissionBits = 07777;
    return readStatus(path, status)
           && ::chmod(QFile::encodeName(path).constData(),
                      status.st_mode & permissionBits & ~mode_t{S_IWUSR})
                      == 0;
}

std::optional<Stamp> stampOf(const QString &path)
{
    struct stat status {
    };
    if (!readStatus(path, status) || !S_ISREG(status.st_mode))
        return {};
    return Stamp{status.st_dev, status.st_ino, status.st_size, nanoseconds(status.st_mtim),
                 nanoseconds(status.st_ctim)};
}

} // namespace CUI::FileAttributes
