#pragma once

#include <QString>
#include <QStringList>

namespace HotkeyCtl {

/// @p text on one line: control characters, which could end the line or steer the terminal, stand
/// there as \n, \r, \t or \u001b.
QString printable(const QString &text);

/// How many columns of a terminal @p text takes: two for East Asian wide characters and emoji, none
/// for combining ones.
int displayWidth(const QString &text);

/// The rows with their columns aligned, two blanks between them and none at the end of a line.
QString alignedTable(const QList<QStringList> &rows);

/// @p text as a JSON string, quotation marks included.
QString jsonString(const QString &text);

/// The texts as a JSON array of strings.
QString jsonArray(const QStringList &texts);

/// The JSON objects as an array, one a line. (QJsonDocument would sort their keys.)
QString jsonLines(const QStringList &objects);

/// true or false, as JSON spells them.
QString boolText(bool value);

/// One CSV record (RFC 4180), line break included.
QString csvRecord(const QStringList &fields);

} // namespace HotkeyCtl
