#pragma once

#include <QByteArray>
#include <QString>

#include <vector>

namespace CUI {

/// A place in a document, for the tree that a viewer shows beside the pages.
struct PdfBookmark {
    int level = 0; ///< 0 at the top; at most one more than that of the bookmark before
    QString title;
    int page = 0; ///< from 0
    double top = 0.0; ///< from the page's lower edge, in points
};

/// The PDF document @p pdf, as QPdfWriter writes it, with the bookmarks, which that class cannot
/// write. They are appended as an update of the document, in the way that its format has for
/// changes. A document of another structure is returned as it is.
QByteArray withOutline(const QByteArray &pdf, const std::vector<PdfBookmark> &bookmarks);

} // namespace CUI
