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
    QContextMenuEvent event(QContextMenuEvent::Mouse, QPoint(5, 5), log.mapToGlobal(QPoint(5, 5)));
    QCoreApplication::sendEvent(log.viewport(), &event);
    return came;
}

} // namespace

class TestMessageLogWidget : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void clearsByKey();
    void menuEntriesWork();
    void appendsLoggedLinesAsPlainParagraphs();
    void followsItsEnd();
};

void TestMessageLogWidget::clearsByKey()
{
    QWidget window;
    QvelMessageLogWidget log(&window);
    QPushButton other(&window);
    QVBoxLayout layout(&window);
    layout.addWidget(&log);
    layout.addWidget(&other);
    // The application has given the same keys away.
    QShortcut shortcut(QKeySequence(Qt::CTRL + Qt::Key_D), &window, nullptr, nullptr,
                       Qt::ApplicationShortcut);
    QSignalSpy fired(&shortcut, &QShortcut::activated);
    window.show();
    QVERIFY(QTest::qWaitForWindowActive(&window));
    const auto press = [&](QWidget &widget, int key, Qt::KeyboardModifiers modifiers) {
        log.setPlainText(s("line"));
        widget.setFocus();
        QTest::keyClick(window.windowHandle(), Qt::Key(key), modifiers);
        return log.toPlainText().isEmpty();
    };
    QVERIFY(press(log, Qt::Key_D, Qt::ControlModifier));
    QVERIFY(press(log, Qt::Key_D, Qt::MetaModifier | Qt::ControlModifier | Qt::AltModifier));
    QCOMPARE(fired.count(), 0);
    QVERIFY(!press(log, Qt::Key_D, Qt::AltModifier));
    QVERIFY(!press(log, Qt::Key_E, Qt::ControlModifier));
    QVERIFY(!press(other, Qt::Key_D, Qt::ControlModifier));
    QCOMPARE(fired.count(), 1);
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
    const auto enabled = [&] {
        QString states;
        openMenu(log, [&](QMenu &menu) {
            for (const QAction *action : menu.actions())
                states += QLatin1Char(action->isSeparator() ? '-'
                                      : action->isEnabled() ? '1'
                                                            : '0');
        });
        return states;
    };
    QCOMPARE(enabled(), s("01-1"));
    QVERIFY(click("Select All"));
    QCOMPARE(enabled(), s("11-1"));
    QCOMPARE(log.textCursor().selection().toPlainText(), s("one\ntwo"));
    QVERIFY(click("Copy"));
    QCOMPARE(QApplication::clipboard()->text(), s("one\ntwo"));
    QVERIFY(click("Clear Log"));
    QVERIFY(log.document()->isEmpty());
    QCOMPARE(enabled(), s("00-0"));
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
