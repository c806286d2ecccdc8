#include "HostTranslations.h"

#include <VelUtil.h>

// Outside of any namespace, since the name of the resource is declared where it is used.
static QString translationDirectory()
{
    Q_INIT_RESOURCE(HostTranslations);
    return QStringLiteral(":/__host_translations");
}

namespace Host {

void installTranslations()
{
    static const VelSDK::QvelTranslationLoader translations(translationDirectory(),
                                                            QStringLiteral("UiCustomizations"));
}

} // namespace Host
