#include "EditorHarness.h"

#include <QFile>
#include <QLabel>
#include <QMessageBox>
#include <QPushButton>
#include <QSignalSpy>
#include <QtTest>

using CUI::QvelShortcutsWidget;

namespace {

QString s(const char *text)
{
    return QString::fromUtf8(text);
}

} // namespace

/// The commands that ask for a file, with their dialogs.
class TestHotkeyEditorFiles : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void loadsFromFile();
    void reportsBadFile();
    void cancelledDialogsChangeNothing();
    void leavesTheSetForBaseFile();
    void savesBaseFile();
    void importsLegacyFile();
    void asksBeforeReplacingOnImport();
    void reportsUnreadableImport();
    void reportsFailedImport_data();
    void reportsFailedImport();
    void validatesFiles();

private:
    std::unique_ptr<EditorHarness> m;
};

void TestHotkeyEditorFiles::init()
{
    m = std::make_unique<EditorHarness>();
    m->open();
}

void TestHotkeyEditorFiles::cleanup()
{
    m.reset();
}

void TestHotkeyEditorFiles::loadsFromFile()
{
    const QString path = QDir::cleanPath(
            m->host.write(s("elsewhere.hsx"), "<VelHotkeyTransformations Description='Far Away'>"
                                              "<Assign_Hotkey Shortcut='Q' Id='2-bevel'/>"
                                              "</VelHotkeyTransformations>"));
    DialogDriver dialogs;
    dialogs.expectFile(s("Load Hotkey Set"), path);
    m->triggerOption(s("Load From File..."));
    QVERIFY(dialogs.check());
    QCOMPARE(m->chosenSet(), s("Far Away"));
    QCOMPARE(m->hotkeys(bevel), s("B, Q"));
    QCOMPARE(m->hotkeys(box), s("B"));
    QCOMPARE(m->host.paths()->currentSet, path);
    QVERIFY(!m->editor->isModified());
    m->chooseSet(s("Mine"));
    m->chooseSet(s("Far Away")); // it stays in the list
    QCOMPARE(m->hotkeys(bevel), s("B, Q"));
}

void TestHotkeyEditorFiles::reportsBadFile()
{
    const QString path = m->host.write(s("<b>bad.hsx"), "<VelHotkeys/>");
    m->host.paths()->logFile = m->host.path(s("log.txt"));
    QString reason;
    bool offersLog = false;
    int plainTexts = 0;
    DialogDriver dialogs;
    dialogs.expectFile(s("Load Hotkey Set"), path).expect([&](QWidget *dialog) {
        auto *messageBox = qobject_cast<QMessageBox *>(dialog);
        reason = messageBox->informativeText();
        for (const QLabel *label : messageBox->findChildren<QLabel *>()) {
            if (label->text() == reason || label->text() == messageBox->text())
                plainTexts += label->textFormat() == Qt::PlainText ? 1 : 0;
        }
        for (const QAbstractButton *button : messageBox->buttons())
            offersLog = offersLog || button->text() == s("Open Log File");
        QTest::mouseClick(messageBox->button(QMessageBox::Ok), Qt::LeftButton);
    });
    m->editor->loadShortcutsTransformation();
    QVERIFY(dialogs.check());
    QVERIFY2(reason.contains(s("Line: 1")) && reason.contains(s("<b>")), qPrintable(reason));
    QCOMPARE(plainTexts, 2);
    QVERIFY(offersLog);
    QCOMPARE(m->hotkeys(box), s("B, F5"));
    QCOMPARE(m->chosenSet(), s("Mine"));

    QVERIFY(QFile::remove(m->userSet)); // of which the log says nothing
    dialogs.expect([&](QWidget *dialog) {
        auto *messageBox = qobject_cast<QMessageBox *>(dialog);
        reason = messageBox->informativeText();
        QTest::mouseClick(messageBox->button(QMessageBox::Ok), Qt::LeftButton);
    });
    m->editor->discardChanges();
    QVERIFY(dialogs.check());
    QCOMPARE(reason, s("The file cannot be opened."));
}

void TestHotkeyEditorFiles::cancelledDialogsChangeNothing()
{
    m->edit();
    const QStringList before = m->host.paths()->recorded;
    DialogDriver dialogs;
    for (const QString &path : {QString(), m->otherSet}) {
        const QStringList titles{s("Load Hotkey Set"), s("Convert Legacy Hotkeys"),
                                 s("Load Shortcuts")};
        for (const QString &title : titles) {
            dialogs.expectFile(title, path);
            if (!path.isEmpty()) // nothing is asked about the edits before that is of use
                dialogs.expectBox(s("Unsaved Changes"), QMessageBox::Cancel);
        }
        m->editor->loadShortcutsTransformation();
        m->editor->selectFileForConversion();
        m->editor->loadShortcuts();
    }
    dialogs.expectFile(s("Save Hotkey Set As"), QString())
            .expectFile(s("Validate Shortcut File"), QString())
            .expectFile(s("Save Shortcuts"), QString());
    m->editor->saveShortcutsTransformation();
    m->editor->validateShortcutFile();
    m->editor->saveShortcuts();
    QVERIFY(dialogs.check());
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
    DialogDriver dialogs;
    dialogs.expectFile(s("Load Shortcuts"), base)
            .expectFile(s("Save Hotkey Set As"),
                        QString()); // not saved over the set without asking
    m->editor->loadShortcuts();
    QCOMPARE(m->hotkeys(box), s("K"));
    QCOMPARE(m->chosenSet(), QString());
    QCOMPARE(m->host.paths()->currentSet, QString());
    m->edit();
    m->triggerOption(s("Save"));
    QVERIFY(dialogs.check());
    QCOMPARE(TestHost::read(m->userSet), before);
}

void TestHotkeyEditorFiles::savesBaseFile()
{
    const QString base = m->host.write(s("saved.hsxb"), "<VelHotkeys/>");
    DialogDriver dialogs;
    dialogs.expectFile(s("Save Shortcuts"), base).expectReplacement();
    m->editor->saveShortcuts();
    QVERIFY(dialogs.check());
    const QByteArray saved = TestHost::read(base);
    QVERIFY(saved.contains("1-sphere"));

    m->manager.assignShortcut(sphere, QKeySequence(0x1A).toString(), s("Sphere"));
    m->editor->applyCurrentTransformation();
    for (const QString &path : {base, m->host.path(s("new.hsxb"))}) {
        dialogs.expectFile(s("Save Shortcuts"), path);
        if (path == base)
            dialogs.expectReplacement();
        dialogs.expectBox(s("Save Changes Error"), QMessageBox::Ok);
        m->editor->saveShortcuts();
    }
    QVERIFY(dialogs.check());
    QCOMPARE(TestHost::read(base), saved);
}

void TestHotkeyEditorFiles::importsLegacyFile()
{
    m->host.write(s("legacy/LegacyDefaultUI-2019.kbdx"), "<VLSK_KBD/>");
    const QString in =
            m->host.write(s("old keys.kbdx"), "<VLSK_KBD><shortcut fVirt='11' accleleratorKey='81' "
                                              "actionID='bevel' actionTableID='2'/></VLSK_KBD>");
    QSignalSpy converted(m->editor.get(), &QvelShortcutsWidget::legacyHotkeySetConverted);
    DialogDriver dialogs;
    QString before;
    dialogs.expectFile(s("Convert Legacy Hotkeys"), in).expect([&](QWidget *dialog) {
        auto *messageBox = qobject_cast<QMessageBox *>(dialog);
        QCOMPARE(messageBox->windowTitle(), s("Hotkey File Converted"));
        QCOMPARE(messageBox->text(),
                 s("old keys.kbdx was successfully converted and loaded.\n\nThe "
                   "new file, old keys.hsx, is saved in your User Settings "
                   "folder."));
        before = m->hotkeys(bevel);
        QTest::mouseClick(messageBox->button(QMessageBox::Ok), Qt::LeftButton);
    });
    m->triggerOption(s("Import Legacy Hotkeys..."));
    QVERIFY(dialogs.check());
    QCOMPARE(before, s("B"));
    QCOMPARE(converted.count(), 1);
    QVERIFY(converted.at(0).at(0).toBool());
    QCOMPARE(m->hotkeys(bevel), s("B, Ctrl+Q"));
    QCOMPARE(m->chosenSet(), s("old keys"));
    QCOMPARE(m->host.paths()->currentSet, m->host.paths()->userPresets + s("/old keys.hsx"));
    QCOMPARE(m->listedSets().count(s("old keys")), 1);
    m->refreshList();
    QCOMPARE(m->listedSets().count(s("old keys")), 1);
    QCOMPARE(m->chosenSet(), s("old keys"));
}

void TestHotkeyEditorFiles::asksBeforeReplacingOnImport()
{
    m->host.write(s("legacy/LegacyDefaultUI-2019.kbdx"), "<VLSK_KBD/>");
    const QString in = m->host.write(s("Other.kbdx"), "<VLSK_KBD/>");
    const QString locked =
            m->host.write(s("user/Locked.hsx"), "<VelHotkeyTransformations Locked='true'/>");
    const QByteArray before = TestHost::read(m->otherSet);
    const QByteArray lockedBefore = TestHost::read(locked);
    DialogDriver dialogs;
    dialogs.expectFile(s("Convert Legacy Hotkeys"), in)
            .expect([](QWidget *dialog) {
                auto *question = qobject_cast<QMessageBox *>(dialog);
                QCOMPARE(question->windowTitle(), s("Hotkey File Already Exists"));
                QCOMPARE(question->standardButton(question->defaultButton()), QMessageBox::No);
                QTest::keyClick(question, Qt::Key_Return);
            })
            .expectFile(s("Convert Legacy Hotkeys"), m->host.write(s("Locked.kbdx"), "<VLSK_KBD/>"))
            .expectBox(s("Save Changes Error"), QMessageBox::Ok)
            .expectFile(s("Convert Legacy Hotkeys"), in)
            .expectBox(s("Hotkey File Already Exists"), QMessageBox::Yes)
            .expectBox(s("Hotkey File Converted"), QMessageBox::Ok);
    m->editor->selectFileForConversion();
    QCOMPARE(TestHost::read(m->otherSet), before);
    m->editor->selectFileForConversion();
    QCOMPARE(TestHost::read(locked), lockedBefore);
    m->editor->selectFileForConversion();
    QVERIFY(dialogs.check());
    QVERIFY(TestHost::read(m->otherSet) != before);
}

// Something happens to the converted file before it is loaded.
void TestHotkeyEditorFiles::reportsUnreadableImport()
{
    m->host.write(s("legacy/LegacyDefaultUI-2019.kbdx"), "<VLSK_KBD/>");
    DialogDriver dialogs;
    dialogs.expectFile(s("Convert Legacy Hotkeys"), m->host.write(s("old.kbdx"), "<VLSK_KBD/>"))
            .expect([this](QWidget *dialog) {
                m->host.write(s("user/old.hsx"), "<VelHotkeyTransformations>");
                QTest::mouseClick(qobject_cast<QMessageBox *>(dialog)->button(QMessageBox::Ok),
                                  Qt::LeftButton);
            })
            .expectBox(s("Hotkey Set Not Loaded"), QMessageBox::Ok);
    m->editor->selectFileForConversion();
    QVERIFY(dialogs.check());
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
    m->host.write(s("legacy/LegacyDefaultUI-2019.kbdx"), "<VLSK_KBD/>");
    const QString in = m->host.write(s("bad.kbdx"), isKeyboardFile ? "<VLSK_KBD/>" : "<Other/>");
    if (isKeyboardFile)
        m->host.paths()->userPresets.clear();
    QSignalSpy converted(m->editor.get(), &QvelShortcutsWidget::legacyHotkeySetConverted);
    DialogDriver dialogs;
    dialogs.expectFile(s("Convert Legacy Hotkeys"), in)
            .expectBox(s("Hotkeys Conversion Failed"), QMessageBox::Ok);
    m->editor->selectFileForConversion();
    QVERIFY(dialogs.check());
    QCOMPARE(dialogs.texts().value(0), s("Something went wrong while converting bad.kbdx.\n\nSee "
                                         "the log for more details."));
    QCOMPARE(converted.count(), 1);
    QVERIFY(!converted.at(0).at(0).toBool());
    QCOMPARE(m->chosenSet(), s("Mine"));
}

void TestHotkeyEditorFiles::validatesFiles()
{
    const QString base = m->host.path(s("base.hsxb"));
    DialogDriver dialogs;
    dialogs.expectFile(s("Validate Shortcut File"), base)
            .expectBox(s("Shortcut File Validation"), QMessageBox::Ok)
            .expectFile(s("Validate Shortcut Transform File"), base)
            .expectBox(s("Shortcut Transform File Validation"), QMessageBox::Ok);
    m->editor->validateShortcutFile();
    m->editor->validateShortcutTransformationFile();
    QVERIFY(dialogs.check());
    QCOMPARE(dialogs.texts(),
             QStringList({s("Xml File valid!! According to schema definition."),
                          s("Xml File invalid!! According to schema definition.")}));
}

QTEST_MAIN(TestHotkeyEditorFiles)
#include "tst_HotkeyEditorFiles.moc"
