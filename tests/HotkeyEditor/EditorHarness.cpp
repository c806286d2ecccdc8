#include "EditorHarness.h"

#include <QApplication>
#include <QComboBox>
#include <QDir>
#include <QFileDialog>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QMessageBox>
#include <QPushButton>
#include <QToolButton>
#include <QTreeView>
#include <QVBoxLayout>
#include <QtTest>

#include <utility>

const CUI::ActionIdentifier box{1, QStringLiteral("box")};
const CUI::ActionIdentifier boxes{1, QStringLiteral("boxes")};
const CUI::ActionIdentifier sphere{1, QStringLiteral("sphere")};
const CUI::ActionIdentifier bevel{2, QStringLiteral("bevel")};

namespace {

QString s(const char *text)
{
    return QString::fromUtf8(text);
}

} // namespace

EditorHarness::EditorHarness()
{
    TestRegistry *registry = host.registry();
    registry->addActionContext(1, s("Viewport"));
    registry->addActionContext(2, s("Mesh"));
    registry->addAction(box, s("Box"), 1, s("Add"), false);
    registry->addAction(boxes, s("Array of <b>Box</b>"), 1, s("Add"), true);
    registry->addAction(sphere, s("Sphere"), 1, s("Add"), false);
    registry->addAction(bevel, s("Bevel"), 2, s("Mesh"), false);

    QDir().mkpath(host.path(s("shipped")));
    QDir().mkpath(host.path(s("user")));
    QDir().mkpath(host.path(s("legacy")));
    const QString folder = QDir::cleanPath(host.path(s(".")));
    host.paths()->defaultPresets = folder + s("/shipped");
    host.paths()->userPresets = folder + s("/user");
    host.paths()->legacyDirectory = folder + s("/legacy");
    host.paths()->baseFiles = QStringList(
            host.write(s("base.hsxb"), "<VelHotkeys><Hotkey Shortcut='B' Id='1-box'/>"
                                       "<Hotkey Shortcut='S, Ctrl+S' Id='1-sphere'/>"
                                       "<Hotkey Shortcut='B' Id='2-bevel'/></VelHotkeys>"));
    host.write(s("shipped/default.hsx"),
               "<VelHotkeyTransformations Locked='true' Description='Default'/>");
    host.write(s("user/Mine.hsx"), "<VelHotkeyTransformations>"
                                   "<Assign_Hotkey Shortcut='F5' Description='Box' Id='1-box'/>"
                                   "</VelHotkeyTransformations>");
    host.write(s("user/Other.hsx"), "<VelHotkeyTransformations>"
                                    "<Unassign_Hotkey Shortcut='B' Id='1-box'/>"
                                    "</VelHotkeyTransformations>");
    shippedSet = folder + s("/shipped/default.hsx");
    userSet = folder + s("/user/Mine.hsx");
    otherSet = folder + s("/user/Other.hsx");
    host.paths()->defaultSet = shippedSet;
    host.paths()->currentSet = userSet;
}

EditorHarness::~EditorHarness()
{
    close();
}

void EditorHarness::open(QWidget *dialog)
{
    manager.loadCurrentShortcutConfiguration();
    model = std::make_unique<CUI::QvelActionItemModel>(&manager);
    editor = std::make_unique<CUI::QvelShortcutsWidget>(model.get(), &manager, dialog);
    if (dialog != nullptr)
        dialog->layout()->addWidget(editor.get());
    editor->window()->show();
    QObject::connect(child<QLineEdit>("HotkeyEditor_searchLineEdit"), &QLineEdit::textChanged,
                     editor.get(), [this] { m_hasSearched = true; });
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
    model.reset();
}

void EditorHarness::click(const char *name) const
{
    QTest::mouseClick(child<QWidget>(name), Qt::LeftButton);
}

void EditorHarness::press(int key, Qt::KeyboardModifiers modifiers) const
{
    QTest::keyClick(child<QLineEdit>("HotkeyEditor_shortcutLineEdit"), static_cast<Qt::Key>(key),
                    modifiers);
}

void EditorHarness::select(const CUI::ActionIdentifier &id) const
{
    auto *tree = child<QTreeView>("HotkeyEditor_keyActionsTreeView");
    const QString name = host.registry()->getAction(id)->name();
    for (int row = 0; row < tree->model()->rowCount(); ++row) {
        const QModelIndex index = tree->model()->index(row, 0);
        if (index.data().toString() == name) {
            tree->scrollTo(index);
            QTest::mouseClick(tree->viewport(), Qt::LeftButton, Qt::NoModifier,
                              tree->visualRect(index).center());
            return;
        }
    }
    qFatal("the tree does not list the action");
}

QString EditorHarness::rows() const
{
    const QAbstractItemModel *shown = child<QTreeView>("HotkeyEditor_keyActionsTreeView")->model();
    QStringList names;
    for (int row = 0; row < shown->rowCount(); ++row)
        names << shown->index(row, 0).data().toString();
    return names.join(s(", "));
}

QString EditorHarness::assigned() const
{
    const QLayout *layout = child<QWidget>("assignedHotkeysWidget")->layout();
    QStringList texts;
    for (int i = 0; i < layout->count(); ++i) {
        const QWidget *row = layout->itemAt(i)->widget();
        if (row == nullptr || row->objectName() == s("line"))
            continue;
        const QString text = row->findChild<QLabel *>()->text();
        const bool isRemoved =
                row->findChild<QPushButton *>(s("HotkeyEditor_undoAssignedButton")) != nullptr;
        texts << (isRemoved ? QLatin1Char('(') + text.section(QRegularExpression(s("</?b>")), 1, 1)
                                      + QLatin1Char(')')
                            : text);
    }
    return texts.join(s(", "));
}

void EditorHarness::clickRow(const QString &shortcut) const
{
    const QLayout *layout = child<QWidget>("assignedHotkeysWidget")->layout();
    for (int i = 0; i < layout->count(); ++i) {
        const QWidget *row = layout->itemAt(i)->widget();
        const QLabel *label = row != nullptr ? row->findChild<QLabel *>() : nullptr;
        if (label != nullptr
            && QString(label->text()).remove(QRegularExpression(s("<br>.*|</?b>"))) == shortcut) {
            QTest::mouseClick(row->findChild<QPushButton *>(), Qt::LeftButton);
            return;
        }
    }
    qFatal("no row of that hotkey");
}

void EditorHarness::triggerOption(const QString &text) const
{
    const QMenu *menu = child<QToolButton>("HotkeyEditor_toolButtonPresetOptions")->menu();
    for (QAction *action : menu->actions()) {
        if (action->text() == text) {
            action->trigger();
            return;
        }
    }
    qFatal("no such option");
}

QString EditorHarness::chosenSet() const
{
    return child<QComboBox>("HotkeyEditor_hotkeySetComboBox")->currentText();
}

void EditorHarness::chooseSet(const QString &name) const
{
    auto *comboBox = child<QComboBox>("HotkeyEditor_hotkeySetComboBox");
    comboBox->setCurrentIndex(comboBox->findText(name));
}

void EditorHarness::edit()
{
    manager.assignShortcut(bevel, QStringLiteral("F9"), QStringLiteral("Bevel"));
}

QString EditorHarness::hotkeys(const CUI::ActionIdentifier &id) const
{
    return manager.getShortcutsFromActionId(id);
}

QStringList EditorHarness::listedSets() const
{
    const auto *comboBox = child<QComboBox>("HotkeyEditor_hotkeySetComboBox");
    QStringList names;
    for (int i = 0; i < comboBox->count(); ++i)
        names << comboBox->itemText(i);
    return names;
}

void EditorHarness::refreshList() const
{
    host.write(s("user/Zed.hsx"), "<VelHotkeyTransformations/>");
    QTRY_VERIFY(listedSets().contains(s("Zed")));
}

DialogDriver::DialogDriver()
{
    lookAgain();
}

// A shot for each look: an answer may open the next dialog before it returns, and a timer does not
// fire inside of its own call.
void DialogDriver::lookAgain()
{
    QTimer::singleShot(5, this, [this] { answerNext(); });
}

DialogDriver &DialogDriver::expect(Answer answer)
{
    m_answers.push_back(std::move(answer));
    return *this;
}

DialogDriver &DialogDriver::expectBox(const QString &title, int button)
{
    return expect([this, title, button](QWidget *dialog) {
        auto *messageBox = qobject_cast<QMessageBox *>(dialog);
        if (messageBox == nullptr || messageBox->windowTitle() != title) {
            m_complaints << s("expected '%1', found '%2'").arg(title, dialog->windowTitle());
            dialog->close();
            return;
        }
        m_texts << messageBox->text();
        QTest::mouseClick(messageBox->button(static_cast<QMessageBox::StandardButton>(button)),
                          Qt::LeftButton);
    });
}

DialogDriver &DialogDriver::expectFile(const QString &title, const QString &path)
{
    return expect([this, title, path](QWidget *dialog) {
        auto *fileDialog = qobject_cast<QFileDialog *>(dialog);
        if (fileDialog == nullptr || fileDialog->windowTitle() != title) {
            m_complaints << s("expected '%1', found '%2'").arg(title, dialog->windowTitle());
            dialog->close();
            return;
        }
        if (path.isEmpty()) {
            QTest::keyClick(fileDialog, Qt::Key_Escape);
            return;
        }
        auto *name = fileDialog->findChild<QLineEdit *>(s("fileNameEdit"));
        name->setText(path);
        QTest::keyClick(name, Qt::Key_Return);
    });
}

DialogDriver &DialogDriver::expectReplacement()
{
    return expect([](QWidget *dialog) {
        auto *question = qobject_cast<QMessageBox *>(dialog);
        QVERIFY(question != nullptr);
        QTest::mouseClick(question->button(QMessageBox::Yes), Qt::LeftButton);
    });
}

void DialogDriver::answerNext()
{
    lookAgain();
    QWidget *dialog = QApplication::activeModalWidget();
    if (dialog == nullptr || !dialog->isVisible())
        return;
    if (m_next == m_answers.size()) {
        const auto *messageBox = qobject_cast<QMessageBox *>(dialog);
        m_complaints << s("nobody expects '%1': %2")
                                .arg(dialog->windowTitle(),
                                     messageBox != nullptr ? messageBox->text() : QString());
        dialog->close();
        return;
    }
    m_answers[m_next++](dialog);
}

bool DialogDriver::check()
{
    if (m_next != m_answers.size())
        m_complaints << s("%1 dialogs did not come").arg(m_answers.size() - m_next);
    for (const QString &complaint : m_complaints)
        qWarning("%s", qPrintable(complaint));
    return m_complaints.isEmpty();
}
