#pragma once

#include <QString>

#include <optional>
#include <set>
#include <vector>

namespace CUI {

/// A look at the tags of an XML document before any reader builds something of them.
namespace XmlTagScan {

/// What a document may have.
struct Limits {
    int attributes = 0; ///< in one tag
    int nodes = 0; ///< elements, attributes, texts, comments and the like together
    int depth = 0; ///< of nested elements
    std::size_t names = 0; ///< different ones
};

/// A piece of the text.
struct Range {
    int start = 0;
    int length = 0;
};

struct Refusal {
    const char *reason = nullptr;
    int position = 0;
};

/// Names that can be looked up by a part of another text.
using Names = std::set<QString, std::less<>>;

struct Result {
    /// The first thing that exceeds a limit or is a document type declaration. The scan ends there.
    std::optional<Refusal> refusal;
    /// The attributes in which the document names a schema of its own.
    std::vector<Range> schemaHints;
    /// The names of elements and attributes and the targets of instructions, as they are written.
    Names names;
    /// True when a name has a prefix or a namespace is declared. The names are not all that there
    /// are then.
    bool hasNamespaces = false;
    /// The root's start tag, and the name in it.
    Range rootTag;
    Range rootName;
    /// Where the start tags of the root's children are, in ascending order.
    std::vector<int> rootChildren;
};

/// Scans @p text up to its end or to the first place where it is not well-formed; no reader comes
/// further than that.
Result scan(const QString &text, const Limits &limits);

} // namespace XmlTagScan
} // namespace CUI
