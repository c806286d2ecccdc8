#include "FileBrowser.h"

#include <QCoreApplication>
#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusPendingCall>
#include <QDBusPendingCallWatcher>
#include <QDesktopServices>
#include <QFileInfo>
#include <QStringList>
#include <QUrl>

namespace CUI::FileBrowser {

namespace {

// Long enough for a file manager that has to be started first.
constexpr int answerTimeoutMs = 5000;

QDBusMessage showItemsCall(const QFileInfo &file)
{
    QDBusMessage call = QDBusMessage::createMethodCall(
            QStringLiteral("org.freedesktop.FileManager1"),
            QStringLiteral("/org/freedesktop/FileManager1"),
            QStringLiteral("org.freedesktop.FileManager1"), QStringLiteral("ShowItems"));
    const QUrl url = QUrl::fromLocalFile(file.absoluteFilePath());
    const QString startupId;
    call << QStringList(url.toString(QUrl::FullyEncoded)) << startupId;
    return call;
}

void openFolder(const QString &folder)
{
    QDesktopServices::openUrl(QUrl::fromLocalFile(folder));
}

} // namespace

void showFile(const QString &path)
{
    const QFileInfo file(path);
    const QString folder = file.absolutePath();
    const QDBusConnection bus = QDBusConnection::sessionBus();
    if (!bus.isConnected()) {
        openFolder(folder);
        return;
    }
    auto *answer = new QDBusPendingCallWatcher(bus.asyncCall(showItemsCall(file), answerTimeoutMs),
                                               QCoreApplication::instance());
    QObject::connect(answer, &QDBusPendingCallWatcher::finished, answer, [answer, folder] {
        if (answer->isError())
            openFolder(folder);
        answer->deleteLater();
    });
}

} // namespace CUI::FileBrowser
