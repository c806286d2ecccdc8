#include "ToolHost.h"

#include "Tool.h"

#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QFileInfo>
#include <QTextStream>

namespace {

const QByteArray catalogue = R"({"defaultSet": "Default.hsx",
  "contexts": [{"id": 2, "name": "View"}, {"id": 1, "name": "Editing"}],
  "actions": [
    {"table": 2, "id": "copy", "name": "Copy", "context": 2, "category": "Views"},
    {"table": 1, "id": "cut", "name": "Cut", "context": 1, "category": "Edit",
     "accelerators": ["Ctrl+X"]},
    {"table": 1, "id": "copy", "name": "Copy", "context": 1, "category": "Edit",
     "accelerators": ["Ctrl+C"]},
    {"table": 1, "id": "full", "name": "Full", "context": 1, "category": "Edit"},
    {"table": 1, "id": "plain", "name": "Plain", "context": 1, "category": "Edit"}]})";

const QByteArray baseFile = R"(<?xml version="1.0" encoding="UTF-8"?>
<VelHotkeys>
    <Hotkey Shortcut="Ctrl+C, Ctrl+Ins" Description="Copy" Id="1-copy"/>
    <Hotkey Shortcut="F1, F2, F3, F4, F5, F6" Description="Full" Id="1-full"/>
    <Hotkey Shortcut="Ctrl+C" Description="Copy" Id="2-copy"/>
</VelHotkeys>
)";

} // namespace

ToolHost::ToolHost()
{
    write(QStringLiteral("host/host.json"), catalogue);
    write(QStringLiteral("host/base/base.hsxb"), baseFile);
    writeSet(QStringLiteral("host/presets/Default.hsx"),
             R"(<Unassign_Hotkey Shortcut="Ctrl+X" Description="Cut" Id="1-cut"/>
                <Assign_Hotkey Shortcut="F12" Description="Cut" Id="1-cut"/>)",
             true);
}

QString ToolHost::write(const QString &name, const QByteArray &contents) const
{
    QDir().mkpath(QFileInfo(path(name)).path());
    QFile file(path(name));
    if (!file.open(QIODevice::WriteOnly) || file.write(contents) != contents.size())
        qFatal("cannot write %s", qPrintable(file.fileName()));
    return file.fileName();
}

QString ToolHost::writeSet(const QString &name, const QByteArray &steps, bool locked) const
{
    return write(name, QByteArray("<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
                                  "<VelHotkeyTransformations Locked=\"")
                               + (locked ? "true" : "false") + "\">" + steps
                               + "</VelHotkeyTransformations>\n");
}

QByteArray ToolHost::read(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

QStringList ToolHost::snapshot(const QString &name) const
{
    QStringList files;
    QDirIterator walk(path(name), QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot,
                      QDirIterator::Subdirectories);
    while (walk.hasNext()) {
        const QString file = walk.next();
        files << file + QLatin1Char('=') + QString::fromUtf8(read(file));
    }
    files.sort();
    return files;
}

Outcome ToolHost::run(const QStringList &arguments) const
{
    return runBare(QStringList{QStringLiteral("--host"), path(QStringLiteral("host")),
                               QStringLiteral("--user"), path(QStringLiteral("user"))}
                   + arguments);
}

Outcome ToolHost::runBare(const QStringList &arguments)
{
    Outcome outcome;
    QTextStream out(&outcome.out);
    QTextStream err(&outcome.err);
    outcome.code = static_cast<int>(
            HotkeyCtl::run(QStringList(QStringLiteral("hotkeyctl")) + arguments, out, err));
    return outcome;
}

QStringList words(const char *text)
{
    return QString::fromUtf8(text).split(QLatin1Char(' '), Qt::SkipEmptyParts);
}
