#include "FileFault.h"

#include "Session.h"

#include <QFile>
#include <QFileInfo>

namespace HotkeyCtl {

QString faultOf(const QString &path, const Validation &validate, const Session &session)
{
    const int errorsBefore = session.log().errorCount();
    if (validate(path))
        return {};
    QFile file(path);
    // Opening a pipe would wait for somebody to write to it.
    if (QFileInfo(path).exists() && !QFileInfo(path).isFile())
        return QStringLiteral("cannot be opened: Is not a regular file");
    if (!file.open(QIODevice::ReadOnly))
        return QStringLiteral("cannot be opened: %1").arg(file.errorString());
    if (session.log().errorCount() == errorsBefore)
        return QStringLiteral("cannot be validated");
    // The log's last line has the fault and its place; the ones before it name the files.
    return QStringLiteral("not valid: %1")
            .arg(session.log().lastError().section(QLatin1Char('\n'), -1));
}

} // namespace HotkeyCtl
