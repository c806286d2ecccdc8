#include "TestHost.h"
#include "Text.h"

#include <UiCustomizations/HotkeySetWatcher.h>
#include <UiCustomizations/QvelMessageLog.h>
#include <UiCustomizations/QvelShortcutManager.h>

#include <QDir>
#include <QFile>
#include <QSignalSpy>
#include <QtTest>

#include <cstdio>
#include <functional>

using CUI::ActionIdentifier;
using CUI::HotkeySetWatcher;
using State = HotkeySetWatcher::State;

namespace {

const ActionIdentifier a{1, QStringLiteral("a")};
const ActionIdentifier b{1, QStringLiteral("b")};

QByteArray setThatGives(const char *hotkey)
{
    return QByteArray("<VelHotkeyTransformations><Assign_Hotkey Shortcut=\"") + hotkey
           + "\" Id=\"1-a\"/></VelHotkeyTransformations>";
}

} // namespace

class TestHotkeySetWatcher : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { qRegisterMetaType<State>("CUI::HotkeySetWatcher::State"); }
    void init();
    void followsTheFile_data();
    void followsTheFile();
    void leavesUnsavedEditsAlone();
    void mergesWithTheFile();
    void ignoresWhatIsNoChange();

private:
    QString held(const ActionIdentifier &action) const
    {
        return m_store->getShortcutsFromActionId(action);
    }
    QString write(const char *name, const char *hotkey) const
    {
        return m_host->write(s(name), setThatGives(hotkey));
    }
    /// Puts a new file in the place of another, in one step.
    void replace(const char *name, const char *hotkey) const
    {
        const QByteArray from = QFile::encodeName(write("new", hotkey));
        QCOMPARE(std::rename(from.constData(), QFile::encodeName(m_host->path(s(name)))), 0);
    }
    void link(const char *target, const char *name) const
    {
        QFile::remove(m_host->path(s(name)));
        QVERIFY(QFile::link(m_host->path(s(target)), m_host->path(s(name))));
    }
    void load(const QString &path)
    {
        m_store->loadShortcutConfiguration(path);
        QCoreApplication::processEvents();
    }

    std::unique_ptr<TestHost> m_host;
    std::unique_ptr<CUI::QvelShortcutManager> m_store;
    std::unique_ptr<HotkeySetWatcher> m_watcher;
};

void TestHotkeySetWatcher::init()
{
    CUI::QvelMessageLog::getInstance().setMessageLogLevel({});
    m_watcher.reset();
    m_store = std::make_unique<CUI::QvelShortcutManager>();
    m_host.reset();
    m_host = std::make_unique<TestHost>();
    for (const ActionIdentifier &action : {a, b})
        m_host->registry()->addAction(action, action.actionId, 1, QString(), false);
    m_watcher = std::make_unique<HotkeySetWatcher>(m_store.get());
    QDir(m_host->path(QString())).mkdir(s("sets"));
}

using Write = std::function<void(const char *hotkey)>;
Q_DECLARE_METATYPE(Write)

void TestHotkeySetWatcher::followsTheFile_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<Write>("change");

    const auto row = [](const char *way, const char *name, const Write &change) {
        QTest::newRow(way) << s(name) << change;
    };
    row("in place", "sets/a.hsx", [this](const char *hotkey) { write("sets/a.hsx", hotkey); });
    row("by rename", "sets/a.hsx", [this](const char *hotkey) { replace("sets/a.hsx", hotkey); });
    row("by rename while the old one is open", "sets/a.hsx", [this](const char *hotkey) {
        auto *old = new QFile(m_host->path(s("sets/a.hsx")), m_watcher.get());
        QVERIFY(old->open(QIODevice::ReadOnly));
        replace("sets/a.hsx", hotkey);
    });
    row("in place behind a link", "link.hsx",
        [this](const char *hotkey) { write("sets/a.hsx", hotkey); });
    row("by rename behind a link", "link.hsx",
        [this](const char *hotkey) { replace("sets/a.hsx", hotkey); });
    row("by another link", "link.hsx", [this](const char *hotkey) {
        const QByteArray target = QByteArray("sets/") + hotkey;
        write(target, hotkey);
        link(target, "link.hsx");
    });
    row("with its folder", "sets/a.hsx", [this](const char *hotkey) {
        QDir folder(m_host->path(QString()));
        QVERIFY(folder.rename(s("sets"), s("old") + s(hotkey)) && folder.mkdir(s("sets")));
        write("sets/a.hsx", hotkey);
    });
    row("behind a link to its folder", "folder/a.hsx", [this](const char *hotkey) {
        const QByteArray folder = QByteArray("sets") + hotkey;
        QVERIFY(QDir(m_host->path(QString())).mkdir(s(folder)));
        write(folder + "/a.hsx", hotkey);
        link(folder, "folder");
    });
    row("deleted and back", "sets/a.hsx", [this](const char *hotkey) {
        QVERIFY(QFile::remove(m_host->path(s("sets/a.hsx"))));
        QTRY_COMPARE_WITH_TIMEOUT(m_watcher->state(), State::Missing, 1000);
        write("sets/a.hsx", hotkey);
    });
    row("in two halves", "sets/a.hsx", [this](const char *hotkey) {
        m_host->write(s("sets/a.hsx"), setThatGives(hotkey).left(60));
        QTRY_COMPARE_WITH_TIMEOUT(m_watcher->state(), State::Unreadable, 1000);
        write("sets/a.hsx", hotkey);
    });
}

void TestHotkeySetWatcher::followsTheFile()
{
    QFETCH(QString, name);
    QFETCH(Write, change);
    write("sets/a.hsx", "F1");
    link("sets/a.hsx", "link.hsx");
    link("sets", "folder");
    load(m_host->path(name));
    QCOMPARE(held(a), s("F1"));
    const QSignalSpy reloaded(m_watcher.get(), &HotkeySetWatcher::setReloaded);
    for (const char *hotkey : {"F2", "F3"}) {
        change(hotkey);
        if (QTest::currentTestFailed())
            return;
        QTRY_COMPARE_WITH_TIMEOUT(held(a), s(hotkey), 1000);
        QCOMPARE(m_watcher->state(), State::Unchanged);
    }
    QCOMPARE(reloaded.size(), 2);
}

void TestHotkeySetWatcher::leavesUnsavedEditsAlone()
{
    const QString path = write("sets/a.hsx", "F1");
    load(path);
    m_store->assignShortcut(b, s("F5"), QString());
    replace("sets/a.hsx", "F2");
    QTRY_COMPARE_WITH_TIMEOUT(m_watcher->state(), State::Changed, 1000);
    QCOMPARE(held(a) + held(b), s("F1F5"));
    QVERIFY(m_store->hasTransformsFileChanged());

    m_watcher->keepMine();
    QCOMPARE(m_watcher->state(), State::Unchanged);
    QVERIFY(!m_store->hasTransformsFileChanged());
    m_store->unassignShortcut(b, s("F5"), QString());
    QVERIFY(m_store->isUserModified()); // the file holds something else
    QTest::qWait(300);
    QCOMPARE(held(a), s("F1"));

    write("sets/a.hsx", "F3");
    QTRY_COMPARE_WITH_TIMEOUT(m_watcher->state(), State::Changed, 1000);
    QVERIFY(m_watcher->loadTheirs());
    QCOMPARE(held(a), s("F3"));
    QVERIFY(!m_store->isUserModified());

    // Edits that are undone leave nothing to be asked about.
    m_store->assignShortcut(b, s("F5"), QString());
    write("sets/a.hsx", "F4");
    QTRY_COMPARE_WITH_TIMEOUT(m_watcher->state(), State::Changed, 1000);
    m_store->unassignShortcut(b, s("F5"), QString());
    QTRY_COMPARE_WITH_TIMEOUT(held(a), s("F4"), 1000);
}

void TestHotkeySetWatcher::mergesWithTheFile()
{
    const QString path = write("sets/a.hsx", "F1");
    load(path);
    m_store->assignShortcut(b, s("F5"), QString());
    replace("sets/a.hsx", "F2");
    m_watcher->check();
    QCOMPARE(m_watcher->state(), State::Changed);
    const CUI::HotkeySetMerge merge = m_watcher->merge();
    write("sets/a.hsx", "F3");
    QVERIFY(!m_watcher->applyMerge(merge));
    QVERIFY(m_watcher->applyMerge(m_watcher->merge()));
    QCOMPARE(held(a) + held(b), s("F3F5"));
    QVERIFY(m_store->isUserModified());
    QVERIFY(m_store->isUserModifiedAction(b) && !m_store->isUserModifiedAction(a));
    QVERIFY(m_store->saveShortcutTransforms(path));
    m_store->loadShortcutConfiguration(path);
    QCOMPARE(held(a) + held(b), s("F3F5"));
}

void TestHotkeySetWatcher::ignoresWhatIsNoChange()
{
    const QString path = write("sets/a.hsx", "F1");
    load(path);
    const QSignalSpy reloaded(m_watcher.get(), &HotkeySetWatcher::setReloaded);
    const QSignalSpy states(m_watcher.get(), &HotkeySetWatcher::stateChanged);
    replace("sets/a.hsx", "F1");
    m_store->assignShortcut(b, s("F5"), QString());
    QVERIFY(m_store->saveShortcutTransforms(path));
    QTest::qWait(300);
    QVERIFY(m_store->saveShortcutTransforms(m_host->path(s("sets/b.hsx"))));
    QCOMPARE(m_watcher->path(), m_host->path(s("sets/b.hsx")));
    write("sets/a.hsx", "F2"); // is no longer the file of the store
    QTest::qWait(300);
    QCOMPARE(reloaded.size() + states.size(), 0);
}

QTEST_GUILESS_MAIN(TestHotkeySetWatcher)
#include "tst_HotkeySetWatcher.moc"
