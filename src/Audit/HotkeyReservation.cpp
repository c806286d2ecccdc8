#include "HotkeyReservation.h"

#include "KeyNames.h"

#include <QCoreApplication>
#include <QKeySequence>
#include <QSysInfo>

#include <algorithm>

namespace CUI {

namespace {

using System = HotkeyReservation::System;

constexpr int shift = Qt::ShiftModifier;
constexpr int ctrl = Qt::ControlModifier;
constexpr int alt = Qt::AltModifier;
constexpr int meta = Qt::MetaModifier;

// Each is used by several rows, and has one translation.
constexpr const char closeWindow[] = QT_TRANSLATE_NOOP("CUI::HotkeyReservation", "Close window");
constexpr const char switchWindows[] =
        QT_TRANSLATE_NOOP("CUI::HotkeyReservation", "Switch windows");
constexpr const char windowMenu[] = QT_TRANSLATE_NOOP("CUI::HotkeyReservation", "Window menu");
constexpr const char arrangeWindow[] =
        QT_TRANSLATE_NOOP("CUI::HotkeyReservation", "Move or resize window");
constexpr const char hideWindow[] =
        QT_TRANSLATE_NOOP("CUI::HotkeyReservation", "Hide or minimize window");
constexpr const char allWindows[] = QT_TRANSLATE_NOOP("CUI::HotkeyReservation", "Show all windows");
constexpr const char showDesktop[] =
        QT_TRANSLATE_NOOP("CUI::HotkeyReservation", "Show the desktop");
constexpr const char switchDesktop[] =
        QT_TRANSLATE_NOOP("CUI::HotkeyReservation", "Switch workspace");
constexpr const char moveToDesktop[] =
        QT_TRANSLATE_NOOP("CUI::HotkeyReservation", "Move window to a workspace");
constexpr const char startProgram[] =
        QT_TRANSLATE_NOOP("CUI::HotkeyReservation", "Search or start a program");
constexpr const char terminal[] = QT_TRANSLATE_NOOP("CUI::HotkeyReservation", "Open a terminal");
constexpr const char endSession[] =
        QT_TRANSLATE_NOOP("CUI::HotkeyReservation", "Log out or lock the screen");
constexpr const char endProgram[] =
        QT_TRANSLATE_NOOP("CUI::HotkeyReservation", "Task manager or force quit");
constexpr const char screenshot[] =
        QT_TRANSLATE_NOOP("CUI::HotkeyReservation", "Picture of the screen");
constexpr const char console[] =
        QT_TRANSLATE_NOOP("CUI::HotkeyReservation", "Switch to a text console");
constexpr const char accessibility[] = QT_TRANSLATE_NOOP("CUI::HotkeyReservation", "Accessibility");
constexpr const char clipboard[] =
        QT_TRANSLATE_NOOP("CUI::HotkeyReservation", "Cut, copy or paste");
constexpr const char undoRedo[] = QT_TRANSLATE_NOOP("CUI::HotkeyReservation", "Undo or redo");
constexpr const char selectText[] = QT_TRANSLATE_NOOP("CUI::HotkeyReservation", "Select text");
constexpr const char deleteText[] = QT_TRANSLATE_NOOP("CUI::HotkeyReservation", "Delete text");
constexpr const char moveCursor[] =
        QT_TRANSLATE_NOOP("CUI::HotkeyReservation", "Move the text cursor");

constexpr const char hideDock[] =
        QT_TRANSLATE_NOOP("CUI::HotkeyReservation", "Show or hide the Dock");

/// Where users see a row and change it.
enum class Source {
    Settings, ///< the settings of the system, or the documentation of Qt
    Fixed ///< nowhere
};

/// A key, or the keys from it up to another one.
struct Row {
    System system;
    int first;
    const char *use;
    int last = 0;
    Source source = Source::Settings;
};

constexpr Row rows[] = {
        {System::Windows, alt | Qt::Key_F4, closeWindow, 0, Source::Fixed},
        {System::Windows, alt | Qt::Key_Tab, switchWindows, 0, Source::Fixed},
        {System::Windows, alt | shift | Qt::Key_Tab, switchWindows, 0, Source::Fixed},
        {System::Windows, ctrl | alt | Qt::Key_Tab, switchWindows, 0, Source::Fixed},
        {System::Windows, meta | Qt::Key_Tab, switchWindows, 0, Source::Fixed},
        {System::Windows, alt | Qt::Key_Escape, switchWindows, 0, Source::Fixed},
        {System::Windows, alt | Qt::Key_Space, windowMenu, 0, Source::Fixed},
        {System::Windows, ctrl | Qt::Key_Escape, startProgram, 0, Source::Fixed},
        {System::Windows, meta | Qt::Key_R, startProgram, 0, Source::Fixed},
        {System::Windows, meta | Qt::Key_S, startProgram, 0, Source::Fixed},
        {System::Windows, meta | Qt::Key_D, showDesktop, 0, Source::Fixed},
        {System::Windows, meta | Qt::Key_M, hideWindow, 0, Source::Fixed},
        {System::Windows, meta | Qt::Key_L, endSession, 0, Source::Fixed},
        {System::Windows, ctrl | alt | Qt::Key_Delete, endSession, 0, Source::Fixed},
        {System::Windows, ctrl | shift | Qt::Key_Escape, endProgram, 0, Source::Fixed},
        {System::Windows, Qt::Key_Print, screenshot, 0, Source::Fixed},
        {System::Windows, alt | Qt::Key_Print, screenshot, 0, Source::Fixed},
        {System::Windows, meta | shift | Qt::Key_S, screenshot, 0, Source::Fixed},

        {System::Kde, alt | Qt::Key_F4, closeWindow},
        {System::Kde, alt | Qt::Key_Tab, switchWindows},
        {System::Kde, alt | shift | Qt::Key_Tab, switchWindows},
        {System::Kde, alt | Qt::Key_QuoteLeft, switchWindows},
        {System::Kde, alt | Qt::Key_F3, windowMenu},
        {System::Kde, alt | Qt::Key_F2, startProgram},
        {System::Kde, alt | Qt::Key_Space, startProgram},
        {System::Kde, ctrl | Qt::Key_F7, allWindows},
        {System::Kde, ctrl | Qt::Key_F9, allWindows},
        {System::Kde, ctrl | Qt::Key_F10, allWindows},
        {System::Kde, ctrl | Qt::Key_F12, showDesktop},
        {System::Kde, meta | Qt::Key_D, showDesktop},
        {System::Kde, ctrl | Qt::Key_F1, switchDesktop, ctrl | Qt::Key_F4},
        {System::Kde, ctrl | alt | Qt::Key_T, terminal},
        {System::Kde, meta | Qt::Key_L, endSession},
        {System::Kde, ctrl | alt | Qt::Key_Delete, endSession},
        {System::Kde, Qt::Key_Print, screenshot},
        {System::Kde, shift | Qt::Key_Print, screenshot},
        {System::Kde, ctrl | alt | Qt::Key_F1, console, ctrl | alt | Qt::Key_F12, Source::Fixed},

        {System::Gnome, alt | Qt::Key_F4, closeWindow},
        {System::Gnome, alt | Qt::Key_Tab, switchWindows},
        {System::Gnome, alt | shift | Qt::Key_Tab, switchWindows},
        {System::Gnome, alt | Qt::Key_QuoteLeft, switchWindows},
        {System::Gnome, alt | Qt::Key_Escape, switchWindows},
        {System::Gnome, alt | Qt::Key_F6, switchWindows},
        {System::Gnome, ctrl | alt | Qt::Key_Tab, switchWindows},
        {System::Gnome, ctrl | alt | Qt::Key_Escape, switchWindows},
        {System::Gnome, alt | Qt::Key_Space, windowMenu},
        {System::Gnome, alt | Qt::Key_F5, arrangeWindow},
        {System::Gnome, alt | Qt::Key_F7, arrangeWindow},
        {System::Gnome, alt | Qt::Key_F8, arrangeWindow},
        {System::Gnome, alt | Qt::Key_F10, arrangeWindow},
        {System::Gnome, meta | Qt::Key_H, hideWindow},
        {System::Gnome, alt | Qt::Key_F2, startProgram},
        {System::Gnome, ctrl | alt | Qt::Key_Left, switchDesktop},
        {System::Gnome, ctrl | alt | Qt::Key_Right, switchDesktop},
        {System::Gnome, ctrl | alt | shift | Qt::Key_Left, moveToDesktop},
        {System::Gnome, ctrl | alt | shift | Qt::Key_Right, moveToDesktop},
        {System::Gnome, meta | Qt::Key_L, endSession},
        {System::Gnome, ctrl | alt | Qt::Key_Delete, endSession},
        {System::Gnome, Qt::Key_Print, screenshot},
        {System::Gnome, shift | Qt::Key_Print, screenshot},
        {System::Gnome, alt | Qt::Key_Print, screenshot},
        {System::Gnome, ctrl | alt | shift | Qt::Key_R, screenshot},
        {System::Gnome, ctrl | alt | Qt::Key_F1, console, ctrl | alt | Qt::Key_F12, Source::Fixed},

        {System::MacOs, ctrl | Qt::Key_Tab, switchWindows, 0, Source::Fixed},
        {System::MacOs, ctrl | shift | Qt::Key_Tab, switchWindows, 0, Source::Fixed},
        {System::MacOs, ctrl | Qt::Key_QuoteLeft, switchWindows},
        {System::MacOs, ctrl | Qt::Key_H, hideWindow, 0, Source::Fixed},
        {System::MacOs, ctrl | alt | Qt::Key_H, hideWindow, 0, Source::Fixed},
        {System::MacOs, ctrl | Qt::Key_M, hideWindow, 0, Source::Fixed},
        {System::MacOs, meta | Qt::Key_Up, allWindows},
        {System::MacOs, meta | Qt::Key_Down, allWindows},
        {System::MacOs, Qt::Key_F11, showDesktop},
        {System::MacOs, ctrl | alt | Qt::Key_D, hideDock},
        {System::MacOs, meta | Qt::Key_Left, switchDesktop},
        {System::MacOs, meta | Qt::Key_Right, switchDesktop},
        {System::MacOs, ctrl | Qt::Key_Space, startProgram},
        {System::MacOs, ctrl | alt | Qt::Key_Space, startProgram},
        {System::MacOs, ctrl | shift | Qt::Key_Q, endSession, 0, Source::Fixed},
        {System::MacOs, ctrl | meta | Qt::Key_Q, endSession, 0, Source::Fixed},
        {System::MacOs, ctrl | alt | Qt::Key_Escape, endProgram, 0, Source::Fixed},
        {System::MacOs, ctrl | shift | Qt::Key_3, screenshot, ctrl | shift | Qt::Key_5},
        {System::MacOs, ctrl | Qt::Key_F5, accessibility},
        {System::MacOs, ctrl | alt | Qt::Key_F5, accessibility},

        {System::TextFields, ctrl | Qt::Key_C, clipboard},
        {System::TextFields, ctrl | Qt::Key_X, clipboard},
        {System::TextFields, ctrl | Qt::Key_V, clipboard},
        {System::TextFields, ctrl | Qt::Key_Insert, clipboard},
        {System::TextFields, shift | Qt::Key_Insert, clipboard},
        {System::TextFields, shift | Qt::Key_Delete, clipboard},
        {System::TextFields, ctrl | Qt::Key_Z, undoRedo},
        {System::TextFields, ctrl | shift | Qt::Key_Z, undoRedo},
        {System::TextFields, ctrl | Qt::Key_Y, undoRedo},
        {System::TextFields, ctrl | Qt::Key_A, selectText},
        {System::TextFields, shift | Qt::Key_Home, selectText, shift | Qt::Key_Down},
        {System::TextFields, ctrl | shift | Qt::Key_Home, selectText, ctrl | shift | Qt::Key_Left},
        {System::TextFields, ctrl | shift | Qt::Key_Right, selectText},
        {System::TextFields, Qt::Key_Delete, deleteText},
        {System::TextFields, Qt::Key_Backspace, deleteText},
        {System::TextFields, Qt::Key_Home, moveCursor, Qt::Key_Down},
        {System::TextFields, ctrl | Qt::Key_Home, moveCursor, ctrl | Qt::Key_Left},
        {System::TextFields, ctrl | Qt::Key_Right, moveCursor},
};

QString translated(const char *sourceText)
{
    return QCoreApplication::translate("CUI::HotkeyReservation", sourceText);
}

QString sourceOf(const Row &row)
{
    if (row.source == Source::Fixed) {
        return translated(QT_TRANSLATE_NOOP("CUI::HotkeyReservation", "%1: built into the system"))
                .arg(HotkeyReservation::nameOf(row.system));
    }
    switch (row.system) {
    case System::Kde:
        return translated(QT_TRANSLATE_NOOP("CUI::HotkeyReservation",
                                            "KDE: System Settings > Keyboard > Shortcuts"));
    case System::Gnome:
        return translated(
                QT_TRANSLATE_NOOP("CUI::HotkeyReservation", "GNOME: Settings > Keyboard"));
    case System::MacOs:
        return translated(
                QT_TRANSLATE_NOOP("CUI::HotkeyReservation",
                                  "macOS: System Settings > Keyboard > Keyboard Shortcuts"));
    case System::Windows:
    case System::TextFields:
        break;
    }
    return translated(QT_TRANSLATE_NOOP("CUI::HotkeyReservation", "Text fields of Qt"));
}

HotkeyReservation reservation(const Row &row, int combination)
{
    return {row.system, QKeySequence(combination).toString(QKeySequence::PortableText),
            translated(row.use), sourceOf(row)};
}

} // namespace

std::vector<HotkeyReservation> HotkeyReservation::all()
{
    std::vector<HotkeyReservation> all;
    for (const Row &row : rows) {
        for (int combination = row.first; combination <= std::max(row.first, row.last);
             ++combination)
            all.push_back(reservation(row, combination));
    }
    return all;
}

std::vector<HotkeyReservation> HotkeyReservation::of(const QString &hotkey)
{
    std::vector<HotkeyReservation> found;
    const QKeySequence key = KeyNames::keyOf(hotkey);
    if (key.count() != 1)
        return found;
    for (const Row &row : rows) {
        if (key[0] >= row.first && key[0] <= std::max(row.first, row.last))
            found.push_back(reservation(row, key[0]));
    }
    return found;
}

std::vector<System> HotkeyReservation::systemsHere()
{
    const QString kernel = QSysInfo::kernelType();
    if (kernel == QLatin1String("winnt"))
        return {System::Windows, System::TextFields};
    if (kernel == QLatin1String("darwin"))
        return {System::MacOs, System::TextFields};
    return {System::Kde, System::Gnome, System::TextFields};
}

QString HotkeyReservation::nameOf(System system)
{
    switch (system) {
    case System::Windows:
        return QStringLiteral("Windows");
    case System::Kde:
        return QStringLiteral("KDE");
    case System::Gnome:
        return QStringLiteral("GNOME");
    case System::MacOs:
        return QStringLiteral("macOS");
    case System::TextFields:
        break;
    }
    return translated(QT_TRANSLATE_NOOP("CUI::HotkeyReservation", "Text fields"));
}

} // namespace CUI
