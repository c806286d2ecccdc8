#include "Session.h"

#include "SampleHost.h"
#include "SetSearch.h"
#include "TextOutput.h"

#include <QFile>
#include <QFileInfo>
#include <QTextStream>

#include <algorithm>

namespace HotkeyCtl {

namespace {

QStringList hotkeysIn(const std::unordered_map<CUI::ActionIdentifier, CUI::QShortcutsList> &map,
                      const CUI::ActionIdentifier &identifier)
{
    const auto found = map.find(identifier);
    if (found == map.end())
        return {};
    return found->second;
}

} // namespace

Session::Session(const SessionOptions &options, QTextStream &out, QTextStream &err)
    : m_options(options), m_out(out), m_err(err), m_log(err, options.logLevel)
{
    m_store.setKeepsRefusedTransforms(true);
}

Session::~Session() = default;

ExitCode Session::problem(const QString &text) const
{
    m_err << "hotkeyctl: " << printable(text) << '\n';
    return ExitCode::Problem;
}

ExitCode Session::wrongUsage(const QString &text) const
{
    m_err << "hotkeyctl: " << printable(text) << '\n'
          << "Try 'hotkeyctl " << m_options.command << " --help'.\n";
    return ExitCode::WrongUsage;
}

// Loading

Session::Loading Session::load()
{
    if (!open())
        return Loading::Failed;
    const bool hasBase = loadBaseFiles();
    const bool hasSet = loadChosenSet();
    if (!hasSet && m_options.set)
        return Loading::Failed;
    return hasBase && hasSet ? Loading::Complete : Loading::Incomplete;
}

bool Session::loadBase()
{
    return open() && loadBaseFiles();
}

bool Session::open(Host::HostPathManager::Record record)
{
    m_host = std::make_unique<Host::SampleHost>(m_options.hostDirectory, m_options.userDirectory,
                                                record);
    if (m_host->load())
        return true;
    problem(m_host->errorText());
    return false;
}

void Session::close()
{
    m_host.reset();
}

bool Session::loadBaseFiles()
{
    bool complete = true;
    for (const QString &path : paths().getBaseHotkeyFiles()) {
        QFile file(path);
        if (!file.open(QIODevice::ReadOnly)) {
            problem(QStringLiteral("%1: cannot be opened: %2").arg(path, file.errorString()));
            complete = false;
        }
    }
    const int errorsBefore = m_log.errorCount();
    // The current set is loaded separately: only then is it known whether that succeeded.
    const QString currentSet = paths().getCurrentConfigurationFile(CUI::ConfigType::HotkeySet);
    m_store.loadShortcutConfiguration(QString());
    paths().setCurrentConfigurationFile(CUI::ConfigType::HotkeySet, currentSet);
    if (m_log.errorCount() > errorsBefore) {
        problem(QStringLiteral("a base file cannot be loaded: %1")
                        .arg(m_log.lastError().simplified()));
        complete = false;
    }
    return complete;
}

bool Session::loadChosenSet()
{
    std::optional<QString> path = m_options.set;
    if (!path)
        path = paths().getCurrentConfigurationFile(CUI::ConfigType::HotkeySet);
    else if (!path->isEmpty())
        path = findSet(*this, *path);
    return path && (path->isEmpty() || loadSet(*path));
}

bool Session::loadSet(const QString &path)
{
    QFile file(path);
    if (!QFileInfo(path).isFile() || !file.open(QIODevice::ReadOnly)) {
        problem(QStringLiteral("%1: the hotkey set cannot be opened").arg(path));
        return false;
    }
    if (m_store.loadShortcutTransforms(path))
        return true;
    problem(QStringLiteral("%1: the hotkey set cannot be loaded").arg(path));
    return false;
}

// The catalogue

const Host::HostCatalogue &Session::catalogue() const
{
    return m_host->catalogue();
}

Host::HostPathManager &Session::paths() const
{
    return *m_host->paths();
}

QString Session::presetDirectory() const
{
    return paths().getDefaultPresetDirectory();
}

QStringList Session::hotkeys(const CUI::ActionIdentifier &identifier) const
{
    return hotkeysIn(m_store.getShortcuts(), identifier);
}

QStringList Session::baseHotkeys(const CUI::ActionIdentifier &identifier) const
{
    return hotkeysIn(m_store.getBaseShortcuts(), identifier);
}

const Host::HostCatalogue::Action *Session::findAction(const QString &text) const
{
    const auto &actions = catalogue().actions;
    const auto found = std::find_if(actions.begin(), actions.end(),
                                    [&text](const Host::HostCatalogue::Action &action) {
                                        return action.identifier.toString() == text;
                                    });
    return found == actions.end() ? nullptr : &*found;
}

QString Session::describe(const CUI::ActionIdentifier &identifier) const
{
    const QString id = printable(identifier.toString());
    const Host::HostCatalogue::Action *action = findAction(identifier.toString());
    return action == nullptr ? id : QStringLiteral("%1 (%2)").arg(printable(action->name), id);
}

QString Session::contextName(unsigned long contextId) const
{
    for (const Host::HostCatalogue::Context &context : catalogue().contexts) {
        if (context.id == contextId)
            return context.name;
    }
    return {};
}

std::optional<std::vector<Host::HostCatalogue::Context>> Session::contextsNamed(
        const std::optional<QString> &name) const
{
    const auto &all = catalogue().contexts;
    if (!name)
        return all;
    std::vector<Host::HostCatalogue::Context> matching;
    QStringList names;
    for (const Host::HostCatalogue::Context &context : all) {
        names << context.name;
        if (context.name == *name)
            matching.push_back(context);
    }
    if (!matching.empty())
        return matching;
    problem(QStringLiteral("there is no context '%1'; there are: %2")
                    .arg(*name, names.join(QLatin1String(", "))));
    return {};
}

} // namespace HotkeyCtl
