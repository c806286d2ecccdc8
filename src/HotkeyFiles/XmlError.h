#pragma once

#include <QString>
#include <QtGlobal>

namespace CUI {

/// What is wrong with an XML document, and where.
struct XmlError {
    QString text;
    qint64 line = 0; ///< counted from 1; 0 when the error has no place
    qint64 column = 0; ///< as the reader counts it
    qint64 offset = 0; ///< in characters from the start of the document
};

} // namespace CUI
