#include "HostTranslations.h"

#include <VelUtil.h>

#include <QCoreApplication>
#include <QLibraryInfo>
#include <QLocale>
#include <QTranslator>

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

void installToolkitTranslations(const QLocale &locale)
{
    static QTranslator translator;
    if (translator.load(locale, QStringLiteral("qtbase"), QStringLiteral("_"),
                        QLibraryInfo::location(QLibraryInfo::TranslationsPath)))
        QCoreApplication::installTranslator(&translator);
}

} // namespace Host
