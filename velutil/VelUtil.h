#pragma once

#include <QtCore/qglobal.h>

#include <QString>

#if defined(VELUTIL_LIBRARY)
#    define VELUTIL_EXPORT Q_DECL_EXPORT
#else
#    define VELUTIL_EXPORT Q_DECL_IMPORT
#endif

/// Stand-in for the part of the host's utility library that UiCustomizations calls. A host links
/// its own library in place of this one.
namespace VelSDK {

/// Installs the translations of a library when the library is loaded.
///
/// Made to be a static object of that library. As soon as there is an application object, it
/// installs a file "<directory>/<baseName>_<locale>.qm", the locale being written as in "de-DE".
///
/// All loaders of a process show one language: the first of the user's languages in which one of
/// them has a file, or the one last set. A loader takes its file of that language and script for
/// the country if it has one, else that for another country: de-DE will do for Austria and pt-BR
/// for Portugal, but never zh-CN for Taiwan. Without a file the texts stay as they are in the
/// source, which is taken to be English; when no loader has the language, files in English are
/// taken. User-interface thread only.
class VELUTIL_EXPORT QvelTranslationLoader
{
    Q_DISABLE_COPY(QvelTranslationLoader)

public:
    /// @p directory is usually one of the resource system (":/translations").
    QvelTranslationLoader(const QString &directory, const QString &baseName);
    ~QvelTranslationLoader();

    /// Replaces what the loaders of the process have installed by the files of @p locale, written
    /// as in "de-DE"; "en" returns to the texts of the source, an empty one to the user's language.
    /// Widgets get a LanguageChange event. True when at least one loader has a file of that
    /// language; without an application object it is false, and the locale is shown once there is
    /// one.
    static bool setLocale(const QString &locale);

private:
    class Private;
    Private *d;
};

/// The factor by which the user interface of a screen is enlarged, -1 being the primary one; 0.25
/// to 8. It is the one last set, else that of the environment variable VELUTIL_UI_SCALE, else 1.
VELUTIL_EXPORT double GetUIScaleFactor(int screen);

/// Sets the factor of every screen. One outside the range returns to that of the environment.
VELUTIL_EXPORT void SetUIScaleFactor(double factor);

} // namespace VelSDK
