#include "SampleHost.h"
#include "Tool.h"

#include <QCoreApplication>
#include <QTextStream>

#include <cstdio>

int main(int argc, char **argv)
{
    QCoreApplication application(argc, argv);
    QCoreApplication::setApplicationName(Host::SampleHost::applicationName());
    QTextStream out(stdout);
    QTextStream err(stderr);
    out.setCodec("UTF-8");
    err.setCodec("UTF-8");
    return static_cast<int>(HotkeyCtl::run(QCoreApplication::arguments(), out, err));
}
