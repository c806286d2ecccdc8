#include "FormatOption.h"

#include "Session.h"

#include <QCommandLineParser>

namespace HotkeyCtl {

QCommandLineOption formatOption()
{
    return {QStringLiteral("format"),
            QStringLiteral("text (if not given) or json (an array of objects)."),
            QStringLiteral("FORMAT"), QStringLiteral("text")};
}

std::optional<Format> formatOf(const QCommandLineParser &line, const Session &session)
{
    const QString format = line.value(QStringLiteral("format"));
    if (format == QLatin1String("text"))
        return Format::Text;
    if (format == QLatin1String("json"))
        return Format::Json;
    session.wrongUsage(QStringLiteral("--format takes text or json, not '%1'").arg(format));
    return {};
}

} // namespace HotkeyCtl
