#include "VelUtil.h"

#include <QCoreApplication>
#include <QLocale>
#include <QTranslator>

#include <algorithm>
#include <memory>
#include <vector>

namespace VelSDK {

namespace {

bool isScaleFactor(double factor)
{
    return factor >= 0.25 && factor <= 8.0;
}

double theScaleFactor = 0.0;

} // namespace

class QvelTranslationLoader::Private
{
public:
    Private(const QString &directory, const QString &baseName)
        : m_directory(directory), m_baseName(baseName)
    {
        all().push_back(this);
        if (QCoreApplication::instance() != nullptr)
            install(QLocale::system().bcp47Name());
    }

    ~Private() { all().erase(std::remove(all().begin(), all().end(), this), all().end()); }

    bool install(const QString &locale)
    {
        m_translator = std::make_unique<QTranslator>();
        return m_translator->load(m_baseName + QLatin1Char('_') + locale, m_directory)
               && QCoreApplication::installTranslator(m_translator.get());
    }

    static std::vector<Private *> &all()
    {
        static std::vector<Private *> loaders;
        return loaders;
    }

private:
    QString m_directory;
    QString m_baseName;
    std::unique_ptr<QTranslator> m_translator;
};

QvelTranslationLoader::QvelTranslationLoader(const QString &directory, const QString &baseName)
    : d(new Private(directory, baseName))
{
}

QvelTranslationLoader::~QvelTranslationLoader()
{
    delete d;
}

bool QvelTranslationLoader::setLocale(const QString &locale)
{
    bool found = false;
    for (Private *loader : Private::all())
        found = loader->install(locale) || found;
    return found;
}

double GetUIScaleFactor(int)
{
    if (isScaleFactor(theScaleFactor))
        return theScaleFactor;
    const double fromEnvironment = qEnvironmentVariable("VELUTIL_UI_SCALE").toDouble();
    return isScaleFactor(fromEnvironment) ? fromEnvironment : 1.0;
}

void SetUIScaleFactor(double factor)
{
    theScaleFactor = factor;
}

} // namespace VelSDK

namespace {

void installTranslations()
{
    VelSDK::QvelTranslationLoader::setLocale(QLocale::system().bcp47Name());
}

} // namespace

// Libraries linked to an executable are loaded before it makes its application object.
Q_COREAPP_STARTUP_FUNCTION(installTranslations)
