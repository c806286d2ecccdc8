// A window as applications have them, and the lines that let its users change its hotkeys.
#include <UiCustomizations/QvelActionBinder.h>
#include <UiCustomizations/QvelActionItemModel.h>
#include <UiCustomizations/QvelShortcutManager.h>
#include <UiCustomizations/QvelShortcutsWidget.h>

#include <QAction>
#include <QApplication>
#include <QDir>
#include <QMainWindow>
#include <QMenuBar>
#include <QPlainTextEdit>
#include <QStandardPaths>

class Window : public QMainWindow
{
public:
    Window()
    {
        setWindowTitle(QStringLiteral("Notes"));
        setCentralWidget(&m_text);
        QMenu *edit = menuBar()->addMenu(QStringLiteral("&Edit"));
        QAction *clear = edit->addAction(QStringLiteral("&Clear"));
        clear->setShortcut(QKeySequence(QStringLiteral("Ctrl+L")));
        connect(clear, &QAction::triggered, &m_text, &QPlainTextEdit::clear);
        QAction *underline = edit->addAction(QStringLiteral("&Underline"));
        connect(underline, &QAction::triggered, this,
                [this] { m_text.appendPlainText(QStringLiteral("--------")); });
        hotkeys = edit->addAction(QStringLiteral("&Hotkeys..."));
        hotkeys->setShortcut(QKeySequence(QStringLiteral("Ctrl+K")));
    }

    QAction *hotkeys;

private:
    QPlainTextEdit m_text;
};

/// Where the user's hotkeys are kept.
static QString userSet()
{
    const QDir folder(QStandardPaths::writableLocation(QStandardPaths::AppDataLocation));
    folder.mkpath(QStringLiteral("."));
    return folder.filePath(QStringLiteral("Mine.hsx"));
}

int main(int argc, char **argv)
{
    QApplication application(argc, argv);
    Window window;

    CUI::QvelShortcutManager hotkeys;
    CUI::QvelActionBinder binder(&hotkeys);
    binder.adopt(&window);
    hotkeys.loadShortcutConfiguration(userSet());
    CUI::QvelActionItemModel model(&hotkeys);
    CUI::QvelShortcutsWidget editor(&model, &hotkeys);
    QObject::connect(window.hotkeys, &QAction::triggered, &editor, &QWidget::show);
    window.show();
    application.exec();
    return hotkeys.saveShortcutTransforms(userSet()) ? 0 : 1;
}
