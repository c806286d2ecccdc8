#include "Areas.h"

namespace Studio::Areas {

QStringList everywhere()
{
    return {QStringLiteral("File and Edit"), QStringLiteral("Windows and Workspaces")};
}

QStringList docks()
{
    return {QStringLiteral("Viewport"),     QStringLiteral("UV Editor"),
            QStringLiteral("Node Graph"),   QStringLiteral("Timeline"),
            QStringLiteral("Graph Editor"), QStringLiteral("Outliner"),
            QStringLiteral("Rendering")};
}

QStringList modes(const Host::HostCatalogue &catalogue)
{
    QStringList names;
    for (const Host::HostCatalogue::Context &context : catalogue.contexts) {
        if (!everywhere().contains(context.name) && !docks().contains(context.name))
            names.append(context.name);
    }
    return names;
}

} // namespace Studio::Areas
