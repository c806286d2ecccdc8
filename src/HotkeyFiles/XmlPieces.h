#pragma once

#include "XmlTagScan.h"

#include <QByteArray>

#include <cstddef>
#include <vector>

namespace CUI {

/// Cuts a document with many elements under its root into small documents: each has what stands
/// before the root, the root's start tag, some of the root's children and the root's end. The
/// document is well-formed when all of them are.
class XmlPieces
{
public:
    /// No pieces.
    XmlPieces() = default;

    /// Cuts @p document, whose tags are @p tags, after every @p childrenInPiece children of the
    /// root. There are no pieces when it would be a single one, or when so much stands before the
    /// children that repeating it would cost more than is won.
    XmlPieces(const QByteArray &document, const XmlTagScan::Result &tags,
              std::size_t childrenInPiece = 1000);

    bool isEmpty() const { return m_cuts.empty(); }
    int count() const { return isEmpty() ? 0 : static_cast<int>(m_cuts.size()) + 1; }

    /// Piece @p i, from 0 to count() - 1.
    QByteArray at(int i) const;

private:
    QByteArray m_document;
    QByteArray m_rootEnd;
    int m_headSize = 0;
    std::vector<int> m_cuts;
};

} // namespace CUI
