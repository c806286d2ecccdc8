#include "EditorHarness.h"

#include <QAccessible>
#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QDialog>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QSignalSpy>
#include <QTreeView>
#include <QVBoxLayout>
#include <QtTest>

namespace {

QString s(const char *text)
{
    return QString::fromUtf8(text);
}

/// Who has the focus: the accessible name of a button in a row, the object name of others.
QString focused()
{
    const QWidget *widget = QApplication::focusWidget();
    if (widget == nullptr)
        return {};
    return widget->objectName().endsWith(s("AssignedButton")) ? widget->accessibleName()
                                                              : widget->objectName();
}

QString descriptionOf(QWidget *widget)
{
    return QAccessible::queryAccessibleInterface(widget)->text(QAccessible::Description);
}

} // namespace

/// Who works on the editor without a mouse, or without seeing it.
class TestHotkeyEditorKeys : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void capturesInField_data();
    void capturesInField();
    void keepsShortcutsOfTheHostQuiet();
    void leavesFields_data();
    void leavesFields();
    void tabsThroughRows();
    void keepsFocusAmongRows();
    void leavesReturnToTheHost();
    void describesWhatIsSeen();

private:
    void openIn(QWidget *dialog);
    QLineEdit *field() const { return m->child<QLineEdit>("HotkeyEditor_shortcutLineEdit"); }
    QLineEdit *search() const { return m->child<QLineEdit>("HotkeyEditor_searchLineEdit"); }
    QPushButton *button(const char *name) const { return m->child<QPushButton>(name); }
    QPushButton *rowButton(const char *accessibleName) const;

    std::unique_ptr<QDialog> m_host; // of the editor, in some of the tests
    std::unique_ptr<EditorHarness> m;
};

void TestHotkeyEditorKeys::init()
{
    m = std::make_unique<EditorHarness>();
    m->open();
}

void TestHotkeyEditorKeys::cleanup()
{
    m.reset();
    m_host.reset();
}

QPushButton *TestHotkeyEditorKeys::rowButton(const char *accessibleName) const
{
    for (auto *found : m->child<QWidget>("assignedHotkeysWidget")->findChildren<QPushButton *>())
        if (found->accessibleName() == s(accessibleName))
            return found;
    qFatal("no button '%s'", accessibleName);
}

void TestHotkeyEditorKeys::capturesInField_data()
{
    QTest::addColumn<int>("key");
    QTest::addColumn<int>("modifiers");
    QTest::addColumn<QString>("text"); // while the keys are held
    QTest::addColumn<bool>("captured");

    QTest::newRow("Return") << int(Qt::Key_Return) << 0 << "Enter" << true;
    QTest::newRow("Tab") << int(Qt::Key_Tab) << 0 << "Tab" << true;
    QTest::newRow("Shift+Tab") << int(Qt::Key_Backtab) << int(Qt::ShiftModifier) << "Shift+Tab"
                               << true;
    QTest::newRow("Escape") << int(Qt::Key_Escape) << 0 << "" << false;
    QTest::newRow("Ctrl+Escape") << int(Qt::Key_Escape) << int(Qt::ControlModifier) << "Ctrl+"
                                 << false;
    QTest::newRow("Ctrl+Tab") << int(Qt::Key_Tab) << int(Qt::ControlModifier) << "Ctrl+" << false;
    QTest::newRow("F1") << int(Qt::Key_F1) << 0 << "" << false;
    QTest::newRow("modifiers alone")
            << int(Qt::Key_Alt) << int(Qt::ControlModifier | Qt::AltModifier) << "Ctrl+Alt+"
            << false;
}

void TestHotkeyEditorKeys::capturesInField()
{
    QFETCH(int, key);
    QFETCH(int, modifiers);
    QFETCH(QString, text);
    QFETCH(bool, captured);
    m->select(box);
    field()->setFocus();
    m->press(Qt::Key_Q); // something to forget
    const auto held = Qt::KeyboardModifiers(modifiers);
    QTest::keyPress(field(), Qt::Key(key), held);
    QCOMPARE(field()->text(), text);
    QCOMPARE(button("HotkeyEditor_assignShortcutBtn")->isEnabled(), captured);
    QTest::keyRelease(field(), Qt::Key(key), held);
    QCOMPARE(field()->text(), captured ? text : QString());
    if (key != Qt::Key_Tab || held != Qt::ControlModifier)
        QVERIFY(field()->hasFocus());
}

void TestHotkeyEditorKeys::keepsShortcutsOfTheHostQuiet()
{
    QAction action;
    action.setShortcuts({QKeySequence(s("Ctrl+G")), QKeySequence(s("Tab"))});
    action.setShortcutContext(Qt::ApplicationShortcut);
    m->editor->addAction(&action);
    QSignalSpy fired(&action, &QAction::triggered);
    m->select(box);
    QTest::keyClick(m->child<QTreeView>("HotkeyEditor_keyActionsTreeView"), Qt::Key_G,
                    Qt::ControlModifier);
    QCOMPARE(fired.count(), 1); // it works elsewhere
    field()->setFocus();
    m->press(Qt::Key_G, Qt::ControlModifier);
    QCOMPARE(field()->text(), s("Ctrl+G"));
    m->press(Qt::Key_Tab);
    m->child<QRadioButton>("HotkeyEditor_hotkeyRadioButton")->click();
    QTest::keyClick(search(), Qt::Key_G, Qt::ControlModifier);
    QCOMPARE(search()->text(), s("Ctrl+G"));
    QCOMPARE(fired.count(), 1);
}

void TestHotkeyEditorKeys::leavesFields_data()
{
    QTest::addColumn<bool>("isSearch");
    QTest::addColumn<int>("key");
    QTest::addColumn<int>("modifiers");
    QTest::addColumn<QString>("next");

    const int ctrl = Qt::ControlModifier;
    const int ctrlShift = Qt::ControlModifier | Qt::ShiftModifier;
    QTest::newRow("new hotkey, on")
            << false << int(Qt::Key_Tab) << ctrl << "scrollAreaAssignedHotkeys";
    QTest::newRow("new hotkey, back")
            << false << int(Qt::Key_Backtab) << ctrlShift << "HotkeyEditor_keyActionsTreeView";
    QTest::newRow("search, on") << true << int(Qt::Key_Tab) << ctrl
                                << "HotkeyEditor_hotkeyRadioButton";
    QTest::newRow("search, back") << true << int(Qt::Key_Backtab) << ctrlShift
                                  << "HotkeyEditor_hotkeyFilterComboBox";
}

// Plain Tab is a hotkey like others, so another key must lead out.
void TestHotkeyEditorKeys::leavesFields()
{
    QFETCH(bool, isSearch);
    QFETCH(int, key);
    QFETCH(int, modifiers);
    QFETCH(QString, next);
    QAction action; // the host would change pages
    action.setShortcuts({QKeySequence(s("Ctrl+Tab")), QKeySequence(s("Ctrl+Shift+Tab"))});
    m->editor->addAction(&action);
    QSignalSpy fired(&action, &QAction::triggered);
    m->child<QRadioButton>("HotkeyEditor_hotkeyRadioButton")->click();
    m->select(sphere);
    QLineEdit *left = isSearch ? search() : field();
    left->setFocus();
    QTest::keyClick(left, Qt::Key_Q);
    QTest::keyPress(left, Qt::Key(key), Qt::KeyboardModifiers(modifiers));
    QCOMPARE(focused(), next);
    QVERIFY(!button("HotkeyEditor_assignShortcutBtn")->isEnabled());
    QCoreApplication::processEvents();
    QVERIFY(left->text().isEmpty());
    QVERIFY(m->rows().contains(s("Sphere"))); // no search is left
    QCOMPARE(fired.count(), 0);
}

void TestHotkeyEditorKeys::openIn(QWidget *dialog)
{
    m->close();
    m->open(dialog);
}

void TestHotkeyEditorKeys::tabsThroughRows()
{
    m_host = std::make_unique<QDialog>();
    auto *ok = new QPushButton(m_host.get());
    ok->setObjectName(s("ok"));
    (new QVBoxLayout(m_host.get()))->addWidget(ok);
    openIn(m_host.get());
    QWidget::setTabOrder(m->child<QWidget>("scrollAreaAssignedHotkeys"), ok);
    m->select(sphere);
    m->press(Qt::Key_F7);
    m->click("HotkeyEditor_assignShortcutBtn");
    m->clickRow(s("S"));
    QCOMPARE(m->assigned(), s("F7, Ctrl+S, (S)"));
    auto *list = m->child<QWidget>("scrollAreaAssignedHotkeys");
    list->setFocus();
    const QStringList order{s("Remove F7"), s("Remove Ctrl+S"), s("Undo S"), s("ok")};
    for (const QString &next : order) {
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
        QCOMPARE(focused(), next);
    }
    ok->setFocus();
    QTest::keyClick(ok, Qt::Key_Backtab, Qt::ShiftModifier);
    QCOMPARE(focused(), s("Undo S"));
}

// By itself the focus would go to whatever comes next: another hotkey's Remove, or the chooser of
// sets, which the next letter changes.
void TestHotkeyEditorKeys::keepsFocusAmongRows()
{
    m->select(sphere);
    const auto pressSpace = [this](const char *name) {
        rowButton(name)->setFocus();
        QTest::keyClick(rowButton(name), Qt::Key_Space);
    };
    pressSpace("Remove S");
    QCOMPARE(focused(), s("Undo S"));
    pressSpace("Remove Ctrl+S");
    QCOMPARE(focused(), s("Undo Ctrl+S"));
    pressSpace("Undo S");
    QCOMPARE(focused(), s("Remove S"));

    // Removing what was just assigned makes all rows anew in between.
    m->manager.assignShortcut(sphere, s("Ctrl+S"), s("Sphere"));
    m->manager.assignShortcut(sphere, s("F7"), s("Sphere"));
    pressSpace("Remove F7");
    QCOMPARE(focused(), s("Undo F7"));

    rowButton("Remove S")->setFocus();
    m->manager.assignShortcut(box, s("S"), s("Box")); // takes it away, without a row in its place
    QCOMPARE(focused(), s("scrollAreaAssignedHotkeys"));
    field()->setFocus();
    m->manager.unassignShortcut(sphere, s("Ctrl+S"), s("Sphere"));
    QVERIFY(field()->hasFocus()); // only the focus of a row has to go elsewhere
}

void TestHotkeyEditorKeys::leavesReturnToTheHost()
{
    m_host = std::make_unique<QDialog>();
    new QVBoxLayout(m_host.get());
    openIn(m_host.get());
    m->select(sphere);
    m->press(Qt::Key_F7);
    rowButton("Remove S")->setFocus(); // the one that would be pressed later on
    search()->setFocus();
    QTest::keyClick(search(), Qt::Key_Return);
    QCOMPARE(m->manager.getShortcutsFromActionId(sphere), s("S, Ctrl+S"));
    QVERIFY(m_host->isVisible());

    auto *ok = new QPushButton(m_host.get());
    m_host->layout()->addWidget(ok);
    ok->show();
    QSignalSpy clicked(ok, &QPushButton::clicked);
    search()->clearFocus();
    search()->setFocus();
    ok->setDefault(true);
    QTest::keyClick(search(), Qt::Key_Return);
    QCOMPARE(clicked.count(), 1);
    QCOMPARE(m->manager.getShortcutsFromActionId(sphere), s("S, Ctrl+S"));
}

void TestHotkeyEditorKeys::describesWhatIsSeen()
{
    m->select(sphere);
    m->press(Qt::Key_B);
    QCOMPARE(descriptionOf(field()), s("Conflicts with: Box"));
    m->press(Qt::Key_Q);
    QVERIFY(!descriptionOf(field()).contains(s("Box")));
    m->press(Qt::Key_B);
    m->click("HotkeyEditor_removeShortcutBtn");
    QVERIFY(!descriptionOf(field()).contains(s("Box")));

    auto *sets = m->child<QComboBox>("HotkeyEditor_hotkeySetComboBox");
    QCOMPARE(descriptionOf(sets), s("[Unsaved Changes*]"));
    m->click("HotkeyEditor_undoRemoveBtn");
    QVERIFY(!descriptionOf(sets).contains(s("Unsaved")));
}

QTEST_MAIN(TestHotkeyEditorKeys)
#include "tst_HotkeyEditorKeys.moc"
