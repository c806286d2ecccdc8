#include "FullDisk.h"
#include "Recorder.h"
#include "TestHost.h"
#include "Text.h"

#include <UiCustomizations/HotkeySetReport.h>
#include <UiCustomizations/QvelShortcutManager.h>

#include <QtTest>

#include <sys/stat.h>

using CUI::ActionIdentifier;
using CUI::QvelShortcutManager;

namespace {

// Actions a and b live in context 5, c in context 6; all are named by their capital letter.
const ActionIdentifier a{1, QStringLiteral("a")};
const ActionIdentifier b{10, QStringLiteral("b")};
const ActionIdentifier c{2, QStringLiteral("c")};

QByteArray baseFile(const char *entries)
{
    return QByteArray("<VelHotkeys>\n") + entries + "</VelHotkeys>\n";
}

QByteArray setFile(const char *steps)
{
    return QByteArray("<VelHotkeyTransformations Locked=\"true\">\n") + steps
           + "</VelHotkeyTransformations>\n";
}

} // namespace

class TestStoreFiles : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void loadsBase();
    void savesBaseInOrder();
    void savesSet();
    void loadsSet();
    void repairsASetOfAnotherBase();
    void failingSaveKeepsTheOldFile_data();
    void failingSaveKeepsTheOldFile();
    void failingSaveKeepsTheEdits();
    void refusesHotkeysThatXmlCannotHold();
    void peeks();
    void layersConfiguration();
    void survivesFailingFiles();

private:
    void assign(const ActionIdentifier &action, const char *shortcut) const
    {
        m_store->assignShortcut(action, s(shortcut), action.actionId.toUpper());
    }
    void unassign(const ActionIdentifier &action, const char *shortcut) const
    {
        m_store->unassignShortcut(action, s(shortcut), action.actionId.toUpper());
    }
    QString held(const ActionIdentifier &action) const
    {
        return m_store->getShortcutsFromActionId(action);
    }
    QString heldInBase(const ActionIdentifier &action) const
    {
        return m_store->getBaseShortcutsFromActionId(action);
    }
    QString writeBase(const char *name, const char *entries) const
    {
        return m_host->write(s(name), baseFile(entries));
    }
    QString writeSet(const char *name, const char *steps) const
    {
        return m_host->write(s(name), setFile(steps));
    }

    std::unique_ptr<TestHost> m_host;
    std::unique_ptr<QvelShortcutManager> m_store;
    std::unique_ptr<Recorder> m_recorder;
};

void TestStoreFiles::init()
{
    m_host = std::make_unique<TestHost>();
    m_host->registry()->addAction(a, s("A"), 5, s("Edit"), false);
    m_host->registry()->addAction(b, s("B"), 5, s("Edit"), false);
    m_host->registry()->addAction(c, s("C"), 6, s("Edit"), false);
    m_store = std::make_unique<QvelShortcutManager>();
    m_recorder = std::make_unique<Recorder>(*m_store);
}

void TestStoreFiles::cleanup()
{
    m_recorder.reset();
    m_store.reset();
    m_host.reset();
}

void TestStoreFiles::loadsBase()
{
    assign(c, "Z");
    m_recorder->take();
    const QString path = writeBase("a.hsxb", "<Hotkey Shortcut='A, B' Description='X' Id='1-a'/>\n"
                                             "<Hotkey Shortcut='A' Id='10-b'/>\n"
                                             "<Hotkey Shortcut='X' Id='9-nobody'/>\n");
    QVERIFY(m_store->loadShortcuts(path));
    QCOMPARE(m_recorder->take(),
             QStringList(s("log: Loading hotkey configuration file '%1'.").arg(path))
                     + list("unmodified|cleared|"
                            "log: Debug: Shortcut 'A' for Action '1-a' added.|assigned 1-a A|"
                            "log: Debug: Shortcut 'B' for Action '1-a' added.|assigned 1-a B|"
                            "log: Warning: Removing existing shortcut 'A' from '1-a' and assigning "
                            "it to '10-b'.|"
                            "log: Warning: Shortcut 'A' for Action '1-a' removed.|unassigned 1-a A|"
                            "log: Debug: Shortcut 'A' for Action '10-b' added.|assigned 10-b A|"
                            "log: Warning: Action '9-nobody' not found.|"
                            "log: Hotkey configuration file loaded successfully."));
    QCOMPARE(heldInBase(a), s("B"));
    QCOMPARE(held(a), s("B"));
    QCOMPARE(heldInBase(b), s("A"));
    QVERIFY(held(c).isEmpty());
    QVERIFY(!m_store->isUserModified());
    QVERIFY(m_store->currentTransformations().empty());
}

void TestStoreFiles::savesBaseInOrder()
{
    assign(b, "Num+5");
    assign(c, "Ctrl+,");
    assign(c, "<");
    assign(a, "A");
    m_store->applyTransforms();
    m_host->registry()->removeAction(a);
    m_host->registry()->addAction(b, QString(), 5, s("Edit"), false);
    m_host->registry()->addAction(c, s("C \"<&>\"\n\x01"), 6, s("Edit"), false);
    m_recorder->take();
    const QString path = m_host->path(s("a.hsxb"));
    m_store->saveShortcuts(path);
    QCOMPARE(m_recorder->take(), QStringList());
    QCOMPARE(TestHost::read(path),
             QByteArray("<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
                        "<VelHotkeys>\n"
                        "    <Hotkey Shortcut=\"A\" Id=\"1-a\"/>\n"
                        "    <Hotkey Shortcut=\"Ctrl+,, &lt;\" "
                        "Description=\"C &quot;&lt;&amp;&gt;&quot;&#10;\" Id=\"2-c\"/>\n"
                        "    <Hotkey Shortcut=\"Num+5\" Description=\"\" Id=\"10-b\"/>\n"
                        "</VelHotkeys>\n"));
    QVERIFY(m_store->loadShortcuts(path));
    QCOMPARE(held(c), s("Ctrl+,, <"));
}

void TestStoreFiles::savesSet()
{
    const QString path = writeSet("My Keys.hsx", "<Assign_Hotkey Shortcut='A' Id='1-a'/>");
    assign(a, "A");
    m_store->assignShortcut(b, s("B"), QString());
    unassign(a, "A");
    m_store->unassignShortcut(c, s("Z"), s("Rückgängig"));
    m_recorder->take();
    QVERIFY(m_store->saveShortcutTransforms(path));
    QCOMPARE(m_recorder->take(), list("collapsed|unmodified"));
    QVERIFY(!m_store->isUserModified());
    QCOMPARE(s(TestHost::read(path)),
             s("<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
               "<VelHotkeyTransformations Locked=\"false\">\n"
               "    <Assign_Hotkey Shortcut=\"B\" Id=\"10-b\"/>\n"
               "    <Unassign_Hotkey Shortcut=\"Z\" Description=\"Rückgängig\" Id=\"2-c\"/>\n"
               "</VelHotkeyTransformations>\n"));

    m_store->clearTransforms();
    QVERIFY(m_store->saveShortcutTransforms(path)); // now without any step
    assign(a, "A");
    QVERIFY(m_store->loadShortcutTransforms(path));
    QVERIFY(m_store->currentTransformations().empty());
    QVERIFY(m_store->getShortcuts().empty());
}

void TestStoreFiles::loadsSet()
{
    assign(a, "A");
    m_store->applyTransforms();
    assign(c, "C");
    m_recorder->take();
    const QString path =
            writeSet("a.hsx", "<Assign_Hotkey Shortcut='A' Description='Bee' Id='10-b'/>\n"
                              "<Unassign_Hotkey Shortcut='Q' Id='2-c'/>\n"
                              "<Assign_Hotkey Shortcut='A' Id='9-nobody'/>\n");
    QVERIFY(m_store->loadShortcutTransforms(path));
    QCOMPARE(m_recorder->take(),
             QStringList(s("log: Loading shortcut transform file '%1'.").arg(path))
                     + list("unmodified|transformsCleared|"
                            "log: Warning: Removing existing shortcut 'A' from '1-a' and assigning "
                            "it to '10-b'.|"
                            "log: Warning: Shortcut 'A' for Action '1-a' removed.|unassigned 1-a A|"
                            "log: Debug: Shortcut 'A' for Action '10-b' added.|assigned 10-b A|"
                            "added Add 'A' to Bee.|added Remove 'Q' from .|"
                            "log: Warning: Action '9-nobody' not found.|added Add 'A' to .|"
                            "log: Transform file loaded successfully."));
    QVERIFY(!m_store->isUserModified());
    QCOMPARE(m_store->currentTransformations().size(), std::size_t(3));
    QCOMPARE(heldInBase(a), s("A")); // the base stays
    QVERIFY(held(c).isEmpty());

    // A step that takes back a loaded one is an edit: loaded steps are not cancelled by it.
    unassign(b, "A");
    QVERIFY(m_store->isUserModified());
    QCOMPARE(m_store->currentTransformations().size(), std::size_t(4));
}

void TestStoreFiles::repairsASetOfAnotherBase()
{
    QVERIFY(m_store->loadShortcuts(
            writeBase("a.hsxb", "<Hotkey Shortcut='1, 2, 3, 4, 5, 6' Id='1-a'/>")));
    const QString set = writeSet("a.hsx", "<Assign_Hotkey Shortcut='7' Id='1-a'/>"
                                          "<Assign_Hotkey Shortcut='X' Id='1-aa'/>"
                                          "<Unassign_Hotkey Shortcut='1' Id='1-a'/>");
    const auto steps = [](const QString &path) { return TestHost::read(path).count("Shortcut="); };
    QVERIFY(m_store->loadShortcutTransforms(set));
    QVERIFY(m_store->saveShortcutTransforms(m_host->path(s("without.hsx"))));
    QCOMPARE(steps(m_host->path(s("without.hsx"))), 2);
    m_store->setKeepsRefusedTransforms(true);
    QVERIFY(m_store->saveShortcutTransforms(set) && m_store->loadShortcutTransforms(set));
    QCOMPARE(steps(set), 3);

    CUI::HotkeySetReport report(*m_store);
    QCOMPARE(report.notApplyingCount(), 2);
    QCOMPARE(report.entries().at(1).other, a);
    report.drop(0);
    report.remap(1, c);
    m_store->replaceTransforms(report.steps());
    QVERIFY(m_store->isUserModified() && m_store->refusedTransforms().empty());
    QCOMPARE(held(a) + held(c), s("2, 3, 4, 5, 6X"));
    QVERIFY(m_store->saveShortcutTransforms(set) && m_store->loadShortcutTransforms(set));
    QCOMPARE(held(a) + held(c), s("2, 3, 4, 5, 6X"));
    QCOMPARE(CUI::HotkeySetReport(*m_store).notApplyingCount(), 0);
}

void TestStoreFiles::failingSaveKeepsTheOldFile_data()
{
    QTest::addColumn<QString>("fileName");
    QTest::newRow("no such folder") << "nowhere/a.hsx";
    QTest::newRow("is a folder") << "folder";
    QTest::newRow("full disk") << "old.hsx";
}

void TestStoreFiles::failingSaveKeepsTheOldFile()
{
    QFETCH(QString, fileName);
    const auto everything = QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot;
    const QDir folder(m_host->path(QString()));
    QVERIFY(folder.mkpath(s("folder/inner")));
    const QString old = m_host->write(s("old.hsx"), "old");
    const QStringList before = folder.entryList(everything);
    assign(a, "A");
    m_recorder->take();
    const FullDisk disk(50);
    m_store->saveShortcuts(m_host->path(fileName));
    QCOMPARE(m_recorder->take(), QStringList());
    QVERIFY(!m_store->saveShortcutTransforms(m_host->path(fileName)));
    QCOMPARE(m_recorder->take(), list("collapsed")); // before the file is opened
    QVERIFY(m_store->isUserModified());
    QCOMPARE(QDir(folder.path()).entryList(everything), before);
    QCOMPARE(TestHost::read(old), QByteArray("old"));
}

// Cancelling the steps before the failed save must not make unsaved edits pass for saved ones.
void TestStoreFiles::failingSaveKeepsTheEdits()
{
    const QString set = m_host->path(s("a.hsx"));
    const QString nowhere = m_host->path(s("nowhere/a.hsx"));
    assign(a, "X");
    assign(a, "Y");
    QVERIFY(m_store->saveShortcutTransforms(set));
    unassign(a, "Y");
    QVERIFY(!m_store->saveShortcutTransforms(nowhere));
    assign(b, "Q");
    QVERIFY(m_store->isUserModifiedAction(b));
    QVERIFY(!m_store->saveShortcutTransforms(nowhere));
    unassign(b, "Q");
    QVERIFY(m_store->isUserModified()); // the file has Y
    unassign(a, "X");
    QVERIFY(!m_store->saveShortcutTransforms(nowhere));
    QVERIFY(m_store->currentTransformations().empty());
    assign(b, "Q");
    unassign(b, "Q");
    QVERIFY(m_store->isUserModified()); // the file has both
    QVERIFY(m_store->saveShortcutTransforms(set));
    QVERIFY(!m_store->isUserModified());
    QCOMPARE(TestHost::read(set).count("Id="), 0);
}

// Only a schema of the host's own, beside its executable, lets a foreign root come so far.
void TestStoreFiles::refusesHotkeysThatXmlCannotHold()
{
    const QString set = m_host->write(s("a.hsx"), "old set");
    const QString base = m_host->write(s("a.hsxb"), "old base");
    assign(a, "\x1A");
    m_recorder->take();
    QVERIFY(!m_store->saveShortcutTransforms(set));
    QVERIFY(m_recorder->takeLines().value(0).startsWith(
            s("Error: '%1' was not written: hotkey '\x1A' of action '1-a'").arg(set)));
    QVERIFY(m_store->isUserModified());
    m_store->applyTransforms();
    m_recorder->take();
    m_store->saveShortcuts(base);
    QVERIFY(m_recorder->takeLines().value(0).startsWith(s("Error: '%1' was not").arg(base)));
    QCOMPARE(TestHost::read(set), QByteArray("old set"));
    QCOMPARE(TestHost::read(base), QByteArray("old base"));
}

void TestStoreFiles::peeks()
{
    const auto peek = [](const QString &path) {
        bool locked = true;
        QString name = s("unchanged");
        const bool peeked = QvelShortcutManager::peekPresetMetadata(path, locked, name);
        return name + s(locked ? "/locked" : "/open") + s(peeked ? "" : "/false");
    };
    QCOMPARE(peek(QString()), s("unchanged/locked/false"));
    QCOMPARE(peek(m_host->path(s("missing.hsx"))), s("unchanged/locked/false"));
    // Reading a pipe that nobody writes to would wait forever.
    const QString pipe = m_host->path(s("pipe.hsx"));
    QCOMPARE(mkfifo(QFile::encodeName(pipe).constData(), 0600), 0);
    QCOMPARE(peek(pipe), s("unchanged/locked/false"));
    QCOMPARE(m_recorder->take(), QStringList());
    QCOMPARE(peek(writeBase("bad.hsx", "")), s("unchanged/locked/false"));
    QCOMPARE(m_recorder->take().size(), 1);
    QCOMPARE(peek(m_host->write(s("My.Old Keys.hsx"),
                                "<VelHotkeyTransformations Description='' Locked='TRUE'/>")),
             s("My.Old Keys/open"));
    QCOMPARE(peek(m_host->write(s("a.hsx"),
                                "<VelHotkeyTransformations Description='Mine' Locked='1'/>")),
             s("Mine/locked"));
}

void TestStoreFiles::layersConfiguration()
{
    m_host->paths()->baseFiles =
            QStringList{writeBase("1.hsxb", "<Hotkey Shortcut='A' Id='1-a'/>"
                                            "<Hotkey Shortcut='B' Id='10-b'/>"),
                        writeSet("2.HSX", "<Unassign_Hotkey Shortcut='B' Id='10-b'/>"
                                          "<Assign_Hotkey Shortcut='C' Id='2-c'/>"),
                        writeBase("3.txt", "<Hotkey Shortcut='T' Id='1-a'/>")};
    m_host->registry()->accelerators = {{a, s("Ctrl+A")}};
    const QString set = writeSet("mine.hsx", "<Assign_Hotkey Shortcut='M' Id='2-c'/>");
    m_host->paths()->currentSet = set;
    assign(a, "Old");
    m_recorder->take();
    m_store->loadCurrentShortcutConfiguration();
    QCOMPARE(m_recorder->takeSignals(),
             QStringList(s("aboutToLoad ") + set)
                     + list("unmodified|cleared|assigned 1-a A|assigned 10-b B|unassigned 10-b B|"
                            "added Remove 'B' from .|assigned 2-c C|added Add 'C' to .|"
                            "transformsCleared|assigned 1-a Ctrl+A|assigned 2-c M|"
                            "added Add 'M' to .")
                     + QStringList(s("loaded ") + set));
    QCOMPARE(heldInBase(a), s("A, Ctrl+A"));
    QVERIFY(heldInBase(b).isEmpty());
    QCOMPARE(heldInBase(c), s("C"));
    QCOMPARE(held(c), s("C, M"));
    QCOMPARE(m_store->currentTransformations().size(), std::size_t(1));
    QVERIFY(!m_store->isUserModified());
    QCOMPARE(m_host->registry()->acceleratorCalls, 1);
    QCOMPARE(m_host->paths()->recorded, QStringList(set));
}

void TestStoreFiles::survivesFailingFiles()
{
    const QString half = writeBase("2.hsxb", "<Hotkey Shortcut='Z' Id='1-a'/><Hotkey");
    m_host->paths()->baseFiles = QStringList{writeBase("1.hsxb", "<Hotkey Shortcut='A' Id='1-a'/>"),
                                             half, writeSet("3.hsxb", ""),
                                             m_host->path(s("no.hsxb")), m_host->path(s("no.hsx"))};
    const QString set = m_host->write(s("mine.hsx"), "half");
    m_store->loadShortcutConfiguration(set);
    QCOMPARE(held(a), s("A"));
    QCOMPARE(m_host->paths()->recorded, QStringList(set));
    const QStringList lines = m_recorder->takeLines();
    QCOMPARE(lines.filter(s("Loading ")).size(), 6); // tries each
    const QStringList errors = lines.filter(QRegularExpression(s("^Error: ")));
    QCOMPARE(errors.size(), 3);
    QVERIFY(errors.first().startsWith(s("Error: Validation of '%1'").arg(half)));
    QVERIFY(!m_store->loadShortcuts(half));
    m_recorder->take();
    QVERIFY(!m_store->loadShortcuts(QString()) && !m_store->loadShortcutTransforms(QString())
            && !m_store->saveShortcutTransforms(QString()));
    QCOMPARE(m_recorder->take(), QStringList());
}

QTEST_GUILESS_MAIN(TestStoreFiles)
#include "tst_StoreFiles.moc"
