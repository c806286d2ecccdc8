#include "HotkeyDrag.h"
#include "KeyboardView.h"
#include "TestHost.h"
#include "Text.h"

#include <UiCustomizations/QvelActionItem.h>
#include <UiCustomizations/QvelActionItemModel.h>
#include <UiCustomizations/QvelHotkeyHistory.h>
#include <UiCustomizations/QvelKeyboardWidget.h>
#include <UiCustomizations/QvelShortcutManager.h>

#include <QAccessible>
#include <QDialog>
#include <QDropEvent>
#include <QMenu>
#include <QMessageBox>
#include <QMimeData>
#include <QPlainTextEdit>
#include <QTimer>
#include <QToolButton>
#include <QtTest>

using namespace CUI;

namespace {

const ActionIdentifier save{1, s("save")};
const ActionIdentifier open{1, s("open")};
const ActionIdentifier spin{2, s("spin")};

} // namespace

Q_DECLARE_METATYPE(std::vector<unsigned long>)

/// A keyboard of the USA over two contexts: save has Ctrl+S and spin both Ctrl+S and Q.
class KeyboardWidgetTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void keysAndArrowsFindKeys();
    void heldModifiersCount();
    void clicksActivateAndToggle();
    void groupsAreChosen();
    void actionsAreDropped();
    void keysAreMoved_data();
    void keysAreMoved();
    void menuMovesAndAssigns();
    void tableIsADragSource();
    void keysAreAccessible();

private:
    KeyboardView *view() const { return m_widget->findChild<KeyboardView *>(); }
    QPoint placeOf(const char *hotkey) const
    {
        const auto *key = view()->keyboard().keyOf(s(hotkey));
        return view()->rectOf(int(key - view()->keyboard().keys().data())).center();
    }
    QString details() const { return m_widget->findChild<QPlainTextEdit *>()->toPlainText(); }
    QString hotkeys(const ActionIdentifier &id) const
    {
        return m_store->getShortcutsFromActionId(id);
    }
    void drop(QMimeData *data, const char *hotkey);
    void answer(QMessageBox::StandardButton button);
    void choose(const char *entry);

    std::unique_ptr<TestHost> m_host;
    std::unique_ptr<QvelShortcutManager> m_store;
    std::unique_ptr<QvelKeyboardWidget> m_widget;
    QString m_asked;
};

void KeyboardWidgetTest::init()
{
    m_host = std::make_unique<TestHost>();
    m_host->registry()->addActionContext(1, s("File"));
    m_host->registry()->addActionContext(2, s("Mesh"));
    for (const ActionIdentifier &id : {save, open, spin})
        m_host->registry()->addAction(id, id.actionId, id.tableId, QString(), false);
    m_store = std::make_unique<QvelShortcutManager>();
    m_store->assignShortcut(save, s("Ctrl+S"), QString());
    m_store->assignShortcut(spin, s("Ctrl+S"), QString());
    m_store->assignShortcut(spin, s("Q"), QString());
    m_widget = std::make_unique<QvelKeyboardWidget>(m_store.get());
    m_widget->resize(900, 500);
    m_widget->show();
    m_widget->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(m_widget.get()));
    m_widget->setFocus();
    m_asked.clear();
}

void KeyboardWidgetTest::cleanup()
{
    m_widget.reset();
    m_store.reset();
    m_host.reset();
}

/// Drops as the toolkit does, from another widget.
void KeyboardWidgetTest::drop(QMimeData *data, const char *hotkey)
{
    const std::unique_ptr<QMimeData> owned(data);
    const QPoint place = placeOf(hotkey);
    QDragEnterEvent enter(place, Qt::CopyAction, data, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(view(), &enter);
    const Qt::KeyboardModifiers held = m_widget->modifiers();
    QDragMoveEvent over(place, Qt::CopyAction | Qt::MoveAction, data, Qt::LeftButton, held);
    QApplication::sendEvent(view(), &over);
    if (over.isAccepted()) {
        QDropEvent dropped(place, Qt::CopyAction | Qt::MoveAction, data, Qt::LeftButton, held);
        QApplication::sendEvent(view(), &dropped);
        QCOMPARE(dropped.dropAction(), Qt::CopyAction); // else the source would remove its row
    }
    QTest::qWait(0);
}

/// Answers the message box that comes next, and keeps its text.
void KeyboardWidgetTest::answer(QMessageBox::StandardButton button)
{
    QTimer::singleShot(0, this, [this, button] {
        auto *box = qobject_cast<QMessageBox *>(QApplication::activeModalWidget());
        if (box == nullptr)
            return answer(button);
        m_asked = box->text();
        box->button(button)->click();
    });
}

/// Chooses an entry of the context menu of the current key.
void KeyboardWidgetTest::choose(const char *entry)
{
    QContextMenuEvent wanted(QContextMenuEvent::Keyboard, QPoint());
    QApplication::sendEvent(view(), &wanted);
    const auto *menu = qobject_cast<QMenu *>(QApplication::activePopupWidget());
    QVERIFY(menu != nullptr);
    for (QAction *action : menu->actions()) {
        if (action->text() == s(entry)) {
            QTest::mouseClick(QApplication::activePopupWidget(), Qt::LeftButton, {},
                              menu->actionGeometry(action).center());
            return;
        }
    }
    QFAIL(entry);
}

void KeyboardWidgetTest::keysAndArrowsFindKeys()
{
    QSignalSpy activated(m_widget.get(), &QvelKeyboardWidget::hotkeyActivated);
    QTest::keyClick(view(), Qt::Key_Q);
    QCOMPARE(m_widget->currentHotkey(), s("Q"));
    QCOMPARE(details(), s("Q: Taken\nspin (Mesh)"));
    const QList<std::pair<Qt::Key, QString>> steps = {
            {Qt::Key_Right, s("W")},    {Qt::Key_Down, s("S")},      {Qt::Key_Down, s("X")},
            {Qt::Key_Down, s("Space")}, {Qt::Key_Up, s("B")},        {Qt::Key_F5, s("F5")},
            {Qt::Key_Left, s("F4")},    {Qt::Key_Semicolon, s(";")}, {Qt::Key_Right, s("'")},
            {Qt::Key_Right, s("Enter")}};
    for (const auto &[key, expected] : steps) {
        QTest::keyClick(view(), key);
        QCOMPARE(m_widget->currentHotkey(), expected);
    }
    QTest::keyClick(view(), Qt::Key_Return);
    QCOMPARE(activated.takeFirst().first().toString(), s("Enter"));
    QTest::keyClick(view(), Qt::Key_Tab);
    QVERIFY(!view()->hasFocus());
}

void KeyboardWidgetTest::heldModifiersCount()
{
    m_widget->setModifiers(Qt::AltModifier);
    QTest::keyClick(view(), Qt::Key_S, Qt::ControlModifier);
    QTest::keyPress(view(), Qt::Key_Control);
    QCOMPARE(m_widget->currentHotkey(), s("Ctrl+S"));
    QCOMPARE(details(), s("Ctrl+S: Taken in several groups\nsave (File)\nspin (Mesh)"));
    QTest::keyRelease(view(), Qt::Key_Control, Qt::ControlModifier);
    QCOMPARE(m_widget->currentHotkey(), s("Alt+S"));
    QTest::keyPress(view(), Qt::Key_Shift);
    QDialog other;
    other.show();
    other.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&other));
    QCOMPARE(m_widget->currentHotkey(), s("Alt+S"));
    QVERIFY(!m_widget->setCurrentHotkey(s("Ü")));
    QVERIFY(m_widget->setCurrentHotkey(s("Ctrl+Shift+Num+5")));
    QCOMPARE(m_widget->currentHotkey(), s("Ctrl+Shift+Num+5"));
}

void KeyboardWidgetTest::clicksActivateAndToggle()
{
    QSignalSpy activated(m_widget.get(), &QvelKeyboardWidget::hotkeyActivated);
    const auto click = [this](int code) {
        const auto &keys = view()->keyboard().keys();
        for (int i = 0; i < int(keys.size()); ++i) {
            if (keys[std::size_t(i)].code == code)
                QTest::mouseClick(view(), Qt::LeftButton, {}, view()->rectOf(i).center());
        }
    };
    click(29); // Ctrl
    QCOMPARE(m_widget->modifiers(), Qt::ControlModifier);
    click(31); // S
    QCOMPARE(activated.takeFirst().first().toString(), s("Ctrl+S"));
    click(1); // Escape
    click(29);
    QCOMPARE(m_widget->modifiers(), Qt::NoModifier);
    QCOMPARE(activated.size(), 0);
    QTest::mouseMove(view(), placeOf("Q"));
    QTRY_COMPARE(details(), s("Q: Taken\nspin (Mesh)"));
}

void KeyboardWidgetTest::groupsAreChosen()
{
    auto *button = m_widget->findChild<QToolButton *>(s("QvelKeyboardWidget_contexts"));
    m_widget->setCurrentHotkey(s("Ctrl+S"));
    QTimer::singleShot(0, this, [button] {
        QMenu *menu = button->menu();
        QTest::mouseClick(menu, Qt::LeftButton, {},
                          menu->actionGeometry(menu->actions().last()).center());
        menu->close();
    });
    QTest::mouseClick(button, Qt::LeftButton);
    QCOMPARE(m_widget->contexts(), std::vector<unsigned long>{2});
    QCOMPARE(button->text(), s("Mesh"));
    QCOMPARE(details(), s("Ctrl+S: Taken\nspin (Mesh)"));
}

void KeyboardWidgetTest::actionsAreDropped()
{
    drop(HotkeyDrag::ofAction(open), "W");
    QCOMPARE(hotkeys(open), s("W"));
    QTRY_COMPARE(details(), s("W: Taken\nopen (File)"));
    m_widget->setModifiers(Qt::ControlModifier);
    answer(QMessageBox::Cancel);
    drop(HotkeyDrag::ofAction(open), "S");
    QVERIFY2(m_asked.contains(s("Ctrl+S")) && m_asked.contains(s("save")), qPrintable(m_asked));
    QCOMPARE(hotkeys(save), s("Ctrl+S"));
    answer(QMessageBox::Yes);
    drop(HotkeyDrag::ofAction(open), "S");
    QCOMPARE(hotkeys(open), s("W, Ctrl+S"));
    QCOMPARE(hotkeys(save), QString());
    QCOMPARE(hotkeys(spin), s("Ctrl+S, Q"));
    for (const char *more : {"E", "R", "T", "Y"})
        drop(HotkeyDrag::ofAction(open), more);
    answer(QMessageBox::Ok);
    drop(HotkeyDrag::ofAction(open), "U"); // a seventh
    QVERIFY(m_asked.contains(s("at most 6")));
    drop(HotkeyDrag::ofAction({9, s("gone")}), "I");
    QCOMPARE(hotkeys(open).count(QLatin1Char(',')), 5);
}

void KeyboardWidgetTest::keysAreMoved_data()
{
    QTest::addColumn<std::vector<unsigned long>>("contexts");
    QTest::addColumn<QString>("hotkeys"); // of save, open and spin

    QTest::newRow("all") << std::vector<unsigned long>{} << s("Ctrl+D;;Q,Ctrl+D");
    QTest::newRow("one") << std::vector<unsigned long>{2} << s("Ctrl+S;Ctrl+D;Q,Ctrl+D");
}

void KeyboardWidgetTest::keysAreMoved()
{
    QFETCH(std::vector<unsigned long>, contexts);
    m_store->assignShortcut(open, s("Ctrl+D"), QString());
    QvelHotkeyHistory history(m_store.get());
    m_widget->setContexts(contexts);
    m_widget->setModifiers(Qt::ControlModifier);
    QTest::qWait(0);
    if (contexts.empty()) // open loses the key
        answer(QMessageBox::Yes);
    drop(HotkeyDrag::ofHotkey(s("Ctrl+S")), "D");
    QCOMPARE(m_asked.isEmpty(), contexts.size() == 1);
    QTEST((QStringList{hotkeys(save), hotkeys(open), hotkeys(spin)}.join(QLatin1Char(';')))
                  .remove(QLatin1Char(' ')),
          "hotkeys");
    history.undo();
    QCOMPARE(hotkeys(open), s("Ctrl+D"));
    QCOMPARE(hotkeys(spin), s("Ctrl+S, Q"));
    QVERIFY(!history.canUndo());
}

void KeyboardWidgetTest::menuMovesAndAssigns()
{
    m_widget->setCurrentAction(open);
    QTest::keyClick(view(), Qt::Key_Q);
    choose("Move Q to Another Key");
    QTest::keyClick(view(), Qt::Key_W);
    choose("Move Q Here");
    QTRY_COMPARE(hotkeys(spin), s("Ctrl+S, W"));
    QTest::keyClick(view(), Qt::Key_E);
    choose("Assign to open");
    QTRY_COMPARE(hotkeys(open), s("E"));
}

void KeyboardWidgetTest::tableIsADragSource()
{
    const QvelActionItemModel model(m_store.get());
    const QModelIndex index =
            model.indexFromItem(model.itemFromVelAction(QvelActionItemModel::GroupColumn, open));
    const std::unique_ptr<QMimeData> data(model.mimeData({index}));
    QCOMPARE(HotkeyDrag::actionIn(data.get()), open);
    QCOMPARE(data->formats(), model.mimeTypes());
    QCOMPARE(model.supportedDragActions(), Qt::CopyAction);
    QVERIFY((model.flags(index) & Qt::ItemIsDragEnabled) != 0);
}

void KeyboardWidgetTest::keysAreAccessible()
{
    QAccessibleInterface *keyboard = QAccessible::queryAccessibleInterface(view());
    QCOMPARE(keyboard->childCount(), 104);
    QCOMPARE(keyboard->text(QAccessible::Name), s("Keyboard"));
    QTest::keyClick(view(), Qt::Key_Q);
    QAccessibleInterface *key = keyboard->focusChild();
    QVERIFY(key != nullptr && key->state().focused);
    QCOMPARE(key->text(QAccessible::Name), s("Q"));
    QCOMPARE(key->text(QAccessible::Description), s("Taken\nspin (Mesh)"));
    QCOMPARE(keyboard->child(keyboard->indexOfChild(key)), key);
    const QPoint center = key->rect().center();
    QCOMPARE(keyboard->childAt(center.x(), center.y()), key);
    QSignalSpy activated(m_widget.get(), &QvelKeyboardWidget::hotkeyActivated);
    key->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
    QCOMPARE(activated.size(), 1);
}

QTEST_MAIN(KeyboardWidgetTest)
#include "tst_KeyboardWidget.moc"
