#include "ActionRows.h"

#include "Session.h"
#include "TextOutput.h"

#include <algorithm>
#include <tuple>

namespace HotkeyCtl {

namespace {

bool isBefore(const ActionRow &a, const ActionRow &b)
{
    return std::tie(a.context, a.contextId, a.action, a.id)
           < std::tie(b.context, b.contextId, b.action, b.id);
}

} // namespace

std::vector<ActionRow> actionRows(const Session &session,
                                  const std::vector<Host::HostCatalogue::Context> &contexts)
{
    std::vector<ActionRow> rows;
    for (const Host::HostCatalogue::Action &action : session.catalogue().actions) {
        const auto context = std::find_if(contexts.begin(), contexts.end(),
                                          [&action](const Host::HostCatalogue::Context &c) {
                                              return c.id == action.contextId;
                                          });
        if (context == contexts.end())
            continue;
        rows.push_back(
                {action.contextId, context->name, action.category, action.name, action.identifier});
    }
    std::sort(rows.begin(), rows.end(), isBefore);
    return rows;
}

QString jsonMembers(const ActionRow &row)
{
    return QStringLiteral("\"contextId\": %1, \"context\": %2, \"category\": %3, \"action\": %4, "
                          "\"id\": %5")
            .arg(QString::number(row.contextId), jsonString(row.context), jsonString(row.category),
                 jsonString(row.action), jsonString(row.id.toString()));
}

bool differ(QStringList a, QStringList b)
{
    a.sort();
    b.sort();
    return a != b;
}

QString joined(const QStringList &hotkeys)
{
    return hotkeys.join(QLatin1String(", "));
}

} // namespace HotkeyCtl
