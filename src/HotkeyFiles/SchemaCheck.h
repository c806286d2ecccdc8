#pragma once

#include "XmlError.h"

#include <QString>

namespace CUI {

/// Checks hotkey files against their schemas.
namespace SchemaCheck {

enum class Verdict {
    Valid,
    Invalid, ///< the document does not follow the schema, or the schema is none
    Unreadable, ///< one of the two is not a file, or cannot be opened
};

struct Result {
    Verdict verdict = Verdict::Unreadable;
    XmlError error; ///< set when the verdict is Invalid
};

/// Checks the file at @p path against the schema at @p schemaPath. A schema is compiled at its
/// first use in the process, and again when the contents of its file (not of files that it
/// includes) have changed. The document
/// makes the check neither read another file nor open a connection.
Result check(const QString &path, const QString &schemaPath);

/// How often a schema has been compiled in this process: what keeping them compiled is measured by.
int compilationCount();

} // namespace SchemaCheck
} // namespace CUI
