#include "FullDisk.h"
#include "HostActionRegistry.h"
#include "SampleHost.h"
#include "Text.h"

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

const QByteArray emptySet = "<VelHotkeyTransformations/>\n";

QString currentSet()
{
    return CUI::IPathManager::get()->getCurrentConfigurationFile(ConfigType::HotkeySet);
}

void setCurrentSet(const QString &file)
{
    CUI::IPathManager::get()->setCurrentConfigurationFile(ConfigType::HotkeySet, file);
}

} // namespace

class SampleHostTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup() { CUI::QvelMessageLog::getInstance().disconnect(this); }
    void installsWhatTheShippedDirectoryHolds();
    void leavesAnotherHostInstalled();
    void installsNothingWithoutItsDefaultSet();
    void startsWithTheDefaultSetAndLeavesNoTrace();
    void theCurrentSetSurvivesARestart();
    void aSetThatIsGoneGivesWayUntilItIsBack();
    void inMemoryTheRecordStaysAsItWas();
    void warnsOfARecordThatCannotBeRead();
    void warnsOfARecordThatCannotBeWritten();
    void aFullDiskKeepsTheOldRecord();

private:
    QString path(const char *name) const { return m_folder->filePath(s(name)); }
    QString write(const char *name, const QByteArray &contents) const;
    /// A host of the temporary directory; its load() has worked.
    std::unique_ptr<SampleHost> start() const;

    std::unique_ptr<QTemporaryDir> m_folder;
    QStringList m_logged;
    QString m_defaultSet;
    QString m_mine;
};

void SampleHostTest::init()
{
    m_folder = std::make_unique<QTemporaryDir>();
    m_logged.clear();
    connect(&CUI::QvelMessageLog::getInstance(), &CUI::QvelMessageLog::messageLogged, this,
            [this](const QString &line) { m_logged << line; });
    write("host/host.json", catalogue);
    m_defaultSet = write("host/presets/Shipped.hsx", emptySet);
    m_mine = write("elsewhere/M\u00fcller's set.hsx", emptySet);
}

QString SampleHostTest::write(const char *name, const QByteArray &contents) const
{
    QDir().mkpath(QFileInfo(path(name)).path());
    QFile file(path(name));
    if (!file.open(QIODevice::WriteOnly) || file.write(contents) != contents.size())
        qFatal("cannot write %s", qPrintable(file.fileName()));
    return file.fileName();
}

std::unique_ptr<SampleHost> SampleHostTest::start() const
{
    auto host = std::make_unique<SampleHost>(path("host"), path("user"));
    if (!host->load())
        qFatal("%s", qPrintable(host->errorText()));
    return host;
}

void SampleHostTest::installsWhatTheShippedDirectoryHolds()
{
    const QDir directory(SampleHost::shippedDirectory());
    {
        SampleHost host(directory.path() + QLatin1Char('/'), path("user"));
        QVERIFY2(host.load(), qPrintable(host.errorText()));
        auto *registry = CUI::ICuiActionManager::get();
        const auto *paths = CUI::IPathManager::get();
        QCOMPARE(registry->actions().size(), host.catalogue().actions.size());
        QCOMPARE(registry->actionContexts().size(), std::size_t(16));
        QCOMPARE(paths->getBaseHotkeyFiles(),
                 QStringList({directory.filePath(s("base/10-velstudio.hsxb")),
                              directory.filePath(s("base/20-layout-extras.hsx"))}));
        QCOMPARE(currentSet(), directory.filePath(s("presets/Velstudio Default Keyset.hsx")));

        QSignalSpy triggered(host.registry(), &Host::HostActionRegistry::triggered);
        QVERIFY(registry->triggerAction({1, s("undo")}));
        QVERIFY(!registry->triggerAction({9, s("undo")}));
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
    QCOMPARE(inOrder, list("2-undo Ctrl+Z|2-undo Alt+Backspace|1-cut Ctrl+X"));
}

void SampleHostTest::installsNothingWithoutItsDefaultSet()
{
    QVERIFY(QFile::remove(m_defaultSet));
    SampleHost host(path("host"), path("user"));
    QVERIFY(!host.load());
    QCOMPARE(host.errorText(),
             s("%1: defaultSet: there is no file %2").arg(path("host/host.json"), m_defaultSet));
    QVERIFY(CUI::ICuiActionManager::get() == nullptr);
    QVERIFY(CUI::IPathManager::get() == nullptr);
}

void SampleHostTest::startsWithTheDefaultSetAndLeavesNoTrace()
{
    const auto host = start();
    CUI::QvelShortcutManager store;
    store.loadCurrentShortcutConfiguration();
    QCOMPARE(store.getShortcutsFromActionId({1, s("cut")}), s("Ctrl+X"));
    QCOMPARE(currentSet(), m_defaultSet);
    QVERIFY(!QFile::exists(path("user")));
}

void SampleHostTest::theCurrentSetSurvivesARestart()
{
    auto host = start();
    for (const QString &file : {m_mine, QString()}) {
        // The working directory of the next start may be another one.
        setCurrentSet(file.isEmpty() ? file : QDir::current().relativeFilePath(file));
        QCOMPARE(currentSet(), file);
        host = start();
        QCOMPARE(currentSet(), file);
    }
    QVERIFY(m_logged.isEmpty());
}

void SampleHostTest::aSetThatIsGoneGivesWayUntilItIsBack()
{
    auto host = start();
    setCurrentSet(m_mine);
    QVERIFY(QFile::rename(m_mine, path("away")));
    host = start();
    QCOMPARE(currentSet(), m_defaultSet);
    CUI::QvelShortcutManager().loadCurrentShortcutConfiguration();
    QVERIFY(QFile::rename(path("away"), m_mine));
    host = start();
    QCOMPARE(currentSet(), m_mine);
}

void SampleHostTest::inMemoryTheRecordStaysAsItWas()
{
    SampleHost host(path("host"), path("user"), Host::HostPathManager::Record::InMemory);
    QVERIFY(host.load());
    setCurrentSet(m_mine);
    QCOMPARE(currentSet(), m_mine);
    QVERIFY(!QFile::exists(path("user")));
}

void SampleHostTest::warnsOfARecordThatCannotBeRead()
{
    const QString record = write("user/current.json", "{\"hotkeySet\": \"/x");
    const auto host = start();
    QCOMPARE(currentSet(), m_defaultSet);
    QCOMPARE(m_logged.size(), 1);
    QVERIFY2(m_logged.constFirst().contains(record), qPrintable(m_logged.constFirst()));
}

void SampleHostTest::warnsOfARecordThatCannotBeWritten()
{
    const QString user = write("user", "a file"); // not even root makes a directory below it
    const auto host = start();
    setCurrentSet(m_mine);
    QCOMPARE(currentSet(), m_mine);
    QCOMPARE(m_logged.size(), 1);
    QVERIFY2(m_logged.constFirst().startsWith(s("Warning: The current set is not recorded: "))
                     && m_logged.constFirst().contains(user),
             qPrintable(m_logged.constFirst()));
    QVERIFY(!host->paths()->createUserDirectory());
}

void SampleHostTest::aFullDiskKeepsTheOldRecord()
{
    auto host = start();
    setCurrentSet(m_mine);
    {
        const FullDisk disk(20);
        setCurrentSet(m_defaultSet);
        QCOMPARE(m_logged.size(), 1);
    }
    host = start();
    QCOMPARE(currentSet(), m_mine);
}

QTEST_GUILESS_MAIN(SampleHostTest)
#include "tst_SampleHost.moc"
