#pragma once

#include <QString>
#include <QStringList>
#include <QTemporaryDir>

/// What a run of hotkeyctl left behind.
struct Outcome {
    int code = -1;
    QString out;
    QString err;

    QStringList lines() const { return out.split(QLatin1Char('\n'), Qt::SkipEmptyParts); }
};

/// A small host in a temporary folder, and hotkeyctl run on it in this process.
///
///     Editing (1)  1-copy   Copy   Ctrl+C, Ctrl+Ins
///                  1-cut    Cut    Ctrl+X
///                  1-full   Full   F1 to F6
///                  1-plain  Plain
///     View (2)     2-copy   Copy   Ctrl+C
///
/// Its default set is locked and gives Cut F12 in place of Ctrl+X.
class ToolHost
{
public:
    ToolHost();

    QString path(const QString &name) const { return m_folder.filePath(name); }
    /// Writes a file below the folder, and the folders on the way to it; returns its path.
    QString write(const QString &name, const QByteArray &contents) const;
    QString writeSet(const QString &name, const QByteArray &steps, bool locked = false) const;
    static QByteArray read(const QString &path);
    /// The names and contents of all files below a folder, to see that nothing has changed.
    QStringList snapshot(const QString &name) const;

    /// Runs hotkeyctl with --host and --user in front of the arguments.
    Outcome run(const QStringList &arguments) const;
    /// Runs it with these arguments alone.
    static Outcome runBare(const QStringList &arguments);

private:
    QTemporaryDir m_folder;
};

/// Splits at blanks, to write command lines as they are typed.
QStringList words(const char *text);
