#include "HostActionRegistry.h"
#include "SampleHost.h"

#include <UiCustomizations/QvelMessageLog.h>
#include <UiCustomizations/QvelShortcutManager.h>

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>
#include <QtTest>

using CUI::ConfigType;
using Host::SampleHost;

namespace {

const QByteArray catalogue = R"({"defaultSet": "Shipped.hsx",
  "contexts": [{"id": 1, "name": "Editing"}],
  "actions": [{"table": 2, "id": "undo", "name": "Undo", "context": 1, "category": "Edit",
               "accelerators": ["Ctrl+Z", "Alt+Backspace"]},
              {"table": 1, "id": "cut", "name": "Cut", "context": 1, "category": "Edit",
               "accelerators": ["Ctrl+X"]}]})";

const QByteArray emptySet = "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
                            "<VelHotkeyTransformations Locked=\"false\"/>\n";

} // namespace

class SampleHostTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void installsWhatTheShippedDirectoryHolds();
    void leavesAnotherHostInstalled();
    void saysWhyADirectoryIsOfNoUse_data();
    void saysWhyADirectoryIsOfNoUse();
    void startsWithTheDefaultSetAndLeavesNoTrace();
    void theCurrentSetSurvivesARestart_data();
    void theCurrentSetSurvivesARestart();
    void aSetThatIsGoneGivesWayUntilItIsBack();
    void inMemoryTheRecordStaysAsItWas();
    void warnsOfARecordThatCannotBeRead();
    void warnsOfARecordThatCannotBeWritten();

private:
    QString path(const QString &name) const { return m_folder->filePath(name); }
    QString write(const QString &name, const QByteArray &contents) const;
    /// A host of the temporary directory; its load() has worked.
    std::unique_ptr<SampleHost> start(
            Host::HostPathManager::Record record = Host::HostPathManager::Record::OnDisk) const;
    QString currentSet() const
    {
        return CUI::IPathManager::get()->getCurrentConfigurationFile(ConfigType::HotkeySet);
    }
    void setCurrentSet(const QString &file) const
    {
        CUI::IPathManager::get()->setCurrentConfigurationFile(ConfigType::HotkeySet, file);
    }

    std::unique_ptr<QTemporaryDir> m_folder;
    QStringList m_logged;
    QString m_defaultSet;
};

void SampleHostTest::init()
{
    m_folder = std::make_unique<QTemporaryDir>();
    m_logged.clear();
    connect(&CUI::QvelMessageLog::getInstance(), &CUI::QvelMessageLog::messageLogged, this,
            [this](const QString &line) { m_logged << line; });
    write(QStringLiteral("host/host.json"), catalogue);
    m_defaultSet = write(QStringLiteral("host/presets/Shipped.hsx"), emptySet);
}

void SampleHostTest::cleanup()
{
    CUI::QvelMessageLog::getInstance().disconnect(this);
}

QString SampleHostTest::write(const QString &name, const QByteArray &contents) const
{
    QDir().mkpath(QFileInfo(path(name)).path());
    QFile file(path(name));
    if (!file.open(QIODevice::WriteOnly) || file.write(contents) != contents.size())
        qFatal("cannot write %s", qPrintable(file.fileName()));
    return file.fileName();
}

std::unique_ptr<SampleHost> SampleHostTest::start(Host::HostPathManager::Record record) const
{
    auto host = std::make_unique<SampleHost>(path(QStringLiteral("host")),
                                             path(QStringLiteral("user")), record);
    if (!host->load())
        qFatal("%s", qPrintable(host->errorText()));
    return host;
}

void SampleHostTest::installsWhatTheShippedDirectoryHolds()
{
    const QDir directory(SampleHost::shippedDirectory());
    {
        SampleHost host(directory.path() + QLatin1Char('/'), path(QStringLiteral("user")));
        QVERIFY2(host.load(), qPrintable(host.errorText()));
        auto *registry = CUI::ICuiActionManager::get();
        const auto *paths = CUI::IPathManager::get();
        QCOMPARE(registry->actions().size(), host.catalogue().actions.size());
        QCOMPARE(registry->actionContexts().size(), std::size_t(16));
        const CUI::ActionIdentifier undo = {1, QStringLiteral("undo")};
        QCOMPARE(registry->getAction(undo)->name(), QStringLiteral("Undo"));
        QCOMPARE(paths->getBaseHotkeyFiles(),
                 QStringList({directory.filePath(QStringLiteral("base/10-velstudio.hsxb")),
                              directory.filePath(QStringLiteral("base/20-layout-extras.hsx"))}));
        QCOMPARE(currentSet(),
                 directory.filePath(QStringLiteral("presets/Velstudio Default Keyset.hsx")));
        QVERIFY(QFile::exists(paths->getLegacyHotkeyDirectory()
                              + QStringLiteral("/LegacyDefaultUI-2019.kbdx")));

        QSignalSpy triggered(host.registry(), &Host::HostActionRegistry::triggered);
        QVERIFY(registry->triggerAction(undo));
        QVERIFY(!registry->triggerAction({9, QStringLiteral("undo")}));
        QCOMPARE(triggered.count(), 1);
    }
    QVERIFY(CUI::ICuiActionManager::get() == nullptr);
    QVERIFY(CUI::IPathManager::get() == nullptr);
}

void SampleHostTest::leavesAnotherHostInstalled()
{
    auto first = start();
    const auto second = start();
    first.reset();
    QCOMPARE(CUI::ICuiActionManager::get(), second->registry());
    QCOMPARE(CUI::IPathManager::get(), second->paths());

    std::vector<std::pair<CUI::ActionIdentifier, QString>> accelerators;
    second->registry()->getDefaultAccelerators(nullptr, accelerators);
    QStringList inOrder;
    for (const auto &[identifier, hotkey] : accelerators)
        inOrder << identifier.toString() + QLatin1Char(' ') + hotkey;
    QCOMPARE(inOrder,
             QStringList({QStringLiteral("2-undo Ctrl+Z"), QStringLiteral("2-undo Alt+Backspace"),
                          QStringLiteral("1-cut Ctrl+X")}));
}

void SampleHostTest::saysWhyADirectoryIsOfNoUse_data()
{
    QTest::addColumn<QString>("removed");
    QTest::addColumn<QByteArray>("contents");
    QTest::addColumn<QString>("error");

    QTest::newRow("no directory") << QStringLiteral("host") << QByteArray()
                                  << QStringLiteral("/host: is not a directory");
    QTest::newRow("no catalogue") << QStringLiteral("host/host.json") << QByteArray()
                                  << QStringLiteral("/host/host.json: cannot be opened: ");
    QTest::newRow("malformed catalogue")
            << QStringLiteral("host/host.json") << QByteArray("{\n\"contexts\" 2}")
            << QStringLiteral("/host/host.json:2:13: missing name separator");
    QTest::newRow("no default set")
            << QStringLiteral("host/presets/Shipped.hsx") << QByteArray()
            << QStringLiteral("/host/host.json: defaultSet: there is no file ");
}

void SampleHostTest::saysWhyADirectoryIsOfNoUse()
{
    QFETCH(QString, removed);
    QFETCH(QByteArray, contents);
    QFETCH(QString, error);

    const QString victim = path(removed);
    QVERIFY(QFileInfo(victim).isDir() ? QDir(victim).removeRecursively() : QFile::remove(victim));
    if (!contents.isEmpty())
        write(removed, contents);
    SampleHost host(path(QStringLiteral("host")), path(QStringLiteral("user")));
    QVERIFY(!host.load());
    QVERIFY2(host.errorText().startsWith(m_folder->path() + error), qPrintable(host.errorText()));
    QVERIFY(CUI::ICuiActionManager::get() == nullptr);
    QVERIFY(CUI::IPathManager::get() == nullptr);
}

void SampleHostTest::startsWithTheDefaultSetAndLeavesNoTrace()
{
    const auto host = start();
    QCOMPARE(currentSet(), m_defaultSet);
    CUI::QvelShortcutManager store;
    store.loadCurrentShortcutConfiguration();
    QCOMPARE(store.getShortcutsFromActionId({1, QStringLiteral("cut")}), QStringLiteral("Ctrl+X"));
    QCOMPARE(currentSet(), m_defaultSet);
    QVERIFY(!QFile::exists(path(QStringLiteral("user"))));
    QVERIFY(host->paths()->createUserDirectory());
    QVERIFY(QFileInfo(path(QStringLiteral("user"))).isDir());
}

void SampleHostTest::theCurrentSetSurvivesARestart_data()
{
    QTest::addColumn<QString>("name");

    QTest::newRow("a file") << QStringLiteral("elsewhere/M\u00fcller's set.hsx");
    QTest::newRow("none") << QString();
}

void SampleHostTest::theCurrentSetSurvivesARestart()
{
    QFETCH(QString, name);

    const QString file = name.isEmpty() ? QString() : write(name, emptySet);
    auto host = start();
    // The working directory of the next start may be another one.
    setCurrentSet(file.isEmpty() ? file : QDir::current().relativeFilePath(file));
    QCOMPARE(currentSet(), file);
    host = start();
    QCOMPARE(currentSet(), file);
    QVERIFY(m_logged.isEmpty());
}

void SampleHostTest::aSetThatIsGoneGivesWayUntilItIsBack()
{
    const QString file = write(QStringLiteral("mine.hsx"), emptySet);
    auto host = start();
    setCurrentSet(file);
    QVERIFY(QFile::remove(file));
    host = start();
    QCOMPARE(currentSet(), m_defaultSet);
    CUI::QvelShortcutManager().loadCurrentShortcutConfiguration();
    write(QStringLiteral("mine.hsx"), emptySet);
    host = start();
    QCOMPARE(currentSet(), file);
}

void SampleHostTest::inMemoryTheRecordStaysAsItWas()
{
    const QString file = write(QStringLiteral("mine.hsx"), emptySet);
    auto host = start(Host::HostPathManager::Record::InMemory);
    setCurrentSet(file);
    QCOMPARE(currentSet(), file);
    QVERIFY(!QFile::exists(path(QStringLiteral("user"))));
    host = start();
    QCOMPARE(currentSet(), m_defaultSet);
}

void SampleHostTest::warnsOfARecordThatCannotBeRead()
{
    write(QStringLiteral("user/current.json"), "{\"hotkeySet\": \"/x");
    const auto host = start();
    QCOMPARE(currentSet(), m_defaultSet);
    QCOMPARE(m_logged.size(), 1);
    QVERIFY2(m_logged.constFirst().contains(path(QStringLiteral("user/current.json"))),
             qPrintable(m_logged.constFirst()));
}

void SampleHostTest::warnsOfARecordThatCannotBeWritten()
{
    // Not even root makes a directory below a file.
    write(QStringLiteral("user"), "a file");
    const QString file = write(QStringLiteral("mine.hsx"), emptySet);
    const auto host = start();
    setCurrentSet(file);
    QCOMPARE(currentSet(), file);
    QCOMPARE(m_logged.size(), 1);
    QVERIFY2(m_logged.constFirst().startsWith(QLatin1String("Warning: The current set is not "))
                     && m_logged.constFirst().contains(path(QStringLiteral("user"))),
             qPrintable(m_logged.constFirst()));
    QVERIFY(!host->paths()->createUserDirectory());
}

QTEST_GUILESS_MAIN(SampleHostTest)
#include "tst_SampleHost.moc"
