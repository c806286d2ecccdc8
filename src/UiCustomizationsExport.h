#pragma once

#include <QtCore/qglobal.h>

/// Marks what the shared library UiCustomizationsCore exports; everything else stays hidden. Some
/// classes are exported for UiCustomizations alone: those whose headers are not installed.
#if defined(UICUSTOMIZATIONS_CORE_LIBRARY)
#    define CUI_CORE_EXPORT Q_DECL_EXPORT
#else
#    define CUI_CORE_EXPORT Q_DECL_IMPORT
#endif

/// Marks what the shared library UiCustomizations exports.
#if defined(UICUSTOMIZATIONS_LIBRARY)
#    define CUI_EXPORT Q_DECL_EXPORT
#else
#    define CUI_EXPORT Q_DECL_IMPORT
#endif
