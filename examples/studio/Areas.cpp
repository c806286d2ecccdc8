#include "Areas.h"

namespace Studio::Areas {

QStringList everywhere(const Host::HostCatalogue &catalogue)
{
    QStringList names;
    for (const Host::HostCatalogue::Context &context : catalogue.contexts) {
        if (context.everywhere)
            names.append(context.name);
    }
    return names;
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
        if (!context.everywhere && !docks().contains(context.name))
            names.append(context.name);
    }
    return names;
}

} // namespace Studio::Areas
