#include "FileBrowser.h"

#include <QDir>
#include <QProcess>
#include <QStringList>

namespace CUI::FileBrowser {

void showFile(const QString &path)
{
    QProcess::startDetached(QStringLiteral("explorer"),
                            {QStringLiteral("/select,"), QDir::toNativeSeparators(path)});
}

} // namespace CUI::FileBrowser
