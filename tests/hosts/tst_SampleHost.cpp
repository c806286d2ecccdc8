#include "FullDisk.h"
#include "HostCatalogue.h"
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
using Host::HostCatalogue;
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
    void theCurrentSetSurvivesARestart();
    void warnsOfARecordThatCannotBeRead();
    void aFullDiskKeepsTheOldRecord();
    void readsEverySpellingOfAnAccelerator();

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

void SampleHostTest::warnsOfARecordThatCannotBeRead()
{
    const QString record = write("user/current.json", "{\"hotkeySet\": \"/x");
    const auto host = start();
    QCOMPARE(currentSet(), m_defaultSet);
    QCOMPARE(m_logged.size(), 1);
    QVERIFY2(m_logged.constFirst().contains(record), qPrintable(m_logged.constFirst()));
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

void SampleHostTest::readsEverySpellingOfAnAccelerator()
{
    const QByteArray spellings = R"("shift+Insert", "Shift+s", "ctrl+alt+1", "Ctrl+Shift+",
                                    "Crtl+5", "", "A, B")";
    QString error;
    const auto read = HostCatalogue::parse(
            QByteArray(catalogue).replace(R"("Ctrl+Z", "Alt+Backspace")", spellings), s("f"),
            error);
    QVERIFY2(read, qPrintable(error));
    QCOMPARE(read->actions[0].accelerators, list("Shift+Ins|Shift+S|Ctrl+Alt+1"));
    QCOMPARE(read->warnings.size(), 4);
    QCOMPARE(read->warnings[1], s("f: actions[0].accelerators[4]: 'Crtl+5' names a key that "
                                  "does not exist; it is left out"));
}

QTEST_GUILESS_MAIN(SampleHostTest)
#include "tst_SampleHost.moc"
