#include "TestHost.h"
#include "Text.h"

#include <UiCustomizations/QvelCustomizeDialogHelper.h>

#include <QDBusConnection>
#include <QDBusConnectionInterface>
#include <QDBusContext>
#include <QDBusMessage>
#include <QDesktopServices>
#include <QProcess>
#include <QStandardPaths>
#include <QUrl>
#include <QtTest>

using CUI::QvelCustomizeDialogHelper::showFileInFolder;

namespace {

// A bus that starts no services: the desktop's real file manager must stay out of this.
const char busConfiguration[] = R"(<busconfig>
<type>session</type><listen>unix:dir=%1</listen><auth>EXTERNAL</auth>
<policy context="default">
<allow send_destination="*" eavesdrop="true"/><allow eavesdrop="true"/><allow own="*"/>
</policy></busconfig>)";

const QString serviceName = s("org.freedesktop.FileManager1");

QString idOf(const QDBusConnection &bus)
{
    return bus.interface()->call(s("GetId")).arguments().value(0).toString();
}

enum Behaviour { Answers, Refuses, KeepsSilent, IsMissing };

} // namespace

Q_DECLARE_METATYPE(Behaviour)

/// Stands on the bus in the place of the desktop's file manager.
class FakeFileManager : public QObject, protected QDBusContext
{
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.FileManager1")

public:
    Behaviour behaviour = Answers;
    QStringList shown;

public Q_SLOTS:
    void ShowItems(const QStringList &uris, const QString &startupId)
    {
        shown << uris;
        if (!startupId.isEmpty())
            shown << startupId;
        if (behaviour == Refuses)
            sendErrorReply(QDBusError::AccessDenied);
        else if (behaviour == KeepsSilent)
            setDelayedReply(true);
    }
};

class TestFileBrowser : public QObject
{
    Q_OBJECT

public Q_SLOTS:
    void openUrl(const QUrl &url) { m_opened << url.toString(QUrl::FullyEncoded); }

private Q_SLOTS:
    void initTestCase();
    void init();
    void cleanupTestCase();

    void asksTheFileManager_data();
    void asksTheFileManager();
    void opensTheFolderInstead_data();
    void opensTheFolderInstead();

private:
    void startBus();

    TestHost m_host;
    const QString m_set = m_host.write(s("mine.hsx"), "x");
    const QString m_folder = s("file://") + QFileInfo(m_set).path();
    QProcess m_busDaemon;
    FakeFileManager m_fileManager;
    QStringList m_opened;
};

void TestFileBrowser::startBus()
{
    const QString configuration =
            m_host.write(s("bus.conf"), s(busConfiguration).arg(m_host.path(QString())).toUtf8());
    m_busDaemon.start(s("dbus-daemon"),
                      {s("--nofork"), s("--print-address"), s("--config-file=") + configuration});
    while (!m_busDaemon.canReadLine() && m_busDaemon.waitForReadyRead()) { }
    const QByteArray address = m_busDaemon.readLine().trimmed();
    QVERIFY(!address.isEmpty());

    qputenv("DBUS_SESSION_BUS_ADDRESS", address);
    QDBusConnection desktop =
            QDBusConnection::connectToBus(QString::fromLatin1(address), s("desktop"));
    QVERIFY(desktop.isConnected());
    // Had something in this process already connected to another session bus, it would be used.
    QCOMPARE(idOf(QDBusConnection::sessionBus()), idOf(desktop));
    QVERIFY(desktop.registerObject(s("/org/freedesktop/FileManager1"), &m_fileManager,
                                   QDBusConnection::ExportAllSlots));
}

void TestFileBrowser::initTestCase()
{
    if (QStandardPaths::findExecutable(s("dbus-daemon")).isEmpty())
        QSKIP("There is no dbus-daemon.");
    startBus();
    QDesktopServices::setUrlHandler(s("file"), this, "openUrl");
}

void TestFileBrowser::init()
{
    m_fileManager.behaviour = Answers;
    m_fileManager.shown.clear();
    m_opened.clear();
}

void TestFileBrowser::cleanupTestCase()
{
    QDesktopServices::unsetUrlHandler(s("file"));
    m_busDaemon.kill();
    m_busDaemon.waitForFinished();
}

void TestFileBrowser::asksTheFileManager_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<bool>("relative");
    QTest::addColumn<QString>("encoded");
    QTest::newRow("relative") << "mine.hsx" << true << "mine.hsx";
    QTest::newRow("what URLs reserve") << "a b#c%20?.hsx" << false << "a%20b%23c%2520%3F.hsx";
    QTest::newRow("not ASCII") << s("Täste.hsx") << false << "T%C3%A4ste.hsx";
}

void TestFileBrowser::asksTheFileManager()
{
    QFETCH(QString, name);
    QFETCH(bool, relative);
    QFETCH(QString, encoded);
    const QString path = m_host.write(name, "x");
    QVERIFY(QDir::setCurrent(m_host.path(QString())));
    QDBusConnection desktop(s("desktop"));
    QVERIFY(desktop.registerService(serviceName));

    showFileInFolder(relative ? name : path);
    QTRY_COMPARE(m_fileManager.shown, QStringList(m_folder + QLatin1Char('/') + encoded));
    QTest::qWait(100);
    QCOMPARE(m_opened, QStringList());
    QVERIFY(desktop.unregisterService(serviceName));
}

void TestFileBrowser::opensTheFolderInstead_data()
{
    QTest::addColumn<Behaviour>("behaviour");
    QTest::newRow("there is no file manager") << IsMissing;
    QTest::newRow("it refuses") << Refuses;
    QTest::newRow("it never answers") << KeepsSilent;
}

void TestFileBrowser::opensTheFolderInstead()
{
    QFETCH(Behaviour, behaviour);
    QDBusConnection desktop(s("desktop"));
    m_fileManager.behaviour = behaviour;
    QVERIFY(behaviour == IsMissing || desktop.registerService(serviceName));

    // The file manager runs in this thread: a call that waited for it would last until the timeout.
    QElapsedTimer time;
    time.start();
    showFileInFolder(m_set);
    QVERIFY(time.elapsed() < 1000);
    QCOMPARE(m_opened, QStringList());

    QTRY_COMPARE_WITH_TIMEOUT(m_opened, QStringList(m_folder), 20000);
    QCOMPARE(m_fileManager.shown.size(), behaviour == IsMissing ? 0 : 1);
    QVERIFY(behaviour == IsMissing || desktop.unregisterService(serviceName));
}

QTEST_MAIN(TestFileBrowser)
#include "tst_FileBrowser.moc"
