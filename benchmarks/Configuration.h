#pragma once

#include "Host.h"
#include "QvelMessageLog.h"

#include <QString>
#include <QTemporaryDir>

#include <map>
#include <utility>

namespace CUI {
class QvelShortcutManager;
}

namespace CUI::Bench {

/// Do the steps of a set take hotkeys from other actions?
enum class Steps { Displacing, Separate };

/// A base file with an entry for each action of a registry, four in ten of them with two hotkeys,
/// and a set of as many steps: three in ten remove a hotkey, the others add one. If displacing, as
/// many as remove one add a hotkey that another action of the context holds.
struct Configuration {
    int actionCount = 0;
    Steps steps = Steps::Separate;
    QString basePath;
    QString setPath;

    int hotkeysOfBase() const { return actionCount / 10 * 14; }
    int hotkeysOfSet() const
    {
        return hotkeysOfBase() + actionCount / 10 * (steps == Steps::Displacing ? 1 : 4);
    }

    /// What is wrong with a store that has loaded this; empty when nothing is.
    QString faultOf(const QvelShortcutManager &store) const;
};

/// Has a registry and a path manager installed while it lives, and keeps the generated files.
class Workload
{
public:
    Workload();
    ~Workload();
    Workload(const Workload &) = delete;
    Workload &operator=(const Workload &) = delete;

    /// Written at its first use; a thousand actions at least, and a multiple of a thousand.
    const Configuration &configuration(int actionCount, Steps steps);

    /// Makes the registry of that many actions the installed one.
    void select(int actionCount) { m_registry->select(actionCount); }

    /// Loads @p configuration into @p store, with its registry installed.
    void load(const Configuration &configuration, QvelShortcutManager &store);

    /// Makes these the directories of the shipped and of the user's sets.
    void listSetsIn(const QString &shipped, const QString &user)
    {
        m_paths->setPresetDirectories(shipped, user);
    }

    QString directory() const { return m_directory.path(); }

private:
    Configuration write(int actionCount, Steps steps) const;

    QTemporaryDir m_directory;
    Registry *m_registry; // the library owns the two
    Paths *m_paths;
    std::map<std::pair<int, Steps>, Configuration> m_configurations;
};

/// Silences the log: the text of a line would hide what the store costs.
class Silence
{
public:
    Silence() { setLevel(0); }
    ~Silence() { setLevel(QvelMessageLog::Warning); }
    Silence(const Silence &) = delete;
    Silence &operator=(const Silence &) = delete;

    static void setLevel(int level)
    {
        QvelMessageLog::getInstance().setMessageLogLevel(
                static_cast<QvelMessageLog::MessageType>(level));
    }
};

/// How many hotkeys all actions of @p store hold together.
int hotkeyCount(const QvelShortcutManager &store);

} // namespace CUI::Bench
