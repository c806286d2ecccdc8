#include "Appearance.h"
#include "HostTranslations.h"
#include "MainWindow.h"
#include "Pictures.h"
#include "SampleHost.h"
#include "StudioSession.h"
#include "Tour.h"

#include <VelUtil.h>

#include <QApplication>
#include <QCommandLineParser>
#include <QDir>
#include <QFileInfo>
#include <QLocale>
#include <QScreen>
#include <QStyle>
#include <QTextStream>

#include <cstdio>

namespace {

struct Options {
    QString host;
    QString user;
    QString locale;
    QString tour;
    QString legacyFile;
    QString screenshots;
    bool dark = false;
};

Options readOptions()
{
    QCommandLineParser parser;
    parser.setApplicationDescription(
            QStringLiteral("A small 3D application whose keyboard its users make their own."));
    parser.addHelpOption();
    const auto add = [&parser](const char *name, const char *what, const char *value,
                               const QString &byDefault = QString()) {
        parser.addOption({QString::fromLatin1(name), QString::fromLatin1(what),
                          QString::fromLatin1(value), byDefault});
    };
    add("host", "The directory of the host (host.json, base, presets, legacy).", "DIR",
        Host::SampleHost::shippedDirectory());
    add("user", "The directory of the user's hotkey sets.", "DIR");
    add("locale", "The language, written as in de-DE.", "LOCALE");
    add("tour", "Uses the application step by step, in English, with a picture of each in DIR.",
        "DIR");
    add("legacy", "The keyboard file that the tour imports.", "FILE");
    add("screenshots", "Writes the pictures of the documentation into DIR.", "DIR");
    parser.addOption({QStringLiteral("dark"), QStringLiteral("Dark colours.")});
    parser.process(QCoreApplication::arguments());
    Options options;
    options.host = parser.value(QStringLiteral("host"));
    options.user = parser.value(QStringLiteral("user"));
    options.locale = parser.value(QStringLiteral("locale"));
    options.tour = parser.value(QStringLiteral("tour"));
    options.legacyFile = parser.value(QStringLiteral("legacy"));
    options.screenshots = parser.value(QStringLiteral("screenshots"));
    options.dark = parser.isSet(QStringLiteral("dark"));
    return options;
}

int fail(const QString &reason)
{
    QTextStream(stderr) << "studio: " << reason << Qt::endl;
    return 1;
}

int runTour(const Options &options)
{
    if (options.legacyFile.isEmpty())
        return fail(QStringLiteral("--tour needs --legacy FILE"));
    QTextStream out(stdout);
    out.setCodec("UTF-8");
    QString user = options.user;
    if (user.isEmpty()) {
        user = options.tour + QStringLiteral("/user");
        QDir(user).removeRecursively(); // what an earlier tour has left
    }
    const QString legacyFile = QFileInfo(options.legacyFile).absoluteFilePath();
    Studio::Tour tour({options.host, user, options.tour, legacyFile}, out);
    return tour.run() ? 0 : 1;
}

int runApplication(const Options &options)
{
    const QString user =
            options.user.isEmpty() ? Host::SampleHost::defaultUserDirectory() : options.user;
    Studio::StudioSession session(options.host, user);
    if (!session.start())
        return fail(session.errorText());
    QWidget &window = session.window();
    const QSize titleBar(0, window.style()->pixelMetric(QStyle::PM_TitleBarHeight));
    window.resize(window.size().boundedTo(window.screen()->availableSize() - titleBar));
    window.show();
    return QApplication::exec();
}

} // namespace

int main(int argc, char **argv)
{
    QCoreApplication::setAttribute(Qt::AA_UseHighDpiPixmaps);
    QApplication application(argc, argv);
    QCoreApplication::setApplicationName(Host::SampleHost::applicationName());
    QGuiApplication::setDesktopFileName(QStringLiteral("studio"));
    const Options options = readOptions();
    const bool isScripted = !options.tour.isEmpty() || !options.screenshots.isEmpty();
    // A dialog of the desktop can neither be driven nor pictured.
    QCoreApplication::setAttribute(Qt::AA_DontUseNativeDialogs, isScripted);
    Host::installTranslations();
    // The tour looks for English texts; pictures are in English unless another language is asked
    // for.
    const bool isEnglish = !options.tour.isEmpty() || (isScripted && options.locale.isEmpty());
    const QString locale = isEnglish ? QStringLiteral("en") : options.locale;
    // Buttons in a language that nothing else is in would only confuse.
    if (VelSDK::QvelTranslationLoader::setLocale(locale))
        Host::installToolkitTranslations(locale.isEmpty() ? QLocale::system() : QLocale(locale));
    Studio::Appearance::apply(options.dark);
    if (!options.screenshots.isEmpty()) {
        QString error;
        return Studio::Pictures::write(options.host, options.screenshots, error) ? 0 : fail(error);
    }
    return options.tour.isEmpty() ? runApplication(options) : runTour(options);
}
