#include "EditorHarness.h"
#include "OneTextTranslator.h"

#include <QDesktopServices>
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

public Q_SLOTS:
    void openUrl(const QUrl &url) { m_opened = url.toLocalFile(); }

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
    void resetKeepsTranslatedName();
    void asksAboutVanishedFile_data();
    void asksAboutVanishedFile();
    void listsVanishedSetOnce();
    void opensFolderOfVanishedSet();
    void followsTheDirectory();
    void followsLateDirectory();
    void refreshesWithoutChoosing();
    void showsNamesAsTyped();
    void opensOverUnsavedEdits();
    void mayGoWhileItAsks_data();
    void mayGoWhileItAsks();

private:
    QString currentSet() const { return m->host.paths()->currentSet; }
    QString write(const char *name, const char *contents = "<VelHotkeyTransformations/>") const;

    QString m_opened; // by the desktop
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

void TestHotkeyEditorSets::resetKeepsTranslatedName()
{
    OneTextTranslator translator("CUI", "Default", "Standard");
    QVERIFY(QCoreApplication::installTranslator(&translator));
    QTRY_VERIFY(m->listedSets().contains(s("Standard")));
    m->chooseSet("Standard");
    m->edit();
    m->editor->discardChanges();
    QCOMPARE(m->chosenSet(), s("Standard"));
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
void TestHotkeyEditorSets::listsVanishedSetOnce()
{
    m->close();
    QVERIFY(QFile::remove(m->userSet));
    m->open();
    QCOMPARE(m->chosenSet(), s("Mine"));
    dialogs->expectFile("Save Hotkey Set As", m->userSet);
    m->triggerOption("Save");
    m->refreshList();
    QCOMPARE(m->listedSets(), list("Default|Mine|Other|Zed"));
    QCOMPARE(m->chosenSet(), s("Mine"));
}

void TestHotkeyEditorSets::opensFolderOfVanishedSet()
{
    QVERIFY(QFile::remove(m->userSet));
    QDesktopServices::setUrlHandler(s("file"), this, "openUrl");
    m->triggerOption("Open File Location");
    QDesktopServices::unsetUrlHandler(s("file"));
    QCOMPARE(m_opened, m->host.paths()->userPresets);
}

void TestHotkeyEditorSets::followsTheDirectory()
{
    m->edit();
    write("user/Brand New.hsx");
    QTRY_VERIFY(m->listedSets().contains(s("Brand New")));
    QCOMPARE(m->chosenSet(), s("Mine"));
    QVERIFY(m->editor->isModified());
    QVERIFY(QFile::remove(m->userSet)); // the loaded set stays in the list
    QVERIFY(QFile::remove(m->otherSet));
    QTRY_COMPARE(m->listedSets(), list("Default|Brand New|Mine"));
    QCOMPARE(m->chosenSet(), s("Mine"));
}

void TestHotkeyEditorSets::followsLateDirectory()
{
    m->close();
    m->host.paths()->userPresets = QDir::cleanPath(m->host.path(s("later/sets")));
    m->open();
    QDir later(m->host.path(s("later")));
    for (int i = 0; i < 2; ++i) { // it may also go and come again
        QVERIFY(later.mkpath(s(".")));
        QTest::qWait(50);
        QVERIFY(later.mkdir(s("sets")));
        write("later/sets/Late.hsx");
        QTRY_VERIFY(m->listedSets().contains(s("Late")));
        QVERIFY(later.removeRecursively());
        QTRY_VERIFY(!m->listedSets().contains(s("Late")));
    }
    QCOMPARE(m->chosenSet(), s("Mine"));
}

// No set is loaded, and none may look so, or be loaded, because the list has changed.
void TestHotkeyEditorSets::refreshesWithoutChoosing()
{
    m->close();
    m->host.paths()->currentSet.clear();
    m->open();
    m->edit();
    m->editor->setPresetComboBoxItemIcon(QIcon());
    QCOMPARE(m->sets()->currentIndex(), -1);
    const QString first = write("shipped/aaa.hsx", "<VelHotkeyTransformations Description='Aaa'/>");
    m->refreshList();
    QCOMPARE(m->listedSets().first(), s("Aaa"));
    QCOMPARE(m->sets()->currentIndex(), -1);
    QCOMPARE(currentSet(), QString());
    dialogs->expectBox("Unsaved Changes", QMessageBox::Discard);
    m->chooseSet("Aaa"); // the first of the list can be chosen
    QCOMPARE(currentSet(), first);
}

void TestHotkeyEditorSets::showsNamesAsTyped()
{
    const QString name = s("<img src=x> & 'quotes' %1");
    const QString path = write("user/markup.hsx",
                               "<VelHotkeyTransformations Description='&lt;img src=x&gt; &amp; "
                               "&apos;quotes&apos; %1'/>");
    m->editor->setPresetComboBoxItemIcon(QIcon());
    m->chooseSet(name);
    QCOMPARE(m->chosenSet(), name);
    QCOMPARE(currentSet(), path);
    m->edit();
    QVERIFY(QFile::remove(path));
    dialogs->expectBox("File not Found", QMessageBox::Cancel, [name](QMessageBox *messageBox) {
        QCOMPARE(messageBox->textFormat(), Qt::PlainText);
        QVERIFY(messageBox->text().contains(s("'%1'").arg(name)));
    });
    QVERIFY(!m->editor->maybeSaveChanges());
}

// The dialog that holds the editor may be opened again while edits are pending.
void TestHotkeyEditorSets::opensOverUnsavedEdits()
{
    m->edit();
    QvelShortcutsWidget second(m->model.get(), &m->manager);
    QVERIFY(second.isModified());
    QCOMPARE(second.findChild<QComboBox *>(m->sets()->objectName())->currentText(), s("Mine"));
    dialogs->expectBox("Unsaved Changes", QMessageBox::Save);
    QVERIFY(second.maybeSaveChanges());
    QVERIFY(!second.isModified() && !m->editor->isModified());
}

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
    row("vanished set", vanish, reset);
    row("not loaded", vanish, [](H &h, D &) { h.editor->discardChanges(); });
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
    const Steps validate = [](H &h, D &before) {
        before.expectFile("Validate Shortcut File", h.userSet);
    };
    row("validate", validate, [](H &h, D &) { h.editor->validateShortcutFile(); });
    row("seventh hotkey", nothing, [](H &h, D &) {
        h.select(boxes);
        for (const int key : {Qt::Key_1, Qt::Key_2, Qt::Key_3, Qt::Key_4, Qt::Key_5, Qt::Key_6})
            h.enter(key);
        h.enter(Qt::Key_7);
    });
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

QTEST_MAIN(TestHotkeyEditorSets)
#include "tst_HotkeyEditorSets.moc"
