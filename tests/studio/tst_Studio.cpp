#include "CustomizeDialog.h"
#include "DialogAnswers.h"
#include "EditorHands.h"
#include "HostActionRegistry.h"
#include "MainWindow.h"
#include "SheetMenu.h"
#include "StudioSession.h"
#include "Text.h"
#include "Viewport.h"

#include <UiCustomizations/ICuiActionManager.h>
#include <UiCustomizations/QvelActionBinder.h>

#include <QApplication>
#include <QComboBox>
#include <QDockWidget>
#include <QLineEdit>
#include <QPrintPreviewWidget>
#include <QStatusBar>
#include <QTemporaryDir>
#include <QtTest>

using CUI::ActionIdentifier;
using namespace Studio;

class StudioTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { QApplication::setCursorFlashTime(0); }
    void init() { start(Host::SampleHost::shippedDirectory()); }
    void cleanup() { m_session.reset(); }

    void everyKeyRunsItsAction_data();
    void everyKeyRunsItsAction();
    void sameKeyInTwoDocks();
    void modeComesBeforeViewport();
    void auditKnowsTheModes();
    void textKeepsItsKeys();
    void sheetHasWhatTheTableLists();

private:
    void start(const QString &host);
    MainWindow &window() const { return m_session->window(); }
    QWidget *view(const char *name) const;
    void press(QWidget *widget, const QString &id);
    const Scene &scene() const { return window().document().scene(); }
    ViewSettings settings() const { return window().view().get(); }
    QString status() const { return window().statusBar()->currentMessage(); }

    std::unique_ptr<QTemporaryDir> m_user;
    std::unique_ptr<StudioSession> m_session;
};

void StudioTest::start(const QString &host)
{
    m_session.reset();
    m_user = std::make_unique<QTemporaryDir>();
    m_session = std::make_unique<StudioSession>(host, m_user->path());
    QVERIFY2(m_session->start(), qPrintable(m_session->errorText()));
    window().resize(900, 640); // less to draw
    window().view().change([](ViewSettings &view) { view.fineness = 1; });
    window().show();
    QApplication::setActiveWindow(&window());
    QVERIFY(QTest::qWaitForWindowActive(&window()));
}

/// The view of that object name, in front and with the keyboard focus.
QWidget *StudioTest::view(const char *name) const
{
    auto *found = window().findChild<QWidget *>(s(name));
    if (found == nullptr)
        qFatal("there is no view %s", name);
    for (QWidget *above = found; above != nullptr; above = above->parentWidget()) {
        if (auto *dock = qobject_cast<QDockWidget *>(above)) {
            dock->show();
            dock->raise();
        }
    }
    found->setFocus();
    QCoreApplication::processEvents();
    return found;
}

/// Presses the first hotkey that the store has for the action.
void StudioTest::press(QWidget *widget, const QString &id)
{
    const ActionIdentifier action = ActionIdentifier::fromString(id);
    const auto hotkeys = m_session->store().getShortcuts().find(action);
    if (hotkeys == m_session->store().getShortcuts().end())
        qFatal("%s has no hotkey", qPrintable(id));
    const int combination = QKeySequence(hotkeys->second.first())[0];
    const int modifiers = combination & static_cast<int>(Qt::KeyboardModifierMask);
    QTest::keyClick(widget, static_cast<Qt::Key>(combination & ~modifiers),
                    Qt::KeyboardModifiers(modifiers));
}

void StudioTest::everyKeyRunsItsAction_data()
{
    QTest::addColumn<QString>("context");
    QTest::addColumn<QString>("view");
    for (const char *everywhere : {"File and Edit", "Windows and Workspaces"})
        QTest::newRow(everywhere) << everywhere << "viewport";
    for (const char *inViewport :
         {"Viewport", "Object", "Mesh", "Curves", "Sculpting", "Texture Paint", "Rigging"})
        QTest::newRow(inViewport) << inViewport << "viewport";
    QTest::newRow("UV Editor") << "UV Editor"
                               << "uvView";
    QTest::newRow("Node Graph") << "Node Graph"
                                << "nodeView";
    QTest::newRow("Timeline") << "Timeline"
                              << "timeline";
    QTest::newRow("Graph Editor") << "Graph Editor"
                                  << "graphView";
    QTest::newRow("Outliner") << "Outliner"
                              << "outlinerTree";
    QTest::newRow("Rendering") << "Rendering"
                               << "renderView";
}

void StudioTest::everyKeyRunsItsAction()
{
    QFETCH(QString, context);
    QFETCH(QString, view);
    QTimer cancel;
    cancel.callOnTimeout([] {
        if (QWidget *dialog = QApplication::activeModalWidget())
            dialog->close();
    });
    cancel.start(10);
    const auto runs = [&](const ActionIdentifier &id) {
        if (window().modes().contains(context))
            window().setMode(context);
        QWidget *focused = this->view(view.toLatin1());
        const auto *registry =
                static_cast<Host::HostActionRegistry *>(CUI::ICuiActionManager::get());
        const QSignalSpy triggered(registry, &Host::HostActionRegistry::triggered);
        press(focused, id.toString());
        for (QWidget *other : QApplication::topLevelWidgets()) {
            if (other != &window() && other->isVisible())
                other->close();
        }
        QApplication::setActiveWindow(&window());
        return triggered.value(0).value(0).value<ActionIdentifier>() == id;
    };
    QVector<ActionIdentifier> actions;
    const CUI::ICuiActionManager *registry = CUI::ICuiActionManager::get();
    for (const auto &[id, action] : registry->actions()) {
        if (registry->getActionContext(action->contextId())->name() == context
            && !action->momentary() && id.actionId != s("quit")
            && !m_session->store().getShortcutsFromActionId(id).isEmpty())
            actions << id;
    }
    for (const ActionIdentifier &id : qAsConst(actions)) {
        if (!runs(id)) { // what ran before has changed the window
            start(Host::SampleHost::shippedDirectory());
            QVERIFY2(runs(id), qPrintable(id.toString()));
        }
    }
    QVERIFY(actions.size() > 5);
}

void StudioTest::sameKeyInTwoDocks()
{
    const int objects = scene().objects.size();
    const int nodes = scene().graph.nodes.size();
    QTest::keyClick(view("viewport"), Qt::Key_A);
    QCOMPARE(scene().objects.size(), objects + 1);
    QCOMPARE(scene().graph.nodes.size(), nodes);
    QTest::keyClick(view("nodeView"), Qt::Key_A);
    QCOMPARE(scene().objects.size(), objects + 1);
    QCOMPARE(scene().graph.nodes.size(), nodes + 1);
    // What no context of the dock has comes from those that count everywhere.
    QTest::keyClick(view("timeline"), Qt::Key_Z, Qt::ControlModifier);
    QCOMPARE(scene().graph.nodes.size(), nodes);
}

void StudioTest::modeComesBeforeViewport()
{
    QWidget *viewport = view("viewport");
    QTest::keyClick(viewport, Qt::Key_H);
    QVERIFY(!scene().active()->visible);
    window().document().undo();
    QTest::keyClick(viewport, Qt::Key_Tab);
    QCOMPARE(settings().mode, s("Mesh"));
    QCOMPARE(window().findChild<QComboBox *>(s("modeBox"))->currentText(), s("Mesh"));
    QTest::keyClick(viewport, Qt::Key_A, Qt::ControlModifier);
    QTest::keyClick(viewport, Qt::Key_H);
    QVERIFY(scene().active()->visible);
    QVERIFY(scene().active()->mesh.faces.first().hidden);
    window().setMode(s("Sculpting")); // C is a brush there, and a loop cut in the mesh
    QTest::keyClick(viewport, Qt::Key_C);
    QCOMPARE(settings().brush, s("Clay"));
    QTest::keyClick(viewport, Qt::Key_F5); // the viewport's own
    QCOMPARE(window().viewport().camera().pitch, 0.F);
}

/// Keys that a mode shares with other contexts of the viewport do there what the audit says.
void StudioTest::auditKnowsTheModes()
{
    QString error;
    const QString file = Host::SampleHost::shippedDirectory() + s("/host.json");
    const auto catalogue = Host::HostCatalogue::load(file, error);
    const auto *binder = window().findChild<CUI::QvelActionBinder *>();
    view("viewport");
    int compared = 0;
    const CUI::HotkeyAudit audit(m_session->store(), catalogue->auditOptions());
    for (const CUI::HotkeyFinding &finding : audit.findings()) {
        for (const CUI::HotkeyFinding::Outcome &outcome : finding.outcomes) {
            if (outcome.others.empty() || !outcome.contextId)
                continue;
            window().setMode(
                    CUI::ICuiActionManager::get()->getActionContext(*outcome.contextId)->name());
            QCOMPARE(binder->identifierOf(binder->actionOf(QKeySequence(finding.hotkey))),
                     outcome.action);
            ++compared;
        }
    }
    QVERIFY(compared > 9);
}

void StudioTest::textKeepsItsKeys()
{
    auto *filter = static_cast<QLineEdit *>(view("outlinerFilter"));
    const int objects = scene().objects.size();
    QTest::keyClicks(filter, s("chi."));
    QCOMPARE(filter->text(), s("chi."));
    QTest::keyClick(filter, Qt::Key_Z, Qt::ControlModifier);
    QVERIFY(filter->text() != s("chi."));
    QTest::keyClick(filter, Qt::Key_Delete);
    QCOMPARE(scene().objects.size(), objects);
    QCOMPARE(window().document().currentStep(), 0);
    QTest::keyClick(filter, Qt::Key_N, Qt::ControlModifier); // no text needs that one
    QCOMPARE(scene().objects.size(), 0);
}

void StudioTest::sheetHasWhatTheTableLists()
{
    CustomizeDialog *dialog = window().showCustomizeDialog();
    QApplication::setActiveWindow(dialog);
    const EditorHands hands(dialog);
    hands.searchByName(s("merge"));
    auto *menu = dialog->findChild<SheetMenu *>();
    const QString path = m_user->filePath(s("merge.md"));
    DialogAnswers answers;
    answers.file(path);
    menu->exportSheet();
    QCOMPARE(answers.faults(), QString());
    QFile file(path);
    QVERIFY(file.open(QIODevice::ReadOnly));
    const QString text = QString::fromUtf8(file.readAll());
    const QStringList rows = hands.rows();
    QVERIFY(rows.size() > 2);
    for (const QString &row : rows)
        QVERIFY2(text.contains(s("| %1 |").arg(row)), qPrintable(text));
    QCOMPARE(text.count(s("\n| ")) - 2 * text.count(s("| --- | --- |")), rows.size());
    menu->setWithKeyboard(true);
    menu->showPrintPreview();
    auto *preview = dialog->findChild<QPrintPreviewWidget *>();
    QTRY_COMPARE(preview->pageCount(), 2);
    preview->window()->close();
}

QTEST_MAIN(StudioTest)
#include "tst_Studio.moc"
