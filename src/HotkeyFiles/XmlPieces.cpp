#include "XmlPieces.h"

namespace CUI {

namespace {

constexpr int maximumHeadSize = 4096;

} // namespace

XmlPieces::XmlPieces(const QByteArray &document, const XmlTagScan::Result &tags,
                     std::size_t childrenInPiece)
    : m_document(document),
      m_rootEnd("</" + document.mid(tags.rootName.start, tags.rootName.length) + '>'),
      m_headSize(tags.rootTag.start + tags.rootTag.length)
{
    if (m_headSize > maximumHeadSize)
        return;
    for (std::size_t i = childrenInPiece; i < tags.rootChildren.size(); i += childrenInPiece)
        m_cuts.push_back(tags.rootChildren[i]);
}

QByteArray XmlPieces::at(int i) const
{
    const auto index = static_cast<std::size_t>(i);
    const bool isLast = index == m_cuts.size();
    const int start = i == 0 ? m_headSize : m_cuts[index - 1];
    const int end = isLast ? m_document.size() : m_cuts[index];
    const QByteArray tail = isLast ? QByteArray() : m_rootEnd;
    QByteArray piece;
    piece.reserve(m_headSize + (end - start) + tail.size());
    piece.append(m_document.constData(), m_headSize);
    piece.append(m_document.constData() + start, end - start);
    return piece.append(tail);
}

} // namespace CUI
