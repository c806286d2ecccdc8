#pragma once

#include <QtCore/qglobal.h>

/// Marks the classes and functions that the shared library exports; everything else stays hidden.
#if defined(UICUSTOMIZATIONS_LIBRARY)
#    define CUI_EXPORT Q_DECL_EXPORT
#else
#    define CUI_EXPORT Q_DECL_IMPORT
#endif
