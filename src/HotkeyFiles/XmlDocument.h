#pragma once

#include "XmlError.h"

#include <QByteArray>
#include <QString>

#include <functional>
#include <optional>
#include <set>

namespace CUI {

/// An XML document from a stranger that is safe for every reader in this library. Readers take
/// nothing else, so that no file reaches one in any other way.
///
/// The bytes are decoded once, and the schema processor and the codecs get the text encoded in
/// UTF-8, without an XML declaration that could make them read anything else. Documents are refused
/// that would exhaust the memory or the time, crash the processor, which builds the whole document
/// in memory and numbers its names in a few bits, or mean something beyond their own text.
class XmlDocument
{
public:
    /// Names that can be looked up by a part of another text.
    using Names = std::set<QString, std::less<>>;

    /// The largest document, in bytes, that is read at all.
    static constexpr qint64 maximumSize = 64 * 1024 * 1024;
    /// How many elements, attributes, comments, texts and the like a document may have together; a
    /// base file has five for each action.
    static constexpr int maximumNodes = 1000000;
    /// How deep elements may be nested.
    static constexpr int maximumDepth = 100;
    /// How many attributes one tag may have; the toolkit's reader compares each with all others.
    static constexpr int maximumAttributes = 200;
    /// How many different names, prefixes, namespaces and targets of processing instructions a
    /// document may use; the processor has room for 4095 names and 510 prefixes.
    static constexpr std::size_t maximumNames = 400;
    /// How long each of these may be; every element is compared with some of them.
    static constexpr int maximumNameLength = 1000;
    /// How many namespaces may be declared in one place, by the elements around it and its own;
    /// each element is compared with all of them.
    static constexpr int maximumNamespaces = 50;

    /// A document without any text.
    XmlDocument() = default;
    /// The document that a file with these @p bytes holds.
    explicit XmlDocument(const QByteArray &bytes);

    /// Why the document must not be processed; it has no text then. Documents that are not
    /// well-formed are not refused: every reader stops at the same place and says so itself.
    const std::optional<XmlError> &refusal() const { return m_refusal; }
    /// The text. Lines and columns in it are those of the file.
    const QByteArray &utf8() const { return m_utf8; }
    /// All names that the schema processor will number.
    const Names &names() const { return m_names; }

private:
    QByteArray m_utf8;
    Names m_names;
    std::optional<XmlError> m_refusal;
};

} // namespace CUI
