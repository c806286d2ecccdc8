#pragma once

#include <QMessageBox>
#include <QString>

class QWidget;

namespace CUI {

/// The questions and messages of the hotkey set commands. Names from files are shown as plain text.
///
/// @p parent may be deleted while a dialog is open; the result is then QMessageBox::NoButton, false
/// or an empty path.
namespace HotkeySetDialogs {

QMessageBox::StandardButton popupSaveChangesDlg(QWidget *parent);
QMessageBox::StandardButton popupResetChangesDlg(QWidget *parent);
QMessageBox::StandardButton popupFileNotFoundSaveDlg(QWidget *parent, const QString &setName);
void popupFileNotFoundInfoDlg(QWidget *parent, const QString &setName);

/// The file of the set was changed by another program: QMessageBox::Save to replace it,
/// QMessageBox::SaveAll to save elsewhere.
QMessageBox::StandardButton popupChangedFileDlg(QWidget *parent, const QString &setName);

/// Yes only when the user wants the file of that name replaced.
bool confirmReplacement(QWidget *parent, const QString &fileName);
void showLockedWarning(QWidget *parent);
/// Offers to open the log file when there is one.
void showSaveFailure(QWidget *parent, const QString &path);
/// The same; @p reason comes from the log and may be empty. When the file cannot be opened, which
/// is not logged, the box says so instead.
void showLoadFailure(QWidget *parent, const QString &path, const QString &reason);
/// Offers to open the folder of the user's sets.
void showConverted(QWidget *parent, const QString &inputName, const QString &outputName);
void showConversionFailure(QWidget *parent, const QString &inputName);
/// @p title is the source text.
void showValidation(QWidget *parent, const char *title, bool valid);

/// \name File dialogs
/// Each returns the chosen path, or an empty text.
/// @{
QString askSaveSetPath(QWidget *parent);
QString askLoadSetPath(QWidget *parent);
QString askLegacyPath(QWidget *parent);
QString askOpenPath(QWidget *parent, const QString &title, const QString &filter,
                    const QString &directory);
QString askSavePath(QWidget *parent, const QString &title, const QString &filter,
                    const QString &suffix);
/// @}

/// \name The filters of the dialogs
/// @{
QString hotkeySetFilter();
QString shortcutFileFilter();
/// @}

} // namespace HotkeySetDialogs
} // namespace CUI
