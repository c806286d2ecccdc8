#include "HotkeySetDialogs.h"

#include "EditorText.h"
#include "IPathManager.h"

#include <QAbstractButton>
#include <QDesktopServices>
#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QPushButton>
#include <QStandardPaths>
#include <QUrl>

namespace CUI::HotkeySetDialogs {

namespace {

QString userPresetDirectory()
{
    const IPathManager *paths = IPathManager::get();
    return paths != nullptr ? paths->getUserPresetDirectory() : QString();
}

QString logFilePath()
{
    const IPathManager *paths = IPathManager::get();
    return paths != nullptr ? paths->getLogFilePath() : QString();
}

// A box whose texts are never taken for markup.
class PlainMessageBox : public QMessageBox
{
public:
    PlainMessageBox(Icon icon, const char *title, const QString &text, StandardButtons buttons,
                    QWidget *parent)
        : QMessageBox(icon, editorText(title), text, buttons, parent)
    {
        setTextFormat(Qt::PlainText);
    }

    StandardButton ask(StandardButton defaultOne)
    {
        setDefaultButton(defaultOne);
        return static_cast<StandardButton>(exec());
    }

    void relabel(StandardButton which, const QString &text) { button(which)->setText(text); }

    // Adds a button that opens a local file or folder with the desktop's program for it.
    void offerToOpen(const char *label, const QString &path)
    {
        if (path.isEmpty())
            return;
        const QPushButton *opener = addButton(editorText(label), ActionRole);
        connect(opener, &QPushButton::clicked, this,
                [path] { QDesktopServices::openUrl(QUrl::fromLocalFile(path)); });
    }
};

QString resetLabel()
{
    return editorText(QT_TRANSLATE_NOOP("QvelShortcutsWidget", "Reset"));
}

QString chosenFile(QFileDialog &dialog)
{
    return dialog.exec() == QDialog::Accepted ? dialog.selectedFiles().value(0) : QString();
}

} // namespace

QMessageBox::StandardButton popupSaveChangesDlg(QWidget *parent)
{
    PlainMessageBox box(
            QMessageBox::Question, QT_TRANSLATE_NOOP("QvelShortcutsWidget", "Unsaved Changes"),
            editorText(QT_TRANSLATE_NOOP("QvelShortcutsWidget",
                                         "Save your changes, discard them, or cancel to continue "
                                         "making changes.\n")),
            QMessageBox::Save | QMessageBox::Discard | QMessageBox::Cancel, parent);
    return box.ask(QMessageBox::Save);
}

QMessageBox::StandardButton popupResetChangesDlg(QWidget *parent)
{
    PlainMessageBox box(QMessageBox::Question,
                        QT_TRANSLATE_NOOP("QvelShortcutsWidget", "Reset Hotkeys"),
                        editorText(QT_TRANSLATE_NOOP("QvelShortcutsWidget",
                                                     "Reset to discard all unsaved changes.\n")),
                        QMessageBox::Discard | QMessageBox::Cancel, parent);
    box.relabel(QMessageBox::Discard, resetLabel());
    return box.ask(QMessageBox::Cancel);
}

QMessageBox::StandardButton popupFileNotFoundSaveDlg(QWidget *parent, const QString &setName)
{
    PlainMessageBox box(
            QMessageBox::Warning, QT_TRANSLATE_NOOP("QvelShortcutsWidget", "File not Found"),
            editorText(QT_TRANSLATE_NOOP(
                               "QvelShortcutsWidget",
                               "The file for hotkey set '%1' cannot be found.\n\nYou can either "
                               "preserve the loaded hotkeys by saving them to a file or reset to "
                               "the default hotkey set.\n"))
                    .arg(setName),
            QMessageBox::Save | QMessageBox::Discard | QMessageBox::Cancel, parent);
    box.relabel(QMessageBox::Discard, resetLabel());
    return box.ask(QMessageBox::Save);
}

void popupFileNotFoundInfoDlg(QWidget *parent, const QString &setName)
{
    PlainMessageBox box(
            QMessageBox::Warning, QT_TRANSLATE_NOOP("QvelShortcutsWidget", "File not Found"),
            editorText(QT_TRANSLATE_NOOP("QvelShortcutsWidget",
                                         "The file for hotkey set '%1' cannot be found.\n\nThe "
                                         "missing set will be removed from the list.\n"))
                    .arg(setName),
            QMessageBox::Ok, parent);
    box.exec();
}

bool confirmReplacement(QWidget *parent, const QString &fileName)
{
    PlainMessageBox box(QMessageBox::Warning,
                        QT_TRANSLATE_NOOP("QvelShortcutsWidget", "Hotkey File Already Exists"),
                        editorText(QT_TRANSLATE_NOOP("QvelShortcutsWidget",
                                                     "%1 already exists in the User Customization "
                                                     "folder.\n\nDo you want to replace it?"))
                                .arg(fileName),
                        QMessageBox::Yes | QMessageBox::No, parent);
    return box.ask(QMessageBox::No) == QMessageBox::Yes;
}

void showLockedWarning(QWidget *parent)
{
    PlainMessageBox box(QMessageBox::Warning,
                        QT_TRANSLATE_NOOP("QvelShortcutsWidget", "Save Changes Error"),
                        editorText(QT_TRANSLATE_NOOP("QvelShortcutsWidget",
                                                     "Cannot overwrite a locked preset file!")),
                        QMessageBox::Ok, parent);
    box.exec();
}

void showSaveFailure(QWidget *parent, const QString &path)
{
    PlainMessageBox box(
            QMessageBox::Warning, QT_TRANSLATE_NOOP("QvelShortcutsWidget", "Save Changes Error"),
            editorText(QT_TRANSLATE_NOOP("QvelShortcutsWidget",
                                         "The hotkeys cannot be saved to %1.\n\nYour changes are "
                                         "still here.\n"))
                    .arg(QDir::toNativeSeparators(path)),
            QMessageBox::Ok, parent);
    box.offerToOpen(QT_TRANSLATE_NOOP("QvelShortcutsWidget", "Open Log File"), logFilePath());
    box.exec();
}

void showLoadFailure(QWidget *parent, const QString &path, const QString &reason)
{
    PlainMessageBox box(QMessageBox::Warning,
                        QT_TRANSLATE_NOOP("QvelShortcutsWidget", "Hotkey Set Not Loaded"),
                        editorText(QT_TRANSLATE_NOOP("QvelShortcutsWidget",
                                                     "%1 cannot be loaded.\n\nSee the log for more "
                                                     "details."))
                                .arg(QFileInfo(path).fileName()),
                        QMessageBox::Ok, parent);
    box.setInformativeText(reason);
    box.offerToOpen(QT_TRANSLATE_NOOP("QvelShortcutsWidget", "Open Log File"), logFilePath());
    box.exec();
}

void showConverted(QWidget *parent, const QString &inputName, const QString &outputName)
{
    PlainMessageBox box(
            QMessageBox::Information,
            QT_TRANSLATE_NOOP("QvelShortcutsWidget", "Hotkey File Converted"),
            editorText(QT_TRANSLATE_NOOP("QvelShortcutsWidget",
                                         "%1 was successfully converted and loaded.\n\nThe new "
                                         "file, %2, is saved in your User Settings folder."))
                    .arg(inputName, outputName),
            QMessageBox::Ok, parent);
    box.offerToOpen(QT_TRANSLATE_NOOP("QvelShortcutsWidget", "Open File Location"),
                    userPresetDirectory());
    box.exec();
}

void showConversionFailure(QWidget *parent, const QString &inputName)
{
    PlainMessageBox box(
            QMessageBox::Warning,
            QT_TRANSLATE_NOOP("QvelShortcutsWidget", "Hotkeys Conversion Failed"),
            editorText(QT_TRANSLATE_NOOP("QvelShortcutsWidget",
                                         "Something went wrong while converting %1.\n\nSee the log "
                                         "for more details."))
                    .arg(inputName),
            QMessageBox::Ok, parent);
    box.offerToOpen(QT_TRANSLATE_NOOP("QvelShortcutsWidget", "Open Log File"), logFilePath());
    box.exec();
}

void showValidation(QWidget *parent, const QString &title, bool valid)
{
    QMessageBox box(valid ? QMessageBox::Information : QMessageBox::Warning, title,
                    valid ? editorText(QT_TRANSLATE_NOOP("QvelShortcutsWidget",
                                                         "Xml File valid!! According to schema "
                                                         "definition."))
                          : editorText(QT_TRANSLATE_NOOP("QvelShortcutsWidget",
                                                         "Xml File invalid!! According to schema "
                                                         "definition.")),
                    QMessageBox::Ok, parent);
    box.exec();
}

QString hotkeySetFilter()
{
    return editorText(QT_TRANSLATE_NOOP("QvelShortcutsWidget", "Hotkey Set File (*.%1)"))
            .arg(QLatin1String("hsx"));
}

QString shortcutFileFilter()
{
    return editorText(QT_TRANSLATE_NOOP("QvelShortcutsWidget", "Shortcut File (*.%1)"))
            .arg(QLatin1String("hsxb"));
}

QString askSaveSetPath(QWidget *parent)
{
    QFileDialog dialog(parent,
                       editorText(QT_TRANSLATE_NOOP("QvelShortcutsWidget", "Save Hotkey Set As")),
                       userPresetDirectory(), hotkeySetFilter());
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    dialog.setDefaultSuffix(QStringLiteral("hsx"));
    return chosenFile(dialog);
}

QString askLoadSetPath(QWidget *parent)
{
    return askOpenPath(parent,
                       editorText(QT_TRANSLATE_NOOP("QvelShortcutsWidget", "Load Hotkey Set")),
                       hotkeySetFilter(), userPresetDirectory());
}

QString askLegacyPath(QWidget *parent)
{
    QFileDialog dialog(
            parent, editorText(QT_TRANSLATE_NOOP("QvelShortcutsWidget", "Convert Legacy Hotkeys")),
            QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation),
            editorText(QT_TRANSLATE_NOOP("QvelShortcutsWidget", "Keyboard Shortcuts (*.%1)"))
                    .arg(QLatin1String("kbdx")));
    dialog.setFileMode(QFileDialog::ExistingFile);
    dialog.setLabelText(QFileDialog::Accept,
                        editorText(QT_TRANSLATE_NOOP("QvelShortcutsWidget", "Import")));
    return chosenFile(dialog);
}

QString askOpenPath(QWidget *parent, const QString &title, const QString &filter,
                    const QString &directory)
{
    QFileDialog dialog(parent, title, directory, filter);
    dialog.setFileMode(QFileDialog::ExistingFile);
    return chosenFile(dialog);
}

QString askSavePath(QWidget *parent, const QString &title, const QString &filter,
                    const QString &suffix)
{
    QFileDialog dialog(parent, title, QString(), filter);
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    dialog.setDefaultSuffix(suffix);
    return chosenFile(dialog);
}

} // namespace CUI::HotkeySetDialogs
