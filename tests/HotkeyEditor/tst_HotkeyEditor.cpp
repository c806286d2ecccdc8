#include "EditorHarness.h"

#include <QApplication>
#include <QComboBox>
#include <QDialog>
#include <QGroupBox>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QListView>
#include <QMenu>
#include <QMessageBox>
#include <QPushButton>
#include <QRadioButton>
#include <QSignalSpy>
#include <QToolButton>
#include <QTreeView>
#include <QtMath>
#include <QtTest>

#include <VelUtil.h>

#include <algorithm>

using CUI::QvelShortcutsWidget;

namespace {

QString s(const char *text)
{
    return QString::fromUtf8(text);
}

} // namespace

/// The left and the right side of the editor, through real events.
class TestHotkeyEditor : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup() { m.reset(); }
    void hasItsTexts();
    void scales();
    void selects();
    void assigns();
    void showsConflict();
    void sharesAcrossContexts();
    void removesAndUndoes();
    void removesRowAndUndoes();
    void removesRowWithoutEdits();
    void takesRemovalBack_data();
    void takesRemovalBack();
    void refusesSeventhHotkey();
    void searchesActions();
    void searchesHotkeys();
    void headerEndsRanking();
    void filters();
    void keepsSelectionOverFilters();
    void followsTheStore();
    void reloadsActions();
    void listsTransformations();
    void colours();
    void followsTheLanguage();

private:
    std::unique_ptr<EditorHarness> m;
    QLabel *label(const char *name) const { return m->child<QLabel>(name); }
    QPushButton *button(const char *name) const { return m->child<QPushButton>(name); }
    QLineEdit *field() const { return m->child<QLineEdit>("HotkeyEditor_shortcutLineEdit"); }
    QLineEdit *search() const { return m->child<QLineEdit>("HotkeyEditor_searchLineEdit"); }
    bool showsConflictControls() const;
    bool showsReassignControls() const;
};

void TestHotkeyEditor::init()
{
    VelSDK::SetUIScaleFactor(1.0);
    m = std::make_unique<EditorHarness>();
    m->open();
}

bool TestHotkeyEditor::showsConflictControls() const
{
    const bool shown = button("HotkeyEditor_removeShortcutBtn")->isVisible();
    const bool agrees = label("HotkeyEditor_alreadyAssignedLabel")->isVisible() == shown
                        && label("HotkeyEditor_assignedToLabel")->isVisible() == shown
                        && button("HotkeyEditor_removeShortcutBtn")->isEnabled() == shown;
    return agrees && shown;
}

bool TestHotkeyEditor::showsReassignControls() const
{
    const bool shown = button("HotkeyEditor_undoRemoveBtn")->isVisible();
    const bool agrees = label("HotkeyEditor_sucessRemoveLabel")->isVisible() == shown
                        && label("HotkeyEditor_removedFromLabel")->isVisible() == shown
                        && button("HotkeyEditor_undoRemoveBtn")->isEnabled() == shown;
    return agrees && shown;
}

void TestHotkeyEditor::hasItsTexts()
{
    const auto check = [this](const char *name, const char *text, const char *toolTip) {
        const auto *widget = m->child<QWidget>(name);
        const QVariant shown = widget->property("text");
        if (shown.isValid() && *text != '\0')
            QCOMPARE(shown.toString(), s(text));
        QCOMPARE(widget->toolTip(), s(toolTip));
    };
    QCOMPARE(m->editor->objectName(), s("QvelShortcutsWidget"));
    QCOMPARE(m->editor->windowTitle(), s("QvelShortcutsWidget"));
    check("HotkeyEditor_toolButtonSavePreset", "Save", "Save changes...");
    check("HotkeyEditor_hotkeySetLabel", "Hotkey Set:", "");
    check("HotkeyEditor_toolButtonPresetOptions", "...", "Save, load...");
    check("HotkeyEditor_hotkeySetComboBox", "", "Change the active...");
    check("HotkeyEditor_hotkeyFilterComboBox", "", "Filter the list... assigned");
    check("HotkeyEditor_groupLabel", "Group:", "");
    check("HotkeyEditor_contextComboBox", "", "Filter the list...context");
    check("HotkeyEditor_filterLabel", "Filter:", "");
    check("HotkeyEditor_searchLineEdit", "", "Press keys and modifiers...");
    check("HotkeyEditor_hotkeyRadioButton", "Hotkeys", "Search will be... hotkey");
    check("HotkeyEditor_actionRadioButton", "Actions", "Search will be... action");
    check("HotkeyEditor_shortcutLineEdit", "Type new hotkey...", "Press keys and... assign");
    check("HotkeyEditor_assignShortcutBtn", "Assign", "Assigns the hotkey...");
    check("HotkeyEditor_undoRemoveBtn", "Undo", "Reassign the hotkey...");
    check("HotkeyEditor_sucessRemoveLabel", "Removed from:", "");
    check("HotkeyEditor_alreadyAssignedLabel", "Conflicts with:", "");
    check("HotkeyEditor_removeShortcutBtn", "Remove", "Removes the assignment...");
    check("HotkeyEditor_selectedActionLabel", "No action selected", "");
    check("HotkeyEditor_actionDescriptionLabel",
          "Select an action in the table on the left to edit its hotkeys", "");
    const QFontMetricsF metrics(m->editor->font());
    const int widest = qCeil(std::max(metrics.horizontalAdvance(s("Group:")),
                                      metrics.horizontalAdvance(s("Filter:"))));
    QCOMPARE(m->child<QWidget>("HotkeyEditor_groupLabel")->width(), widest);
    QCOMPARE(m->child<QWidget>("HotkeyEditor_filterLabel")->width(), widest);
    QCOMPARE(m->child<QGroupBox>("newHotkeysGroupBox")->title(), s("Hotkeys"));
    QVERIFY(!m->child<QGroupBox>("newHotkeysGroupBox")->isVisible());
    QCOMPARE(field()->placeholderText(), s("Press keys..."));
    QCOMPARE(search()->placeholderText(), s("Type to search by Actions..."));

    QStringList options;
    for (const QAction *action :
         m->child<QToolButton>("HotkeyEditor_toolButtonPresetOptions")->menu()->actions())
        options << (action->isSeparator() ? s("-") : action->text());
    QCOMPARE(options, QStringList({s("Save"), s("Save As..."), s("-"), s("Load From File..."),
                                   s("-"), s("Reset"), s("-"), s("Open File Location"), s("-"),
                                   s("Import Legacy Hotkeys...")}));
    QCOMPARE(m->chosenSet(), s("Mine"));
}

void TestHotkeyEditor::scales()
{
    VelSDK::SetUIScaleFactor(1.5);
    m->close();
    m->open();
    QCOMPARE(m->child<QWidget>("HotkeyEditor_hotkeySetComboBox")->minimumWidth(), 270);
    QCOMPARE(m->child<QWidget>("HotkeyEditor_hotkeySetComboBox")->maximumWidth(), 1200);
    QCOMPARE(search()->minimumWidth(), 180);
    QCOMPARE(search()->maximumWidth(), 465);
}

void TestHotkeyEditor::selects()
{
    m->select(sphere);
    QCOMPARE(label("HotkeyEditor_selectedActionLabel")->text(), s("<b>Sphere</b> (Viewport)"));
    QVERIFY(!label("HotkeyEditor_actionDescriptionLabel")->isVisible());
    QVERIFY(m->child<QGroupBox>("newHotkeysGroupBox")->isVisible());
    QCOMPARE(m->assigned(), s("Ctrl+S, S")); // each on top of the one before
    QCOMPARE(m->editor->currentAction()->identifier(), sphere);
    QVERIFY(field()->text().isEmpty());
    QVERIFY(!showsConflictControls() && !showsReassignControls());

    m->select(boxes); // its name is no markup
    QCOMPARE(label("HotkeyEditor_selectedActionLabel")->text(),
             s("<b>Array of &lt;b&gt;Box&lt;/b&gt;</b> (Viewport)"));
    QCOMPARE(label("HotkeyEditor_actionDescriptionLabel")->text(),
             s("Press and hold to temporarily activate."));
    QVERIFY(label("HotkeyEditor_actionDescriptionLabel")->isVisible());
    QCOMPARE(m->assigned(), QString());

    m->editor->clearSelection();
    QVERIFY(m->editor->currentAction() == nullptr);
    QCOMPARE(label("HotkeyEditor_selectedActionLabel")->text(), s("<b>No action selected</b>"));
    QVERIFY(!m->child<QGroupBox>("newHotkeysGroupBox")->isVisible());

    m->editor->setCurrentAction({9, s("nobody")}, true);
    QVERIFY(m->editor->currentAction() == nullptr);
    m->editor->setCurrentAction(bevel, true);
    QCOMPARE(m->editor->currentAction()->identifier(), bevel);
    QVERIFY(field()->hasFocus());
}

void TestHotkeyEditor::assigns()
{
    QSignalSpy modified(m->editor.get(), &QvelShortcutsWidget::presetModified);
    m->select(box);
    QVERIFY(!button("HotkeyEditor_assignShortcutBtn")->isEnabled());
    m->press(Qt::Key_K, Qt::ControlModifier | Qt::ShiftModifier);
    QCOMPARE(field()->text(), s("Ctrl+Shift+K"));
    QVERIFY(button("HotkeyEditor_assignShortcutBtn")->isEnabled());
    m->click("HotkeyEditor_assignShortcutBtn");
    QCOMPARE(m->manager.getShortcutsFromActionId(box), s("B, F5, Ctrl+Shift+K"));
    QCOMPARE(m->assigned(), s("Ctrl+Shift+K, F5, B"));
    QVERIFY(field()->text().isEmpty());
    QVERIFY(!button("HotkeyEditor_assignShortcutBtn")->isEnabled());
    m->press(Qt::Key_L);
    m->click("HotkeyEditor_assignShortcutBtn");
    QCOMPARE(modified.count(), 1); // once for the series of changes
    QVERIFY(modified.at(0).at(0).toBool() && m->editor->isModified());

    m->press(Qt::Key_B); // its own hotkey: no conflict, nothing to do
    QVERIFY(!showsConflictControls());
    QVERIFY(button("HotkeyEditor_assignShortcutBtn")->isEnabled());
    const std::size_t steps = m->manager.currentTransformations().size();
    m->click("HotkeyEditor_assignShortcutBtn");
    QCOMPARE(m->manager.currentTransformations().size(), steps);
}

void TestHotkeyEditor::showsConflict()
{
    m->select(sphere);
    m->press(Qt::Key_B);
    QVERIFY(showsConflictControls());
    QCOMPARE(label("HotkeyEditor_assignedToLabel")->text(), s("Box"));
    QVERIFY(!button("HotkeyEditor_assignShortcutBtn")->isEnabled());
    QVERIFY(m->child<QFrame>("HotkeyEditor_hotkeyListSeparatorLine")->isVisible());
    m->select(boxes); // without rows there is nothing to separate
    m->press(Qt::Key_B);
    QVERIFY(showsConflictControls());
    QVERIFY(!m->child<QFrame>("HotkeyEditor_hotkeyListSeparatorLine")->isVisible());
    m->press(Qt::Key_Q);
    QVERIFY(!showsConflictControls());
}

void TestHotkeyEditor::sharesAcrossContexts()
{
    m->select(bevel);
    m->press(Qt::Key_S, Qt::ControlModifier); // of an action of the other context
    QVERIFY(!showsConflictControls());
    m->click("HotkeyEditor_assignShortcutBtn");
    QCOMPARE(m->manager.getShortcutsFromActionId(bevel), s("B, Ctrl+S"));
    QCOMPARE(m->manager.getShortcutsFromActionId(sphere), s("S, Ctrl+S"));
}

void TestHotkeyEditor::removesAndUndoes()
{
    m->select(sphere);
    m->press(Qt::Key_B);
    m->click("HotkeyEditor_removeShortcutBtn");
    QCOMPARE(m->manager.getShortcutsFromActionId(box), s("F5"));
    QVERIFY(showsReassignControls() && !showsConflictControls());
    QCOMPARE(label("HotkeyEditor_removedFromLabel")->text(), s("Box"));
    QCOMPARE(field()->text(), s("B"));
    QVERIFY(button("HotkeyEditor_assignShortcutBtn")->isEnabled());
    m->click("HotkeyEditor_undoRemoveBtn");
    QCOMPARE(m->manager.getShortcutsFromActionId(box), s("F5, B"));
    QVERIFY(!showsReassignControls() && showsConflictControls());
    QVERIFY(!button("HotkeyEditor_assignShortcutBtn")->isEnabled());
    QVERIFY(!m->editor->isModified());

    m->click("HotkeyEditor_removeShortcutBtn");
    m->click("HotkeyEditor_assignShortcutBtn");
    QVERIFY(!showsReassignControls());
    QCOMPARE(m->manager.getShortcutsFromActionId(sphere), s("S, Ctrl+S, B"));
}

void TestHotkeyEditor::removesRowAndUndoes()
{
    m->select(sphere);
    m->clickRow(s("S"));
    QCOMPARE(m->manager.getShortcutsFromActionId(sphere), s("Ctrl+S"));
    QCOMPARE(m->assigned(), s("Ctrl+S, (S)"));
    m->clickRow(s("Ctrl+S"));
    QCOMPARE(m->assigned(), s("(S), (Ctrl+S)"));
    m->clickRow(s("S"));
    QCOMPARE(m->manager.getShortcutsFromActionId(sphere), s("S"));
    QCOMPARE(m->assigned(), s("S, (Ctrl+S)"));
    QVERIFY(m->editor->findChild<QFrame *>(s("line")) != nullptr);
    m->clickRow(s("Ctrl+S"));
    QCOMPARE(m->assigned(), s("Ctrl+S, S"));
    QVERIFY(m->child<QWidget>("assignedHotkeysWidget")
                    ->findChild<QFrame *>(s("line"), Qt::FindDirectChildrenOnly)
            == nullptr);
    QVERIFY(!m->editor->isModified());
}

// Removing what was just assigned leaves nothing unsaved, which rebuilds the list in between.
void TestHotkeyEditor::removesRowWithoutEdits()
{
    m->select(sphere);
    m->press(Qt::Key_F7);
    m->click("HotkeyEditor_assignShortcutBtn");
    m->clickRow(s("F7"));
    QVERIFY(!m->editor->isModified());
    QCOMPARE(m->assigned(), s("Ctrl+S, S, (F7)"));
    m->clickRow(s("F7"));
    QCOMPARE(m->assigned(), s("F7, Ctrl+S, S"));
}

void TestHotkeyEditor::takesRemovalBack_data()
{
    QTest::addColumn<int>("key");
    QTest::addColumn<bool>("isReset"); // or else the store is emptied
    QTest::newRow("base hotkey") << int(Qt::Key_B) << true;
    QTest::newRow("hotkey of the set") << int(Qt::Key_F5) << true;
    QTest::newRow("no hotkeys at all") << int(Qt::Key_B) << false;
}

// The removal that could be undone has not happened any more.
void TestHotkeyEditor::takesRemovalBack()
{
    QFETCH(int, key);
    QFETCH(bool, isReset);
    m->select(sphere);
    m->press(key);
    m->click("HotkeyEditor_removeShortcutBtn");
    QVERIFY(showsReassignControls());
    if (isReset) {
        DialogDriver dialogs;
        dialogs.expectBox(s("Reset Hotkeys"), QMessageBox::Discard);
        m->triggerOption(s("Reset"));
        QVERIFY(dialogs.check());
        QCOMPARE(m->manager.getShortcutsFromActionId(box), s("B, F5"));
    } else {
        m->manager.clearShortcuts();
    }
    QVERIFY(!button("HotkeyEditor_undoRemoveBtn")->isVisible());
    QVERIFY(!label("HotkeyEditor_removedFromLabel")->isVisible());
    QCOMPARE(showsConflictControls(), isReset);
    QVERIFY(!button("HotkeyEditor_assignShortcutBtn")->isEnabled());
}

void TestHotkeyEditor::refusesSeventhHotkey()
{
    m->select(boxes);
    for (const int key : {Qt::Key_1, Qt::Key_2, Qt::Key_3, Qt::Key_4, Qt::Key_5, Qt::Key_6}) {
        m->press(key);
        m->click("HotkeyEditor_assignShortcutBtn");
    }
    DialogDriver dialogs;
    dialogs.expectBox(s("Too Many Hotkeys"), QMessageBox::Ok);
    m->press(Qt::Key_7);
    m->click("HotkeyEditor_assignShortcutBtn");
    QVERIFY(dialogs.check());
    QCOMPARE(m->assigned(), s("6, 5, 4, 3, 2, 1"));
    QCOMPARE(field()->text(), s("7"));
}

void TestHotkeyEditor::searchesActions()
{
    auto *tree = m->child<QTreeView>("HotkeyEditor_keyActionsTreeView");
    tree->sortByColumn(1, Qt::DescendingOrder);
    const QString before = m->rows();
    QTest::keyClicks(search(), s("box"));
    QCOMPARE(m->rows(), s("Box, Array of <b>Box</b>")); // ranked
    QVERIFY(!tree->header()->isSortIndicatorShown());
    QTest::keyClick(search(), Qt::Key_Escape);
    QVERIFY(search()->text().isEmpty());
    QCOMPARE(m->rows(), before);
    QVERIFY(tree->header()->isSortIndicatorShown());
    QCOMPARE(tree->header()->sortIndicatorSection(), 1);
    QCOMPARE(tree->header()->sortIndicatorOrder(), Qt::DescendingOrder);
}

void TestHotkeyEditor::searchesHotkeys()
{
    auto *tree = m->child<QTreeView>("HotkeyEditor_keyActionsTreeView");
    QTest::keyClicks(search(), s("be"));
    m->child<QRadioButton>("HotkeyEditor_hotkeyRadioButton")->click();
    QVERIFY(search()->text().isEmpty());
    QCOMPARE(m->rows(), s("Array of <b>Box</b>, Bevel, Box, Sphere"));
    QCOMPARE(search()->placeholderText(), s("Type to search by Hotkeys..."));
    QTest::keyClick(search(), Qt::Key_B);
    QCOMPARE(search()->text(), s("B"));
    QCOMPARE(m->rows(), s("Bevel, Box"));
    QCOMPARE(tree->header()->sortIndicatorSection(), 1);
    m->manager.assignShortcut(bevel, s("S"), s("Bevel"));
    QTest::keyClick(search(), Qt::Key_S);
    // The search for a name has left its ranking on, which orders actions of the same hotkey.
    QCOMPARE(m->rows(), s("Sphere, Bevel"));
    QTest::keyClick(search(), Qt::Key_S, Qt::ControlModifier);
    QCOMPARE(m->rows(), s("Sphere"));
    QTest::keyClick(search(), Qt::Key_Escape); // no way to end the search, only no hotkey
    QCOMPARE(m->rows(), s("Array of <b>Box</b>, Bevel, Box, Sphere"));
    QCOMPARE(tree->header()->sortIndicatorSection(), 0);
    m->child<QRadioButton>("HotkeyEditor_actionRadioButton")->click();
    QCOMPARE(search()->placeholderText(), s("Type to search by Actions..."));
    QTest::keyClicks(search(), s("sph"));
    QCOMPARE(m->rows(), s("Sphere"));
}

void TestHotkeyEditor::headerEndsRanking()
{
    auto *header = m->child<QTreeView>("HotkeyEditor_keyActionsTreeView")->header();
    QTest::keyClicks(search(), s("box"));
    QTest::mouseClick(header->viewport(), Qt::LeftButton, Qt::NoModifier,
                      QPoint(header->sectionViewportPosition(0) + 5, header->height() / 2));
    QVERIFY(header->isSortIndicatorShown());
    const QString ascending = s("Array of <b>Box</b>, Box");
    const bool isAscending = header->sortIndicatorOrder() == Qt::AscendingOrder;
    QCOMPARE(m->rows(), isAscending ? ascending : s("Box, Array of <b>Box</b>"));
}

void TestHotkeyEditor::filters()
{
    auto *contexts = m->child<QComboBox>("HotkeyEditor_contextComboBox");
    m->editor->setCurrentContext(2);
    QCOMPARE(contexts->currentText(), s("Mesh"));
    QCOMPARE(m->rows(), s("Bevel"));
    m->editor->setCurrentContext(77);
    QCOMPARE(contexts->currentText(), s("Mesh"));
    contexts->setCurrentIndex(0);
    QCOMPARE(m->rows(), s("Array of <b>Box</b>, Bevel, Box, Sphere"));
    m->editor->setHotkeyFilter(1);
    QCOMPARE(m->rows(), s("Bevel, Box, Sphere"));
    m->editor->setHotkeyFilter(2);
    QCOMPARE(m->rows(), s("Box"));
    m->editor->setHotkeyFilter(3);
    QCOMPARE(m->rows(), QString());
    m->editor->setHotkeyFilter(0);
    m->editor->sortActionTreeByColumn(CUI::QvelActionItemModel::GroupColumn);
    QCOMPARE(m->rows().section(s(", "), 0, 0), s("Bevel"));
}

void TestHotkeyEditor::keepsSelectionOverFilters()
{
    m->select(sphere);
    m->editor->setCurrentContext(2);
    m->child<QComboBox>("HotkeyEditor_contextComboBox")->setCurrentIndex(0);
    QCOMPARE(m->editor->currentAction()->identifier(), sphere);
    QCOMPARE(m->child<QTreeView>("HotkeyEditor_keyActionsTreeView")->currentIndex().data(),
             QVariant(s("Sphere")));
    QCOMPARE(m->assigned(), s("Ctrl+S, S"));
}

// Edits that do not come from the editor.
void TestHotkeyEditor::followsTheStore()
{
    m->select(sphere);
    m->manager.assignShortcut(sphere, s("F9"), s("Sphere"));
    QCOMPARE(m->assigned(), s("F9, Ctrl+S, S"));
    m->manager.assignShortcut(box, s("S"), s("Box")); // takes it from the selected action
    QCOMPARE(m->assigned(), s("F9, Ctrl+S"));
    m->press(Qt::Key_F9);
    m->manager.clearTransforms();
    QCOMPARE(m->assigned(), s("Ctrl+S, S"));
    QVERIFY(!m->editor->isModified());
    m->manager.clearShortcuts();
    QCOMPARE(m->assigned(), QString());
    QVERIFY(field()->text().isEmpty());
}

void TestHotkeyEditor::reloadsActions()
{
    auto *tree = m->child<QTreeView>("HotkeyEditor_keyActionsTreeView");
    tree->setColumnWidth(0, 123);
    tree->setColumnWidth(1, 77);
    m->select(sphere);
    m->host.registry()->addAction({1, s("cone")}, s("Cone"), 1, s("Add"), false);
    m->editor->reloadActionsList();
    QVERIFY(m->rows().contains(s("Cone")));
    QCOMPARE(tree->columnWidth(0), 123);
    QCOMPARE(tree->columnWidth(1), 77);
    QCOMPARE(m->editor->currentAction()->identifier(), sphere);
    QCOMPARE(m->assigned(), s("Ctrl+S, S"));

    field()->setFocus();
    m->press(Qt::Key_K);
    m->host.registry()->removeAction(sphere);
    m->editor->reloadActionsList();
    QVERIFY(m->editor->currentAction() == nullptr);
    QCOMPARE(label("HotkeyEditor_selectedActionLabel")->text(), s("<b>No action selected</b>"));
    QVERIFY(!m->child<QGroupBox>("newHotkeysGroupBox")->isVisible());
    QVERIFY(search()->hasFocus()); // the chooser of sets would take the next letter
    QVERIFY(field()->text().isEmpty());
}

void TestHotkeyEditor::listsTransformations()
{
    m->manager.assignShortcut(sphere, s("F9"), s("Sphere"));
    m->editor->transformationListWidget();
    auto *dialog = m->editor->findChild<QDialog *>();
    QVERIFY(dialog != nullptr && dialog->isVisible());
    QCOMPARE(dialog->windowTitle(), s("Shortcut Transformation List"));
    const QAbstractItemModel *list = dialog->findChild<QListView *>()->model();
    const auto texts = [list] {
        QStringList result;
        for (int row = 0; row < list->rowCount(); ++row)
            result << list->index(row, 0).data().toString();
        return result.join(QLatin1Char(' '));
    };
    QCOMPARE(texts(), s("Add 'F5' to Box. Add 'F9' to Sphere."));
    m->manager.unassignShortcut(box, s("B"), s("Box"));
    QCOMPARE(texts(), s("Add 'F5' to Box. Add 'F9' to Sphere. Remove 'B' from Box."));
    m->manager.unassignShortcut(sphere, s("F9"), s("Sphere"));
    QCOMPARE(texts(), s("Add 'F5' to Box. Remove 'B' from Box."));
    m->editor->transformationListWidget();
    QVERIFY(!dialog->isVisible());
    m->editor->transformationListWidget();
    QVERIFY(dialog->isVisible());
    QCOMPARE(m->editor->findChildren<QDialog *>().size(), 1);
    m->editor->applyCurrentTransformation();
    QCOMPARE(texts(), QString());
    QCOMPARE(m->manager.getBaseShortcutsFromActionId(box), s("F5"));

    m->chooseSet(s("Other"));
    QCOMPARE(texts(), s("Remove 'B' from ."));
    m->chooseSet(s("Mine"));
    QCOMPARE(texts(), s("Add 'F5' to Box."));
    m->manager.assignShortcut(sphere, s("F9"), s("Sphere"));
    QCOMPARE(texts(), s("Add 'F5' to Box. Add 'F9' to Sphere."));
    m->manager.clearShortcuts();
    QCOMPARE(texts(), QString());
}

void TestHotkeyEditor::colours()
{
    const QColor edited(1, 2, 3);
    const QColor transformed(4, 5, 6);
    m->editor->setUserModifiedColor(edited);
    m->editor->setTransformShortcutsColor(transformed);
    m->select(box);
    m->press(Qt::Key_F8);
    m->click("HotkeyEditor_assignShortcutBtn");
    const auto colourOf = [this](const char *text) {
        for (const QLabel *row :
             m->child<QWidget>("assignedHotkeysWidget")->findChildren<QLabel *>())
            if (row->text() == s(text))
                return row->palette().color(row->foregroundRole());
        return QColor();
    };
    QCOMPARE(colourOf("F8"), edited);
    QCOMPARE(colourOf("F5"), transformed); // from the loaded set
    QCOMPARE(colourOf("B"), QApplication::palette().color(QPalette::WindowText));
}

void TestHotkeyEditor::followsTheLanguage()
{
    m->select(sphere);
    m->press(Qt::Key_K, Qt::ControlModifier);
    QTest::keyClicks(search(), s("s"));
    QEvent change(QEvent::LanguageChange);
    QApplication::sendEvent(m->editor.get(), &change);
    QCOMPARE(label("HotkeyEditor_selectedActionLabel")->text(), s("<b>Sphere</b> (Viewport)"));
    QCOMPARE(search()->text(), s("s"));
    QCOMPARE(m->assigned(), s("Ctrl+S, S"));
    QVERIFY(field()->text().isEmpty());
    m->clickRow(s("S")); // looks anew at what stands in the field
    QVERIFY(!button("HotkeyEditor_assignShortcutBtn")->isEnabled());
}

QTEST_MAIN(TestHotkeyEditor)
#include "tst_HotkeyEditor.moc"
