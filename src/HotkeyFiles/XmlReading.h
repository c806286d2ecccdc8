#pragma once

#include "XmlError.h"

#include <optional>

class QString;
class QXmlStreamReader;

namespace CUI::XmlReading {

/// The text "This is not a valid <suffix> file." with which a wrong root element is reported.
QString wrongRootText(const QString &suffix);

/// The reader's error, or nothing when it has none.
std::optional<XmlError> errorOf(const QXmlStreamReader &reader);

/// True when every character of @p text can stand in an XML 1.0 document. A key sequence can hold
/// a control character, which cannot.
bool isXmlText(const QString &text);

/// @p text without the characters that an XML 1.0 document cannot hold.
QString xmlText(const QString &text);

} // namespace CUI::XmlReading
