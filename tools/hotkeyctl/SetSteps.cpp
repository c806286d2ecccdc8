#include "SetSteps.h"

#include "FileFault.h"
#include "Session.h"
#include "SetSearch.h"
#include "TextOutput.h"

#include <UiCustomizations/QvelShortcutManager.h>

namespace HotkeyCtl {

std::optional<std::vector<CUI::ShortcutTransformation>> readSteps(const QString &path)
{
    std::vector<CUI::ShortcutTransformation> steps;
    if (!CUI::QvelShortcutManager::readTransforms(path, steps))
        return {};
    return steps;
}

std::optional<std::vector<CUI::ShortcutTransformation>> readNamedSet(const QString &text,
                                                                     Session &session)
{
    const std::optional<QString> path = findSet(session, text);
    if (!path)
        return {};
    const QString fault =
            faultOf(*path, &CUI::QvelShortcutManager::validateShortcutsTransforms, session);
    if (!fault.isNull()) {
        session.problem(QStringLiteral("%1: %2").arg(*path, fault));
        return {};
    }
    const auto steps = readSteps(*path);
    if (!steps)
        session.problem(QStringLiteral("%1: the hotkey set cannot be read").arg(*path));
    return steps;
}

QString jsonMembers(const CUI::ShortcutTransformation &step)
{
    const bool assigns = step.kind() == CUI::ShortcutTransformation::Assign;
    return QStringLiteral("\"step\": %1, \"hotkey\": %2, \"id\": %3")
            .arg(assigns ? QStringLiteral("\"assign\"") : QStringLiteral("\"unassign\""),
                 jsonString(step.shortcut()), jsonString(step.actionId().toString()));
}

QString stepLine(const CUI::ShortcutTransformation &step, const QString &action)
{
    const QString description =
            step.description().trimmed().isEmpty() ? action : step.description();
    return printable(
            CUI::ShortcutTransformation(step.kind(), step.actionId(), step.shortcut(), description)
                    .toString());
}

} // namespace HotkeyCtl
