#pragma once

#include <QString>

#include <optional>
#include <vector>

namespace CUI {

/// A look at the tags of an XML document before any reader builds something of them.
namespace XmlTagScan {

/// A piece of the text.
struct Range {
    int start = 0;
    int length = 0;
};

struct Result {
    /// The attributes in which the document names a schema of its own.
    std::vector<Range> schemaHints;
    /// Where the first tag with more attributes than allowed starts.
    std::optional<int> overlongTag;
    /// Where a document type declaration starts.
    std::optional<int> documentType;
};

/// Scans @p text up to its end, to an overlong tag or a document type, or to the first place where
/// it is not well-formed; no reader comes further than that.
Result scan(const QString &text, int maximumAttributes);

} // namespace XmlTagScan
} // namespace CUI
