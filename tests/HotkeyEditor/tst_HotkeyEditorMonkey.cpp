#include "EditorHarness.h"

#include <UiCustomizations/QvelMessageLog.h>

#include <QApplication>
#include <QElapsedTimer>
#include <QListView>
#include <QPushButton>
#include <QtTest>

#include <random>

/// Clicks and types at random while files change underneath; after each step the widgets must
/// agree with the store. CUI_MONKEY_SECONDS says for how long.
class TestHotkeyEditorMonkey : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void widgetsAgreeWithTheStore();

private:
    void act();
    void answerDialog();
    void changeFiles();
    void save();
    void clickButton();
    void compare();
    void compareList();
    void compareField(const CUI::ActionIdentifier &current);
    int below(int limit) { return int(m_random() % unsigned(limit)); }
    template <typename List>
    auto oneOf(const List &list)
    {
        return list.at(below(list.size()));
    }

    int m_savesCompared = 0;
    std::mt19937 m_random{20};
    EditorHarness m;
};

// Whatever is asked gets a random answer.
void TestHotkeyEditorMonkey::answerDialog()
{
    QWidget *dialog = QApplication::activeModalWidget();
    if (dialog == nullptr)
        return;
    auto *messageBox = qobject_cast<QMessageBox *>(dialog);
    if (messageBox == nullptr || messageBox->buttons().isEmpty()) {
        QTest::keyClick(dialog, Qt::Key_Escape);
        return;
    }
    QAbstractButton *button = oneOf(messageBox->buttons());
    // Others open the desktop's programs.
    if (messageBox->standardButton(button) == QMessageBox::NoButton)
        button = messageBox->button(QMessageBox::Ok);
    QTest::mouseClick(button, Qt::LeftButton);
}

void TestHotkeyEditorMonkey::changeFiles()
{
    const QString name = oneOf(list("user/Mine.hsx|user/Other.hsx|user/New.hsx"));
    switch (below(4)) {
    case 0:
        QFile::remove(m.host.path(name));
        break;
    case 1:
        m.host.write(name, "<VelHotkeyTransformations><Assign_Hotkey");
        break;
    default:
        m.host.write(name, s("<VelHotkeyTransformations><Assign_Hotkey Shortcut='%1' "
                             "Description='' Id='%2'/></VelHotkeyTransformations>")
                                   .arg(oneOf(list("B|S|Ctrl+S|F5")),
                                        oneOf(list("1-box|1-boxes|1-sphere")))
                                   .toUtf8());
    }
}

void TestHotkeyEditorMonkey::act()
{
    const auto key = oneOf(QVector<Qt::Key>{Qt::Key_A, Qt::Key_B, Qt::Key_S, Qt::Key_F5,
                                            Qt::Key_Escape, Qt::Key_Tab, Qt::Key_1});
    const auto modifiers = below(2) == 0 ? Qt::NoModifier : Qt::ControlModifier;
    switch (below(12)) {
    case 0:
        QTest::mouseClick(m.tree()->viewport(), Qt::LeftButton, Qt::NoModifier,
                          m.tree()->visualRect(m.tree()->model()->index(below(5), 0)).center());
        break;
    case 1:
        QTest::keyClick(m.search(), key, modifiers);
        break;
    case 2:
        m.search()->clear();
        break;
    case 3:
        m.sets()->setCurrentIndex(below(m.sets()->count() + 1) - 1);
        break;
    case 4:
        m.child<QComboBox>("HotkeyEditor_hotkeyFilterComboBox")->setCurrentIndex(below(4));
        break;
    case 5:
        m.child<QComboBox>("HotkeyEditor_contextComboBox")->setCurrentIndex(below(3));
        break;
    case 6:
        changeFiles();
        break;
    case 7:
        if (below(2) == 0)
            save();
        else
            m.triggerOption("Reset");
        break;
    case 8:
        if (below(5) == 0)
            m.editor->transformationListWidget();
        break;
    default:
        if (below(2) == 0)
            m.press(key, modifiers);
        clickButton();
    }
}

// What was saved loads to what is shown.
void TestHotkeyEditorMonkey::save()
{
    const bool wasModified = m.manager.isUserModified();
    m.triggerOption("Save");
    if (!wasModified || m.manager.isUserModified())
        return;
    CUI::QvelShortcutManager loaded;
    loaded.loadCurrentShortcutConfiguration();
    for (const CUI::ActionIdentifier &id : {box, boxes, sphere, bevel}) {
        const auto hotkeys = [&id](const CUI::QvelShortcutManager &store) {
            QStringList list = store.getShortcutsFromActionId(id).split(s(", "));
            list.sort();
            return list;
        };
        QCOMPARE(hotkeys(loaded), hotkeys(m.manager));
        ++m_savesCompared;
    }
}

void TestHotkeyEditorMonkey::clickButton()
{
    const auto *button = m.editor->findChild<QWidget *>(
            s("HotkeyEditor_")
            + oneOf(list("assignShortcutBtn|removeShortcutBtn|undoRemoveBtn|removeAssignedButton|"
                         "undoAssignedButton|hotkeyRadioButton|actionRadioButton")));
    if (button != nullptr && button->isVisible())
        m.click(button->objectName().toLatin1());
}

void TestHotkeyEditorMonkey::compare()
{
    for (int row = 0; row < m.model->rowCount(); ++row) {
        const CUI::VelAction *action = m.model->velActionFromModelIdx(m.model->index(row, 0));
        QCOMPARE(m.model->index(row, 1).data().toString(), m.hotkeys(action->identifier()));
    }
    QCOMPARE(m.editor->isModified(), m.manager.isUserModified());
    compareList();
    const CUI::VelAction *current = m.editor->currentAction();
    if (current == nullptr || !m.shows("newHotkeysGroupBox"))
        return;
    QStringList shown = m.assigned().split(s(", ")).filter(QRegularExpression(s("^[^(]")));
    QStringList held = m.hotkeys(current->identifier()).split(s(", "), Qt::SkipEmptyParts);
    shown.sort();
    held.sort();
    QCOMPARE(shown, held);
    compareField(current->identifier());
}

// The window of the recorded steps.
void TestHotkeyEditorMonkey::compareList()
{
    const auto *window = m.editor->findChild<QDialog *>();
    if (window == nullptr)
        return;
    QStringList recorded;
    for (const CUI::ShortcutTransformation &step : m.manager.currentTransformations())
        recorded << step.toString();
    QCOMPARE(EditorHarness::textsOf(window->findChild<QListView *>()->model()), recorded);
}

// What can be assigned is free, and what another action holds is shown as a conflict.
void TestHotkeyEditorMonkey::compareField(const CUI::ActionIdentifier &current)
{
    const QKeySequence typed(m.field()->text(), QKeySequence::NativeText);
    const CUI::ActionIdentifier holder = m.manager.getActionIdFromShortcut(
            typed.toString(QKeySequence::PortableText), current.tableId);
    const bool isFree = holder.isEmpty() || holder == current;
    QCOMPARE(m.shows("HotkeyEditor_removeShortcutBtn"), !isFree);
    QCOMPARE(m.canAssign(), isFree && !typed.isEmpty());
}

void TestHotkeyEditorMonkey::widgetsAgreeWithTheStore()
{
    CUI::QvelMessageLog::getInstance().setMessageLogLevel({});
    m.open();
    QTimer dialogs;
    dialogs.callOnTimeout([this] { answerDialog(); });
    dialogs.start(1);
    const int seconds = qMax(3, qEnvironmentVariableIntValue("CUI_MONKEY_SECONDS"));
    QElapsedTimer time;
    time.start();
    int steps = 0;
    const auto isDone = [&] {
        constexpr int patience = 60; // few saves get past all questions
        return time.hasExpired((m_savesCompared > 0 ? seconds : qMax(seconds, patience)) * 1000);
    };
    for (; !isDone(); ++steps) {
        act();
        QCoreApplication::processEvents();
        compare();
        if (QTest::currentTestFailed()) {
            qWarning("after %d steps", steps);
            return;
        }
    }
    QVERIFY(steps > 100);
    QVERIFY(m_savesCompared > 0);
}

QTEST_MAIN(TestHotkeyEditorMonkey)
#include "tst_HotkeyEditorMonkey.moc"
