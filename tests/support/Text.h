#pragma once

#include <QString>
#include <QStringList>

inline QString s(const char *text)
{
    return QString::fromUtf8(text);
}

/// The texts between the bars; none of an empty text.
inline QStringList list(const char *text)
{
    return s(text).isEmpty() ? QStringList() : s(text).split(QLatin1Char('|'));
}
