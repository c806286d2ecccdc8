#pragma once

#include "Text.h"

#include <QJsonArray>
#include <QStringList>
#include <QTemporaryDir>

/// What a run of hotkeyctl left behind.
struct Outcome {
    int code = -1;
    QString out;
    QString err;

    QStringList lines() const { return out.split(QLatin1Char('\n'), Qt::SkipEmptyParts); }
    QJsonArray json() const;
    /// The output of a run that went well; otherwise everything, with the exit status.
    QString done() const { return code == 0 ? out : everything(); }
    /// The complaint, from "hotkeyctl: " on, of a run that ended with that exit status and printed
    /// nothing else; otherwise everything.
    QString refusal(int status = 1) const;
    QString everything() const;
};

/// A small host in a temporary folder, and hotkeyctl run on it in this process.
///
///     Editing (1)  1-copy   Copy   Ctrl+C, Ctrl+Ins
///                  1-cut    Cut    Ctrl+X
///                  1-full   Full   F1 to F6
///                  1-plain  Plain
///     View (2)     2-copy   Copy   Ctrl+C
///
/// Its default set is locked and gives Cut F12 in place of Ctrl+X. In command lines and texts '@'
/// stands for the folder, and '' for an empty argument.
class ToolHost
{
public:
    ToolHost();

    QString path(const QString &name) const { return m_folder.filePath(name); }
    QString path(const char *name) const { return path(s(name)); }
    QString text(const char *text) const;
    /// Writes a file below the folder, and the folders on the way to it; returns its path.
    QString write(const char *name, const QByteArray &contents) const;
    QString writeSet(const char *name, const QByteArray &steps, bool locked = false) const;
    /// Writes the record of the current set.
    void record(const char *fileName, const QString &set) const;
    static QByteArray read(const QString &path);
    bool exists(const char *name) const;
    /// The names and contents of all files below a folder, to see that nothing has changed.
    QStringList snapshot(const char *name) const;

    QStringList arguments(const QString &line) const;
    /// Runs hotkeyctl with --host and --user in front of the arguments.
    Outcome run(const QString &line) const;
    Outcome run(const char *line) const { return run(s(line)); }
    /// Runs it with these arguments alone.
    static Outcome runBare(const QStringList &arguments);

private:
    QTemporaryDir m_folder;
};

/// A step of a set, to Assign or Unassign a hotkey.
QByteArray step(const char *kind, const char *shortcut, const char *id, const char *text = "");
