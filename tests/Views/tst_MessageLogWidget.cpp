#include "Text.h"

#include <UiCustomizations/QvelMessageLog.h>
#include <UiCustomizations/QvelMessageLogWidget.h>

#include <QApplication>
#include <QClipboard>
#include <QContextMenuEvent>
#include <QMenu>
#include <QPointer>
#include <QPushButton>
#include <QScrollBar>
#include <QShortcut>
#include <QTextDocumentFragment>
#include <QVBoxLayout>
#include <QtTest>

#include <functional>

using CUI::QvelMessageLog;
using CUI::QvelMessageLogWidget;

namespace {

const QPoint menuPlace(40, 30);

/// Opens the context menu as a right click does and hands it to @p use while it is open; closes it
/// if that did not. False when no menu came up.
bool openMenu(QvelMessageLogWidget &log, const std::function<void(QMenu &)> &use)
{
    bool came = false;
    QTimer::singleShot(0, qApp, [&] {
        const QPointer<QMenu> menu = qobject_cast<QMenu *>(QApplication::activePopupWidget());
        came = !menu.isNull();
        if (came)
            use(*menu);
        if (menu)
            menu->close();
    });
    QContextMenuEvent event(QContextMenuEvent::Mouse, QPoint(5, 5), menuPlace);
    QCoreApplication::sendEvent(log.viewport(), &event);
    return came;
}

QStringList describe(const QMenu &menu)
{
    QStringList entries;
    for (const QAction *action : menu.actions()) {
        const QString state = s(action->isEnabled() ? "on" : "off");
        entries << (action->isSeparator()
                            ? s("-")
                            : s("%1 (%2) %3")
                                      .arg(action->text(), action->shortcut().toString(), state));
    }
    return entries;
}

} // namespace

class TestMessageLogWidget : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void clearsByKey_data();
    void clearsByKey();
    void menuShowsWhatCanBeDone_data();
    void menuShowsWhatCanBeDone();
    void menuEntriesWork();
    void menuGoesWithTheWidget();
    void appendsLoggedLinesAsPlainParagraphs();
    void appendsInTheColourOfTheHost();
    void followsItsEnd();
};

void TestMessageLogWidget::clearsByKey_data()
{
    QTest::addColumn<bool>("cleared");
    for (const char *keys : {"Ctrl+D", "Ctrl+Shift+D", "Meta+Ctrl+Alt+D"})
        QTest::newRow(keys) << true;
    for (const char *keys : {"D", "Alt+D", "Ctrl+E"})
        QTest::newRow(keys) << false;
}

void TestMessageLogWidget::clearsByKey()
{
    QFETCH(bool, cleared);
    const int keys = QKeySequence(s(QTest::currentDataTag()))[0];
    QWidget window;
    QvelMessageLogWidget log(&window);
    QPushButton other(&window);
    QVBoxLayout layout(&window);
    layout.addWidget(&log);
    layout.addWidget(&other);
    // The application has given the same keys away, twice even.
    QShortcut shortcut(QKeySequence(keys), &window, nullptr, nullptr, Qt::ApplicationShortcut);
    QAction action;
    action.setShortcut(QKeySequence(Qt::CTRL + Qt::SHIFT + Qt::Key_D));
    action.setShortcutContext(Qt::ApplicationShortcut);
    other.addAction(&action);
    QSignalSpy fired(&shortcut, &QShortcut::activated);
    QSignalSpy ambiguous(&shortcut, &QShortcut::activatedAmbiguously);
    QSignalSpy triggered(&action, &QAction::triggered);
    const auto firings = [&] { return fired.count() + ambiguous.count() + triggered.count(); };
    log.append(s("line"));
    window.show();
    QVERIFY(QTest::qWaitForWindowActive(&window));

    const auto press = [&] {
        const int modifiers = keys & int(Qt::KeyboardModifierMask);
        QTest::keyClick(window.windowHandle(), Qt::Key(keys - modifiers),
                        Qt::KeyboardModifiers(modifiers));
    };
    log.setFocus();
    QCOMPARE(QApplication::focusWidget(), &log);
    press();
    QCOMPARE(log.toPlainText(), cleared ? QString() : s("line"));
    QCOMPARE(firings(), cleared ? 0 : 1);

    other.setFocus();
    log.setPlainText(s("line"));
    press();
    QCOMPARE(log.toPlainText(), s("line"));
    QCOMPARE(firings(), cleared ? 1 : 2);
}

void TestMessageLogWidget::menuShowsWhatCanBeDone_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<bool>("selected");
    QTest::addColumn<QStringList>("states"); // of copying and of the others
    QTest::newRow("empty") << "" << true << list("off|off");
    QTest::newRow("text") << "line" << false << list("off|on");
    QTest::newRow("selection") << "line" << true << list("on|on");
}

void TestMessageLogWidget::menuShowsWhatCanBeDone()
{
    QFETCH(QString, text);
    QFETCH(bool, selected);
    QFETCH(QStringList, states);
    QvelMessageLogWidget log;
    log.append(text);
    if (selected)
        log.selectAll();
    log.show();
    QVERIFY(QTest::qWaitForWindowExposed(&log));

    QCoreApplication::setAttribute(Qt::AA_DontShowShortcutsInContextMenus, true);
    QStringList entries;
    QPoint place;
    bool shortcutsVisible = true;
    QVERIFY(openMenu(log, [&](QMenu &menu) {
        entries = describe(menu);
        place = menu.pos();
        for (const QAction *action : menu.actions())
            shortcutsVisible = shortcutsVisible && action->isShortcutVisibleInContextMenu();
    }));
    QCoreApplication::setAttribute(Qt::AA_DontShowShortcutsInContextMenus, false);
    QCOMPARE(entries.join(s("; ")),
             s("Copy (Ctrl+C) %1; Select All (Ctrl+A) %2; -; Clear Log (Ctrl+D) %2")
                     .arg(states.at(0), states.at(1)));
    QCOMPARE(place, menuPlace);
    QVERIFY(shortcutsVisible);
    QVERIFY(log.findChildren<QMenu *>().isEmpty());
}

void TestMessageLogWidget::menuEntriesWork()
{
    QvelMessageLogWidget log;
    log.append(s("one"));
    log.append(s("two"));
    log.show();
    QVERIFY(QTest::qWaitForWindowExposed(&log));
    const auto click = [&](const char *text) {
        return openMenu(log, [text](QMenu &menu) {
            for (QAction *action : menu.actions()) {
                if (action->text() == s(text))
                    QTest::mouseClick(&menu, Qt::LeftButton, {},
                                      menu.actionGeometry(action).center());
            }
        });
    };
    QVERIFY(click("Select All"));
    QCOMPARE(log.textCursor().selection().toPlainText(), s("one\ntwo"));
    QVERIFY(click("Copy"));
    QCOMPARE(QApplication::clipboard()->text(), s("one\ntwo"));
    QVERIFY(click("Clear Log"));
    QVERIFY(log.document()->isEmpty());
}

void TestMessageLogWidget::menuGoesWithTheWidget()
{
    auto *log = new QvelMessageLogWidget;
    QPointer<QMenu> seen;
    log->show();
    QVERIFY(QTest::qWaitForWindowExposed(log));
    QVERIFY(openMenu(*log, [&](QMenu &menu) {
        seen = &menu;
        delete log;
    }));
    QVERIFY(seen.isNull());
}

void TestMessageLogWidget::appendsInTheColourOfTheHost()
{
    QvelMessageLogWidget log;
    for (const auto color : {Qt::red, Qt::blue}) {
        log.setTextColor(color);
        log.append(s("line"));
        log.append(s("another"));
        QTextCursor cursor(log.document()->lastBlock());
        cursor.movePosition(QTextCursor::EndOfBlock);
        QCOMPARE(cursor.charFormat().foreground().color(), QColor(color));
        QCOMPARE(log.textColor(), QColor(color));
    }
}

void TestMessageLogWidget::appendsLoggedLinesAsPlainParagraphs()
{
    QvelMessageLogWidget log;
    connect(&QvelMessageLog::getInstance(), &QvelMessageLog::messageLogged, &log,
            &QvelMessageLogWidget::append);
    QSignalSpy changes(&log, &QTextEdit::textChanged);
    QvelMessageLog::getInstance().logWarningMessage(s("<b>a</b> &lt; b"));
    QvelMessageLog::getInstance().logErrorMessage(s("failed\nLine: 7"));
    QvelMessageLog::getInstance().logErrorMessage(s("a\r\nb\rc\n\nd\u2029e\ufdd0f\ufdd1g"));
    QCOMPARE(changes.count(), 3);
    QVERIFY(log.isReadOnly());
    QCOMPARE(log.toPlainText(), s("Warning: <b>a</b> &lt; b\nError: failed\nLine: 7\n"
                                  "Error: a\nb\nc\n\nd\ne\nf\ng"));
    QCOMPARE(log.document()->blockCount(), 3);
}

void TestMessageLogWidget::followsItsEnd()
{
    QvelMessageLogWidget log;
    log.resize(200, 100);
    log.show();
    QVERIFY(QTest::qWaitForWindowExposed(&log));
    QScrollBar *bar = log.verticalScrollBar();
    for (int line = 0; line < 100; ++line) {
        log.append(QString::number(line));
        QCOMPARE(bar->value(), bar->maximum());
    }
    QVERIFY(bar->maximum() > 0);
    bar->setValue(10);
    log.append(s("more"));
    QCOMPARE(bar->value(), 10);
}

QTEST_MAIN(TestMessageLogWidget)
#include "tst_MessageLogWidget.moc"
