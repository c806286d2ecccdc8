#include "EditorHarness.h"

#include <QAccessible>
#include <QAction>
#include <QApplication>
#include <QPushButton>
#include <QRadioButton>
#include <QVBoxLayout>
#include <QtTest>

namespace {

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

std::unique_ptr<QDialog> dialogOfTheHost()
{
    auto dialog = std::make_unique<QDialog>();
    new QVBoxLayout(dialog.get());
    return dialog;
}

QPushButton *addButton(QDialog *dialog)
{
    auto *button = new QPushButton(dialog);
    button->setObjectName(s("ok"));
    dialog->layout()->addWidget(button);
    return button;
}

} // namespace

/// Who works on the editor without a mouse, or without seeing it.
class TestHotkeyEditorKeys : public EditorTest
{
    Q_OBJECT

private Q_SLOTS:
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
    void searchByHotkeys() const;
    QPushButton *rowButton(const char *accessibleName) const;
};

void TestHotkeyEditorKeys::searchByHotkeys() const
{
    m->child<QRadioButton>("HotkeyEditor_hotkeyRadioButton")->click();
}

QPushButton *TestHotkeyEditorKeys::rowButton(const char *accessibleName) const
{
    for (auto *found : m->child("assignedHotkeysWidget")->findChildren<QPushButton *>())
        if (found->accessibleName() == s(accessibleName))
            return found;
    qFatal("no button '%s'", accessibleName);
}

void TestHotkeyEditorKeys::capturesInField_data()
{
    QTest::addColumn<int>("key");
    QTest::addColumn<Qt::KeyboardModifiers>("modifiers");
    QTest::addColumn<QString>("text"); // while the keys are held
    QTest::addColumn<bool>("captured");
    const auto row = [](int key, Qt::KeyboardModifiers modifiers, const char *text, bool captured) {
        QTest::addRow("%s", qPrintable(QKeySequence(key | int(modifiers)).toString()))
                << key << modifiers << s(text) << captured;
    };
    row(Qt::Key_Return, Qt::NoModifier, "Enter", true);
    row(Qt::Key_Tab, Qt::NoModifier, "Tab", true);
    row(Qt::Key_Backtab, Qt::ShiftModifier, "Shift+Tab", true);
    row(Qt::Key_Escape, Qt::NoModifier, "", false);
    row(Qt::Key_Escape, Qt::ControlModifier, "Ctrl+", false);
    row(Qt::Key_F1, Qt::NoModifier, "", false);
    row(Qt::Key_Alt, Qt::ControlModifier | Qt::AltModifier, "Ctrl+Alt+", false);
}

void TestHotkeyEditorKeys::capturesInField()
{
    QFETCH(int, key);
    QFETCH(Qt::KeyboardModifiers, modifiers);
    QFETCH(QString, text);
    QFETCH(bool, captured);
    m->select(box);
    m->field()->setFocus();
    m->press(Qt::Key_Q); // something to forget
    QTest::keyPress(m->field(), Qt::Key(key), modifiers);
    QCOMPARE(m->field()->text(), text);
    QCOMPARE(m->canAssign(), captured);
    QTest::keyRelease(m->field(), Qt::Key(key), modifiers);
    QCOMPARE(m->field()->text(), captured ? text : QString());
    QVERIFY(m->field()->hasFocus());
}

void TestHotkeyEditorKeys::keepsShortcutsOfTheHostQuiet()
{
    QAction action;
    action.setShortcuts({QKeySequence(s("Ctrl+G")), QKeySequence(s("Tab"))});
    action.setShortcutContext(Qt::ApplicationShortcut);
    m->editor->addAction(&action);
    QSignalSpy fired(&action, &QAction::triggered);
    m->select(box);
    QTest::keyClick(m->tree(), Qt::Key_G, Qt::ControlModifier);
    QCOMPARE(fired.count(), 1); // it works elsewhere
    m->field()->setFocus();
    m->press(Qt::Key_G, Qt::ControlModifier);
    QCOMPARE(m->field()->text(), s("Ctrl+G"));
    m->press(Qt::Key_Tab);
    searchByHotkeys();
    QTest::keyClick(m->search(), Qt::Key_G, Qt::ControlModifier);
    QCOMPARE(m->search()->text(), s("Ctrl+G"));
    QCOMPARE(fired.count(), 1);
}

void TestHotkeyEditorKeys::leavesFields_data()
{
    QTest::addColumn<bool>("isSearch");
    QTest::addColumn<bool>("isBack");
    QTest::addColumn<QString>("next");
    QTest::newRow("new hotkey, on") << false << false << "scrollAreaAssignedHotkeys";
    QTest::newRow("new hotkey, back") << false << true << "HotkeyEditor_keyActionsTreeView";
    QTest::newRow("search, on") << true << false << "HotkeyEditor_hotkeyRadioButton";
    QTest::newRow("search, back") << true << true << "HotkeyEditor_hotkeyFilterComboBox";
}

// Plain Tab is a hotkey like others, so another key must lead out.
void TestHotkeyEditorKeys::leavesFields()
{
    QFETCH(bool, isSearch);
    QFETCH(bool, isBack);
    QAction action; // the host would change pages
    action.setShortcuts({QKeySequence(s("Ctrl+Tab")), QKeySequence(s("Ctrl+Shift+Tab"))});
    m->editor->addAction(&action);
    QSignalSpy fired(&action, &QAction::triggered);
    searchByHotkeys();
    m->select(sphere);
    QLineEdit *left = isSearch ? m->search() : m->field();
    left->setFocus();
    QTest::keyClick(left, Qt::Key_Q);
    QTest::keyPress(left, isBack ? Qt::Key_Backtab : Qt::Key_Tab,
                    isBack ? Qt::ControlModifier | Qt::ShiftModifier : Qt::ControlModifier);
    QTEST(focused(), "next");
    QVERIFY(!m->canAssign());
    QCoreApplication::processEvents();
    QVERIFY(left->text().isEmpty());
    QVERIFY(m->rows().contains(s("Sphere"))); // no search is left
    QCOMPARE(fired.count(), 0);
}

void TestHotkeyEditorKeys::tabsThroughRows()
{
    m->close();
    auto holder = dialogOfTheHost();
    auto *ok = addButton(holder.get());
    m->open(std::move(holder));
    auto *scrollArea = m->child("scrollAreaAssignedHotkeys");
    QWidget::setTabOrder(scrollArea, ok);
    m->select(sphere);
    m->enter(Qt::Key_F7);
    m->clickRow("S");
    scrollArea->setFocus();
    for (const QString &next : list("Remove F7|Remove Ctrl+S|Undo S|ok")) {
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
        QCOMPARE(focused(), next);
    }
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
        return focused();
    };
    QCOMPARE(pressSpace("Remove S"), s("Undo S"));
    QCOMPARE(pressSpace("Remove Ctrl+S"), s("Undo Ctrl+S"));
    QCOMPARE(pressSpace("Undo S"), s("Remove S"));

    // Removing what was just assigned makes all rows anew in between.
    m->assign(sphere, "Ctrl+S");
    m->assign(sphere, "F7");
    QCOMPARE(pressSpace("Remove F7"), s("Undo F7"));

    rowButton("Remove S")->setFocus();
    m->assign(box, "S"); // takes it away, without a row in its place
    QCOMPARE(focused(), s("scrollAreaAssignedHotkeys"));
    m->field()->setFocus();
    m->unassign(sphere, "Ctrl+S");
    QVERIFY(m->field()->hasFocus()); // only the focus of a row has to go elsewhere
}

void TestHotkeyEditorKeys::leavesReturnToTheHost()
{
    m->close();
    m->open(dialogOfTheHost());
    m->select(sphere);
    m->press(Qt::Key_F7);
    rowButton("Remove S")->setFocus(); // the one that would be pressed later on
    m->search()->setFocus();
    QTest::keyClick(m->search(), Qt::Key_Return);
    QCOMPARE(m->hotkeys(sphere), s("S, Ctrl+S"));
    QVERIFY(m->dialog->isVisible());

    auto *ok = addButton(m->dialog.get());
    ok->show();
    QSignalSpy clicked(ok, &QPushButton::clicked);
    m->search()->clearFocus();
    m->search()->setFocus();
    ok->setDefault(true);
    QTest::keyClick(m->search(), Qt::Key_Return);
    QCOMPARE(clicked.count(), 1);
    QCOMPARE(m->hotkeys(sphere), s("S, Ctrl+S"));
}

void TestHotkeyEditorKeys::describesWhatIsSeen()
{
    m->select(sphere);
    m->press(Qt::Key_B);
    QCOMPARE(descriptionOf(m->field()), s("Conflicts with: Box"));
    m->press(Qt::Key_Q);
    QVERIFY(!descriptionOf(m->field()).contains(s("Box")));
    m->press(Qt::Key_B);
    m->click("HotkeyEditor_removeShortcutBtn");
    QVERIFY(!descriptionOf(m->field()).contains(s("Box")));
    QCOMPARE(descriptionOf(m->sets()), s("[Unsaved Changes*]"));
    m->click("HotkeyEditor_undoRemoveBtn");
    QVERIFY(!descriptionOf(m->sets()).contains(s("Unsaved")));
}

QTEST_MAIN(TestHotkeyEditorKeys)
#include "tst_HotkeyEditorKeys.moc"
