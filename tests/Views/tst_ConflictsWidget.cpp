#include "TestHost.h"
#include "Text.h"

#include <UiCustomizations/QvelConflictsWidget.h>
#include <UiCustomizations/QvelHotkeyHistory.h>
#include <UiCustomizations/QvelShortcutManager.h>

#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QPushButton>
#include <QSignalSpy>
#include <QToolButton>
#include <QTreeView>
#include <QtTest>

#include <memory>

using namespace CUI;

namespace {

const ActionIdentifier save = {1, s("save")};
const ActionIdentifier open = {1, s("open")};
const ActionIdentifier play = {2, s("play")};

} // namespace

/// The widget with two contexts, one of which counts everywhere.
class ConflictsWidgetTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void listsSearchesAndFilters();
    void settles_data();
    void settles();
    void followsTheStoreWhileItIsShown();
    void selectsAndActivatesActions();

private:
    void assign(const ActionIdentifier &id, const char *hotkey)
    {
        m_store->assignShortcut(id, s(hotkey), QString());
    }
    template <typename Widget>
    Widget *child(const char *name) const
    {
        return m_widget->findChild<Widget *>(s(name));
    }
    /// The kinds and hotkeys of the rows.
    QString rows() const;
    void choose(int row) const;
    /// Clicks the button or the entry of a menu with that text; false when there is none.
    bool click(const QString &text) const;

    std::unique_ptr<TestHost> m_host;
    std::unique_ptr<QvelShortcutManager> m_store;
    std::unique_ptr<QvelConflictsWidget> m_widget;
};

void ConflictsWidgetTest::init()
{
    m_host = std::make_unique<TestHost>();
    m_store = std::make_unique<QvelShortcutManager>();
    m_host->registry()->addActionContext(1, s("File"));
    m_host->registry()->addActionContext(2, s("Timeline"));
    for (const ActionIdentifier &id : {save, open, play})
        m_host->registry()->addAction(id, id.actionId, id.tableId, QString(), false);
    assign(save, "Ctrl+J");
    assign(play, "Ctrl+J");
    assign(play, "Ctrl+C");
    m_widget = std::make_unique<QvelConflictsWidget>(m_store.get());
    HotkeyAudit::Options options = m_widget->auditOptions();
    options.everywhere = {1};
    m_widget->setAuditOptions(options);
    m_widget->show();
    m_widget->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(m_widget.get()));
}

void ConflictsWidgetTest::cleanup()
{
    m_widget.reset();
    m_store.reset();
    m_host.reset();
}

QString ConflictsWidgetTest::rows() const
{
    QStringList rows;
    const QAbstractItemModel *model = child<QTreeView>("conflictsTable")->model();
    for (int row = 0; row < model->rowCount(); ++row)
        rows << model->index(row, 1).data().toString() + QLatin1Char(' ')
                        + model->index(row, 2).data().toString();
    return rows.join(QLatin1Char('|'));
}

void ConflictsWidgetTest::choose(int row) const
{
    auto *table = child<QTreeView>("conflictsTable");
    const QModelIndex index = table->model()->index(row, 1);
    QTest::mouseClick(table->viewport(), Qt::LeftButton, {}, table->visualRect(index).center());
}

bool ConflictsWidgetTest::click(const QString &text) const
{
    auto *panel = child<QWidget>("conflictsSettlements");
    for (QPushButton *button : panel->findChildren<QPushButton *>()) {
        if (button->accessibleName() == text) {
            button->setFocus();
            QTest::keyClick(button, Qt::Key_Space);
            return true;
        }
    }
    for (QMenu *menu : panel->findChildren<QMenu *>()) {
        for (QAction *action : menu->actions()) {
            if (action->text() == text) {
                action->trigger();
                return true;
            }
        }
    }
    return false;
}

void ConflictsWidgetTest::listsSearchesAndFilters()
{
    QCOMPARE(rows(), s("Shadowed Ctrl+J"));
    QCOMPARE(child<QLabel>("conflictsCount")->text(), s("Findings: 1 of 2"));
    m_widget->setLeastSeverity(HotkeyFinding::Severity::Note);
    QCOMPARE(rows(), s("Shadowed Ctrl+J|Taken by text fields Ctrl+C"));
    QTest::keyClicks(child<QLineEdit>("conflictsSearch"), s("COPY play"));
    QCOMPARE(rows(), s("Taken by text fields Ctrl+C"));
    child<QLineEdit>("conflictsSearch")->clear();
    auto *kinds = child<QComboBox>("conflictsKind");
    kinds->setCurrentIndex(kinds->findText(s("Shadowed")));
    QCOMPARE(rows(), s("Shadowed Ctrl+J"));
}

void ConflictsWidgetTest::settles_data()
{
    QTest::addColumn<QString>("command");
    QTest::addColumn<QString>("ofSave");
    QTest::addColumn<QString>("ofPlay");
    const auto row = [](const char *command, const char *ofSave, const char *ofPlay) {
        QTest::newRow(command) << s(command) << s(ofSave) << s(ofPlay);
    };
    row("Give Ctrl+J to save (File)", "Ctrl+J", "Ctrl+C");
    row("Give Ctrl+J to play (Timeline)", "", "Ctrl+J, Ctrl+C");
    row("Remove Ctrl+J from save (File)", "", "Ctrl+J, Ctrl+C");
    row("Change Ctrl+J to Ctrl+K for play (Timeline)", "Ctrl+J", "Ctrl+C, Ctrl+K");
}

void ConflictsWidgetTest::settles()
{
    QFETCH(QString, command);
    QvelHotkeyHistory history(m_store.get());
    choose(0);
    QVERIFY(click(command));
    QTEST(m_store->getShortcutsFromActionId(save), "ofSave");
    QTEST(m_store->getShortcutsFromActionId(play), "ofPlay");
    QTRY_COMPARE(rows(), QString());
    QVERIFY(!command.startsWith(s("Give")) || child<QWidget>("conflictsTable")->hasFocus());
    QCOMPARE(history.count(), 1);
    QCOMPARE(history.undoText(), command);
    history.undo();
    QCOMPARE(m_store->getShortcutsFromActionId(play), s("Ctrl+J, Ctrl+C"));
    QTRY_COMPARE(rows(), s("Shadowed Ctrl+J"));
}

void ConflictsWidgetTest::followsTheStoreWhileItIsShown()
{
    QSignalSpy changes(m_widget.get(), &QvelConflictsWidget::findingsChanged);
    assign(open, "Shift+Ctrl+K");
    assign(save, "Ctrl+Shift+K");
    QTRY_COMPARE(rows(), s("Held twice Ctrl+Shift+K|Shadowed Ctrl+J"));
    QCOMPARE(changes.count(), 1);
    choose(0);
    QVERIFY(click(
            s("Remove Ctrl+Shift+K from open (File)"))); // the text of the store, not the key's
    QTRY_COMPARE(rows(), s("Shadowed Ctrl+J"));
    QCOMPARE(m_store->getShortcutsFromActionId(open), QString());

    m_widget->hide();
    m_store->clearShortcuts();
    QTest::qWait(1);
    QCOMPARE(m_widget->findings().size(), std::size_t(2));
    m_widget->show();
    QCOMPARE(m_widget->findings().size(), std::size_t(0));
    assign(save, "Alt+F4");
    m_store.reset();
    QTRY_COMPARE(m_widget->findings().size(), std::size_t(0));
}

void ConflictsWidgetTest::selectsAndActivatesActions()
{
    QStringList seen;
    connect(m_widget.get(), &QvelConflictsWidget::actionSelected, this,
            [&seen](const ActionIdentifier &action) { seen << action.actionId; });
    connect(m_widget.get(), &QvelConflictsWidget::actionActivated, this,
            [&seen](const ActionIdentifier &action) { seen << action.actionId.toUpper(); });
    choose(0);
    auto *table = child<QTreeView>("conflictsTable");
    QTest::keyClick(table, Qt::Key_Return);
    QCOMPARE(seen, list("save|SAVE"));
    m_widget->refresh();
    QCOMPARE(table->currentIndex().row(), 0);
    const auto names = child<QWidget>("conflictsSettlements")->findChildren<QLabel *>();
    for (QLabel *name : names) {
        if (name->accessibleName() == s("play (Timeline)"))
            Q_EMIT name->linkActivated(QString());
    }
    QCOMPARE(seen, list("save|SAVE|play"));
}

QTEST_MAIN(ConflictsWidgetTest)
#include "tst_ConflictsWidget.moc"
