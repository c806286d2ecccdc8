#include "ToolHost.h"

#include "Tool.h"

#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QFileInfo>
#include <QJsonDocument>
#include <QProcess>
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

QJsonArray Outcome::json() const
{
    return QJsonDocument::fromJson(out.toUtf8()).array();
}

QString Outcome::refusal(int status) const
{
    return code == status && out.isEmpty() ? err.mid(err.indexOf(QLatin1String("hotkeyctl: ")))
                                           : everything();
}

QString Outcome::everything() const
{
    return s("exit status %1\n%2%3").arg(QString::number(code), out, err);
}

ToolHost::ToolHost()
{
    write("host/host.json", catalogue);
    write("host/base/base.hsxb", baseFile);
    writeSet("host/presets/Default.hsx",
             step("Unassign", "Ctrl+X", "1-cut", "Cut") + step("Assign", "F12", "1-cut", "Cut"),
             true);
}

QString ToolHost::text(const char *text) const
{
    return s(text).replace(QLatin1Char('@'), m_folder.path());
}

QString ToolHost::write(const char *name, const QByteArray &contents) const
{
    QDir().mkpath(QFileInfo(path(name)).path());
    QFile file(path(name));
    if (!file.open(QIODevice::WriteOnly) || file.write(contents) != contents.size())
        qFatal("cannot write %s", qPrintable(file.fileName()));
    return file.fileName();
}

QString ToolHost::writeSet(const char *name, const QByteArray &steps, bool locked) const
{
    return write(name, QByteArray("<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
                                  "<VelHotkeyTransformations Locked=\"")
                               + (locked ? "true" : "false") + "\">" + steps
                               + "</VelHotkeyTransformations>\n");
}

void ToolHost::record(const char *fileName, const QString &set) const
{
    write(fileName, "{\"hotkeySet\": \"" + set.toUtf8() + "\"}");
}

QByteArray ToolHost::read(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

bool ToolHost::exists(const char *name) const
{
    return QFileInfo::exists(path(name));
}

QStringList ToolHost::snapshot(const char *name) const
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

QStringList ToolHost::arguments(const QString &line) const
{
    QStringList result = QProcess::splitCommand(line);
    for (QString &argument : result)
        argument = argument == QLatin1String("''") ? QString() : text(argument.toUtf8());
    return result;
}

Outcome ToolHost::run(const QString &line) const
{
    return runBare(arguments(s("--host @/host --user @/user ") + line));
}

Outcome ToolHost::runBare(const QStringList &arguments)
{
    Outcome outcome;
    QTextStream out(&outcome.out);
    QTextStream err(&outcome.err);
    outcome.code =
            static_cast<int>(HotkeyCtl::run(QStringList(s("hotkeyctl")) + arguments, out, err));
    return outcome;
}

QByteArray step(const char *kind, const char *shortcut, const char *id, const char *text)
{
    return s("<%1_Hotkey Shortcut=\"%2\" Description=\"%3\" Id=\"%4\"/>")
            .arg(s(kind), s(shortcut), s(text), s(id))
            .toUtf8();
}
