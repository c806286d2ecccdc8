#include "Pictures.h"

#include "Appearance.h"
#include "CustomizeDialog.h"
#include "EditorHands.h"
#include "Gestures.h"
#include "MainWindow.h"
#include "SheetMenu.h"
#include "StudioSession.h"
#include "Viewport.h"

#include <UiCustomizations/QvelCommandPalette.h>
#include <UiCustomizations/QvelConflictsWidget.h>
#include <UiCustomizations/QvelKeyboardWidget.h>
#include <UiCustomizations/QvelShortcutManager.h>

#include <QApplication>
#include <QDir>
#include <QGraphicsView>
#include <QLineEdit>
#include <QPainter>
#include <QPrintPreviewWidget>
#include <QTabWidget>
#include <QTemporaryDir>
#include <QTreeView>

#include <algorithm>
#include <functional>
#include <iterator>

namespace Studio::Pictures {

namespace {

const QSize pictureSize(1228, 719);

void showEditor(CustomizeDialog *dialog, CUI::QvelShortcutManager & /*store*/)
{
    const EditorHands hands(dialog);
    hands.select({2, QStringLiteral("duplicateObject")});
    hands.press(Qt::Key_J, Qt::NoModifier);
}

void showKeyboard(CustomizeDialog *dialog, CUI::QvelShortcutManager & /*store*/)
{
    auto *keyboard = dialog->findChild<CUI::QvelKeyboardWidget *>();
    dialog->tabs()->setCurrentWidget(keyboard);
    keyboard->setCurrentHotkey(QStringLiteral("T"));
    keyboard->setFocus();
}

void showConflicts(CustomizeDialog *dialog, CUI::QvelShortcutManager &store)
{
    store.assignShortcut({12, QStringLiteral("insertKeyframe")}, QStringLiteral("Ctrl+S"),
                         QString());
    store.assignShortcut({2, QStringLiteral("frameAll")}, QStringLiteral("Alt+F4"), QString());
    dialog->tabs()->setCurrentWidget(dialog->conflicts());
    Gestures::wait(100);
    auto *table = dialog->conflicts()->findChild<QTreeView *>(QStringLiteral("conflictsTable"));
    table->setCurrentIndex(table->model()->index(0, 0));
}

using Show = void (*)(CustomizeDialog *, CUI::QvelShortcutManager &);

QPixmap pictureOfDialog(MainWindow &window, Show show)
{
    CustomizeDialog *dialog = window.showCustomizeDialog();
    dialog->resize(pictureSize);
    QApplication::setActiveWindow(dialog);
    Gestures::wait(100);
    show(dialog, window.store());
    Gestures::wait(100);
    QPixmap picture = dialog->grab();
    window.store().clearTransforms(); // or it would be asked about them
    dialog->close();
    return picture;
}

/// The palette lies over the window that it was opened from.
QPixmap pictureOfPalette(MainWindow &window)
{
    window.resize(pictureSize);
    QApplication::setActiveWindow(&window);
    window.viewport().setFocus();
    Gestures::wait(100);
    CUI::QvelCommandPalette &palette = window.commandPalette();
    palette.open();
    Gestures::wait(100);
    palette.findChild<QLineEdit *>(QStringLiteral("paletteSearch"))
            ->setText(QStringLiteral("frame all"));
    Gestures::wait(100);
    QPixmap picture = window.grab();
    QPainter painter(&picture);
    painter.drawPixmap(palette.geometry().topLeft() - window.geometry().topLeft(), palette.grab());
    palette.hide();
    return picture;
}

/// The print preview with the last page of the list beside the first one of the keyboard.
QPixmap pictureOfSheet(MainWindow &window)
{
    CustomizeDialog *dialog = window.showCustomizeDialog();
    auto *menu = dialog->findChild<SheetMenu *>();
    menu->setWithKeyboard(true);
    menu->showPrintPreview();
    auto *pages = dialog->findChild<QPrintPreviewWidget *>();
    QWidget *preview = pages->window();
    preview->resize(pictureSize.width(), pictureSize.width() * 11 / 15);
    pages->setViewMode(QPrintPreviewWidget::FacingPagesView);
    Gestures::wait(300);
    pages->setCurrentPage(pages->pageCount() - 1);
    pages->fitInView();
    Gestures::wait(300);
    QPixmap picture = pages->findChild<QGraphicsView *>()->viewport()->grab();
    preview->close();
    dialog->close();
    return picture;
}

using Picture = std::function<QPixmap(MainWindow &)>;

Picture ofDialog(Show show)
{
    return [show](MainWindow &window) { return pictureOfDialog(window, show); };
}

bool writeOne(const QString &hostDirectory, bool dark, const Picture &pictureOf,
              const QString &file, QString &error)
{
    Appearance::apply(dark);
    const QTemporaryDir user;
    StudioSession session(hostDirectory, user.path());
    if (!session.start()) {
        error = session.errorText();
        return false;
    }
    session.window().show();
    const QPixmap picture = pictureOf(session.window());
    Gestures::wait();
    if (picture.save(file))
        return true;
    error = QStringLiteral("%1 cannot be written").arg(file);
    return false;
}

} // namespace

bool write(const QString &hostDirectory, const QString &folder, QString &error)
{
    if (!QDir().mkpath(folder)) {
        error = QStringLiteral("%1 cannot be made").arg(folder);
        return false;
    }
    const QDir directory(folder);
    const struct {
        const char *name;
        bool dark;
        Picture pictureOf;
    } pictures[] = {
            {"editor-light.png", false, ofDialog(showEditor)},
            {"editor-dark.png", true, ofDialog(showEditor)},
            {"conflicts-light.png", false, ofDialog(showConflicts)},
            {"conflicts-dark.png", true, ofDialog(showConflicts)},
            {"keyboard.png", false, ofDialog(showKeyboard)},
            {"palette-light.png", false, pictureOfPalette},
            {"palette-dark.png", true, pictureOfPalette},
            {"sheet.png", false, pictureOfSheet},
    };
    return std::all_of(std::begin(pictures), std::end(pictures), [&](const auto &picture) {
        return writeOne(hostDirectory, picture.dark, picture.pictureOf,
                        directory.filePath(QLatin1String(picture.name)), error);
    });
}

} // namespace Studio::Pictures
