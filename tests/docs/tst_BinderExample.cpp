#include "TestHost.h"

#define main binderMain
#include "../../examples/binder/main.cpp"
#undef main

#include <QTimer>
#include <QtTest>

#include <functional>

namespace {

std::function<void()> user;

/// The example makes its application itself; this is called when it does.
void sendUser()
{
    QTimer::singleShot(0, qApp, [] {
        user();
        QCoreApplication::quit();
    });
}

template <typename Widget>
Widget *topLevel()
{
    for (QWidget *widget : QApplication::topLevelWidgets()) {
        if (auto *found = qobject_cast<Widget *>(widget))
            return found;
    }
    return nullptr;
}

} // namespace

Q_COREAPP_STARTUP_FUNCTION(sendUser)

/// What the README shows works as it stands.
class TestBinderExample : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void firstStart();
    void laterStart();

private:
    int run();

    QTemporaryDir m_home;
};

void TestBinderExample::initTestCase()
{
    qputenv("XDG_DATA_HOME", m_home.path().toLocal8Bit());
    QCoreApplication::setApplicationName(QStringLiteral("notes"));
}

int TestBinderExample::run()
{
    int argc = 1;
    char program[] = "notes";
    char *argv[] = {program, nullptr};
    return binderMain(argc, argv);
}

void TestBinderExample::firstStart()
{
    bool reached = false;
    user = [&reached] {
        auto *window = topLevel<QMainWindow>();
        window->activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(window));
        auto *text = window->findChild<QPlainTextEdit *>();
        QTest::keyClicks(text, QStringLiteral("abc"));
        QCOMPARE(text->toPlainText(), QStringLiteral("abc"));
        QTest::keyClick(text, Qt::Key_L, Qt::ControlModifier);
        QCOMPARE(text->toPlainText(), QString());
        auto *editor = topLevel<CUI::QvelShortcutsWidget>();
        QVERIFY(!editor->isVisible());
        QTest::keyClick(text, Qt::Key_K, Qt::ControlModifier);
        QVERIFY(editor->isVisible());
        reached = true;
    };
    QCOMPARE(run(), 0);
    QVERIFY(reached);
    QVERIFY(QFileInfo(m_home.filePath(QStringLiteral("notes/Mine.hsx"))).isFile());
}

void TestBinderExample::laterStart()
{
    QFile set(m_home.filePath(QStringLiteral("notes/Mine.hsx")));
    QVERIFY(set.open(QIODevice::WriteOnly));
    set.write(
            "<VelHotkeyTransformations Locked=\"false\">"
            "<Assign_Hotkey Shortcut=\"Ctrl+L\" Description=\"Underline\" Id=\"1-editUnderline\"/>"
            "</VelHotkeyTransformations>");
    set.close();
    bool reached = false;
    user = [&reached] {
        auto *window = topLevel<QMainWindow>();
        window->activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(window));
        auto *text = window->findChild<QPlainTextEdit *>();
        QTest::keyClick(text, Qt::Key_L, Qt::ControlModifier);
        QCOMPARE(text->toPlainText(), QStringLiteral("--------"));
        reached = true;
    };
    QCOMPARE(run(), 0);
    QVERIFY(reached);
    QVERIFY(TestHost::read(set.fileName()).contains("1-editUnderline"));
}

QTEST_APPLESS_MAIN(TestBinderExample)
#include "tst_BinderExample.moc"
