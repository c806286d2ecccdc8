#include "SampleHost.h"
#include "Tool.h"

#include <QGuiApplication>
#include <QTextStream>

#include <algorithm>
#include <cstdio>
#include <memory>

namespace {

/// Painting a sheet takes fonts, which only this kind of application has; the others start faster
/// without. No window is ever shown.
std::unique_ptr<QCoreApplication> makeApplication(int &argc, char **argv)
{
    const bool paints = std::any_of(argv, argv + argc, [](const char *argument) {
        return qstrcmp(argument, "sheet") == 0;
    });
    if (!paints)
        return std::make_unique<QCoreApplication>(argc, argv);
    qputenv("QT_QPA_PLATFORM", "offscreen");
    return std::make_unique<QGuiApplication>(argc, argv);
}

} // namespace

int main(int argc, char **argv)
{
    const std::unique_ptr<QCoreApplication> application = makeApplication(argc, argv);
    QCoreApplication::setApplicationName(Host::SampleHost::applicationName());
    QTextStream out(stdout);
    QTextStream err(stderr);
    out.setCodec("UTF-8");
    err.setCodec("UTF-8");
    return static_cast<int>(HotkeyCtl::run(QCoreApplication::arguments(), out, err));
}
