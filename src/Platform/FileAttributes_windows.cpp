#include "FileAttributes.h"

#include <QDir>

#include <qt_windows.h>

namespace CUI::FileAttributes {

namespace {

std::wstring nativePath(const QString &path)
{
    return QDir::toNativeSeparators(path).toStdWString();
}

/// An open file that is closed at the end of the scope.
class FileHandle
{
    Q_DISABLE_COPY(FileHandle)

public:
    explicit FileHandle(const QString &path)
        : m_handle(CreateFileW(nativePath(path).c_str(), FILE_READ_ATTRIBUTES,
                               FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE, nullptr,
                               OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL, nullptr))
    {
    }
    ~FileHandle()
    {
        if (isOpen())
            CloseHandle(m_handle);
    }
    bool isOpen() const { return m_handle != INVALID_HANDLE_VALUE; }
    HANDLE get() const { return m_handle; }

private:
    HANDLE m_handle;
};

quint64 joined(DWORD high, DWORD low)
{
    return quint64{high} << 32U | low;
}

} // namespace

bool isReadOnly(const QString &path)
{
    const DWORD attributes = GetFileAttributesW(nativePath(path).c_str());
    return attributes != INVALID_FILE_ATTRIBUTES && (attributes & FILE_ATTRIBUTE_READONLY) != 0;
}

bool setReadOnly(const QString &path)
{
    const std::wstring native = nativePath(path);
    const DWORD attributes = GetFileAttributesW(native.c_str());
    return attributes != INVALID_FILE_ATTRIBUTES
           && SetFileAttributesW(native.c_str(), attributes | FILE_ATTRIBUTE_READONLY) != 0;
}

std::optional<Stamp> stampOf(const QString &path)
{
    const FileHandle file(path);
    BY_HANDLE_FILE_INFORMATION information;
    FILE_BASIC_INFO times;
    if (!file.isOpen() || GetFileInformationByHandle(file.get(), &information) == 0
        || (information.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY) != 0
        || GetFileInformationByHandleEx(file.get(), FileBasicInfo, &times, sizeof times) == 0)
        return {};
    constexpr qint64 nanosecondsPerTick = 100;
    // Ticks since 1601 do not fit as nanoseconds; only differences matter, so they may wrap.
    const auto inNanoseconds = [](const LARGE_INTEGER &ticks) {
        return static_cast<qint64>(static_cast<quint64>(ticks.QuadPart) * nanosecondsPerTick);
    };
    return Stamp{information.dwVolumeSerialNumber,
                 joined(information.nFileIndexHigh, information.nFileIndexLow),
                 static_cast<qint64>(joined(information.nFileSizeHigh, information.nFileSizeLow)),
                 inNanoseconds(times.LastWriteTime), inNanoseconds(times.ChangeTime)};
}

} // namespace CUI::FileAttributes
