#include "ConflictDialogs.h"

#include "EditorText.h"
#include "KeyNames.h"
#include "QShortcutsList.h"

#include <QMessageBox>
#include <QPointer>

namespace CUI::ConflictDialogs {

namespace {

/// The button that was clicked; NoButton when the box was destroyed.
int ask(QWidget *window, QMessageBox::Icon icon, const QString &title, const QString &text,
        QMessageBox::StandardButtons buttons)
{
    const QPointer<QMessageBox> box = new QMessageBox(icon, title, text, buttons, window);
    box->setTextFormat(Qt::PlainText);
    const int button = box->exec();
    const bool isAlive = box != nullptr;
    delete box.data();
    return isAlive ? button : QMessageBox::NoButton;
}

} // namespace

void reportFullList(QWidget *window)
{
    ask(window, QMessageBox::Information,
        editorText(QT_TRANSLATE_NOOP("QvelShortcutsWidget", "Too Many Hotkeys")),
        editorText(QT_TRANSLATE_NOOP("QvelShortcutsWidget",
                                     "An action can have at most %1 hotkeys.\n\nRemove "
                                     "one of them before you assign another.\n"))
                .arg(QShortcutsList::ShortcutLimitPerAction),
        QMessageBox::Ok);
}

bool confirmReassignment(QWidget *window, const QString &hotkey, const QStringList &actionNames)
{
    constexpr int mostNames = 10;
    QStringList names = actionNames.mid(0, mostNames);
    if (names.size() < actionNames.size())
        names.append(QStringLiteral("…"));
    const QString question = editorText(QT_TRANSLATE_NOOP(
            "QvelShortcutsWidget", "%1 is already assigned to:\n\n%2\n\nReassign it?"));
    return ask(window, QMessageBox::Question,
               editorText(QT_TRANSLATE_NOOP("QvelShortcutsWidget", "Reassign Hotkey")),
               question.arg(KeyNames::keyOf(hotkey).toString(QKeySequence::NativeText),
                            names.join(QLatin1Char('\n'))),
               QMessageBox::Yes | QMessageBox::Cancel)
           == QMessageBox::Yes;
}

} // namespace CUI::ConflictDialogs
