#include <VelUtil.h>

namespace CUI {

namespace {

// Installs the library's translations when the library is loaded.
const VelSDK::QvelTranslationLoader translations(QStringLiteral(":/__qvel_translations"),
                                                 QStringLiteral("UiCustomizations"));

} // namespace

} // namespace CUI
