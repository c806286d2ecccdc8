#pragma once

#include <QString>

namespace CUI {

/// The file browser of the user's desktop.
namespace FileBrowser {

/// Shows the folder of @p path with the file itself selected, where the desktop can do that.
///
/// Returns at once, before anything is shown. @p path names a file that exists; separators are
/// slashes. Without a file browser on the desktop nothing is shown and no error is reported.
void showFile(const QString &path);

} // namespace FileBrowser
} // namespace CUI
