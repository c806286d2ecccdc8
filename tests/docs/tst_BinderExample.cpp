#include "TestHost.h"
#include "Text.h"

#define main binderMain
#include "../../examples/binder/main.cpp"
#undef main

#include <QDirIterator>
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
    void readmeShowsTheExamples();

private:
    /// Runs the example, and lets a user act in its text once its window is active.
    void run(const std::function<void(QPlainTextEdit *)> &act);

    QTemporaryDir m_home;
};

void TestBinderExample::initTestCase()
{
    qputenv("XDG_DATA_HOME", m_home.path().toLocal8Bit());
    QCoreApplication::setApplicationName(s("notes"));
}

void TestBinderExample::run(const std::function<void(QPlainTextEdit *)> &act)
{
    bool reached = false;
    user = [&] {
        auto *window = topLevel<QMainWindow>();
        window->activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(window));
        act(window->findChild<QPlainTextEdit *>());
        reached = !QTest::currentTestFailed();
    };
    int argc = 1;
    char program[] = "notes";
    char *argv[] = {program, nullptr};
    QCOMPARE(binderMain(argc, argv), 0);
    QVERIFY(reached);
}

void TestBinderExample::firstStart()
{
    run([](QPlainTextEdit *text) {
        QTest::keyClicks(text, s("abc"));
        QCOMPARE(text->toPlainText(), s("abc"));
        QTest::keyClick(text, Qt::Key_L, Qt::ControlModifier);
        QCOMPARE(text->toPlainText(), QString());
        auto *editor = topLevel<CUI::QvelShortcutsWidget>();
        QVERIFY(!editor->isVisible());
        QTest::keyClick(text, Qt::Key_K, Qt::ControlModifier);
        QVERIFY(editor->isVisible());
    });
    QVERIFY(QFileInfo(m_home.filePath(s("notes/Mine.hsx"))).isFile());
}

void TestBinderExample::laterStart()
{
    QFile set(m_home.filePath(s("notes/Mine.hsx")));
    QVERIFY(set.open(QIODevice::WriteOnly));
    set.write("<VelHotkeyTransformations>"
              "<Assign_Hotkey Shortcut='Ctrl+L' Description='Underline' Id='1-editUnderline'/>"
              "</VelHotkeyTransformations>");
    set.close();
    run([](QPlainTextEdit *text) {
        QTest::keyClick(text, Qt::Key_L, Qt::ControlModifier);
        QCOMPARE(text->toPlainText(), s("--------"));
    });
    QVERIFY(TestHost::read(set.fileName()).contains("1-editUnderline"));
}

// Every piece of code of the README stands in an example, however far it is indented there.
void TestBinderExample::readmeShowsTheExamples()
{
    const auto withoutIndents = [](QByteArray code) {
        QByteArray result;
        for (const QByteArray &line : code.split('\n'))
            result += line.trimmed() + '\n';
        return result;
    };
    QByteArray examples;
    QDirIterator files(s(CUI_SOURCE_DIR "/examples"), {s("*.cpp")}, QDir::Files,
                       QDirIterator::Subdirectories);
    while (files.hasNext())
        examples += withoutIndents(TestHost::read(files.next()));

    const QByteArray readme = TestHost::read(s(CUI_SOURCE_DIR "/README.md"));
    const QByteArray fence("```cpp\n");
    int count = 0;
    for (int start = readme.indexOf(fence); start >= 0; start = readme.indexOf(fence, start)) {
        start += fence.size();
        const QByteArray code = readme.mid(start, readme.indexOf("```", start) - start);
        QVERIFY2(examples.contains(withoutIndents(code.trimmed())), code.constData());
        ++count;
    }
    QVERIFY(count >= 2);
}

QTEST_APPLESS_MAIN(TestBinderExample)
#include "tst_BinderExample.moc"
