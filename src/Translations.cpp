#include <VelUtil.h>

#include <QtCore/qglobal.h>

namespace {

// Shipped sets are named in their own files, which the tool that collects the texts does not read.
[[maybe_unused]] constexpr const char *shippedSetNames[] = {
        QT_TRANSLATE_NOOP("CUI", "Velstudio Default Keyset"),
        QT_TRANSLATE_NOOP("CUI", "Zarvi Default Keyset"),
};

} // namespace

// Outside of any namespace, since the name of the resource is declared where it is used.
static QString translationDirectory()
{
    Q_INIT_RESOURCE(UiCustomizationsTranslations);
    return QStringLiteral(":/__qvel_translations");
}

namespace CUI {

namespace {

// Installs the library's translations when the library is loaded.
const VelSDK::QvelTranslationLoader translations(translationDirectory(),
                                                 QStringLiteral("UiCustomizations"));

} // namespace

} // namespace CUI
