#include "PresetMetadata.h"

#include "FileAttributes.h"
#include "HotkeyFileInput.h"
#include "HotkeySetFile.h"

#include <QDateTime>
#include <QFileInfo>
#include <QHash>

namespace CUI::PresetMetadata {

namespace {

using FileAttributes::Stamp;

struct CachedMetadata {
    Stamp file;
    Stamp schema;
    bool locked = false;
    QString name;
};

constexpr qint64 nanosecondsPerMillisecond = 1000000;
constexpr qint64 nanosecondsPerSecond = 1000 * nanosecondsPerMillisecond;

// Two writes within one tick of the file system's clock have the same time. So a result is only
// cached once that clock has advanced; a time without a fraction of a second may come from a file
// system that counts in steps of one or two seconds.
bool isSettled(const Stamp &stamp, qint64 now)
{
    const bool countsSeconds = stamp.changed % nanosecondsPerSecond == 0;
    const qint64 tick = countsSeconds ? 3 * nanosecondsPerSecond : 50 * nanosecondsPerMillisecond;
    return now - stamp.changed > tick;
}

qint64 nowInNanoseconds()
{
    return QDateTime::currentMSecsSinceEpoch() * nanosecondsPerMillisecond;
}

} // namespace

bool peek(const QString &path, bool &locked, QString &name)
{
    if (path.isEmpty())
        return false;
    HotkeyFileInput file(path);
    return peek(file, locked, name);
}

bool peek(HotkeyFileInput &file, bool &locked, QString &name)
{
    if (!file.validate(HotkeyFileInput::Kind::Set))
        return false;
    if (const auto metadata = HotkeySetFile::readMetadata(file.document())) {
        const QString &description = metadata->description;
        name = description.isEmpty() ? QFileInfo(file.path()).completeBaseName() : description;
        locked = metadata->locked;
    }
    return true;
}

bool peekCached(const QString &path, bool &locked, QString &name)
{
    static QHash<QString, CachedMetadata> cache;

    const qint64 now = nowInNanoseconds();
    const auto file = FileAttributes::stampOf(path);
    const auto schema =
            FileAttributes::stampOf(HotkeyFileInput::schemaPath(HotkeyFileInput::Kind::Set));
    const auto known = cache.constFind(path);
    if (known != cache.constEnd() && file && schema && *file == known->file
        && *schema == known->schema) {
        locked = known->locked;
        name = known->name;
        return QFileInfo(path).isReadable();
    }
    cache.remove(path);
    if (!peek(path, locked, name))
        return false;
    // Stamps taken before reading: a change in between shows at the next look.
    if (file && schema && isSettled(*file, now) && isSettled(*schema, now))
        cache.insert(path, {*file, *schema, locked, name});
    return true;
}

} // namespace CUI::PresetMetadata
