#include "EditorHarness.h"
#include "OneTextTranslator.h"

#include <UiCustomizations/HotkeySetWatcher.h>

#include <QPushButton>
#include <QScrollBar>
#include <QtTest>

using CUI::QvelShortcutsWidget;

namespace {

using Steps = std::function<void(EditorHarness &, DialogDriver &)>;

} // namespace

Q_DECLARE_METATYPE(Steps)

/// The commands that act on whole hotkey sets, with their dialogs.
class TestHotkeyEditorSets : public EditorTest
{
    Q_OBJECT

private Q_SLOTS:
    void switchesSets();
    void asksBeforeSwitching_data();
    void asksBeforeSwitching();
    void staysWithoutSetToSwitchTo();
    void savesInPlace();
    void asksBeforeItReplacesChangesOfOthers_data();
    void asksBeforeItReplacesChangesOfOthers();
    void savesLockedSetElsewhere();
    void neverOverwritesLockedSets_data();
    void neverOverwritesLockedSets();
    void keepsEditsWhenSavingFails();
    void resets();
    void asksAboutVanishedFile_data();
    void asksAboutVanishedFile();
    void mayGoWhileItAsks_data();
    void mayGoWhileItAsks();
    void loadsFromFile();
    void reportsBadFile();
    void cancelledDialogsChangeNothing();
    void leavesTheSetForBaseFile();
    void savesBaseFile();
    void importsLegacyFile();
    void asksBeforeReplacingOnImport();
    void reportsFailedImport_data();
    void reportsFailedImport();
    void staysInPlaceWhenTheFileChanges();

private:
    QString writeLegacy(const char *name, const char *keys = "") const;
    QString currentSet() const { return m->host.paths()->currentSet; }
    QString write(const char *name, const char *contents = "<VelHotkeyTransformations/>") const;
};

QString TestHotkeyEditorSets::write(const char *name, const char *contents) const
{
    return QDir::cleanPath(m->host.write(s(name), contents));
}

void TestHotkeyEditorSets::switchesSets()
{
    m->select(sphere);
    m->chooseSet("Other");
    QCOMPARE(m->hotkeys(box), QString());
    QCOMPARE(m->chosenSet(), s("Other"));
    QCOMPARE(currentSet(), m->otherSet);
    QVERIFY(m->editor->currentAction() == nullptr);
    m->chooseSet("Default");
    QCOMPARE(m->hotkeys(box), s("B"));
    QVERIFY(m->editor->maybeSaveChanges()); // nothing to ask
}

void TestHotkeyEditorSets::asksBeforeSwitching_data()
{
    QTest::addColumn<int>("answer");
    QTest::newRow("save") << int(QMessageBox::Save);
    QTest::newRow("discard") << int(QMessageBox::Discard);
    QTest::newRow("cancel") << int(QMessageBox::Cancel);
}

void TestHotkeyEditorSets::asksBeforeSwitching()
{
    QFETCH(int, answer);
    m->edit();
    dialogs->expectBox("Unsaved Changes", answer);
    m->chooseSet("Other");
    const bool cancelled = answer == QMessageBox::Cancel;
    QCOMPARE(m->chosenSet(), cancelled ? s("Mine") : s("Other"));
    QCOMPARE(TestHost::read(m->userSet).contains("F9"), answer == QMessageBox::Save);
    QCOMPARE(m->editor->isModified(), cancelled);
    QCOMPARE(m->hotkeys(bevel), cancelled ? s("B, F9") : s("B"));
    QCOMPARE(currentSet(), cancelled ? m->userSet : m->otherSet);
}

void TestHotkeyEditorSets::staysWithoutSetToSwitchTo()
{
    // From elsewhere, since the list follows the directories of sets by itself.
    const QString gone = write("Gone.hsx");
    dialogs->expectFile("Load Hotkey Set", gone).expectBox("File not Found", QMessageBox::Ok);
    m->triggerOption("Load From File...");
    m->chooseSet("Mine");
    QVERIFY(QFile::remove(gone));
    m->chooseSet("Gone");
    QCOMPARE(dialogs->texts(), list("The file for hotkey set 'Gone' cannot be found.\n\nThe "
                                    "missing set will be removed from the list.\n"));
    QCOMPARE(m->chosenSet(), s("Mine"));
    QCOMPARE(m->listedSets(), list("Default|Mine|Other"));
    QCOMPARE(m->hotkeys(box), s("B, F5"));

    write("user/Other.hsx", "<Broken>");
    dialogs->expectBox("Hotkey Set Not Loaded", QMessageBox::Ok);
    m->chooseSet("Other");
    QCOMPARE(m->chosenSet(), s("Mine"));
    QCOMPARE(m->hotkeys(box), s("B, F5"));
}

void TestHotkeyEditorSets::savesInPlace()
{
    QSignalSpy saved(m->editor.get(), &QvelShortcutsWidget::modificationsSaved);
    QSignalSpy modified(m->editor.get(), &QvelShortcutsWidget::presetModified);
    m->edit();
    m->click("HotkeyEditor_toolButtonSavePreset");
    const QByteArray file = TestHost::read(m->userSet);
    QVERIFY(file.contains("Shortcut=\"F9\" Description=\"Bevel\" Id=\"2-bevel\""));
    QVERIFY(file.contains("F5")); // what was in the set before
    QCOMPARE(saved.count(), 1);
    QCOMPARE(modified.count(), 2);
    QVERIFY(!modified.at(1).at(0).toBool() && !m->editor->isModified());
    QCOMPARE(m->chosenSet(), s("Mine"));
}

void TestHotkeyEditorSets::asksBeforeItReplacesChangesOfOthers_data()
{
    QTest::addColumn<int>("answer");
    QTest::newRow("save anyway") << int(QMessageBox::Save);
    QTest::newRow("save elsewhere") << int(QMessageBox::SaveAll);
    QTest::newRow("cancel") << int(QMessageBox::Cancel);
}

void TestHotkeyEditorSets::asksBeforeItReplacesChangesOfOthers()
{
    QFETCH(int, answer);
    m->edit();
    const QByteArray theirs = TestHost::read(m->userSet) + "<!-- theirs -->";
    write("user/Mine.hsx", theirs.constData());
    const QString copy = m->host.paths()->userPresets + s("/Copy.hsx");
    dialogs->expectBox("Hotkey Set Changed", answer);
    if (answer == QMessageBox::SaveAll)
        dialogs->expectFile("Save Hotkey Set As", copy);
    m->click("HotkeyEditor_toolButtonSavePreset");
    QVERIFY(dialogs->check());
    QVERIFY(dialogs->texts().constFirst().contains(s("'Mine'")));
    QCOMPARE(m->editor->isModified(), answer == QMessageBox::Cancel);
    QCOMPARE(TestHost::read(m->userSet) == theirs, answer != QMessageBox::Save);
    QCOMPARE(QFile::exists(copy), answer == QMessageBox::SaveAll);
    if (answer == QMessageBox::Save) { // the file is known again
        m->assign(box, "F8");
        m->click("HotkeyEditor_toolButtonSavePreset");
        QVERIFY(dialogs->check());
    }
}

void TestHotkeyEditorSets::savesLockedSetElsewhere()
{
    m->chooseSet("Default");
    const QByteArray before = TestHost::read(m->shippedSet);
    m->edit();
    const QString path = m->host.paths()->userPresets + s("/New.Keys.hsx");
    dialogs->expectFile("Save Hotkey Set As", path);
    m->triggerOption("Save");
    QCOMPARE(TestHost::read(m->shippedSet), before);
    QVERIFY(TestHost::read(path).contains("F9"));
    QCOMPARE(currentSet(), path);
    QCOMPARE(m->sets()->currentData(Qt::ToolTipRole).toString(), path);
    QVERIFY(!m->editor->isModified());
}

void TestHotkeyEditorSets::neverOverwritesLockedSets_data()
{
    QTest::addColumn<bool>("byAttribute");
    QTest::addColumn<bool>("asBaseFile");
    QTest::newRow("read-only file") << false << false;
    QTest::newRow("locked by its own word") << true << false;
    QTest::newRow("read-only file, base hotkeys") << false << true;
    QTest::newRow("locked by its own word, base hotkeys") << true << true;
}

void TestHotkeyEditorSets::neverOverwritesLockedSets()
{
    QFETCH(bool, byAttribute);
    QFETCH(bool, asBaseFile);
    const QString locked =
            byAttribute ? write("user/Locked.hsx", "<VelHotkeyTransformations Locked='1'/>")
                        : m->shippedSet;
    const QByteArray before = TestHost::read(locked);
    m->edit();
    dialogs->expectReplacement(asBaseFile ? "Save Shortcuts" : "Save Hotkey Set As", locked)
            .expectBox("Save Changes Error", QMessageBox::Ok);
    asBaseFile ? m->editor->saveShortcuts() : m->triggerOption("Save As...");
    QCOMPARE(dialogs->texts().value(1), s("Cannot overwrite a locked preset file!"));
    QCOMPARE(TestHost::read(locked), before);
    QVERIFY(m->editor->isModified());
    QCOMPARE(m->chosenSet(), s("Mine"));
}

void TestHotkeyEditorSets::keepsEditsWhenSavingFails()
{
    m->edit();
    m->assign(sphere, QKeySequence(0x1A).toString());
    const QByteArray before = TestHost::read(m->userSet);
    dialogs->expectBox("Save Changes Error", QMessageBox::Ok);
    m->triggerOption("Save");
    QVERIFY(m->editor->isModified());
    QCOMPARE(TestHost::read(m->userSet), before);
    QCOMPARE(m->hotkeys(bevel), s("B, F9"));
}

void TestHotkeyEditorSets::resets()
{
    m->edit();
    dialogs->expectBox("Reset Hotkeys", QMessageBox::Cancel)
            .expectBox("Reset Hotkeys", QMessageBox::Discard);
    QVERIFY(!m->editor->maybeDiscardChanges());
    QVERIFY(m->editor->isModified());
    m->triggerOption("Reset");
    QVERIFY(!m->editor->isModified());
    QCOMPARE(m->hotkeys(bevel), s("B"));
    QCOMPARE(m->hotkeys(box), s("B, F5")); // the set itself stays
    QCOMPARE(m->chosenSet(), s("Mine"));
}

void TestHotkeyEditorSets::asksAboutVanishedFile_data()
{
    QTest::addColumn<int>("answer");
    QTest::addColumn<QStringList>("listed");
    QTest::addColumn<QString>("chosen");
    QTest::addColumn<QString>("boxHotkeys");
    QTest::newRow("save") << int(QMessageBox::Save) << list("Default|Other|Saved") << "Saved"
                          << "B, F5";
    QTest::newRow("reset") << int(QMessageBox::Discard) << list("Default|Other") << "Default"
                           << "B";
    QTest::newRow("cancel") << int(QMessageBox::Cancel) << list("Default|Mine|Other") << "Mine"
                            << "B, F5";
}

void TestHotkeyEditorSets::asksAboutVanishedFile()
{
    QFETCH(int, answer);
    m->edit();
    QVERIFY(QFile::remove(m->userSet));
    const QString saved = m->host.paths()->userPresets + s("/Saved.hsx");
    dialogs->expectBox("File not Found", answer);
    if (answer == QMessageBox::Save)
        dialogs->expectFile("Save Hotkey Set As", saved);
    QCOMPARE(m->editor->maybeSaveChanges(), answer != QMessageBox::Cancel);
    QCOMPARE(TestHost::read(saved).contains("F9"), answer == QMessageBox::Save);
    QTEST(m->listedSets(), "listed");
    QTEST(m->chosenSet(), "chosen");
    QTEST(m->hotkeys(box), "boxHotkeys");
    QCOMPARE(m->hotkeys(bevel), answer == QMessageBox::Discard ? s("B") : s("B, F9"));
    QCOMPARE(m->editor->isModified(), answer == QMessageBox::Cancel);
    QCOMPARE(currentSet(), m->sets()->currentData(Qt::ToolTipRole).toString());
}

// A set whose file is not there when the editor opens, but later.
// No set is loaded, and none may look so, or be loaded, because the list has changed.
// The dialog that holds the editor may be opened again while edits are pending.
void TestHotkeyEditorSets::mayGoWhileItAsks_data()
{
    using H = EditorHarness;
    using D = DialogDriver;
    QTest::addColumn<Steps>("prepare"); // with the dialogs before the last one
    QTest::addColumn<Steps>("command");
    const auto row = [](const char *name, const Steps &prepare, const Steps &command) {
        QTest::newRow(name) << prepare << command;
    };
    const Steps nothing = [](H &, D &) {};
    const Steps vanish = [](H &h, D &) { QFile::remove(h.userSet); };
    const Steps chooseOther = [](H &h, D &) { h.chooseSet("Other"); };
    const Steps mayBeSaved = [](H &h, D &) { QVERIFY(!h.editor->maybeSaveChanges()); };
    const Steps reset = [](H &h, D &) { QVERIFY(!h.editor->maybeDiscardChanges()); };

    row("another set", nothing, chooseOther);
    row("save", nothing, mayBeSaved);
    row("save as", vanish, [](H &h, D &) { h.click("HotkeyEditor_toolButtonSavePreset"); });
    row("reset", nothing, reset);
    const Steps missing = [](H &h, D &before) {
        QFile::remove(h.otherSet);
        before.expectBox("Unsaved Changes", QMessageBox::Discard);
    };
    row("missing set", missing, chooseOther);
    const Steps saveElsewhere = [](H &h, D &before) {
        QFile::remove(h.userSet);
        before.expectBox("File not Found", QMessageBox::Save);
    };
    row("save elsewhere", saveElsewhere, mayBeSaved);
    const Steps load = [](H &h, D &before) { before.expectFile("Load Hotkey Set", h.otherSet); };
    row("load", load, [](H &h, D &) { h.editor->loadShortcutsTransformation(); });
    for (const char *keys : {"<Other/>", "<VLSK_KBD/>"}) {
        const Steps import = [keys](H &h, D &before) {
            h.host.write(s("legacy/LegacyDefaultUI-2019.kbdx"), "<VLSK_KBD/>");
            before.expectFile("Convert Legacy Hotkeys", h.host.write(s("k.kbdx"), keys))
                    .expectBox("Unsaved Changes", QMessageBox::Discard);
        };
        row(keys, import, [](H &h, D &) { h.editor->selectFileForConversion(); });
    }
}

// The host may close its dialog, or end, at any time.
void TestHotkeyEditorSets::mayGoWhileItAsks()
{
    QFETCH(Steps, prepare);
    QFETCH(Steps, command);
    m->edit();
    prepare(*m, *dialogs);
    dialogs->expect([this](QWidget *) { m->editor.reset(); });
    command(*m, *dialogs);
    QVERIFY(m->editor == nullptr);
}

// A legacy keyboard file, and the one of the defaults that it is compared with.
QString TestHotkeyEditorSets::writeLegacy(const char *name, const char *keys) const
{
    m->host.write(s("legacy/LegacyDefaultUI-2019.kbdx"), "<VLSK_KBD/>");
    return m->host.write(s(name), QByteArray("<VLSK_KBD>") + keys + "</VLSK_KBD>");
}

void TestHotkeyEditorSets::loadsFromFile()
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

void TestHotkeyEditorSets::reportsBadFile()
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

void TestHotkeyEditorSets::cancelledDialogsChangeNothing()
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

void TestHotkeyEditorSets::leavesTheSetForBaseFile()
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

void TestHotkeyEditorSets::savesBaseFile()
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

void TestHotkeyEditorSets::importsLegacyFile()
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

void TestHotkeyEditorSets::asksBeforeReplacingOnImport()
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
void TestHotkeyEditorSets::reportsFailedImport_data()
{
    QTest::addColumn<bool>("isKeyboardFile");
    QTest::newRow("not a keyboard file") << false;
    QTest::newRow("no directory for it") << true;
}

void TestHotkeyEditorSets::reportsFailedImport()
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

void TestHotkeyEditorSets::staysInPlaceWhenTheFileChanges()
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

QTEST_MAIN(TestHotkeyEditorSets)
#include "tst_HotkeyEditorSets.moc"
