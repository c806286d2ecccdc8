#include "ConflictDialogs.h"

#include "EditorText.h"
#include "KeyNames.h"
#include "QShortcutsList.h"

#include <QAbstractButton>
#include <QMap>
#include <QMessageBox>
#include <QPointer>

namespace CUI::ConflictDialogs {

namespace {

/// The button that was clicked; NoButton when the box was destroyed. @p texts replaces the texts of
/// buttons.
int ask(QWidget *window, QMessageBox::Icon icon, const QString &title, const QString &text,
        QMessageBox::StandardButtons buttons,
        const QMap<QMessageBox::StandardButton, QString> &texts = {})
{
    const QPointer<QMessageBox> box = new QMessageBox(icon, title, text, buttons, window);
    box->setTextFormat(Qt::PlainText);
    for (auto entry = texts.begin(); entry != texts.end(); ++entry)
        box->button(entry.key())->setText(entry.value());
    const int button = box->exec();
    const bool isAlive = box != nullptr;
    delete box.data();
    return isAlive ? button : QMessageBox::NoButton;
}

/// The first of the lines, so that a box stays on the screen.
QString shortened(const QStringList &lines)
{
    constexpr int mostLines = 10;
    QStringList shown = lines.mid(0, mostLines);
    if (shown.size() < lines.size())
        shown.append(QStringLiteral("…"));
    return shown.join(QLatin1Char('\n'));
}

QString nativeText(const QString &hotkey)
{
    return KeyNames::keyOf(hotkey).toString(QKeySequence::NativeText);
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
    const QString question = editorText(QT_TRANSLATE_NOOP(
            "QvelShortcutsWidget", "%1 is already assigned to:\n\n%2\n\nReassign it?"));
    return ask(window, QMessageBox::Question,
               editorText(QT_TRANSLATE_NOOP("QvelShortcutsWidget", "Reassign Hotkey")),
               question.arg(nativeText(hotkey), shortened(actionNames)),
               QMessageBox::Yes | QMessageBox::Cancel)
           == QMessageBox::Yes;
}

std::optional<HotkeyDefaults::Held> askAboutHeldDefaults(QWidget *window,
                                                         const QStringList &holders)
{
    const QString question = editorText(
            QT_TRANSLATE_NOOP("QvelShortcutsWidget", "Other actions have these default hotkeys "
                                                     "now:\n\n%1\n\nTake them back?"));
    const int button = ask(
            window, QMessageBox::Question,
            editorText(QT_TRANSLATE_NOOP("QvelShortcutsWidget", "Reset to Default")),
            question.arg(shortened(holders)),
            QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel,
            {{QMessageBox::Yes, editorText(QT_TRANSLATE_NOOP("QvelShortcutsWidget", "Take Back"))},
             {QMessageBox::No, editorText(QT_TRANSLATE_NOOP("QvelShortcutsWidget", "Leave"))}});
    if (button == QMessageBox::Yes)
        return HotkeyDefaults::Held::Take;
    if (button == QMessageBox::No)
        return HotkeyDefaults::Held::Leave;
    return std::nullopt;
}

QString holderLine(const QString &hotkey, const QString &actionName)
{
    return QStringLiteral("%1: %2").arg(nativeText(hotkey), actionName);
}

} // namespace CUI::ConflictDialogs
