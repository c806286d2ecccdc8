#include "FullDisk.h"
#include "Recorder.h"
#include "TestHost.h"

#include <UiCustomizations/QvelShortcutManager.h>

#include <QtTest>

using CUI::ActionIdentifier;
using CUI::QvelShortcutManager;

namespace {

// Actions a and b live in context 5, c in context 6; all are named by their capital letter.
const ActionIdentifier a{1, QStringLiteral("a")};
const ActionIdentifier b{10, QStringLiteral("b")};
const ActionIdentifier c{2, QStringLiteral("c")};

QString s(const char *text)
{
    return QString::fromUtf8(text);
}

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

    void ignoresEmptyPaths();
    void loadsBase();
    void loadsBaseReplacingAll();
    void failingBaseLeavesTheStore_data();
    void failingBaseLeavesTheStore();
    void savesBaseInOrder();
    void savesSet();
    void savesEmptySet();
    void loadsSet();
    void dropsAssignmentsWithoutRoom();
    void failingSaveKeepsTheOldFile_data();
    void failingSaveKeepsTheOldFile();
    void failingSaveKeepsTheEdits();
    void keepsWhatStandsBeforeAnError();
    void tellsOfSavedFileThatDoesNotConform();
    void refusesHotkeysThatXmlCannotHold();
    void peeks();

    void layersConfiguration();
    void laterBaseReplacesEarlier();
    void acceleratorsMoveHotkeys();
    void acceleratorsMoveHotkeysThatOnlyTheBaseHas();
    void loadsCurrentConfiguration();
    void loadsWithoutHost();
    void survivesFailingFiles();
    void logsNothingAtTheDefaultLevel();

private:
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

void TestStoreFiles::ignoresEmptyPaths()
{
    m_store->assignShortcut(a, s("A"), s("A"));
    m_recorder->take();
    m_store->saveShortcuts(QString());
    QVERIFY(!m_store->loadShortcuts(QString()));
    QVERIFY(!m_store->saveShortcutTransforms(QString()));
    QVERIFY(!m_store->loadShortcutTransforms(QString()));
    QCOMPARE(m_recorder->take(), QStringList());
    QCOMPARE(m_store->getShortcutsFromActionId(a), s("A"));
}

void TestStoreFiles::loadsBase()
{
    const QString path = m_host->write(
            s("a.hsxb"), baseFile("<Hotkey Shortcut='A, B' Description='other' Id='1-a'/>\n"
                                  "<Hotkey Shortcut='A' Id='10-b'/>\n"
                                  "<Hotkey Shortcut='X' Id='9-nobody'/>\n"));
    QVERIFY(m_store->loadShortcuts(path));
    QCOMPARE(m_recorder->take(),
             QStringList(
                     {s("log: Loading hotkey configuration file '%1'.").arg(path),
                      s("log: Debug: Shortcut 'A' for Action '1-a' added."), s("assigned 1-a A"),
                      s("log: Debug: Shortcut 'B' for Action '1-a' added."), s("assigned 1-a B"),
                      s("log: Warning: Removing existing shortcut 'A' from '1-a' and assigning "
                        "it to '10-b'."),
                      s("log: Warning: Shortcut 'A' for Action '1-a' removed."),
                      s("unassigned 1-a A"), s("log: Debug: Shortcut 'A' for Action '10-b' added."),
                      s("assigned 10-b A"), s("log: Warning: Action '9-nobody' not found."),
                      s("log: Hotkey configuration file loaded successfully.")}));
    QCOMPARE(m_store->getBaseShortcutsFromActionId(a), s("B"));
    QCOMPARE(m_store->getShortcutsFromActionId(a), s("B"));
    QCOMPARE(m_store->getBaseShortcutsFromActionId(b), s("A"));
    QVERIFY(!m_store->isUserModified());
}

void TestStoreFiles::loadsBaseReplacingAll()
{
    m_store->assignShortcut(c, s("Z"), s("C"));
    m_recorder->take();
    const QString path = m_host->write(
            s("a.hsxb"), baseFile("<Hotkey Shortcut='1, 2, 3, 4, 5, 6, 7' Id='1-a'/>"));
    QVERIFY(m_store->loadShortcuts(path));
    QCOMPARE(m_recorder->takeSignals().mid(0, 3),
             QStringList({s("unmodified"), s("cleared"), s("assigned 1-a 1")}));
    QCOMPARE(m_store->getShortcutsFromActionId(a), s("1, 2, 3, 4, 5, 6")); // no seventh
    QVERIFY(m_store->getShortcutsFromActionId(c).isEmpty());
    QVERIFY(m_store->currentTransformations().empty());
}

void TestStoreFiles::failingBaseLeavesTheStore_data()
{
    QTest::addColumn<QByteArray>("document");
    QTest::newRow("missing") << QByteArray();
    QTest::newRow("wrong root") << setFile("");
    QTest::newRow("not well-formed") << baseFile("<Hotkey Shortcut='A' Id='1-a'/><Hotkey");
}

void TestStoreFiles::failingBaseLeavesTheStore()
{
    QFETCH(QByteArray, document);
    m_store->assignShortcut(c, s("Z"), s("C"));
    m_recorder->take();
    const QString path = document.isNull() ? m_host->path(s("missing.hsxb"))
                                           : m_host->write(s("a.hsxb"), document);
    QVERIFY(!m_store->loadShortcuts(path));
    const QStringList events = m_recorder->take();
    QCOMPARE(events.value(0), s("log: Loading hotkey configuration file '%1'.").arg(path));
    QCOMPARE(events.size(), document.isNull() ? 1 : 2);
    if (!document.isNull())
        QVERIFY(events.at(1).startsWith(s("log: Error: Validation of '%1'").arg(path)));
    QCOMPARE(m_store->getShortcutsFromActionId(c), s("Z"));
}

void TestStoreFiles::savesBaseInOrder()
{
    m_store->assignShortcut(b, s("Num+5"), s("B"));
    m_store->assignShortcut(c, s("Ctrl+,"), s("C"));
    m_store->assignShortcut(c, s("<"), s("C"));
    m_store->assignShortcut(a, s("A"), s("A"));
    m_store->applyTransforms();
    m_host->registry()->removeAction(a);
    m_host->registry()->addAction(b, QString(), 5, s("Edit"), false);
    m_recorder->take();
    const QString path = m_host->path(s("a.hsxb"));
    m_store->saveShortcuts(path);
    QCOMPARE(m_recorder->take(), QStringList());
    QCOMPARE(TestHost::read(path),
             QByteArray("<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
                        "<VelHotkeys>\n"
                        "    <Hotkey Shortcut=\"A\" Id=\"1-a\"/>\n"
                        "    <Hotkey Shortcut=\"Ctrl+,, &lt;\" Description=\"C\" Id=\"2-c\"/>\n"
                        "    <Hotkey Shortcut=\"Num+5\" Description=\"\" Id=\"10-b\"/>\n"
                        "</VelHotkeys>\n"));
    QVERIFY(m_store->loadShortcuts(path));
    QCOMPARE(m_store->getShortcutsFromActionId(c), s("Ctrl+,, <"));
}

void TestStoreFiles::savesSet()
{
    m_store->assignShortcut(a, s("A"), s("A"));
    m_store->assignShortcut(b, s("B"), QString());
    m_store->unassignShortcut(a, s("A"), s("A"));
    m_store->unassignShortcut(c, s("Z"), s("C"));
    m_recorder->take();
    const QString path = m_host->path(s("My Keys.hsx"));
    QVERIFY(m_store->saveShortcutTransforms(path));
    QCOMPARE(m_recorder->take(), QStringList({s("collapsed"), s("unmodified")}));
    QVERIFY(!m_store->isUserModified());
    QCOMPARE(TestHost::read(path),
             QByteArray("<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
                        "<VelHotkeyTransformations Locked=\"false\">\n"
                        "    <Assign_Hotkey Shortcut=\"B\" Id=\"10-b\"/>\n"
                        "    <Unassign_Hotkey Shortcut=\"Z\" Description=\"C\" Id=\"2-c\"/>\n"
                        "</VelHotkeyTransformations>\n"));
}

void TestStoreFiles::savesEmptySet()
{
    const QString path =
            m_host->write(s("a.hsx"), setFile("<Assign_Hotkey Shortcut='A' Id='1-a'/>"));
    QVERIFY(m_store->saveShortcutTransforms(path));
    QVERIFY(TestHost::read(path).contains("<VelHotkeyTransformations Locked=\"false\""));
    m_store->assignShortcut(a, s("A"), s("A"));
    QVERIFY(m_store->loadShortcutTransforms(path));
    QVERIFY(m_store->currentTransformations().empty());
    QVERIFY(m_store->getShortcuts().empty());
}

void TestStoreFiles::loadsSet()
{
    m_store->assignShortcut(a, s("A"), s("A"));
    m_store->applyTransforms();
    m_store->assignShortcut(c, s("C"), s("C"));
    m_recorder->take();
    const QString path = m_host->write(
            s("a.hsx"), setFile("<Assign_Hotkey Shortcut='A' Description='Bee' Id='10-b'/>\n"
                                "<Unassign_Hotkey Shortcut='Q' Id='2-c'/>\n"
                                "<Assign_Hotkey Shortcut='A' Id='9-nobody'/>\n"));
    QVERIFY(m_store->loadShortcutTransforms(path));
    QCOMPARE(m_recorder->take(),
             QStringList(
                     {s("log: Loading shortcut transform file '%1'.").arg(path), s("unmodified"),
                      s("transformsCleared"),
                      s("log: Warning: Removing existing shortcut 'A' from '1-a' and assigning "
                        "it to '10-b'."),
                      s("log: Warning: Shortcut 'A' for Action '1-a' removed."),
                      s("unassigned 1-a A"), s("log: Debug: Shortcut 'A' for Action '10-b' added."),
                      s("assigned 10-b A"), s("added Add 'A' to Bee."),
                      s("added Remove 'Q' from ."), s("log: Warning: Action '9-nobody' not found."),
                      s("added Add 'A' to ."), s("log: Transform file loaded successfully.")}));
    QVERIFY(!m_store->isUserModified());
    QCOMPARE(m_store->currentTransformations().size(), std::size_t(3));
    QCOMPARE(m_store->getBaseShortcutsFromActionId(a), s("A")); // the base stays
    QVERIFY(m_store->getShortcutsFromActionId(c).isEmpty());

    // A step that takes back a loaded one is an edit: loaded steps are not cancelled by it.
    m_store->unassignShortcut(b, s("A"), s("B"));
    QVERIFY(m_store->isUserModified());
    QCOMPARE(m_store->currentTransformations().size(), std::size_t(4));
}

void TestStoreFiles::dropsAssignmentsWithoutRoom()
{
    QByteArray steps;
    for (const char key : {'A', 'B', 'C', 'D', 'E', 'F', 'G'})
        steps += QByteArray("<Assign_Hotkey Shortcut='") + key + "' Id='1-a'/>";
    steps += "<Unassign_Hotkey Shortcut='A' Id='1-a'/><Assign_Hotkey Shortcut='H' Id='1-a'/>";
    QVERIFY(m_store->loadShortcutTransforms(m_host->write(s("a.hsx"), setFile(steps))));
    QCOMPARE(m_store->getShortcutsFromActionId(a), s("B, C, D, E, F, H"));
    QCOMPARE(m_store->currentTransformations().size(), std::size_t(8)); // without G
}

void TestStoreFiles::failingSaveKeepsTheOldFile_data()
{
    QTest::addColumn<QString>("fileName");
    QTest::newRow("no such folder") << s("nowhere/a.hsx");
    QTest::newRow("is a folder") << s("folder");
    QTest::newRow("full disk") << s("old.hsx");
}

void TestStoreFiles::failingSaveKeepsTheOldFile()
{
    QFETCH(QString, fileName);
    const auto everything = QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot;
    QVERIFY(QDir(m_host->path(QString())).mkpath(s("folder/inner")));
    const QString old = m_host->write(s("old.hsx"), "old");
    const QStringList before = QDir(m_host->path(QString())).entryList(everything);
    m_store->assignShortcut(a, s("A"), s("A"));
    m_recorder->take();
    const FullDisk disk(50);
    m_store->saveShortcuts(m_host->path(fileName));
    QCOMPARE(m_recorder->take(), QStringList());
    QVERIFY(!m_store->saveShortcutTransforms(m_host->path(fileName)));
    QCOMPARE(m_recorder->take(), QStringList({s("collapsed")})); // before the file is opened
    QVERIFY(m_store->isUserModified());
    QCOMPARE(QDir(m_host->path(QString())).entryList(everything), before);
    QCOMPARE(TestHost::read(old), QByteArray("old"));
}

// Cancelling the steps before the failed save must not make unsaved edits pass for saved ones.
void TestStoreFiles::failingSaveKeepsTheEdits()
{
    const QString nowhere = m_host->path(s("nowhere/a.hsx"));
    m_store->assignShortcut(a, s("X"), s("A"));
    m_store->assignShortcut(a, s("Y"), s("A"));
    QVERIFY(m_store->saveShortcutTransforms(m_host->path(s("a.hsx"))));
    m_store->unassignShortcut(a, s("X"), s("A"));
    QVERIFY(!m_store->saveShortcutTransforms(nowhere));
    m_store->assignShortcut(b, s("Q"), s("B"));
    QVERIFY(m_store->isUserModified());
    QVERIFY(m_store->isUserModifiedAction(b));
    QVERIFY(!m_store->saveShortcutTransforms(nowhere));
    m_store->unassignShortcut(b, s("Q"), s("B"));
    m_store->unassignShortcut(a, s("Y"), s("A"));
    QVERIFY(m_store->saveShortcutTransforms(m_host->path(s("a.hsx"))));
    QVERIFY(!m_store->isUserModified());
    QVERIFY(m_store->currentTransformations().empty());
}

// The file changes between the check and the reading, as only a slot can make it happen here.
void TestStoreFiles::keepsWhatStandsBeforeAnError()
{
    const QString base = m_host->write(s("%1 a.hsxb"), baseFile(""));
    m_store->assignShortcut(c, s("Z"), s("C"));
    connect(m_store.get(), &QvelShortcutManager::shortcutsCleared, this, [this] {
        m_host->write(s("%1 a.hsxb"),
                      "<VelHotkeys><Hotkey Shortcut='A' Id='1-a'/>\n<Hotkey></VelHotkeys>");
    });
    m_recorder->take();
    QVERIFY(!m_store->loadShortcuts(base));
    // The values stand one place later than their labels say. The "%1" of the path is the lowest
    // placeholder once the path is in, and takes the error's text.
    const QString offset = s("%1").arg(TestHost::read(base).size());
    QCOMPARE(m_recorder->takeLines().last(),
             s("Error: Loading of hotkey configuration file failed!\n")
                     + QString(base).replace(s("%1"), s("Opening and ending tag mismatch."))
                     + s(" Line: 2 Column: 21 Offset: ") + offset);
    QCOMPARE(m_store->getShortcutsFromActionId(a), s("A"));

    const QString set = m_host->write(s("a.hsx"), setFile(""));
    m_store->assignShortcut(c, s("Z"), s("C"));
    connect(m_store.get(), &QvelShortcutManager::shortcutTransformsCleared, this, [this] {
        m_host->write(s("a.hsx"), "<VelHotkeyTransformations><Assign_Hotkey Shortcut='B' "
                                  "Id='1-a'/>\n<Assign_Hotkey");
    });
    m_recorder->take();
    QVERIFY(!m_store->loadShortcutTransforms(set));
    QCOMPARE(m_recorder->takeLines().last(),
             s("Error: Loading of transform file failed!\n%1 Line: Premature end of document. "
               "Column: 2 Offset: 14")
                     .arg(set));
    QCOMPARE(m_store->currentTransformations().size(), std::size_t(1));
    QCOMPARE(m_store->getShortcutsFromActionId(a), s("A, B"));
}

void TestStoreFiles::tellsOfSavedFileThatDoesNotConform()
{
    connect(m_store.get(), &QvelShortcutManager::shortcutsUnModified, this,
            [this] { m_host->write(s("a.hsx"), "<Odd/>"); });
    m_store->assignShortcut(a, s("A"), s("A"));
    QTest::ignoreMessage(QtDebugMsg, "Generated transformation file doesn't conform to the schema "
                                     "defined in HotkeyTransformationSchema.xsd.");
    QVERIFY(m_store->saveShortcutTransforms(m_host->path(s("a.hsx"))));
}

void TestStoreFiles::refusesHotkeysThatXmlCannotHold()
{
    const QString set = m_host->write(s("a.hsx"), "old set");
    const QString base = m_host->write(s("a.hsxb"), "old base");
    const QString control = QKeySequence(0x1A).toString(QKeySequence::PortableText);
    QVERIFY(control.at(0) < QLatin1Char(' '));
    m_store->assignShortcut(a, control, s("A"));
    m_recorder->take();
    QVERIFY(!m_store->saveShortcutTransforms(set));
    QVERIFY(m_recorder->takeLines().value(0).startsWith(
            s("Error: '%1' was not written: hotkey '%2' of action '1-a'").arg(set, control)));
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
    const auto peek = [](const QString &path, bool expected) {
        bool locked = true;
        QString name = s("unchanged");
        return QvelShortcutManager::peekPresetMetadata(path, locked, name) == expected
                       ? name + (locked ? s("/locked") : s("/open"))
                       : s("unexpected result");
    };
    QCOMPARE(peek(QString(), false), s("unchanged/locked"));
    QCOMPARE(peek(m_host->path(s("missing.hsx")), false), s("unchanged/locked"));
    QCOMPARE(m_recorder->take(), QStringList());
    QCOMPARE(peek(m_host->write(s("bad.hsx"), baseFile("")), false), s("unchanged/locked"));
    QCOMPARE(m_recorder->take().size(), 1);
    QCOMPARE(peek(m_host->write(s("My.Old Keys.hsx"),
                                "<VelHotkeyTransformations Description='' Locked='TRUE'/>"),
                  true),
             s("My.Old Keys/open"));
    QCOMPARE(peek(m_host->write(s("a.hsx"),
                                "<VelHotkeyTransformations Description='Mine' Locked='1'/>"),
                  true),
             s("Mine/locked"));
}

void TestStoreFiles::layersConfiguration()
{
    m_host->paths()->baseFiles = QStringList{
            m_host->write(s("1.hsxb"), baseFile("<Hotkey Shortcut='A' Id='1-a'/>"
                                                "<Hotkey Shortcut='B' Id='10-b'/>")),
            m_host->write(s("2.HSX"), setFile("<Unassign_Hotkey Shortcut='B' Id='10-b'/>"
                                              "<Assign_Hotkey Shortcut='C' Id='2-c'/>")),
            m_host->write(s("3.txt"), baseFile("<Hotkey Shortcut='T' Id='1-a'/>")),
    };
    m_host->registry()->accelerators = {{a, s("Ctrl+A")}};
    const QString set =
            m_host->write(s("mine.hsx"), setFile("<Assign_Hotkey Shortcut='M' Id='2-c'/>"));
    m_store->assignShortcut(a, s("Old"), s("A"));
    m_recorder->take();
    m_store->loadShortcutConfiguration(set);
    QCOMPARE(m_recorder->takeSignals(),
             QStringList({s("aboutToLoad ") + set, s("unmodified"), s("cleared"),
                          s("assigned 1-a A"), s("assigned 10-b B"), s("unassigned 10-b B"),
                          s("added Remove 'B' from ."), s("assigned 2-c C"),
                          s("added Add 'C' to ."), s("transformsCleared"), s("assigned 1-a Ctrl+A"),
                          s("assigned 2-c M"), s("added Add 'M' to ."), s("loaded ") + set}));
    QCOMPARE(m_store->getBaseShortcutsFromActionId(a), s("A, Ctrl+A"));
    QVERIFY(m_store->getBaseShortcutsFromActionId(b).isEmpty());
    QCOMPARE(m_store->getBaseShortcutsFromActionId(c), s("C"));
    QCOMPARE(m_store->getShortcutsFromActionId(c), s("C, M"));
    QCOMPARE(m_store->currentTransformations().size(), std::size_t(1));
    QVERIFY(!m_store->isUserModified());
    QCOMPARE(m_host->registry()->acceleratorCalls, 1);
    QCOMPARE(m_host->paths()->recorded, QStringList(set));
}

void TestStoreFiles::laterBaseReplacesEarlier()
{
    m_host->paths()->baseFiles = QStringList{
            m_host->write(s("1.hsxb"), baseFile("<Hotkey Shortcut='A' Id='1-a'/>")),
            m_host->write(s("2.hsxb"), baseFile("<Hotkey Shortcut='B' Id='10-b'/>")),
    };
    m_store->loadShortcutConfiguration(QString());
    QVERIFY(m_store->getShortcutsFromActionId(a).isEmpty());
    QCOMPARE(m_store->getShortcutsFromActionId(b), s("B"));
    QCOMPARE(m_host->paths()->recorded, QStringList(QString()));
}

void TestStoreFiles::acceleratorsMoveHotkeys()
{
    m_host->paths()->baseFiles =
            QStringList{m_host->write(s("1.hsxb"), baseFile("<Hotkey Shortcut='A' Id='1-a'/>"))};
    m_host->registry()->accelerators = {{b, s("A")}, {c, s("1")}, {c, s("2")}, {c, s("3")},
                                        {c, s("4")}, {c, s("5")}, {c, s("6")}, {c, s("7")}};
    m_store->loadShortcutConfiguration(QString());
    QCOMPARE(m_store->getShortcutsFromActionId(c), s("1, 2, 3, 4, 5, 6")); // no seventh
    QVERIFY(m_store->getBaseShortcutsFromActionId(a).isEmpty());
    QCOMPARE(m_store->getBaseShortcutsFromActionId(b), s("A"));
    QCOMPARE(m_store->getShortcutsFromActionId(b), s("A"));
}

// The user took the hotkey away; a base file that gives it to another still takes it from the base.
void TestStoreFiles::acceleratorsMoveHotkeysThatOnlyTheBaseHas()
{
    m_store->loadShortcuts(m_host->write(s("1.hsxb"), baseFile("<Hotkey Shortcut='A' Id='1-a'/>")));
    m_store->unassignShortcut(a, s("A"), s("A"));
    QCOMPARE(m_store->getBaseShortcutsFromActionId(a), s("A"));
    QVERIFY(m_store->getActionIdFromShortcut(s("A"), 5).isEmpty());
}

void TestStoreFiles::loadsCurrentConfiguration()
{
    m_host->paths()->currentSet =
            m_host->write(s("mine.hsx"), setFile("<Assign_Hotkey Shortcut='M' Id='1-a'/>"));
    m_store->loadCurrentShortcutConfiguration();
    QCOMPARE(m_store->getShortcutsFromActionId(a), s("M"));
}

void TestStoreFiles::loadsWithoutHost()
{
    std::unique_ptr<CUI::IPathManager> none;
    CUI::IPathManager::set(none);
    m_store->loadCurrentShortcutConfiguration();
    QCOMPARE(m_recorder->take(), QStringList({s("aboutToLoad "), s("loaded ")}));

    std::unique_ptr<CUI::ICuiActionManager> noRegistry;
    CUI::ICuiActionManager::set(noRegistry);
    const QString set =
            m_host->write(s("a.hsx"), setFile("<Assign_Hotkey Shortcut='A' Id='1-a'/>"
                                              "<Assign_Hotkey Shortcut='A' Id='9-x'/>"));
    m_store->loadShortcutConfiguration(set);
    QCOMPARE(m_store->getShortcuts().size(), std::size_t(2)); // nobody knows of a conflict
    m_store->applyTransforms();
    m_store->saveShortcuts(m_host->path(s("a.hsxb")));
    QVERIFY(!TestHost::read(m_host->path(s("a.hsxb"))).contains("Description"));
}

void TestStoreFiles::survivesFailingFiles()
{
    m_host->paths()->baseFiles = QStringList{
            m_host->write(s("1.hsxb"), baseFile("<Hotkey Shortcut='A' Id='1-a'/>")),
            m_host->write(s("2.hsxb"), "<VelHotkeys>"),
            m_host->path(s("missing.hsx")),
    };
    const QString set = m_host->write(s("mine.hsx"), "half");
    m_store->loadShortcutConfiguration(set);
    QCOMPARE(m_store->getShortcutsFromActionId(a), s("A"));
    QCOMPARE(m_host->paths()->recorded, QStringList(set));
    QCOMPARE(m_recorder->takeLines().filter(s("Error: Validation")).size(), 2);
}

void TestStoreFiles::logsNothingAtTheDefaultLevel()
{
    CUI::QvelMessageLog::getInstance().setMessageLogLevel(CUI::QvelMessageLog::Warning);
    m_host->paths()->baseFiles =
            QStringList{m_host->write(s("1.hsxb"), baseFile("<Hotkey Shortcut='A' Id='1-a'/>"))};
    m_store->loadShortcutConfiguration(
            m_host->write(s("mine.hsx"), setFile("<Assign_Hotkey Shortcut='M' Id='1-a'/>")));
    QCOMPARE(m_recorder->takeLines(), QStringList());
    QCOMPARE(m_store->getShortcutsFromActionId(a), s("A, M"));
}

QTEST_GUILESS_MAIN(TestStoreFiles)
#include "tst_StoreFiles.moc"
