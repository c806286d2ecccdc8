#pragma once

#include "XmlError.h"
#include "XmlPieces.h"

#include <QByteArray>
#include <QString>

#include <optional>
#include <set>

namespace CUI {

/// Makes an XML document from a stranger safe to hand to the schema processor, which builds the
/// whole document in memory, numbers its names in a few bits, and fetches whatever the document
/// says its schema is.
namespace XmlScreening {

/// The largest document, in bytes, that is read at all.
constexpr qint64 maximumSize = 64 * 1024 * 1024;
/// How many elements, attributes, comments, texts and the like a document may have together; a base
/// file has five for each action.
constexpr int maximumNodes = 1000000;
/// How deep elements may be nested.
constexpr int maximumDepth = 100;
/// How many attributes one tag may have; the reader compares each with all others.
constexpr int maximumAttributes = 200;
/// How many different names, prefixes, namespaces and targets of processing instructions a document
/// may use; the processor has room for 4095 names and 510 prefixes.
constexpr std::size_t maximumNames = 400;

struct Result {
    /// The document without the attributes in which it names a schema of its own; these are blanked
    /// out, so that every other character keeps its line and column.
    QByteArray document;
    /// All names that the processor will number.
    std::set<QString, std::less<>> names;
    /// Why the document must not be processed. Documents that are not well-formed are not refused:
    /// the processor stops at the same place and says so itself.
    std::optional<XmlError> refusal;
    /// The document in small pieces; none when it is small, or when it cannot be cut.
    XmlPieces pieces;
};

Result screen(const QByteArray &document);

} // namespace XmlScreening
} // namespace CUI
