#include "TestHost.h"
#include "Text.h"

#include <UiCustomizations/HotkeySetWatcher.h>
#include <UiCustomizations/QvelShortcutManager.h>

#include <QDir>
#include <QFile>
#include <QSignalSpy>
#include <QtTest>

#include <cstdio>

using CUI::HotkeySetWatcher;
using State = HotkeySetWatcher::State;

namespace {

const CUI::ActionIdentifier a{1, QStringLiteral("a")};
const CUI::ActionIdentifier b{1, QStringLiteral("b")};

} // namespace

class TestHotkeySetWatcher : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void followsTheFile_data();
    void followsTheFile();
    void leavesUnsavedEditsAlone();
    void mergesWithTheFile();
    void ignoresWhatIsNoChange();

private:
    void change(const QByteArray &hotkey);
    /// What a and b hold.
    QString held() const
    {
        return m_store->getShortcutsFromActionId(a) + m_store->getShortcutsFromActionId(b);
    }
    void edit() { m_store->assignShortcut(b, s("F5"), QString()); }
    void undo() { m_store->unassignShortcut(b, s("F5"), QString()); }
    QString path(const char *name) const { return m_host->path(s(name)); }
    bool makeFolder(const char *name) const { return QDir(path("")).mkdir(s(name)); }
    /// Writes a set that gives the hotkey to a.
    QString write(const QByteArray &name, const char *hotkey) const
    {
        return m_host->write(s(name), s("<VelHotkeyTransformations><Assign_Hotkey Shortcut='%1' "
                                        "Id='1-a'/></VelHotkeyTransformations>")
                                              .arg(s(hotkey))
                                              .toUtf8());
    }
    /// Puts a new file in the place of another, in one step.
    void replace(const char *hotkey) const
    {
        QCOMPARE(std::rename(QFile::encodeName(write("new", hotkey)).constData(),
                             QFile::encodeName(path("sets/a.hsx")).constData()),
                 0);
    }
    void link(const char *target, const char *name) const
    {
        QFile::remove(path(name));
        QVERIFY(QFile::link(path(target), path(name)));
    }
    bool comesTo(State state) const
    {
        return QTest::qWaitFor([&] { return m_watcher->state() == state; }, 1000);
    }

    std::unique_ptr<TestHost> m_host;
    std::unique_ptr<CUI::QvelShortcutManager> m_store;
    std::unique_ptr<HotkeySetWatcher> m_watcher;
};

void TestHotkeySetWatcher::init()
{
    qRegisterMetaType<State>("CUI::HotkeySetWatcher::State");
    m_watcher.reset();
    m_store = std::make_unique<CUI::QvelShortcutManager>();
    m_watcher = std::make_unique<HotkeySetWatcher>(m_store.get());
    m_host.reset();
    m_host = std::make_unique<TestHost>();
    for (const auto &action : {a, b})
        m_host->registry()->addAction(action, action.actionId, 1, QString(), false);
    QVERIFY(makeFolder("sets"));
    write("sets/a.hsx", "F1");
    link("sets/a.hsx", "link.hsx");
    link("sets", "folder");
    QVERIFY(QDir(path("")).mkpath(s("far/away")));
    write("far/away/a.hsx", "F1");
    link("far/away", "deep");
    m_store->loadShortcutConfiguration(path("sets/a.hsx"));
}

void TestHotkeySetWatcher::followsTheFile_data()
{
    QTest::addColumn<QString>("set");

    for (const char *way : {"in place", "by rename", "deleted and back", "in two halves", "folder"})
        QTest::newRow(way) << s("sets/a.hsx");
    for (const char *way : {"in place behind a link", "by rename behind a link", "by another link"})
        QTest::newRow(way) << s("link.hsx");
    QTest::newRow("folder link") << s("folder/a.hsx");
    QTest::newRow("folder behind a link") << s("deep/a.hsx");
}

/// Lets the set give that hotkey to a, in the way that the row says.
void TestHotkeySetWatcher::change(const QByteArray &hotkey)
{
    const QByteArray way = QTest::currentDataTag();
    if (way.contains("rename"))
        return replace(hotkey);
    QByteArray file = "sets/a.hsx";
    if (way == "deleted and back") {
        QVERIFY(QFile::remove(path("sets/a.hsx")) && comesTo(State::Missing));
    } else if (way == "in two halves") {
        m_host->write(s(file), "<VelHotkeyTransformations><Assign_Hotkey ");
        QVERIFY(comesTo(State::Unreadable));
    } else if (way == "folder") {
        QVERIFY(QDir(path("")).rename(s("sets"), s("old") + s(hotkey)) && makeFolder("sets"));
    } else if (way == "folder behind a link") {
        QVERIFY(QDir(path("far")).rename(s("away"), s(hotkey)) && makeFolder("far/away"));
        file = "far/away/a.hsx";
    } else if (way == "folder link") {
        QVERIFY(makeFolder(hotkey));
        file = hotkey + "/a.hsx";
    } else if (way == "by another link") {
        file = hotkey;
    }
    write(file, hotkey);
    if (way == "folder link")
        link(hotkey, "folder");
    else if (way == "by another link")
        link(hotkey, "link.hsx");
}

void TestHotkeySetWatcher::followsTheFile()
{
    QFETCH(QString, set);
    m_store->loadShortcutConfiguration(m_host->path(set));
    const QSignalSpy reloaded(m_watcher.get(), &HotkeySetWatcher::setReloaded);
    for (const char *hotkey : {"F2", "F3"}) {
        QTest::qWait(200); // the look that follows each loading must not find the change
        change(hotkey);
        QTRY_COMPARE_WITH_TIMEOUT(held(), s(hotkey), 1000);
        QCOMPARE(m_watcher->state(), State::Unchanged);
    }
    QCOMPARE(reloaded.size(), 2);
}

void TestHotkeySetWatcher::leavesUnsavedEditsAlone()
{
    edit();
    replace("F2");
    QVERIFY(comesTo(State::Changed) && held() == s("F1F5"));
    QVERIFY(m_store->hasTransformsFileChanged());
    m_watcher->keepMine();
    QVERIFY(m_watcher->state() == State::Unchanged && !m_store->hasTransformsFileChanged());
    undo();
    QVERIFY(m_store->isUserModified()); // the file holds something else
    write("sets/a.hsx", "F3");
    QVERIFY(comesTo(State::Changed) && m_watcher->loadTheirs());
    QVERIFY(held() == s("F3") && !m_store->isUserModified());
    edit();
    write("sets/a.hsx", "F4");
    QVERIFY(comesTo(State::Changed));
    undo(); // leaves nothing to ask about
    QTRY_COMPARE_WITH_TIMEOUT(held(), s("F4"), 1000);
}

void TestHotkeySetWatcher::mergesWithTheFile()
{
    edit();
    replace("F2");
    const CUI::HotkeySetMerge merge = m_watcher->merge();
    write("sets/a.hsx", "F3");
    QVERIFY(!m_watcher->applyMerge(merge) && m_watcher->applyMerge(m_watcher->merge()));
    QCOMPARE(held(), s("F3F5"));
    QVERIFY(m_store->isUserModifiedAction(b) && !m_store->isUserModifiedAction(a));
}

void TestHotkeySetWatcher::ignoresWhatIsNoChange()
{
    const QSignalSpy reloaded(m_watcher.get(), &HotkeySetWatcher::setReloaded);
    const QSignalSpy states(m_watcher.get(), &HotkeySetWatcher::stateChanged);
    replace("F1");
    edit();
    QVERIFY(m_store->saveShortcutTransforms(path("sets/a.hsx")));
    QTest::qWait(300);
    QVERIFY(m_store->saveShortcutTransforms(path("sets/b.hsx")));
    QCOMPARE(m_watcher->path(), path("sets/b.hsx"));
    replace("F2"); // it is no longer the file of the store
    QTest::qWait(300);
    QCOMPARE(reloaded.size() + states.size(), 0);
}

QTEST_GUILESS_MAIN(TestHotkeySetWatcher)
#include "tst_HotkeySetWatcher.moc"
