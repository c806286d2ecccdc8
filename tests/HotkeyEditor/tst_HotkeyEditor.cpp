#include "EditorHarness.h"

#include <UiCustomizations/HotkeySetWatcher.h>
#include <UiCustomizations/QvelHotkeyHistory.h>

#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QHeaderView>
#include <QMenu>
#include <QPushButton>
#include <QRadioButton>
#include <QVBoxLayout>
#include <QtTest>

using CUI::QvelShortcutsWidget;

namespace {

const QString allRows = s("Array of <b>Box</b>, Bevel, Box, Sphere");

/// Who has the focus: the accessible name of a button in a row, the object name of others.
QString focused()
{
    const QWidget *widget = QApplication::focusWidget();
    if (widget == nullptr)
        return {};
    return widget->objectName().endsWith(s("AssignedButton")) ? widget->accessibleName()
                                                              : widget->objectName();
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

/// The left and the right side of the editor, through real events.
class TestHotkeyEditor : public EditorTest
{
    Q_OBJECT

private Q_SLOTS:
    void selects();
    void assigns();
    void showsConflict();
    void removesFromHolderAndUndoes();
    void removesRowsAndUndoes();
    void refusesSeventhHotkey();
    void searchesActions();
    void searchesHotkeys();
    void filters();
    void offersAMenuForARow();
    void resetsToDefault();
    void listsWhatAReloadHasCustomized();
    void followsTheStore();
    void keepsShortcutsOfTheHostQuiet();
    void leavesFields_data();
    void leavesFields();
    void tabsThroughRows();
    void keepsFocusAmongRows();
    void leavesReturnToTheHost();

private:
    void searchByHotkeys() const;
    QPushButton *rowButton(const char *accessibleName) const;
    bool showsAll(const char *controls) const;
    bool showsConflictControls() const
    {
        return showsAll("alreadyAssignedLabel|assignedToLabel|removeShortcutBtn");
    }
    bool showsReassignControls() const
    {
        return showsAll("sucessRemoveLabel|removedFromLabel|undoRemoveBtn");
    }
    bool showsNoAction() const;
    /// Chooses from the menu of the current row ("Entry|Entry of its submenu"); false if disabled.
    bool choose(const char *path) const;
};

// All of the controls, or none of them. The last one is a button.
bool TestHotkeyEditor::showsAll(const char *controls) const
{
    const QWidget *control = nullptr;
    QSet<bool> shown;
    for (const QString &name : list(controls)) {
        control = m->child((s("HotkeyEditor_") + name).toLatin1());
        shown << control->isVisible();
    }
    if (shown.size() > 1 || control->isEnabled() != control->isVisible())
        QTest::qFail("only some of the controls are shown", __FILE__, __LINE__);
    return control->isVisible();
}

bool TestHotkeyEditor::showsNoAction() const
{
    return m->editor->currentAction() == nullptr && !m->shows("newHotkeysGroupBox")
           && m->label("HotkeyEditor_selectedActionLabel") == s("<b>No action selected</b>");
}

void TestHotkeyEditor::selects()
{
    QVERIFY(!m->shows("newHotkeysGroupBox"));
    m->select(sphere);
    QCOMPARE(m->label("HotkeyEditor_selectedActionLabel"), s("<b>Sphere</b> (Viewport)"));
    QVERIFY(!m->shows("HotkeyEditor_actionDescriptionLabel"));
    QVERIFY(m->shows("newHotkeysGroupBox"));
    QCOMPARE(m->assigned(), s("Ctrl+S, S")); // each on top of the one before
    QCOMPARE(m->editor->currentAction()->identifier(), sphere);
    QVERIFY(!showsConflictControls() && !showsReassignControls());

    m->select(boxes); // its name is no markup
    QCOMPARE(m->label("HotkeyEditor_selectedActionLabel"),
             s("<b>Array of &lt;b&gt;Box&lt;/b&gt;</b> (Viewport)"));
    QCOMPARE(m->label("HotkeyEditor_actionDescriptionLabel"),
             s("Press and hold to temporarily activate."));
    QVERIFY(m->shows("HotkeyEditor_actionDescriptionLabel"));
    QCOMPARE(m->assigned(), QString());

    m->editor->clearSelection();
    QVERIFY(showsNoAction());
    m->editor->setCurrentAction({9, s("nobody")}, true);
    QVERIFY(showsNoAction());
    m->editor->setCurrentAction(bevel, true);
    QCOMPARE(m->editor->currentAction()->identifier(), bevel);
    QVERIFY(m->field()->hasFocus());
}

void TestHotkeyEditor::assigns()
{
    QSignalSpy modified(m->editor.get(), &QvelShortcutsWidget::presetModified);
    m->select(box);
    QVERIFY(!m->canAssign());
    m->press(Qt::Key_K, Qt::ControlModifier | Qt::ShiftModifier);
    QCOMPARE(m->field()->text(), s("Ctrl+Shift+K"));
    QVERIFY(m->canAssign());
    m->click("HotkeyEditor_assignShortcutBtn");
    QCOMPARE(m->hotkeys(box), s("B, F5, Ctrl+Shift+K"));
    QCOMPARE(m->assigned(), s("Ctrl+Shift+K, F5, B"));
    QVERIFY(m->field()->text().isEmpty() && !m->canAssign());
    m->enter(Qt::Key_L);
    QCOMPARE(modified.count(), 1); // once for the series of changes
    QVERIFY(modified.at(0).at(0).toBool() && m->editor->isModified());

    m->press(Qt::Key_B); // its own hotkey: no conflict, nothing to do
    QVERIFY(!showsConflictControls() && m->canAssign());
    const std::size_t steps = m->manager.currentTransformations().size();
    m->click("HotkeyEditor_assignShortcutBtn");
    QCOMPARE(m->manager.currentTransformations().size(), steps);
}

void TestHotkeyEditor::showsConflict()
{
    m->select(sphere);
    m->press(Qt::Key_B);
    QVERIFY(showsConflictControls() && !m->canAssign());
    QCOMPARE(m->label("HotkeyEditor_assignedToLabel"), s("Box"));
    QVERIFY(m->shows("HotkeyEditor_hotkeyListSeparatorLine"));
    m->select(boxes); // without rows there is nothing to separate
    m->press(Qt::Key_B);
    QVERIFY(showsConflictControls());
    QVERIFY(!m->shows("HotkeyEditor_hotkeyListSeparatorLine"));
    m->press(Qt::Key_Q);
    QVERIFY(!showsConflictControls());

    m->select(bevel); // shares with actions of the other context
    m->press(Qt::Key_S, Qt::ControlModifier);
    QVERIFY(!showsConflictControls());
    m->click("HotkeyEditor_assignShortcutBtn");
    QCOMPARE(m->hotkeys(bevel), s("B, Ctrl+S"));
    QCOMPARE(m->hotkeys(sphere), s("S, Ctrl+S"));
}

void TestHotkeyEditor::removesFromHolderAndUndoes()
{
    m->select(sphere);
    m->press(Qt::Key_B);
    m->click("HotkeyEditor_removeShortcutBtn");
    QCOMPARE(m->hotkeys(box), s("F5"));
    QVERIFY(showsReassignControls() && !showsConflictControls());
    QCOMPARE(m->label("HotkeyEditor_removedFromLabel"), s("Box"));
    QCOMPARE(m->field()->text(), s("B"));
    QVERIFY(m->canAssign());
    m->click("HotkeyEditor_undoRemoveBtn");
    QCOMPARE(m->hotkeys(box), s("F5, B"));
    QVERIFY(!showsReassignControls() && showsConflictControls());
    QVERIFY(!m->canAssign() && !m->editor->isModified());

    m->click("HotkeyEditor_removeShortcutBtn");
    m->click("HotkeyEditor_assignShortcutBtn");
    QVERIFY(!showsReassignControls());
    QCOMPARE(m->hotkeys(sphere), s("S, Ctrl+S, B"));
}

void TestHotkeyEditor::removesRowsAndUndoes()
{
    m->select(sphere);
    m->clickRow("S");
    QCOMPARE(m->hotkeys(sphere), s("Ctrl+S"));
    QCOMPARE(m->assigned(), s("Ctrl+S, (S)"));
    m->clickRow("Ctrl+S");
    QCOMPARE(m->assigned(), s("(S), (Ctrl+S)"));
    m->clickRow("S");
    QCOMPARE(m->hotkeys(sphere), s("S"));
    QCOMPARE(m->assigned(), s("S, (Ctrl+S)"));
    const auto *list = m->child("assignedHotkeysWidget");
    QVERIFY(list->findChild<QFrame *>(s("line"), Qt::FindDirectChildrenOnly));
    m->clickRow("Ctrl+S");
    QCOMPARE(m->assigned(), s("Ctrl+S, S"));
    QVERIFY(!list->findChild<QFrame *>(s("line"), Qt::FindDirectChildrenOnly));
    QVERIFY(!m->editor->isModified());

    // Removing what was just assigned leaves nothing unsaved, which rebuilds the list in between.
    m->enter(Qt::Key_F7);
    m->clickRow("F7");
    QVERIFY(!m->editor->isModified());
    QCOMPARE(m->assigned(), s("Ctrl+S, S, (F7)"));
    m->clickRow("F7");
    QCOMPARE(m->assigned(), s("F7, Ctrl+S, S"));
}

// The removal that could be undone has not happened any more.
void TestHotkeyEditor::refusesSeventhHotkey()
{
    m->select(boxes);
    for (const int key : {Qt::Key_1, Qt::Key_2, Qt::Key_3, Qt::Key_4, Qt::Key_5, Qt::Key_6})
        m->enter(key);
    dialogs->expectBox("Too Many Hotkeys", QMessageBox::Ok);
    m->enter(Qt::Key_7);
    QCOMPARE(m->assigned(), s("6, 5, 4, 3, 2, 1"));
    QCOMPARE(m->field()->text(), s("7"));
}

void TestHotkeyEditor::searchesActions()
{
    auto *header = m->tree()->header();
    m->tree()->sortByColumn(1, Qt::DescendingOrder);
    const QString before = m->rows();
    QTest::keyClicks(m->search(), s("box"));
    QCOMPARE(m->rows(), s("Box, Array of <b>Box</b>")); // ranked
    QVERIFY(!header->isSortIndicatorShown());
    QTest::keyClick(m->search(), Qt::Key_Escape);
    QVERIFY(m->search()->text().isEmpty());
    QCOMPARE(m->rows(), before);
    QVERIFY(header->isSortIndicatorShown());
    QCOMPARE(header->sortIndicatorSection(), 1);
    QCOMPARE(header->sortIndicatorOrder(), Qt::DescendingOrder);

    QTest::keyClicks(m->search(), s("box"));
    QTest::mouseClick(header->viewport(), Qt::LeftButton, Qt::NoModifier,
                      QPoint(header->sectionViewportPosition(0) + 5, header->height() / 2));
    QVERIFY(header->isSortIndicatorShown()); // a click on the header ends the ranking
    const bool isAscending = header->sortIndicatorOrder() == Qt::AscendingOrder;
    QCOMPARE(m->rows(),
             isAscending ? s("Array of <b>Box</b>, Box") : s("Box, Array of <b>Box</b>"));
}

void TestHotkeyEditor::searchesHotkeys()
{
    QTest::keyClicks(m->search(), s("be"));
    m->child<QRadioButton>("HotkeyEditor_hotkeyRadioButton")->click();
    QVERIFY(m->search()->text().isEmpty());
    QCOMPARE(m->rows(), allRows);
    QCOMPARE(m->search()->placeholderText(), s("Type to search by Hotkeys..."));
    QTest::keyClick(m->search(), Qt::Key_B);
    QCOMPARE(m->search()->text(), s("B"));
    QCOMPARE(m->rows(), s("Bevel, Box"));
    QCOMPARE(m->tree()->header()->sortIndicatorSection(), 1);
    m->assign(bevel, "S");
    QTest::keyClick(m->search(), Qt::Key_S);
    // The search for a name has left its ranking on, which orders actions of the same hotkey.
    QCOMPARE(m->rows(), s("Sphere, Bevel"));
    QTest::keyClick(m->search(), Qt::Key_S, Qt::ControlModifier);
    QCOMPARE(m->rows(), s("Sphere"));
    QTest::keyClick(m->search(), Qt::Key_Escape); // no way to end the search, only no hotkey
    QCOMPARE(m->rows(), allRows);
    QCOMPARE(m->tree()->header()->sortIndicatorSection(), 0);
    m->child<QRadioButton>("HotkeyEditor_actionRadioButton")->click();
    QCOMPARE(m->search()->placeholderText(), s("Type to search by Actions..."));
    QTest::keyClicks(m->search(), s("sph"));
    QCOMPARE(m->rows(), s("Sphere"));
}

void TestHotkeyEditor::filters()
{
    m->select(sphere);
    auto *contexts = m->child<QComboBox>("HotkeyEditor_contextComboBox");
    m->editor->setCurrentContext(2);
    QCOMPARE(contexts->currentText(), s("Mesh"));
    QCOMPARE(m->rows(), s("Bevel"));
    m->editor->setCurrentContext(77);
    QCOMPARE(contexts->currentText(), s("Mesh"));
    contexts->setCurrentIndex(0);
    QCOMPARE(m->rows(), allRows);
    QCOMPARE(m->editor->currentAction()->identifier(), sphere); // it was out of sight for a while
    QCOMPARE(m->tree()->currentIndex().data().toString(), s("Sphere"));
    QCOMPARE(m->assigned(), s("Ctrl+S, S"));

    const QStringList filtered{allRows, s("Bevel, Box, Sphere"), s("Box"), QString()};
    for (const int filter : {1, 2, 3, 0}) {
        m->editor->setHotkeyFilter(filter);
        QCOMPARE(m->rows(), filtered.at(filter));
    }
    m->editor->sortActionTreeByColumn(CUI::QvelActionItemModel::GroupColumn);
    QVERIFY(m->rows().startsWith(s("Bevel, ")));
}

bool TestHotkeyEditor::choose(const char *path) const
{
    QTest::keyClick(m->tree(), Qt::Key_F10, Qt::ShiftModifier);
    for (const QString &text : list(path)) {
        QWidget *menu = nullptr;
        QAction *entry = nullptr;
        const auto isListed = [&] {
            menu = QApplication::activePopupWidget();
            for (QAction *action : menu->actions())
                entry = action->text() == text ? action : entry;
            return entry != nullptr;
        };
        if (!QTest::qWaitFor(isListed))
            qFatal("the menu has no such entry");
        if (!entry->isEnabled())
            return !QTest::qWaitFor([menu] { return menu->close(); });
        QTest::mouseClick(menu, Qt::LeftButton, {},
                          static_cast<QMenu *>(menu)->actionGeometry(entry).center());
    }
    QCoreApplication::processEvents();
    return true;
}

void TestHotkeyEditor::offersAMenuForARow()
{
    m->select(sphere);
    QVERIFY(choose("Copy Hotkey"));
    QCOMPARE(QGuiApplication::clipboard()->text(), s("S, Ctrl+S"));
    QVERIFY(choose("Show What Has This Hotkey|Ctrl+S"));
    QCOMPARE(m->rows(), s("Sphere"));
    m->editor->searchForHotkey(QString());
    m->select(boxes);
    for (const char *entry : {"Copy Hotkey", "Show What Has This Hotkey", "Reset to Default"})
        QVERIFY(!choose(entry));
    m->select(bevel);
    QVERIFY(!choose("Reset Group to Default"));
    QVERIFY(choose("Show What Has This Hotkey"));
    QCOMPARE(m->rows(), s("Bevel, Box"));
}

void TestHotkeyEditor::resetsToDefault()
{
    const auto tip = [this] {
        const QModelIndex current = m->tree()->currentIndex();
        return current.data(Qt::ToolTipRole) == current.data(Qt::AccessibleDescriptionRole)
                       ? current.data(Qt::ToolTipRole).toString()
                       : s("differs");
    };
    CUI::QvelHotkeyHistory history(&m->manager);
    m->assign(box, "S");
    m->assign(boxes, "F7");
    m->select(boxes);
    QCOMPARE(tip(), s("Default: none"));
    m->select(bevel);
    QCOMPARE(tip(), QString());
    m->select(sphere);
    QCOMPARE(tip(), s("Default: S, Ctrl+S"));
    const std::pair<QMessageBox::StandardButton, QString> answers[] = {
            {QMessageBox::Cancel, s("Ctrl+S")},
            {QMessageBox::No, s("Ctrl+S")},
            {QMessageBox::Yes, s("Ctrl+S, S")}};
    for (const auto &[button, hotkeys] : answers) {
        dialogs->expectBox("Reset to Default", button);
        QVERIFY(choose("Reset to Default"));
        QCOMPARE(m->hotkeys(sphere), hotkeys);
    }
    QVERIFY(dialogs->texts().last().contains(s("\nS: Box\n")));
    QCOMPARE(m->hotkeys(box), s("B, F5"));
    QCOMPARE(tip(), QString());
    QVERIFY(!choose("Reset to Default"));

    QVERIFY(choose("Reset Group to Default"));
    QVERIFY(!choose("Reset All to Default"));
    history.undo();
    QCOMPARE(history.redoText(), s("Reset Viewport to Default"));
    history.undo();
    QCOMPARE(m->hotkeys(box), s("B, F5, S"));
    QCOMPARE(m->hotkeys(boxes), s("F7"));
}

void TestHotkeyEditor::listsWhatAReloadHasCustomized()
{
    using Step = CUI::ShortcutTransformation;
    CUI::HotkeySetWatcher watcher(&m->manager);
    m->editor->setHotkeyFilter(2);
    QCOMPARE(m->rows(), s("Box"));
    CUI::QvelShortcutManager::writeTransforms(m->userSet, {{Step::Assign, bevel, s("F8"), {}}});
    QTRY_COMPARE(m->rows(), s("Bevel"));
}

// Edits that do not come from the editor.
void TestHotkeyEditor::followsTheStore()
{
    m->select(sphere);
    m->assign(sphere, "F9");
    QCOMPARE(m->assigned(), s("F9, Ctrl+S, S"));
    m->assign(box, "S"); // takes it from the selected action
    QCOMPARE(m->assigned(), s("F9, Ctrl+S"));
    m->press(Qt::Key_F9);
    m->manager.clearTransforms();
    QCOMPARE(m->assigned(), s("Ctrl+S, S"));
    QVERIFY(!m->editor->isModified());
    m->manager.clearShortcuts();
    QCOMPARE(m->assigned(), QString());
    QVERIFY(m->field()->text().isEmpty());
}

void TestHotkeyEditor::searchByHotkeys() const
{
    m->child<QRadioButton>("HotkeyEditor_hotkeyRadioButton")->click();
}

QPushButton *TestHotkeyEditor::rowButton(const char *accessibleName) const
{
    for (auto *found : m->child("assignedHotkeysWidget")->findChildren<QPushButton *>())
        if (found->accessibleName() == s(accessibleName))
            return found;
    qFatal("no button '%s'", accessibleName);
}

void TestHotkeyEditor::keepsShortcutsOfTheHostQuiet()
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

void TestHotkeyEditor::leavesFields_data()
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
void TestHotkeyEditor::leavesFields()
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

void TestHotkeyEditor::tabsThroughRows()
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
void TestHotkeyEditor::keepsFocusAmongRows()
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

void TestHotkeyEditor::leavesReturnToTheHost()
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

QTEST_MAIN(TestHotkeyEditor)
#include "tst_HotkeyEditor.moc"
