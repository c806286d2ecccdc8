#pragma once

#include "XmlError.h"

#include <QString>

#include <optional>

class QUrl;

namespace CUI {

class XmlDocument;

/// Checks documents against schemas.
namespace SchemaCheck {

struct Result {
    bool isValid = false;
    /// What is wrong with the document or the schema; nothing when there is no schema to read.
    std::optional<XmlError> error;
};

/// Checks @p document against the schema at @p schemaPath. A schema is compiled at its first use in
/// the process, and again when the contents of its file (not of files that it includes) have
/// changed. The document makes the check neither read another file nor open a connection; its own
/// place, @p url, only stands in messages.
Result check(const XmlDocument &document, const QUrl &url, const QString &schemaPath);

/// How often a schema has been compiled in this process: what keeping them compiled is measured by.
int compilationCount();

} // namespace SchemaCheck
} // namespace CUI
