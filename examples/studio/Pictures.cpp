#include "Pictures.h"

#include "Appearance.h"
#include "CustomizeDialog.h"
#include "EditorHands.h"
#include "Gestures.h"
#include "MainWindow.h"
#include "StudioSession.h"

#include <QApplication>
#include <QDir>
#include <QTemporaryDir>

namespace Studio::Pictures {

namespace {

const QSize pictureSize(1228, 719);

bool writeOne(const QString &hostDirectory, bool dark, const QString &file, QString &error)
{
    Appearance::apply(dark);
    const QTemporaryDir user;
    StudioSession session(hostDirectory, user.path());
    if (!session.start()) {
        error = session.errorText();
        return false;
    }
    session.window().show();
    CustomizeDialog *dialog = session.window().showCustomizeDialog();
    dialog->resize(pictureSize);
    QApplication::setActiveWindow(dialog);
    Gestures::wait(100);
    const EditorHands hands(dialog);
    hands.select({2, QStringLiteral("duplicateObject")});
    hands.press(Qt::Key_J, Qt::NoModifier);
    Gestures::wait(100);
    const QPixmap picture = dialog->grab();
    dialog->close();
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
    return writeOne(hostDirectory, false, directory.filePath(QStringLiteral("editor-light.png")),
                    error)
           && writeOne(hostDirectory, true, directory.filePath(QStringLiteral("editor-dark.png")),
                       error);
}

} // namespace Studio::Pictures
