#include "TestHost.h"
#include "Text.h"

#include <UiCustomizations/QvelActionBinder.h>
#include <UiCustomizations/QvelActionItemModel.h>
#include <UiCustomizations/QvelCommandPalette.h>
#include <UiCustomizations/QvelHotkeyHistory.h>
#include <UiCustomizations/QvelShortcutManager.h>

#include <QAction>
#include <QDialog>
#include <QLabel>
#include <QLineEdit>
#include <QTreeView>
#include <QVBoxLayout>
#include <QtTest>

#include <memory>

using namespace CUI;

namespace {

const ActionIdentifier cut = {1, s("cut")};
const ActionIdentifier copy = {1, s("copy")};
const ActionIdentifier exportAll = {1, s("exportAll")};
const ActionIdentifier orbit = {1, s("orbit")};

} // namespace

/// The palette over a window with two text fields.
class CommandPaletteTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void runsWhereTheFocusWas();
    void findsAndRanks();
    void listsTheRecentlyUsedFirst();
    void saysWhyAnActionDoesNothing();
    void changesAHotkeyInPlace();
    void opensOverAModalDialog();

private:
    QLineEdit *search() const { return m_palette->findChild<QLineEdit *>(s("paletteSearch")); }
    QTreeView *listView() const { return m_palette->findChild<QTreeView *>(s("paletteList")); }
    QString message() const { return m_palette->findChild<QLabel *>(s("paletteMessage"))->text(); }
    QString names() const;
    void open();
    void type(const char *text) const { QTest::keyClicks(QApplication::focusWidget(), s(text)); }
    static void press(Qt::Key key) { QTest::keyClick(QApplication::focusWidget(), key); }
    QAction *bind(const ActionIdentifier &id);

    std::unique_ptr<TestHost> m_host;
    std::unique_ptr<QvelShortcutManager> m_store;
    std::unique_ptr<QvelActionBinder> m_binder;
    std::unique_ptr<QvelActionItemModel> m_model;
    std::unique_ptr<QWidget> m_window;
    std::unique_ptr<QvelCommandPalette> m_palette;
    QLineEdit *m_field = nullptr;
    QStringList m_done; ///< what ran, and the widget that had the focus
};

void CommandPaletteTest::init()
{
    m_host = std::make_unique<TestHost>();
    m_host->registry()->addActionContext(1, s("Edit"));
    m_host->registry()->addAction(cut, s("Cut"), 1, QString(), false);
    m_host->registry()->addAction(copy, s("Shortcut Copy"), 1, QString(), false);
    m_host->registry()->addAction(exportAll, s("Export All"), 1, QString(), false);
    m_host->registry()->addAction(orbit, s("Orbit"), 1, QString(), true);
    m_store = std::make_unique<QvelShortcutManager>();
    m_store->assignShortcut(cut, s("Ctrl+X"), QString());
    m_binder = std::make_unique<QvelActionBinder>(m_store.get());
    m_model = std::make_unique<QvelActionItemModel>(m_store.get());
    m_window = std::make_unique<QWidget>();
    m_window->setLayout(new QVBoxLayout);
    m_window->layout()->addWidget(new QLineEdit);
    m_field = new QLineEdit;
    m_field->setObjectName(s("field"));
    m_window->layout()->addWidget(m_field);
    m_window->resize(800, 600);
    bind(cut);
    bind(copy);
    m_palette = std::make_unique<QvelCommandPalette>(m_model.get(), m_store.get(), m_binder.get());
    connect(m_palette.get(), &QvelCommandPalette::triggered, this,
            [this](const ActionIdentifier &id) {
                m_done << s("signal ") + id.actionId + s(" in ")
                                  + QApplication::focusWidget()->objectName();
            });
    m_window->show();
    m_window->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(m_window.get()));
    m_field->setFocus();
    m_done.clear();
}

void CommandPaletteTest::cleanup()
{
    m_palette.reset();
    m_window.reset();
    m_model.reset();
    m_binder.reset();
    m_store.reset();
    m_host.reset();
}

QAction *CommandPaletteTest::bind(const ActionIdentifier &id)
{
    auto *action = new QAction(id.actionId, m_window.get());
    m_window->addAction(action);
    connect(action, &QAction::triggered, this, [this, id] {
        m_done << id.actionId + s(" in ") + QApplication::focusWidget()->objectName();
    });
    m_binder->bind(id, action);
    return action;
}

QString CommandPaletteTest::names() const
{
    QStringList names;
    for (int row = 0; row < listView()->model()->rowCount(); ++row)
        names << listView()->model()->index(row, 0).data().toString();
    return names.join(QLatin1Char('|'));
}

void CommandPaletteTest::open()
{
    m_palette->open();
    QTRY_COMPARE(QApplication::focusWidget(), search());
}

void CommandPaletteTest::runsWhereTheFocusWas()
{
    open();
    type("cut");
    press(Qt::Key_Return);
    QVERIFY(!m_palette->isVisible());
    QCOMPARE(m_done, list("cut in field"));
    open();
    type("export");
    press(Qt::Key_Enter);
    QCOMPARE(m_done, list("cut in field|signal exportAll in field"));
    open();
    press(Qt::Key_Escape);
    QVERIFY(!m_palette->isVisible());
    QCOMPARE(QApplication::focusWidget(), m_field);
    open();
    m_window->activateWindow();
    QTRY_VERIFY(!m_palette->isVisible());
    QCOMPARE(m_done.size(), 2);
}

void CommandPaletteTest::findsAndRanks()
{
    open();
    QCOMPARE(names(), s("Cut|Export All|Orbit|Shortcut Copy"));
    type("cut");
    QCOMPARE(names(), s("Cut|Shortcut Copy"));
    press(Qt::Key_Down);
    press(Qt::Key_Down);
    QCOMPARE(listView()->currentIndex().row(), 1);
    type(" copy");
    QCOMPARE(names(), s("Shortcut Copy"));
    type("zzz");
    QCOMPARE(message(), s("No command has this name."));
    press(Qt::Key_Return);
    QVERIFY(m_palette->isVisible() && m_done.isEmpty());
}

void CommandPaletteTest::listsTheRecentlyUsedFirst()
{
    m_palette->setRecentlyUsed({orbit, {9, s("gone")}});
    open();
    QCOMPARE(names(), s("Orbit|Cut|Export All|Shortcut Copy"));
    type("export");
    press(Qt::Key_Return);
    QCOMPARE(m_palette->recentlyUsed(),
             (std::vector<ActionIdentifier>{exportAll, orbit, {9, s("gone")}}));
    open();
    QCOMPARE(names(), s("Export All|Orbit|Cut|Shortcut Copy"));
    QCOMPARE(listView()->currentIndex().row(), 0);
    // The rows of another load stand elsewhere.
    m_host->registry()->addAction({0, s("add")}, s("Add"), 1, QString(), false);
    m_model->loadActionsToModel();
    QCOMPARE(names(), s("Export All|Orbit|Add|Cut|Shortcut Copy"));
}

void CommandPaletteTest::saysWhyAnActionDoesNothing()
{
    m_binder->actionOf(cut)->setEnabled(false);
    m_palette->setReason([](const ActionIdentifier &id) {
        return id == exportAll ? s("Nothing is selected.") : QString();
    });
    const std::pair<const char *, const char *> rows[] = {
            {"cut", "It is disabled at the moment."},
            {"export", "Nothing is selected."},
            {"orbit", "It acts only while its hotkey is held."}};
    open();
    for (const auto &[name, why] : rows) {
        search()->clear();
        type(name);
        QCOMPARE(message(), s(why));
        press(Qt::Key_Return);
        QVERIFY(m_palette->isVisible());
    }
    QCOMPARE(m_done, QStringList());
}

void CommandPaletteTest::changesAHotkeyInPlace()
{
    QvelHotkeyHistory history(m_store.get());
    open();
    type("export");
    press(Qt::Key_Tab);
    QCOMPARE(QApplication::focusWidget()->objectName(), s("paletteHotkey"));
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_X, Qt::ControlModifier);
    QCOMPARE(message(), s("Conflicts with: Cut (Edit). Enter takes it from there."));
    press(Qt::Key_Return);
    QCOMPARE(m_store->getShortcutsFromActionId(exportAll), s("Ctrl+X"));
    QCOMPARE(m_store->getShortcutsFromActionId(cut), QString());
    QCOMPARE(QApplication::focusWidget(), search());
    press(Qt::Key_Tab);
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return); // a hotkey like others
    press(Qt::Key_Return);
    QCOMPARE(m_store->getShortcutsFromActionId(exportAll), s("Enter"));
    press(Qt::Key_Tab);
    press(Qt::Key_Escape);
    QCOMPARE(QApplication::focusWidget(), search());
    QCOMPARE(history.count(), 2);
    history.undo();
    history.undo();
    QCOMPARE(m_store->getShortcutsFromActionId(cut), s("Ctrl+X"));
    QCOMPARE(m_store->getShortcutsFromActionId(exportAll), QString());
    QVERIFY(m_done.isEmpty());
}

void CommandPaletteTest::opensOverAModalDialog()
{
    QDialog dialog(m_window.get());
    auto *inside = new QLineEdit(&dialog);
    inside->setObjectName(s("inside"));
    dialog.setModal(true);
    dialog.show();
    dialog.activateWindow();
    QTRY_COMPARE(QApplication::activeWindow(), &dialog);
    inside->setFocus();
    open();
    type("cut");
    press(Qt::Key_Return);
    QCOMPARE(m_done, list("cut in inside"));
}

QTEST_MAIN(CommandPaletteTest)
#include "tst_CommandPalette.moc"
