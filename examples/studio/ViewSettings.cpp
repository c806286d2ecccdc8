#include "ViewSettings.h"

namespace Studio {

QStringList ViewSettings::pivotNames()
{
    return {QStringLiteral("Median"), QStringLiteral("Individual"), QStringLiteral("Active"),
            QStringLiteral("3D Cursor")};
}

QStringList ViewSettings::orientationNames()
{
    return {QStringLiteral("Global"), QStringLiteral("Local"), QStringLiteral("View")};
}

QStringList ViewSettings::falloffNames()
{
    return {QStringLiteral("Smooth"), QStringLiteral("Sphere"), QStringLiteral("Linear"),
            QStringLiteral("Sharp")};
}

QStringList ViewSettings::snapTargetNames()
{
    return {QStringLiteral("Increment"), QStringLiteral("Vertex"), QStringLiteral("Face")};
}

} // namespace Studio
