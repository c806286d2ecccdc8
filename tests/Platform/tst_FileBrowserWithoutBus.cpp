#include "TestHost.h"
#include "Text.h"

#include <UiCustomizations/QvelCustomizeDialogHelper.h>

#include <QDBusConnection>
#include <QDesktopServices>
#include <QUrl>
#include <QtTest>

/// A process of its own: the connection to the session bus is made once, or not at all.
class TestFileBrowserWithoutBus : public QObject
{
    Q_OBJECT

public Q_SLOTS:
    void openUrl(const QUrl &url) { m_opened << url.toLocalFile(); }

private Q_SLOTS:
    void opensTheFolder();

private:
    QStringList m_opened;
};

void TestFileBrowserWithoutBus::opensTheFolder()
{
    const TestHost host;
    const QString path = host.write(s("mine.hsx"), "x");
    qputenv("DBUS_SESSION_BUS_ADDRESS", "unix:path=" + QFile::encodeName(host.path({})) + "/none");
    QVERIFY(!QDBusConnection::sessionBus().isConnected());
    QDesktopServices::setUrlHandler(s("file"), this, "openUrl");

    CUI::QvelCustomizeDialogHelper::showFileInFolder(path);
    QTRY_COMPARE(m_opened, QStringList(QFileInfo(path).path()));
    QDesktopServices::unsetUrlHandler(s("file"));
}

QTEST_MAIN(TestFileBrowserWithoutBus)
#include "tst_FileBrowserWithoutBus.moc"
