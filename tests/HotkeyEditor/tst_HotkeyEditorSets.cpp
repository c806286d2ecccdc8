#include "EditorHarness.h"

#include <UiCustomizations/Preset.h>

#include <QComboBox>
#include <QFile>
#include <QMessageBox>
#include <QPushButton>
#include <QSignalSpy>
#include <QtTest>

using CUI::Preset;
using CUI::QvelShortcutsWidget;

namespace {

QString s(const char *text)
{
    return QString::fromUtf8(text);
}

} // namespace

/// The commands that act on whole hotkey sets, with their dialogs.
class TestHotkeyEditorSets : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void switchesSets();
    void asksBeforeSwitching_data();
    void asksBeforeSwitching();
    void removesMissingSetFromTheList();
    void refusesBrokenSet();
    void savesInPlace();
    void savesLockedSetElsewhere();
    void neverOverwritesLockedSets_data();
    void neverOverwritesLockedSets();
    void keepsEditsWhenSavingFails();
    void resets();
    void asksAboutVanishedFile_data();
    void asksAboutVanishedFile();
    void loadsFromFile();
    void reportsBadFile();
    void cancelledDialogsChangeNothing();
    void importsLegacyFile();
    void asksBeforeReplacingOnImport();
    void reportsFailedImport();
    void validatesFiles();
    void followsTheDirectory();
    void showsNamesAsTyped();
    void opensOverUnsavedEdits();

private:
    void edit() { m->manager.assignShortcut(bevel, s("F9"), s("Bevel")); }
    QByteArray contents(const QString &path) const { return TestHost::read(path); }
    QString hotkeys(const CUI::ActionIdentifier &id) const
    {
        return m->manager.getShortcutsFromActionId(id);
    }
    std::unique_ptr<EditorHarness> m;
};

void TestHotkeyEditorSets::init()
{
    m = std::make_unique<EditorHarness>();
    m->open();
}

void TestHotkeyEditorSets::cleanup()
{
    m.reset();
}

void TestHotkeyEditorSets::switchesSets()
{
    DialogDriver dialogs;
    m->select(sphere);
    m->chooseSet(s("Other"));
    QCOMPARE(hotkeys(box), QString());
    QCOMPARE(m->chosenSet(), s("Other"));
    QCOMPARE(m->host.paths()->currentSet, m->otherSet);
    QVERIFY(m->editor->currentAction() == nullptr);
    m->chooseSet(s("Default"));
    QCOMPARE(hotkeys(box), s("B"));
    QVERIFY(m->editor->maybeSaveChanges()); // nothing to ask
    QVERIFY(dialogs.check());
}

void TestHotkeyEditorSets::asksBeforeSwitching_data()
{
    QTest::addColumn<int>("answer");
    QTest::addColumn<QString>("chosen");
    QTest::addColumn<bool>("saved");
    QTest::newRow("save") << int(QMessageBox::Save) << "Other" << true;
    QTest::newRow("discard") << int(QMessageBox::Discard) << "Other" << false;
    QTest::newRow("cancel") << int(QMessageBox::Cancel) << "Mine" << false;
}

void TestHotkeyEditorSets::asksBeforeSwitching()
{
    QFETCH(int, answer);
    QFETCH(QString, chosen);
    QFETCH(bool, saved);
    edit();
    DialogDriver dialogs;
    dialogs.expectBox(s("Unsaved Changes"), answer);
    m->chooseSet(s("Other"));
    QVERIFY(dialogs.check());
    QCOMPARE(m->chosenSet(), chosen);
    QCOMPARE(contents(m->userSet).contains("F9"), saved);
    const bool cancelled = answer == QMessageBox::Cancel;
    QCOMPARE(m->editor->isModified(), cancelled);
    QCOMPARE(hotkeys(bevel), cancelled ? s("B, F9") : s("B"));
    QCOMPARE(m->host.paths()->currentSet, cancelled ? m->userSet : m->otherSet);
}

void TestHotkeyEditorSets::removesMissingSetFromTheList()
{
    QVERIFY(QFile::remove(m->otherSet)); // the list does not know yet
    DialogDriver dialogs;
    dialogs.expectBox(s("File not Found"), QMessageBox::Ok);
    m->chooseSet(s("Other"));
    QVERIFY(dialogs.check());
    QCOMPARE(
            dialogs.texts().value(0),
            s("The file for hotkey set 'Other' cannot be found.\n\nThe missing set will be removed "
              "from the list.\n"));
    QCOMPARE(m->chosenSet(), s("Mine"));
    QCOMPARE(m->child<QComboBox>("HotkeyEditor_hotkeySetComboBox")->findText(s("Other")), -1);
    QCOMPARE(hotkeys(box), s("B, F5"));
}

void TestHotkeyEditorSets::refusesBrokenSet()
{
    m->host.write(s("user/Other.hsx"), "<VelHotkeyTransformations>");
    DialogDriver dialogs;
    dialogs.expectBox(s("Hotkey Set Not Loaded"), QMessageBox::Ok);
    m->chooseSet(s("Other"));
    QVERIFY(dialogs.check());
    QCOMPARE(m->chosenSet(), s("Mine"));
    QCOMPARE(hotkeys(box), s("B, F5"));
}

void TestHotkeyEditorSets::savesInPlace()
{
    QSignalSpy saved(m->editor.get(), &QvelShortcutsWidget::modificationsSaved);
    QSignalSpy modified(m->editor.get(), &QvelShortcutsWidget::presetModified);
    DialogDriver dialogs;
    edit();
    m->click("HotkeyEditor_toolButtonSavePreset");
    QVERIFY(dialogs.check());
    QVERIFY(contents(m->userSet).contains("Shortcut=\"F9\" Description=\"Bevel\" Id=\"2-bevel\""));
    QVERIFY(contents(m->userSet).contains("F5")); // what was in the set before
    QCOMPARE(saved.count(), 1);
    QCOMPARE(modified.count(), 2);
    QVERIFY(!modified.at(1).at(0).toBool() && !m->editor->isModified());
    QCOMPARE(m->chosenSet(), s("Mine"));
}

void TestHotkeyEditorSets::savesLockedSetElsewhere()
{
    m->chooseSet(s("Default"));
    const QByteArray before = contents(m->shippedSet);
    edit();
    DialogDriver dialogs;
    const QString path = m->host.paths()->userPresets + s("/New.Keys.hsx");
    dialogs.expectFile(s("Save Hotkey Set As"), path);
    m->triggerOption(s("Save"));
    QVERIFY(dialogs.check());
    QCOMPARE(contents(m->shippedSet), before);
    QVERIFY(contents(path).contains("F9"));
    QCOMPARE(m->host.paths()->currentSet, path);
    QCOMPARE(m->child<QComboBox>("HotkeyEditor_hotkeySetComboBox")->currentData(Qt::ToolTipRole),
             QVariant(path));
    QVERIFY(!m->editor->isModified());
}

void TestHotkeyEditorSets::neverOverwritesLockedSets_data()
{
    QTest::addColumn<bool>("byAttribute");
    QTest::newRow("read-only file") << false;
    QTest::newRow("locked by its own word") << true;
}

void TestHotkeyEditorSets::neverOverwritesLockedSets()
{
    QFETCH(bool, byAttribute);
    const QString locked = byAttribute ? m->host.write(s("user/Locked.hsx"),
                                                       "<VelHotkeyTransformations Locked='1'/>")
                                       : m->shippedSet;
    const QByteArray before = contents(locked);
    edit();
    DialogDriver dialogs;
    dialogs.expectFile(s("Save Hotkey Set As"), locked)
            .expect([](QWidget *question) { // the file dialog asks whether to replace the file
                auto *replace = qobject_cast<QMessageBox *>(question);
                QVERIFY(replace != nullptr);
                QTest::mouseClick(replace->button(QMessageBox::Yes), Qt::LeftButton);
            })
            .expectBox(s("Save Changes Error"), QMessageBox::Ok);
    m->editor->saveShortcutsTransformation();
    QVERIFY(dialogs.check());
    QCOMPARE(dialogs.texts().last(), s("Cannot overwrite a locked preset file!"));
    QCOMPARE(contents(locked), before);
    QVERIFY(m->editor->isModified());
    QCOMPARE(m->chosenSet(), s("Mine"));
}

void TestHotkeyEditorSets::keepsEditsWhenSavingFails()
{
    edit();
    m->manager.assignShortcut(sphere, QKeySequence(0x1A).toString(), s("Sphere"));
    const QByteArray before = contents(m->userSet);
    DialogDriver dialogs;
    dialogs.expectBox(s("Save Changes Error"), QMessageBox::Ok);
    m->triggerOption(s("Save"));
    QVERIFY(dialogs.check());
    QVERIFY(m->editor->isModified());
    QCOMPARE(contents(m->userSet), before);
    QCOMPARE(hotkeys(bevel), s("B, F9"));
}

void TestHotkeyEditorSets::resets()
{
    edit();
    DialogDriver dialogs;
    dialogs.expectBox(s("Reset Hotkeys"), QMessageBox::Cancel)
            .expectBox(s("Reset Hotkeys"), QMessageBox::Discard);
    QVERIFY(!m->editor->maybeDiscardChanges());
    QVERIFY(m->editor->isModified());
    m->triggerOption(s("Reset"));
    QVERIFY(dialogs.check());
    QVERIFY(!m->editor->isModified());
    QCOMPARE(hotkeys(bevel), s("B"));
    QCOMPARE(hotkeys(box), s("B, F5")); // the set itself stays
    QCOMPARE(m->chosenSet(), s("Mine"));
}

void TestHotkeyEditorSets::asksAboutVanishedFile_data()
{
    QTest::addColumn<int>("answer");
    QTest::addColumn<bool>("result");
    QTest::newRow("save") << int(QMessageBox::Save) << true;
    QTest::newRow("reset") << int(QMessageBox::Discard) << true;
    QTest::newRow("cancel") << int(QMessageBox::Cancel) << false;
}

void TestHotkeyEditorSets::asksAboutVanishedFile()
{
    QFETCH(int, answer);
    QFETCH(bool, result);
    edit();
    QVERIFY(QFile::remove(m->userSet));
    const QString saved = m->host.paths()->userPresets + s("/Saved.hsx");
    DialogDriver dialogs;
    dialogs.expectBox(s("File not Found"), answer);
    if (answer == QMessageBox::Save)
        dialogs.expectFile(s("Save Hotkey Set As"), saved);
    QCOMPARE(m->editor->maybeSaveChanges(), result);
    QVERIFY(dialogs.check());
    const auto *comboBox = m->child<QComboBox>("HotkeyEditor_hotkeySetComboBox");
    if (answer == QMessageBox::Save) {
        QVERIFY(contents(saved).contains("F9"));
        QCOMPARE(m->chosenSet(), s("Saved"));
        QCOMPARE(comboBox->findText(s("Mine")), -1);
    } else if (answer == QMessageBox::Discard) {
        QCOMPARE(m->chosenSet(), s("Default"));
        QCOMPARE(hotkeys(box), s("B"));
        QCOMPARE(comboBox->findText(s("Mine")), -1);
        QCOMPARE(m->host.paths()->currentSet, m->shippedSet);
    } else {
        QCOMPARE(hotkeys(bevel), s("B, F9"));
    }
    QCOMPARE(m->editor->isModified(), answer == QMessageBox::Cancel);
}

void TestHotkeyEditorSets::loadsFromFile()
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
    QCOMPARE(hotkeys(bevel), s("B, Q"));
    QCOMPARE(hotkeys(box), s("B"));
    QCOMPARE(m->host.paths()->currentSet, path);
    QVERIFY(!m->editor->isModified());
    m->chooseSet(s("Mine"));
    m->chooseSet(s("Far Away")); // it stays in the list
    QCOMPARE(hotkeys(bevel), s("B, Q"));
}

void TestHotkeyEditorSets::reportsBadFile()
{
    const QString path = m->host.write(s("bad.hsx"), "<VelHotkeys/>");
    m->host.paths()->logFile = m->host.path(s("log.txt"));
    QString reason;
    bool offersLog = false;
    DialogDriver dialogs;
    dialogs.expectFile(s("Load Hotkey Set"), path).expect([&](QWidget *dialog) {
        auto *messageBox = qobject_cast<QMessageBox *>(dialog);
        reason = messageBox->informativeText();
        for (const QAbstractButton *button : messageBox->buttons())
            offersLog = offersLog || button->text() == s("Open Log File");
        QTest::mouseClick(messageBox->button(QMessageBox::Ok), Qt::LeftButton);
    });
    m->editor->loadShortcutsTransformation();
    QVERIFY(dialogs.check());
    QVERIFY2(reason.contains(s("Line: 1")), qPrintable(reason));
    QVERIFY(offersLog);
    QCOMPARE(hotkeys(box), s("B, F5"));
    QCOMPARE(m->chosenSet(), s("Mine"));
}

void TestHotkeyEditorSets::cancelledDialogsChangeNothing()
{
    edit();
    const QStringList before = m->host.paths()->recorded;
    DialogDriver dialogs;
    dialogs.expectFile(s("Save Hotkey Set As"), QString())
            .expectBox(s("Unsaved Changes"), QMessageBox::Cancel)
            .expectBox(s("Unsaved Changes"), QMessageBox::Cancel)
            .expectFile(s("Validate Shortcut File"), QString())
            .expectFile(s("Save Shortcuts"), QString())
            .expectBox(s("Unsaved Changes"), QMessageBox::Cancel);
    m->editor->saveShortcutsTransformation();
    m->editor->loadShortcutsTransformation();
    m->editor->selectFileForConversion();
    m->editor->validateShortcutFile();
    m->editor->saveShortcuts();
    m->editor->loadShortcuts();
    QVERIFY(dialogs.check());
    QVERIFY(m->editor->isModified());
    QCOMPARE(hotkeys(bevel), s("B, F9"));
    QCOMPARE(m->host.paths()->recorded, before);
    QCOMPARE(m->chosenSet(), s("Mine"));
}

void TestHotkeyEditorSets::importsLegacyFile()
{
    m->host.write(s("legacy/LegacyDefaultUI-2019.kbdx"), "<VLSK_KBD/>");
    const QString in =
            m->host.write(s("old keys.kbdx"), "<VLSK_KBD><shortcut fVirt='11' accleleratorKey='81' "
                                              "actionID='bevel' actionTableID='2'/></VLSK_KBD>");
    QSignalSpy converted(m->editor.get(), &QvelShortcutsWidget::legacyHotkeySetConverted);
    DialogDriver dialogs;
    dialogs.expectFile(s("Convert Legacy Hotkeys"), in)
            .expectBox(s("Hotkey File Converted"), QMessageBox::Ok);
    m->triggerOption(s("Import Legacy Hotkeys..."));
    QVERIFY(dialogs.check());
    QCOMPARE(
            dialogs.texts().value(0),
            s("old keys.kbdx was successfully converted and loaded.\n\nThe new file, old keys.hsx, "
              "is saved in your User Settings folder."));
    QCOMPARE(converted.count(), 1);
    QVERIFY(converted.at(0).at(0).toBool());
    QCOMPARE(hotkeys(bevel), s("B, Ctrl+Q"));
    QCOMPARE(m->chosenSet(), s("old keys"));
    QCOMPARE(m->host.paths()->currentSet, m->host.paths()->userPresets + s("/old keys.hsx"));
}

void TestHotkeyEditorSets::asksBeforeReplacingOnImport()
{
    m->host.write(s("legacy/LegacyDefaultUI-2019.kbdx"), "<VLSK_KBD/>");
    const QString in = m->host.write(s("Other.kbdx"), "<VLSK_KBD/>");
    const QString locked =
            m->host.write(s("user/Locked.hsx"), "<VelHotkeyTransformations Locked='true'/>");
    const QByteArray before = contents(m->otherSet);
    const QByteArray lockedBefore = contents(locked);
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
    QCOMPARE(contents(m->otherSet), before);
    m->editor->selectFileForConversion();
    QCOMPARE(contents(locked), lockedBefore);
    m->editor->selectFileForConversion();
    QVERIFY(dialogs.check());
    QVERIFY(contents(m->otherSet) != before);
}

void TestHotkeyEditorSets::reportsFailedImport()
{
    const QString in = m->host.write(s("bad.kbdx"), "<Other/>");
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

void TestHotkeyEditorSets::validatesFiles()
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

void TestHotkeyEditorSets::followsTheDirectory()
{
    edit();
    m->host.write(s("user/Brand New.hsx"), "<VelHotkeyTransformations/>");
    auto *comboBox = m->child<QComboBox>("HotkeyEditor_hotkeySetComboBox");
    QTRY_VERIFY(comboBox->findText(s("Brand New")) >= 0);
    QCOMPARE(m->chosenSet(), s("Mine"));
    QVERIFY(m->editor->isModified());
    QVERIFY(QFile::remove(m->userSet)); // the loaded set stays in the list
    QVERIFY(QFile::remove(m->otherSet));
    QTRY_VERIFY(comboBox->findText(s("Other")) < 0);
    QCOMPARE(m->chosenSet(), s("Mine"));
}

void TestHotkeyEditorSets::showsNamesAsTyped()
{
    const QString name = s("<img src=x> & 'quotes' %1");
    const QString path = QDir::cleanPath(m->host.write(
            s("user/markup.hsx"), "<VelHotkeyTransformations Description='&lt;img src=x&gt; &amp; "
                                  "&apos;quotes&apos; %1'/>"));
    m->editor->setPresetComboBoxItemIcon(QIcon());
    m->chooseSet(name);
    QCOMPARE(m->chosenSet(), name);
    QCOMPARE(m->host.paths()->currentSet, path);
    edit();
    QVERIFY(QFile::remove(path));
    Qt::TextFormat format = Qt::AutoText;
    DialogDriver dialogs;
    dialogs.expect([&](QWidget *dialog) {
        auto *messageBox = qobject_cast<QMessageBox *>(dialog);
        format = messageBox->textFormat();
        QVERIFY(messageBox->text().contains(QLatin1Char('\'') + name + QLatin1Char('\'')));
        QTest::mouseClick(messageBox->button(QMessageBox::Cancel), Qt::LeftButton);
    });
    QVERIFY(!m->editor->maybeSaveChanges());
    QVERIFY(dialogs.check());
    QCOMPARE(format, Qt::PlainText);
}

// The dialog that holds the editor may be opened again while edits are pending.
void TestHotkeyEditorSets::opensOverUnsavedEdits()
{
    edit();
    CUI::QvelShortcutsWidget second(m->model.get(), &m->manager);
    QVERIFY(second.isModified());
    QCOMPARE(second.findChild<QComboBox *>(s("HotkeyEditor_hotkeySetComboBox"))->currentText(),
             s("Mine"));
    DialogDriver dialogs;
    dialogs.expectBox(s("Unsaved Changes"), QMessageBox::Save);
    QVERIFY(second.maybeSaveChanges());
    QVERIFY(dialogs.check());
    QVERIFY(!second.isModified() && !m->editor->isModified());
}

QTEST_MAIN(TestHotkeyEditorSets)
#include "tst_HotkeyEditorSets.moc"
