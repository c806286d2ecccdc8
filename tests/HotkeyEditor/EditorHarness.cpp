#include "EditorHarness.h"

#include <QApplication>
#include <QDir>
#include <QFileDialog>
#include <QMenu>
#include <QPushButton>
#include <QToolButton>
#include <QVBoxLayout>
#include <QtTest>

#include <utility>

const CUI::ActionIdentifier box{1, QStringLiteral("box")};
const CUI::ActionIdentifier boxes{1, QStringLiteral("boxes")};
const CUI::ActionIdentifier sphere{1, QStringLiteral("sphere")};
const CUI::ActionIdentifier bevel{2, QStringLiteral("bevel")};

EditorHarness::EditorHarness()
{
    TestRegistry *registry = host.registry();
    registry->addActionContext(1, s("Viewport"));
    registry->addActionContext(2, s("Mesh"));
    registry->addAction(box, s("Box"), 1, s("Add"), false);
    registry->addAction(boxes, s("Array of <b>Box</b>"), 1, s("Add"), true);
    registry->addAction(sphere, s("Sphere"), 1, s("Add"), false);
    registry->addAction(bevel, s("Bevel"), 2, s("Mesh"), false);

    const QString folder = QDir::cleanPath(host.path(s(".")));
    for (const char *name : {"shipped", "user", "legacy"})
        QDir(folder).mkdir(s(name));
    TestPaths *paths = host.paths();
    paths->defaultPresets = folder + s("/shipped");
    paths->userPresets = folder + s("/user");
    paths->legacyDirectory = folder + s("/legacy");
    paths->baseFiles << host.write(s("base.hsxb"),
                                   "<VelHotkeys><Hotkey Shortcut='B' Id='1-box'/>"
                                   "<Hotkey Shortcut='S, Ctrl+S' Id='1-sphere'/>"
                                   "<Hotkey Shortcut='B' Id='2-bevel'/></VelHotkeys>");
    const auto writeSet = [&](const char *name, const char *contents) {
        host.write(s(name), contents);
        return folder + QLatin1Char('/') + s(name);
    };
    shippedSet = writeSet("shipped/default.hsx",
                          "<VelHotkeyTransformations Locked='true' Description='Default'/>");
    userSet = writeSet("user/Mine.hsx",
                       "<VelHotkeyTransformations><Assign_Hotkey Shortcut='F5' Description='Box' "
                       "Id='1-box'/></VelHotkeyTransformations>");
    otherSet = writeSet("user/Other.hsx",
                        "<VelHotkeyTransformations><Unassign_Hotkey Shortcut='B' Id='1-box'/>"
                        "</VelHotkeyTransformations>");
    paths->defaultSet = shippedSet;
    paths->currentSet = userSet;
}

void EditorHarness::open(std::unique_ptr<QDialog> holder)
{
    dialog = std::move(holder);
    manager.loadCurrentShortcutConfiguration();
    model = std::make_unique<CUI::QvelActionItemModel>(&manager);
    editor = std::make_unique<CUI::QvelShortcutsWidget>(model.get(), &manager, dialog.get());
    if (dialog != nullptr)
        dialog->layout()->addWidget(editor.get());
    editor->window()->show();
    QObject::connect(search(), &QLineEdit::textChanged, editor.get(),
                     [this] { m_hasSearched = true; });
    QApplication::setActiveWindow(editor->window());
    QVERIFY(QTest::qWaitForWindowActive(editor->window()));
}

void EditorHarness::close()
{
    // The fading clear button of a line edit is animated by an object that only its end deletes.
    constexpr int fadingTime = 250;
    if (std::exchange(m_hasSearched, false))
        QTest::qWait(fadingTime);
    editor.reset();
    dialog.reset();
    model.reset();
}

void EditorHarness::click(const char *name) const
{
    QTest::mouseClick(child(name), Qt::LeftButton);
}

void EditorHarness::press(int key, Qt::KeyboardModifiers modifiers) const
{
    QTest::keyClick(field(), static_cast<Qt::Key>(key), modifiers);
}

void EditorHarness::enter(int key, Qt::KeyboardModifiers modifiers) const
{
    press(key, modifiers);
    click("HotkeyEditor_assignShortcutBtn");
}

void EditorHarness::select(const CUI::ActionIdentifier &id) const
{
    const QAbstractItemModel *shown = tree()->model();
    const QModelIndex index =
            shown->match(shown->index(0, 0), Qt::DisplayRole, nameOf(id), 1, Qt::MatchExactly)
                    .value(0);
    if (!index.isValid())
        qFatal("the tree does not list the action");
    tree()->scrollTo(index);
    QTest::mouseClick(tree()->viewport(), Qt::LeftButton, Qt::NoModifier,
                      tree()->visualRect(index).center());
}

std::vector<QWidget *> EditorHarness::hotkeyRows() const
{
    const QLayout *layout = child("assignedHotkeysWidget")->layout();
    std::vector<QWidget *> found;
    for (int i = 0; i < layout->count(); ++i) {
        QWidget *row = layout->itemAt(i)->widget();
        if (row != nullptr && row->objectName() != s("line"))
            found.push_back(row);
    }
    return found;
}

QString EditorHarness::assigned() const
{
    QStringList texts;
    for (const QWidget *row : hotkeyRows()) {
        const QString text = row->findChild<QLabel *>()->text();
        const bool isRemoved = row->findChild<QWidget *>(s("HotkeyEditor_undoAssignedButton"));
        texts << (isRemoved ? s("(%1)").arg(text.section(QRegularExpression(s("</?b>")), 1, 1))
                            : text);
    }
    return texts.join(s(", "));
}

void EditorHarness::clickRow(const char *shortcut) const
{
    for (const QWidget *row : hotkeyRows()) {
        QString text = row->findChild<QLabel *>()->text();
        if (text.remove(QRegularExpression(s("<br>.*|</?b>"))) == s(shortcut)) {
            QTest::mouseClick(row->findChild<QPushButton *>(), Qt::LeftButton);
            return;
        }
    }
    qFatal("no row of that hotkey");
}

void EditorHarness::triggerOption(const char *text) const
{
    const QMenu *menu = child<QToolButton>("HotkeyEditor_toolButtonPresetOptions")->menu();
    for (QAction *action : menu->actions()) {
        if (action->text() == s(text)) {
            action->trigger();
            return;
        }
    }
    qFatal("no such option");
}

QStringList EditorHarness::textsOf(const QAbstractItemModel *model)
{
    QStringList texts;
    for (int row = 0; row < model->rowCount(); ++row)
        texts << model->index(row, 0).data().toString();
    return texts;
}

void EditorHarness::refreshList() const
{
    host.write(s("user/Zed.hsx"), "<VelHotkeyTransformations/>");
    QTRY_VERIFY(listedSets().contains(s("Zed")));
}

QString EditorHarness::nameOf(const CUI::ActionIdentifier &id) const
{
    return host.registry()->getAction(id)->name();
}

void EditorHarness::assign(const CUI::ActionIdentifier &id, const QString &shortcut)
{
    manager.assignShortcut(id, shortcut, nameOf(id));
}

void EditorHarness::unassign(const CUI::ActionIdentifier &id, const char *shortcut)
{
    manager.unassignShortcut(id, s(shortcut), nameOf(id));
}

void EditorHarness::edit()
{
    assign(bevel, "F9");
}

QString EditorHarness::hotkeys(const CUI::ActionIdentifier &id) const
{
    return manager.getShortcutsFromActionId(id);
}

// A shot for each look: an answer may open the next dialog before it returns, and a timer does not
// fire inside of its own call.
void DialogDriver::lookAgain()
{
    QTimer::singleShot(5, this, [this] { answerNext(); });
}

template <typename Dialog>
Dialog *DialogDriver::expected(QWidget *dialog, const char *title)
{
    auto *found = qobject_cast<Dialog *>(dialog);
    if (found != nullptr && found->windowTitle() == s(title))
        return found;
    m_complaints << s("expected '%1', found '%2'").arg(s(title), dialog->windowTitle());
    dialog->close();
    return nullptr;
}

DialogDriver &DialogDriver::expect(Answer answer)
{
    m_answers.push_back(std::move(answer));
    return *this;
}

DialogDriver &DialogDriver::expectBox(const char *title, int button, const Look &look)
{
    return expect([=](QWidget *dialog) {
        auto *messageBox = expected<QMessageBox>(dialog, title);
        if (messageBox == nullptr)
            return;
        m_texts << messageBox->text();
        if (look)
            look(messageBox);
        QTest::mouseClick(messageBox->button(static_cast<QMessageBox::StandardButton>(button)),
                          Qt::LeftButton);
    });
}

DialogDriver &DialogDriver::expectFile(const char *title, const QString &path)
{
    return expect([=](QWidget *dialog) {
        auto *fileDialog = expected<QFileDialog>(dialog, title);
        if (fileDialog == nullptr)
            return;
        if (path.isEmpty()) {
            QTest::keyClick(fileDialog, Qt::Key_Escape);
            return;
        }
        auto *name = fileDialog->findChild<QLineEdit *>(s("fileNameEdit"));
        name->setText(path);
        QTest::keyClick(name, Qt::Key_Return);
    });
}

DialogDriver &DialogDriver::expectReplacement(const char *title, const QString &path)
{
    return expectFile(title, path).expectBox(title, QMessageBox::Yes);
}

void DialogDriver::answerNext()
{
    lookAgain();
    QWidget *dialog = QApplication::activeModalWidget();
    if (dialog == nullptr || !dialog->isVisible())
        return;
    if (m_next < m_answers.size()) {
        m_answers[m_next++](dialog);
        return;
    }
    m_complaints << s("nobody expects '%1': %2")
                            .arg(dialog->windowTitle(), dialog->property("text").toString());
    dialog->close();
}

bool DialogDriver::check()
{
    if (m_next != m_answers.size())
        m_complaints << s("%1 dialogs did not come").arg(m_answers.size() - m_next);
    for (const QString &complaint : m_complaints)
        qWarning("%s", qPrintable(complaint));
    return m_complaints.isEmpty();
}

void EditorTest::init()
{
    m = std::make_unique<EditorHarness>();
    m->open();
    dialogs = std::make_unique<DialogDriver>();
}

void EditorTest::cleanup()
{
    const bool cameAsExpected = dialogs->check();
    dialogs.reset();
    m.reset();
    QVERIFY2(cameAsExpected, "other dialogs came than the test expects");
}
