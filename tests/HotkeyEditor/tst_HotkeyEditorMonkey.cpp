#include "EditorHarness.h"

#include <UiCustomizations/QvelMessageLog.h>

#include <QApplication>
#include <QComboBox>
#include <QDialog>
#include <QElapsedTimer>
#include <QFile>
#include <QLineEdit>
#include <QListView>
#include <QMessageBox>
#include <QPushButton>
#include <QRadioButton>
#include <QTreeView>
#include <QtTest>

#include <random>

namespace {

QString s(const char *text)
{
    return QString::fromUtf8(text);
}

} // namespace

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
    void compare();
    void compareList();
    void compareField(const CUI::ActionIdentifier &current);
    unsigned below(unsigned limit) { return unsigned(m_random()) % limit; }

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
    const QList<QAbstractButton *> buttons = messageBox->buttons();
    QAbstractButton *button = buttons.at(int(below(unsigned(buttons.size()))));
    // Others open the desktop's programs.
    if (messageBox->standardButton(button) == QMessageBox::NoButton)
        button = messageBox->button(QMessageBox::Ok);
    QTest::mouseClick(button, Qt::LeftButton);
}

void TestHotkeyEditorMonkey::changeFiles()
{
    const QStringList names{s("user/Mine.hsx"), s("user/Other.hsx"), s("user/New.hsx")};
    const QString &name = names.at(int(below(3)));
    switch (below(4)) {
    case 0:
        QFile::remove(m.host.path(name));
        break;
    case 1:
        m.host.write(name, "<VelHotkeyTransformations><Assign_Hotkey");
        break;
    default:
        m.host.write(name, "<VelHotkeyTransformations><Assign_Hotkey Shortcut='F"
                                   + QByteArray::number(2 + below(9))
                                   + "' Description='Box' Id='1-box'/></VelHotkeyTransformations>");
    }
}

void TestHotkeyEditorMonkey::act()
{
    static const QVector<int> keys{Qt::Key_A,      Qt::Key_B,   Qt::Key_S, Qt::Key_F5,
                                   Qt::Key_Escape, Qt::Key_Tab, Qt::Key_1};
    const auto key = Qt::Key(keys.at(int(below(unsigned(keys.size())))));
    const auto modifiers = below(2) == 0 ? Qt::NoModifier : Qt::ControlModifier;
    auto *search = m.child<QLineEdit>("HotkeyEditor_searchLineEdit");
    const QVector<const char *> buttons{
            "HotkeyEditor_assignShortcutBtn",  "HotkeyEditor_removeShortcutBtn",
            "HotkeyEditor_undoRemoveBtn",      "HotkeyEditor_removeAssignedButton",
            "HotkeyEditor_undoAssignedButton", "HotkeyEditor_hotkeyRadioButton",
            "HotkeyEditor_actionRadioButton"};
    switch (below(12)) {
    case 0: {
        auto *tree = m.child<QTreeView>("HotkeyEditor_keyActionsTreeView");
        const int row = int(below(5));
        QTest::mouseClick(tree->viewport(), Qt::LeftButton, Qt::NoModifier,
                          tree->visualRect(tree->model()->index(row, 0)).center());
        break;
    }
    case 1:
        QTest::keyClick(search, key, modifiers);
        break;
    case 2:
        search->clear();
        break;
    case 3: {
        auto *sets = m.child<QComboBox>("HotkeyEditor_hotkeySetComboBox");
        sets->setCurrentIndex(int(below(unsigned(sets->count() + 1))) - 1);
        break;
    }
    case 4:
        m.child<QComboBox>("HotkeyEditor_hotkeyFilterComboBox")->setCurrentIndex(int(below(4)));
        break;
    case 5:
        m.child<QComboBox>("HotkeyEditor_contextComboBox")->setCurrentIndex(int(below(3)));
        break;
    case 6:
        changeFiles();
        break;
    case 7:
        m.triggerOption(below(2) == 0 ? s("Save") : s("Reset"));
        break;
    case 8:
        if (below(5) == 0)
            m.editor->transformationListWidget();
        break;
    default: {
        if (below(2) == 0)
            QTest::keyClick(m.child<QLineEdit>("HotkeyEditor_shortcutLineEdit"), key, modifiers);
        const auto found = m.editor->findChildren<QWidget *>(
                QLatin1String(buttons.at(int(below(unsigned(buttons.size()))))));
        if (!found.isEmpty() && found.first()->isVisible())
            QTest::mouseClick(found.first(), Qt::LeftButton);
    }
    }
}

void TestHotkeyEditorMonkey::compare()
{
    for (int row = 0; row < m.model->rowCount(); ++row) {
        const CUI::VelAction *action = m.model->velActionFromModelIdx(m.model->index(row, 0));
        QCOMPARE(m.model->index(row, 1).data().toString(),
                 m.manager.getShortcutsFromActionId(action->identifier()));
    }
    QCOMPARE(m.editor->isModified(), m.manager.isUserModified());
    compareList();
    if (QTest::currentTestFailed())
        return;
    const CUI::VelAction *current = m.editor->currentAction();
    if (current == nullptr || !m.child<QWidget>("newHotkeysGroupBox")->isVisible())
        return;
    QStringList shown;
    for (const QString &text : m.assigned().split(s(", "), Qt::SkipEmptyParts)) {
        if (!text.startsWith(QLatin1Char('(')))
            shown << text;
    }
    QStringList held = m.manager.getShortcutsFromActionId(current->identifier())
                               .split(s(", "), Qt::SkipEmptyParts);
    shown.sort();
    held.sort();
    QCOMPARE(shown, held);
    compareField(current->identifier());
}

// The window of the recorded steps.
void TestHotkeyEditorMonkey::compareList()
{
    const auto *dialog = m.editor->findChild<QDialog *>();
    if (dialog == nullptr)
        return;
    const QAbstractItemModel *list = dialog->findChild<QListView *>()->model();
    QStringList listed;
    for (int row = 0; row < list->rowCount(); ++row)
        listed << list->index(row, 0).data().toString();
    QStringList recorded;
    for (const CUI::ShortcutTransformation &step : m.manager.currentTransformations())
        recorded << step.toString();
    QCOMPARE(listed, recorded);
}

// What can be assigned is free, and what another action holds is shown as a conflict.
void TestHotkeyEditorMonkey::compareField(const CUI::ActionIdentifier &current)
{
    const QKeySequence typed(m.child<QLineEdit>("HotkeyEditor_shortcutLineEdit")->text(),
                             QKeySequence::NativeText);
    const CUI::ActionIdentifier holder = m.manager.getActionIdFromShortcut(
            typed.toString(QKeySequence::PortableText), current.tableId);
    const bool isFree = holder.isEmpty() || holder == current;
    const auto *conflict = m.child<QWidget>("HotkeyEditor_removeShortcutBtn");
    const auto *assign = m.child<QWidget>("HotkeyEditor_assignShortcutBtn");
    QCOMPARE(conflict->isVisible(), !isFree);
    QCOMPARE(assign->isEnabled(), isFree && !typed.isEmpty());
}

void TestHotkeyEditorMonkey::widgetsAgreeWithTheStore()
{
    CUI::QvelMessageLog::getInstance().setMessageLogLevel({});
    m.open();
    QTimer dialogs;
    dialogs.callOnTimeout([this] { answerDialog(); });
    dialogs.start(1);
    const int seconds = qMax(3, qEnvironmentVariableIntValue("CUI_MONKEY_SECONDS"));
    int steps = 0;
    for (QElapsedTimer time;
         time.isValid() ? time.elapsed() < seconds * 1000 : (time.start(), true); ++steps) {
        act();
        QCoreApplication::processEvents();
        compare();
        if (QTest::currentTestFailed()) {
            qWarning("after %d steps", steps);
            return;
        }
    }
    QVERIFY(steps > 100);
}

QTEST_MAIN(TestHotkeyEditorMonkey)
#include "tst_HotkeyEditorMonkey.moc"
