#include "HotkeySetDialogs.h"

#include "EditorText.h"
#include "InstalledPaths.h"

#include <QAbstractButton>
#include <QDesktopServices>
#include <QDir>
#include <QFile>
#include <QFileDialog>
#include <QFileInfo>
#include <QLabel>
#include <QPointer>
#include <QPushButton>
#include <QStandardPaths>
#include <QUrl>

namespace CUI::HotkeySetDialogs {

namespace {

// A message box that shows its texts as plain text. It may be destroyed, with its parent, while it
// is open.
class PlainMessageBox
{
public:
    PlainMessageBox(QMessageBox::Icon icon, const char *title, const QString &text,
                    QMessageBox::StandardButtons buttons, QWidget *parent)
        : m_box(new QMessageBox(icon, editorText(title), text, buttons, parent))
    {
        m_box->setTextFormat(Qt::PlainText);
    }
    ~PlainMessageBox() { delete m_box.data(); }
    PlainMessageBox(const PlainMessageBox &) = delete;
    PlainMessageBox &operator=(const PlainMessageBox &) = delete;

    // QMessageBox::NoButton when the box was destroyed.
    QMessageBox::StandardButton ask(QMessageBox::StandardButton defaultOne)
    {
        m_box->setDefaultButton(defaultOne);
        return static_cast<QMessageBox::StandardButton>(m_box->exec());
    }

    void tell() { m_box->exec(); }

    void relabel(QMessageBox::StandardButton which, const QString &text)
    {
        m_box->button(which)->setText(text);
    }

    void explain(const QString &text)
    {
        m_box->setInformativeText(text);
        // The text format of the box does not reach this text.
        const auto labels = m_box->findChildren<QLabel *>();
        for (QLabel *label : labels)
            label->setTextFormat(Qt::PlainText);
    }

    // Adds a button that opens a local file or folder with the desktop's program for it.
    void offerToOpen(const char *label, const QString &path)
    {
        if (path.isEmpty())
            return;
        const QPushButton *opener = m_box->addButton(editorText(label), QMessageBox::ActionRole);
        QObject::connect(opener, &QPushButton::clicked, m_box.data(),
                         [path] { QDesktopServices::openUrl(QUrl::fromLocalFile(path)); });
    }

private:
    QPointer<QMessageBox> m_box;
};

QString resetLabel()
{
    return editorText(QT_TRANSLATE_NOOP("QvelShortcutsWidget", "Reset"));
}

// Runs and deletes the dialog, which may be destroyed, with its parent, while it is open.
QString chosenFile(QFileDialog *dialog)
{
    const QPointer<QFileDialog> alive(dialog);
    const bool isAccepted = dialog->exec() == QDialog::Accepted;
    const QString path =
            isAccepted && !alive.isNull() ? alive->selectedFiles().value(0) : QString();
    delete alive.data();
    return path;
}

bool canBeOpened(const QString &path)
{
    return QFileInfo(path).isFile() && QFile(path).open(QIODevice::ReadOnly);
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
    box.tell();
}

QMessageBox::StandardButton popupChangedFileDlg(QWidget *parent, const QString &setName)
{
    PlainMessageBox box(
            QMessageBox::Warning, QT_TRANSLATE_NOOP("QvelShortcutsWidget", "Hotkey Set Changed"),
            editorText(QT_TRANSLATE_NOOP(
                               "QvelShortcutsWidget",
                               "The file of hotkey set '%1' was changed by another program since "
                               "it was loaded.\n\nSaving replaces those changes by yours.\n"))
                    .arg(setName),
            QMessageBox::Save | QMessageBox::SaveAll | QMessageBox::Cancel, parent);
    box.relabel(QMessageBox::Save,
                editorText(QT_TRANSLATE_NOOP("QvelShortcutsWidget", "Save Anyway")));
    box.relabel(QMessageBox::SaveAll,
                editorText(QT_TRANSLATE_NOOP("QvelShortcutsWidget", "Save As...")));
    return box.ask(QMessageBox::Cancel);
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
    box.tell();
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
    box.offerToOpen(QT_TRANSLATE_NOOP("QvelShortcutsWidget", "Open Log File"),
                    installedPaths().getLogFilePath());
    box.tell();
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
    box.explain(canBeOpened(path) ? reason
                                  : editorText(QT_TRANSLATE_NOOP("QvelShortcutsWidget",
                                                                 "The file cannot be opened.")));
    box.offerToOpen(QT_TRANSLATE_NOOP("QvelShortcutsWidget", "Open Log File"),
                    installedPaths().getLogFilePath());
    box.tell();
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
                    installedPaths().getUserPresetDirectory());
    box.tell();
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
    box.offerToOpen(QT_TRANSLATE_NOOP("QvelShortcutsWidget", "Open Log File"),
                    installedPaths().getLogFilePath());
    box.tell();
}

void showValidation(QWidget *parent, const char *title, bool valid)
{
    PlainMessageBox box(valid ? QMessageBox::Information : QMessageBox::Warning, title,
                        valid ? editorText(QT_TRANSLATE_NOOP("QvelShortcutsWidget",
                                                             "Xml File valid!! According to schema "
                                                             "definition."))
                              : editorText(QT_TRANSLATE_NOOP("QvelShortcutsWidget",
                                                             "Xml File invalid!! According to "
                                                             "schema definition.")),
                        QMessageBox::Ok, parent);
    box.tell();
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
    auto *dialog = new QFileDialog(
            parent, editorText(QT_TRANSLATE_NOOP("QvelShortcutsWidget", "Save Hotkey Set As")),
            installedPaths().getUserPresetDirectory(), hotkeySetFilter());
    dialog->setAcceptMode(QFileDialog::AcceptSave);
    dialog->setDefaultSuffix(QStringLiteral("hsx"));
    return chosenFile(dialog);
}

QString askLoadSetPath(QWidget *parent)
{
    return askOpenPath(parent,
                       editorText(QT_TRANSLATE_NOOP("QvelShortcutsWidget", "Load Hotkey Set")),
                       hotkeySetFilter(), installedPaths().getUserPresetDirectory());
}

QString askLegacyPath(QWidget *parent)
{
    auto *dialog = new QFileDialog(
            parent, editorText(QT_TRANSLATE_NOOP("QvelShortcutsWidget", "Convert Legacy Hotkeys")),
            QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation),
            editorText(QT_TRANSLATE_NOOP("QvelShortcutsWidget", "Keyboard Shortcuts (*.%1)"))
                    .arg(QLatin1String("kbdx")));
    dialog->setFileMode(QFileDialog::ExistingFile);
    dialog->setLabelText(QFileDialog::Accept,
                         editorText(QT_TRANSLATE_NOOP("QvelShortcutsWidget", "Import")));
    return chosenFile(dialog);
}

QString askOpenPath(QWidget *parent, const QString &title, const QString &filter,
                    const QString &directory)
{
    auto *dialog = new QFileDialog(parent, title, directory, filter);
    dialog->setFileMode(QFileDialog::ExistingFile);
    return chosenFile(dialog);
}

QString askSavePath(QWidget *parent, const QString &title, const QString &filter,
                    const QString &suffix)
{
    auto *dialog = new QFileDialog(parent, title, QString(), filter);
    dialog->setAcceptMode(QFileDialog::AcceptSave);
    dialog->setDefaultSuffix(suffix);
    return chosenFile(dialog);
}

} // namespace CUI::HotkeySetDialogs
