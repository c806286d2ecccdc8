#include "OutputFile.h"

#include <UiCustomizations/Preset.h>

#include <QDir>
#include <QFileInfo>

namespace HotkeyCtl {

namespace {

bool liesBelow(const QString &path, const QString &directory)
{
    const QString root = QFileInfo(directory).canonicalFilePath();
    const QFileInfo info(path);
    const QString file =
            info.exists() ? info.canonicalFilePath()
                          : QFileInfo(info.absolutePath()).canonicalFilePath() + QLatin1Char('/');
    return !root.isEmpty() && file.startsWith(root + QLatin1Char('/'));
}

bool hasContents(const QString &path)
{
    return QFileInfo(path).size() > 0;
}

} // namespace

QString reasonAgainstPlace(const QString &path, const QString &presetDirectory)
{
    const QFileInfo info(path);
    if (!info.exists() && info.isSymLink())
        return QStringLiteral("it is a link that leads nowhere");
    if (info.exists() && !info.isFile())
        return QStringLiteral("it is not a regular file");
    if (!QFileInfo(info.absolutePath()).isDir())
        return QStringLiteral("its folder does not exist");
    if (liesBelow(path, presetDirectory))
        return QStringLiteral("the sets in its folder are shipped with the host");
    if (CUI::Preset::isFileReadOnly(path))
        return QStringLiteral("it is read-only");
    return {};
}

QString reasonAgainstReplacingSet(const QString &path, const QString &presetDirectory)
{
    QString reason = reasonAgainstPlace(path, presetDirectory);
    if (!reason.isEmpty() || !hasContents(path))
        return reason;
    bool locked = false;
    QString name;
    if (!CUI::QvelShortcutManager::peekPresetMetadata(path, locked, name))
        return QStringLiteral("it is not a hotkey set");
    return locked ? QStringLiteral("the set '%1' in it is locked").arg(name) : QString();
}

QString reasonAgainstReplacingBase(const QString &path, const QString &presetDirectory)
{
    QString reason = reasonAgainstPlace(path, presetDirectory);
    if (!reason.isEmpty() || !hasContents(path))
        return reason;
    return CUI::QvelShortcutManager::validateShortcuts(path)
                   ? QString()
                   : QStringLiteral("it is not a base hotkey file");
}

} // namespace HotkeyCtl
