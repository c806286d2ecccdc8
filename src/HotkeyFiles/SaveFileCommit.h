#pragma once

#include <QSaveFile>

namespace CUI {

/// QSaveFile::commit(), which by itself does not notice that the last buffered bytes could not be
/// written, and would put a cut-off file in the place of the old one.
inline bool commitWhole(QSaveFile &file)
{
    return file.flush() && file.commit();
}

} // namespace CUI
