#include "EditorHarness.h"

#include <UiCustomizations/HotkeySetWatcher.h>

#include <QPushButton>
#include <QScrollBar>
#include <QtTest>

using CUI::QvelShortcutsWidget;

/// The commands that ask for a file, with their dialogs.
class TestHotkeyEditorFiles : public EditorTest
{
    Q_OBJECT

private Q_SLOTS:
    void loadsFromFile();
    void reportsBadFile();
    void reportsFileThatIsGone();
    void cancelledDialogsChangeNothing();
    void leavesTheSetForBaseFile();
    void savesBaseFile();
    void importsLegacyFile();
    void asksBeforeReplacingOnImport();
    void reportsUnreadableImport();
    void reportsFailedImport_data();
    void reportsFailedImport();
    void validatesFiles();
    void staysInPlaceWhenTheFileChanges();

private:
    QString writeLegacy(const char *name, const char *keys = "") const;
};

// A legacy keyboard file, and the one of the defaults that it is compared with.
QString TestHotkeyEditorFiles::writeLegacy(const char *name, const char *keys) const
{
    m->host.write(s("legacy/LegacyDefaultUI-2019.kbdx"), "<VLSK_KBD/>");
    return m->host.write(s(name), QByteArray("<VLSK_KBD>") + keys + "</VLSK_KBD>");
}

void TestHotkeyEditorFiles::loadsFromFile()
{
    const QString path = QDir::cleanPath(
            m->host.write(s("elsewhere.hsx"), "<VelHotkeyTransformations Description='Far Away'>"
                                              "<Assign_Hotkey Shortcut='Q' Id='2-bevel'/>"
                                              "</VelHotkeyTransformations>"));
    dialogs->expectFile("Load Hotkey Set", path);
    m->triggerOption("Load From File...");
    QCOMPARE(m->chosenSet(), s("Far Away"));
    QCOMPARE(m->hotkeys(bevel), s("B, Q"));
    QCOMPARE(m->hotkeys(box), s("B"));
    QCOMPARE(m->host.paths()->currentSet, path);
    QVERIFY(!m->editor->isModified());
    m->chooseSet("Mine");
    m->chooseSet("Far Away"); // it stays in the list
    QCOMPARE(m->hotkeys(bevel), s("B, Q"));
}

void TestHotkeyEditorFiles::reportsBadFile()
{
    m->host.paths()->logFile = m->host.path(s("log.txt"));
    dialogs->expectFile("Load Hotkey Set", m->host.write(s("<b>bad.hsx"), "<VelHotkeys/>"));
    dialogs->expectBox("Hotkey Set Not Loaded", QMessageBox::Ok, [](QMessageBox *messageBox) {
        const QString reason = messageBox->informativeText();
        QVERIFY2(reason.contains(s("Line: 1")) && reason.contains(s("<b>")), qPrintable(reason));
        int plainTexts = 0;
        for (const QLabel *label : messageBox->findChildren<QLabel *>()) {
            if (label->text() == reason || label->text() == messageBox->text())
                plainTexts += int(label->textFormat() == Qt::PlainText);
        }
        QCOMPARE(plainTexts, 2);
        QStringList buttons;
        for (const QAbstractButton *button : messageBox->buttons())
            buttons << button->text();
        QVERIFY(buttons.contains(s("Open Log File")));
    });
    m->editor->loadShortcutsTransformation();
    QCOMPARE(m->hotkeys(box), s("B, F5"));
    QCOMPARE(m->chosenSet(), s("Mine"));
}

void TestHotkeyEditorFiles::reportsFileThatIsGone()
{
    QVERIFY(QFile::remove(m->userSet));
    dialogs->expectBox("Hotkey Set Not Loaded", QMessageBox::Ok, [](QMessageBox *messageBox) {
        QCOMPARE(messageBox->informativeText(), s("The file cannot be opened."));
    });
    m->editor->discardChanges();
    QCOMPARE(m->hotkeys(box), s("B, F5"));
}

void TestHotkeyEditorFiles::cancelledDialogsChangeNothing()
{
    m->edit();
    const QStringList before = m->host.paths()->recorded;
    for (const QString &path : {QString(), m->otherSet}) {
        for (const char *title : {"Load Hotkey Set", "Convert Legacy Hotkeys", "Load Shortcuts"}) {
            dialogs->expectFile(title, path);
            if (!path.isEmpty()) // nothing is asked about the edits before that is of use
                dialogs->expectBox("Unsaved Changes", QMessageBox::Cancel);
        }
        m->editor->loadShortcutsTransformation();
        m->editor->selectFileForConversion();
        m->editor->loadShortcuts();
    }
    for (const char *title : {"Save Hotkey Set As", "Validate Shortcut File", "Save Shortcuts"})
        dialogs->expectFile(title, QString());
    m->editor->saveShortcutsTransformation();
    m->editor->validateShortcutFile();
    m->editor->saveShortcuts();
    QVERIFY(m->editor->isModified());
    QCOMPARE(m->hotkeys(bevel), s("B, F9"));
    QCOMPARE(m->host.paths()->recorded, before);
    QCOMPARE(m->chosenSet(), s("Mine"));
}

void TestHotkeyEditorFiles::leavesTheSetForBaseFile()
{
    const QByteArray before = TestHost::read(m->userSet);
    const QString base = m->host.write(
            s("other.hsxb"), "<VelHotkeys><Hotkey Shortcut='K' Id='1-box'/></VelHotkeys>");
    dialogs->expectFile("Load Shortcuts", base);
    m->editor->loadShortcuts();
    QCOMPARE(m->hotkeys(box), s("K"));
    QCOMPARE(m->chosenSet(), QString());
    QCOMPARE(m->host.paths()->currentSet, QString());
    m->edit();
    dialogs->expectFile("Save Hotkey Set As", QString()); // not saved over the set without asking
    m->triggerOption("Save");
    QCOMPARE(TestHost::read(m->userSet), before);
}

void TestHotkeyEditorFiles::savesBaseFile()
{
    const QString base = m->host.write(s("saved.hsxb"), "<VelHotkeys/>");
    dialogs->expectReplacement("Save Shortcuts", base);
    m->editor->saveShortcuts();
    const QByteArray saved = TestHost::read(base);
    QVERIFY(saved.contains("1-sphere"));

    m->assign(sphere, QKeySequence(0x1A).toString()); // which no file can hold
    m->editor->applyCurrentTransformation();
    dialogs->expectReplacement("Save Shortcuts", base)
            .expectBox("Save Changes Error", QMessageBox::Ok)
            .expectFile("Save Shortcuts", m->host.path(s("new.hsxb")))
            .expectBox("Save Changes Error", QMessageBox::Ok);
    m->editor->saveShortcuts();
    m->editor->saveShortcuts();
    QCOMPARE(TestHost::read(base), saved);
}

void TestHotkeyEditorFiles::importsLegacyFile()
{
    const QString in = writeLegacy("old keys.kbdx", "<shortcut fVirt='11' accleleratorKey='81' "
                                                    "actionID='bevel' actionTableID='2'/>");
    QSignalSpy converted(m->editor.get(), &QvelShortcutsWidget::legacyHotkeySetConverted);
    dialogs->expectFile("Convert Legacy Hotkeys", in);
    dialogs->expectBox("Hotkey File Converted", QMessageBox::Ok, [this](QMessageBox *messageBox) {
        QCOMPARE(messageBox->text(),
                 s("old keys.kbdx was successfully converted and loaded.\n\nThe new file, old "
                   "keys.hsx, is saved in your User Settings folder."));
        QCOMPARE(m->hotkeys(bevel), s("B"));
    });
    m->triggerOption("Import Legacy Hotkeys...");
    QCOMPARE(converted, (QList<QVariantList>{{true}}));
    QCOMPARE(m->hotkeys(bevel), s("B, Ctrl+Q"));
    QCOMPARE(m->host.paths()->currentSet, m->host.paths()->userPresets + s("/old keys.hsx"));
    for (int i = 0; i < 2; ++i) {
        QCOMPARE(m->chosenSet(), s("old keys"));
        QCOMPARE(m->listedSets().count(s("old keys")), 1);
        m->refreshList();
    }
}

void TestHotkeyEditorFiles::asksBeforeReplacingOnImport()
{
    const QString other = writeLegacy("Other.kbdx");
    const QString locked =
            m->host.write(s("user/Locked.hsx"), "<VelHotkeyTransformations Locked='true'/>");
    const QByteArray before = TestHost::read(m->otherSet);
    const QByteArray lockedBefore = TestHost::read(locked);

    dialogs->expectFile("Convert Legacy Hotkeys", other).expect([](QWidget *dialog) {
        auto *question = qobject_cast<QMessageBox *>(dialog);
        QCOMPARE(question->windowTitle(), s("Hotkey File Already Exists"));
        QCOMPARE(question->standardButton(question->defaultButton()), QMessageBox::No);
        QTest::keyClick(question, Qt::Key_Return);
    });
    m->editor->selectFileForConversion();
    QCOMPARE(TestHost::read(m->otherSet), before);

    dialogs->expectFile("Convert Legacy Hotkeys", writeLegacy("Locked.kbdx"))
            .expectBox("Save Changes Error", QMessageBox::Ok);
    m->editor->selectFileForConversion();
    QCOMPARE(TestHost::read(locked), lockedBefore);

    dialogs->expectFile("Convert Legacy Hotkeys", other)
            .expectBox("Hotkey File Already Exists", QMessageBox::Yes)
            .expectBox("Hotkey File Converted", QMessageBox::Ok);
    m->editor->selectFileForConversion();
    QVERIFY(TestHost::read(m->otherSet) != before);
}

// Something happens to the converted file before it is loaded.
void TestHotkeyEditorFiles::reportsUnreadableImport()
{
    dialogs->expectFile("Convert Legacy Hotkeys", writeLegacy("old.kbdx"))
            .expectBox("Hotkey File Converted", QMessageBox::Ok,
                       [this](QMessageBox *) { m->host.write(s("user/old.hsx"), "<Broken>"); })
            .expectBox("Hotkey Set Not Loaded", QMessageBox::Ok);
    m->editor->selectFileForConversion();
    QCOMPARE(m->chosenSet(), s("Mine"));
    QCOMPARE(m->hotkeys(box), s("B, F5"));
}

void TestHotkeyEditorFiles::reportsFailedImport_data()
{
    QTest::addColumn<bool>("isKeyboardFile");
    QTest::newRow("not a keyboard file") << false;
    QTest::newRow("no directory for it") << true;
}

void TestHotkeyEditorFiles::reportsFailedImport()
{
    QFETCH(bool, isKeyboardFile);
    const QString in = writeLegacy("bad.kbdx");
    if (isKeyboardFile)
        m->host.paths()->userPresets.clear();
    else
        m->host.write(s("bad.kbdx"), "<Other/>");
    QSignalSpy converted(m->editor.get(), &QvelShortcutsWidget::legacyHotkeySetConverted);
    dialogs->expectFile("Convert Legacy Hotkeys", in)
            .expectBox("Hotkeys Conversion Failed", QMessageBox::Ok);
    m->editor->selectFileForConversion();
    QCOMPARE(dialogs->texts(), list("Something went wrong while converting bad.kbdx.\n\nSee the "
                                    "log for more details."));
    QCOMPARE(converted, (QList<QVariantList>{{false}}));
    QCOMPARE(m->chosenSet(), s("Mine"));
}

void TestHotkeyEditorFiles::validatesFiles()
{
    const QString base = m->host.path(s("base.hsxb"));
    dialogs->expectFile("Validate Shortcut File", base)
            .expectBox("Shortcut File Validation", QMessageBox::Ok)
            .expectFile("Validate Shortcut Transform File", base)
            .expectBox("Shortcut Transform File Validation", QMessageBox::Ok);
    m->editor->validateShortcutFile();
    m->editor->validateShortcutTransformationFile();
    QCOMPARE(dialogs->texts(), list("Xml File valid!! According to schema definition.|"
                                    "Xml File invalid!! According to schema definition."));
}

void TestHotkeyEditorFiles::staysInPlaceWhenTheFileChanges()
{
    for (int i = 0; i < 200; ++i)
        m->host.registry()->addAction(1, s("a%1").arg(i, 3), s("a%1").arg(i, 3), 2, {}, false);
    m->model->loadActionsToModel();
    CUI::HotkeySetWatcher watcher(&m->manager);
    m->select(bevel);
    m->press(Qt::Key_F11);
    QScrollBar *bar = m->tree()->verticalScrollBar();
    QTRY_VERIFY(bar->maximum() > 60);
    bar->setValue(60);
    m->host.write(s("user/Mine.hsx"),
                  "<VelHotkeyTransformations><Assign_Hotkey Shortcut='F8' Id='2-bevel'/>"
                  "</VelHotkeyTransformations>");
    QTRY_COMPARE_WITH_TIMEOUT(m->assigned(), s("F8, B"), 1000);
    QCOMPARE(bar->value(), 60);
    QCOMPARE(m->tree()->currentIndex().data().toString(), s("Bevel"));
    QCOMPARE(m->field()->text(), s("F11"));
}

QTEST_MAIN(TestHotkeyEditorFiles)
#include "tst_HotkeyEditorFiles.moc"
