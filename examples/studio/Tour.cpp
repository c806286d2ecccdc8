#include "Tour.h"

#include "CustomizeDialog.h"
#include "DialogAnswers.h"
#include "Gestures.h"
#include "HotkeyActions.h"
#include "MainWindow.h"
#include "NodeView.h"
#include "StudioSession.h"
#include "Viewport.h"

#include <UiCustomizations/QvelShortcutsWidget.h>

#include <QApplication>
#include <QComboBox>
#include <QDir>
#include <QFileInfo>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QStatusBar>
#include <QTabWidget>

namespace Studio {

namespace {

const CUI::ActionIdentifier saveScene = {1, QStringLiteral("saveScene")};
const CUI::ActionIdentifier saveIncremental = {1, QStringLiteral("saveIncremental")};
const QString ctrlS = QStringLiteral("Ctrl+S");
constexpr unsigned long fileAndEdit = 1;

} // namespace

Tour::Tour(const Folders &folders, QTextStream &out) : m_folders(folders), m_out(out) { }

Tour::~Tour() = default;

bool Tour::run()
{
    if (!QDir().mkpath(m_folders.pictures) || !QDir().mkpath(m_folders.user)) {
        m_out << "the folders of the tour cannot be made" << Qt::endl;
        return false;
    }
    start();
    if (m_faults > 0)
        return false;
    useKeys();
    holdKey();
    openDialog();
    search();
    meetConflict();
    removeAndUndo();
    assign();
    saveAs();
    switchSets();
    closeUnsaved();
    importLegacy();
    startAgain();
    m_out << m_steps << " steps, " << m_checks << " checks, " << m_faults << " faults" << Qt::endl;
    return m_faults == 0;
}

// Helpers

MainWindow &Tour::window() const
{
    return m_session->window();
}

QWidget *Tour::focused(QWidget *fallback) const
{
    return QApplication::focusWidget() != nullptr ? QApplication::focusWidget() : fallback;
}

QString Tour::owner(const QString &hotkey, unsigned long context) const
{
    return m_session->store().getActionIdFromShortcut(hotkey, context).toString();
}

QString Tour::menuText(const QString &action) const
{
    const QAction *entry =
            window().hotkeyActions().entry(CUI::ActionIdentifier::fromString(action));
    return entry != nullptr ? entry->text() + QLatin1Char('\t') + entry->shortcut().toString()
                            : QString();
}

QString Tour::currentSet() const
{
    return CUI::IPathManager::get()->getCurrentConfigurationFile(CUI::ConfigType::HotkeySet);
}

QString Tour::userFile(const QString &name) const
{
    return QDir(m_folders.user).absoluteFilePath(name);
}

void Tour::step(const QString &text, QWidget *shown)
{
    ++m_steps;
    Gestures::wait();
    m_out << QStringLiteral("%1  %2").arg(m_steps, 2).arg(text) << Qt::endl;
    QWidget *pictured = shown != nullptr ? shown : m_dialog;
    if (pictured == nullptr && m_session != nullptr)
        pictured = &window();
    const QString file = QStringLiteral("%1/%2.png")
                                 .arg(m_folders.pictures)
                                 .arg(m_steps, 2, 10, QLatin1Char('0'));
    check(pictured != nullptr && pictured->grab().save(file),
          QStringLiteral("the picture %1 is written").arg(file));
}

void Tour::check(bool isRight, const QString &expectation)
{
    ++m_checks;
    if (isRight)
        return;
    ++m_faults;
    m_out << "    WRONG: " << expectation << Qt::endl;
}

void Tour::watch(const DialogAnswers &answers)
{
    QObject::connect(&answers, &DialogAnswers::shown, &answers,
                     [this](QWidget *dialog) { step(dialog->windowTitle(), dialog); });
}

// Steps

void Tour::start()
{
    m_session = std::make_unique<StudioSession>(m_folders.host, m_folders.user);
    const bool started = m_session->start();
    check(started, m_session->errorText());
    if (!started)
        return;
    window().show();
    QApplication::setActiveWindow(&window());
    Gestures::wait(100);
    step(QStringLiteral("The application starts with the shipped keyset"));
    check(currentSet().endsWith(QLatin1String("/Velstudio Default Keyset.hsx")),
          QStringLiteral("the default set is current"));
    check(menuText(QStringLiteral("1-undo")) == QLatin1String("Undo\tCtrl+Z"),
          QStringLiteral("the menu shows Undo with Ctrl+Z"));
    check(window().statusBar()->currentMessage() == QLatin1String("Ready"),
          QStringLiteral("the status bar says Ready"));
}

void Tour::useKeys()
{
    const int objects = window().document().scene().objects.size();
    const int nodes = window().document().scene().graph.nodes.size();
    window().viewport().setFocus();
    Gestures::tapKey(&window().viewport(), Qt::Key_A, Qt::NoModifier, QStringLiteral("a"));
    Gestures::tapKey(&window().viewport(), Qt::Key_Z, Qt::NoModifier, QStringLiteral("z"));
    step(QStringLiteral("In the viewport, A adds a primitive and Z changes the shading"));
    check(window().document().scene().objects.size() == objects + 1,
          QStringLiteral("there is one more object"));
    check(window().document().scene().graph.nodes.size() == nodes,
          QStringLiteral("there are as many nodes as before"));
    window().setWorkspace(3);
    window().nodeView().setFocus();
    Gestures::tapKey(&window().nodeView(), Qt::Key_A, Qt::NoModifier, QStringLiteral("a"));
    step(QStringLiteral("In the node graph, the same A adds a node"));
    check(window().document().scene().objects.size() == objects + 1,
          QStringLiteral("there are as many objects as before"));
    check(window().document().scene().graph.nodes.size() == nodes + 1,
          QStringLiteral("there is one more node"));
    Gestures::tapKey(&window().nodeView(), Qt::Key_Z, Qt::ControlModifier);
    Gestures::tapKey(&window().nodeView(), Qt::Key_Z, Qt::ControlModifier);
    step(QStringLiteral("Ctrl+Z, which counts everywhere, takes both back"));
    check(window().document().scene().objects.size() == objects
                  && window().document().scene().graph.nodes.size() == nodes,
          QStringLiteral("object and node are gone"));
    window().setWorkspace(0);
}

void Tour::holdKey()
{
    Viewport *viewport = &window().viewport();
    viewport->setFocus();
    Gestures::pressKey(viewport, Qt::Key_Space, Qt::NoModifier, QStringLiteral(" "));
    Gestures::wait();
    step(QStringLiteral("Space, held, lets any mouse button orbit"));
    check(window().view().get().heldOrbit, QStringLiteral("orbiting is on"));
    Gestures::pressKey(viewport, Qt::Key_Space, Qt::NoModifier, QStringLiteral(" "), true);
    check(window().view().get().heldOrbit, QStringLiteral("a repeated key changes nothing"));
    Gestures::releaseKey(viewport, Qt::Key_Space);
    check(!window().view().get().heldOrbit, QStringLiteral("orbiting ends with the key"));
}

void Tour::openDialog()
{
    Gestures::tapKey(&window().viewport(), Qt::Key_K, Qt::ControlModifier | Qt::AltModifier);
    m_dialog = window().findChild<CustomizeDialog *>();
    check(m_dialog != nullptr && m_dialog->isVisible(), QStringLiteral("the dialog is open"));
    if (m_dialog == nullptr)
        m_dialog = window().showCustomizeDialog();
    QApplication::setActiveWindow(m_dialog);
    m_hands.emplace(m_dialog);
    Gestures::wait(100);
    step(QStringLiteral("Ctrl+Alt+K opens the dialog"));
    check(m_dialog->windowTitle().contains(QLatin1String("Velstudio Default Keyset")),
          QStringLiteral("the title names the set"));
    for (int tab : {1, 2, 3}) {
        m_dialog->tabs()->setCurrentIndex(tab);
        step(m_dialog->tabs()->tabText(tab).remove(QLatin1Char('&')));
    }
    m_dialog->tabs()->setCurrentIndex(0);
}

void Tour::search()
{
    const int all = m_hands->rows().size();
    m_hands->searchByName(QStringLiteral("dupl"));
    step(QStringLiteral("A search by name"));
    const QStringList named = m_hands->rows();
    check(!named.isEmpty() && named.size() < all, QStringLiteral("some rows are left"));
    check(named.contains(QLatin1String("Duplicate Nodes")),
          QStringLiteral("Duplicate Nodes is among them"));
    m_hands->clearSearch();
    m_hands->searchByKey(Qt::Key_D, Qt::NoModifier);
    step(QStringLiteral("A search by key"));
    const QStringList keyed = m_hands->rows();
    check(keyed.contains(QLatin1String("Duplicate")) && keyed.contains(QLatin1String("Draw Curve")),
          QStringLiteral("the holders of D are found"));
    check(!keyed.contains(QLatin1String("Undo")), QStringLiteral("that of Ctrl+Z is not"));
    m_hands->clearSearch();
    check(m_hands->rows().size() == all, QStringLiteral("all rows are back"));
}

void Tour::meetConflict()
{
    check(m_hands->select(saveIncremental), QStringLiteral("Save Incremental is listed"));
    m_hands->press(Qt::Key_S, Qt::ControlModifier);
    step(QStringLiteral("Ctrl+S for Save Incremental is Save Scene's"));
    check(m_hands->label("HotkeyEditor_assignedToLabel") == QLatin1String("Save Scene"),
          QStringLiteral("the conflict names Save Scene"));
    check(!m_hands->child<QPushButton>("HotkeyEditor_assignShortcutBtn")->isEnabled(),
          QStringLiteral("it cannot be assigned yet"));
    check(owner(ctrlS, fileAndEdit) == saveScene.toString(),
          QStringLiteral("Save Scene still has Ctrl+S"));
}

void Tour::removeAndUndo()
{
    m_hands->click("HotkeyEditor_removeShortcutBtn");
    step(QStringLiteral("Remove takes it from Save Scene"));
    check(owner(ctrlS, fileAndEdit).isEmpty() || owner(ctrlS, fileAndEdit) == QLatin1String("0-"),
          QStringLiteral("nobody has Ctrl+S"));
    check(menuText(saveScene.toString()) == QLatin1String("Save Scene\t"),
          QStringLiteral("the menu shows Save Scene without a hotkey"));
    check(m_session->store().isUserModified(), QStringLiteral("there is an unsaved edit"));
    m_hands->click("HotkeyEditor_undoRemoveBtn");
    step(QStringLiteral("Undo gives it back"));
    check(owner(ctrlS, fileAndEdit) == saveScene.toString(),
          QStringLiteral("Save Scene has Ctrl+S again"));
    check(!m_session->store().isUserModified(), QStringLiteral("no edit is left"));
}

void Tour::assign()
{
    m_hands->select(saveIncremental);
    m_hands->press(Qt::Key_S, Qt::ControlModifier);
    m_hands->click("HotkeyEditor_removeShortcutBtn");
    m_hands->click("HotkeyEditor_assignShortcutBtn");
    step(QStringLiteral("Removed again, it is assigned"));
    check(owner(ctrlS, fileAndEdit) == saveIncremental.toString(),
          QStringLiteral("Save Incremental has Ctrl+S"));
    check(m_dialog->isWindowModified(), QStringLiteral("the dialog is marked as modified"));
    window().viewport().setFocus();
    QApplication::setActiveWindow(&window());
    Gestures::tapKey(&window().viewport(), Qt::Key_S, Qt::ControlModifier);
    check(window().statusBar()->currentMessage().startsWith(QLatin1String("Save Incremental")),
          QStringLiteral("Ctrl+S in the viewport performs Save Incremental"));
    QApplication::setActiveWindow(m_dialog);
}

void Tour::saveAs()
{
    const QString path = userFile(QStringLiteral("Tour.hsx"));
    DialogAnswers answers;
    watch(answers);
    answers.file(path);
    check(m_hands->option(QStringLiteral("Save As...")), QStringLiteral("there is Save As..."));
    step(QStringLiteral("Save As writes a set of the user's"));
    check(answers.faults().isEmpty(), answers.faults());
    check(QFileInfo(path).isFile() && CUI::QvelShortcutManager::validateShortcutsTransforms(path),
          QStringLiteral("the file is there and valid"));
    check(QFileInfo(currentSet()) == QFileInfo(path), QStringLiteral("it is the current set"));
    check(!m_session->store().isUserModified(), QStringLiteral("nothing is unsaved"));
    check(m_dialog->windowTitle().contains(QLatin1String("Tour")),
          QStringLiteral("the title names the new set"));
}

void Tour::switchSets()
{
    auto *box = m_hands->child<QComboBox>("HotkeyEditor_hotkeySetComboBox");
    box->setFocus();
    for (int i = 0; i < box->count() && !box->currentText().startsWith(QLatin1String("Zarvi")); ++i)
        Gestures::tapKey(box, Qt::Key_Up);
    step(QStringLiteral("Another set is chosen"));
    check(box->currentText().startsWith(QLatin1String("Zarvi")),
          QStringLiteral("the box shows Zarvi's"));
    check(owner(QStringLiteral("Ctrl+I"), fileAndEdit) == QLatin1String("1-invertSelection"),
          QStringLiteral("Ctrl+I inverts the selection"));
    check(owner(ctrlS, fileAndEdit) == saveScene.toString(),
          QStringLiteral("Save Scene has Ctrl+S in that set"));
    check(menuText(QStringLiteral("1-invertSelection"))
                  == QLatin1String("Invert Selection\tCtrl+I"),
          QStringLiteral("the menu follows"));
}

void Tour::closeUnsaved()
{
    m_hands->select(saveIncremental);
    m_hands->press(Qt::Key_F7, Qt::ControlModifier | Qt::ShiftModifier);
    m_hands->click("HotkeyEditor_assignShortcutBtn");
    check(m_session->store().isUserModified(), QStringLiteral("there is an unsaved edit"));
    DialogAnswers answers;
    watch(answers);
    answers.button(QMessageBox::Cancel);
    m_dialog->close();
    Gestures::wait();
    check(m_dialog->isVisible(), QStringLiteral("after Cancel the dialog stays open"));
    answers.button(QMessageBox::Discard);
    m_dialog->close();
    m_dialog = nullptr;
    Gestures::wait();
    check(answers.faults().isEmpty(), answers.faults());
    check(window().findChild<CustomizeDialog *>() == nullptr,
          QStringLiteral("after Discard it is closed"));
    check(!m_session->store().isUserModified(), QStringLiteral("the edit is gone"));
    step(QStringLiteral("Closed without saving"));
}

void Tour::importLegacy()
{
    m_dialog = window().showCustomizeDialog();
    QApplication::setActiveWindow(m_dialog);
    m_hands.emplace(m_dialog);
    Gestures::wait(100);
    DialogAnswers answers;
    watch(answers);
    answers.file(m_folders.legacyFile).button(QMessageBox::Ok);
    check(m_hands->option(QStringLiteral("Import Legacy Hotkeys...")),
          QStringLiteral("there is Import Legacy Hotkeys..."));
    step(QStringLiteral("A keyboard file of an older release is imported"));
    check(answers.faults().isEmpty(), answers.faults());
    const QString set =
            userFile(QFileInfo(m_folders.legacyFile).completeBaseName() + QStringLiteral(".hsx"));
    check(QFileInfo(set).isFile(), QStringLiteral("the set is in the user's folder"));
    check(QFileInfo(currentSet()) == QFileInfo(set), QStringLiteral("it is the current set"));
    check(!m_session->store().currentTransformations().empty(),
          QStringLiteral("it holds what the user had changed"));
    m_dialog->close();
    m_dialog = nullptr;
    Gestures::wait();
}

void Tour::startAgain()
{
    const QString set = currentSet();
    const std::size_t steps = m_session->store().currentTransformations().size();
    m_session.reset();
    m_session = std::make_unique<StudioSession>(m_folders.host, m_folders.user);
    check(m_session->start(), m_session->errorText());
    window().show();
    Gestures::wait(100);
    step(QStringLiteral("Started again, the application has the imported set"));
    check(currentSet() == set, QStringLiteral("the set is current again"));
    check(m_session->store().currentTransformations().size() == steps,
          QStringLiteral("with all its steps"));
    check(QFileInfo(userFile(QStringLiteral("current.json"))).isFile(),
          QStringLiteral("the record is in the user's folder"));
    m_session.reset();
}

} // namespace Studio
