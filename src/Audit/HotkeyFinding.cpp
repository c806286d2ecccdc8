#include "HotkeyFinding.h"

#include <QCoreApplication>

#include <array>

namespace CUI {

namespace {

using Kind = HotkeyFinding::Kind;
using Severity = HotkeyFinding::Severity;

struct KindRow {
    Severity severity;
    const char *key;
    const char *name;
};

// In the order of the kinds.
constexpr std::array<KindRow, 11> kinds{{
        {Severity::Error, "held-twice", QT_TRANSLATE_NOOP("CUI::HotkeyFinding", "Held twice")},
        {Severity::Error, "ambiguous", QT_TRANSLATE_NOOP("CUI::HotkeyFinding", "Ambiguous")},
        {Severity::Error, "names-no-key", QT_TRANSLATE_NOOP("CUI::HotkeyFinding", "Names no key")},
        {Severity::Warning, "not-typeable",
         QT_TRANSLATE_NOOP("CUI::HotkeyFinding", "Not on the keyboard")},
        {Severity::Warning, "shadowed", QT_TRANSLATE_NOOP("CUI::HotkeyFinding", "Shadowed")},
        {Severity::Warning, "taken-by-desktop",
         QT_TRANSLATE_NOOP("CUI::HotkeyFinding", "Taken by the desktop")},
        {Severity::Warning, "hotkey-lost", QT_TRANSLATE_NOOP("CUI::HotkeyFinding", "Hotkey lost")},
        {Severity::Note, "taken-by-text-fields",
         QT_TRANSLATE_NOOP("CUI::HotkeyFinding", "Taken by text fields")},
        {Severity::Note, "differs-by-keypad",
         QT_TRANSLATE_NOOP("CUI::HotkeyFinding", "Differs by keypad only")},
        {Severity::Note, "differs-by-shift",
         QT_TRANSLATE_NOOP("CUI::HotkeyFinding", "Differs by Shift only")},
        {Severity::Note, "near-limit",
         QT_TRANSLATE_NOOP("CUI::HotkeyFinding", "Close to the limit")},
}};

struct SeverityRow {
    const char *key;
    const char *name;
};

// In the order of the severities.
constexpr std::array<SeverityRow, 3> severities{{
        {"note", QT_TRANSLATE_NOOP("CUI::HotkeyFinding", "Note")},
        {"warning", QT_TRANSLATE_NOOP("CUI::HotkeyFinding", "Warning")},
        {"error", QT_TRANSLATE_NOOP("CUI::HotkeyFinding", "Error")},
}};

const KindRow &rowOf(Kind kind)
{
    return kinds.at(static_cast<std::size_t>(kind));
}

const SeverityRow &rowOf(Severity severity)
{
    return severities.at(static_cast<std::size_t>(severity));
}

QString translated(const char *sourceText)
{
    return QCoreApplication::translate("CUI::HotkeyFinding", sourceText);
}

} // namespace

Severity HotkeyFinding::severityOf(Kind kind)
{
    return rowOf(kind).severity;
}

const char *HotkeyFinding::keyOf(Kind kind)
{
    return rowOf(kind).key;
}

const char *HotkeyFinding::keyOf(Severity severity)
{
    return rowOf(severity).key;
}

QString HotkeyFinding::nameOf(Kind kind)
{
    return translated(rowOf(kind).name);
}

QString HotkeyFinding::nameOf(Severity severity)
{
    return translated(rowOf(severity).name);
}

} // namespace CUI
