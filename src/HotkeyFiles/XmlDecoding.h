#pragma once

#include "XmlError.h"

#include <QString>

#include <optional>

class QByteArray;

namespace CUI {

/// The text of an XML document from a file of any encoding that the toolkit has a codec for.
namespace XmlDecoding {

struct Result {
    /// The whole text without byte order mark. Blanks stand in place of the XML declaration, so
    /// that nothing is decoded a second time and everything else keeps its line and column.
    QString text;
    /// Why there is no text: the bytes are not text in the encoding that the document declares, or
    /// that encoding is unknown or unsafe (UTF-7, UTF-32).
    std::optional<XmlError> error;
};

Result decode(const QByteArray &bytes);

/// @p reason at the place of the character @p position of @p text.
XmlError errorAt(const QString &reason, const QString &text, int position);

} // namespace XmlDecoding
} // namespace CUI
