#include "CustomizeDialog.h"
#include "MainWindow.h"
#include "StudioSession.h"
#include "Text.h"

#include <UiCustomizations/QvelShortcutManager.h>
#include <UiCustomizations/QvelShortcutsWidget.h>

#include <QApplication>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QLineEdit>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTreeWidget>
#include <QtTest>

#include <functional>

using CUI::ActionIdentifier;
using CUI::QvelShortcutManager;
using CUI::ShortcutTransformation;
using namespace Studio;

namespace {

using Steps = std::vector<ShortcutTransformation>;

const ActionIdentifier saveScene = {1, s("saveScene")};
const ActionIdentifier newScene = {1, s("newScene")};

ShortcutTransformation assignment(const ActionIdentifier &action, const char *hotkey)
{
    return {ShortcutTransformation::Assign, action, s(hotkey), action.actionId};
}

QString textOf(const Steps &steps)
{
    QStringList lines;
    for (const ShortcutTransformation &step : steps)
        lines << (step.kind() == ShortcutTransformation::Assign ? s("+") : s("-"))
                         + step.actionId().actionId + s(" ") + step.shortcut();
    return lines.join(s(", "));
}

void click(const QWidget *parent, const char *text)
{
    for (auto *button : parent->findChildren<QPushButton *>()) {
        if (button->isVisible() && button->text().remove(QLatin1Char('&')) == s(text)) {
            QTest::mouseClick(button, Qt::LeftButton);
            return;
        }
    }
    qFatal("no button %s", text);
}

/// Answers the next modal dialog.
void answer(const std::function<void(QWidget *)> &how)
{
    QTimer::singleShot(0, qApp, [how] {
        QWidget *dialog = QApplication::activeModalWidget();
        if (dialog == nullptr)
            answer(how);
        else
            how(dialog);
    });
}

} // namespace

/// The bars above the editor, over the shipped host with a set of the user.
class CustomizeDialogTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup() { m_session.reset(); }
    // A clear button that fades out when its text is destroyed is deleted by the event loop.
    void cleanupTestCase() { QTest::qWait(50); }
    void asksAboutAChangedFile_data();
    void asksAboutAChangedFile();
    void reportsWhatNoLongerApplies();
    void undoesAndRedoes();

private:
    void start(const Steps &steps);
    QWidget *bar(const char *name) const { return m_dialog->findChild<QWidget *>(s(name)); }
    QvelShortcutManager &store() const { return m_session->store(); }

    std::unique_ptr<QTemporaryDir> m_user;
    QString m_set;
    std::unique_ptr<StudioSession> m_session;
    CustomizeDialog *m_dialog = nullptr;
};

void CustomizeDialogTest::init()
{
    m_user = std::make_unique<QTemporaryDir>();
    m_set = m_user->filePath(s("Mine.hsx"));
}

void CustomizeDialogTest::start(const Steps &steps)
{
    QVERIFY(QvelShortcutManager::writeTransforms(m_set, steps));
    m_session =
            std::make_unique<StudioSession>(Host::SampleHost::shippedDirectory(), m_user->path());
    QVERIFY(m_session->start());
    store().loadShortcutConfiguration(m_set);
    m_dialog = m_session->window().showCustomizeDialog();
    QVERIFY(QTest::qWaitForWindowActive(m_dialog));
}

void CustomizeDialogTest::asksAboutAChangedFile_data()
{
    QTest::addColumn<QString>("button");
    QTest::addColumn<QString>("steps");
    QTest::addColumn<bool>("modified");
    QTest::newRow("mine") << "Keep Mine"
                          << "+saveScene F9" << true;
    QTest::newRow("theirs") << "Load Theirs"
                            << "+saveScene F8, +newScene F7" << false;
    QTest::newRow("both") << "Merge..."
                          << "+saveScene F9, +newScene F7" << true;
}

void CustomizeDialogTest::asksAboutAChangedFile()
{
    QFETCH(QString, button);
    QFETCH(QString, steps);
    QFETCH(bool, modified);
    start({});
    QvelShortcutManager::writeTransforms(m_set, {assignment(newScene, "F6")});
    QTRY_COMPARE(textOf(store().currentTransformations()), s("+newScene F6")); // nothing to ask
    QVERIFY(!bar("changedSetBar")->isVisible());
    QvelShortcutManager::writeTransforms(m_set, {});
    QTRY_VERIFY(store().currentTransformations().empty());

    store().assignShortcut(saveScene, s("F9"), s("saveScene"));
    QvelShortcutManager::writeTransforms(m_set,
                                         {assignment(saveScene, "F8"), assignment(newScene, "F7")});
    QTRY_VERIFY(bar("changedSetBar")->isVisible());
    if (button == s("Merge..."))
        answer([](QWidget *dialog) {
            auto *list = dialog->findChild<QTreeWidget *>();
            QCOMPARE(list->topLevelItemCount(), 1);
            QVERIFY(!dialog->findChild<QDialogButtonBox *>()
                             ->button(QDialogButtonBox::Ok)
                             ->isEnabled());
            list->setFocus();
            QTest::keyClick(list, Qt::Key_Space); // the box of my side
            click(dialog, "Merge");
        });
    click(bar("changedSetBar"), qPrintable(button));
    QVERIFY(!bar("changedSetBar")->isVisible());
    QCOMPARE(textOf(store().currentTransformations()), steps);
    QCOMPARE(store().isUserModified(), modified);
}

void CustomizeDialogTest::reportsWhatNoLongerApplies()
{
    const Steps steps = {assignment({1, s("saveScenes")}, "F8"), assignment({1, s("gone")}, "F9"),
                         assignment(newScene, "F7")};
    start(steps);
    QTRY_VERIFY(bar("staleStepsBar")->isVisible());
    QCOMPARE(bar("staleStepsBar")->accessibleName(), s("2 of 3 changes no longer apply."));
    answer([](QWidget *dialog) {
        const auto boxes = dialog->findChild<QTreeWidget *>()->findChildren<QComboBox *>();
        for (QComboBox *box : boxes) { // the last one is for the most similar action, if any is
            box->setCurrentIndex(box->count() > 3 ? 3 : 1);
            Q_EMIT box->activated(box->currentIndex());
        }
        click(dialog, "Apply");
    });
    click(bar("staleStepsBar"), "Details...");
    QCOMPARE(textOf(store().allTransforms()), s("+saveScene F8, +newScene F7"));
    QVERIFY(!bar("staleStepsBar")->isVisible());

    // What is kept stays in the file.
    store().loadShortcutConfiguration(m_set);
    QTRY_VERIFY(bar("staleStepsBar")->isVisible());
    click(bar("staleStepsBar"), "Dismiss");
    QVERIFY(store().saveShortcutTransforms(m_set));
    Steps saved;
    QVERIFY(QvelShortcutManager::readTransforms(m_set, saved));
    QCOMPARE(textOf(saved), textOf(steps));
}

void CustomizeDialogTest::undoesAndRedoes()
{
    start({});
    const QString before = store().getShortcutsFromActionId(saveScene);
    store().assignShortcut(saveScene, s("F9"), s("<b>Save & Scene"));
    const QString after = store().getShortcutsFromActionId(saveScene);
    QVERIFY(after != before);
    QString tip;
    for (const auto *button : m_dialog->findChildren<QPushButton *>()) {
        if (button->text() == s("&Undo"))
            tip = button->toolTip();
    }
    const QString edit = store().currentTransformations().back().toString();
    QCOMPARE(tip, s("<span>%1 (Ctrl+Z)</span>").arg(edit.toHtmlEscaped()));
    click(m_dialog, "Undo");
    QCOMPARE(store().getShortcutsFromActionId(saveScene), before);
    QVERIFY(!store().isUserModified());
    QTest::keyClick(m_dialog, Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier);
    QCOMPARE(store().getShortcutsFromActionId(saveScene), after);

    // The field of a new hotkey takes the key as one.
    m_dialog->editor()->setCurrentAction(saveScene, true);
    auto *field = m_dialog->findChild<QLineEdit *>(s("HotkeyEditor_shortcutLineEdit"));
    QTest::keyClick(field, Qt::Key_Z, Qt::ControlModifier);
    QCOMPARE(field->text(), s("Ctrl+Z"));
    QCOMPARE(store().getShortcutsFromActionId(saveScene), after);
    // A text has its own undo first.
    auto *search = m_dialog->findChild<QLineEdit *>(s("HotkeyEditor_searchLineEdit"));
    search->setFocus();
    QTest::keyClicks(search, s("box"));
    QTest::keyClick(search, Qt::Key_Z, Qt::ControlModifier);
    QCOMPARE(search->text(), QString());
    QCOMPARE(store().getShortcutsFromActionId(saveScene), after);
    QTest::keyClick(search, Qt::Key_Z, Qt::ControlModifier);
    QCOMPARE(store().getShortcutsFromActionId(saveScene), before);
}

QTEST_MAIN(CustomizeDialogTest)
#include "tst_CustomizeDialog.moc"
