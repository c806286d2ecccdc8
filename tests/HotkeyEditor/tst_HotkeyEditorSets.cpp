#include "EditorHarness.h"

#include <UiCustomizations/Preset.h>

#include <QComboBox>
#include <QDesktopServices>
#include <QFile>
#include <QMessageBox>
#include <QPushButton>
#include <QSignalSpy>
#include <QTranslator>
#include <QtTest>

#include <functional>

using CUI::Preset;
using CUI::QvelShortcutsWidget;

namespace {

QString s(const char *text)
{
    return QString::fromUtf8(text);
}

/// Translates the name of the shipped set.
class NameTranslator : public QTranslator
{
public:
    bool isEmpty() const override { return false; }
    QString translate(const char *context, const char *source, const char *, int) const override
    {
        return qstrcmp(context, "CUI") == 0 && qstrcmp(source, "Default") == 0 ? s("Standard")
                                                                               : QString();
    }
};

/// Keeps the folder that the desktop is asked to open.
class Desktop : public QObject
{
    Q_OBJECT

public:
    Desktop() { QDesktopServices::setUrlHandler(s("file"), this, "open"); }
    ~Desktop() override { QDesktopServices::unsetUrlHandler(s("file")); }
    QString opened;

public Q_SLOTS:
    void open(const QUrl &url) { opened = url.toLocalFile(); }
};

/// Opens dialogs and expects that the last one meets the given end.
using Opening =
        std::function<void(EditorHarness &, DialogDriver &, const DialogDriver::Answer &end)>;

} // namespace

Q_DECLARE_METATYPE(Opening)

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
    QComboBox *sets() const { return m->child<QComboBox>("HotkeyEditor_hotkeySetComboBox"); }
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
    QCOMPARE(m->hotkeys(box), QString());
    QCOMPARE(m->chosenSet(), s("Other"));
    QCOMPARE(m->host.paths()->currentSet, m->otherSet);
    QVERIFY(m->editor->currentAction() == nullptr);
    m->chooseSet(s("Default"));
    QCOMPARE(m->hotkeys(box), s("B"));
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
    m->edit();
    DialogDriver dialogs;
    dialogs.expectBox(s("Unsaved Changes"), answer);
    m->chooseSet(s("Other"));
    QVERIFY(dialogs.check());
    QCOMPARE(m->chosenSet(), chosen);
    QCOMPARE(TestHost::read(m->userSet).contains("F9"), saved);
    const bool cancelled = answer == QMessageBox::Cancel;
    QCOMPARE(m->editor->isModified(), cancelled);
    QCOMPARE(m->hotkeys(bevel), cancelled ? s("B, F9") : s("B"));
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
    QCOMPARE(m->hotkeys(box), s("B, F5"));
}

void TestHotkeyEditorSets::refusesBrokenSet()
{
    m->host.write(s("user/Other.hsx"), "<VelHotkeyTransformations>");
    DialogDriver dialogs;
    dialogs.expectBox(s("Hotkey Set Not Loaded"), QMessageBox::Ok);
    m->chooseSet(s("Other"));
    QVERIFY(dialogs.check());
    QCOMPARE(m->chosenSet(), s("Mine"));
    QCOMPARE(m->hotkeys(box), s("B, F5"));
}

void TestHotkeyEditorSets::savesInPlace()
{
    QSignalSpy saved(m->editor.get(), &QvelShortcutsWidget::modificationsSaved);
    QSignalSpy modified(m->editor.get(), &QvelShortcutsWidget::presetModified);
    DialogDriver dialogs;
    m->edit();
    m->click("HotkeyEditor_toolButtonSavePreset");
    QVERIFY(dialogs.check());
    QVERIFY(TestHost::read(m->userSet)
                    .contains("Shortcut=\"F9\" Description=\"Bevel\" Id=\"2-bevel\""));
    QVERIFY(TestHost::read(m->userSet).contains("F5")); // what was in the set before
    QCOMPARE(saved.count(), 1);
    QCOMPARE(modified.count(), 2);
    QVERIFY(!modified.at(1).at(0).toBool() && !m->editor->isModified());
    QCOMPARE(m->chosenSet(), s("Mine"));
}

void TestHotkeyEditorSets::savesLockedSetElsewhere()
{
    m->chooseSet(s("Default"));
    const QByteArray before = TestHost::read(m->shippedSet);
    m->edit();
    DialogDriver dialogs;
    const QString path = m->host.paths()->userPresets + s("/New.Keys.hsx");
    dialogs.expectFile(s("Save Hotkey Set As"), path);
    m->triggerOption(s("Save"));
    QVERIFY(dialogs.check());
    QCOMPARE(TestHost::read(m->shippedSet), before);
    QVERIFY(TestHost::read(path).contains("F9"));
    QCOMPARE(m->host.paths()->currentSet, path);
    QCOMPARE(m->child<QComboBox>("HotkeyEditor_hotkeySetComboBox")->currentData(Qt::ToolTipRole),
             QVariant(path));
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
    const QString locked = byAttribute ? m->host.write(s("user/Locked.hsx"),
                                                       "<VelHotkeyTransformations Locked='1'/>")
                                       : m->shippedSet;
    const QByteArray before = TestHost::read(locked);
    m->edit();
    DialogDriver dialogs;
    dialogs.expectFile(asBaseFile ? s("Save Shortcuts") : s("Save Hotkey Set As"), locked)
            .expectReplacement()
            .expectBox(s("Save Changes Error"), QMessageBox::Ok);
    asBaseFile ? m->editor->saveShortcuts() : m->editor->saveShortcutsTransformation();
    QVERIFY(dialogs.check());
    QCOMPARE(dialogs.texts().last(), s("Cannot overwrite a locked preset file!"));
    QCOMPARE(TestHost::read(locked), before);
    QVERIFY(m->editor->isModified());
    QCOMPARE(m->chosenSet(), s("Mine"));
}

void TestHotkeyEditorSets::keepsEditsWhenSavingFails()
{
    m->edit();
    m->manager.assignShortcut(sphere, QKeySequence(0x1A).toString(), s("Sphere"));
    const QByteArray before = TestHost::read(m->userSet);
    DialogDriver dialogs;
    dialogs.expectBox(s("Save Changes Error"), QMessageBox::Ok);
    m->triggerOption(s("Save"));
    QVERIFY(dialogs.check());
    QVERIFY(m->editor->isModified());
    QCOMPARE(TestHost::read(m->userSet), before);
    QCOMPARE(m->hotkeys(bevel), s("B, F9"));
}

void TestHotkeyEditorSets::resets()
{
    m->edit();
    DialogDriver dialogs;
    dialogs.expectBox(s("Reset Hotkeys"), QMessageBox::Cancel)
            .expectBox(s("Reset Hotkeys"), QMessageBox::Discard);
    QVERIFY(!m->editor->maybeDiscardChanges());
    QVERIFY(m->editor->isModified());
    m->triggerOption(s("Reset"));
    QVERIFY(dialogs.check());
    QVERIFY(!m->editor->isModified());
    QCOMPARE(m->hotkeys(bevel), s("B"));
    QCOMPARE(m->hotkeys(box), s("B, F5")); // the set itself stays
    QCOMPARE(m->chosenSet(), s("Mine"));
}

void TestHotkeyEditorSets::resetKeepsTranslatedName()
{
    NameTranslator translator;
    QVERIFY(QCoreApplication::installTranslator(&translator));
    QTRY_VERIFY(m->listedSets().contains(s("Standard")));
    m->chooseSet(s("Standard"));
    m->edit();
    DialogDriver dialogs;
    dialogs.expectBox(s("Reset Hotkeys"), QMessageBox::Discard);
    m->triggerOption(s("Reset"));
    QVERIFY(dialogs.check());
    QCOMPARE(m->chosenSet(), s("Standard"));
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
    m->edit();
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
        QVERIFY(TestHost::read(saved).contains("F9"));
        QCOMPARE(m->chosenSet(), s("Saved"));
        QCOMPARE(comboBox->findText(s("Mine")), -1);
    } else if (answer == QMessageBox::Discard) {
        QCOMPARE(m->chosenSet(), s("Default"));
        QCOMPARE(m->hotkeys(box), s("B"));
        QCOMPARE(comboBox->findText(s("Mine")), -1);
        QCOMPARE(m->host.paths()->currentSet, m->shippedSet);
    } else {
        QCOMPARE(m->hotkeys(bevel), s("B, F9"));
    }
    QCOMPARE(m->editor->isModified(), answer == QMessageBox::Cancel);
}

// A set whose file is not there when the editor opens, but later.
void TestHotkeyEditorSets::listsVanishedSetOnce()
{
    m->close();
    QVERIFY(QFile::remove(m->userSet));
    m->open();
    QCOMPARE(m->chosenSet(), s("Mine"));
    DialogDriver dialogs;
    dialogs.expectFile(s("Save Hotkey Set As"), m->userSet);
    m->triggerOption(s("Save"));
    QVERIFY(dialogs.check());
    m->refreshList();
    QCOMPARE(m->listedSets(), QStringList({s("Default"), s("Mine"), s("Other"), s("Zed")}));
    QCOMPARE(m->chosenSet(), s("Mine"));
}

void TestHotkeyEditorSets::opensFolderOfVanishedSet()
{
    Desktop desktop;
    QVERIFY(QFile::remove(m->userSet));
    m->triggerOption(s("Open File Location"));
    QCOMPARE(desktop.opened, m->host.paths()->userPresets);
}

void TestHotkeyEditorSets::followsTheDirectory()
{
    m->edit();
    m->host.write(s("user/Brand New.hsx"), "<VelHotkeyTransformations/>");
    QTRY_VERIFY(m->listedSets().contains(s("Brand New")));
    QCOMPARE(m->chosenSet(), s("Mine"));
    QVERIFY(m->editor->isModified());
    QVERIFY(QFile::remove(m->userSet)); // the loaded set stays in the list
    QVERIFY(QFile::remove(m->otherSet));
    QTRY_VERIFY(!m->listedSets().contains(s("Other")));
    QCOMPARE(m->chosenSet(), s("Mine"));
}

void TestHotkeyEditorSets::followsLateDirectory()
{
    m->close();
    m->host.paths()->userPresets = QDir::cleanPath(m->host.path(s("later/sets")));
    m->open();
    for (int i = 0; i < 2; ++i) { // it may also go and come again
        QVERIFY(QDir().mkpath(m->host.path(s("later"))));
        QTest::qWait(50);
        QVERIFY(QDir().mkpath(m->host.path(s("later/sets"))));
        m->host.write(s("later/sets/Late.hsx"), "<VelHotkeyTransformations/>");
        QTRY_VERIFY(m->listedSets().contains(s("Late")));
        QVERIFY(QDir(m->host.path(s("later"))).removeRecursively());
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
    DialogDriver dialogs;
    m->editor->setPresetComboBoxItemIcon(QIcon());
    QCOMPARE(sets()->currentIndex(), -1);
    m->refreshList();
    QCOMPARE(sets()->currentIndex(), -1);
    m->host.write(s("shipped/aaa.hsx"), "<VelHotkeyTransformations Description='Aaa'/>");
    m->host.write(s("user/Yed.hsx"), "<VelHotkeyTransformations/>");
    QTRY_VERIFY(m->listedSets().contains(s("Yed")));
    QCOMPARE(sets()->currentIndex(), -1);
    QCOMPARE(m->host.paths()->currentSet, QString());
    QVERIFY(dialogs.check());
    dialogs.expectBox(s("Unsaved Changes"), QMessageBox::Discard);
    m->chooseSet(s("Aaa")); // the first of the list can be chosen
    QVERIFY(dialogs.check());
    QVERIFY(m->host.paths()->currentSet.endsWith(s("aaa.hsx")));
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
    m->edit();
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
    m->edit();
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

void TestHotkeyEditorSets::mayGoWhileItAsks_data()
{
    using H = EditorHarness;
    using D = DialogDriver;
    using End = DialogDriver::Answer;
    QTest::addColumn<Opening>("open");
    const auto add = [](const char *name, const Opening &open) { QTest::newRow(name) << open; };
    add("another set", [](H &h, D &dialogs, const End &end) {
        dialogs.expect(end);
        h.chooseSet(s("Other"));
    });
    add("missing set", [](H &h, D &dialogs, const End &end) {
        QFile::remove(h.otherSet);
        dialogs.expectBox(s("Unsaved Changes"), QMessageBox::Discard).expect(end);
        h.chooseSet(s("Other"));
    });
    add("save", [](H &h, D &dialogs, const End &end) {
        dialogs.expect(end);
        QVERIFY(!h.editor->maybeSaveChanges());
    });
    add("reset", [](H &h, D &dialogs, const End &end) {
        dialogs.expect(end);
        h.triggerOption(s("Reset"));
    });
    add("vanished set", [](H &h, D &dialogs, const End &end) {
        QFile::remove(h.userSet);
        dialogs.expect(end);
        QVERIFY(!h.editor->maybeDiscardChanges());
    });
    add("save elsewhere", [](H &h, D &dialogs, const End &end) {
        QFile::remove(h.userSet);
        dialogs.expectBox(s("File not Found"), QMessageBox::Save).expect(end);
        QVERIFY(!h.editor->maybeSaveChanges());
    });
    add("save as", [](H &h, D &dialogs, const End &end) {
        dialogs.expect(end);
        QFile::remove(h.userSet);
        h.click("HotkeyEditor_toolButtonSavePreset");
    });
    add("load", [](H &h, D &dialogs, const End &end) {
        dialogs.expectFile(s("Load Hotkey Set"), h.otherSet).expect(end);
        h.triggerOption(s("Load From File..."));
    });
    add("not loaded", [](H &h, D &dialogs, const End &end) {
        QFile::remove(h.userSet);
        dialogs.expect(end);
        h.editor->discardChanges();
    });
    add("validate", [](H &h, D &dialogs, const End &end) {
        dialogs.expectFile(s("Validate Shortcut File"), h.userSet).expect(end);
        h.editor->validateShortcutFile();
    });
    for (const char *keys : {"<Other/>", "<VLSK_KBD/>"}) {
        add(keys, [keys](H &h, D &dialogs, const End &end) {
            h.host.write(s("legacy/LegacyDefaultUI-2019.kbdx"), "<VLSK_KBD/>");
            dialogs.expectFile(s("Convert Legacy Hotkeys"), h.host.write(s("k.kbdx"), keys))
                    .expectBox(s("Unsaved Changes"), QMessageBox::Discard)
                    .expect(end);
            h.triggerOption(s("Import Legacy Hotkeys..."));
        });
    }
}

// The host may close its dialog, or end, at any time.
void TestHotkeyEditorSets::mayGoWhileItAsks()
{
    QFETCH(Opening, open);
    m->edit();
    DialogDriver dialogs;
    open(*m, dialogs, [this](QWidget *) { m->editor.reset(); });
    QVERIFY(dialogs.check());
    QVERIFY(m->editor == nullptr);
}

QTEST_MAIN(TestHotkeyEditorSets)
#include "tst_HotkeyEditorSets.moc"
