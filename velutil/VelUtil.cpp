#include "VelUtil.h"

#include <QCoreApplication>
#include <QDir>
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
        // Libraries linked to an executable are loaded before it makes its application object.
        static const bool followsApplications = [] {
            qAddPreRoutine([] { choose(); });
            return true;
        }();
        Q_UNUSED(followsApplications)
        choose();
    }

    ~Private() { all().erase(std::remove(all().begin(), all().end(), this), all().end()); }

    /// Shows the language that was set, else the user's.
    static bool choose()
    {
        if (QCoreApplication::instance() == nullptr)
            return false;
        if (!chosenLocale().isEmpty())
            return show(chosenLocale());
        for (const QString &locale : QLocale::system().uiLanguages()) {
            if (show(locale))
                return true;
            // Who prefers English to another language has it in the source.
            if (QLocale(locale).language() == QLocale::English)
                break;
        }
        return false;
    }

    static QString &chosenLocale()
    {
        static QString locale;
        return locale;
    }

private:
    static std::vector<Private *> &all()
    {
        static std::vector<Private *> loaders;
        return loaders;
    }

    static bool show(const QString &locale)
    {
        if (installAll(QLocale(locale)))
            return true;
        installAll(QLocale(QLocale::English));
        return false;
    }

    static bool installAll(const QLocale &locale)
    {
        bool found = false;
        for (Private *loader : all())
            found = loader->install(locale) || found;
        return found;
    }

    bool install(const QLocale &locale)
    {
        m_translator.reset(); // which uninstalls it
        const QString file = bestFile(locale);
        auto translator = std::make_unique<QTranslator>();
        if (file.isEmpty() || !translator->load(m_directory + QLatin1Char('/') + file)
            || !QCoreApplication::installTranslator(translator.get()))
            return false;
        m_translator = std::move(translator);
        return true;
    }

    QString bestFile(const QLocale &locale) const
    {
        const QString prefix = m_baseName + QLatin1Char('_');
        const QLatin1String suffix(".qm");
        const QStringList files =
                QDir(m_directory)
                        .entryList({prefix + QLatin1Char('*') + suffix}, QDir::Files, QDir::Name);
        QString best;
        for (const QString &file : files) {
            const QLocale offered(file.mid(prefix.size()).chopped(suffix.size()));
            // What is not a language counts as that of the C locale.
            if (offered.language() == QLocale::C || offered.language() != locale.language()
                || offered.script() != locale.script())
                continue;
            if (offered.country() == locale.country())
                return file;
            // The country that a language is called without naming one is next.
            if (best.isEmpty() || offered == QLocale(offered.language()))
                best = file;
        }
        return best;
    }

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
    Private::chosenLocale() = locale;
    return Private::choose();
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
